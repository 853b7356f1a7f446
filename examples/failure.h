// How the program fails: one line on standard error, and the exit status.
#ifndef ORTHOLAN_EXAMPLES_FAILURE_H_
#define ORTHOLAN_EXAMPLES_FAILURE_H_

#include <ortholan/platform.h>

#include <string>
#include <string_view>

namespace Example {

// What was asked for cannot be done: exit status 1.
struct Failure {
  Ortholan::DWORD code;  // last error; 0 where `what` tells all
  std::string what;
  // Lines that show the place.
  std::string excerpt = {};
};

// The command line is wrong: exit status 2.
struct UsageError {
  std::string what;
};

// Throws a Failure. Take the last error in the call itself, `Fail(GetLastError(), ...)`: what runs
// later may change it.
[[noreturn]] void Fail(Ortholan::DWORD code, std::string_view what);

// Throws a Failure that needs no code.
[[noreturn]] void Refuse(std::string_view what);

// Whether messages name the system's codes.
void SetVerbose(bool isVerbose);

// What a last-error code means, in a few words.
const char* Meaning(Ortholan::DWORD code);
// "<what>: <meaning>", with " (last error <decimal>, 0x<hexadecimal>)" where codes are asked for.
std::string Describe(const Failure& failure);

// Writes one line that begins with the program's name; line ends in `text` are made visible.
void ReportLine(const std::string& text);
// Writes the line "x509name: <where>: <description>", and the lines that show the place.
void Report(const std::string& where, const Failure& failure);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_FAILURE_H_
