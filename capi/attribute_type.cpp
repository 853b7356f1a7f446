#include "capi/attribute_type.h"

#include <ortholan/name_options.h>

#include <algorithm>

#include "bytes/ascii.h"
#include "capi/text.h"
#include "foundation/code_page.h"
#include "names/encoder/type_resolver.h"

namespace Ortholan::capi {
namespace {

bool SameKey(std::wstring_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](wchar_t x, char y) {
    return ToAsciiLower(x) == static_cast<wchar_t>(ToAsciiLower(y));
  });
}

}  // namespace

Outcome AttributeType::Read(const char* text) {
  const std::string_view type(text);
  if (type.empty() || !IsAscii(type) || IsAsciiDigit(type[0])) {
    dotted_ = type;
    return CheckIdentifier(type);
  }
  key_ = type;
  const AttributeRow* row = nullptr;
  if (TypeResolver().Resolve(type, &row) && row != nullptr) dotted_ = row->oid;
  return Done();
}

bool AttributeType::Matches(const TypeText& type) const {
  if (!dotted_.empty()) return type.dotted() == dotted_;
  return SameKey(KeyFor(type, kStyleKeys), key_);
}

}  // namespace Ortholan::capi
