// PEM text with any number of blocks (RFC 7468 3): each with its label, its octets decoded into the
// caller's room. What stands between blocks is passed over.
//
//   PemReader blocks(text, 0, &refusal);
//   for (PemBlock block; blocks.Next(&block);) PutBase64Octets(block.base64, &out);
//   if (refusal) ...
#ifndef ORTHOLAN_STRICT_CERTIFICATES_PEM_H_
#define ORTHOLAN_STRICT_CERTIFICATES_PEM_H_

#include <ortholan/strict/certificates.h>

#include <string_view>

#include "strict/der/refusal.h"

namespace Ortholan::strict {

struct PemBlock {
  std::string_view label;   // "CERTIFICATE"
  std::string_view base64;  // checked, with its line ends
};

class PemReader {
 public:
  // Begins at an offset of the text.
  PemReader(std::string_view text, size_t offset, Refusal* refusal)
      : text_(text), refusal_(refusal), offset_(offset) {}

  // The next block. False at the end, and at a block that is out of form, which is refused.
  bool Next(PemBlock* block);
  // Octets of the text up to behind the last block.
  size_t offset() const { return offset_; }

 private:
  bool RefuseAt(ortholan_reason reason, size_t at);

  std::string_view text_;
  Refusal* refusal_;
  size_t offset_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_PEM_H_
