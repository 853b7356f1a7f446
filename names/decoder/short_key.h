// Keys of attribute types as the renderer's inner loop needs them.
#ifndef ORTHOLAN_NAMES_DECODER_SHORT_KEY_H_
#define ORTHOLAN_NAMES_DECODER_SHORT_KEY_H_

#include "names/decoder/type_name.h"
#include "names/remembered_text.h"

namespace Ortholan {

// A key of a few ASCII characters, in one word.
class ShortKey {
 public:
  static constexpr size_t kLongest = RememberedText::kLongest;

  ShortKey() = default;
  // The number is that of the characters.
  explicit ShortKey(RememberedText text) : text_(text) {}

  // 0: there is none.
  size_t size() const { return text_.number(); }
  // Writes kLongest characters, of which size() count.
  void Write(char* out) const {
    for (size_t i = 0; i < kLongest; ++i) out[i] = static_cast<char>(text_.text() >> (8 * i));
  }

 private:
  RememberedText text_;
};

// GetX500KeyFromOid(type) where it is such a key and the table has the type, none otherwise. What
// the platform answered is remembered for the process, a word a row, without a lock.
ShortKey GetShortKey(const TypeText& type);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_SHORT_KEY_H_
