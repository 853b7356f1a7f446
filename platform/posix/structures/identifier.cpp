// OBJECT IDENTIFIER and its dotted text, X.690 8.19.

#include <cstdint>

#include "bytes/base128.h"
#include "platform/posix/structures/field.h"
#include "platform/posix/structures/load.h"

namespace Ortholan::posix {
namespace {

constexpr std::uint64_t kLargestArc = 0xFFFFFFFF;

// The first two arcs share a subidentifier: first * 40 + second, where the first is 0, 1 or 2.
constexpr std::uint64_t kArcsOfFirst = 40;

// Reads the arc that ends before `*end` of a text, and moves `*end` before its dot.
bool TakeLastArc(LPCSTR text, std::size_t* end, std::uint64_t* arc) {
  std::uint64_t value = 0;
  std::uint64_t weight = 1;
  std::size_t at = *end;
  for (; at != 0 && text[at - 1] != '.'; --at) {
    const char digit = text[at - 1];
    if (digit < '0' || digit > '9') return false;
    if (weight <= kLargestArc) {
      value += weight * static_cast<std::uint64_t>(digit - '0');
      weight *= 10;
    } else if (digit != '0') {
      return false;
    }
    if (value > kLargestArc) return false;
  }
  if (at == *end) return false;
  *arc = value;
  *end = at != 0 ? at - 1 : 0;
  return true;
}

void PutSubidentifier(std::uint64_t value, DerWriter* out) {
  BYTE groups[kMostBase128];
  const BYTE* const end = WriteBase128(groups, value);
  out->PutOctets({groups, static_cast<std::size_t>(end - groups)});
}

// Writes decimal digits to a text, or only counts them.
class TextWriter {
 public:
  explicit TextWriter(char* out) : out_(out) {}

  std::size_t size() const { return size_; }
  void Put(char c) {
    if (out_ != nullptr) out_[size_] = c;
    ++size_;
  }
  void PutNumber(std::uint64_t value) {
    char digits[20];
    std::size_t count = 0;
    do {
      digits[count++] = static_cast<char>('0' + value % 10);
      value /= 10;
    } while (value != 0);
    while (count != 0) Put(digits[--count]);
  }

 private:
  char* out_;
  std::size_t size_ = 0;
};

DWORD WriteDotted(ByteView content, TextWriter* out) {
  if (content.size == 0) return CRYPT_E_ASN1_CORRUPT;
  bool first = true;
  for (std::size_t i = 0; i < content.size;) {
    std::uint64_t value = 0;
    const Base128Result read = ReadBase128(content, kLargestArc + 2 * kArcsOfFirst, &i, &value);
    if (read == Base128Result::kUnfinished) return CRYPT_E_ASN1_CORRUPT;
    if (read == Base128Result::kTooLarge) return CRYPT_E_ASN1_LARGE;
    if (first) {
      const std::uint64_t arc = value < 2 * kArcsOfFirst ? value / kArcsOfFirst : 2;
      out->PutNumber(arc);
      value -= arc * kArcsOfFirst;
    }
    if (value > kLargestArc) return CRYPT_E_ASN1_LARGE;
    out->Put('.');
    out->PutNumber(value);
    first = false;
  }
  out->Put('\0');
  return ERROR_SUCCESS;
}

// Refused are null, a text that is not two or more arcs of decimal digits joined by single dots,
// each at most 4294967295, and first two arcs that do not go together.
DWORD WriteIdentifier(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  const auto* const dotted = Load<LPCSTR>(value);
  if (dotted == nullptr) return CRYPT_E_ASN1_ERROR;
  std::size_t dots = 0;
  std::size_t end = 0;
  for (; dotted[end] != '\0'; ++end) dots += dotted[end] == '.' ? 1 : 0;
  if (dots == 0) return CRYPT_E_ASN1_ERROR;

  std::uint64_t arc;
  for (; dots > 1; --dots) {
    if (!TakeLastArc(dotted, &end, &arc)) return CRYPT_E_ASN1_ERROR;
    PutSubidentifier(arc, out);
  }
  std::uint64_t first;
  if (!TakeLastArc(dotted, &end, &arc) || !TakeLastArc(dotted, &end, &first)) {
    return CRYPT_E_ASN1_ERROR;
  }
  if (first > 2 || (first < 2 && arc >= kArcsOfFirst)) return CRYPT_E_ASN1_ERROR;
  PutSubidentifier(first * kArcsOfFirst + arc, out);
  return ERROR_SUCCESS;
}

// Refused are content that is empty or ends within an arc, and an arc above 32 bits.
DWORD ReadIdentifier(const Field& /*field*/, const Element& element, std::size_t place,
                     StructRoom* room) {
  TextWriter counter(nullptr);
  if (const DWORD error = WriteDotted(element.content, &counter)) return error;
  BYTE* const text = room->Address(room->Take(counter.size(), 1));
  room->Put(place, text);
  TextWriter writer(reinterpret_cast<char*>(text));
  return WriteDotted(element.content, &writer);
}

}  // namespace

const Kind kIdentifierKind = {WriteIdentifier, ReadIdentifier, nullptr, true};

}  // namespace Ortholan::posix
