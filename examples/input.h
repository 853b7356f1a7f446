// What the program reads and writes, all of it octets. Failures are thrown as Failure.
#ifndef ORTHOLAN_EXAMPLES_INPUT_H_
#define ORTHOLAN_EXAMPLES_INPUT_H_

#include <ortholan/ident_obj.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "examples/kinds.h"

namespace Example {

// The whole of a file, "-" being standard input, which can be named once: UsageError. Files above
// 256 MiB are refused.
std::string ReadOctets(const std::string& path);
// The path of a file that is there.
std::filesystem::path RequireFile(const std::string& path);
void WriteOctets(const std::string& path, const Ortholan::IdentObj& bytes);

// A text in UTF-8: the argument itself, or for "-" standard input but for one line end behind it.
// Several lines of standard input are refused unless `takesLines`.
std::wstring ReadText(const std::string& argument, bool takesLines);

// One encoding: the argument itself as pasted.h has it, a file, or "-" for standard input. Octets
// left over, several encodings, and those of another kind than `kind` are refused with a hint.
Ortholan::IdentObj ReadElement(const std::string& argument, Kind kind);

// The same of a text that cannot be a file's name.
Ortholan::IdentObj ReadElementText(const std::string& text, Kind kind);

// Standard output. FinishOutput throws where it could not take everything.
void Print(std::string_view text);
void FinishOutput();

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_INPUT_H_
