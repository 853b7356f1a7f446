// The attributes of a name, one an RDN, with their types decoded: what the structured decoders and
// the name model are built on.
#ifndef ORTHOLAN_NAMES_DECODER_ATTRIBUTE_WALK_H_
#define ORTHOLAN_NAMES_DECODER_ATTRIBUTE_WALK_H_

#include "foundation/element_reader.h"
#include "names/decoder/type_name.h"

namespace Ortholan {

struct DecodedAttribute {
  TypeText type;
  Element value;  // stands alone
};

// Reads the one attribute of an RDN. False with the last error set for bytes that are no such
// structure, unchanged for an RDN of several attributes and an attribute without a type or value.
bool ReadAttribute(ByteView rdn, DecodedAttribute* attribute);

// Calls `use` with each attribute until it returns false. False then, and for a name that cannot be
// read, whose RDNs are all found before the first one is read; `*fault` tells the latter.
template <typename Use>
bool ForEachAttribute(ByteView name, Fault* fault, Use use) {
  ElementReader scan(name);
  for (Element rdn; scan.Next(&rdn);) continue;
  *fault = scan.fault();
  if (*fault) return false;
  ElementReader reader(name);
  for (Element rdn; reader.Next(&rdn);) {
    DecodedAttribute attribute;
    if (!ReadAttribute(rdn.bytes, &attribute) || !use(attribute)) return false;
  }
  return true;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_ATTRIBUTE_WALK_H_
