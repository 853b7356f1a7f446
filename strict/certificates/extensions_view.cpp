#include "strict/certificates/extensions_view.h"

#include "strict/der/boolean.h"
#include "strict/der/oid.h"

namespace Ortholan::strict {
namespace {

// What stands behind the identifier.
inline bool ReadValue(Reader* fields, ExtensionView* extension) {
  return ReadDefaultFalse(fields, &extension->critical) &&
         fields->Read(kOctetString, &extension->value) && fields->End();
}

// What is inside the SEQUENCE.
inline bool ReadExtension(const Element& element, Leniency leniency, Refusal* refusal,
                          ExtensionView* extension) {
  Reader fields(element.content, leniency, refusal);
  extension->bytes = element.bytes;
  if (!fields.Read(kOid, &extension->oid)) return false;
  if (!IsIdentifier(extension->oid)) {
    return fields.RefuseAt(ORTHOLAN_REASON_OID, extension->oid.data);
  }
  return ReadValue(&fields, extension);
}

}  // namespace

bool ExtensionsView::Read(ByteView der, Leniency leniency, ExtensionsView* extensions,
                          Refusal* refusal) {
  ExtensionsView read;
  if (!ReadWhole(der, kSequence, leniency, &read.content_, refusal)) return false;
  Reader list(read.content_, leniency, refusal);
  if (list.AtEnd()) return list.RefuseHere(ORTHOLAN_REASON_EMPTY);
  ExtensionView extension;
  for (Element element; !list.AtEnd(); ++read.size_) {
    if (!list.Read(kSequence, &element) || !ReadExtension(element, leniency, refusal, &extension)) {
      return false;
    }
  }
  *extensions = read;
  return true;
}

// What was checked is read again with the widest rule.
ExtensionView ExtensionsView::First(ByteView content) {
  ExtensionView first;
  Reader list(content, Leniency::kLenient, nullptr);
  Element element;
  if (!list.AtEnd() && list.Read(kSequence, &element)) {
    ReadExtension(element, Leniency::kLenient, nullptr, &first);
  }
  return first;
}

// The identifiers alone tell which extension has to be taken apart.
bool ExtensionsView::FindIn(ByteView content, ByteView oid, ExtensionView* found,
                            Refusal* refusal) {
  *found = {};
  Reader list(content, Leniency::kLenient, nullptr);
  for (Element element; !list.AtEnd() && list.Read(kSequence, &element);) {
    Reader fields(element.content, Leniency::kLenient, nullptr);
    ByteView type;
    if (!fields.Read(kOid, &type) || !SameBytes(type, oid)) continue;
    if (!found->bytes.empty()) {
      *found = {};
      return Refuse(refusal, ORTHOLAN_REASON_DUPLICATE_EXTENSION, element.bytes.data,
                    element.bytes.size);
    }
    *found = {type, {}, element.bytes, false};
    ReadValue(&fields, found);
  }
  return true;
}

}  // namespace Ortholan::strict
