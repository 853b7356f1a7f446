// Attributes of structures as text, for the writer to choose their string type anew.
#ifndef ORTHOLAN_NAMES_ENCODER_ATTRIBUTE_SOURCE_H_
#define ORTHOLAN_NAMES_ENCODER_ATTRIBUTE_SOURCE_H_

#include <ortholan/platform.h>
#include <ortholan/rdn.h>

#include <string>
#include <string_view>

#include "foundation/byte_view.h"

namespace Ortholan {

// A structured attribute, not owned.
struct AttributeView {
  std::string_view oid;
  DWORD value_type = 0;  // CERT_RDN_*
  ByteView value;

  explicit AttributeView(const RDNAttr& attr);
  explicit AttributeView(const CERT_RDN_ATTR& attr);
};

// The attribute's value as wide text: types 4 and 7 in the thread's code page, 13 UTF-8, 12
// UTF-16LE (a length in bytes, of which at most two trailing NULs are the decoder's padding). An
// empty value is "". False for any other type and for bytes that the platform cannot convert.
bool ConvToX500NameElem(const AttributeView& attr, std::wstring* value);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_ATTRIBUTE_SOURCE_H_
