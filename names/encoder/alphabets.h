// The alphabets of PrintableString and IA5String as the encoder takes them, and a table of both.
#ifndef ORTHOLAN_NAMES_ENCODER_ALPHABETS_H_
#define ORTHOLAN_NAMES_ENCODER_ALPHABETS_H_

#include <array>
#include <cstdint>
#include <string_view>

namespace Ortholan {

#define ORTHOLAN_ALPHANUMERIC L"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
// CR and LF are in, "=" is out, unlike X.680's PrintableString: lines of an address are printable,
// and an "=" stays recognisable.
inline constexpr std::wstring_view kPrintableAlphabet = ORTHOLAN_ALPHANUMERIC L"()+,-./:? '\r\n";
inline constexpr std::wstring_view kIA5Alphabet =
    ORTHOLAN_ALPHANUMERIC L"!\"#$%&*<>=;@[]{}^_`|()+,-./:? ~'\r\n\\";
#undef ORTHOLAN_ALPHANUMERIC
static_assert(kPrintableAlphabet.size() == 75 && kIA5Alphabet.size() == 97);

enum CharClass : uint8_t {
  kInPrintable = 1,
  kInIA5 = 2,
  kInBoth = kInPrintable | kInIA5,
};

constexpr size_t kAsciiCount = 0x80;

constexpr std::array<uint8_t, kAsciiCount> MakeCharClasses() {
  std::array<uint8_t, kAsciiCount> classes = {};
  for (const wchar_t c : kPrintableAlphabet) classes[static_cast<size_t>(c)] |= kInPrintable;
  for (const wchar_t c : kIA5Alphabet) classes[static_cast<size_t>(c)] |= kInIA5;
  return classes;
}
inline constexpr std::array<uint8_t, kAsciiCount> kCharClasses = MakeCharClasses();

inline unsigned ClassesOf(wchar_t c) {
  const auto index = static_cast<uint32_t>(c);
  return index < kAsciiCount ? kCharClasses.begin()[index] : 0u;
}
// 8-bit text of the encoder is ASCII.
inline unsigned ClassesOf(char c) { return kCharClasses.begin()[c & 0x7F]; }

// The alphabets that every character of `text` is in.
template <typename Char>
unsigned CommonClasses(std::basic_string_view<Char> text) {
  unsigned common = kInBoth;
  const Char* at = text.data();
  const Char* const end = at + text.size();
  for (; end - at >= 4; at += 4) {
    common &= ClassesOf(at[0]) & ClassesOf(at[1]) & ClassesOf(at[2]) & ClassesOf(at[3]);
  }
  for (; at != end; ++at) common &= ClassesOf(*at);
  return common;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_ALPHABETS_H_
