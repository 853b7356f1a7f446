#include "examples/shown.h"

#include <ortholan/status.h>

#include "examples/document.h"
#include "examples/failure.h"
#include "examples/show_json.h"
#include "examples/show_text.h"

namespace Example {
namespace {

Shown Refused(const Source& source, ShowForm form, const std::string& what) {
  if (form == ShowForm::kText) return {{}, {what}};
  return {RefusedJson(source.path, source.number, what), {what}};
}

}  // namespace

Shown ShowDocument(const Source& source, ShowForm form) {
  try {
    const Document document = ReadDocument(source.der);
    return {form == ShowForm::kJson ? DocumentJson(source.path, source.number, document)
                                    : DocumentText(source.number, document),
            document.faults};
  } catch (const Failure& failure) {
    return Refused(source, form, Describe(failure));
  } catch (const Ortholan::XZEPStatus& failure) {
    const auto code = Ortholan::ASNTStatusToWinError(failure.GetStatus());
    return Refused(source, form, Describe({code, "the data cannot be read"}));
  }
}

}  // namespace Example
