// What the system's own calls say of names, general names and extensions, as the texts of
// tests/names/name_answers.h; "refused" where they refuse.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_SYSTEM_READER_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_SYSTEM_READER_H_

#include <ortholan/platform.h>

#include <string>

namespace Ortholan::testing::windows {

// "type=text;" for each attribute, of a value that is no string "type#content;".
std::string NameValues(const std::string& octets);
// By CertNameToStrW, which tells an empty name and a refusal by the same "".
std::string NameText(const std::string& octets, DWORD options);
// The DER that CertStrToNameW makes, as Hex writes it.
std::string NameFrom(const std::wstring& text, DWORD options);
// "choice text" or "choice octets", the choice by its number in the encoding.
std::string GeneralName(const std::string& octets);
// "oid critical octets".
std::string Extension(const std::string& octets);

}  // namespace Ortholan::testing::windows

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_SYSTEM_READER_H_
