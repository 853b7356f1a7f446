#include "foundation/code_page.h"

#include <limits>

#include "bytes/ascii.h"

namespace Ortholan {
namespace {

bool FitsTheCalls(size_t length) {
  if (length <= static_cast<size_t>(std::numeric_limits<int>::max())) return true;
  SetLastError(ERROR_INVALID_PARAMETER);
  return false;
}

Conversion WidenAs(UINT codePage, DWORD flags, std::string_view text, std::wstring* out) {
  if (text.empty()) {
    out->clear();
    return Conversion::kDone;
  }
  if (!FitsTheCalls(text.size())) return Conversion::kSizeFailed;
  const int length = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(codePage, flags, text.data(), length, nullptr, 0);
  if (size <= 0) return Conversion::kSizeFailed;
  std::wstring converted(static_cast<size_t>(size), L'\0');
  const int written =
      MultiByteToWideChar(codePage, flags, text.data(), length, converted.data(), size);
  if (written != size) return Conversion::kFillFailed;
  *out = std::move(converted);
  return Conversion::kDone;
}

}  // namespace

Conversion Narrow(std::wstring_view text, UINT codePage, std::string* out) {
  if (text.empty()) {
    out->clear();
    return Conversion::kDone;
  }
  if (!FitsTheCalls(text.size())) return Conversion::kSizeFailed;
  const int length = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  if (size <= 0) return Conversion::kSizeFailed;
  std::string converted(static_cast<size_t>(size), '\0');
  const int written = WideCharToMultiByte(codePage, 0, text.data(), length, converted.data(), size,
                                          nullptr, nullptr);
  if (written != size) return Conversion::kFillFailed;
  *out = std::move(converted);
  return Conversion::kDone;
}

Conversion Widen(std::string_view text, UINT codePage, std::wstring* out) {
  return WidenAs(codePage, 0, text, out);
}

Conversion WidenUtf8(std::string_view text, std::wstring* out) {
  return WidenAs(kCodePageUtf8, MB_ERR_INVALID_CHARS, text, out);
}

bool AppendWidened(std::string_view text, UINT codePage, std::wstring* out) {
  if (IsAscii(text)) {
    AppendAscii(text, out);
    return true;
  }
  std::wstring wide;
  if (Widen(text, codePage, &wide) != Conversion::kDone) return false;
  out->append(wide);
  return true;
}

}  // namespace Ortholan
