// Whole texts between UTF-16, one unit a character, and 8-bit code pages. Unlike the platform's
// calls these take a length, keep inner NULs and take the empty text.
#ifndef ORTHOLAN_FOUNDATION_CODE_PAGE_H_
#define ORTHOLAN_FOUNDATION_CODE_PAGE_H_

#include <ortholan/platform.h>

#include <string>
#include <string_view>

namespace Ortholan {

constexpr UINT kCodePageAnsi = 0;
constexpr UINT kCodePageThreadAnsi = 3;
constexpr UINT kCodePageUsAscii = 20127;
constexpr UINT kCodePageUtf8 = 65001;

// Names, their parts and their types are not converted where they have this many characters or
// more, the terminator counted.
constexpr size_t kMaxConvertedText = 0x3FFFFFFF;

// Which of a conversion's two calls failed; the thread's last error is the platform's.
enum class [[nodiscard]] Conversion{kDone, kSizeFailed, kFillFailed};

// Replace `out`, unchanged on failure. Text of more than 0x7FFFFFFF units fails with last error
// 87 (ERROR_INVALID_PARAMETER).
Conversion Narrow(std::wstring_view text, UINT codePage, std::string* out);
Conversion Widen(std::string_view text, UINT codePage, std::wstring* out);
// UTF-8 with last error 1113 (ERROR_NO_UNICODE_TRANSLATION) for a broken part.
Conversion WidenUtf8(std::string_view text, std::wstring* out);

// Appends what Widen would give; false, `out` unchanged, where it fails.
bool AppendWidened(std::string_view text, UINT codePage, std::wstring* out);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_CODE_PAGE_H_
