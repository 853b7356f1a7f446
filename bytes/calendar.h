// The Gregorian calendar, from the year 0 on: dates and days counted from 1970-01-01.
//
//   DaysSince1970({2000, 2, 29});   // 11016
//   DateOf(11016);                  // 2000-02-29
#ifndef ORTHOLAN_BYTES_CALENDAR_H_
#define ORTHOLAN_BYTES_CALENDAR_H_

#include <cstdint>

namespace Ortholan {

struct Date {
  int64_t year;
  int64_t month;  // 1 to 12
  int64_t day;    // 1 to 31
};

constexpr bool IsLeapYear(int64_t year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

constexpr int64_t DaysInMonth(int64_t year, int64_t month) {
  constexpr int64_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return kDays[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
}

// The calendar repeats after 400 years. Years are counted from March, so that the leap day is the
// last of its year, and from 400 years before 0000-03-01, so that none is below zero.
namespace calendar {
constexpr int64_t kDaysOf400Years = 146097;
constexpr int64_t kDaysTo1970 = kDaysOf400Years + 719468;
// `month` counts from March as 0.
constexpr int64_t DaysBeforeMonth(int64_t month) { return (153 * month + 2) / 5; }
constexpr int64_t DaysBeforeYear(int64_t year) {
  return 365 * year + year / 4 - year / 100 + year / 400;
}
}  // namespace calendar

constexpr int64_t DaysSince1970(const Date& date) {
  const int64_t year = date.year + 400 - (date.month <= 2 ? 1 : 0);
  const int64_t month = date.month <= 2 ? date.month + 9 : date.month - 3;
  return calendar::DaysBeforeYear(year) + calendar::DaysBeforeMonth(month) + date.day - 1 -
         calendar::kDaysTo1970;
}

constexpr Date DateOf(int64_t daysSince1970) {
  const int64_t days = daysSince1970 + calendar::kDaysTo1970;
  const int64_t rest = days % calendar::kDaysOf400Years;
  const int64_t year = (rest - rest / 1460 + rest / 36524 - rest / 146096) / 365;
  const int64_t day = rest - calendar::DaysBeforeYear(year);
  const int64_t month = (5 * day + 2) / 153;
  return {days / calendar::kDaysOf400Years * 400 - 400 + year + (month >= 10 ? 1 : 0),
          month >= 10 ? month - 9 : month + 3, day - calendar::DaysBeforeMonth(month) + 1};
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_CALENDAR_H_
