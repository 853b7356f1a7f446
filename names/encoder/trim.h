// The white space that the encoder cuts: CR, LF, tab and blank.
//
//   Trimmed(std::string_view("  a b\r\n"))   // "a b"; " " of "   "
#ifndef ORTHOLAN_NAMES_ENCODER_TRIM_H_
#define ORTHOLAN_NAMES_ENCODER_TRIM_H_

#include <string_view>

namespace Ortholan {

template <typename Char>
constexpr bool IsTrimmed(Char c) {
  return c == Char(' ') || c == Char('\t') || c == Char('\r') || c == Char('\n');
}

template <typename Char>
constexpr std::basic_string_view<Char> CutEnds(std::basic_string_view<Char> text) {
  const Char* first = text.data();
  const Char* end = first + text.size();
  while (first != end && IsTrimmed(*first)) ++first;
  if (first == end) return text.substr(0, text.empty() ? 0 : 1);
  while (IsTrimmed(end[-1])) --end;
  return {first, static_cast<size_t>(end - first)};
}

// The part of `text` without white space at its ends. Text of white space alone keeps its first
// character, so a value of one blank stays a value. Most texts have nothing to cut.
template <typename Char>
constexpr std::basic_string_view<Char> Trimmed(std::basic_string_view<Char> text) {
  const Char* const first = text.data();
  const size_t size = text.size();
  if (size == 0 || first[0] <= Char(' ') || first[size - 1] <= Char(' ')) return CutEnds(text);
  return text;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_TRIM_H_
