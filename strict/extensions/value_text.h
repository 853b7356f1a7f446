// The value of an extension in plain words, a line for each fact.
//
//   certificate authority: yes
//   path length: 0
#ifndef ORTHOLAN_STRICT_EXTENSIONS_VALUE_TEXT_H_
#define ORTHOLAN_STRICT_EXTENSIONS_VALUE_TEXT_H_

#include "strict/der/output.h"
#include "strict/der/refusal.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// Puts the value that `der` is by its shape; without a shape its octets. What was put before a
// refusal is void. Throws std::bad_alloc.
//   indent  blanks in front of each line
bool PutValueText(const Shape* shape, ByteView der, Leniency leniency, size_t indent, Output* out,
                  Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_VALUE_TEXT_H_
