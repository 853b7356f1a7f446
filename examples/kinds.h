// What an encoding is, told by its shape, and which command is for it.
#ifndef ORTHOLAN_EXAMPLES_KINDS_H_
#define ORTHOLAN_EXAMPLES_KINDS_H_

#include <string>
#include <string_view>

namespace Example {

enum class Kind {
  kUnknown,
  kCertificate,
  kRequest,         // PKCS #10, RFC 2986
  kRevocationList,  // RFC 5280 5
  kPkcs7,           // ContentInfo with SignedData, RFC 5652
  kName,
  kExtension,
  kExtensions,
  kGeneralName,
  kGeneralNames,
};

// By tags down to the level that tells, not by values: what is told to be a certificate need not
// be readable as one.
Kind KindOf(std::string_view octets);

// What `show` takes apart.
bool IsDocument(Kind kind);

// "a certificate"
const char* KindText(Kind kind);

// Throws the Failure that names the right command for octets that are of another kind than
// `wanted`; returns where they are of it or of none.
void RefuseOther(std::string_view octets, Kind wanted);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_KINDS_H_
