// Calls that take values of extensions apart: a shape fills the structure of the caller.
//
//   return Read(kPolicyConstraintsShape, value, mode, constraints, refusal);
//   return Next(kPolicyShape, policies, offset, policy);
#ifndef ORTHOLAN_STRICT_FACE_VALUE_CALL_H_
#define ORTHOLAN_STRICT_FACE_VALUE_CALL_H_

#include <ortholan/strict/extension_values.h>

#include "strict/der/reader.h"
#include "strict/extensions/struct_reader.h"
#include "strict/face/call.h"

namespace Ortholan::strict {

template <class Value>
ortholan_reason Read(const Shape& shape, ortholan_octets value, int32_t mode, Value* out,
                     ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (out == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *out = {};
  if (!IsGiven(value) || !IsMode(mode)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  Refusal found;
  if (ReadStruct(shape, View(value), static_cast<Leniency>(mode), out, &found)) {
    return ORTHOLAN_REASON_NONE;
  }
  *out = {};
  return Report(found, value.data, refusal);
}

// What of a list is still to come, where the arguments of a call are in order.
template <class Value>
ortholan_reason RestOf(const ortholan_list* list, const size_t* offset, Value* out,
                       ByteView* rest) {
  if (out != nullptr) *out = {};
  if (list == nullptr || offset == nullptr || out == nullptr || !IsGiven(list->elements) ||
      *offset > list->elements.size) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  *rest = View(list->elements).From(*offset);
  return rest->empty() ? ORTHOLAN_REASON_NOT_FOUND : ORTHOLAN_REASON_NONE;
}

// What was checked is read again by the widest rule.
template <class Value>
ortholan_reason Next(const Shape& shape, const ortholan_list* list, size_t* offset, Value* out) {
  ByteView rest;
  const ortholan_reason fault = RestOf(list, offset, out, &rest);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  Reader in(rest, Leniency::kLenient, nullptr);
  Element element;
  Value read = {};
  if (!in.Read(&element) || !ReadStruct(shape, element.bytes, Leniency::kLenient, &read, nullptr)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  *offset += element.bytes.size;
  *out = read;
  return ORTHOLAN_REASON_NONE;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_FACE_VALUE_CALL_H_
