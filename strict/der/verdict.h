// A decision in three values. Only kYes lets something through, and what was not decided is
// kCannotTell.
#ifndef ORTHOLAN_STRICT_DER_VERDICT_H_
#define ORTHOLAN_STRICT_DER_VERDICT_H_

#include <ortholan/strict/base.h>

namespace Ortholan::strict {

enum class Verdict : ortholan_verdict {
  kCannotTell = ORTHOLAN_VERDICT_CANNOT_TELL,
  kYes = ORTHOLAN_VERDICT_YES,
  kNo = ORTHOLAN_VERDICT_NO,
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_VERDICT_H_
