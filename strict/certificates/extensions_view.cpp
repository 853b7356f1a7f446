#include "strict/certificates/extensions_view.h"

#include "strict/der/boolean.h"
#include "strict/der/identifier.h"

namespace Ortholan::strict {
namespace {

// What stands behind the identifier.
bool ReadValue(Reader* fields, ExtensionView* extension) {
  return ReadDefaultFalse(fields, &extension->critical) &&
         fields->Read(kOctetString, &extension->value) && fields->End();
}

bool ReadExtension(Reader* list, ExtensionView* extension) {
  Element element;
  if (!list->Read(kSequence, &element)) return false;
  Reader fields(element.content, list->leniency(), list->refusal());
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
  for (ExtensionView extension; !list.AtEnd(); ++read.size_) {
    if (!ReadExtension(&list, &extension)) return false;
  }
  *extensions = read;
  return true;
}

// What was checked is read again with the widest rule.
void ExtensionsView::Iterator::Step() {
  extension_ = {};
  if (rest_.empty()) return;
  Reader list(rest_, Leniency::kLenient, nullptr);
  ReadExtension(&list, &extension_);
  rest_ = list.rest();
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
