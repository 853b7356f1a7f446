// Implicit tagging (X.690 8.14): other identifier octets in front of the same length and content.
//
//   0C 01 41  ->  A2 01 41   (2)
#ifndef ORTHOLAN_GENERALNAME_IMPLICIT_TAG_H_
#define ORTHOLAN_GENERALNAME_IMPLICIT_TAG_H_

#include <ortholan/ident_obj.h>

namespace Ortholan {

// `element` with its identifier octets replaced by those of context-specific, constructed `tag`;
// everything behind them stays. Bytes without a header come back as they are.
IdentObj WithContextTag(const IdentObj& element, DWORD tag);

}  // namespace Ortholan

#endif  // ORTHOLAN_GENERALNAME_IMPLICIT_TAG_H_
