#include "strict/der/oid.h"

#include <algorithm>

namespace Ortholan::strict {
namespace {

constexpr uint32_t kArcsBelowFirst = 40;  // X.690 8.19.4
constexpr size_t kMaxFirstArc = 2;
constexpr size_t kGroupBits = 7;

// A number without bound, in limbs of nine decimal digits or of 28 bits, least significant first.
template <uint32_t kBase>
class BigNumber {
 public:
  // Times `factor` plus `addend`, both at most kBase. False where the room ends.
  bool MultiplyAdd(uint32_t factor, uint32_t addend) {
    uint64_t carry = addend;
    for (size_t i = 0; i < count_; ++i) {
      carry += uint64_t{limbs_[i]} * factor;
      limbs_[i] = static_cast<uint32_t>(carry % kBase);
      carry /= kBase;
    }
    if (carry == 0) return true;
    if (count_ == kLimbs) return false;
    limbs_[count_++] = static_cast<uint32_t>(carry);
    return true;
  }
  // The number is at least `value`.
  void Subtract(uint32_t value) {
    for (size_t i = 0; value != 0; ++i) {
      const bool borrow = limbs_[i] < value;
      limbs_[i] += (borrow ? kBase : 0) - value;
      value = borrow ? 1 : 0;
    }
    while (count_ != 0 && limbs_[count_ - 1] == 0) --count_;
  }
  size_t count() const { return count_; }
  uint32_t operator[](size_t index) const { return limbs_[index]; }

 private:
  // 4096 groups of seven bits take 960 limbs of nine digits.
  static constexpr size_t kLimbs = 1100;
  uint32_t limbs_[kLimbs];
  size_t count_ = 0;
};

using Decimal = BigNumber<1000000000>;
using Binary = BigNumber<1u << 28>;

void PutBig(const Decimal& number, Output* out) {
  const size_t count = number.count();
  PutDecimal(count != 0 ? number[count - 1] : 0, out);
  for (size_t i = count; i-- > 1;) PutDecimal(number[i - 1], out, 9);
}

bool PutLongComponent(ByteView groups, bool isFirst, Output* out) {
  Decimal number;
  for (const uint8_t octet : groups) {
    if (!number.MultiplyAdd(1u << kGroupBits, octet & 0x7Fu)) return false;
  }
  if (isFirst) {
    // More than nine groups stand for more than 2^56.
    out->Put("2.");
    number.Subtract(kMaxFirstArc * kArcsBelowFirst);
  }
  PutBig(number, out);
  return true;
}

bool PutComponent(ByteView groups, bool isFirst, Output* out) {
  if (groups.size > 9) return PutLongComponent(groups, isFirst, out);
  uint64_t number = 0;
  for (const uint8_t octet : groups) number = number << kGroupBits | (octet & 0x7Fu);
  if (isFirst) {
    const uint64_t first = std::min<uint64_t>(number / kArcsBelowFirst, kMaxFirstArc);
    PutDecimal(first, out);
    out->Put('.');
    number -= first * kArcsBelowFirst;
  }
  PutDecimal(number, out);
  return true;
}

// Splits the digits before the next dot off; false for no digits, other characters, leading zeros.
bool TakeArc(std::string_view* text, std::string_view* arc) {
  const size_t end = std::min(text->find('.'), text->size());
  *arc = text->substr(0, end);
  if (arc->empty() || (arc->size() > 1 && arc->front() == '0')) return false;
  if (arc->find_first_not_of("0123456789") != std::string_view::npos) return false;
  text->remove_prefix(end);
  return true;
}

bool ReadArc(std::string_view digits, uint32_t addend, Binary* number) {
  for (const char digit : digits) {
    if (!number->MultiplyAdd(10, static_cast<uint32_t>(digit - '0'))) return false;
  }
  return addend == 0 || number->MultiplyAdd(1, addend);
}

void PutLongGroups(const Binary& number, Output* out) {
  bool started = false;
  for (size_t i = number.count() * 4; i-- != 0;) {
    const uint32_t group = number[i / 4] >> (kGroupBits * (i % 4)) & 0x7F;
    started = started || group != 0;
    if (started) out->Put(static_cast<uint8_t>(group | (i != 0 ? 0x80 : 0)));
  }
}

void PutGroups(uint64_t number, Output* out) {
  size_t shift = 0;
  while (number >> shift >= 0x80) shift += kGroupBits;
  for (; shift != 0; shift -= kGroupBits) {
    out->Put(static_cast<uint8_t>((number >> shift & 0x7F) | 0x80));
  }
  out->Put(static_cast<uint8_t>(number & 0x7F));
}

bool PutArc(std::string_view digits, uint32_t addend, Output* out) {
  if (digits.size() > 18) {
    Binary number;
    if (!ReadArc(digits, addend, &number)) return false;
    PutLongGroups(number, out);
    return true;
  }
  uint64_t number = 0;
  for (const char digit : digits) number = number * 10 + static_cast<uint64_t>(digit - '0');
  PutGroups(number + addend, out);
  return true;
}

}  // namespace

bool PutIdentifierText(ByteView content, Output* out) {
  if (content.size > kMaxIdentifierOctets) return false;
  size_t start = 0;
  for (size_t i = 0; i < content.size; ++i) {
    if ((content[i] & 0x80) != 0) continue;
    if (start != 0) out->Put('.');
    if (!PutComponent({content.data + start, i + 1 - start}, start == 0, out)) return false;
    start = i + 1;
  }
  return true;
}

bool PutIdentifier(std::string_view text, Output* out) {
  // No more than nine decimal digits of text stand in three octets.
  if (text.size() > 3 * kMaxIdentifierOctets) return false;
  const size_t before = out->size();
  std::string_view first;
  std::string_view arc;
  if (!TakeArc(&text, &first) || first.size() != 1 || first[0] > '2' || text.empty()) return false;
  uint32_t addend = static_cast<uint32_t>(first[0] - '0') * kArcsBelowFirst;
  while (!text.empty()) {
    text.remove_prefix(1);
    if (!TakeArc(&text, &arc)) return false;
    if (addend < kMaxFirstArc * kArcsBelowFirst && out->size() == before &&
        (arc.size() > 2 || (arc.size() == 2 && arc > "39"))) {
      return false;
    }
    if (!PutArc(arc, addend, out)) return false;
    addend = 0;
  }
  return out->size() - before <= kMaxIdentifierOctets;
}

}  // namespace Ortholan::strict
