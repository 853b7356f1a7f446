// What RFC 5280 forbids in the names and extensions of a document, as text and as JSON.
#ifndef ORTHOLAN_EXAMPLES_FINDINGS_H_
#define ORTHOLAN_EXAMPLES_FINDINGS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "examples/kinds.h"

namespace Example {

struct Finding {
  std::string rule;       // "path-length-without-authority"
  std::string section;    // of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6"
  std::string what;       // one sentence, with the reason of a refusal
  std::string oid;        // of the extension that it is about; empty where it is about none
  std::string title;      // what to call the extension
  std::string_view part;  // the octets at fault; empty where something is missing
  std::string serial;     // of the entry of a revocation list that the part lies in
  std::string text;       // of a part that is a general name, or one attribute
};

struct Findings {
  Kind kind = Kind::kCertificate;
  std::vector<Finding> list;
};

// Views into `der`; throws Failure for what is no certificate, request or revocation list.
Findings ReadFindings(std::string_view der);

// A line for the document, and one for each finding.
std::string FindingsText(std::size_t number, const Findings& findings);
std::string FindingsJson(const std::string& path, std::size_t number, const Findings& findings);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_FINDINGS_H_
