#include "strict/der/ber_value.h"

#include "bytes/der_identifier.h"
#include "bytes/der_length.h"
#include "bytes/nesting_limit.h"
#include "strict/der/any_value.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {
namespace {

// Tag numbers of universal types whose values may come in parts (8.6, 8.7, 8.23, 8.25): BIT STRING,
// OCTET STRING, ObjectDescriptor, UTF8String, the other character strings and the times.
constexpr uint32_t kTypesInParts = 1u << 3 | 1u << 4 | 1u << 7 | 1u << 12 | 0x5FFC0000u;

bool ComesInParts(uint8_t identifier) {
  const uint32_t number = identifier & kLongTag;
  return identifier < 0x40 && number != kLongTag && (kTypesInParts >> number & 1) != 0;
}

void Append(ByteView octets, std::string* to) { to->append(AsText(octets)); }

// The first identifier octet without the bit of the form.
uint8_t Primitive(ByteView identifier) {
  return static_cast<uint8_t>(identifier[0] & ~kConstructedBit);
}

// Sets the bits that a BIT STRING does not use to zero; content that is none stays as it is.
void ClearUnusedBits(std::string* content) {
  const auto unused = static_cast<uint8_t>(content->front());
  if (content->size() < 2 || unused > 7) return;
  content->back() = static_cast<char>(static_cast<uint8_t>(content->back()) & 0xFFu << unused);
}

std::string PrimitiveContent(const Element& element) {
  std::string content(AsText(element.content));
  if (element.identifier == kBoolean && content.size() == 1 && content[0] != 0) {
    content[0] = '\xFF';
  }
  if (element.identifier == kBitString && !content.empty()) ClearUnusedBits(&content);
  return content;
}

// Elements read one after the other, those inside them by recursion.
class Converter {
 public:
  explicit Converter(Refusal* refusal) : refusal_(refusal) {}

  // Appends the next element in DER.
  bool PutElement(Reader* in, std::string* der) {
    ByteView identifier;
    std::string content;
    if (!ReadContent(in, &identifier, &content)) return false;
    const bool joined = ComesInParts(identifier[0]);
    der->push_back(static_cast<char>(joined ? Primitive(identifier) : identifier[0]));
    Append(identifier.From(1), der);
    uint8_t length[1 + sizeof(size_t)];
    const uint8_t* const end = WriteLength(length, content.size());
    Append({length, static_cast<size_t>(end - length)}, der);
    der->append(content);
    return true;
  }

 private:
  bool ReadContent(Reader* in, ByteView* identifier, std::string* content) {
    if (in->EnterIndefinite(identifier)) return ReadInside(in, true, *identifier, content);
    Element element;
    if (in->Sees(0)) return in->RefuseHere(ORTHOLAN_REASON_FORM);
    if (!in->Read(&element)) return false;
    *identifier = element.bytes.First(IdentifierOctets(element.bytes));
    if (!element.constructed()) {
      *content = PrimitiveContent(element);
      return true;
    }
    Reader inside(element.content, Leniency::kLenient, refusal_);
    return ReadInside(&inside, false, *identifier, content);
  }

  // What a constructed element holds, up to the end or to what ends an indefinite length.
  bool ReadInside(Reader* in, bool indefinite, ByteView identifier, std::string* content) {
    if (depth_ == kMaxNesting)
      return in->RefuseAt(ORTHOLAN_REASON_DEPTH, identifier.data, kMaxNesting);
    ++depth_;
    const uint8_t part = Primitive(identifier) == kBitString ? kBitString : kOctetString;
    const bool joins = ComesInParts(identifier[0]);
    if (joins && part == kBitString) content->assign(1, '\0');
    bool done = true;
    while (done && !(indefinite ? PassEnd(in) : in->AtEnd())) {
      done = joins ? Join(in, part, content) : PutElement(in, content);
    }
    --depth_;
    return done;
  }

  static bool PassEnd(Reader* in) {
    Element end;
    return in->rest().size >= 2 && in->rest()[0] == 0 && in->rest()[1] == 0 && in->Read(&end);
  }

  // Appends the next part of a string, which may be in parts itself.
  bool Join(Reader* in, uint8_t type, std::string* whole) {
    const uint8_t* const place = in->rest().data;
    if (!in->Sees(type) && !in->Sees(type | kConstructedBit)) {
      return in->RefuseHere(ORTHOLAN_REASON_IDENTIFIER, type);
    }
    ByteView identifier;
    std::string part;
    if (!ReadContent(in, &identifier, &part)) return false;
    if (type == kBitString) {
      // Only the last one may have unused bits.
      if (part.empty() || static_cast<uint8_t>(part[0]) > 7 || whole->front() != 0) {
        return in->RefuseAt(ORTHOLAN_REASON_BIT_STRING, place);
      }
      whole->front() = part[0];
      part.erase(0, 1);
    }
    whole->append(part);
    return true;
  }

  Refusal* refusal_;
  size_t depth_ = 0;
};

}  // namespace

bool ReadBerValue(ByteView ber, std::string* der, Refusal* refusal) {
  der->clear();
  Reader in(ber, Leniency::kLenient, refusal);
  if (!Converter(refusal).PutElement(&in, der) || !in.End()) return false;
  const ByteView made = AsBytes(der->data(), der->size());
  Refusal inner;
  Element value;
  Reader whole(made, Leniency::kDer, &inner);
  if (whole.Read(&value) && CheckValue(value, Leniency::kDer, &inner)) return true;
  // What was whole stands as far from the end as in DER.
  const auto from_end = static_cast<size_t>(made.end() - static_cast<const uint8_t*>(inner.at));
  const bool was_whole = (ber[0] & kConstructedBit) == 0 || SameBytes(ber, made);
  return in.RefuseAt(inner.reason, was_whole ? ber.end() - from_end : ber.data, inner.expected);
}

}  // namespace Ortholan::strict
