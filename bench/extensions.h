// How each library takes the extensions of a certificate apart.
#ifndef ORTHOLAN_BENCH_EXTENSIONS_H_
#define ORTHOLAN_BENCH_EXTENSIONS_H_

#include <string>

#include "bench/extension_list.h"
#include "bench/measure.h"

namespace Bench {

// `read_all` takes the list and tells how many extensions it took apart.
template <class ReadAll>
void AddExtensions(const char* subject, ReadAll read_all) {
  const std::string list = TlsExtensions();
  Add({"10 extensions of a TLS certificate", subject,
       [=] { return read_all(list) == kTlsExtensions; }},
      [=] { return read_all(list); });
}

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_EXTENSIONS_H_
