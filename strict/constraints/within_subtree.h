// Whether a name is within a subtree of its form (RFC 5280 4.2.1.10, RFC 4985 4, RFC 9598 6).
//
//   host.example.org    example.org     kInside
//   *.example.org       a.example.org   kOverlap: one of the hosts that "*" stands for
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_WITHIN_SUBTREE_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_WITHIN_SUBTREE_H_

#include <ortholan/strict/base.h>

namespace Ortholan::strict {

struct ConstrainedName;
struct Subtree;

// What a subtree says of a name.
enum class Holding : uint8_t {
  kOutside,
  kOverlap,  // some hosts that a wildcard stands for are inside
  kInside,
  kUnknown,
};

// Holds a name without fault against a subtree of its form. `*reason` is set for kUnknown.
Holding Hold(const Subtree& subtree, const ConstrainedName& name, ortholan_reason* reason);

// The same for the hosts alone, of a tree, of what is below a host, or of one host.
Holding HoldHost(const Subtree& subtree, const ConstrainedName& name);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_WITHIN_SUBTREE_H_
