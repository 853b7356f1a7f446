// Runs of octets by a table: how many at the front have nothing special about them.
//
//   out->Put(text.First(OrdinaryRun(text, kSpecial)));
#ifndef ORTHOLAN_BYTES_OCTET_RUN_H_
#define ORTHOLAN_BYTES_OCTET_RUN_H_

#include "bytes/byte_view.h"

namespace Ortholan {

// Octets at the front whose row in `table` is 0.
inline size_t OrdinaryRun(ByteView in, const uint8_t (&table)[256]) {
  constexpr size_t kStep = 4;
  const uint8_t* at = in.begin();
  const uint8_t* const end = in.end();
  while (static_cast<size_t>(end - at) >= kStep &&
         (table[at[0]] | table[at[1]] | table[at[2]] | table[at[3]]) == 0) {
    at += kStep;
  }
  while (at != end && table[*at] == 0) ++at;
  return static_cast<size_t>(at - in.begin());
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_OCTET_RUN_H_
