// Name constraints with a verdict and its reasons, in C++ (RFC 5280 4.2.1.10 and 6.1).
//
//   const ortholan::Permission permission = ortholan::Permits({leaf, intermediate, root});
//   if (!permission) std::cerr << permission.findings.front().Sentence() << "\n";
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_HPP_
#define ORTHOLAN_STRICT_CONSTRAINTS_HPP_

#include <ortholan/strict/constraints.h>

#include <new>
#include <ortholan/strict/base.hpp>
#include <string>
#include <vector>

namespace ortholan {

// One reason why names are not permitted, or why that cannot be told. Its octets are those that
// were judged.
struct Finding : ortholan_finding {
  Finding() : ortholan_finding{} {}
  Finding(const ortholan_finding& finding) : ortholan_finding(finding) {}

  // One English sentence without a full stop.
  std::string Sentence() const {
    std::string text;
    WithRoom(&text, [this](char* out, size_t room, size_t* size) {
      return ortholan_finding_sentence(this, out, room, size);
    });
    return text;
  }
};

// A verdict with its reasons; true for Verdict::kYes alone.
struct [[nodiscard]] Permission {
  Verdict verdict = Verdict::kCannotTell;
  std::vector<Finding> findings;

  explicit operator bool() const { return verdict == Verdict::kYes; }
};

// What may be chosen.
struct PermitOptions {
  uint64_t budget = ORTHOLAN_DEFAULT_BUDGET;  // comparisons of a name with a subtree
  size_t most_findings = 1;                   // with one the search ends at the first refusal
};

namespace internal {

// Throws std::bad_alloc where there is no memory.
template <class Call>
Permission Judge(const PermitOptions& options, Call call) {
  Permission permission;
  const ortholan_permit_options chosen = {options.budget};
  std::vector<ortholan_finding> found(options.most_findings);
  ortholan_verdict verdict = ORTHOLAN_VERDICT_CANNOT_TELL;
  size_t count = 0;
  if (call(&chosen, &verdict, found.data(), found.size(), &count) == ORTHOLAN_REASON_MEMORY) {
    throw std::bad_alloc();
  }
  permission.verdict = static_cast<Verdict>(verdict);
  permission.findings.assign(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(count));
  return permission;
}

}  // namespace internal

// Holds the names of each certificate of a chain, from the leaf up, against the constraints of
// those above it. An empty chain cannot be told.
inline Permission Permits(const std::vector<Octets>& chain, const PermitOptions& options = {}) {
  const std::vector<ortholan_octets> octets(chain.begin(), chain.end());
  return internal::Judge(options, [&octets](auto... rest) {
    return ortholan_permits(octets.data(), octets.size(), rest...);
  });
}

// The same for loose parts: one extension's value, one Name, the value of one alternative-name
// extension.
inline Permission PermitsNames(Octets constraints, Octets subject, Octets alternative_names,
                               const PermitOptions& options = {}) {
  return internal::Judge(options, [=](auto... rest) {
    return ortholan_permits_names(constraints, subject, alternative_names, rest...);
  });
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_HPP_
