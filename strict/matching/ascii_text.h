// White space of ASCII.
#ifndef ORTHOLAN_STRICT_MATCHING_ASCII_TEXT_H_
#define ORTHOLAN_STRICT_MATCHING_ASCII_TEXT_H_

#include <cstdint>

namespace Ortholan::strict {

// Space, tabulations, line ends and form feed.
constexpr bool IsAsciiBlank(uint8_t octet) {
  return octet == ' ' || static_cast<uint8_t>(octet - '\t') < 5;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_ASCII_TEXT_H_
