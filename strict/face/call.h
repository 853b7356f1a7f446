// What the C functions of the layer share: arguments checked, refusals and sizes handed out.
#ifndef ORTHOLAN_STRICT_FACE_CALL_H_
#define ORTHOLAN_STRICT_FACE_CALL_H_

#include <ortholan/strict/base.h>

#include <string_view>

#include "bytes/byte_view.h"
#include "strict/der/backward_output.h"
#include "strict/der/output.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {

inline ByteView View(ortholan_octets octets) {
  return {octets.data, octets.data != nullptr ? octets.size : 0};
}
inline ortholan_octets Octets(ByteView view) { return {view.data, view.size}; }
inline std::string_view View(ortholan_text text) {
  return {text.data, text.data != nullptr ? text.size : 0};
}

// Every output begins as zero.
inline void Clear(size_t* size, ortholan_refusal* refusal) {
  if (size != nullptr) *size = 0;
  if (refusal != nullptr) *refusal = {};
}

// Whether a pointer and its size may come from a caller.
inline bool IsGiven(ortholan_octets octets) { return octets.data != nullptr || octets.size == 0; }
inline bool IsGiven(ortholan_text text) { return text.data != nullptr || text.size == 0; }
inline bool IsRoom(const void* out, size_t room) { return out != nullptr || room == 0; }
inline bool IsMode(int32_t mode) {
  return mode >= ORTHOLAN_READ_DER && mode <= ORTHOLAN_READ_STRUCTURE;
}

// Stores the refusal, counted from `start`, where the caller asks for it, and returns its reason.
ortholan_reason Report(const Refusal& found, const void* start, ortholan_refusal* refusal);
// The same for a refusal that has no place.
ortholan_reason Report(ortholan_reason reason, ortholan_refusal* refusal);

// The end of a call that put something into the caller's room.
ortholan_reason Finish(const Output& out, size_t* size, ortholan_refusal* refusal = nullptr);
ortholan_reason Finish(BackwardOutput* out, size_t* size, ortholan_refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_FACE_CALL_H_
