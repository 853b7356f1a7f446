// Other names by their type (RFC 5280 4.2.1.6): the ones in use, taken apart over borrowed octets.
//
//   OtherName other;
//   if (OtherName::Read(name.content, Leniency::kDer, &other, &refusal) &&
//       other.kind == OtherNameKind::kUpn) use(other.text);
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_H_

#include <ortholan/strict/general_names.h>

#include <string_view>

#include "strict/der/element.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

struct Refusal;

enum class OtherNameKind : int32_t {
  kUnknown = ORTHOLAN_OTHER_UNKNOWN,
  kUpn = ORTHOLAN_OTHER_UPN,
  kService = ORTHOLAN_OTHER_SERVICE,
  kUtf8Mailbox = ORTHOLAN_OTHER_UTF8_MAILBOX,
  kKerberos = ORTHOLAN_OTHER_KERBEROS,
  kXmpp = ORTHOLAN_OTHER_XMPP,
  kPermanentId = ORTHOLAN_OTHER_PERMANENT_ID,
  kHardwareModule = ORTHOLAN_OTHER_HARDWARE_MODULE,
  kGuid = ORTHOLAN_OTHER_GUID,
};

struct OtherName {
  OtherNameKind kind = OtherNameKind::kUnknown;
  ByteView type;          // content octets of the identifier
  Element value;          // inside the explicit tag
  std::string_view text;  // characters of a UPN, service, mailbox, XMPP address, permanent
                          // identifier (null where it has none); a Kerberos realm
  ByteView oid;           // assigner of a permanent identifier (may be absent), type of a module
  ByteView octets;        // serial number of a module, octets of a GUID
  ByteView components;    // of a Kerberos principal: strings one behind the other
  ByteView name_type;     // of a Kerberos principal: content of the INTEGER

  // Reads the content of an other name, and its value by what its type prescribes; a type that is
  // not known may have any value.
  static bool Read(ByteView content, Leniency leniency, OtherName* name, Refusal* refusal);
};

OtherNameKind KindOfOtherName(ByteView type);

// The content octets of a known kind's identifier.
ByteView TypeOfOtherName(OtherNameKind kind);

// Whether a text is a mailbox whose local part has characters beyond ASCII (RFC 9598 3).
bool CheckUtf8Mailbox(std::string_view text, Refusal* refusal);

// Takes a service name apart: "_imaps.example.org" (RFC 4985 2). False where it is none.
bool SplitService(std::string_view text, std::string_view* service, std::string_view* host,
                  Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_H_
