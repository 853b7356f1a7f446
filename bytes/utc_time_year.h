// The two digits that a UTCTime has for its year stand for 1950 to 2049 (RFC 5280 4.1.2.5.1).
#ifndef ORTHOLAN_BYTES_UTC_TIME_YEAR_H_
#define ORTHOLAN_BYTES_UTC_TIME_YEAR_H_

namespace Ortholan {

constexpr unsigned kFirstUtcTimeYear = 1950;
constexpr unsigned kLastUtcTimeYear = 2049;

constexpr bool IsUtcTimeYear(unsigned year) {
  return year >= kFirstUtcTimeYear && year <= kLastUtcTimeYear;
}
constexpr unsigned YearOfTwoDigits(unsigned digits) {
  return digits + (digits < kFirstUtcTimeYear % 100 ? 2000 : 1900);
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_UTC_TIME_YEAR_H_
