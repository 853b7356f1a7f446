// Whose certificate: any octets asked, and the laws of an answer. The input begins with the kind
// and the text of a question; behind it stand general names, or a whole certificate.
#include <algorithm>
#include <ortholan/strict.hpp>
#include <string>

#include "bytes/ascii.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"
#include "tests/support/der.h"

namespace Ortholan::fuzzing {
namespace {

using ortholan::Identity;
using ortholan::Octets;
using ortholan::Reference;

constexpr Reference (*kKinds[])(std::string_view text) = {
    Reference::Host, Reference::Address, Reference::Mailbox, Reference::Uri, Reference::Service};

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), ToAsciiLower<char>);
  return lower;
}

bool Matches(const std::string& names, const Reference& reference) {
  const auto identity = ortholan::IdentifyByNames(Octets(names), reference);
  return identity && identity->matches();
}

// A dNSName that matched is the host in some case of letters, or "*." and what stands behind the
// host's first label.
void CheckHostMatch(const Identity& identity, const std::string& names, const std::string& host) {
  LAW(identity.match().kind() == ortholan::NameKind::kDns);
  const std::string presented = Lower(identity.match().AsText());
  std::string asked = Lower(host);
  if (asked.back() == '.') asked.pop_back();
  LAW(presented == asked ||
      (presented.substr(0, 2) == "*." && presented.substr(1) == asked.substr(asked.find('.'))));
  LAW(Matches(names, Reference::Host(asked)));
}

// What is shown of a name is text without controls, and text that is taken is taken again.
void CheckText(Octets name) {
  const std::string text = ortholan::GeneralNameText(name);
  LAW(std::none_of(text.begin(), text.end(),
                   [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }));
  const auto read = ortholan::GeneralNameFromText(text, true);
  if (!read) return;
  const std::string again = ortholan::GeneralNameText(*read);
  LAW(ortholan::GeneralNameFromText(again, true).value() == *read);
}

void CheckNames(const std::string& elements, const std::string& text, const Reference& reference) {
  const std::string names = testing::Tlv(0x30, elements);
  const auto identity = ortholan::IdentifyByNames(Octets(names), reference);
  if (!identity) {
    LAW(identity.refusal().offset <= text.size());
    return;
  }
  const bool is_known = identity->verdict() != ortholan::Verdict::kCannotTell;
  LAW(identity->matches() == (identity->refusal().reason == ORTHOLAN_REASON_NONE));
  if (!is_known) return;
  const auto mismatches = identity->Mismatches();
  LAW(mismatches.size() + (identity->matches() ? 1 : 0) <= identity->name_count());
  LAW(identity->matches() || mismatches.size() == identity->name_count());
  for (const ortholan::Mismatch& mismatch : mismatches) CheckText(mismatch.name);
  if (!identity->matches()) return;
  // Names beside it, well-formed or not, take nothing away.
  LAW(Matches(testing::Tlv(0x30, "\x87\x01x" + elements + testing::Tlv(0x82, "x.example")),
              reference));
  if (reference.get()->kind == ORTHOLAN_REFERENCE_HOST) CheckHostMatch(*identity, names, text);
}

}  // namespace

void FuzzIdentity(const uint8_t* data, size_t size) {
  Input input(data, size);
  const auto make = input.Pick(kKinds);
  const std::string text = input.ShortText();
  const Reference reference = make(text);
  const std::string rest = input.Rest();
  CheckNames(rest, text, reference);
  const auto identity = ortholan::Identify(Octets(rest), reference);
  LAW(!identity || !identity->matches() || identity->name_count() != 0);
  const auto made = ortholan::GeneralNameFromText(rest, true);
  if (made) CheckText(*made);
}

}  // namespace Ortholan::fuzzing
