// UTCTime and GeneralizedTime (X.680 46, 47), written as RFC 5280 4.1.2.5 wants them.

#include <cstdint>

#include "bytes/utc_time_year.h"
#include "platform/posix/structures/field.h"
#include "platform/posix/structures/load.h"

namespace Ortholan::posix {
namespace {

constexpr std::int64_t kTicksPerMinute = 600000000;

void PutDigits(unsigned number, unsigned digits, DerWriter* out) {
  for (; digits != 0; --digits, number /= 10) out->PutOctet(static_cast<BYTE>('0' + number % 10));
}

// Milliseconds have no place.
void PutTime(const SYSTEMTIME& time, unsigned yearDigits, DerWriter* out) {
  out->PutOctet('Z');
  for (const WORD part : {time.wSecond, time.wMinute, time.wHour, time.wDay, time.wMonth}) {
    PutDigits(part, 2, out);
  }
  PutDigits(time.wYear, yearDigits, out);
}

bool LoadTime(const BYTE* value, SYSTEMTIME* time) {
  constexpr WORD kLastYear = 9999;
  const auto ticks = Load<FILETIME>(value);
  return FileTimeToSystemTime(&ticks, time) != FALSE && time->wYear <= kLastYear;
}

DWORD WriteUtcTime(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  SYSTEMTIME time;
  if (!LoadTime(value, &time) || !IsUtcTimeYear(time.wYear)) return CRYPT_E_BAD_ENCODE;
  const std::size_t mark = out->size();
  PutTime(time, 2, out);
  out->PutHeader(kTagUtcTime, mark);
  return ERROR_SUCCESS;
}

DWORD WriteTime(const Field& field, const BYTE* value, DerWriter* out) {
  SYSTEMTIME time;
  if (!LoadTime(value, &time)) return CRYPT_E_BAD_ENCODE;
  if (IsUtcTimeYear(time.wYear)) return WriteUtcTime(field, value, out);
  const std::size_t mark = out->size();
  PutTime(time, 4, out);
  out->PutHeader(kTagGeneralizedTime, mark);
  return ERROR_SUCCESS;
}

// Takes digits, and what stands between them, off the front of a text.
class TimeText {
 public:
  explicit TimeText(ByteView text) : text_(text) {}

  bool empty() const { return text_.empty(); }
  bool StartsWithDigit() const { return !broken_ && !empty() && IsDigit(text_[0]); }
  // 0 where fewer digits follow; the text is then refused, and nothing more is taken as digits.
  WORD Take(unsigned digits) {
    WORD number = 0;
    for (; digits != 0; --digits) {
      if (!StartsWithDigit()) broken_ = true;
      if (broken_) return 0;
      number = static_cast<WORD>(number * 10 + (TakeAny() - '0'));
    }
    return number;
  }
  bool TakeIf(BYTE octet) {
    if (empty() || text_[0] != octet) return false;
    TakeAny();
    return true;
  }
  // 0 at the end.
  BYTE TakeAny() {
    if (empty()) return 0;
    const BYTE octet = text_[0];
    text_ = text_.From(1);
    return octet;
  }
  bool broken() const { return broken_; }

 private:
  static bool IsDigit(BYTE octet) { return octet >= '0' && octet <= '9'; }

  ByteView text_;
  bool broken_ = false;
};

// The digits behind a point, of which those beyond thousandths are dropped.
WORD TakeMilliseconds(TimeText* text) {
  unsigned milliseconds = 0;
  unsigned weight = 100;
  do {
    milliseconds += weight * text->Take(1);
    weight /= 10;
  } while (text->StartsWithDigit());
  return static_cast<WORD>(milliseconds);
}

// What stands behind the digits: "Z", nothing, or the distance of the local time.
bool TakeZone(TimeText* text, std::int64_t* minutesAhead) {
  *minutesAhead = 0;
  const BYTE sign = text->TakeAny();
  if (sign == '+' || sign == '-') {
    const int hours = text->Take(2);
    const int minutes = text->Take(2);
    if (hours > 23 || minutes > 59) return false;
    *minutesAhead = (sign == '+' ? 1 : -1) * (60 * hours + minutes);
  } else if (sign != 'Z' && sign != 0) {
    return false;
  }
  return text->empty() && !text->broken();
}

bool ToFileTime(const SYSTEMTIME& time, std::int64_t minutesAhead, FILETIME* ticks) {
  if (!SystemTimeToFileTime(&time, ticks)) return false;
  const auto local = std::int64_t{ticks->dwHighDateTime} << 32 | ticks->dwLowDateTime;
  const std::int64_t utc = local - minutesAhead * kTicksPerMinute;
  if (utc < 0) return false;
  *ticks = {static_cast<DWORD>(utc), static_cast<DWORD>(utc >> 32)};
  return true;
}

WORD TakeShortYear(TimeText* text) { return static_cast<WORD>(YearOfTwoDigits(text->Take(2))); }

DWORD ReadTime(const Field& /*field*/, const Element& element, std::size_t place,
               StructRoom* room) {
  TimeText text(element.content);
  SYSTEMTIME time = {};
  time.wYear = element.tag == kTagUtcTime ? TakeShortYear(&text) : text.Take(4);
  time.wMonth = text.Take(2);
  time.wDay = text.Take(2);
  time.wHour = text.Take(2);
  time.wMinute = text.Take(2);
  if (text.StartsWithDigit()) time.wSecond = text.Take(2);
  if (element.tag != kTagUtcTime && text.TakeIf('.')) time.wMilliseconds = TakeMilliseconds(&text);
  std::int64_t minutesAhead;
  FILETIME ticks;
  if (!TakeZone(&text, &minutesAhead) || !ToFileTime(time, minutesAhead, &ticks)) {
    return CRYPT_E_ASN1_CORRUPT;
  }
  room->Put(place, ticks);
  return ERROR_SUCCESS;
}

bool IsUtcTime(const Field& /*field*/, BYTE tag) { return tag == kTagUtcTime; }

bool IsTime(const Field& /*field*/, BYTE tag) {
  return tag == kTagUtcTime || tag == kTagGeneralizedTime;
}

}  // namespace

const Kind kUtcTimeKind = {WriteUtcTime, ReadTime, IsUtcTime};
const Kind kTimeKind = {WriteTime, ReadTime, IsTime};

}  // namespace Ortholan::posix
