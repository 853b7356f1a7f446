// Other names by their type (RFC 5280 4.2.1.6): the ones in use, taken apart over borrowed octets.
//
//   OtherName other;
//   if (OtherName::Read(name.content, Leniency::kDer, &other, &refusal) &&
//       other.kind == OtherNameKind::kUpn) use(other.text);
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_H_

#include <ortholan/strict/general_names.h>

#include <string_view>

#include "strict/general_names/other_name_view.h"

namespace Ortholan::strict {

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

struct OtherName : OtherNameView {
  OtherNameKind kind = OtherNameKind::kUnknown;
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

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_H_
