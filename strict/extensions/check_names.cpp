// Rules about distinguished names and general names.
#include "strict/der/string_value.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"
#include "strict/general_names/general_name_view.h"
#include "strict/general_names/host.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/uri.h"
#include "strict/names/attribute_types.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict::looks {
namespace {

// What RFC 5280 Appendix A.1 prescribes for a type of attribute; others are free.
struct Prescribed {
  OidConstant oid;
  ValueSyntax syntax;
  uint32_t least;  // characters
  uint32_t most;
};
constexpr uint32_t kUnbounded = 0xFFFFFFFF;
constexpr uint32_t kName = 32768;
constexpr Prescribed kPrescribed[] = {
    {"2.5.4.3", ValueSyntax::kDirectoryString, 1, 64},                 // commonName
    {"2.5.4.4", ValueSyntax::kDirectoryString, 1, kName},              // surname
    {"2.5.4.5", ValueSyntax::kPrintable, 1, 64},                       // serialNumber
    {"2.5.4.6", ValueSyntax::kPrintable, 2, 2},                        // countryName
    {"2.5.4.7", ValueSyntax::kDirectoryString, 1, 128},                // localityName
    {"2.5.4.8", ValueSyntax::kDirectoryString, 1, 128},                // stateOrProvinceName
    {"2.5.4.10", ValueSyntax::kDirectoryString, 1, 64},                // organizationName
    {"2.5.4.11", ValueSyntax::kDirectoryString, 1, 64},                // organizationalUnitName
    {"2.5.4.12", ValueSyntax::kDirectoryString, 1, 64},                // title
    {"2.5.4.41", ValueSyntax::kDirectoryString, 1, kName},             // name
    {"2.5.4.42", ValueSyntax::kDirectoryString, 1, kName},             // givenName
    {"2.5.4.43", ValueSyntax::kDirectoryString, 1, kName},             // initials
    {"2.5.4.44", ValueSyntax::kDirectoryString, 1, kName},             // generationQualifier
    {"2.5.4.46", ValueSyntax::kPrintable, 0, kUnbounded},              // dnQualifier
    {"2.5.4.65", ValueSyntax::kDirectoryString, 1, 128},               // pseudonym
    {"0.9.2342.19200300.100.1.25", ValueSyntax::kIA5, 0, kUnbounded},  // domainComponent
    {"1.2.840.113549.1.9.1", ValueSyntax::kIA5, 1, 255},               // emailAddress
};

const Prescribed* FindPrescribed(ByteView oid) {
  for (const Prescribed& row : kPrescribed) {
    if (SameBytes(row.oid.view(), oid)) return &row;
  }
  return nullptr;
}

// Calls `visit` for each attribute that something is prescribed for.
template <class Visit>
void ForEachPrescribed(const CheckCase& at, Visit visit) {
  NameView name;
  if (!NameView::Read(at.name, Leniency::kLenient, &name, nullptr)) return;
  for (const AttributeView& attribute : name) {
    if (const Prescribed* const row = FindPrescribed(attribute.type)) visit(attribute, *row);
  }
}

bool IsOfSyntax(uint8_t identifier, ValueSyntax syntax) {
  switch (syntax) {
    case ValueSyntax::kPrintable:
      return identifier == kPrintableString;
    case ValueSyntax::kIA5:
      return identifier == kIA5String;
    default:
      return identifier == kPrintableString || identifier == kUtf8String ||
             identifier == kTeletexString || identifier == kBmpString ||
             identifier == kUniversalString;
  }
}

}  // namespace

void NameEncoding(const CheckCase& at) {
  NameView name;
  Refusal refusal;
  if (!NameView::Read(at.name, Leniency::kDer, &name, &refusal)) at.Fault(at.name, refusal);
}

void ValueTypes(const CheckCase& at) {
  ForEachPrescribed(at, [&at](const AttributeView& attribute, const Prescribed& row) {
    if (!IsOfSyntax(attribute.value.identifier, row.syntax)) at.Fault(attribute.bytes);
  });
}

void ValueSizes(const CheckCase& at) {
  ForEachPrescribed(at, [&at](const AttributeView& attribute, const Prescribed& row) {
    const size_t size = CountCharacters(attribute.value);
    if (size != 0 && (size < row.least || size > row.most)) at.Fault(attribute.bytes);
  });
}

void EmptyValues(const CheckCase& at) {
  ForEachPrescribed(at, [&at](const AttributeView& attribute, const Prescribed& row) {
    const Element& value = attribute.value;
    if (row.least != 0 && IsString(value.identifier) && value.content.empty()) {
      at.Fault(attribute.bytes);
    }
  });
}

namespace {

// Calls `visit` for each name of a list of general names.
template <class Visit>
void ForEachName(const CheckCase& at, Visit visit) {
  ForEachElement(ContentOf(at.extension.value, kSequence), [&visit](const Element& element) {
    GeneralNameView name;
    if (GeneralNameView::FromElement(element, &name)) visit(name);
  });
}

bool IsOfCharacters(GeneralNameKind kind) {
  return kind == GeneralNameKind::kMail || kind == GeneralNameKind::kDns ||
         kind == GeneralNameKind::kUri;
}

// Calls `read` for the characters of each name of a kind that has any; a refusal is a fault.
template <class Read>
void LookAtCharacters(const CheckCase& at, GeneralNameKind kind, Read read) {
  ForEachName(at, [&](const GeneralNameView& name) {
    Refusal refusal;
    if (name.kind != kind || name.content.empty()) return;
    if (!read(AsText(name.content), &refusal)) at.Fault(name.bytes, refusal);
  });
}

}  // namespace

// Empty text, or a directory name without RDNs.
void EmptyNames(const CheckCase& at) {
  ForEachName(at, [&at](const GeneralNameView& name) {
    const bool has_nothing = IsOfCharacters(name.kind)
                                 ? name.content.empty()
                                 : name.kind == GeneralNameKind::kDirectory &&
                                       name.content.size == 2 && name.content[1] == 0;
    if (has_nothing) at.Fault(name.bytes);
  });
}

// RFC 1034 3.5 as RFC 1123 2.1 changes it; "*" as the first label is RFC 9525's affair.
void Hosts(const CheckCase& at) {
  LookAtCharacters(at, GeneralNameKind::kDns, [](std::string_view text, Refusal* refusal) {
    return CheckHostPattern(text, kPlainHost, refusal);
  });
}

void Mailboxes(const CheckCase& at) {
  LookAtCharacters(at, GeneralNameKind::kMail, [](std::string_view text, Refusal* refusal) {
    Mailbox mailbox;
    return Mailbox::Read(text, Mailbox::kAscii, &mailbox, refusal);
  });
}

void Uris(const CheckCase& at) {
  LookAtCharacters(at, GeneralNameKind::kUri, [](std::string_view text, Refusal* refusal) {
    Uri uri;
    return Uri::Read(text, &uri, refusal);
  });
}

void UriHosts(const CheckCase& at) {
  LookAtCharacters(at, GeneralNameKind::kUri, [](std::string_view text, Refusal* refusal) {
    Uri uri;
    if (!Uri::Read(text, &uri, nullptr) || !uri.has_authority) return true;
    if (uri.host_kind == Uri::HostKind::kAddress) return true;
    return uri.host_kind == Uri::HostKind::kName && CheckHost(uri.host, kTrailingDot, refusal);
  });
}

void Addresses(const CheckCase& at) {
  ForEachName(at, [&at](const GeneralNameView& name) {
    if (name.kind == GeneralNameKind::kAddress && !IsIpAddressSize(name.content.size)) {
      at.Fault(name.bytes);
    }
  });
}

namespace {

// Calls `visit` for each subtree of name constraints: the SEQUENCE, and its base.
template <class Visit>
void ForEachSubtree(const CheckCase& at, Visit visit) {
  ForEachElement(ContentOf(at.extension.value, kSequence), [&visit](const Element& list) {
    ForEachElement(list.content, [&visit](const Element& subtree) {
      Reader fields(subtree.content, Leniency::kLenient, nullptr);
      GeneralNameView base;
      if (GeneralNameView::Read(&fields, &base)) visit(subtree, base, fields);
    });
  });
}

bool IsHost(std::string_view text, Refusal* refusal) {
  return CheckHost(text, kPlainHost, refusal);
}

// ".example.org" is all hosts below, but not for DNS names.
bool IsHostOrDomain(std::string_view text, Refusal* refusal) {
  if (!text.empty() && text[0] == '.') text.remove_prefix(1);
  return IsHost(text, refusal);
}

bool IsMailboxBase(std::string_view text, Refusal* refusal) {
  Mailbox mailbox;
  if (text.find('@') == std::string_view::npos) return IsHostOrDomain(text, refusal);
  return Mailbox::Read(text, Mailbox::kAscii, &mailbox, refusal);
}

// Address and mask, whose ones stand in front (RFC 4632).
bool IsAddressBase(ByteView content) {
  size_t bits = 0;
  return IsIpRangeSize(content.size) && IsPrefixMask(content.From(content.size / 2), &bits);
}

bool IsBase(const GeneralNameView& base, Refusal* refusal) {
  const std::string_view text = AsText(base.content);
  switch (base.kind) {
    case GeneralNameKind::kDns:
      // Without a label it is every host.
      return text.empty() || IsHost(text, refusal);
    case GeneralNameKind::kMail:
      return IsMailboxBase(text, refusal);
    case GeneralNameKind::kUri:
      return IsHostOrDomain(text, refusal);
    case GeneralNameKind::kAddress:
      return IsAddressBase(base.content);
    default:
      return true;
  }
}

}  // namespace

// DER leaves the default 0 out, so that whatever stands behind the base is a distance.
void SubtreeDistances(const CheckCase& at) {
  constexpr uint8_t kMaximum = Context(1);
  ForEachSubtree(at, [&at](const Element& subtree, const GeneralNameView&, Reader distances) {
    ForEachElement(distances.rest(), [&](const Element& distance) {
      const bool is_zero = distance.content.size == 1 && distance.content[0] == 0;
      if (distance.identifier == kMaximum || !is_zero) at.Fault(subtree.bytes);
    });
  });
}

void SubtreeForms(const CheckCase& at) {
  ForEachSubtree(at, [&at](const Element&, const GeneralNameView& base, const Reader&) {
    Refusal refusal;
    if (!IsBase(base, &refusal)) at.Fault(base.bytes, refusal);
  });
}

}  // namespace Ortholan::strict::looks
