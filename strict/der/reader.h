// The one reader of encodings: elements of DER as views (ITU-T X.690 8 to 11). Class, form and tag
// are checked together, lengths are definite and minimal, nothing is copied.
//
//   Reader fields(content, Leniency::kDer, &refusal);
//   ByteView type;
//   Element value;
//   if (!fields.Read(kOid, &type) || !fields.Read(&value) || !fields.End()) return false;
//
// A failure notes its place in the refusal and is returned; the reader is then used no further.
#ifndef ORTHOLAN_STRICT_DER_READER_H_
#define ORTHOLAN_STRICT_DER_READER_H_

#include "bytes/byte_view.h"
#include "strict/der/element.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

class Reader {
 public:
  Reader(ByteView in, Leniency leniency, Refusal* refusal)
      : rest_(in), leniency_(leniency), refusal_(refusal) {}

  bool AtEnd() const { return rest_.empty(); }
  ByteView rest() const { return rest_; }
  Leniency leniency() const { return leniency_; }
  // Whether the next element has this one identifier octet; false at the end.
  bool Sees(uint8_t identifier) const { return !rest_.empty() && rest_[0] == identifier; }

  // The next element, whatever it is.
  bool Read(Element* element) { return ReadInline(element); }
  // The same within the caller, for the loops that read most: the compiler would call it there.
  [[gnu::always_inline]] bool ReadInline(Element* element) {
    // One identifier octet and a length of one octet, all there: nearly every element.
    Extent extent = {2, 0};
    if (rest_.size >= 2 && (rest_[0] & kLongTag) != kLongTag && rest_[1] < 0x80 &&
        rest_[1] <= rest_.size - 2) {
      extent.length = rest_[1];
    } else {
      extent = ReadExtent(rest_, leniency_, refusal_);
      if (extent.header == 0) return false;
    }
    element->identifier = rest_[0];
    element->content = {rest_.data + extent.header, extent.length};
    element->bytes = {rest_.data, extent.header + extent.length};
    rest_ = rest_.From(extent.header + extent.length);
    return true;
  }
  // The next element, which must have the identifier; its content.
  bool Read(uint8_t identifier, ByteView* content) {
    Element element;
    if (!Sees(identifier)) return RefuseHere(ORTHOLAN_REASON_IDENTIFIER, identifier);
    if (!Read(&element)) return false;
    *content = element.content;
    return true;
  }
  // The same with the whole element.
  bool Read(uint8_t identifier, Element* element) {
    if (!Sees(identifier)) return RefuseHere(ORTHOLAN_REASON_IDENTIFIER, identifier);
    return Read(element);
  }
  // Enters a constructed element of indefinite length, which is none of DER (8.1.3.6): what it
  // holds follows, and 00 00 behind it. False, with nothing read, where the next element is no
  // such.
  bool EnterIndefinite(ByteView* identifier);
  // Nothing may be left.
  bool End() { return AtEnd() || RefuseHere(ORTHOLAN_REASON_LEFT_OVER); }

  // Refuses what stands at the reader's place.
  bool RefuseHere(ortholan_reason reason, uint32_t expected = 0) {
    return Refuse(
        refusal_,
        AtEnd() && reason == ORTHOLAN_REASON_IDENTIFIER ? ORTHOLAN_REASON_TRUNCATED : reason,
        rest_.data, rest_.size, expected);
  }
  // Refuses what stands at `at`, a place of the same input.
  bool RefuseAt(ortholan_reason reason, const uint8_t* at, uint32_t expected = 0) {
    const uint8_t* const end = rest_.end();
    return Refuse(refusal_, reason, at, at < end ? static_cast<size_t>(end - at) : 0, expected);
  }
  Refusal* refusal() const { return refusal_; }

 private:
  // Octets of an element.
  struct Extent {
    size_t header;  // 0 where it was refused
    size_t length;
  };

  // Of the element at the front of `in`. All by value, so that a reader lives in registers.
  static Extent ReadExtent(ByteView in, Leniency leniency, Refusal* refusal);
  bool ReadExtent(Extent* extent);
  bool ReadTag(size_t* header);
  bool ReadLength(size_t* header, size_t* length);

  ByteView rest_;
  Leniency leniency_;
  Refusal* refusal_;
};

// Reads one element that is the whole of `in`.
bool ReadWhole(ByteView in, uint8_t identifier, Leniency leniency, ByteView* content,
               Refusal* refusal);

using ElementCheck = bool (*)(const Element& element, Leniency leniency, Refusal* refusal);

// Checks the headers of everything inside a value of any type, at most kMaxNesting levels deep, and
// each element by `check` where there is one.
bool CheckNested(const Element& element, Leniency leniency, Refusal* refusal,
                 ElementCheck check = nullptr);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_READER_H_
