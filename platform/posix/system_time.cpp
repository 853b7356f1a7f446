// FILETIME (100-nanosecond steps since 1601-01-01 00:00 UTC) to calendar fields and back.

#include <ortholan/platform.h>

#include <cstdint>

#include "platform/posix/fail.h"

namespace Ortholan {
namespace {

using posix::Fail;

constexpr std::int64_t kTicksPerMillisecond = 10000;
constexpr std::int64_t kMillisecondsPerDay = 86400000;
constexpr int kFirstYear = 1601;
constexpr int kLastYear = 30827;

// The calendar repeats after 400 years. Years are counted from March, so that the leap day is the
// last of its year; 1600-03-01 begins an era and lies 306 days before 1601-01-01.
constexpr std::int64_t kDaysPerEra = 146097;
constexpr std::int64_t kDaysBefore1601 = 306;

bool IsLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysInMonth(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return kDays[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0);
}

// Day of the year of March that a month begins at; `month` counts from March as 0.
std::int64_t DaysBeforeMonth(int month) { return (153 * month + 2) / 5; }

// Days since 1601-01-01.
std::int64_t DaysOf(int year, int month, int day) {
  const int march = month > 2 ? month - 3 : month + 9;
  const std::int64_t years = year - 1600 - (month > 2 ? 0 : 1);
  return 365 * years + years / 4 - years / 100 + years / 400 + DaysBeforeMonth(march) + day - 1 -
         kDaysBefore1601;
}

void SetDate(std::int64_t days, SYSTEMTIME* out) {
  const std::int64_t shifted = days + kDaysBefore1601;
  const std::int64_t era = shifted / kDaysPerEra;
  const std::int64_t day = shifted % kDaysPerEra;
  const std::int64_t year = (day - day / 1460 + day / 36524 - day / 146096) / 365;
  const std::int64_t dayOfYear = day - (365 * year + year / 4 - year / 100);
  const auto march = static_cast<int>((5 * dayOfYear + 2) / 153);
  const int month = march < 10 ? march + 3 : march - 9;
  out->wYear = static_cast<WORD>(1600 + 400 * era + year + (month <= 2 ? 1 : 0));
  out->wMonth = static_cast<WORD>(month);
  out->wDay = static_cast<WORD>(dayOfYear - DaysBeforeMonth(march) + 1);
  // 1601-01-01 was a Monday.
  out->wDayOfWeek = static_cast<WORD>((days + 1) % 7);
}

void SetTimeOfDay(std::int64_t milliseconds, SYSTEMTIME* out) {
  out->wHour = static_cast<WORD>(milliseconds / 3600000);
  out->wMinute = static_cast<WORD>(milliseconds / 60000 % 60);
  out->wSecond = static_cast<WORD>(milliseconds / 1000 % 60);
  out->wMilliseconds = static_cast<WORD>(milliseconds % 1000);
}

bool IsValid(const SYSTEMTIME& time) {
  return time.wYear >= kFirstYear && time.wYear <= kLastYear && time.wMonth >= 1 &&
         time.wMonth <= 12 && time.wDay >= 1 && time.wDay <= DaysInMonth(time.wYear, time.wMonth) &&
         time.wHour < 24 && time.wMinute < 60 && time.wSecond < 60 && time.wMilliseconds < 1000;
}

}  // namespace

BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime) noexcept {
  if (fileTime == nullptr || systemTime == nullptr) return Fail(ERROR_INVALID_PARAMETER);
  const std::uint64_t ticks =
      static_cast<std::uint64_t>(fileTime->dwHighDateTime) << 32 | fileTime->dwLowDateTime;
  if (ticks > INT64_MAX) return Fail(ERROR_INVALID_PARAMETER);
  const std::int64_t milliseconds = static_cast<std::int64_t>(ticks) / kTicksPerMillisecond;
  SetDate(milliseconds / kMillisecondsPerDay, systemTime);
  SetTimeOfDay(milliseconds % kMillisecondsPerDay, systemTime);
  return TRUE;
}

BOOL SystemTimeToFileTime(const SYSTEMTIME* systemTime, FILETIME* fileTime) noexcept {
  if (systemTime == nullptr || fileTime == nullptr || !IsValid(*systemTime)) {
    return Fail(ERROR_INVALID_PARAMETER);
  }
  const SYSTEMTIME& time = *systemTime;
  const std::int64_t seconds = (time.wHour * 60 + time.wMinute) * 60 + time.wSecond;
  const std::int64_t milliseconds =
      DaysOf(time.wYear, time.wMonth, time.wDay) * kMillisecondsPerDay + seconds * 1000 +
      time.wMilliseconds;
  const auto ticks = static_cast<std::uint64_t>(milliseconds * kTicksPerMillisecond);
  *fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  return TRUE;
}

}  // namespace Ortholan
