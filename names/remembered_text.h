// A short text of ASCII with a number that belongs to it, in one word: what the platform answered
// about types is remembered for the process by such words, without a lock.
//
//   bits 0 to 15   version of the platform's answers (AttributeInfoVersion)
//   bits 16 to 23  the number
//   bits 24 to 63  at most five characters, the first in the lowest octet
#ifndef ORTHOLAN_NAMES_REMEMBERED_TEXT_H_
#define ORTHOLAN_NAMES_REMEMBERED_TEXT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace Ortholan {

class RememberedText {
 public:
  static constexpr size_t kLongest = 5;

  // No text.
  RememberedText() = default;
  explicit RememberedText(uint64_t word) : word_(word) {}

  // No text for one that is empty, too long, or has a NUL or a character above 0x7F.
  template <typename Char>
  static RememberedText Of(std::basic_string_view<Char> text, uint16_t version) {
    if (text.empty() || text.size() > kLongest) return {};
    uint64_t packed = 0;
    for (size_t i = text.size(); i-- != 0;) {
      const auto c = static_cast<std::make_unsigned_t<Char>>(text[i]);
      if (c - 1u >= 0x7Fu) return {};
      packed = packed << 8 | c;
    }
    return RememberedText(packed << kTextShift | version);
  }

  bool has_text() const { return word_ >> kTextShift != 0; }
  uint64_t word() const { return word_; }
  uint16_t version() const { return static_cast<uint16_t>(word_); }
  uint8_t number() const { return static_cast<uint8_t>(word_ >> kNumberShift); }
  // The same text with another number.
  RememberedText With(uint8_t number) const {
    return RememberedText((word_ & ~kNumberMask) | uint64_t{number} << kNumberShift);
  }
  // The characters, the first in the lowest octet.
  uint64_t text() const { return word_ >> kTextShift; }

 private:
  static constexpr unsigned kNumberShift = 16;
  static constexpr unsigned kTextShift = 24;
  static constexpr uint64_t kNumberMask = 0xFF0000;

  uint64_t word_ = 0;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_REMEMBERED_TEXT_H_
