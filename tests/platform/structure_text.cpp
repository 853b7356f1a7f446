#include "tests/platform/structure_text.h"

#include <ortholan/platform.h>

#include <cstdint>
#include <vector>

namespace Ortholan::testing {
namespace {

class Description {
 public:
  Description(const void* room, std::size_t size)
      : room_(static_cast<const BYTE*>(room)), size_(size) {}

  bool points_out() const { return points_out_; }

  std::string Of(const int& number) { return std::to_string(number); }
  std::string Of(const LPSTR& text) { return Text(text); }
  std::string Of(const CRYPT_DATA_BLOB& blob) { return Hex(blob.pbData, blob.cbData); }
  std::string Of(const CRYPT_BIT_BLOB& bits) {
    return Hex(bits.pbData, bits.cbData) + "/" + std::to_string(bits.cUnusedBits);
  }
  std::string Of(const FILETIME& time) {
    SYSTEMTIME t;
    if (!FileTimeToSystemTime(&time, &t)) return "no time";
    return Joined("-", {t.wYear, t.wMonth, t.wDay}) + " " +
           Joined(":", {t.wHour, t.wMinute, t.wSecond, t.wMilliseconds});
  }
  std::string Of(const CERT_NAME_VALUE& value) {
    return std::to_string(value.dwValueType) + ":" + Of(value.Value);
  }
  std::string Of(const CERT_RDN_ATTR& attr) {
    return Text(attr.pszObjId) + "=" + Of(CERT_NAME_VALUE{attr.dwValueType, attr.Value});
  }
  std::string Of(const CERT_RDN& rdn) { return List(rdn.cRDNAttr, rdn.rgRDNAttr); }
  std::string Of(const CERT_NAME_INFO& name) { return List(name.cRDN, name.rgRDN); }
  std::string Of(const CERT_EXTENSION& extension) {
    return Text(extension.pszObjId) + (extension.fCritical ? " critical " : " ") +
           Of(extension.Value);
  }
  std::string Of(const CERT_EXTENSIONS& i) { return List(i.cExtension, i.rgExtension); }
  std::string Of(const CRYPT_SEQUENCE_OF_ANY& i) { return List(i.cValue, i.rgValue); }
  std::string Of(const CRYPT_ALGORITHM_IDENTIFIER& i) {
    return Text(i.pszObjId) + " " + Of(i.Parameters);
  }
  std::string Of(const CRYPT_ATTRIBUTE& i) { return Text(i.pszObjId) + List(i.cValue, i.rgValue); }
  std::string Of(const CRYPT_ATTRIBUTES& i) { return List(i.cAttr, i.rgAttr); }
  std::string Of(const CERT_BASIC_CONSTRAINTS_INFO& i) {
    return Of(i.SubjectType) + Number(" path ", i.fPathLenConstraint, i.dwPathLenConstraint) +
           List(i.cSubtreesConstraint, i.rgSubtreesConstraint);
  }
  std::string Of(const CERT_BASIC_CONSTRAINTS2_INFO& i) {
    return (i.fCA ? "CA" : "end entity") +
           Number(", path ", i.fPathLenConstraint, i.dwPathLenConstraint);
  }
  std::string Of(const CERT_ENHKEY_USAGE& i) {
    return List(i.cUsageIdentifier, i.rgpszUsageIdentifier);
  }
  std::string Of(const CERT_ALT_NAME_ENTRY& entry) {
    switch (entry.dwAltNameChoice) {
      case CERT_ALT_NAME_OTHER_NAME:
        CheckInside(entry.pOtherName, sizeof(CERT_OTHER_NAME));
        return "other:" + Text(entry.pOtherName->pszObjId) + "=" + Of(entry.pOtherName->Value);
      case CERT_ALT_NAME_RFC822_NAME:
        return "mail:" + Text(entry.pwszRfc822Name);
      case CERT_ALT_NAME_DNS_NAME:
        return "dns:" + Text(entry.pwszDNSName);
      case CERT_ALT_NAME_DIRECTORY_NAME:
        return "name:" + Of(entry.DirectoryName);
      case CERT_ALT_NAME_URL:
        return "url:" + Text(entry.pwszURL);
      case CERT_ALT_NAME_IP_ADDRESS:
        return "ip:" + Of(entry.IPAddress);
      case CERT_ALT_NAME_REGISTERED_ID:
        return "id:" + Text(entry.pszRegisteredID);
      default:
        return "choice " + std::to_string(entry.dwAltNameChoice);
    }
  }
  std::string Of(const CERT_ALT_NAME_INFO& i) { return List(i.cAltEntry, i.rgAltEntry); }
  std::string Of(const CERT_AUTHORITY_KEY_ID_INFO& i) {
    return "key " + Of(i.KeyId) + " issuer " + Of(i.CertIssuer) + " serial " +
           Of(i.CertSerialNumber);
  }
  std::string Of(const CERT_AUTHORITY_KEY_ID2_INFO& i) {
    return "key " + Of(i.KeyId) + " issuer " + Of(i.AuthorityCertIssuer) + " serial " +
           Of(i.AuthorityCertSerialNumber);
  }
  std::string Of(const CERT_POLICY_QUALIFIER_INFO& i) {
    return Text(i.pszPolicyQualifierId) + " " + Of(i.Qualifier);
  }
  std::string Of(const CERT_POLICY_INFO& i) {
    return Text(i.pszPolicyIdentifier) + List(i.cPolicyQualifier, i.rgPolicyQualifier);
  }
  std::string Of(const CERT_POLICIES_INFO& i) { return List(i.cPolicyInfo, i.rgPolicyInfo); }
  std::string Of(const CERT_POLICY_QUALIFIER_USER_NOTICE& i) {
    std::string text;
    if (i.pNoticeReference != nullptr) {
      CheckInside(i.pNoticeReference, sizeof *i.pNoticeReference);
      const CERT_POLICY_QUALIFIER_NOTICE_REFERENCE& notice = *i.pNoticeReference;
      text = Text(notice.pszOrganization) + List(notice.cNoticeNumbers, notice.rgNoticeNumbers);
    }
    return text + "; " + Text(i.pszDisplayText);
  }
  std::string Of(const CERT_POLICY_MAPPING& i) {
    return Text(i.pszIssuerDomainPolicy) + "=" + Text(i.pszSubjectDomainPolicy);
  }
  std::string Of(const CERT_POLICY_MAPPINGS_INFO& i) {
    return List(i.cPolicyMapping, i.rgPolicyMapping);
  }
  std::string Of(const CERT_POLICY_CONSTRAINTS_INFO& i) {
    return "after" +
           Number(" explicit ", i.fRequireExplicitPolicy, i.dwRequireExplicitPolicySkipCerts) +
           Number(" unmapped ", i.fInhibitPolicyMapping, i.dwInhibitPolicyMappingSkipCerts);
  }
  std::string Of(const CERT_GENERAL_SUBTREE& i) {
    return Of(i.Base) + Number(" from ", i.dwMinimum != 0, i.dwMinimum) +
           Number(" to ", i.fMaximum, i.dwMaximum);
  }
  std::string Of(const CERT_NAME_CONSTRAINTS_INFO& i) {
    return List(i.cPermittedSubtree, i.rgPermittedSubtree) + " but " +
           List(i.cExcludedSubtree, i.rgExcludedSubtree);
  }
  std::string Of(const CRL_DIST_POINT_NAME& name) {
    if (name.dwDistPointNameChoice == CRL_DIST_POINT_FULL_NAME) return Of(name.FullName);
    return "choice " + std::to_string(name.dwDistPointNameChoice);
  }
  std::string Of(const CRL_DIST_POINT& i) {
    return Of(i.DistPointName) + " for " + Of(i.ReasonFlags) + " by " + Of(i.CRLIssuer);
  }
  std::string Of(const CRL_DIST_POINTS_INFO& i) { return List(i.cDistPoint, i.rgDistPoint); }
  std::string Of(const CRL_ISSUING_DIST_POINT& i) {
    return Of(i.DistPointName) + (i.fOnlyContainsUserCerts ? " users" : "") +
           (i.fOnlyContainsCACerts ? " CAs" : "") + " for " + Of(i.OnlySomeReasonFlags) +
           (i.fIndirectCRL ? " indirect" : "");
  }
  std::string Of(const CROSS_CERT_DIST_POINTS_INFO& i) {
    return std::to_string(i.dwSyncDeltaTime) + " " + List(i.cDistPoint, i.rgDistPoint);
  }
  std::string Of(const CERT_ACCESS_DESCRIPTION& i) {
    return Text(i.pszAccessMethod) + " " + Of(i.AccessLocation);
  }
  std::string Of(const CERT_AUTHORITY_INFO_ACCESS& i) { return List(i.cAccDescr, i.rgAccDescr); }
  std::string Of(const CERT_TEMPLATE_EXT& i) {
    return Text(i.pszObjId) + " " + std::to_string(i.dwMajorVersion) +
           Number(".", i.fMinorVersion, i.dwMinorVersion);
  }
  std::string Of(const CERT_QC_STATEMENT& i) {
    return Text(i.pszStatementId) + " " + Of(i.StatementInfo);
  }
  std::string Of(const CERT_QC_STATEMENTS_EXT_INFO& i) { return List(i.cStatement, i.rgStatement); }
  std::string Of(const CERT_BIOMETRIC_DATA& i) {
    const bool predefined = i.dwTypeOfBiometricDataChoice == CERT_BIOMETRIC_PREDEFINED_DATA_CHOICE;
    return (predefined ? std::to_string(i.dwPredefined) : Text(i.pszObjId)) + " " +
           Of(i.HashedUrl.HashAlgorithm) + " " + Of(i.HashedUrl.Hash) + " " +
           Text(i.HashedUrl.pwszUrl);
  }
  std::string Of(const CERT_BIOMETRIC_EXT_INFO& i) {
    return List(i.cBiometricData, i.rgBiometricData);
  }

 private:
  template <class Item>
  std::string List(DWORD count, const Item* items) {
    CheckInside(items, count * sizeof(Item));
    std::string text = "[";
    for (DWORD i = 0; i < count && !points_out_; ++i) text += (i != 0 ? ", " : "") + Of(items[i]);
    return text + "]";
  }
  static std::string Number(const char* label, BOOL is_there, DWORD number) {
    return is_there ? label + std::to_string(number) : "";
  }
  static std::string Joined(const char* separator, const std::vector<WORD>& numbers) {
    std::string text;
    for (const WORD number : numbers) {
      text += (text.empty() ? "" : separator) + std::to_string(number);
    }
    return text;
  }
  std::string Hex(const BYTE* octets, DWORD size) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    CheckInside(octets, size);
    std::string hex = size == 0 ? "-" : "";
    for (DWORD i = 0; i < size && !points_out_; ++i) {
      hex += kDigits[octets[i] >> 4];
      hex += kDigits[octets[i] & 0xF];
    }
    return hex;
  }
  // Terminated text; what is not printable ASCII as the number of its unit.
  template <class Char>
  std::string Text(const Char* text) {
    if (text == nullptr) return "-";
    std::string shown;
    for (;; ++text) {
      CheckInside(text, sizeof *text);
      if (points_out_ || *text == 0) return shown;
      const auto unit = static_cast<std::uint32_t>(*text) & (sizeof *text == 1 ? 0xFF : 0xFFFF);
      const bool plain = unit >= 0x20 && unit < 0x7F;
      shown += plain ? std::string(1, static_cast<char>(unit)) : "<" + std::to_string(unit) + ">";
    }
  }
  void CheckInside(const void* part, std::size_t size) {
    if (size == 0) return;
    const auto* const begin = static_cast<const BYTE*>(part);
    points_out_ = points_out_ || begin < room_ || begin > room_ + size_ ||
                  size > static_cast<std::size_t>(room_ + size_ - begin);
  }

  const BYTE* room_;
  std::size_t size_;
  bool points_out_ = false;
};

template <class Info>
std::string Describe(const void* room, std::size_t size) {
  Description description(room, size);
  const std::string text = description.Of(*static_cast<const Info*>(room));
  return description.points_out() ? text + "!" : text;
}

#define KIND(constant, structure) \
  { #constant, constant, Describe < structure> }
const StructureKind kKinds[] = {
    KIND(X509_EXTENSIONS, CERT_EXTENSIONS),
    KIND(X509_NAME_VALUE, CERT_NAME_VALUE),
    KIND(X509_NAME, CERT_NAME_INFO),
    KIND(X509_AUTHORITY_KEY_ID, CERT_AUTHORITY_KEY_ID_INFO),
    KIND(X509_ALTERNATE_NAME, CERT_ALT_NAME_INFO),
    KIND(X509_BASIC_CONSTRAINTS, CERT_BASIC_CONSTRAINTS_INFO),
    KIND(X509_KEY_USAGE, CRYPT_BIT_BLOB),
    KIND(X509_BASIC_CONSTRAINTS2, CERT_BASIC_CONSTRAINTS2_INFO),
    KIND(X509_CERT_POLICIES, CERT_POLICIES_INFO),
    KIND(PKCS_UTC_TIME, FILETIME),
    KIND(X509_UNICODE_NAME, CERT_NAME_INFO),
    KIND(PKCS_ATTRIBUTE, CRYPT_ATTRIBUTE),
    KIND(X509_UNICODE_NAME_VALUE, CERT_NAME_VALUE),
    KIND(X509_OCTET_STRING, CRYPT_DATA_BLOB),
    KIND(X509_BITS, CRYPT_BIT_BLOB),
    KIND(X509_INTEGER, int),
    KIND(X509_MULTI_BYTE_INTEGER, CRYPT_INTEGER_BLOB),
    KIND(X509_ENUMERATED, int),
    KIND(X509_CHOICE_OF_TIME, FILETIME),
    KIND(X509_AUTHORITY_KEY_ID2, CERT_AUTHORITY_KEY_ID2_INFO),
    KIND(X509_AUTHORITY_INFO_ACCESS, CERT_AUTHORITY_INFO_ACCESS),
    KIND(X509_SEQUENCE_OF_ANY, CRYPT_SEQUENCE_OF_ANY),
    KIND(X509_CRL_DIST_POINTS, CRL_DIST_POINTS_INFO),
    KIND(X509_ENHANCED_KEY_USAGE, CERT_ENHKEY_USAGE),
    KIND(X509_MULTI_BYTE_UINT, CRYPT_UINT_BLOB),
    KIND(X509_QC_STATEMENTS_EXT, CERT_QC_STATEMENTS_EXT_INFO),
    KIND(X509_PKIX_POLICY_QUALIFIER_USERNOTICE, CERT_POLICY_QUALIFIER_USER_NOTICE),
    KIND(X509_ISSUING_DIST_POINT, CRL_ISSUING_DIST_POINT),
    KIND(X509_NAME_CONSTRAINTS, CERT_NAME_CONSTRAINTS_INFO),
    KIND(X509_POLICY_MAPPINGS, CERT_POLICY_MAPPINGS_INFO),
    KIND(X509_POLICY_CONSTRAINTS, CERT_POLICY_CONSTRAINTS_INFO),
    KIND(X509_CROSS_CERT_DIST_POINTS, CROSS_CERT_DIST_POINTS_INFO),
    KIND(X509_CERTIFICATE_TEMPLATE, CERT_TEMPLATE_EXT),
    KIND(X509_BIOMETRIC_EXT, CERT_BIOMETRIC_EXT_INFO),
    KIND(X509_OBJECT_IDENTIFIER, LPSTR),
    KIND(X509_ALGORITHM_IDENTIFIER, CRYPT_ALGORITHM_IDENTIFIER),
    KIND(X509_SUBJECT_DIR_ATTRS, CRYPT_ATTRIBUTES),
};
#undef KIND

}  // namespace

const StructureKind* FindStructureKind(const std::string& name) {
  for (const StructureKind& kind : kKinds) {
    if (name == kind.name) return &kind;
  }
  return nullptr;
}

}  // namespace Ortholan::testing
