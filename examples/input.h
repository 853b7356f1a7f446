// What the program reads and writes, all of it octets. Failures are thrown as Failure.
#ifndef ORTHOLAN_EXAMPLES_INPUT_H_
#define ORTHOLAN_EXAMPLES_INPUT_H_

#include <ortholan/ident_obj.h>

#include <string>
#include <string_view>

namespace Example {

// The whole of a file, "-" being standard input, which can be named once: UsageError. Files above
// 256 MiB are refused.
std::string ReadOctets(const std::string& path);
void WriteOctets(const std::string& path, const Ortholan::IdentObj& bytes);

// A text in UTF-8: the argument itself, or for "-" standard input but for one line end behind it.
std::wstring ReadText(const std::string& argument);

// One encoding: hexadecimal digits alone are the encoding itself, "-" is standard input, anything
// else a file; both hold the octets or hexadecimal text with white space anywhere.
Ortholan::IdentObj ReadElement(const std::string& argument);

// Standard output. FinishOutput throws where it could not take everything.
void Print(std::string_view text);
void FinishOutput();

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_INPUT_H_
