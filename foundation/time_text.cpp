#include "foundation/time_text.h"

#include <cstdio>
#include <cstring>

#include "bytes/ascii.h"
#include "bytes/utc_time_year.h"

namespace Ortholan {
namespace {

constexpr unsigned kGeneralizedLastYear = 9999;
constexpr size_t kFieldDigits = 2;

bool Fits(unsigned year, TimeForm form) {
  if (form == TimeForm::kUtc) return IsUtcTimeYear(year);
  return year <= kGeneralizedLastYear;
}

unsigned ReadNumber(const BYTE** digits, size_t count) {
  unsigned value = 0;
  for (; count != 0; --count) value = value * 10 + (*(*digits)++ - BYTE{'0'});
  return value;
}

bool HasShape(ByteView text, TimeForm form) {
  const size_t length = form == TimeForm::kUtc ? kMaxTimeText - kFieldDigits : kMaxTimeText;
  if (text.size != length || text[length - 1] != 'Z') return false;
  for (const BYTE c : text.First(length - 1)) {
    if (!IsAsciiDigit(static_cast<char>(c))) return false;
  }
  return true;
}

}  // namespace

Status FormatTime(ByteView fileTime, TimeForm form, char (&text)[kMaxTimeText + 1],
                  size_t* length) {
  FILETIME time;
  SYSTEMTIME parts;
  if (fileTime.size != sizeof(time)) return Status::kNotEncodable;
  std::memcpy(&time, fileTime.data, sizeof(time));
  if (!FileTimeToSystemTime(&time, &parts)) return Status::kNotEncodable;
  const unsigned year = parts.wYear;
  if (!Fits(year, form)) return Status::kNotEncodable;
  char year_text[8];
  const bool two_digits = form == TimeForm::kUtc;
  std::snprintf(year_text, sizeof(year_text), two_digits ? "%02u" : "%04u",
                (two_digits ? year % 100 : year) % 10000);
  const int written =
      std::snprintf(text, sizeof(text), "%s%02d%02d%02d%02d%02dZ", year_text, parts.wMonth,
                    parts.wDay, parts.wHour, parts.wMinute, parts.wSecond);
  *length = static_cast<size_t>(written);
  return Status::kOk;
}

Status ParseTime(ByteView text, TimeForm form, FILETIME* time) {
  if (!HasShape(text, form)) return Status::kCorrupt;
  const BYTE* digits = text.data;
  unsigned year = ReadNumber(&digits, form == TimeForm::kUtc ? kFieldDigits : 2 * kFieldDigits);
  if (form == TimeForm::kUtc) year = YearOfTwoDigits(year);
  SYSTEMTIME parts = {};
  parts.wYear = static_cast<WORD>(year);
  for (WORD* field : {&parts.wMonth, &parts.wDay, &parts.wHour, &parts.wMinute, &parts.wSecond}) {
    *field = static_cast<WORD>(ReadNumber(&digits, kFieldDigits));
  }
  return SystemTimeToFileTime(&parts, time) ? Status::kOk : Status::kCorrupt;
}

}  // namespace Ortholan
