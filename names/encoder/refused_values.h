// Which values are refused, whatever a name is made from: an empty one, and one with characters
// that the attribute's type does not take.
#ifndef ORTHOLAN_NAMES_ENCODER_REFUSED_VALUES_H_
#define ORTHOLAN_NAMES_ENCODER_REFUSED_VALUES_H_

#include "names/attribute_table.h"
#include "names/encoder/alphabets.h"

namespace Ortholan {

// The alphabet that the attribute's values have to be in; 0 for free text.
constexpr unsigned PrescribedAlphabet(ValueRule rule) { return static_cast<unsigned>(rule); }
static_assert(PrescribedAlphabet(ValueRule::kPrintable) == kInPrintable);
static_assert(PrescribedAlphabet(ValueRule::kIA5) == kInIA5);

enum class ValueFault { kNone, kEmpty, kOutsideAlphabet };

// Why a value of `size` characters, which have these classes in common, is refused.
inline ValueFault CheckValue(ValueRule rule, size_t size, unsigned classes) {
  if (size == 0) return ValueFault::kEmpty;
  const unsigned alphabet = PrescribedAlphabet(rule);
  return alphabet == 0 || (classes & alphabet) != 0 ? ValueFault::kNone
                                                    : ValueFault::kOutsideAlphabet;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_REFUSED_VALUES_H_
