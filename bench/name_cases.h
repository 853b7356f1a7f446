// The cases on names that every library has, done by functions of its own.
#ifndef ORTHOLAN_BENCH_NAME_CASES_H_
#define ORTHOLAN_BENCH_NAME_CASES_H_

#include <string>

#include "bench/measure.h"
#include "bench/names.h"

namespace Bench {

// `both_ways` adds the cases from text to DER and back for attributes, under two names.
template <class BothWays>
void AddTextCases(BothWays both_ways) {
  both_ways(kTextToDer, kDerToText, SixAttributes());
  both_ways(kLargeToDer, kLargeToText, LargeValue(kLargeSize));
  both_ways(kManyToDer, kManyToText, ManyAttributes(kManyCount));
}

// `der_to_strings` takes a name apart into pairs of type and value.
template <class DerToStrings>
void AddPairCase(const char* subject, DerToStrings der_to_strings) {
  const Attributes six = SixAttributes();
  const std::string der = ToDer(six);
  Add({kDerToStrings, subject, [=] { return der_to_strings(der) == ToPairs(six); }},
      [=] { return der_to_strings(der); });
}

// `equal` tells whether two names are the same.
template <class Equal>
void AddCompareCase(const char* subject, Equal equal) {
  const std::string der = ToDer(SixAttributes());
  const std::string utf8 = ToDer(SixAttributes(), kUtf8String);
  const std::string other = ToDer(ManyAttributes(6));
  Add({kCompare, subject, [=] { return equal(der, utf8) && !equal(der, other); }},
      [=] { return equal(der, utf8); });
}

// The same where letter case and blanks are told apart.
template <class Equal>
void AddDisguisedCase(const char* subject, Equal equal) {
  const std::string der = ToDer(SixAttributes());
  const std::string disguised = ToDer(Disguised(SixAttributes()));
  const auto same = [=] { return equal(der, disguised); };
  Add({kCompareDisguised, subject, same}, same);
}

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_NAME_CASES_H_
