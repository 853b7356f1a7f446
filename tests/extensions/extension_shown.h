// What tests of extensions compare with.
#ifndef ORTHOLAN_TESTS_EXTENSIONS_EXTENSION_SHOWN_H_
#define ORTHOLAN_TESTS_EXTENSIONS_EXTENSION_SHOWN_H_

#include <ortholan/cert_extension.h>

#include <string>

#include "tests/support/hex.h"

namespace Ortholan::testing {

inline constexpr DWORD kUntouched = 7777;
inline constexpr DWORD kCorrupt = 0x80093103;

// "2.5.29.15 1 03 02"
inline std::string Shown(const CertExtension& extension) {
  return std::string(AsText(extension.oid)) + ' ' + std::to_string(extension.critical) + ' ' +
         Hex(extension.value);
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_EXTENSIONS_EXTENSION_SHOWN_H_
