// A leaf and an authority with name constraints, for everybody who holds one against the other.
#ifndef ORTHOLAN_BENCH_CHAINS_H_
#define ORTHOLAN_BENCH_CHAINS_H_

#include <cstddef>
#include <string>
#include <vector>

namespace Bench {

struct Chain {
  std::string leaf;
  std::string authority;
};

// A leaf that names the hosts, under an authority with the subtrees. Keys and signatures are such
// that every library reads the certificates (RFC 8410).
Chain MakeChain(const std::vector<std::string>& hosts, const std::vector<std::string>& permitted,
                const std::vector<std::string>& excluded);

// Ten hosts under three permitted and two excluded subtrees: permitted.
Chain UsualChain();
// The same, but the last of the hosts is excluded.
Chain UsualRefusedChain();
// `count` hosts, each in one of `count` permitted subtrees.
Chain LargeChain(size_t count);

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_CHAINS_H_
