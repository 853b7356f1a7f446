#include "strict/names/type_finder.h"

#include "strict/der/oid.h"

namespace Ortholan::strict {

ortholan_reason TypeFinder::FindDotted(std::string_view type, NamedType* found) {
  Output oid(oid_, sizeof oid_);
  if (!PutIdentifier(type, &oid)) return ORTHOLAN_REASON_TEXT_OID;
  ByteView octets(oid_, oid.size());
  if (!oid.fits()) {
    long_oid_.resize(oid.size());
    Output again(&long_oid_[0], oid.size());
    PutIdentifier(type, &again);
    octets = AsBytes(long_oid_.data(), long_oid_.size());
  }
  *found = Describe(octets, options_);
  return ORTHOLAN_REASON_NONE;
}

}  // namespace Ortholan::strict
