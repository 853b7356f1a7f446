// The laws of comparison over three names put together from the input: sameness is an equivalence
// and is what keys say, subtrees are beginnings of keys, the string type of a text does not matter.
#include <string>

#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"
#include "strict/der/string_value.h"
#include "strict/matching/match_key.h"
#include "strict/matching/match_names.h"
#include "tests/support/der.h"

namespace Ortholan::fuzzing {
namespace {

using namespace strict;

constexpr size_t kNames = 3;
constexpr const char* kMatchedTypes[] = {"\x55\x04\x03", "\x55\x04\x0A",
                                         "\x09\x92\x26\x89\x93\xF2\x2C\x64\x01\x19",
                                         "\x2A\x86\x48\x86\xF7\x0D\x01\x09\x01"};
constexpr uint8_t kTags[] = {kUtf8String,    kPrintableString, kIA5String,       kBmpString,
                             kTeletexString, kUtf8String,      kUniversalString, kOctetString};
// What is likely to fold, join or be refused.
constexpr const char* kPieces[] = {"a",
                                   "A",
                                   " ",
                                   "  ",
                                   "e",
                                   "\xCC\x81",
                                   "\xC3\x89",
                                   "\xC3\xA9",
                                   "\xD0\x90",
                                   "\xE1\x84\x92",
                                   "\xE1\x85\xA1",
                                   "\xF0\x9F\x98\x80",
                                   "\xC2\xAD",
                                   "ss",
                                   "\xC3\x9F",
                                   "@"};

std::string Text(Input* input) {
  std::string text;
  for (size_t pieces = input->Below(6); pieces != 0; --pieces) text += input->Pick(kPieces);
  return input->Below(8) == 0 ? text + input->Bytes(input->Below(4)) : text;
}

// UTF-8 in units of two or four octets, as far as it is that.
std::string InUnits(const std::string& text, size_t unit) {
  std::string units;
  ByteView rest = AsBytes(text.data(), text.size());
  for (uint32_t scalar; !rest.empty();) {
    const size_t size = ReadUtf8Scalar(rest, &scalar);
    if (size == 0) break;
    for (size_t i = unit; i-- != 0;) units.push_back(static_cast<char>(scalar >> (8 * i)));
    rest = rest.From(size);
  }
  return units;
}

std::string Value(uint8_t tag, const std::string& text) {
  const size_t unit = tag == kBmpString ? 2 : tag == kUniversalString ? 4 : 0;
  return testing::Tlv(tag, unit != 0 ? InUnits(text, unit) : text);
}

std::string AttributeOf(const std::string& type, const std::string& value) {
  return testing::Tlv(kSequence, testing::Tlv(kOid, type) + value);
}

std::string Rdn(Input* input) {
  std::string attributes;
  for (size_t count = 1 + input->Below(3); count != 0; --count) {
    const std::string type = input->Pick(kMatchedTypes);
    const uint8_t tag = input->Pick(kTags);
    attributes += AttributeOf(type, Value(tag, Text(input)));
  }
  return testing::Tlv(kSet, attributes);
}

NameView Read(const std::string& der) {
  NameView name;
  LAW(NameView::Read(AsBytes(der.data(), der.size()), Leniency::kStructure, &name, nullptr));
  return name;
}

std::string KeyOf(const NameView& name, MatchRule rule, RdnOrder order) {
  PreparedText key;
  PutMatchKey(name, rule, order, &key);
  return std::string(key.begin(), key.end());
}

bool IsYes(const Match& match) { return match.verdict == ORTHOLAN_VERDICT_YES; }

void CheckPair(const NameView& a, const NameView& b, MatchRule rule, RdnOrder order) {
  const Match match = MatchNames(a, b, rule, order);
  LAW(match.verdict == MatchNames(b, a, rule, order).verdict);
  LAW((match.verdict == ORTHOLAN_VERDICT_YES) == (match.reason == ORTHOLAN_REASON_NONE));
  // Equality of keys is an equivalence, and so is sameness.
  const std::string key_a = KeyOf(a, rule, order);
  const std::string key_b = KeyOf(b, rule, order);
  LAW(IsYes(match) == (key_a == key_b));
  LAW(!SameBytes(a.der(), b.der()) || IsYes(match));
  if (order == RdnOrder::kAnyOrder) return;
  LAW(IsYes(MatchWithin(a, b, rule)) == (key_b.compare(0, key_a.size(), key_a) == 0));
}

// The same text in two string types that can hold it.
void CheckTypes(const std::string& text) {
  const auto name = [&](uint8_t tag) {
    return testing::Tlv(kSequence,
                        testing::Tlv(kSet, AttributeOf(kMatchedTypes[0], Value(tag, text))));
  };
  const std::string utf8 = name(kUtf8String);
  const std::string units = name(kUniversalString);
  const ByteView octets = AsBytes(text.data(), text.size());
  if (FindStringFault(kUtf8String, octets, true).reason != ORTHOLAN_REASON_NONE) return;
  const Match match = MatchNames(Read(utf8), Read(units), MatchRule::kRfc5280);
  LAW(IsYes(match) || match.reason == ORTHOLAN_REASON_VALUE_UNDEFINED);
}

}  // namespace

void FuzzMatching(const uint8_t* data, size_t size) {
  Input input(data, size);
  std::string names[kNames];
  for (std::string& name : names) {
    std::string rdns;
    for (size_t count = input.Below(4); count != 0; --count) rdns += Rdn(&input);
    name = testing::Tlv(kSequence, rdns);
  }
  CheckTypes(Text(&input));
  for (const MatchRule rule : {MatchRule::kRfc5280, MatchRule::kAsciiCase, MatchRule::kOctets}) {
    for (const RdnOrder order : {RdnOrder::kAsWritten, RdnOrder::kAnyOrder}) {
      for (size_t i = 0; i < kNames; ++i) {
        CheckPair(Read(names[i]), Read(names[(i + 1) % kNames]), rule, order);
        CheckPair(Read(names[i]), Read(names[i]), rule, order);
      }
    }
  }
}

}  // namespace Ortholan::fuzzing
