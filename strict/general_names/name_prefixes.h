// What the text of a general name begins with: a table for both directions.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_NAME_PREFIXES_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_NAME_PREFIXES_H_

#include <string_view>

#include "strict/general_names/general_name_view.h"
#include "strict/general_names/other_name.h"

namespace Ortholan::strict {

struct NameKindRow {
  GeneralNameKind kind;
  OtherNameKind other;  // of kOther
  std::string_view prefix;
};

constexpr NameKindRow kNameKinds[] = {
    {GeneralNameKind::kDns, OtherNameKind::kUnknown, "DNS:"},
    {GeneralNameKind::kAddress, OtherNameKind::kUnknown, "IP:"},
    {GeneralNameKind::kMail, OtherNameKind::kUnknown, "email:"},
    {GeneralNameKind::kUri, OtherNameKind::kUnknown, "URI:"},
    {GeneralNameKind::kDirectory, OtherNameKind::kUnknown, "dirName:"},
    {GeneralNameKind::kRegisteredId, OtherNameKind::kUnknown, "RID:"},
    {GeneralNameKind::kEdiParty, OtherNameKind::kUnknown, "EDIParty:"},
    {GeneralNameKind::kX400, OtherNameKind::kUnknown, "X400:"},
    {GeneralNameKind::kOther, OtherNameKind::kUpn, "UPN:"},
    {GeneralNameKind::kOther, OtherNameKind::kService, "SRV:"},
    {GeneralNameKind::kOther, OtherNameKind::kUtf8Mailbox, "SmtpUTF8Mailbox:"},
    {GeneralNameKind::kOther, OtherNameKind::kXmpp, "XMPP:"},
    {GeneralNameKind::kOther, OtherNameKind::kKerberos, "KRB5:"},
    {GeneralNameKind::kOther, OtherNameKind::kPermanentId, "PermanentIdentifier:"},
    {GeneralNameKind::kOther, OtherNameKind::kHardwareModule, "HardwareModule:"},
    {GeneralNameKind::kOther, OtherNameKind::kGuid, "GUID:"},
    {GeneralNameKind::kOther, OtherNameKind::kUnknown, "otherName:"},
};

// How the value of an other name of any type begins.
constexpr std::string_view kUtf8Tag = "UTF8:";
constexpr std::string_view kIA5Tag = "IA5:";

// The type of a Kerberos name that text leaves out, KRB_NT_PRINCIPAL (RFC 4120 6.2).
constexpr int64_t kKerberosPrincipal = 1;

constexpr std::string_view PrefixOf(GeneralNameKind kind, OtherNameKind other) {
  for (const NameKindRow& row : kNameKinds) {
    if (row.kind == kind && row.other == other) return row.prefix;
  }
  return {};
}
constexpr std::string_view PrefixOf(GeneralNameKind kind) {
  return PrefixOf(kind, OtherNameKind::kUnknown);
}
constexpr std::string_view PrefixOf(OtherNameKind other) {
  return PrefixOf(GeneralNameKind::kOther, other);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_NAME_PREFIXES_H_
