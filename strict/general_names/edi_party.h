// The EDIPartyName of a general name (RFC 5280 4.2.1.6): a party, and who named it.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_EDI_PARTY_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_EDI_PARTY_H_

#include "strict/der/element.h"

namespace Ortholan::strict {

struct Refusal;

struct EdiParty {
  Element assigner;  // a string; without octets where there is none
  Element party;     // a string

  // Reads the content of the name.
  static bool Read(ByteView content, Leniency leniency, EdiParty* name, Refusal* refusal);
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_EDI_PARTY_H_
