#include "strict/matching/preparation.h"

#include "bytes/letter_words.h"
#include "strict/der/string_value.h"
#include "strict/matching/folding.h"
#include "strict/matching/normalization.h"
#include "strict/matching/preparation_tables.h"

namespace Ortholan::strict {
namespace {

// Octets of output for one of input, and for what stands at the ends.
constexpr size_t kGrowth = 2;
constexpr size_t kEnds = 16;

// What becomes of U+0080 to U+00FF, as kFoldedPairs has it for those behind. Letters in lower case;
// signs as they are, but for blanks and what compatibility normalisation replaces.
struct LatinPairs {
  uint16_t rows[0x80];
};
constexpr LatinPairs MakeLatinPairs() {
  LatinPairs pairs = {};
  for (int point = 0xA1; point < 0x100; ++point) {
    const bool is_capital = point >= 0xC0 && point < 0xDF && point != 0xD7;
    const int folded = is_capital ? point + 0x20 : point;
    pairs.rows[point - 0x80] =
        static_cast<uint16_t>((0xC0 | folded >> 6) << 8 | 0x80 | (folded & 0x3F));
  }
  for (int point :
       {0xA8, 0xAA, 0xAD, 0xAF, 0xB2, 0xB3, 0xB4, 0xB5, 0xB8, 0xB9, 0xBA, 0xBC, 0xBD, 0xBE}) {
    pairs.rows[point - 0x80] = 0;
  }
  pairs.rows[0xDF - 0x80] = 's' << 8 | 's';
  return pairs;
}
constexpr LatinPairs kLatinPairs = MakeLatinPairs();

// The folded pair of the two octets, or 0.
inline uint16_t FoldedPair(const uint8_t* in) {
  if ((in[0] & 0xE0) != 0xC0 || (in[1] & 0xC0) != 0x80) return 0;
  const uint32_t point = (in[0] & 0x1Fu) << 6 | (in[1] & 0x3Fu);
  if (point >= kPairsFrom) return kFoldedPairs[point - kPairsFrom];
  return point >= 0x80 ? kLatinPairs.rows[point - 0x80] : 0;
}

// How far a text has been read and written.
struct Progress {
  const uint8_t* in;
  uint8_t* out;
  size_t blanks;  // read and not written yet: what follows tells whether they are insignificant
};

// What becomes of a character.
struct Step {
  enum Kind {
    kItself,
    kUndefined,
    kNothing,
    kBlank,
    kText,     // that of a mapping
    kCareful,  // a mapping that is looked at character by character
    kJoining,  // with what precedes
  };
  Kind kind;
  size_t size;                       // octets that are read
  const uint8_t* mapping = nullptr;  // its head
};

// A character of ASCII that is no blank and not dropped.
constexpr bool IsGraphic(uint8_t octet) { return static_cast<uint8_t>(octet - '!') <= '~' - '!'; }

// Writes the text behind the head, a short one with whatever follows it, which the next character
// overwrites.
inline uint8_t* PutMapping(uint8_t* out, const uint8_t* mapping) {
  const size_t size = *mapping & kMappingSize;
  std::memcpy(out, mapping + 1, kShortMapping);
  if (size > kShortMapping) std::memcpy(out, mapping + 1, size);
  return out + size;
}

// Two to four octets.
inline uint8_t* PutCharacter(uint8_t* out, const uint8_t* in, size_t size) {
  out[0] = in[0];
  out[1] = in[1];
  if (size > 2) out[2] = in[2];
  if (size > 3) out[3] = in[3];
  return out + size;
}

class Preparation {
 public:
  Preparation(std::string_view text, PreparedText* out)
      : begin_(reinterpret_cast<const uint8_t*>(text.data())),
        end_(begin_ + text.size()),
        start_(out->size()),
        out_(out) {}

  // On failure `*undefined_at` is set and the output as before.
  bool Run(size_t* undefined_at);

 private:
  bool Take(Progress* progress);
  bool TakeAscii(Progress* at, Progress* last) const;
  bool TakePairs(Progress* at, Progress* last) const;
  Step Look(const uint8_t* in) const;
  bool TakeSegment(Progress* progress);
  void AddToSegment(uint32_t scalar, uint16_t entry);
  void PutSegment(Progress* at);

  // Two octets for each one that is still to be read.
  size_t RoomFor(const uint8_t* in) const {
    return kGrowth * static_cast<size_t>(end_ - in) + kEnds;
  }
  // Blanks that turned out to stand between characters; those in front are written already.
  void PutBlanks(Progress* at) const {
    if (at->blanks == 0) return;
    at->blanks = 0;
    if (at->out == out_->data() + start_ + 1) return;
    *at->out++ = ' ';
    *at->out++ = ' ';
  }
  // 0 where the octets are no UTF-8.
  size_t ReadScalar(const uint8_t* in, uint32_t* scalar) const {
    const auto left = static_cast<size_t>(end_ - in);
    if (left >= 2 && in[0] >= 0xC2 && in[0] < 0xE0 && (in[1] & 0xC0) == 0x80) {
      *scalar = (in[0] & 0x1Fu) << 6 | (in[1] & 0x3Fu);
      return 2;
    }
    return ReadUtf8Scalar({in, left}, scalar);
  }

  const uint8_t* const begin_;
  const uint8_t* const end_;
  const size_t start_;
  PreparedText* const out_;
  Segment segment_;
};

bool Preparation::Run(size_t* undefined_at) {
  uint8_t* const room = out_->Extend(RoomFor(begin_));
  *room = ' ';
  Progress at = {begin_, room + 1, 0};
  if (!Take(&at)) {
    *undefined_at = static_cast<size_t>(at.in - begin_);
    out_->Truncate(start_);
    return false;
  }
  *at.out++ = ' ';
  out_->Truncate(static_cast<size_t>(at.out - out_->data()));
  return true;
}

// A run of characters of ASCII with the blank or what is dropped behind it; false where there is
// none.
inline bool Preparation::TakeAscii(Progress* at, Progress* last) const {
  const uint8_t* in = at->in;
  if (IsGraphic(*in)) {
    PutBlanks(at);
    uint8_t* out = at->out;
    for (; end_ - in >= kWordOctets; in += kWordOctets, out += kWordOctets) {
      const uint32_t word = LoadWord(in);
      if (!IsWordWithin(word, '!', '~')) break;
      const uint32_t lower = LowerWord(word);
      std::memcpy(out, &lower, sizeof lower);
    }
    while (in != end_ && IsGraphic(*in)) *out++ = ToAsciiLower(*in++);
    *last = {in - 1, out - 1, 0};
    *at = {in, out, 0};
    return true;
  }
  if (*in >= 0x80) return false;
  if (IsAsciiBlank(*in)) {
    *last = *at;
    ++at->blanks;
  }
  ++at->in;
  return true;
}

// A run of characters of two octets that stay two octets; false where there is none.
inline bool Preparation::TakePairs(Progress* at, Progress* last) const {
  const uint8_t* in = at->in;
  uint16_t folded = end_ - in >= 2 ? FoldedPair(in) : 0;
  if (folded == 0) return false;
  PutBlanks(at);
  uint8_t* out = at->out;
  for (; folded != 0; folded = end_ - in >= 2 ? FoldedPair(in) : 0) {
    out[0] = static_cast<uint8_t>(folded >> 8);
    out[1] = static_cast<uint8_t>(folded);
    in += 2;
    out += 2;
  }
  *last = {in - 2, out - 2, 0};
  *at = {in, out, 0};
  return true;
}

// By the entries below kFirstClass.
constexpr Step::Kind kKinds[] = {Step::kItself, Step::kUndefined, Step::kNothing, Step::kBlank};

inline Step Preparation::Look(const uint8_t* in) const {
  uint32_t scalar;
  const size_t size = ReadScalar(in, &scalar);
  const uint16_t entry = size != 0 ? EntryOf(scalar) : kUndefined;
  if (entry == kPlain) return {Step::kItself, size};
  if (entry < kFirstClass) return {kKinds[entry], size};
  if (entry < kFirstMapping) return {Step::kJoining, size};
  const uint8_t* const mapping = kMappings + (entry - kFirstMapping);
  if ((*mapping & kJoinsBefore) != 0) return {Step::kJoining, size};
  return {(*mapping & kNeedsCare) != 0 ? Step::kCareful : Step::kText, size, mapping};
}

// Characters are written one by one as long as each stands alone. One that does not takes the
// character before it back, and both go through normalisation with what follows.
bool Preparation::Take(Progress* progress) {
  Progress at = *progress;
  Progress last = at;  // before the last character
  while (at.in != end_) {
    if (TakeAscii(&at, &last) || TakePairs(&at, &last)) continue;
    const Step step = Look(at.in);
    switch (step.kind) {
      case Step::kItself:
        last = at;
        PutBlanks(&at);
        at.out = PutCharacter(at.out, at.in, step.size);
        break;
      case Step::kText:
        last = at;
        PutBlanks(&at);
        at.out = PutMapping(at.out, step.mapping);
        break;
      case Step::kBlank:
        last = at;
        ++at.blanks;
        break;
      case Step::kNothing:
        break;
      case Step::kUndefined:
        *progress = at;
        return false;
      case Step::kJoining:
        at = last;
        [[fallthrough]];
      case Step::kCareful:
        *progress = at;
        if (!TakeSegment(progress)) return false;
        last = at = *progress;
        continue;
    }
    at.in += step.size;
  }
  *progress = at;
  return true;
}

bool Preparation::TakeSegment(Progress* progress) {
  segment_.Clear();
  const uint8_t* in = progress->in;
  while (in != end_) {
    uint32_t scalar;
    const size_t size = ReadScalar(in, &scalar);
    const uint16_t entry = size != 0 ? EntryOf(scalar) : kUndefined;
    if (entry == kUndefined) {
      progress->in = in;
      return false;
    }
    if (entry != kNothing && segment_.size() != 0 && StandsAlone(entry)) break;
    AddToSegment(scalar, entry);
    in += size;
  }
  segment_.Compose();
  progress->in = in;
  PutSegment(progress);
  return true;
}

void Preparation::AddToSegment(uint32_t scalar, uint16_t entry) {
  if (entry == kNothing) return;
  if (entry == kBlank) return segment_.Add(' ');
  if (entry < kFirstMapping) return segment_.Add(scalar);
  const uint8_t* text = kMappings + (entry - kFirstMapping);
  size_t left = *text++ & kMappingSize;
  while (left != 0) {
    const size_t size = ReadUtf8Scalar({text, left}, &scalar);
    segment_.Add(scalar);
    text += size;
    left -= size;
  }
}

// A blank is significant where a mark stands on it (2.6.1).
void Preparation::PutSegment(Progress* at) {
  constexpr size_t kLongest = 4;
  const auto used = static_cast<size_t>(at->out - out_->data());
  out_->Truncate(used);
  at->out = out_->Extend(kLongest * segment_.size() + RoomFor(at->in));
  for (const Segment::Point& point : segment_) {
    if (point.scalar == ' ') {
      ++at->blanks;
      continue;
    }
    const bool keeps_blank = point.is_mark && at->blanks != 0;
    at->blanks -= keeps_blank ? 1 : 0;
    PutBlanks(at);
    if (keeps_blank) *at->out++ = ' ';
    at->out = WriteUtf8Scalar(at->out, point.scalar);
  }
}

}  // namespace

bool Prepare(std::string_view text, PreparedText* out, size_t* undefined_at) {
  return Preparation(text, out).Run(undefined_at);
}

}  // namespace Ortholan::strict
