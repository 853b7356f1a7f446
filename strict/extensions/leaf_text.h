// What JSON and words for people have in common: values without parts, as text.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_LEAF_TEXT_H_
#define ORTHOLAN_STRICT_EXTENSIONS_LEAF_TEXT_H_

#include <string>
#include <string_view>

#include "strict/der/output.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// An INTEGER of at most 53 bits, which every reader of JSON takes as it is; false for others.
bool IsShortInteger(ByteView content, int64_t* number);
void PutSigned(int64_t number, Output* out);

// The name of a bit or number; null where it has none.
const char* NameOf(const Shape& shape, uint64_t number);

// Calls `put` with the number of each bit that is set in the content of a checked BIT STRING.
template <class Put>
void ForEachBit(ByteView content, Put put) {
  for (size_t bit = 0; bit < (content.size - 1) * 8; ++bit) {
    if ((content[1 + bit / 8] >> (7 - bit % 8) & 1) != 0) put(bit);
  }
}

// The name of a string type, "utf8String"; null for what is no string that is shown as text.
const char* StringKindName(uint8_t identifier);
// The identifier of such a name; 0 for others.
uint8_t StringKindOf(std::string_view name);

// The text that a function puts, measured first.
template <class Put>
std::string TextOf(Put put) {
  Output measure(nullptr, 0);
  put(&measure);
  std::string text(measure.size(), '\0');
  Output out(text.data(), text.size());
  put(&out);
  return text;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_LEAF_TEXT_H_
