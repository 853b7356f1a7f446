#include "strict/general_names/host.h"

#include <algorithm>

namespace Ortholan::strict {
namespace {

// What stands in labels; bits of kLabelCharacters.
enum : uint8_t { kLetterDigitHyphen = 1, kUnderscore = 2, kOther = 4 };

struct CharacterTable {
  uint8_t bits[256];
};

constexpr CharacterTable MakeCharacters() {
  CharacterTable table = {};
  for (int c = 0; c < 0x80; ++c) {
    if (IsAsciiLetter(c) || IsAsciiDigit(c) || c == '-') table.bits[c] = kLetterDigitHyphen;
  }
  table.bits[static_cast<int>('_')] = kUnderscore;
  for (uint8_t& bits : table.bits) bits = bits != 0 ? bits : uint8_t{kOther};
  table.bits[static_cast<int>('.')] = 0;
  return table;
}

constexpr CharacterTable kLabelCharacters = MakeCharacters();

// Why a character cannot stand in a label.
ortholan_reason FaultOfCharacter(char c) {
  if (c == '_') return ORTHOLAN_REASON_HOST_UNDERSCORE;
  if (c == '*') return ORTHOLAN_REASON_HOST_WILDCARD;
  if (static_cast<uint8_t>(c) >= 0x80) return ORTHOLAN_REASON_HOST_UNICODE;
  return ORTHOLAN_REASON_HOST_CHARACTER;
}

class HostChecker {
 public:
  HostChecker(std::string_view host, uint32_t choices, Refusal* refusal)
      : host_(host), choices_(choices), refusal_(refusal) {}

  bool Check() {
    if (host_.empty()) return RefuseAt(ORTHOLAN_REASON_HOST_EMPTY, 0);
    const std::string_view labels = WithoutTrailingDot(host_);
    if (labels.size() != host_.size() && (choices_ & kTrailingDot) == 0 && !labels.empty() &&
        labels.back() != '.') {
      return RefuseAt(ORTHOLAN_REASON_HOST_TRAILING_DOT, labels.size());
    }
    size_t start = 0;
    for (;;) {
      const size_t end = std::min(labels.find('.', start), labels.size());
      if (!CheckLabel(start, end)) return false;
      if (end == labels.size()) break;
      start = end + 1;
    }
    if (labels.size() > kMaxHostOctets) return RefuseAt(ORTHOLAN_REASON_HOST_LONG, kMaxHostOctets);
    if (labels.find_first_not_of("0123456789", start) == std::string_view::npos) {
      return RefuseAt(ORTHOLAN_REASON_HOST_NUMERIC, start);
    }
    return true;
  }

 private:
  bool CheckLabel(size_t start, size_t end) {
    if (start == end) return RefuseAt(ORTHOLAN_REASON_HOST_EMPTY_LABEL, start);
    const int allowed = kLetterDigitHyphen | ((choices_ & kUnderscores) != 0 ? kUnderscore : 0);
    for (size_t i = start; i < end; ++i) {
      if ((kLabelCharacters.bits[static_cast<uint8_t>(host_[i])] & allowed) == 0) {
        return RefuseAt(FaultOfCharacter(host_[i]), i);
      }
    }
    if (end - start > kMaxLabelOctets) {
      return RefuseAt(ORTHOLAN_REASON_HOST_LONG_LABEL, start + kMaxLabelOctets);
    }
    if ((choices_ & kEdgeHyphens) != 0) return true;
    if (host_[start] == '-') return RefuseAt(ORTHOLAN_REASON_HOST_HYPHEN, start);
    if (host_[end - 1] == '-') return RefuseAt(ORTHOLAN_REASON_HOST_HYPHEN, end - 1);
    return true;
  }
  bool RefuseAt(ortholan_reason reason, size_t at) {
    return RefuseText(refusal_, reason, host_.substr(at));
  }

  std::string_view host_;
  uint32_t choices_;
  Refusal* refusal_;
};

// Where in a label a host was read to. A state is how far a character's word of next states has to
// be shifted, so that nothing but one shift waits for the state before.
enum : uint32_t { kLabelStart = 0, kInside = 5, kBehindHyphen = 10, kWrong = 15 };
constexpr uint32_t kStateMask = 31;

// The states behind a character, by those in front of it.
constexpr uint32_t NextStates(uint32_t label_start, uint32_t inside, uint32_t behind_hyphen) {
  return label_start << kLabelStart | inside << kInside | behind_hyphen << kBehindHyphen |
         kWrong << kWrong;
}

struct NextStateTable {
  uint32_t words[256];
};

constexpr NextStateTable MakeNextStates(bool has_underscores) {
  NextStateTable table = {};
  for (int c = 0; c < 0x100; ++c) {
    const bool is_inner = c < 0x80 && (IsAsciiLetter(c) || IsAsciiDigit(c));
    table.words[c] = is_inner || (c == '_' && has_underscores)
                         ? NextStates(kInside, kInside, kInside)
                         : NextStates(kWrong, kWrong, kWrong);
  }
  table.words[static_cast<int>('-')] = NextStates(kWrong, kBehindHyphen, kBehindHyphen);
  table.words[static_cast<int>('.')] = NextStates(kWrong, kLabelStart, kWrong);
  return table;
}

constexpr NextStateTable kNextStates[] = {MakeNextStates(false), MakeNextStates(true)};

}  // namespace

bool IsPlainlyHost(std::string_view host, uint32_t choices) {
  const uint32_t* const next = kNextStates[(choices & kUnderscores) != 0 ? 1 : 0].words;
  const auto behind = [next](uint32_t state, char c) {
    return next[static_cast<uint8_t>(c)] >> (state & kStateMask);
  };
  uint32_t state = kLabelStart;
  const char* at = host.data();
  const char* const end = at + host.size();
  for (; end - at >= 4; at += 4) {
    state = behind(behind(behind(behind(state, at[0]), at[1]), at[2]), at[3]);
  }
  for (; at != end; ++at) state = behind(state, *at);
  return (state & kStateMask) == kInside && !IsAsciiDigit(host.back()) &&
         host.size() <= kMaxLabelOctets;
}

bool CheckHostClosely(std::string_view host, uint32_t choices, Refusal* refusal) {
  return HostChecker(host, choices, refusal).Check();
}

bool CheckHostPattern(std::string_view pattern, uint32_t choices, Refusal* refusal) {
  std::string_view base;
  if (!TakeWildcard(pattern, &base)) return CheckHost(pattern, choices, refusal);
  if (!CheckHost(base, choices, refusal)) return false;
  if (!BehindFirstLabel(WithoutTrailingDot(base)).empty()) return true;
  return RefuseText(refusal, ORTHOLAN_REASON_HOST_WILDCARD, pattern);
}

ortholan_reason FaultOfHostPattern(std::string_view pattern, uint32_t choices) {
  Refusal refusal;
  CheckHostPattern(pattern, choices, &refusal);
  return refusal.reason;
}

}  // namespace Ortholan::strict
