#include "strict/extensions/identifier_names.h"

#include "strict/der/identifier.h"
#include "strict/extensions/oid_constant.h"
#include "strict/general_names/hex_text.h"

namespace Ortholan::strict {
namespace {

struct IdentifierName {
  OidConstant oid;
  std::string_view name;
};

constexpr IdentifierName kNames[] = {
    // Purposes of keys (RFC 5280 4.2.1.12 and others).
    {"1.3.6.1.5.5.7.3.1", "serverAuth"},
    {"1.3.6.1.5.5.7.3.2", "clientAuth"},
    {"1.3.6.1.5.5.7.3.3", "codeSigning"},
    {"1.3.6.1.5.5.7.3.4", "emailProtection"},
    {"1.3.6.1.5.5.7.3.8", "timeStamping"},
    {"1.3.6.1.5.5.7.3.9", "OCSPSigning"},
    {"1.3.6.1.5.5.7.3.17", "ipsecIKE"},
    {"1.3.6.1.5.5.7.3.21", "secureShellClient"},
    {"1.3.6.1.5.5.7.3.22", "secureShellServer"},
    {"1.3.6.1.5.5.7.3.36", "documentSigning"},
    {"2.5.29.37.0", "anyExtendedKeyUsage"},
    {"1.3.6.1.5.2.3.4", "pkinitClientAuth"},
    {"1.3.6.1.5.2.3.5", "pkinitKdc"},
    {"1.3.6.1.4.1.311.10.3.4", "encryptedFileSystem"},
    {"1.3.6.1.4.1.311.10.3.12", "microsoftDocumentSigning"},
    {"1.3.6.1.4.1.311.20.2.1", "enrollmentAgent"},
    {"1.3.6.1.4.1.311.20.2.2", "smartcardLogon"},
    // Access methods (RFC 5280 4.2.2).
    {"1.3.6.1.5.5.7.48.1", "ocsp"},
    {"1.3.6.1.5.5.7.48.2", "caIssuers"},
    {"1.3.6.1.5.5.7.48.3", "adTimeStamping"},
    {"1.3.6.1.5.5.7.48.5", "caRepository"},
    // Policies and their qualifiers (RFC 5280 4.2.1.4).
    {"2.5.29.32.0", "anyPolicy"},
    {"2.23.140.1.1", "extendedValidation"},
    {"2.23.140.1.2.1", "domainValidated"},
    {"2.23.140.1.2.2", "organizationValidated"},
    {"2.23.140.1.2.3", "individualValidated"},
    {"1.3.6.1.5.5.7.2.1", "cps"},
    {"1.3.6.1.5.5.7.2.2", "userNotice"},
};

}  // namespace

void PutDotted(ByteView oid, Output* out) {
  if (oid.size <= kMaxIdentifierOctets) {
    PutIdentifierText(oid, out);
  } else {
    out->Put('#');
    PutHex(oid, out);
  }
}

void PutIdentifierName(ByteView oid, Output* out) {
  for (const IdentifierName& row : kNames) {
    if (SameBytes(row.oid.view(), oid)) return out->Put(row.name);
  }
  PutDotted(oid, out);
}

bool PutIdentifierOf(std::string_view text, Output* out) {
  for (const IdentifierName& row : kNames) {
    if (row.name == text) {
      out->Put(row.oid.view());
      return true;
    }
  }
  std::string octets;
  size_t fault = 0;
  if (!text.empty() && text[0] == '#' && AppendHexOctets(text.substr(1), &octets, &fault)) {
    const ByteView oid = AsBytes(octets.data(), octets.size());
    out->Put(oid);
    return IsIdentifier(oid);
  }
  return PutIdentifier(text, out);
}

}  // namespace Ortholan::strict
