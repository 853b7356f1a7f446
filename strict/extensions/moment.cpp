#include "strict/extensions/moment.h"

#include "bytes/ascii.h"
#include "strict/extensions/leaf_text.h"

namespace Ortholan::strict {
namespace {

constexpr std::string_view kForm = "0000-00-00T00:00:00.000Z";

// Days are counted from 0000-03-01, so that a leap day is the last of its year; months from March.
constexpr uint64_t kDaysTo1970 = 719468;
constexpr uint64_t kDaysOf400Years = 146097;

struct Date {
  uint64_t year, month, day;
};

uint64_t DaysBeforeMonth(uint64_t month) { return (153 * month + 2) / 5; }
uint64_t DaysBeforeYear(uint64_t year) { return 365 * year + year / 4 - year / 100; }

Date DateOf(uint64_t daysSince1970) {
  const uint64_t days = daysSince1970 + kDaysTo1970;
  const uint64_t rest = days % kDaysOf400Years;
  const uint64_t year = (rest - rest / 1460 + rest / 36524 - rest / 146096) / 365;
  const uint64_t day = rest - DaysBeforeYear(year);
  const uint64_t month = (5 * day + 2) / 153;
  return {days / kDaysOf400Years * 400 + year + (month >= 10 ? 1 : 0),
          month >= 10 ? month - 9 : month + 3, day - DaysBeforeMonth(month) + 1};
}

// Years are counted 400 further on, so that none is below zero.
int64_t DaysSince1970(const Date& date) {
  const bool is_early = date.month <= 2;
  const uint64_t year = date.year + 400 - (is_early ? 1 : 0);
  const uint64_t month = is_early ? date.month + 9 : date.month - 3;
  const uint64_t days = year / 400 * kDaysOf400Years + DaysBeforeYear(year % 400) +
                        DaysBeforeMonth(month) + date.day - 1;
  return static_cast<int64_t>(days) - static_cast<int64_t>(kDaysOf400Years + kDaysTo1970);
}

void PutPart(char before, uint64_t number, Output* out, size_t digits = 2) {
  out->Put(before);
  PutDecimal(number, out, digits);
}

bool HasForm(std::string_view text) {
  if (text.size() != kForm.size()) return false;
  for (size_t i = 0; i < kForm.size(); ++i) {
    const bool is_digit = IsAsciiDigit(static_cast<uint8_t>(text[i]));
    if (kForm[i] == '0' ? !is_digit : text[i] != kForm[i]) return false;
  }
  return true;
}

uint64_t NumberIn(std::string_view digits) {
  uint64_t number = 0;
  for (const char c : digits) number = number * 10 + static_cast<uint64_t>(c - '0');
  return number;
}

}  // namespace

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

int64_t SecondsOf(std::string_view text) {
  const Date date = {NumberIn(text.substr(0, 4)), NumberIn(text.substr(5, 2)),
                     NumberIn(text.substr(8, 2))};
  const uint64_t second_of_day = NumberIn(text.substr(11, 2)) * 3600 +
                                 NumberIn(text.substr(14, 2)) * 60 + NumberIn(text.substr(17, 2));
  return DaysSince1970(date) * 86400 + static_cast<int64_t>(second_of_day);
}

// A month or day that there is not, or an hour 24, comes back as another moment.
bool MillisecondsOf(std::string_view text, uint64_t* time) {
  if (!HasForm(text) || text.substr(0, 4) < "1970" || text.substr(5, 2) == "00") return false;
  const int64_t seconds = SecondsOf(text);
  if (seconds < 0) return false;
  *time = static_cast<uint64_t>(seconds) * 1000 + NumberIn(text.substr(20, 3));
  const uint64_t moment = *time;
  return moment <= kLastMillisecond &&
         TextOf([moment](Output* out) { PutMilliseconds(moment, out); }) == text;
}

}  // namespace Ortholan::strict
