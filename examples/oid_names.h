// What types of other names (RFC 5280 4.2.1.6) are called.
#ifndef ORTHOLAN_EXAMPLES_OID_NAMES_H_
#define ORTHOLAN_EXAMPLES_OID_NAMES_H_

#include <string>

namespace Example {

// The name that its standard gives it, or the identifier itself.
std::string OidName(const std::string& oid);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_OID_NAMES_H_
