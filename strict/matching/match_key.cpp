#include "strict/matching/match_key.h"

#include "strict/matching/name_forms.h"
#include "strict/matching/rdn_forms.h"

namespace Ortholan::strict {
namespace {

// The first octet of a key; no rule has 0, so that a key is never empty zeros.
constexpr uint8_t kFirstRule = 0x01;
constexpr uint8_t kAnyOrderBit = 0x10;

uint64_t Mix(uint64_t hash, uint64_t word) {
  constexpr uint64_t kFactor = 0x9E3779B97F4A7C15;  // 2^64 by the golden ratio
  hash = (hash ^ word) * kFactor;
  return hash ^ hash >> 32;
}

uint64_t WordAt(const uint8_t* octets, size_t count) {
  uint64_t word = 0;
  for (size_t i = 0; i < count; ++i) word |= uint64_t{octets[i]} << (8 * i);
  return word;
}

}  // namespace

void PutMatchKey(const NameView& name, MatchRule rule, RdnOrder order, PreparedText* out) {
  const auto first = static_cast<uint8_t>(kFirstRule + static_cast<uint8_t>(rule));
  if (order == RdnOrder::kAsWritten) {
    out->push_back(first);
    RdnWalk walk(name);
    for (RdnView rdn; walk.Next(&rdn);) PutRdn(rdn, rule, out);
    return;
  }
  out->push_back(first | kAnyOrderBit);
  const NameForms forms(name, rule);
  for (const NameForms::Entry& entry : forms) {
    const std::string_view octets = forms.OctetsOf(entry);
    WriteBytes(out->Extend(octets.size()), AsBytes(octets.data(), octets.size()));
  }
}

uint64_t HashOf(ByteView octets) {
  constexpr size_t kWord = 8;
  uint64_t hash = Mix(0, octets.size);
  size_t at = 0;
  for (; octets.size - at >= kWord; at += kWord) hash = Mix(hash, WordAt(octets.data + at, kWord));
  if (at != octets.size) hash = Mix(hash, WordAt(octets.data + at, octets.size - at));
  return Mix(hash, 0);
}

}  // namespace Ortholan::strict
