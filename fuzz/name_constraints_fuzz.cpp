// Name constraints of strangers: any octets as constraints, subject and alternative names, and
// subtrees and names made of any octets.
#include <ortholan/strict/constraints.h>

#include <string>

#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"
#include "tests/support/der.h"

namespace Ortholan::fuzzing {
namespace {

ortholan_octets OctetsOf(const std::string& octets) {
  return {reinterpret_cast<const uint8_t*>(octets.data()), octets.size()};
}

ortholan_verdict Ask(const std::string& constraints, const std::string& subject,
                     const std::string& names, uint64_t budget) {
  const ortholan_permit_options options = {budget};
  ortholan_verdict verdict = ORTHOLAN_VERDICT_NO;
  ortholan_finding findings[3];
  size_t count = 0;
  LAW(ortholan_permits_names(OctetsOf(constraints), OctetsOf(subject), OctetsOf(names), &options,
                             &verdict, findings, 3, &count) == ORTHOLAN_REASON_NONE);
  LAW((count == 0) == (verdict == ORTHOLAN_VERDICT_YES));
  for (size_t i = 0; i < count; ++i) {
    char text[64];
    size_t size = 0;
    const ortholan_reason reason =
        ortholan_finding_sentence(&findings[i], text, sizeof text, &size);
    LAW(size != 0 && (reason == ORTHOLAN_REASON_NONE) == (size <= sizeof text));
  }
  if (count != 0) LAW(findings[0].verdict == verdict);
  return verdict;
}

// Up to eight elements [n] of short texts of the input; subtrees stand in a SEQUENCE each.
std::string List(Input* input, bool areSubtrees) {
  std::string list;
  for (size_t i = 1 + input->Below(8); i != 0; --i) {
    const uint8_t kinds[] = {0x81, 0x82, 0x86, 0x87, 0x88, 0xA4, 0xA0};
    const std::string name = testing::Tlv(input->Pick(kinds), input->Bytes(input->Below(40)));
    list += areSubtrees ? testing::Tlv(0x30, name) : name;
  }
  return list;
}

}  // namespace

void FuzzNameConstraints(const uint8_t* data, size_t size) {
  Input input(data, size);
  if (input.Flag()) {
    const std::string constraints = input.ShortText();
    const std::string subject = input.ShortText();
    Ask(constraints, subject, input.Rest(), 0);
    return;
  }
  const std::string permitted = List(&input, true);
  const std::string excluded = List(&input, true);
  const std::string names = testing::Tlv(0x30, List(&input, false));
  const std::string wide = testing::Tlv(0x30, testing::Tlv(0xA0, permitted));
  const std::string both =
      testing::Tlv(0x30, testing::Tlv(0xA0, permitted) + testing::Tlv(0xA1, excluded));
  const ortholan_verdict with_both = Ask(both, {}, names, 0);
  // What is excluded besides never permits, nor does a budget that ends.
  LAW(with_both != ORTHOLAN_VERDICT_YES || Ask(wide, {}, names, 0) == ORTHOLAN_VERDICT_YES);
  LAW(Ask(both, {}, names, 2) != ORTHOLAN_VERDICT_YES || with_both == ORTHOLAN_VERDICT_YES);
  // The tables of long lists answer as the walk over short ones does.
  std::string often;
  for (int i = 0; i < 40; ++i) often += permitted;
  LAW(Ask(testing::Tlv(0x30, testing::Tlv(0xA0, often)), {}, names, 0) == Ask(wide, {}, names, 0));
}

}  // namespace Ortholan::fuzzing
