// Structures of C filled by a shape, whose fields tell the places of their values.
//
//   ortholan_basic_constraints out = {};
//   if (!ReadStruct(kBasicConstraintsShape, value, Leniency::kDer, &out, &refusal)) ...
#ifndef ORTHOLAN_STRICT_EXTENSIONS_STRUCT_READER_H_
#define ORTHOLAN_STRICT_EXTENSIONS_STRUCT_READER_H_

#include "strict/der/refusal.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// Fills `out`, zeros before, which has the type that the shape's fields have their places in; for a
// shape without fields that of its value: int32_t, ortholan_integer, ortholan_bits,
// ortholan_octets, ortholan_string, ortholan_moment, ortholan_list, ortholan_general_names_view.
bool ReadStruct(const Shape& shape, ByteView der, Leniency leniency, void* out, Refusal* refusal);

// The same for the element at the front of a list of TLS that was read, which is taken from it.
// Of a version that is not known nothing but octets is stored, in the first field.
bool TakeTlsStruct(const Shape& element, ByteView* list, ByteView* bytes, void* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_STRUCT_READER_H_
