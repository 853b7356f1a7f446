// FileTimeToSystemTime, SystemTimeToFileTime.

#include <cstdint>

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

constexpr std::uint64_t kTicksPerDay = 864000000000;

FILETIME FromTicks(std::uint64_t ticks) {
  return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

std::uint64_t ToTicks(const FILETIME& time) {
  return static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

struct TimeRow {
  std::uint64_t ticks;
  SYSTEMTIME fields;  // year, month, day of the week, day, hour, minute, second, millisecond
};

// Known instants; the Unix epoch lies 11644473600 seconds after 1601-01-01.
const TimeRow kTimes[] = {
    {0, {1601, 1, 1, 1, 0, 0, 0, 0}},
    {116444736000000000, {1970, 1, 4, 1, 0, 0, 0, 0}},
    {125963423999990000, {2000, 2, 2, 29, 23, 59, 59, 999}},
    {125963424000000000, {2000, 3, 3, 1, 0, 0, 0, 0}},
    {135999648000000000, {2031, 12, 6, 20, 0, 0, 0, 0}},
    {0x7FFF35F4F06C7FFF / 10000 * 10000, {30827, 12, 5, 31, 23, 59, 59, 999}},
};

TEST(SystemTime, KnownInstantsBothWays) {
  for (const TimeRow& row : kTimes) {
    SCOPED_TRACE(row.ticks);
    const FILETIME in = FromTicks(row.ticks);
    SYSTEMTIME fields = {};
    EXPECT_TRUE(FileTimeToSystemTime(&in, &fields));
    EXPECT_EQ(std::memcmp(&fields, &row.fields, sizeof fields), 0)
        << fields.wYear << '-' << fields.wMonth << '-' << fields.wDay << " (" << fields.wDayOfWeek
        << ") " << fields.wHour << ':' << fields.wMinute << ':' << fields.wSecond << '.'
        << fields.wMilliseconds;
    FILETIME back = {};
    EXPECT_TRUE(SystemTimeToFileTime(&row.fields, &back));
    EXPECT_EQ(ToTicks(back), row.ticks);
  }
}

// 1200 years day by day: each day follows the one before and comes back as it was.
TEST(SystemTime, EveryDayComesBack) {
  SYSTEMTIME before = {1601, 1, 0, 0, 0, 0, 0, 0};
  for (std::uint64_t day = 0; day < 3 * 146097 + 400; ++day) {
    const FILETIME in = FromTicks(day * kTicksPerDay + 47 * 10000);
    SYSTEMTIME fields = {};
    ASSERT_TRUE(FileTimeToSystemTime(&in, &fields));
    const bool nextDay = fields.wDay == before.wDay + 1 && fields.wMonth == before.wMonth;
    const bool nextMonth = fields.wDay == 1 && fields.wMonth == before.wMonth % 12 + 1;
    ASSERT_TRUE(nextDay || nextMonth) << day;
    ASSERT_EQ(fields.wDayOfWeek, (before.wDayOfWeek + 1) % 7) << day;
    FILETIME back = {};
    ASSERT_TRUE(SystemTimeToFileTime(&fields, &back));
    ASSERT_EQ(ToTicks(back), ToTicks(in)) << day;
    before = fields;
  }
}

TEST(SystemTime, EndsWithTheTopBit) {
  SYSTEMTIME fields = {};
  const FILETIME last = FromTicks(0x7FFFFFFFFFFFFFFF);
  EXPECT_TRUE(FileTimeToSystemTime(&last, &fields));
  EXPECT_EQ(fields.wYear, 30828);
  const FILETIME past = FromTicks(0x8000000000000000);
  SetLastError(kUntouched);
  EXPECT_FALSE(FileTimeToSystemTime(&past, &fields));
  ExpectLastError(true, ERROR_INVALID_PARAMETER);
}

}  // namespace
}  // namespace Ortholan::testing
