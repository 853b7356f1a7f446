// What RFC 5280 forbids in names and extensions, in C++.
//
//   for (const ortholan::Fault& fault : ortholan::Check(der).value()) {
//     std::cout << fault.sentence << " (" << fault.section << ")\n";
//   }
#ifndef ORTHOLAN_STRICT_CHECK_HPP_
#define ORTHOLAN_STRICT_CHECK_HPP_

#include <ortholan/strict/check.h>

#include <new>
#include <ortholan/strict/base.hpp>
#include <vector>

namespace ortholan {

// One fault. `extension` and `part` are views; texts are static.
using Fault = ortholan_fault;

// All faults of a certificate, a request or a CRL; views into `der`. Refused for what is none of
// the three.
inline Result<std::vector<Fault>> Check(Octets der) {
  std::vector<Fault> faults(16);
  size_t count = 0;
  Refusal refusal;
  ortholan_reason reason = ortholan_check(der, faults.data(), faults.size(), &count, &refusal);
  if (count > faults.size()) {
    faults.resize(count);
    reason = ortholan_check(der, faults.data(), faults.size(), &count, &refusal);
  }
  if (reason == ORTHOLAN_REASON_MEMORY) throw std::bad_alloc();
  if (reason != ORTHOLAN_REASON_NONE) return refusal;
  faults.resize(count);
  return faults;
}

// All rules.
inline std::vector<ortholan_check_rule> CheckRules() {
  std::vector<ortholan_check_rule> rules;
  ortholan_check_rule rule;
  while (ortholan_check_rule_at(rules.size(), &rule) == ORTHOLAN_REASON_NONE) rules.push_back(rule);
  return rules;
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_CHECK_HPP_
