// Taking certificates out of files and apart, with the library's ASN.1 routines alone.
#ifndef ORTHOLAN_EXAMPLES_CERTIFICATE_H_
#define ORTHOLAN_EXAMPLES_CERTIFICATE_H_

#include <ortholan/ident_obj.h>

#include <cstddef>
#include <functional>
#include <list>
#include <string>

namespace Example {

// The number of a certificate, from 1, its octets, and where in the file it ends.
using CertificateFound =
    std::function<void(std::size_t number, const std::string& der, std::size_t position)>;
// The number of what cannot be read, and a description.
using CertificateBad = std::function<void(std::size_t number, const std::string& what)>;

// What RFC 5280 4.1 puts into a certificate and this program shows.
struct Certificate {
  Ortholan::IdentObj issuer;
  Ortholan::IdentObj subject;
  std::list<Ortholan::IdentObj> extensions;  // one record each
};

// Calls `found` for each certificate in a file: PEM blocks, other blocks and the text around them
// left out, or DER, one certificate behind the other. A place that cannot be read as either goes to
// `bad`, and the next follows. Returns how many there were, good and bad.
std::size_t ForEachCertificate(const std::string& file, const CertificateFound& found,
                               const CertificateBad& bad);

// Throws Failure for octets that are no certificate.
Certificate ReadCertificate(const std::string& der);

// The children of a constructed element; throws Failure, with `what`, where it is none.
std::list<Ortholan::IdentObj> Children(const Ortholan::IdentObj& element, const char* what);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_CERTIFICATE_H_
