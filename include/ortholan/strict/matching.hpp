// Whether names are the same, subtrees, and keys for maps and databases (RFC 5280 7.1).
//
//   const ortholan::Match match = ortholan::MatchNames(issuer, subject, ortholan::kRfc5280);
//   if (match.verdict() != ortholan::Verdict::kYes) std::cerr << match.Sentence() << '\n';
//
//   std::unordered_set<ortholan::MatchKey> trusted;
//   trusted.insert(ortholan::MatchKey::Of(name).value());
#ifndef ORTHOLAN_STRICT_MATCHING_HPP_
#define ORTHOLAN_STRICT_MATCHING_HPP_

#include <ortholan/strict/matching.h>

#include <functional>
#include <ortholan/strict/base.hpp>

namespace ortholan {

// By which rule attribute values are the same, and whether the order of RDNs counts. The words are
// told in <ortholan/strict/matching.h>.
class MatchRule {
 public:
  constexpr explicit MatchRule(int32_t word) : word_(word) {}
  constexpr int32_t word() const { return word_; }

 private:
  int32_t word_;
};
inline constexpr MatchRule kRfc5280{ORTHOLAN_MATCH_RFC5280};
inline constexpr MatchRule kAsciiCase{ORTHOLAN_MATCH_ASCII_CASE};
inline constexpr MatchRule kOctets{ORTHOLAN_MATCH_OCTETS};

struct AnyOrder {};
inline constexpr AnyOrder kAnyOrder{};
// `kRfc5280 | kAnyOrder`: for lists that people write by hand, never for a verdict about
// certificates.
constexpr MatchRule operator|(MatchRule rule, AnyOrder) {
  return MatchRule(rule.word() | ORTHOLAN_MATCH_ANY_ORDER);
}

// A verdict about two names with its reason. Views into the names: valid as long as they are.
class Match {
 public:
  explicit Match(const ortholan_match& match) : match_(match) {}

  Verdict verdict() const { return static_cast<Verdict>(match_.verdict); }
  // Only a yes is.
  bool is_yes() const { return match_.verdict == ORTHOLAN_VERDICT_YES; }
  ortholan_reason reason() const { return match_.reason; }
  // Which name the reason is about, and where.
  const ortholan_match& details() const { return match_; }
  // One English sentence without a full stop.
  std::string Sentence() const {
    std::string text;
    WithRoom(&text, [this](char* out, size_t room, size_t* size) {
      return ortholan_match_sentence(&match_, out, room, size);
    });
    return text;
  }

 private:
  ortholan_match match_;
};

// Whether two encoded Names are the same.
inline Match MatchNames(Octets first, Octets second, MatchRule rule = kRfc5280) {
  ortholan_match match;
  ortholan_match_names(first, second, rule.word(), &match);
  return Match(match);
}

// Whether the name begins with the RDNs of the subtree; not with kAnyOrder.
inline Match IsWithin(Octets subtree, Octets name, MatchRule rule = kRfc5280) {
  ortholan_match match;
  ortholan_name_within(subtree, name, rule.word(), &match);
  return Match(match);
}

// Octets that are the same exactly for names that are the same. In an ordered container the names
// within a subtree lie from its key to the key's Bound(), which is not one of them.
class MatchKey {
 public:
  // Fails for what cannot be read as a Name.
  static Result<MatchKey> Of(Octets name, MatchRule rule = kRfc5280) {
    Result<std::string> octets =
        MadeBy<std::string>([&](char* out, size_t room, size_t* size, Refusal* refusal) {
          return ortholan_match_key(name, rule.word(), reinterpret_cast<uint8_t*>(out), room, size,
                                    refusal);
        });
    if (!octets) return octets.refusal();
    return MatchKey(std::move(*octets));
  }
  // A key that was stored as octets.
  explicit MatchKey(std::string octets) : octets_(std::move(octets)) {}

  const std::string& octets() const { return octets_; }
  uint64_t Hash() const { return ortholan_match_hash(Octets(octets_)); }
  // Whether the key is that of a name within the subtree; by keys of one rule, without kAnyOrder.
  bool IsWithin(const MatchKey& subtree) const {
    return octets_.compare(0, subtree.octets_.size(), subtree.octets_) == 0;
  }
  // Behind the keys of all names within, and before all other keys that are greater.
  MatchKey Bound() const { return MatchKey(octets_ + '\xFF'); }

  friend bool operator==(const MatchKey& a, const MatchKey& b) { return a.octets_ == b.octets_; }
  friend bool operator!=(const MatchKey& a, const MatchKey& b) { return !(a == b); }
  friend bool operator<(const MatchKey& a, const MatchKey& b) { return a.octets_ < b.octets_; }

 private:
  std::string octets_;
};

// The preparation of RFC 4518 for caseIgnoreMatch: UTF-8 in, prepared UTF-8 out.
inline Result<std::string> PrepareText(std::string_view text) {
  return MadeBy<std::string>([text](char* out, size_t room, size_t* size, Refusal* refusal) {
    return ortholan_prepare_text(ToText(text), out, room, size, refusal);
  });
}

}  // namespace ortholan

template <>
struct std::hash<ortholan::MatchKey> {
  size_t operator()(const ortholan::MatchKey& key) const noexcept {
    return static_cast<size_t>(key.Hash());
  }
};

#endif  // ORTHOLAN_STRICT_MATCHING_HPP_
