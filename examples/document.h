// Everything that `show` tells about a certificate, a request or a revocation list, whichever way
// it is printed.
#ifndef ORTHOLAN_EXAMPLES_DOCUMENT_H_
#define ORTHOLAN_EXAMPLES_DOCUMENT_H_

#include <string>
#include <string_view>
#include <vector>

#include "examples/der.h"
#include "examples/extensions.h"
#include "examples/kinds.h"
#include "examples/name_text.h"
#include "examples/name_tree.h"
#include "examples/strict_names.h"

namespace Example {

// Something to recognise a document by.
struct Fact {
  const char* label;   // for a person
  const char* member;  // of JSON
  std::string text;
  bool isNumber = false;
};

struct NameReading {
  const char* role;  // "subject", "issuer"
  std::string_view octets;
  NameText text;
  NameTree tree;
  StrictName strict;
};

struct Document {
  Kind kind = Kind::kCertificate;
  std::vector<Fact> facts;
  std::vector<NameReading> names;
  std::vector<ExtensionReading> extensions;
  std::string refusal;              // why it is no DER, or not the fields of its kind
  std::vector<std::string> faults;  // what in these could not be read
};

// Views into `der`; throws Failure for octets that are none of the three.
Document ReadDocument(std::string_view der);

// The document itself, without what may stand behind it in a TRUSTED CERTIFICATE. Throws Failure
// where there is none.
std::string_view FirstElement(std::string_view octets);

// The entries of a revocation list; none of anything else.
std::vector<Der> RevokedEntries(std::string_view der);

// The names of a certificate alone, whole encodings: subject and issuer. Throws Failure.
std::vector<std::string_view> ReadCertificateNames(std::string_view der);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_DOCUMENT_H_
