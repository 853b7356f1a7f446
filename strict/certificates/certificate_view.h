// A certificate, a certificate request or a CRL over borrowed octets (RFC 5280 4.1 and 5.1, RFC
// 2986 4): what is said of names and extensions. The outer shape is checked; names, keys and
// signatures are not read here. Nothing is allocated.
//
//   CertificateView certificate;
//   if (!CertificateView::Read(der, Leniency::kDer, &certificate, &refusal)) ...
//   NameView::Read(certificate.subject(), ...);
#ifndef ORTHOLAN_STRICT_CERTIFICATES_CERTIFICATE_VIEW_H_
#define ORTHOLAN_STRICT_CERTIFICATES_CERTIFICATE_VIEW_H_

#include "bytes/byte_view.h"
#include "strict/certificates/extensions_view.h"
#include "strict/der/element.h"

namespace Ortholan::strict {

class Reader;
struct Refusal;

enum class CertificateKind : int32_t { kCertificate = 1, kRequest = 2, kRevocationList = 3 };

class CertificateView {
 public:
  // Reads what is the whole of `der`, whichever of the three it is. `*certificate` changes only on
  // success.
  static bool Read(ByteView der, Leniency leniency, CertificateView* certificate, Refusal* refusal);

  CertificateKind kind() const { return kind_; }
  ByteView der() const { return der_; }
  // Encodings of the Names; without octets where the kind has none: a request has no issuer, a CRL
  // no subject.
  ByteView subject() const { return subject_; }
  ByteView issuer() const { return issuer_; }
  // Content of the INTEGER; a certificate's alone.
  ByteView serial() const { return serial_; }
  // The elements of notBefore and notAfter, of a CRL thisUpdate and nextUpdate; without octets
  // where there is none.
  ByteView not_before() const { return not_before_; }
  ByteView not_after() const { return not_after_; }
  // The SEQUENCE of entries of a CRL, which are not read here; without octets where there is none.
  ByteView revoked() const { return revoked_; }
  // Of a request those that its extensionRequest attribute asks for (RFC 2985 5.4.2).
  const ExtensionsView& extensions() const { return extensions_; }

 private:
  bool ReadBody(ByteView body, Leniency leniency, Refusal* refusal);
  bool ReadCertificate(Reader* fields);
  bool ReadRequest(Reader* fields);
  bool ReadRevocationList(Reader* fields);

  CertificateKind kind_ = CertificateKind::kCertificate;
  ByteView der_;
  ByteView subject_;
  ByteView issuer_;
  ByteView serial_;
  ByteView not_before_;
  ByteView not_after_;
  ByteView revoked_;
  ExtensionsView extensions_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_CERTIFICATE_VIEW_H_
