// The attributes of a name: all of them in one block, or the value of one.
#include <string>
#include <vector>

#include "bytes/byte_view.h"
#include "bytes/hex.h"
#include "capi/attribute_type.h"
#include "capi/call.h"
#include "capi/handles.h"
#include "capi/text.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/attribute_walk.h"
#include "names/decoder/value_text.h"

namespace Ortholan::capi {
namespace {

void AppendHexDigits(ByteView octets, std::string* text) {
  const size_t before = text->size();
  text->resize(before + 2 * octets.size);
  char* out = text->data() + before;
  for (const BYTE octet : octets) out = WriteHexOctet(octet, out);
}

Outcome AppendUtf8(std::wstring_view wide, std::string* text) {
  std::string narrow;
  if (Narrow(wide, kCodePageUtf8, &narrow) != Conversion::kDone) {
    return Refused(ORTHOLAN_ERROR_MEMORY, Status::kNoMemory);
  }
  text->append(narrow);
  return Done();
}

Outcome AppendValue(const DecodedAttribute& attribute, std::string* text) {
  if (attribute.is_ascii()) {
    text->append(attribute.ascii());
    return Done();
  }
  std::wstring wide;
  if (DecodeAttrData(attribute.value(), &wide)) return AppendUtf8(wide, text);
  if (GetLastError() == ERROR_NOT_ENOUGH_MEMORY) {
    return RefusedByLastError(ORTHOLAN_ERROR_MEMORY, Status::kNoMemory);
  }
  text->push_back('#');
  AppendHexDigits(attribute.value().bytes, text);
  return Done();
}

// Gathers texts and octets in one run and hands them out behind the array that points into it.
class AttributeBlock {
 public:
  // Types and values come to about as much as the name, and so do the values' encodings.
  explicit AttributeBlock(size_t name_size) { run_.reserve(2 * name_size); }

  Outcome Add(const DecodedAttribute& attribute) {
    Places places = {};
    places.type = run_.size();
    run_.append(attribute.type().dotted()).push_back('\0');
    places.key = places.type;
    const std::wstring_view key = KeyFor(attribute.type(), kStyleKeys);
    if (!key.empty()) {
      places.key = run_.size();
      const Outcome appended = AppendUtf8(key, &run_);
      if (!appended) return appended;
      run_.push_back('\0');
    }
    places.value = run_.size();
    const Outcome appended = AppendValue(attribute, &run_);
    if (!appended) return appended;
    places.value_size = run_.size() - places.value;
    run_.push_back('\0');
    places.der = run_.size();
    run_.append(AsText(attribute.value().bytes));
    places.der_size = attribute.value().bytes.size;
    places_.push_back(places);
    return Done();
  }

  void Give(ortholan_attribute** attributes, size_t* count) const {
    if (places_.empty()) return;
    const size_t array_size = places_.size() * sizeof(ortholan_attribute);
    char* const block = NewBlock(array_size + run_.size());
    char* const run = block + array_size;
    run_.copy(run, run_.size());
    auto* const array = reinterpret_cast<ortholan_attribute*>(block);
    for (size_t i = 0; i < places_.size(); ++i) {
      const Places& at = places_[i];
      array[i] = {run + at.type,
                  run + at.key,
                  run + at.value,
                  at.value_size,
                  reinterpret_cast<const uint8_t*>(run + at.der),
                  at.der_size};
    }
    *attributes = array;
    *count = places_.size();
  }

 private:
  // Offsets into the run.
  struct Places {
    size_t type;
    size_t key;
    size_t value;
    size_t value_size;
    size_t der;
    size_t der_size;
  };

  std::string run_;
  std::vector<Places> places_;
};

// Calls `use` with each attribute until an outcome is a failure, which is the result.
template <typename Use>
Outcome WalkAttributes(const X509Name& name, Use use) {
  Outcome outcome = Done();
  const bool walked = ForEachAttribute(ViewOf(name), [&](const DecodedAttribute& each) {
    outcome = use(each);
    return static_cast<bool>(outcome);
  });
  if (walked || !outcome) return outcome;
  return RefusedByLastError(ORTHOLAN_ERROR_DER, Status::kCorrupt);
}

Outcome GetValue(const X509Name& name, const char* type_text, char** value, size_t* size) {
  AttributeType type;
  const Outcome read = type.Read(type_text);
  if (!read) return read;
  bool found = false;
  std::string text;
  const Outcome walked = WalkAttributes(name, [&](const DecodedAttribute& attribute) {
    if (found || !type.Matches(attribute.type())) return Done();
    found = true;
    return AppendValue(attribute, &text);
  });
  if (!walked) return walked;
  if (!found) return NotFound();
  GiveText(text, value, size);
  return Done();
}

}  // namespace
}  // namespace Ortholan::capi

using namespace Ortholan::capi;
using Ortholan::ByteView;
using Ortholan::DecodedAttribute;
using Ortholan::Status;

ortholan_result ortholan_name_count(const ortholan_name* name, size_t* count) {
  return Call(__func__, [&] {
    if (!Clear(count) || name == nullptr) return NullArgument();
    size_t rdns = 0;
    const Status status = Ortholan::CountChildren(ViewOf(name->name), &rdns);
    if (status != Status::kOk) return Refused(ORTHOLAN_ERROR_DER, status);
    *count = rdns;
    return Done();
  });
}

ortholan_result ortholan_name_attributes(const ortholan_name* name, ortholan_attribute** attributes,
                                         size_t* count) {
  return Call(__func__, [&] {
    if (!Clear(attributes, count) || name == nullptr) return NullArgument();
    AttributeBlock block(name->name.cbData);
    const Outcome walked = WalkAttributes(
        name->name, [&](const DecodedAttribute& attribute) { return block.Add(attribute); });
    if (walked) block.Give(attributes, count);
    return walked;
  });
}

ortholan_result ortholan_name_get(const ortholan_name* name, const char* type, char** value,
                                  size_t* size) {
  return Call(__func__, [&] {
    Clear(size);
    if (!Clear(value) || name == nullptr || type == nullptr) return NullArgument();
    return GetValue(name->name, type, value, size);
  });
}
