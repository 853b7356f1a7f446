// Names built and edited.
#include "strict/names/name_edit.h"

#include <ortholan/strict/name_edit.h>

#include <deque>
#include <new>
#include <vector>

#include "strict/der/oid.h"
#include "strict/face/call.h"
#include "strict/face/name_options.h"
#include "strict/names/type_finder.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

bool IsSound(const ortholan_new_attribute& attribute) {
  return IsGiven(attribute.oid) && IsGiven(attribute.type) && IsGiven(attribute.text) &&
         IsGiven(attribute.element) && attribute.string_type <= 0xFF;
}

// The caller's attributes with their types found.
class Attributes {
 public:
  explicit Attributes(const TextOptions& options) : options_(options) {}

  ortholan_reason Add(const ortholan_new_attribute& given) {
    if (!IsSound(given)) return ORTHOLAN_REASON_ARGUMENT;
    NamedType type;
    const ortholan_reason reason = FindType(given, &type);
    if (reason != ORTHOLAN_REASON_NONE) return reason;
    list_.push_back({type.oid, type.syntax, View(given.text), View(given.element),
                     static_cast<uint8_t>(given.string_type), given.joins_rdn == 0});
    return ORTHOLAN_REASON_NONE;
  }
  const std::vector<NewAttribute>& list() const { return list_; }

 private:
  ortholan_reason FindType(const ortholan_new_attribute& given, NamedType* type) {
    if (given.oid.size != 0) {
      *type = Describe(View(given.oid), options_);
      if (!IsIdentifier(type->oid)) return ORTHOLAN_REASON_OID;
      return ORTHOLAN_REASON_NONE;
    }
    const std::string_view text = View(given.type);
    finders_.emplace_back(options_);
    const bool dotted = !text.empty() && text[0] >= '0' && text[0] <= '9';
    return finders_.back().Find(text, dotted, type);
  }

  const TextOptions& options_;
  std::deque<TypeFinder> finders_;  // hold identifiers, and do not move
  std::vector<NewAttribute> list_;
};

ortholan_reason ReportFault(const AttributeFault& fault, size_t index, ortholan_refusal* refusal) {
  if (refusal != nullptr) {
    *refusal = {fault.reason, static_cast<uint32_t>(index), fault.expected, fault.offset};
  }
  return fault.reason;
}

ortholan_reason Build(const ortholan_new_attribute* attributes, size_t count,
                      const TextOptions& options, BackwardOutput* out, size_t* size,
                      ortholan_refusal* refusal) {
  Attributes read(options);
  AttributeFault fault;
  size_t index = 0;
  for (; index < count; ++index) {
    fault.reason = read.Add(attributes[index]);
    if (fault.reason != ORTHOLAN_REASON_NONE) return ReportFault(fault, index, refusal);
  }
  if (!BuildName(read.list().data(), count, options.strings, out, &fault, &index)) {
    return ReportFault(fault, index, refusal);
  }
  return Finish(out, size, refusal);
}

ortholan_reason Edit(const ortholan_name_view* name, NameEdit edit, size_t place,
                     const ortholan_new_attribute* attribute, const TextOptions& options,
                     BackwardOutput* out, size_t* size, ortholan_refusal* refusal) {
  Attributes read(options);
  AttributeFault fault;
  if (attribute != nullptr) fault.reason = read.Add(*attribute);
  if (fault.reason != ORTHOLAN_REASON_NONE) return ReportFault(fault, 0, refusal);
  const NameView view =
      NameView::OfChecked(View(name->der), name->rdn_count, name->attribute_count);
  const NewAttribute written = attribute != nullptr ? read.list()[0] : NewAttribute();
  if (!EditName(view, edit, place, written, options.strings, out, &fault)) {
    return ReportFault(fault, 0, refusal);
  }
  return Finish(out, size, refusal);
}

// What every function here does with its arguments.
ortholan_reason RunEdit(const ortholan_name_view* name, NameEdit edit, size_t place,
                        const ortholan_new_attribute* attribute,
                        const ortholan_rfc4514_options* options, uint8_t* out, size_t room,
                        size_t* size, ortholan_refusal* refusal) {
  Clear(size, refusal);
  const bool needs = edit != NameEdit::kRemove;
  if (name == nullptr || (needs && attribute == nullptr) || !IsRoom(out, room)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  TextOptions read;
  const ortholan_reason wrong = ReadOptions(options, &read);
  if (wrong != ORTHOLAN_REASON_NONE) return Report(wrong, refusal);
  BackwardOutput der(out, room);
  try {
    return Edit(name, edit, place, attribute, read, &der, size, refusal);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
}

}  // namespace

ortholan_reason ortholan_name_build(const ortholan_new_attribute* attributes, size_t count,
                                    const ortholan_rfc4514_options* options, uint8_t* out,
                                    size_t room, size_t* size, ortholan_refusal* refusal) {
  Clear(size, refusal);
  if ((attributes == nullptr && count != 0) || !IsRoom(out, room)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  TextOptions read;
  const ortholan_reason wrong = ReadOptions(options, &read);
  if (wrong != ORTHOLAN_REASON_NONE) return Report(wrong, refusal);
  BackwardOutput der(out, room);
  try {
    return Build(attributes, count, read, &der, size, refusal);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
}

ortholan_reason ortholan_name_view_replace(const ortholan_name_view* name, size_t index,
                                           const ortholan_new_attribute* attribute,
                                           const ortholan_rfc4514_options* options, uint8_t* out,
                                           size_t room, size_t* size, ortholan_refusal* refusal) {
  return RunEdit(name, NameEdit::kReplace, index, attribute, options, out, room, size, refusal);
}

ortholan_reason ortholan_name_view_remove(const ortholan_name_view* name, size_t index,
                                          uint8_t* out, size_t room, size_t* size,
                                          ortholan_refusal* refusal) {
  return RunEdit(name, NameEdit::kRemove, index, nullptr, nullptr, out, room, size, refusal);
}

ortholan_reason ortholan_name_view_insert(const ortholan_name_view* name, size_t rdn,
                                          const ortholan_new_attribute* attribute,
                                          const ortholan_rfc4514_options* options, uint8_t* out,
                                          size_t room, size_t* size, ortholan_refusal* refusal) {
  return RunEdit(name, NameEdit::kInsert, rdn, attribute, options, out, room, size, refusal);
}
