#include "strict/face/call.h"

namespace Ortholan::strict {

ortholan_reason Report(const Refusal& found, const void* start, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = found.From(start);
  return found.reason;
}

ortholan_reason Report(ortholan_reason reason, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {reason, 0, 0, ORTHOLAN_NO_PLACE};
  return reason;
}

ortholan_reason Finish(const Output& out, size_t* size, ortholan_refusal* refusal) {
  if (size != nullptr) *size = out.size();
  return out.fits() ? ORTHOLAN_REASON_NONE : Report(ORTHOLAN_REASON_ROOM, refusal);
}

ortholan_reason Finish(BackwardOutput* out, size_t* size, ortholan_refusal* refusal) {
  if (size != nullptr) *size = out->size();
  return out->MoveToFront() ? ORTHOLAN_REASON_NONE : Report(ORTHOLAN_REASON_ROOM, refusal);
}

}  // namespace Ortholan::strict
