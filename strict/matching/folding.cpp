#include "strict/matching/folding.h"

namespace Ortholan::strict {
namespace {

// The significant octets of a text, one by one.
class FoldedText {
 public:
  FoldedText(ByteView text, const Folding& folding) : text_(text), folding_(folding) {
    SkipBlanks();
  }

  bool AtEnd() const { return at_ == text_.size; }
  uint16_t Front() const { return folding_.to[text_[at_]]; }
  void Advance() { ++at_; }
  // Passes blanks and what is dropped; tells whether there was a blank.
  bool SkipBlanks() {
    bool any = false;
    for (; !AtEnd() && IsSkipped(Front()); ++at_) any |= Front() == ' ';
    return any;
  }
  static bool IsSkipped(uint16_t folded) { return folded == ' ' || folded == Folding::kDropped; }

 private:
  ByteView text_;
  const Folding& folding_;
  size_t at_ = 0;
};

}  // namespace

bool MatchFolded(ByteView a, ByteView b, const Folding& folding) {
  FoldedText x(a, folding);
  FoldedText y(b, folding);
  for (;;) {
    while (!x.AtEnd() && !y.AtEnd() && x.Front() == y.Front() &&
           !FoldedText::IsSkipped(x.Front())) {
      x.Advance();
      y.Advance();
    }
    const bool blank_in_x = x.SkipBlanks();
    const bool blank_in_y = y.SkipBlanks();
    if (x.AtEnd() || y.AtEnd()) return x.AtEnd() && y.AtEnd();
    if (blank_in_x != blank_in_y || x.Front() != y.Front()) return false;
  }
}

void PutFolded(ByteView text, const Folding& folding, SmallBuffer<uint8_t, 512>* out) {
  FoldedText from(text, folding);
  uint8_t* const start = out->Extend(text.size);
  uint8_t* end = start;
  while (!from.AtEnd()) {
    *end++ = static_cast<uint8_t>(from.Front());
    from.Advance();
    if (from.SkipBlanks() && !from.AtEnd()) *end++ = ' ';
  }
  out->Truncate(out->size() - text.size + static_cast<size_t>(end - start));
}

}  // namespace Ortholan::strict
