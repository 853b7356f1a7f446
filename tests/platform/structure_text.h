// Decoded structures of the platform as text, for rows of vectors. Every pointer is checked to stay
// inside the room that was decoded into.

#ifndef ORTHOLAN_TESTS_PLATFORM_STRUCTURE_TEXT_H_
#define ORTHOLAN_TESTS_PLATFORM_STRUCTURE_TEXT_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <string>

namespace Ortholan::testing {

struct StructureKind {
  const char* name;  // of the constant
  LPCSTR type;
  // Lists stand in brackets, octets are upper-case hexadecimal, "-" stands for none. "!" at the end
  // tells that something points out of the room.
  std::string (*describe)(const void* room, std::size_t size);
};

// Null for a name that is none of a constant.
const StructureKind* FindStructureKind(const std::string& name);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_PLATFORM_STRUCTURE_TEXT_H_
