// FILETIME (100-nanosecond steps since 1601-01-01 00:00 UTC) to calendar fields and back.

#include <ortholan/platform.h>

#include <cstdint>

#include "bytes/calendar.h"
#include "platform/posix/fail.h"

namespace Ortholan {
namespace {

using posix::Fail;

constexpr std::int64_t kTicksPerMillisecond = 10000;
constexpr std::int64_t kMillisecondsPerDay = 86400000;
constexpr int kFirstYear = 1601;
constexpr int kLastYear = 30827;

constexpr std::int64_t kDaysTo1970 = -DaysSince1970({kFirstYear, 1, 1});

void SetDate(std::int64_t days, SYSTEMTIME* out) {
  const Date date = DateOf(days - kDaysTo1970);
  out->wYear = static_cast<WORD>(date.year);
  out->wMonth = static_cast<WORD>(date.month);
  out->wDay = static_cast<WORD>(date.day);
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
  const std::int64_t days = DaysSince1970({time.wYear, time.wMonth, time.wDay}) + kDaysTo1970;
  const std::int64_t milliseconds =
      days * kMillisecondsPerDay + seconds * 1000 + time.wMilliseconds;
  const auto ticks = static_cast<std::uint64_t>(milliseconds * kTicksPerMillisecond);
  *fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  return TRUE;
}

}  // namespace Ortholan
