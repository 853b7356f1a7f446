// The attributes of a name, whose RDNs have one each, with their types decoded: what the name
// model, the comparison and the C interface read names by.
//
//   ForEachAttribute(ViewOf(name), [&](const DecodedAttribute& attribute) {
//     types.emplace_back(attribute.type().dotted());
//     return true;
//   });
#ifndef ORTHOLAN_NAMES_DECODER_ATTRIBUTE_WALK_H_
#define ORTHOLAN_NAMES_DECODER_ATTRIBUTE_WALK_H_

#include <ortholan/platform.h>

#include "foundation/element_reader.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"

namespace Ortholan {

// The one attribute of an RDN. Views live as long as the bytes and until the next RDN is read.
class DecodedAttribute {
 public:
  // False with the last error set for bytes that are no such structure, unchanged for an RDN of
  // several attributes and an attribute without a type or value.
  bool Read(ByteView rdn);

  const TypeText& type() const { return type_; }
  // Whether the value is a text in ASCII, as most are, and that text.
  bool is_ascii() const { return is_ascii_; }
  std::string_view ascii() const { return ascii_.text(); }
  // Stands alone.
  const Element& value() const { return value_; }

 private:
  TypeText type_;
  Element value_;
  AsciiValue ascii_;
  bool is_ascii_ = false;
};

// Calls `use` with each attribute until it returns false. False then, and for a name that cannot be
// read; the last error is as before where that is a fault of the sequence itself, which counts
// before everything else, also where `use` was called.
template <typename Use>
bool ForEachAttribute(ByteView name, Use use) {
  const DWORD before = GetLastError();
  bool read = true;
  DecodedAttribute attribute;
  ElementReader reader(name);
  for (Element rdn; reader.Next(&rdn);) {
    read = read && attribute.Read(rdn.bytes) && use(attribute);
  }
  if (!reader.fault()) return read;
  SetLastError(before);
  return false;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_ATTRIBUTE_WALK_H_
