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

// UTF-8 with U+FFFD for octets that are none.
std::string Repaired(const std::string& text);

// Cuts the first character from UTF-8 without faults.
char32_t TakeCharacter(std::string_view& rest);

// What nobody sees, or what changes how the text around it looks: controls, line ends among them,
// marks that turn the direction of writing, and all that has no width of its own.
bool IsHidden(char32_t character);

// For a person's eyes: what is hidden as \uXXXX or \UXXXXXXXX, a backslash doubled, so that neither
// a line of the output nor an escape can be forged.
std::string Visible(std::string_view text);
// The same with the backslash as it is, for what the person has written.
std::string VisibleInMessage(std::string_view text);

// For standard output: as it stands, but on a terminal, which would obey it, as Visible has it,
// line ends and tabs left.
std::string Output(const std::string& text);
std::string Output(const std::wstring& text);

// Upper-case hexadecimal digits, without and with blanks between the octets.
std::string Hex(std::string_view octets);
std::string Hex(const Ortholan::IdentObj& octets);
std::string SpacedHex(const Ortholan::IdentObj& octets);

bool IsBlank(char character);
// The value of a hexadecimal digit, -1 for any other character.
int DigitValue(char character);

// Cuts the first line from `rest`: without its end and the white space before that.
std::string_view TakeLine(std::string_view& rest);

// A number below 2^32 in C notation: decimal, 0x or octal.
std::optional<Ortholan::DWORD> ParseNumber(const std::string& text);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_TEXT_H_
