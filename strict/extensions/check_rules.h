// The rules that names and extensions are held against: one table.
//
//   {"path-length-without-ca", "4.2.1.9", "...", kCertificates, Scope::kExtension,
//    "2.5.29.19", PathLengthWithoutCa}
#ifndef ORTHOLAN_STRICT_EXTENSIONS_CHECK_RULES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_CHECK_RULES_H_

#include "strict/names/attribute_types.h"

namespace Ortholan::strict {

struct CheckCase;

// Kinds of documents, and the entries of a CRL, added.
enum : uint8_t {
  kCertificates = 1,
  kRequests = 2,
  kLists = 4,
  kEntries = 8,
  kForSubjects = kCertificates | kRequests,
  kAll = kForSubjects | kLists,
  kAllAndEntries = kAll | kEntries,
};

// What a rule is asked about, each in turn.
enum class Scope : uint8_t {
  kEncoding,       // the whole, be it readable or not
  kDocument,       // the whole, which is readable
  kName,           // subject and issuer
  kEachExtension,  // whatever it is
  kExtension,      // that of the rule's identifier
};

struct CheckRule {
  const char* name;
  const char* section;  // of RFC 5280, of others "RFC 3779 2.2.3.6"; "" for that of the extension
  const char* sentence;
  uint8_t kinds;
  Scope scope;
  OidConstant oid;  // of kExtension, and of an extension that is missing
  // Adds a fault for each place where the rule is broken.
  void (*look)(const CheckCase& at);
};

struct CheckRules {
  const CheckRule* first;
  size_t count;
};
CheckRules AllRules();

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_CHECK_RULES_H_
