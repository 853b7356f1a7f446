// The ten extensions of a usual certificate of a TLS server, and how this library takes them apart
// into views.
#ifndef ORTHOLAN_BENCH_EXTENSION_LIST_H_
#define ORTHOLAN_BENCH_EXTENSION_LIST_H_

#include <cstddef>
#include <string>

namespace Bench {

inline constexpr size_t kTlsExtensions = 10;

// The list, in DER.
std::string TlsExtensions();

// Reads the list and each value by its own function; how many were read.
size_t ReadExtensions(const std::string& list);

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_EXTENSION_LIST_H_
