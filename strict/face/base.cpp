// Sentences and identifiers.
#include <ortholan/strict/base.h>

#include <string_view>

#include "strict/der/oid.h"
#include "strict/der/refusal.h"
#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

// An octet in two digits, the end of the input as what it is.
void PutMet(uint32_t value, Output* out) {
  if (value == ORTHOLAN_MET_END) return out->Put("the end");
  const auto octet = static_cast<uint8_t>(value);
  PutHex({&octet, 1}, out);
}

}  // namespace

ortholan_reason ortholan_refusal_sentence(const ortholan_refusal* refusal, char* out, size_t room,
                                          size_t* size) {
  Clear(size, nullptr);
  if (refusal == nullptr || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  Output text(out, room);
  if (refusal->offset != ORTHOLAN_NO_PLACE) {
    text.Put("at offset ");
    PutDecimal(refusal->offset, &text);
    text.Put(": ");
  }
  text.Put(SentenceOf(refusal->reason));
  if (refusal->reason == ORTHOLAN_REASON_IDENTIFIER) {
    text.Put(": expected ");
    PutMet(refusal->expected, &text);
    text.Put(", met ");
    PutMet(refusal->met, &text);
  }
  return Finish(text, size);
}

const char* ortholan_reason_sentence(ortholan_reason reason) { return SentenceOf(reason).data(); }

const char* ortholan_reason_name(ortholan_reason reason) { return NameOf(reason).data(); }

ortholan_reason ortholan_oid_to_text(ortholan_octets oid, char* out, size_t room, size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(oid) || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  if (!IsIdentifier(View(oid))) return ORTHOLAN_REASON_OID;
  Output text(out, room);
  if (!PutIdentifierText(View(oid), &text)) return ORTHOLAN_REASON_TOO_LONG;
  return Finish(text, size);
}

ortholan_reason ortholan_oid_from_text(ortholan_text text, uint8_t* out, size_t room,
                                       size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(text) || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  Output content(out, room);
  if (!PutIdentifier(View(text), &content)) return ORTHOLAN_REASON_OID;
  return Finish(content, size);
}
