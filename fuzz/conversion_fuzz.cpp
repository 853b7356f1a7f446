// Text between UTF-16, UTF-8 and US-ASCII, against a converter of its own kind.
#include <ortholan/der_helper.h>
#include <ortholan/platform.h>

#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

constexpr UINT kUtf8Pages[] = {0, 3, 65001};
constexpr UINT kAscii = 20127;
constexpr wchar_t kReplaced = 0xFFFD;

// Well-formed UTF-8 by its first octet (Unicode, table 3-7): octets in all, and the range of the
// second one; the others are 80 to BF.
struct LeadRow {
  unsigned first, last, octets, low, high;
};
constexpr LeadRow kLeads[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

void AppendPoint(uint32_t point, std::wstring* out) {
  if (point > 0xFFFF) {
    out->push_back(static_cast<wchar_t>(0xD7C0 + (point >> 10)));
    point = 0xDC00 | (point & 0x3FF);
  }
  out->push_back(static_cast<wchar_t>(point));
}

// One U+FFFD for each maximal broken part.
std::wstring ReadUtf8(const std::string& bytes) {
  std::wstring out;
  for (size_t i = 0; i < bytes.size();) {
    const unsigned lead = static_cast<uint8_t>(bytes[i++]);
    const LeadRow* found = nullptr;
    for (const LeadRow& row : kLeads) {
      if (lead >= row.first && lead <= row.last) found = &row;
    }
    if (lead < 0x80) out.push_back(static_cast<wchar_t>(lead));
    if (lead >= 0x80 && found == nullptr) out.push_back(kReplaced);
    if (found == nullptr) continue;
    uint32_t point = lead & (0x7Fu >> found->octets);
    unsigned read = 1;
    unsigned low = found->low;
    unsigned high = found->high;
    for (; read < found->octets && i < bytes.size(); ++read, ++i) {
      const unsigned octet = static_cast<uint8_t>(bytes[i]);
      if (octet < low || octet > high) break;
      point = point << 6 | (octet & 0x3F);
      low = 0x80;
      high = 0xBF;
    }
    AppendPoint(read == found->octets ? point : uint32_t{kReplaced}, &out);
  }
  return out;
}

// Wide characters above the units are surrogate pairs already.
std::string WriteUtf8(const std::wstring& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    uint32_t point = static_cast<uint32_t>(text[i]);
    const uint32_t next = i + 1 < text.size() ? static_cast<uint32_t>(text[i + 1]) : 0;
    if (point >= 0xD800 && point < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
      point = 0x10000 + ((point & 0x3FF) << 10) + (next & 0x3FF);
      ++i;
    } else if (point >= 0xD800 && point < 0xE000) {
      point = uint32_t{kReplaced};
    }
    const unsigned more = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    constexpr unsigned kMarks[] = {0x00, 0xC0, 0xE0, 0xF0};
    out.push_back(static_cast<char>(kMarks[more] | point >> 6 * more));
    for (unsigned k = more; k-- > 0;) {
      out.push_back(static_cast<char>(0x80 | (point >> 6 * k & 0x3F)));
    }
  }
  return out;
}

std::wstring ReadAscii(const std::string& bytes) {
  std::wstring out;
  for (const char c : bytes) out.push_back(static_cast<wchar_t>(c & 0x7F));
  return out;
}

std::string WriteAscii(const std::wstring& text) {
  std::string out;
  for (const wchar_t c : text) out.push_back(c < 0x80 ? static_cast<char>(c) : '?');
  return out;
}

// Into a buffer of every size round the right one: all of the text and its terminator, or nothing.
void CheckWideBuffer(const std::string& bytes, const std::wstring& expected, UINT page) {
  const std::string text = bytes.substr(0, bytes.find('\0'));
  const std::wstring wide = expected.substr(0, expected.find(L'\0'));
  const int needed = static_cast<int>(wide.size()) + 1;
  LAW(MultiByteToWideChar(page, 0, text.c_str(), -1, nullptr, 0) == needed);
  for (const int room : {needed - 1, needed, needed + 1, 1}) {
    std::vector<wchar_t> out(static_cast<size_t>(room) + 1, L'#');
    const wchar_t* const got = NarrowToWide(out.data(), text.c_str(), room, page);
    LAW(out[static_cast<size_t>(room)] == L'#');
    if (room >= needed) {
      LAW(got == out.data() && got == wide);
    } else {
      LAW(got == nullptr && (room == 0 ? out[0] == L'#' : out[0] == L'\0'));
    }
  }
}

void CheckNarrowBuffer(const std::wstring& text, const std::string& expected, UINT page) {
  const std::wstring wide = text.substr(0, text.find(L'\0'));
  const std::string narrow = expected.substr(0, expected.find('\0'));
  const int needed = static_cast<int>(narrow.size()) + 1;
  LAW(WideCharToMultiByte(page, 0, wide.c_str(), -1, nullptr, 0, nullptr, nullptr) == needed);
  for (const int room : {needed - 1, needed, needed + 1, 1}) {
    std::vector<char> out(static_cast<size_t>(room) + 1, '#');
    const char* const got = WideToNarrow(out.data(), wide.c_str(), room, page);
    LAW(out[static_cast<size_t>(room)] == '#');
    if (room >= needed) {
      LAW(got == out.data() && got == narrow);
    } else {
      LAW(got == nullptr && (room == 0 ? out[0] == '#' : out[0] == '\0'));
    }
  }
}

void CheckBytes(const std::string& bytes) {
  const std::wstring utf8 = ReadUtf8(bytes);
  for (const UINT page : kUtf8Pages) {
    SetLastError(kUntouched);
    LAW(DerHelper::ToWString(bytes, page) == utf8);
    LAW(GetLastError() == kUntouched);
  }
  CheckWideBuffer(bytes, utf8, 65001);
  LAW(DerHelper::ToWString(bytes, kAscii) == ReadAscii(bytes));
  // 80 becomes a NUL.
  const std::string front = bytes.substr(0, bytes.find('\x80'));
  CheckWideBuffer(front, ReadAscii(front), kAscii);
  // Text that was not broken comes back.
  const std::string again = DerHelper::ToString(utf8, 65001);
  const bool whole = utf8.find(kReplaced) == std::wstring::npos;
  LAW(!whole || again == bytes);
  LAW(DerHelper::ToWString(again, 65001) == utf8);
}

void CheckUnits(const std::wstring& text) {
  const std::string utf8 = WriteUtf8(text);
  for (const UINT page : kUtf8Pages) {
    SetLastError(kUntouched);
    LAW(DerHelper::ToString(text, page) == utf8);
    LAW(GetLastError() == kUntouched);
  }
  LAW(DerHelper::ToString(text, kAscii) == WriteAscii(text));
  CheckNarrowBuffer(text, utf8, 65001);
  CheckNarrowBuffer(text, WriteAscii(text), kAscii);
}

// Characters beyond the units count as their pairs.
void CheckPoints(const std::string& bytes) {
  std::wstring points;
  std::wstring units;
  Input input(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
  while (!input.AtEnd()) {
    const uint32_t point = input.Word() % 0x110000;
    points.push_back(static_cast<wchar_t>(point));
    AppendPoint(point, &units);
  }
  LAW(DerHelper::ToString(points, 65001) == DerHelper::ToString(units, 65001));
  LAW(DerHelper::ToString(points, kAscii) == DerHelper::ToString(units, kAscii));
}

void CheckOtherPage(const std::string& bytes, UINT page) {
  if (bytes.empty() || page == 0 || page == 3 || page == 65001 || page == kAscii) return;
  LAW(Outcome([&] { DerHelper::ToWString(bytes, page); }).find("(1)") != std::string::npos);
  LAW(GetLastError() == ERROR_INVALID_PARAMETER);
}

}  // namespace

void FuzzConversion(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  CheckBytes(bytes);
  CheckUnits(WideOf(bytes));
  CheckPoints(bytes);
  CheckOtherPage(bytes, static_cast<UINT>(size));
}

}  // namespace Ortholan::fuzzing
