// Short type texts and the places of the rows that they resolved to, remembered for the process.
#ifndef ORTHOLAN_NAMES_ENCODER_REMEMBERED_TYPES_H_
#define ORTHOLAN_NAMES_ENCODER_REMEMBERED_TYPES_H_

#include <atomic>

#include "names/remembered_text.h"

namespace Ortholan {

// A slot is one word: the text, and the place of its row as the number.
class RememberedTypes {
 public:
  static constexpr uint8_t kNone = 0xFF;

  // kNone where the text was not kept.
  uint8_t Find(RememberedText text) const {
    const RememberedText kept(slots_[SlotOf(text)].load(std::memory_order_relaxed));
    return text.has_text() && kept.With(0).word() == text.word() ? kept.number() : kNone;
  }
  void Keep(RememberedText text, uint8_t place) {
    if (!text.has_text()) return;
    slots_[SlotOf(text)].store(text.With(place).word(), std::memory_order_relaxed);
  }

 private:
  static constexpr size_t kSlots = 64;

  static size_t SlotOf(RememberedText text) {
    return static_cast<size_t>(text.text() * 0x9E3779B97F4A7C15u >> 58);
  }

  std::atomic<uint64_t> slots_[kSlots] = {};
};
extern RememberedTypes remembered_types;

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_REMEMBERED_TYPES_H_
