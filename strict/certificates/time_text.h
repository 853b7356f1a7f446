// Times of certificates as text (RFC 5280 4.1.2.5).
//
//   PutTimeText(element, &out);   // 17 0D 32 36...: 2026-11-21T22:05:00Z
#ifndef ORTHOLAN_STRICT_CERTIFICATES_TIME_TEXT_H_
#define ORTHOLAN_STRICT_CERTIFICATES_TIME_TEXT_H_

#include "bytes/byte_view.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

// Puts "2026-11-21T22:05:00Z" for an element that is a UTCTime YYMMDDHHMMSSZ or a GeneralizedTime
// YYYYMMDDHHMMSSZ. False, with nothing put, for anything else and for what is no moment.
bool PutTimeText(ByteView element, Output* out);
// The same for the content of the type that has the identifier.
bool PutTimeText(uint8_t identifier, ByteView content, Output* out);

struct Moment {
  unsigned year, month, day, hour, minute, second;
};
// Puts "2026-11-21T22:05:00".
void PutMoment(const Moment& moment, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_TIME_TEXT_H_
