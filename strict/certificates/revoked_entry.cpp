#include "strict/certificates/revoked_entry.h"

#include "strict/der/reader.h"

namespace Ortholan::strict {

bool RevokedEntry::Take(Reader* list, RevokedEntry* entry) {
  Element whole, date;
  RevokedEntry read;
  if (!list->Read(kSequence, &whole)) return false;
  Reader fields(whole.content, list->leniency(), list->refusal());
  if (!fields.Read(kInteger, &read.serial) ||
      !fields.Read(fields.Sees(kGeneralizedTime) ? kGeneralizedTime : kUtcTime, &date)) {
    return false;
  }
  if (!fields.AtEnd() &&
      !ExtensionsView::Read(fields.rest(), list->leniency(), &read.extensions, list->refusal())) {
    return false;
  }
  read.bytes = whole.bytes;
  read.date = date.bytes;
  *entry = read;
  return true;
}

}  // namespace Ortholan::strict
