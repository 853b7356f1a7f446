// What the values of extensions mean: each reader takes the content of the OCTET STRING, and throws
// Malformed for what is not of its form. RFC 5280 4.2 and 5.2, where nothing else is named.
#ifndef ORTHOLAN_EXAMPLES_EXTENSION_VALUES_H_
#define ORTHOLAN_EXAMPLES_EXTENSION_VALUES_H_

#include <string_view>

#include "examples/value.h"

namespace Example::ExtensionValues {

// Of one element.
Value Number(std::string_view value);
Value Octets(std::string_view value);
Value String(std::string_view value);
Value Strings(std::string_view value);
Value Nothing(std::string_view value);  // NULL
Value Oids(std::string_view value);
Value LeadingOids(std::string_view value);  // a list of structures that begin with an identifier

// Of one extension, or of several with the same form.
Value Names(std::string_view value);
Value KeyUsage(std::string_view value);
Value KeyPeriod(std::string_view value);
Value BasicConstraints(std::string_view value);
Value NameConstraints(std::string_view value);
Value DistributionPoints(std::string_view value);
Value IssuingPoint(std::string_view value);
Value AuthorityKey(std::string_view value);
Value InformationAccess(std::string_view value);
Value Policies(std::string_view value);
Value PolicyMappings(std::string_view value);
Value PolicyConstraints(std::string_view value);
Value TlsFeatures(std::string_view value);  // RFC 7633, numbers of TLS extensions
Value NetscapeType(std::string_view value);
Value Template(std::string_view value);

}  // namespace Example::ExtensionValues

#endif  // ORTHOLAN_EXAMPLES_EXTENSION_VALUES_H_
