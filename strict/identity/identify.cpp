#include "strict/identity/identify.h"

#include "strict/certificates/certificate_view.h"
#include "strict/der/known_oids.h"
#include "strict/der/reader.h"
#include "strict/general_names/host.h"
#include "strict/general_names/other_name.h"
#include "strict/identity/wildcard_match.h"

namespace Ortholan::strict {
namespace {

ortholan_reason CompareAddresses(ByteView presented, const Reference& reference) {
  if (!IsIpAddressSize(presented.size)) return ORTHOLAN_REASON_ADDRESS_SIZE;
  if (presented.size != reference.parts.address.size) return ORTHOLAN_REASON_OTHER_FAMILY;
  if (SameBytes(presented, reference.parts.address.view())) return ORTHOLAN_REASON_NONE;
  return ORTHOLAN_REASON_OTHER_ADDRESS;
}

// Of names that hold either a host name or an address.
ortholan_reason ComparePlaces(const NameParts& presented, const NameParts& asked) {
  if (!SameWithoutCase(presented.host, asked.host)) return ORTHOLAN_REASON_OTHER_HOST;
  if (SameBytes(presented.address.view(), asked.address.view())) return ORTHOLAN_REASON_NONE;
  return ORTHOLAN_REASON_OTHER_ADDRESS;
}

// An ASCII local part stands in an rfc822Name and any other in a SmtpUTF8Mailbox, so that one kind
// never matches the other (RFC 9598 3 and 5).
ortholan_reason CompareMailboxes(std::string_view presented, bool isUtf8,
                                 const Reference& reference) {
  NameParts parts;
  Refusal refusal;
  if (!ReadMailboxParts(presented, isUtf8, &parts, &refusal)) return refusal.reason;
  if (parts.qualifier != reference.parts.qualifier) return ORTHOLAN_REASON_OTHER_LOCAL_PART;
  return ComparePlaces(parts, reference.parts);
}

ortholan_reason CompareUris(std::string_view presented, const Reference& reference) {
  NameParts parts;
  Refusal refusal;
  if (!ReadUriParts(presented, reference.host_choices, &parts, &refusal)) return refusal.reason;
  if (!SameWithoutCase(parts.qualifier, reference.parts.qualifier)) {
    return ORTHOLAN_REASON_OTHER_SCHEME;
  }
  return ComparePlaces(parts, reference.parts);
}

ortholan_reason CompareServices(std::string_view presented, const Reference& reference) {
  NameParts parts;
  Refusal refusal;
  if (!ReadServiceParts(presented, &parts, &refusal)) return refusal.reason;
  if (!SameWithoutCase(parts.qualifier, reference.parts.qualifier)) {
    return ORTHOLAN_REASON_OTHER_SERVICE_NAME;
  }
  return ComparePlaces(parts, reference.parts);
}

ortholan_reason CompareOtherName(ByteView content, const Reference& reference) {
  const OtherNameKind kind = KindOfOtherName(OtherNameView(content).type);
  const bool is_service =
      kind == OtherNameKind::kService && reference.kind == ReferenceKind::kService;
  const bool is_mailbox =
      kind == OtherNameKind::kUtf8Mailbox && reference.kind == ReferenceKind::kMailbox;
  if (!is_service && !is_mailbox) return ORTHOLAN_REASON_OTHER_KIND;
  OtherName other;
  Refusal refusal;
  if (!OtherName::Read(content, Leniency::kDer, &other, &refusal)) return refusal.reason;
  return is_service ? CompareServices(other.text, reference)
                    : CompareMailboxes(other.text, true, reference);
}

// Which kind of name answers a reference that is no host, other names apart.
GeneralNameKind KindFor(ReferenceKind kind) {
  switch (kind) {
    case ReferenceKind::kAddress:
      return GeneralNameKind::kAddress;
    case ReferenceKind::kMailbox:
      return GeneralNameKind::kMail;
    case ReferenceKind::kUri:
      return GeneralNameKind::kUri;
    default:
      return GeneralNameKind::kOther;
  }
}

ortholan_reason CompareNoHost(const GeneralNameView& name, const Reference& reference) {
  if (name.kind == GeneralNameKind::kOther) return CompareOtherName(name.content, reference);
  if (name.kind != KindFor(reference.kind)) return ORTHOLAN_REASON_OTHER_KIND;
  switch (name.kind) {
    case GeneralNameKind::kAddress:
      return CompareAddresses(name.content, reference);
    case GeneralNameKind::kMail:
      return CompareMailboxes(AsText(name.content), false, reference);
    default:
      return CompareUris(AsText(name.content), reference);
  }
}

// NONE for a match. A name that differs is not looked at closer.
ortholan_reason Compare(const GeneralNameView& name, const Reference& reference) {
  if (reference.kind != ReferenceKind::kHost) return CompareNoHost(name, reference);
  if (name.kind != GeneralNameKind::kDns) return ORTHOLAN_REASON_OTHER_KIND;
  return CompareHostNames(AsText(name.content), reference);
}

constexpr uint8_t kDnsName = kGeneralNameIdentifiers[static_cast<size_t>(GeneralNameKind::kDns)];

// Whether an element is a name that answers. Hosts are asked for most, so theirs is the short way.
inline bool Answers(const Element& element, const Reference& reference) {
  if (reference.kind == ReferenceKind::kHost) {
    return element.identifier == kDnsName &&
           CompareHostNames(AsText(element.content), reference) == ORTHOLAN_REASON_NONE;
  }
  GeneralNameView name;
  return GeneralNameView::FromElement(element, &name) &&
         CompareNoHost(name, reference) == ORTHOLAN_REASON_NONE;
}

Identity CannotTell(const Refusal& found, Refusal* refusal) {
  if (refusal != nullptr) *refusal = found;
  Identity identity;
  identity.reason = found.reason;
  return identity;
}

}  // namespace

Identity Identify(ByteView certificate, const Reference& reference, Refusal* refusal) {
  Refusal found;
  CertificateView view;
  ExtensionView extension;
  if (!CertificateView::Read(certificate, Leniency::kDer, &view, &found) ||
      !view.extensions().Find(oids::kAlternativeNames.view(), &extension, &found)) {
    return CannotTell(found, refusal);
  }
  if (view.kind() != CertificateKind::kCertificate) {
    Refuse(&found, ORTHOLAN_REASON_NO_CERTIFICATE, certificate.data, certificate.size);
    return CannotTell(found, refusal);
  }
  if (!extension.bytes.empty()) return IdentifyByNames(extension.value, reference, refusal);
  Identity identity;
  identity.verdict = Verdict::kNo;
  identity.reason = ORTHOLAN_REASON_NO_ALTERNATIVE_NAMES;
  return identity;
}

// The elements of the list have to be in order, and no more: a name that is malformed inside, or of
// no known tag, is no reason to distrust the others.
Identity IdentifyByNames(ByteView names, const Reference& reference, Refusal* refusal) {
  Identity identity;
  Refusal found;
  bool is_read = ReadWhole(names, kSequence, Leniency::kDer, &identity.names, &found);
  Reader list(identity.names, Leniency::kDer, &found);
  if (is_read && list.AtEnd()) is_read = list.RefuseHere(ORTHOLAN_REASON_EMPTY);
  Element element;
  bool matches = false;
  size_t count = 0;
  for (; is_read && !list.AtEnd(); ++count) {
    is_read = list.Read(&element);
    if (matches || !is_read || !Answers(element, reference)) continue;
    matches = GeneralNameView::FromElement(element, &identity.match);
    identity.index = count;
  }
  identity.name_count = count;
  if (!is_read) return CannotTell(found, refusal);
  identity.verdict = matches ? Verdict::kYes : Verdict::kNo;
  if (!matches) identity.reason = ORTHOLAN_REASON_NO_MATCH;
  return identity;
}

ortholan_reason Explain(const Element& element, const Reference& reference) {
  GeneralNameView name;
  if (!GeneralNameView::FromElement(element, &name)) return ORTHOLAN_REASON_GENERAL_NAME;
  const ortholan_reason difference = Compare(name, reference);
  if (difference == ORTHOLAN_REASON_NONE) return difference;
  Refusal refusal;
  // The characters of a host tell more than that it is no ASCII.
  if (name.kind == GeneralNameKind::kDns) {
    refusal.reason = FaultOfHostPattern(AsText(name.content), reference.host_choices);
  } else {
    name.Check(Leniency::kDer, false, &refusal);
  }
  return refusal ? refusal.reason : difference;
}

}  // namespace Ortholan::strict
