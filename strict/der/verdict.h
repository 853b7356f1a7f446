// Verdicts of the layer: yes, no, cannot tell.
#ifndef ORTHOLAN_STRICT_DER_VERDICT_H_
#define ORTHOLAN_STRICT_DER_VERDICT_H_

#include <ortholan/strict/base.h>

namespace Ortholan::strict {

enum class Verdict : ortholan_verdict {
  kNo = ORTHOLAN_VERDICT_NO,
  kYes = ORTHOLAN_VERDICT_YES,
  kCannotTell = ORTHOLAN_VERDICT_CANNOT_TELL,
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_VERDICT_H_
