#include "strict/extensions/oid_names.h"

#include "bytes/hex.h"
#include "bytes/oid_constant.h"
#include "strict/der/oid.h"

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
    // Statements about qualified certificates (RFC 3739 3.2.6, ETSI EN 319 412-5 4, TS 119 495 5).
    {"1.3.6.1.5.5.7.11.1", "qcsPkixQCSyntax-v1"},
    {"1.3.6.1.5.5.7.11.2", "qcsPkixQCSyntax-v2"},
    {"0.4.0.1862.1.1", "qcCompliance"},
    {"0.4.0.1862.1.2", "qcLimitValue"},
    {"0.4.0.1862.1.3", "qcRetentionPeriod"},
    {"0.4.0.1862.1.4", "qcSSCD"},
    {"0.4.0.1862.1.5", "qcPDS"},
    {"0.4.0.1862.1.6", "qcType"},
    {"0.4.0.1862.1.6.1", "qctEsign"},
    {"0.4.0.1862.1.6.2", "qctEseal"},
    {"0.4.0.1862.1.6.3", "qctWeb"},
    {"0.4.0.1862.1.7", "qcCClegislation"},
    {"0.4.0.19495.2", "psd2QcStatement"},
    {"0.4.0.19495.1.1", "pspAs"},
    {"0.4.0.19495.1.2", "pspPi"},
    {"0.4.0.19495.1.3", "pspAi"},
    {"0.4.0.19495.1.4", "pspIc"},
    {"0.4.0.194121.1.1", "semanticsIdNatural"},
    {"0.4.0.194121.1.2", "semanticsIdLegal"},
    // Attributes of subjects (RFC 3739 3.2.2).
    {"1.3.6.1.5.5.7.9.1", "dateOfBirth"},
    {"1.3.6.1.5.5.7.9.2", "placeOfBirth"},
    {"1.3.6.1.5.5.7.9.3", "gender"},
    {"1.3.6.1.5.5.7.9.4", "countryOfCitizenship"},
    {"1.3.6.1.5.5.7.9.5", "countryOfResidence"},
    // Reasons of a hold (RFC 3280 5.3.2), languages of proxy policies (RFC 3820 3.8.2).
    {"1.2.840.10040.2.1", "holdInstructionNone"},
    {"1.2.840.10040.2.2", "holdInstructionCallIssuer"},
    {"1.2.840.10040.2.3", "holdInstructionReject"},
    {"1.3.6.1.5.5.7.21.0", "anyLanguage"},
    {"1.3.6.1.5.5.7.21.1", "inheritAll"},
    {"1.3.6.1.5.5.7.21.2", "independent"},
    // Hashes (RFC 5754 2, RFC 3279 2.1), types of logotypes (RFC 9399 4.4.3).
    {"1.3.14.3.2.26", "sha1"},
    {"2.16.840.1.101.3.4.2.1", "sha256"},
    {"2.16.840.1.101.3.4.2.2", "sha384"},
    {"2.16.840.1.101.3.4.2.3", "sha512"},
    {"1.3.6.1.5.5.7.20.1", "loyalty"},
    {"1.3.6.1.5.5.7.20.2", "background"},
    {"1.3.6.1.5.5.7.20.3", "certImage"},
    // Windows.
    {"1.3.6.1.4.1.311.25.2.1", "ntdsObjectSid"},
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
