// Whether a certificate is for what was asked for (RFC 9525 6, RFC 5280 4.2.1.6, RFC 9598 5).
// Alternative names alone count. Nothing is allocated; a name is looked at once.
//
//   const Identity identity = Identify(certificate, reference, &refusal);
//   if (identity.verdict == Verdict::kYes) use(identity.match);
//   else ... Explain(element, reference) for each of identity.names
#ifndef ORTHOLAN_STRICT_IDENTITY_IDENTIFY_H_
#define ORTHOLAN_STRICT_IDENTITY_IDENTIFY_H_

#include "strict/der/verdict.h"
#include "strict/general_names/general_name_view.h"
#include "strict/identity/reference.h"

namespace Ortholan::strict {

struct Identity {
  Verdict verdict = Verdict::kCannotTell;
  ortholan_reason reason = ORTHOLAN_REASON_NONE;  // of any verdict but kYes
  ByteView names;  // those that were looked at, one element behind the other
  size_t name_count = 0;
  GeneralNameView match;  // for kYes
  size_t index = 0;       // of the match among the names
};

// Looks into the alternative names of a certificate. What cannot be read, and a request or CRL, is
// kCannotTell, with the place in the refusal.
Identity Identify(ByteView certificate, const Reference& reference, Refusal* refusal);

// The same of the names alone, the value of an alternative-name extension.
Identity IdentifyByNames(ByteView names, const Reference& reference, Refusal* refusal);

// Why a presented name, an element of the list, is not the one that was asked for: that it is
// malformed, or else what differs; NONE for the one that is.
ortholan_reason Explain(const Element& element, const Reference& reference);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_IDENTITY_IDENTIFY_H_
