#include "examples/certificate.h"

#include <ortholan/asn1.h>
#include <ortholan/platform.h>
#include <ortholan/status.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include "examples/failure.h"
#include "examples/pem.h"

namespace Example {

using namespace Ortholan;

namespace {

// Certificates have a few kilobytes. A list of children takes some forty times the octets of the
// smallest ones.
constexpr std::size_t kMaxCertificateBytes = std::size_t{4} << 20;

constexpr BYTE kSequence = 0x30;
constexpr BYTE kVersion = 0xA0;
constexpr BYTE kExtensions = 0xA3;

const BYTE* Octets(std::string_view text) { return reinterpret_cast<const BYTE*>(text.data()); }

// The size of the element at the front of `rest`, at most all of it; 0 where that cannot be told.
std::size_t ElementSize(std::string_view rest) {
  ASNT_ASN_STRUCT_INFO info;
  const auto size = static_cast<DWORD>(rest.size());
  if (ASNTGetStructInfo(info, Octets(rest), size) != 0) return 0;
  const auto header = static_cast<std::size_t>(info.content - Octets(rest));
  DWORD length = info.length;
  if (length == 0xFFFFFFFF) {
    DWORD status = 0;
    length =
        ASNTGetIndefiniteLength(info.content, static_cast<DWORD>(size - header), true, &status);
    if (status != 0) return 0;
  }
  return length <= rest.size() - header ? header + length : 0;
}

std::size_t ForEachDer(std::string_view file, const CertificateFound& found,
                       const CertificateBad& bad) {
  const std::size_t whole = file.size();
  std::size_t number = 0;
  while (!file.empty()) {
    const std::size_t size = Octets(file)[0] == kSequence ? ElementSize(file) : 0;
    if (size == 0) {
      // Nothing says where a next one would begin.
      bad(++number, "neither PEM nor the start of a whole DER sequence");
      break;
    }
    const std::string der(file.substr(0, size));
    file.remove_prefix(size);
    found(++number, der, whole - file.size());
  }
  return number;
}

// The first octet of an encoding; 0 where there is none.
BYTE FirstOctet(const IdentObj& element) { return element.cbData != 0 ? element.pbData[0] : 0; }

// [3] EXPLICIT SEQUENCE OF Extension
std::list<IdentObj> ReadExtensions(const IdentObj& field) {
  const std::list<IdentObj> wrapped = Children(field, "the extensions");
  if (wrapped.size() != 1 || FirstOctet(wrapped.front()) != kSequence) {
    Fail(static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT), "the extensions are no sequence");
  }
  return Children(wrapped.front(), "the extensions");
}

}  // namespace

std::list<IdentObj> Children(const IdentObj& element, const char* what) {
  std::list<IdentObj> children;
  DWORD status = 0;
  ASNTGetSequence(children, element.pbData, element.cbData, &status);
  if (status != 0) Fail(ASNTStatusToWinError(status), std::string("cannot read ") + what);
  return children;
}

Certificate ReadCertificate(const std::string& der) {
  if (der.size() > kMaxCertificateBytes) {
    Fail(static_cast<DWORD>(CRYPT_E_ASN1_LARGE), "longer than 4 MiB");
  }
  std::list<IdentObj> parts =
      Children(IdentObj(der.data(), static_cast<DWORD>(der.size())), "the certificate");
  if (parts.empty()) Fail(static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT), "an empty certificate");

  std::list<IdentObj> fields = Children(parts.front(), "the certificate's fields");
  // Version 1 does without the version.
  if (!fields.empty() && FirstOctet(fields.front()) == kVersion) fields.pop_front();
  // Serial number, signature algorithm, issuer, validity, subject, public key.
  if (fields.size() < 6) Fail(static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT), "no certificate");

  Certificate certificate;
  certificate.issuer = *std::next(fields.begin(), 2);
  certificate.subject = *std::next(fields.begin(), 4);
  if (FirstOctet(certificate.issuer) != kSequence || FirstOctet(certificate.subject) != kSequence) {
    Fail(static_cast<DWORD>(CRYPT_E_ASN1_BADTAG), "no certificate: its names are no sequences");
  }
  const auto extensions =
      std::find_if(std::next(fields.begin(), 6), fields.end(),
                   [](const IdentObj& field) { return FirstOctet(field) == kExtensions; });
  if (extensions != fields.end()) certificate.extensions = ReadExtensions(*extensions);
  return certificate;
}

namespace {

// The last holds more octets behind the certificate.
constexpr std::string_view kLabels[] = {"CERTIFICATE", "X509 CERTIFICATE", "TRUSTED CERTIFICATE"};

}  // namespace

std::size_t ForEachCertificate(const std::string& file, const CertificateFound& found,
                               const CertificateBad& bad) {
  // The second octet of a certificate's encoding is a length above 127, and no text.
  const bool isDer = file.size() > 1 && Octets(file)[0] == kSequence && Octets(file)[1] >= 0x80;
  if (isDer || !HasPemBlock(file)) return ForEachDer(file, found, bad);
  std::size_t number = 0;
  ForEachPemBlock(file, [&](const PemBlock& block) {
    if (std::find(std::begin(kLabels), std::end(kLabels), block.label) == std::end(kLabels)) return;
    ++number;
    if (block.fault != nullptr) {
      bad(number, block.fault);
    } else {
      found(number, block.octets, block.end);
    }
  });
  return number;
}

}  // namespace Example
