// Characters that text for people never holds raw.
#ifndef ORTHOLAN_FUZZ_HIDDEN_H_
#define ORTHOLAN_FUZZ_HIDDEN_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Ortholan::fuzzing {

// UTF-8 of a character that no text may hold raw, by ranges of its own: controls, what turns the
// direction of writing, what has no width, tags and noncharacters.
inline bool HasHidden(std::string_view text) {
  static constexpr struct {
    uint32_t first;
    uint32_t last;
  } kHidden[] = {{0, 0x1F},        {0x7F, 0xA0},       {0xAD, 0xAD},       {0x61C, 0x61C},
                 {0x2000, 0x200F}, {0x2028, 0x202F},   {0x205F, 0x206F},   {0x3000, 0x3000},
                 {0xE000, 0xF8FF}, {0xFDD0, 0xFDEF},   {0xFEFF, 0xFEFF},   {0xFFF0, 0xFFFB},
                 {0xFFFE, 0xFFFF}, {0xE0000, 0xE0FFF}, {0xF0000, 0x10FFFF}};
  uint32_t scalar = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const auto octet = static_cast<uint8_t>(text[i]);
    if (octet < 0x80) {
      scalar = octet;
    } else if (octet < 0xC0) {
      scalar = scalar << 6 | (octet & 0x3Fu);
    } else {
      scalar = octet & (octet < 0xE0 ? 0x1Fu : octet < 0xF0 ? 0x0Fu : 0x07u);
    }
    if (i + 1 < text.size() && (static_cast<uint8_t>(text[i + 1]) & 0xC0) == 0x80) continue;
    for (const auto& range : kHidden) {
      if (scalar >= range.first && scalar <= range.last) return true;
    }
  }
  return false;
}

}  // namespace Ortholan::fuzzing

#endif  // ORTHOLAN_FUZZ_HIDDEN_H_
