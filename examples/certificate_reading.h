// Everything that `show` tells about a certificate, whichever way it is printed.
#ifndef ORTHOLAN_EXAMPLES_CERTIFICATE_READING_H_
#define ORTHOLAN_EXAMPLES_CERTIFICATE_READING_H_

#include <ortholan/ident_obj.h>

#include <list>
#include <optional>
#include <string>

#include "examples/failure.h"
#include "examples/general_names.h"
#include "examples/name_text.h"
#include "examples/name_tree.h"

namespace Example {

struct NameReading {
  NameText text;
  NameTree tree;
};

struct ExtensionReading {
  Ortholan::IdentObj record;  // its whole encoding
  bool isRead = false;        // whether what follows is there
  std::string oid;
  const char* name = nullptr;  // null for one that this program does not know
  bool isCritical = false;
  Ortholan::IdentObj value;
  std::optional<GeneralNamesReading> generalNames;  // for those that hold such
};

struct CertificateReading {
  NameReading subject;
  NameReading issuer;
  std::list<ExtensionReading> extensions;
  std::list<Failure> faults;  // what in these could not be read
};

// Throws Failure for octets that are no certificate.
CertificateReading ReadWholeCertificate(const std::string& der);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_CERTIFICATE_READING_H_
