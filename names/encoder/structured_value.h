// Values of structures as the characters that the writer chooses a string type for anew.
#ifndef ORTHOLAN_NAMES_ENCODER_STRUCTURED_VALUE_H_
#define ORTHOLAN_NAMES_ENCODER_STRUCTURED_VALUE_H_

#include <ortholan/platform.h>
#include <ortholan/rdn.h>

#include <string_view>

#include "bytes/arena.h"
#include "bytes/byte_view.h"
#include "foundation/code_page.h"
#include "names/encoder/value_encoder.h"

namespace Ortholan {

// A structured attribute, not owned.
struct AttributeView {
  std::string_view oid;
  DWORD value_type = 0;  // CERT_RDN_*
  CRYPT_DATA_BLOB value;

  explicit AttributeView(const RDNAttr& attr);
  explicit AttributeView(const CERT_RDN_ATTR& attr);
};

// The characters of 8-bit text: of the text itself where it is ASCII, otherwise wide ones in
// `arena`. False where the platform cannot convert it.
bool WidenCharacters(std::string_view text, UINT codePage, Arena* arena, Characters* characters);

// The attribute's value: types 4 and 7 in the thread's code page, 13 UTF-8, 12 UTF-16LE (a length
// in bytes, of which at most two trailing NULs are the decoder's padding). An empty value has no
// characters. False for any other type and for bytes that the platform cannot convert. The
// characters live as long as the attribute and `arena`.
bool ConvToX500NameElem(const AttributeView& attr, Arena* arena, Characters* value);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_STRUCTURED_VALUE_H_
