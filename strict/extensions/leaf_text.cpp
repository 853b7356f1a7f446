#include "strict/extensions/leaf_text.h"

#include "strict/der/integer.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {
namespace {

struct StringKind {
  uint8_t identifier;
  std::string_view name;
};

constexpr StringKind kStringKinds[] = {
    {kUtf8String, "utf8String"},
    {kPrintableString, "printableString"},
    {kIA5String, "ia5String"},
    {kVisibleString, "visibleString"},
    {kBmpString, "bmpString"},
    {kTeletexString, "teletexString"},
    {kUniversalString, "universalString"},
    {kNumericString, "numericString"},
};

constexpr int64_t kLargestShort = INT64_C(0x1FFFFFFFFFFFFF);  // 2^53 - 1

}  // namespace

bool IsShortInteger(ByteView content, int64_t* number) {
  if (content.size > 7) return false;
  *number = ReadInteger(content);
  return *number <= kLargestShort && *number >= -kLargestShort;
}

void PutSigned(int64_t number, Output* out) {
  if (number < 0) out->Put('-');
  PutDecimal(static_cast<uint64_t>(number < 0 ? -number : number), out);
}

const char* NameOf(const Shape& shape, uint64_t number) {
  for (const NumberName& row : shape.names) {
    if (row.number == number) return row.name;
  }
  return nullptr;
}

const char* StringKindName(uint8_t identifier) {
  for (const StringKind& kind : kStringKinds) {
    if (kind.identifier == identifier) return kind.name.data();
  }
  return nullptr;
}

uint8_t StringKindOf(std::string_view name) {
  for (const StringKind& kind : kStringKinds) {
    if (kind.name == name) return kind.identifier;
  }
  return 0;
}

}  // namespace Ortholan::strict
