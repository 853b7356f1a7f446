// Text between code pages and UTF-16. Every 8-bit text of the host is UTF-8, so that the code pages
// of the system and of the thread are UTF-8 too; US-ASCII stands beside it.

#include <ortholan/platform.h>

#include <climits>
#include <cstring>
#include <cwchar>

#include "bytes/utf8.h"
#include "platform/posix/fail.h"

namespace Ortholan {
namespace {

using posix::Fail;

constexpr UINT kUsAscii = 20127;

// Flags that the system knows for code pages other than UTF-8; none changes US-ASCII.
constexpr DWORD kWidenFlags = 0x0000000F;
constexpr DWORD kNarrowFlags = 0x00000670;

bool IsUtf8(UINT codePage) {
  return codePage == CP_UTF8 || codePage == CP_ACP || codePage == CP_THREAD_ACP;
}

// Whether length, text and room make sense together. A negative length means a terminated text.
bool AreSound(const void* text, int length, const void* out, int room) {
  return text != nullptr && length != 0 && room >= 0 && (room == 0 || out != nullptr) &&
         text != out;
}

int Counted(std::size_t size) {
  return size <= INT_MAX ? static_cast<int>(size) : Fail(ERROR_INVALID_PARAMETER);
}

int Written(bool fits, std::size_t size) {
  return fits ? static_cast<int>(size) : Fail(ERROR_INSUFFICIENT_BUFFER);
}

int WidenUtf8(DWORD flags, const BYTE* text, std::size_t size, wchar_t* out, std::size_t room) {
  if ((flags & ~MB_ERR_INVALID_CHARS) != 0) return Fail(ERROR_INVALID_FLAGS);
  if (room == 0) {
    const auto counted = FromUtf8(text, size, UnitCounter{});
    if (counted.broken && flags != 0) return Fail(ERROR_NO_UNICODE_TRANSLATION);
    return Counted(counted.sink.size);
  }
  const auto written = FromUtf8(text, size, WideWriter{out, room});
  if (written.broken && flags != 0) return Fail(ERROR_NO_UNICODE_TRANSLATION);
  return Written(written.fits, room - written.sink.room);
}

// The table of this code page has no entries of its own above 7F: the top bit counts for nothing.
int WidenAscii(DWORD flags, const BYTE* text, std::size_t size, wchar_t* out, std::size_t room) {
  if ((flags & ~kWidenFlags) != 0) return Fail(ERROR_INVALID_FLAGS);
  if (room == 0) return Counted(size);
  const std::size_t count = size < room ? size : room;
  for (std::size_t i = 0; i < count; ++i) out[i] = text[i] & 0x7F;
  return Written(count == size, size);
}

bool IsBroken(WideSource text, std::size_t size) {
  std::size_t count;
  for (std::size_t i = 0; i < size; i += count) {
    if (ReadUtf16(text, i, size - i, &count) == kBroken) return true;
  }
  return false;
}

int NarrowToUtf8(DWORD flags, const wchar_t* text, std::size_t size, char* out, std::size_t room) {
  if ((flags & ~WC_ERR_INVALID_CHARS) != 0) return Fail(ERROR_INVALID_FLAGS);
  const WideSource source{text};
  if (flags != 0 && IsBroken(source, size)) return Fail(ERROR_NO_UNICODE_TRANSLATION);
  if (room == 0) return Counted(Utf8Size(source, size));
  const ByteWriter writer{reinterpret_cast<BYTE*>(out), room};
  const auto written = ToUtf8(source, size, writer);
  return Written(written.fits, room - written.sink.room);
}

int NarrowToAscii(DWORD flags, const wchar_t* text, std::size_t size, char* out, std::size_t room,
                  char substitute, BOOL* substituted) {
  if ((flags & ~kNarrowFlags) != 0) return Fail(ERROR_INVALID_FLAGS);
  const WideSource source{text};
  std::size_t count = 0;
  bool replaced = false;
  for (std::size_t i = 0; i < size; ++i) {
    const bool known = source[i] < 0x80;
    replaced |= !known;
    // A character beyond the units stands for its surrogate pair: two characters.
    for (int repeat = source[i] > 0xFFFF ? 2 : 1; repeat > 0; --repeat, ++count) {
      if (room == 0) continue;
      if (count == room) return Fail(ERROR_INSUFFICIENT_BUFFER);
      out[count] = known ? static_cast<char>(source[i]) : substitute;
    }
  }
  if (substituted != nullptr) *substituted = replaced ? TRUE : FALSE;
  return Counted(count);
}

}  // namespace

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int textBytes, LPWSTR out,
                        int outUnits) noexcept {
  if (!AreSound(text, textBytes, out, outUnits)) return Fail(ERROR_INVALID_PARAMETER);
  const auto* bytes = reinterpret_cast<const BYTE*>(text);
  const std::size_t size =
      textBytes < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(textBytes);
  const auto room = static_cast<std::size_t>(outUnits);
  if (IsUtf8(codePage)) return WidenUtf8(flags, bytes, size, out, room);
  if (codePage == kUsAscii) return WidenAscii(flags, bytes, size, out, room);
  return Fail(ERROR_INVALID_PARAMETER);
}

int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int textUnits, LPSTR out,
                        int outBytes, LPCSTR defaultChar, BOOL* usedDefaultChar) noexcept {
  if (!AreSound(text, textUnits, out, outBytes)) return Fail(ERROR_INVALID_PARAMETER);
  const std::size_t size =
      textUnits < 0 ? std::wcslen(text) + 1 : static_cast<std::size_t>(textUnits);
  const auto room = static_cast<std::size_t>(outBytes);
  if (IsUtf8(codePage)) {
    // UTF-8 has a form for every character, so that the system takes no substitute.
    const bool plain = defaultChar == nullptr && usedDefaultChar == nullptr;
    return plain ? NarrowToUtf8(flags, text, size, out, room) : Fail(ERROR_INVALID_PARAMETER);
  }
  if (codePage != kUsAscii) return Fail(ERROR_INVALID_PARAMETER);
  const char substitute = defaultChar != nullptr ? *defaultChar : '?';
  return NarrowToAscii(flags, text, size, out, room, substitute, usedDefaultChar);
}

int lstrlenA(LPCSTR text) noexcept { return text != nullptr ? Counted(std::strlen(text)) : 0; }

int lstrlenW(LPCWSTR text) noexcept { return text != nullptr ? Counted(std::wcslen(text)) : 0; }

}  // namespace Ortholan
