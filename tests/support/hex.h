// Octets and UTF-16 units as tests write and show them: "30 03 02 01 05", "0041 D83D".

#ifndef ORTHOLAN_TESTS_SUPPORT_HEX_H_
#define ORTHOLAN_TESTS_SUPPORT_HEX_H_

#include <ortholan/ident_obj.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Ortholan::testing {

// Octets of upper-case hex digits; blanks are passed over.
inline std::string Octets(std::string_view hex) {
  const auto digit = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
  std::string octets;
  for (std::size_t i = 0; i + 1 < hex.size(); ++i) {
    if (hex[i] == ' ') continue;
    octets += static_cast<char>(16 * digit(hex[i]) + digit(hex[i + 1]));
    ++i;
  }
  return octets;
}

// Two digits an octet, four a UTF-16 unit, one blank between.
template <class Char>
std::string Hex(std::basic_string_view<Char> text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string hex;
  for (const Char c : text) {
    if (!hex.empty()) hex += ' ';
    for (int shift = sizeof(Char) == 1 ? 4 : 12; shift >= 0; shift -= 4) {
      hex += kDigits[static_cast<unsigned>(c) >> shift & 0xF];
    }
  }
  return hex;
}
inline std::string Hex(const std::string& octets) { return Hex(std::string_view(octets)); }
inline std::string Hex(const std::wstring& units) { return Hex(std::wstring_view(units)); }

inline std::string_view AsText(const CRYPT_DATA_BLOB& blob) {
  return {reinterpret_cast<const char*>(blob.pbData), blob.cbData};
}
inline std::string Hex(const CRYPT_DATA_BLOB& blob) { return Hex(AsText(blob)); }

// A heap block of exactly these octets, so that a sanitizer sees the first one read beyond them.
inline IdentObj ExactCopy(std::string_view octets) {
  return IdentObj(octets.data(), static_cast<DWORD>(octets.size()));
}
inline IdentObj Blob(std::string_view hex) { return ExactCopy(Octets(hex)); }

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_HEX_H_
