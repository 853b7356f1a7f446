#include <ortholan/cert_extension.h>

#include <algorithm>

#include "bytes/byte_view.h"
#include "foundation/blob_view.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

constexpr DWORD kEncodings = X509_ASN_ENCODING | PKCS_7_ASN_ENCODING;
constexpr DWORD kLengthField = 4;

// By size, then by unsigned bytes.
bool IsLess(ByteView a, ByteView b) {
  if (a.size != b.size) return a.size < b.size;
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
}

}  // namespace

CertExtension::CertExtension() : critical(0) {}
CertExtension::CertExtension(const CertExtension& other) = default;
CertExtension::CertExtension(CertExtension&& other) noexcept = default;

CertExtension::CertExtension(const CERT_EXTENSION& extension)
    : critical(extension.fCritical), value(extension.Value) {
  oid = extension.pszObjId;
}

CertExtension& CertExtension::operator=(const CertExtension& other) {
  if (this != &other) *this = CertExtension(other);
  return *this;
}

CertExtension& CertExtension::operator=(CertExtension&& other) noexcept = default;

CertExtension& CertExtension::operator=(const CERT_EXTENSION& extension) {
  return *this = CertExtension(extension);
}

CertExtension::~CertExtension() = default;

bool CertExtension::operator==(const CertExtension& other) const {
  return oid == other.oid && critical == other.critical && value == other.value;
}

bool CertExtension::operator!=(const CertExtension& other) const {
  return oid != other.oid && critical != other.critical && value != other.value;
}

bool CertExtension::operator<(const CertExtension& other) const {
  return IsLess(ViewOf(oid), ViewOf(other.oid)) && critical < other.critical &&
         IsLess(ViewOf(value), ViewOf(other.value));
}

bool CertExtension::operator>(const CertExtension& other) const { return other < *this; }

// Through a local on both ways: the structure may lie in the value that is replaced, and a decoded
// one keeps pointers into its own buffer, which moves as a whole.
bool CertExtension::EncodeData(void* structInfo, const char* structType) {
  DWORD size = 0;
  if (!CryptEncodeObject(kEncodings, structType, structInfo, nullptr, &size)) return false;
  IdentObj encoded(nullptr, size);
  const bool done = CryptEncodeObject(kEncodings, structType, structInfo, encoded.pbData, &size);
  value = std::move(encoded);
  return done;
}

bool CertExtension::DecodeData(IdentObj& out, const char* structType) {
  DWORD size = 0;
  if (!CryptDecodeObject(kEncodings, structType, value.pbData, value.cbData, 0, nullptr, &size)) {
    return false;
  }
  IdentObj decoded(nullptr, size);
  const bool done = CryptDecodeObject(kEncodings, structType, value.pbData, value.cbData, 0,
                                      decoded.pbData, &size);
  out = std::move(decoded);
  return done;
}

DWORD CertExtension::GetObjectSize() const {
  return oid.GetObjectSize() + value.GetObjectSize() + kLengthField;
}

}  // namespace Ortholan
