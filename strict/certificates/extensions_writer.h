// A list of extensions on its way out (RFC 5280 4.1.2.9), from its end to its front.
//
//   for (size_t i = count; i-- != 0;) PutExtension(all[i], &out);
//   out.PutHeader(kSequence, out.size());
#ifndef ORTHOLAN_STRICT_CERTIFICATES_EXTENSIONS_WRITER_H_
#define ORTHOLAN_STRICT_CERTIFICATES_EXTENSIONS_WRITER_H_

#include "strict/certificates/extensions_view.h"
#include "strict/der/backward_output.h"

namespace Ortholan::strict {

// Makes an Extension of the `size` octets of a value that were put last.
inline void PutExtensionAround(ByteView oid, bool critical, size_t size, BackwardOutput* out) {
  constexpr uint8_t kTrue[] = {kBoolean, 1, 0xFF};
  const size_t end = out->size() - size;
  out->PutHeader(kOctetString, size);
  // FALSE is the default, which DER leaves out (X.690 11.5).
  if (critical) out->Put({kTrue, sizeof kTrue});
  out->Put(oid);
  out->PutHeader(kOid, oid.size);
  out->PutHeader(kSequence, out->size() - end);
}

// One Extension of identifier, critical flag and value; its `bytes` are not looked at.
inline void PutExtension(const ExtensionView& extension, BackwardOutput* out) {
  out->Put(extension.value);
  PutExtensionAround(extension.oid, extension.critical, extension.value.size, out);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_EXTENSIONS_WRITER_H_
