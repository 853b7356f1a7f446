#include "names/encoder/value_type.h"

#include "names/encoder/char_class.h"
#include "names/encoder/encoder_options.h"

namespace Ortholan {
namespace {

constexpr bool HasAll(DWORD options, DWORD bits) { return (options & bits) == bits; }

DWORD FreeTextType(std::wstring_view value, DWORD options) {
  if (HasAll(options, kOptionAlwaysUtf8)) return CERT_RDN_UTF8_STRING;
  if ((CommonClasses(value) & kInPrintable) != 0) return CERT_RDN_PRINTABLE_STRING;
  return HasAll(options, kOptionUtf8) ? CERT_RDN_UTF8_STRING : CERT_RDN_BMP_STRING;
}

}  // namespace

bool DetermineTargetType(ValueRule rule, std::wstring_view value, DWORD options,
                         DWORD* valueType) {
  if (value.empty()) return false;
  switch (rule) {
    case ValueRule::kPrintable:
      *valueType = CERT_RDN_PRINTABLE_STRING;
      return (CommonClasses(value) & kInPrintable) != 0;
    case ValueRule::kIA5:
      *valueType = CERT_RDN_IA5_STRING;
      return (CommonClasses(value) & kInIA5) != 0;
    case ValueRule::kFreeText:
      break;
  }
  *valueType = FreeTextType(value, options);
  return true;
}

}  // namespace Ortholan
