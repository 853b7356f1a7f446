// An entry of a CRL over borrowed octets (RFC 5280 5.1.2.6): which certificate is revoked, and the
// extensions that say more of it.
//
//   Reader list(content, Leniency::kDer, &refusal);
//   for (RevokedEntry entry; !list.AtEnd() && RevokedEntry::Take(&list, &entry);) ...
#ifndef ORTHOLAN_STRICT_CERTIFICATES_REVOKED_ENTRY_H_
#define ORTHOLAN_STRICT_CERTIFICATES_REVOKED_ENTRY_H_

#include "strict/certificates/extensions_view.h"

namespace Ortholan::strict {

class Reader;

struct RevokedEntry {
  ByteView bytes;   // the whole SEQUENCE
  ByteView serial;  // content of the INTEGER
  ByteView date;    // the element
  ExtensionsView extensions;

  // Takes the entry at the front. `*entry` changes only on success.
  static bool Take(Reader* list, RevokedEntry* entry);
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_REVOKED_ENTRY_H_
