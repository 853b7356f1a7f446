// Text as the command line has it (UTF-8) and as the library has it (UTF-16, a unit a wchar_t).
#ifndef ORTHOLAN_EXAMPLES_TEXT_H_
#define ORTHOLAN_EXAMPLES_TEXT_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <optional>
#include <string>
#include <string_view>

namespace Example {

// Fails with the platform's code for text that is not UTF-8, where a plain conversion would put
// U+FFFD into a name.
std::wstring FromUtf8(const std::string& text);
// A surrogate without its partner becomes U+FFFD.
std::string ToUtf8(const std::wstring& text);

// Control characters, line ends among them, and those that turn the direction of writing.
bool IsHidden(wchar_t unit);
// \uXXXX
std::wstring UnitEscape(wchar_t unit);

// For a person's eyes, in UTF-8: what is hidden is shown as \uXXXX, so that no certificate can
// forge a line of the output.
std::string Visible(const std::wstring& text);

// For standard output, in UTF-8: as it stands, but on a terminal, which would obey them, with
// hidden characters other than line ends and tabs shown as \uXXXX.
std::string Output(const std::wstring& text);

// Upper-case hexadecimal digits, without and with blanks between the octets.
std::string Hex(const Ortholan::IdentObj& bytes);
std::string SpacedHex(const Ortholan::IdentObj& bytes);

bool IsBlank(char character);
// The value of a hexadecimal digit, -1 for any other character.
int DigitValue(char character);

// Cuts the first line from `rest`: without its end and the white space before that.
std::string_view TakeLine(std::string_view& rest);

// A number below 2^32 in C notation: decimal, 0x or octal.
std::optional<Ortholan::DWORD> ParseNumber(const std::string& text);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_TEXT_H_
