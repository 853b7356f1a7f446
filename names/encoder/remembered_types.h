// Short type texts and what they resolved to, remembered for the process without a lock.
#ifndef ORTHOLAN_NAMES_ENCODER_REMEMBERED_TYPES_H_
#define ORTHOLAN_NAMES_ENCODER_REMEMBERED_TYPES_H_

#include <atomic>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "names/attribute_table.h"

namespace Ortholan {

// A slot is one word, which holds the key and the row.
class RememberedTypes {
 public:
  // A key of the text and the version of the platform's answers; 0 for a text that is not
  // remembered.
  template <typename Char>
  static uint64_t KeyOf(std::basic_string_view<Char> text, uint16_t version) {
    if (text.empty() || text.size() > kLongest) return 0;
    uint64_t packed = 0;
    for (const Char c : text) {
      // A NUL in front would leave no trace, and a character above 0x7F does not fit.
      if (static_cast<std::make_unsigned_t<Char>>(c) - 1u >= 0x7Fu) return 0;
      packed = packed << 8 | static_cast<uint64_t>(c);
    }
    return packed << kTextShift | version;
  }
  // Null where the key was not kept.
  const AttributeRow* Find(uint64_t key) const {
    const uint64_t word = slots_[SlotOf(key)].load(std::memory_order_relaxed);
    return key != 0 && (word & ~kRowMask) == key ? &kAttributes[(word & kRowMask) >> kRowShift]
                                                 : nullptr;
  }
  void Keep(uint64_t key, const AttributeRow* row) {
    if (key == 0) return;
    const auto place = static_cast<uint64_t>(row - kAttributes);
    slots_[SlotOf(key)].store(key | place << kRowShift, std::memory_order_relaxed);
  }

 private:
  static constexpr size_t kLongest = 5;
  static constexpr unsigned kRowShift = 16;  // below it the version
  static constexpr unsigned kTextShift = 24;
  static constexpr uint64_t kRowMask = 0xFF0000;
  static constexpr size_t kSlots = 64;

  static size_t SlotOf(uint64_t key) {
    return static_cast<size_t>((key >> kTextShift) * 0x9E3779B97F4A7C15u >> 58);
  }

  std::atomic<uint64_t> slots_[kSlots] = {};
};
extern RememberedTypes remembered_types;

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_REMEMBERED_TYPES_H_
