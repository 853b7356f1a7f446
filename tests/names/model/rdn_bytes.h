// RDNs of any type, as octets.

#ifndef ORTHOLAN_TESTS_NAMES_MODEL_RDN_BYTES_H_
#define ORTHOLAN_TESTS_NAMES_MODEL_RDN_BYTES_H_

#include <string>

#include "tests/names/name_answers.h"

namespace Ortholan::testing {

// One attribute, from the identifier's content in hex and the value's whole encoding.
inline std::string RdnOf(const char* oid, const std::string& value) {
  return Tlv(0x31, Tlv(0x30, Tlv(0x06, Octets(oid)) + value));
}

// Two attributes: a common name and a unit.
inline std::string TwoValuedRdn() {
  return Tlv(0x31, Octets("30 08 06 03 55 04 03 0C 01 61 30 08 06 03 55 04 0B 0C 01 62"));
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_NAMES_MODEL_RDN_BYTES_H_
