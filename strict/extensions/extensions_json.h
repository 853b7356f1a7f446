// Lists of extensions as JSON.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_EXTENSIONS_JSON_H_
#define ORTHOLAN_STRICT_EXTENSIONS_EXTENSIONS_JSON_H_

#include "strict/certificates/extensions_view.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

// Reads a list of extensions, or those of a certificate, a request or a CRL.
bool ReadExtensionsOf(ByteView der, Leniency leniency, ExtensionsView* extensions,
                      Refusal* refusal);

// Puts a JSON array of extensions that were read; values that are refused as their octets with the
// refusal. Throws std::bad_alloc.
void PutExtensionsJson(const ExtensionsView& extensions, Leniency leniency, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_EXTENSIONS_JSON_H_
