// GUIDs as Windows shows them, from the order of octets in which it stores them: the first three
// groups have their least significant octet first.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_GUID_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_GUID_H_

#include <cstddef>
#include <cstdint>

namespace Ortholan::strict {

constexpr size_t kGuidOctets = 16;

// Which octet stands at each place of the text, and before which of them a hyphen.
constexpr uint8_t kGuidOrder[kGuidOctets] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
constexpr bool HasGuidHyphen(size_t place) {
  return place == 4 || place == 6 || place == 8 || place == 10;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_GUID_H_
