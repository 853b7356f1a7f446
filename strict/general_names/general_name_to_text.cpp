#include "strict/general_names/general_name_to_text.h"

#include "strict/der/integer.h"
#include "strict/der/oid.h"
#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/general_names/edi_party.h"
#include "strict/general_names/escaped_text.h"
#include "strict/general_names/guid.h"
#include "strict/general_names/ip_address.h"
#include "strict/general_names/name_prefixes.h"
#include "strict/general_names/other_name.h"
#include "strict/names/name_to_text.h"

namespace Ortholan::strict {
namespace {

void PutHexForm(ByteView octets, Output* out) {
  out->Put('#');
  PutHex(octets, out);
}

// An identifier in dotted text, or its octets where it has none.
void PutIdentifierOrOctets(ByteView oid, Output* out) {
  if (oid.size <= kMaxIdentifierOctets && IsIdentifier(oid)) {
    PutIdentifierText(oid, out);
  } else {
    PutHexForm(oid, out);
  }
}

void PutGuid(ByteView octets, Output* out) {
  for (size_t i = 0; i < kGuidOctets; ++i) {
    if (HasGuidHyphen(i)) out->Put('-');
    PutHex({&octets.data[kGuidOrder[i]], 1}, out);
  }
}

void PutKerberos(const OtherName& other, Output* out) {
  Reader components(other.components, Leniency::kLenient, nullptr);
  for (Element component; !components.AtEnd() && components.Read(&component);) {
    if (component.bytes.data != other.components.data) out->Put('/');
    PutEscapedText(AsText(component.content), Characters::kAscii, "/@;", out);
  }
  out->Put('@');
  PutEscapedText(other.text, Characters::kAscii, "/@;", out);
  const int64_t type = ReadInteger(other.name_type);
  if (type == kKerberosPrincipal) return;
  out->Put(type < 0 ? ";-" : ";");
  PutDecimal(static_cast<uint64_t>(type < 0 ? -type : type), out);
}

void PutParts(const OtherName& other, Output* out) {
  if (!other.oid.empty()) PutIdentifierText(other.oid, out);
  if (other.kind == OtherNameKind::kHardwareModule) {
    out->Put(';');
    PutHex(other.octets, out);
  } else if (other.text.data() != nullptr) {
    out->Put(';');
    PutEscapedText(other.text, Characters::kUtf8, {}, out);
  }
}

void PutTyped(const OtherName& other, Output* out) {
  switch (other.kind) {
    case OtherNameKind::kGuid:
      return PutGuid(other.octets, out);
    case OtherNameKind::kKerberos:
      return PutKerberos(other, out);
    case OtherNameKind::kPermanentId:
    case OtherNameKind::kHardwareModule:
      return PutParts(other, out);
    default:
      return PutEscapedText(other.text, Characters::kUtf8, {}, out);
  }
}

// Where the identifier of a part has too many octets for text, the whole is shown as octets.
bool HasText(const OtherName& other) {
  return other.kind != OtherNameKind::kUnknown && other.oid.size <= kMaxIdentifierOctets;
}

void PutUntyped(ByteView content, Output* out) {
  const OtherNameView other(content);
  if (other.value.bytes.empty() || !IsIdentifier(other.type) ||
      other.type.size > kMaxIdentifierOctets) {
    return PutHexForm(content, out);
  }
  PutIdentifierText(other.type, out);
  out->Put(';');
  const uint8_t type = other.value.identifier;
  const bool is_text = (type == kUtf8String || type == kIA5String) &&
                       FindStringFault(type, other.value.content, true).reason == 0;
  if (!is_text) return PutHexForm(other.value.bytes, out);
  out->Put(type == kUtf8String ? kUtf8Tag : kIA5Tag);
  PutEscapedText(AsText(other.value.content), Characters::kUtf8, {}, out);
}

void PutOther(ByteView content, Output* out) {
  OtherName other;
  if (OtherName::Read(content, Leniency::kDer, &other, nullptr) && HasText(other)) {
    out->Put(PrefixOf(other.kind));
    return PutTyped(other, out);
  }
  out->Put(PrefixOf(OtherNameKind::kUnknown));
  PutUntyped(content, out);
}

void PutDirectoryName(ByteView content, Output* out) {
  NameView name;
  const size_t before = out->size();
  if (NameView::Read(content, Leniency::kDer, &name, nullptr) &&
      PutTextOfName(name, {}, out, nullptr)) {
    return;
  }
  out->Rewind(before);
  PutHexForm(content, out);
}

void PutEdiParty(ByteView content, Output* out) {
  EdiParty name;
  const bool is_text = EdiParty::Read(content, Leniency::kDer, &name, nullptr) &&
                       name.party.identifier == kUtf8String &&
                       (name.assigner.bytes.empty() || name.assigner.identifier == kUtf8String);
  if (!is_text) return PutHexForm(content, out);
  if (!name.assigner.bytes.empty()) {
    PutEscapedText(AsText(name.assigner.content), Characters::kUtf8, ";#", out);
    out->Put(';');
  }
  PutEscapedText(AsText(name.party.content), Characters::kUtf8, ";#", out);
}

}  // namespace

void PutTextOfGeneralName(const GeneralNameView& name, Output* out) {
  if (name.kind == GeneralNameKind::kOther) return PutOther(name.content, out);
  out->Put(PrefixOf(name.kind));
  switch (name.kind) {
    case GeneralNameKind::kAddress:
      if (!PutIpName(name.content, out)) PutHexForm(name.content, out);
      return;
    case GeneralNameKind::kRegisteredId:
      return PutIdentifierOrOctets(name.content, out);
    case GeneralNameKind::kEdiParty:
      return PutEdiParty(name.content, out);
    case GeneralNameKind::kDirectory:
      return PutDirectoryName(name.content, out);
    case GeneralNameKind::kX400:
      return PutHexForm(name.content, out);
    default:
      return PutEscapedText(AsText(name.content), Characters::kAscii, {}, out);
  }
}

}  // namespace Ortholan::strict
