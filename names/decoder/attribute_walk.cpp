#include "names/decoder/attribute_walk.h"

#include "names/decoder/rdn_reader.h"

namespace Ortholan {

bool DecodedAttribute::Read(ByteView rdn) {
  const bool read = ReadRdn(
      rdn, [this](ByteView type) { return DecodeAttrOid(type, &type_); },
      [this](const Element& value) {
        value_ = value;
        return true;
      });
  if (!read) return false;
  is_ascii_ = ascii_.Decode(value_);
  return true;
}

}  // namespace Ortholan
