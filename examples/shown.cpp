#include "examples/shown.h"

#include <ortholan/status.h>

#include "examples/document.h"
#include "examples/failure.h"
#include "examples/findings.h"
#include "examples/show_json.h"
#include "examples/show_text.h"

namespace Example {
namespace {

Shown Refused(const Source& source, ShowForm form, const std::string& what) {
  if (form == ShowForm::kText) return {{}, {what}, false};
  return {RefusedJson(source.path, source.number, what), {what}, false};
}

// What `show` makes, or the document as one that cannot be read.
template <class Show>
Shown Guarded(const Source& source, ShowForm form, Show show) {
  try {
    return show();
  } catch (const Failure& failure) {
    return Refused(source, form, Describe(failure));
  } catch (const Ortholan::XZEPStatus& failure) {
    const auto code = Ortholan::ASNTStatusToWinError(failure.GetStatus());
    return Refused(source, form, Describe({code, "the data cannot be read"}));
  }
}

}  // namespace

Shown ShowDocument(const Source& source, ShowForm form) {
  return Guarded(source, form, [&]() -> Shown {
    const Document document = ReadDocument(source.der);
    return {form == ShowForm::kJson ? DocumentJson(source.path, source.number, document)
                                    : DocumentText(source.number, document),
            document.faults, document.faults.empty()};
  });
}

Shown CheckDocument(const Source& source, ShowForm form) {
  return Guarded(source, form, [&]() -> Shown {
    const Findings findings = ReadFindings(source.der);
    return {form == ShowForm::kJson ? FindingsJson(source.path, source.number, findings)
                                    : FindingsText(source.number, findings),
            {},
            findings.list.empty()};
  });
}

}  // namespace Example
