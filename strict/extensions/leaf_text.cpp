#include "strict/extensions/leaf_text.h"

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

// Year, month and day of a day since 1970, by the rule that years begin in March.
struct Date {
  uint64_t year, month, day;
};

Date DateOf(uint64_t days) {
  const uint64_t shifted = days + 719468;  // since 0000-03-01
  const uint64_t era = shifted / 146097;   // days of 400 years
  const uint64_t day_of_era = shifted % 146097;
  const uint64_t year_of_era =
      (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
  const uint64_t day_of_year =
      day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
  const uint64_t shifted_month = (5 * day_of_year + 2) / 153;
  const uint64_t month = shifted_month < 10 ? shifted_month + 3 : shifted_month - 9;
  const uint64_t year = year_of_era + era * 400 + (month <= 2 ? 1 : 0);
  return {year, month, day_of_year - (153 * shifted_month + 2) / 5 + 1};
}

void PutPart(char before, uint64_t number, Output* out, size_t digits = 2) {
  out->Put(before);
  PutDecimal(number, out, digits);
}

}  // namespace

bool IsShortInteger(ByteView content, int64_t* number) {
  if (content.size > 7) return false;
  int64_t value = (content[0] & 0x80) != 0 ? -1 : 0;
  for (const uint8_t octet : content) value = value * 256 + octet;
  *number = value;
  return value <= kLargestShort && value >= -kLargestShort;
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

void PutMilliseconds(uint64_t time, Output* out) {
  const uint64_t seconds = time / 1000;
  const Date date = DateOf(seconds / 86400);
  PutDecimal(date.year, out, 4);
  PutPart('-', date.month, out);
  PutPart('-', date.day, out);
  PutPart('T', seconds / 3600 % 24, out);
  PutPart(':', seconds / 60 % 60, out);
  PutPart(':', seconds % 60, out);
  PutPart('.', time % 1000, out, 3);
  out->Put('Z');
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
