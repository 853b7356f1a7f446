// Name constraints from the octets of both certificates.
#include <ortholan/strict.hpp>

#include "bench/chains.h"
#include "bench/measure.h"

namespace Bench {
namespace {

bool Permitted(const Chain& chain) {
  const ortholan_octets octets[] = {ortholan::Octets(chain.leaf),
                                    ortholan::Octets(chain.authority)};
  ortholan_verdict verdict = ORTHOLAN_VERDICT_CANNOT_TELL;
  size_t count = 0;
  ortholan_permits(octets, 2, nullptr, &verdict, nullptr, 0, &count);
  return verdict == ORTHOLAN_VERDICT_YES;
}

void AddCases() {
  const Chain usual = UsualChain();
  const Chain refused = UsualRefusedChain();
  const Chain large = LargeChain(kManyCount);
  Add({kConstraints, "Ortholan", [=] { return Permitted(usual) && !Permitted(refused); }},
      [=] { return Permitted(usual); });
  Add({kManyConstraints, "Ortholan", [=] { return Permitted(large); }},
      [=] { return Permitted(large); });
}

const Registration registration("Ortholan", "", AddCases);

}  // namespace
}  // namespace Bench
