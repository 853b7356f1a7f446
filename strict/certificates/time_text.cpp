#include "strict/certificates/time_text.h"

#include "bytes/ascii.h"
#include "bytes/calendar.h"
#include "bytes/utc_time_year.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {
namespace {

struct Moment {
  unsigned year, month, day, hour, minute, second;
};

unsigned TwoDigits(ByteView digits, size_t at) {
  return (digits[at] - 0x30u) * 10 + (digits[at + 1] - 0x30u);
}

bool ReadMoment(ByteView digits, bool hasCentury, Moment* moment) {
  const size_t size = hasCentury ? 15 : 13;
  if (digits.size != size || digits[size - 1] != 'Z') return false;
  for (size_t i = 0; i + 1 < size; ++i) {
    if (!IsAsciiDigit(digits[i])) return false;
  }
  const unsigned short_year = TwoDigits(digits, 0);
  const ByteView rest = digits.From(hasCentury ? 4 : 2);
  const unsigned year =
      hasCentury ? short_year * 100 + TwoDigits(digits, 2) : YearOfTwoDigits(short_year);
  *moment = {year,
             TwoDigits(rest, 0),
             TwoDigits(rest, 2),
             TwoDigits(rest, 4),
             TwoDigits(rest, 6),
             TwoDigits(rest, 8)};
  return moment->month >= 1 && moment->month <= 12 && moment->day >= 1 &&
         moment->day <= DaysInMonth(year, moment->month) && moment->hour < 24 &&
         moment->minute < 60 && moment->second < 60;
}

}  // namespace

bool PutTimeText(ByteView element, Output* out) {
  Reader reader(element, Leniency::kDer, nullptr);
  Element time;
  if (!reader.Read(&time) || !reader.End()) return false;
  if (time.identifier != kUtcTime && time.identifier != kGeneralizedTime) return false;
  return PutTimeText(time.identifier, time.content, out);
}

bool PutTimeText(uint8_t identifier, ByteView content, Output* out) {
  Moment moment;
  if (!ReadMoment(content, identifier == kGeneralizedTime, &moment)) return false;
  PutDecimal(moment.year, out, 4);
  out->Put('-');
  PutDecimal(moment.month, out, 2);
  out->Put('-');
  PutDecimal(moment.day, out, 2);
  out->Put('T');
  PutDecimal(moment.hour, out, 2);
  out->Put(':');
  PutDecimal(moment.minute, out, 2);
  out->Put(':');
  PutDecimal(moment.second, out, 2);
  out->Put('Z');
  return true;
}

}  // namespace Ortholan::strict
