// Keys of attribute types as the renderer's inner loop needs them.
#ifndef ORTHOLAN_NAMES_DECODER_SHORT_KEY_H_
#define ORTHOLAN_NAMES_DECODER_SHORT_KEY_H_

#include <cstddef>
#include <cstdint>

#include "names/decoder/type_name.h"

namespace Ortholan {

// A key of a few ASCII characters, in one word.
class ShortKey {
 public:
  static constexpr size_t kLongest = 5;

  ShortKey() = default;
  explicit ShortKey(uint64_t word) : word_(word) {}

  // 0: there is none.
  size_t size() const { return word_ >> kSizeShift & 0xFF; }
  // Writes kLongest characters, of which size() count.
  void Write(char* out) const {
    for (size_t i = 0; i < kLongest; ++i) out[i] = static_cast<char>(word_ >> (kTextShift + 8 * i));
  }

  static constexpr unsigned kSizeShift = 16;  // below it the version of the platform's answers
  static constexpr unsigned kTextShift = 24;

 private:
  uint64_t word_ = 0;
};

// GetX500KeyFromOid(type) where it is such a key and the table has the type, none otherwise. What
// the platform answered is remembered for the process, a word a row, without a lock.
ShortKey GetShortKey(const TypeText& type);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_SHORT_KEY_H_
