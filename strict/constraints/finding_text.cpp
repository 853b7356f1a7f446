#include "strict/constraints/finding_text.h"

#include "strict/der/reader.h"
#include "strict/der/refusal.h"
#include "strict/general_names/escaped_text.h"
#include "strict/general_names/general_name_to_text.h"
#include "strict/general_names/ip_address.h"
#include "strict/names/name_to_text.h"

namespace Ortholan::strict {
namespace {

constexpr std::string_view kKinds[] = {
    "other name",    "e-mail address", "DNS name",
    "X.400 address", "directory name", "EDI party name",
    "URI",           "IP address",     "registered identifier",
};

void PutCharacters(ByteView text, Output* out) {
  PutEscapedText(AsText(text), Characters::kAscii, {}, out);
}

void PutDirectory(ByteView der, Output* out) {
  NameView name;
  if (!NameView::Read(der, Leniency::kStructure, &name, nullptr) ||
      !PutTextOfName(name, {}, out, nullptr)) {
    out->Put('#');
    PutHex(der, out);
  }
}

void PutValue(const GeneralNameView& name, Output* out) {
  switch (name.kind) {
    case GeneralNameKind::kMail:
    case GeneralNameKind::kDns:
    case GeneralNameKind::kUri:
      return PutCharacters(name.content, out);
    case GeneralNameKind::kAddress:
      if (!PutIpName(name.content, out)) PutHex(name.content, out);
      return;
    case GeneralNameKind::kDirectory:
      return PutDirectory(name.content, out);
    default:
      return PutTextOfGeneralName(name, out);
  }
}

bool ReadName(ortholan_octets octets, GeneralNameView* name) {
  Reader reader({octets.data, octets.size}, Leniency::kLenient, nullptr);
  return octets.size != 0 && GeneralNameView::Read(&reader, name);
}

void PutCertificate(size_t index, Output* out) {
  out->Put("certificate ");
  PutDecimal(index + 1, out);
}

void PutNameOf(const ortholan_finding& finding, Output* out) {
  GeneralNameView name;
  switch (finding.place) {
    case ORTHOLAN_NAME_SUBJECT:
      out->Put("the subject ");
      return PutDirectory({finding.name.data, finding.name.size}, out);
    case ORTHOLAN_NAME_EMAIL:
      out->Put("the subject's e-mail address ");
      return PutCharacters({finding.name.data, finding.name.size}, out);
    default:
      break;
  }
  if (!ReadName(finding.name, &name)) return out->Put("a name");
  out->Put(kKinds[static_cast<size_t>(name.kind)]);
  out->Put(' ');
  PutValue(name, out);
}

// " of certificate 2 (example.org, and 4 more)".
void PutAuthority(const ortholan_finding& finding, Output* out) {
  out->Put(" of ");
  PutCertificate(finding.authority, out);
  GeneralNameView base;
  if (!ReadName(finding.subtree, &base)) return;
  out->Put(" (");
  const size_t before = out->size();
  PutValue(base, out);
  // An empty host, or the name without RDNs.
  if (out->size() == before) out->Put("everything");
  if (finding.subtree_count > 1) {
    out->Put(", and ");
    PutDecimal(finding.subtree_count - 1, out);
    out->Put(" more");
  }
  out->Put(')');
}

// Whether no single name is meant.
bool IsAboutAll(int32_t place) {
  return place == ORTHOLAN_NAME_NONE || place == ORTHOLAN_NAME_LIST ||
         place == ORTHOLAN_NAME_CONSTRAINTS;
}

}  // namespace

void PutFinding(const ortholan_finding& finding, Output* out) {
  PutCertificate(finding.certificate, out);
  out->Put(": ");
  if (IsAboutAll(finding.place)) {
    out->Put(finding.place == ORTHOLAN_NAME_LIST          ? "its alternative names cannot be read: "
             : finding.place == ORTHOLAN_NAME_CONSTRAINTS ? "its name constraints cannot be used: "
                                                          : "");
    return out->Put(SentenceOf(finding.reason));
  }
  PutNameOf(finding, out);
  switch (finding.reason) {
    case ORTHOLAN_REASON_EXCLUDED:
      out->Put(" is in an excluded subtree");
      break;
    case ORTHOLAN_REASON_NOT_PERMITTED:
      out->Put(" is in no permitted subtree");
      break;
    default:
      out->Put(" cannot be held against the constraints");
      break;
  }
  PutAuthority(finding, out);
  if (finding.verdict == ORTHOLAN_VERDICT_NO) return;
  out->Put(": ");
  out->Put(SentenceOf(finding.reason));
}

}  // namespace Ortholan::strict
