// A name on its way into the caller's room, from its last RDN to its first, as text has it.
// Within an RDN the order does not matter: its SET is sorted (X.690 11.6).
//
//   NameWriter name(&out);
//   name.BeginRdn();
//   uint8_t* value = name.TakeValue(5);     // null where the room ends
//   name.EndAttribute(kPrintableString, type);
//   name.End(TextOrder::kReversed);
#ifndef ORTHOLAN_STRICT_NAMES_NAME_WRITER_H_
#define ORTHOLAN_STRICT_NAMES_NAME_WRITER_H_

#include "bytes/byte_view.h"
#include "strict/der/backward_output.h"
#include "strict/names/text_options.h"

namespace Ortholan::strict {

class NameWriter {
 public:
  explicit NameWriter(BackwardOutput* out) : out_(out) {}

  void BeginRdn();

  // Octets of the next attribute's value, for the caller to fill: ...
  uint8_t* TakeValue(size_t octets) {
    attribute_end_ = out_->size();
    return out_->Take(octets);
  }
  // ... others in their place, where there have to be, ...
  void ReplaceValue(ByteView octets) {
    out_->Rewind(attribute_end_);
    out_->Put(octets);
  }
  // ... a whole element, ...
  void EndAttribute(ByteView type);
  // ... or the content of one.
  void EndAttribute(uint8_t identifier, ByteView type);
  // A whole AttributeTypeAndValue, and a whole RDN.
  void PutAttribute(ByteView bytes);
  void PutRdn(ByteView bytes);

  // kAsEncoded turns what was put last into the first RDN of the encoding back into the last.
  // Throws std::bad_alloc where a SET has to be sorted.
  void End(TextOrder order);

 private:
  void EndRdn();

  BackwardOutput* out_;
  size_t rdn_end_ = 0;  // as counts of octets put
  size_t attribute_end_ = 0;
  size_t attributes_ = 0;  // of the present RDN
  bool in_rdn_ = false;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_NAME_WRITER_H_
