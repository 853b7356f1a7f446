#include "strict/der/string_value.h"

#include "strict/der/refusal.h"

namespace Ortholan::strict {
namespace {

// Which ASCII strings hold a character; bits of kAlphabet.
enum Alphabet : uint8_t { kInPrintable = 1, kInNumeric = 2, kInVisible = 4, kInIA5 = 8 };

struct AlphabetTable {
  uint8_t bits[256];
};

constexpr AlphabetTable MakeAlphabet() {
  AlphabetTable table = {};
  for (int c = 0; c < 0x80; ++c) table.bits[c] = kInIA5;
  for (int c = 0x20; c < 0x7F; ++c) table.bits[c] |= kInVisible;
  for (int c = '0'; c <= '9'; ++c) table.bits[c] |= kInNumeric;
  for (int c = 0; c < 0x80; ++c) {
    if (IsPrintable(static_cast<uint8_t>(c))) table.bits[c] |= kInPrintable;
  }
  table.bits[static_cast<int>(' ')] |= kInNumeric;
  return table;
}

constexpr AlphabetTable kAlphabet = MakeAlphabet();

// What is known of a string type. `alphabet` 0: any character of its encoding.
struct StringType {
  uint8_t unit = 0;  // octets a character; 0 for UTF-8
  uint8_t alphabet = 0;
};

struct StringTypes {
  StringType rows[32];
};

constexpr StringTypes MakeTypes() {
  StringTypes types = {};
  types.rows[kUtf8String] = {0, 0};
  types.rows[kNumericString] = {1, kInNumeric};
  types.rows[kPrintableString] = {1, kInPrintable};
  types.rows[kTeletexString] = {1, 0};
  types.rows[kIA5String] = {1, kInIA5};
  types.rows[kVisibleString] = {1, kInVisible};
  types.rows[kUniversalString] = {4, 0};
  types.rows[kBmpString] = {2, 0};
  return types;
}

constexpr StringTypes kTypes = MakeTypes();

const StringType& TypeOf(uint8_t identifier) { return kTypes.rows[identifier & 0x1F]; }

// No branch a character: nearly always all of them are in it.
inline bool AreWithin(ByteView content, uint8_t alphabet) {
  constexpr size_t kStep = 4;
  uint8_t common = alphabet;
  const uint8_t* at = content.begin();
  for (size_t left = content.size; left >= kStep; left -= kStep, at += kStep) {
    common &= kAlphabet.bits[at[0]] & kAlphabet.bits[at[1]] & kAlphabet.bits[at[2]] &
              kAlphabet.bits[at[3]];
  }
  for (; at != content.end(); ++at) common &= kAlphabet.bits[*at];
  return common != 0;
}

StringFault FindOutside(ByteView content, uint8_t alphabet) {
  if (AreWithin(content, alphabet)) return {};
  for (size_t i = 0; i < content.size; ++i) {
    if ((kAlphabet.bits[content[i]] & alphabet) == 0) return {ORTHOLAN_REASON_ALPHABET, i};
  }
  return {};
}

// Octets at the front that are ASCII.
size_t AsciiRun(ByteView in) {
  size_t count = 0;
  for (uint64_t run; in.size - count >= sizeof run; count += sizeof run) {
    std::memcpy(&run, in.data + count, sizeof run);
    if ((run & 0x8080808080808080) != 0) break;
  }
  while (count != in.size && in[count] < 0x80) ++count;
  return count;
}

StringFault FindBrokenUtf8(ByteView content) {
  size_t position = 0;
  while (position < content.size) {
    position += AsciiRun(content.From(position));
    if (position == content.size) break;
    uint32_t scalar;
    const size_t count = ReadUtf8Scalar(content.From(position), &scalar);
    if (count == 0) return {ORTHOLAN_REASON_ENCODING, position};
    position += count;
  }
  return {};
}

StringFault FindBrokenUnit(uint8_t identifier, ByteView content) {
  ScalarReader scalars(identifier, content);
  for (uint32_t scalar; scalars.Next(&scalar);) {
  }
  if (!scalars.broken()) return {};
  return {ORTHOLAN_REASON_ENCODING, content.size - scalars.rest().size};
}

constexpr bool IsScalar(uint32_t value) {
  return value < 0xD800 || (value >= 0xE000 && value <= 0x10FFFF);
}

// Out of line, so that what nearly every value passes needs no frame.
[[gnu::noinline]] bool CheckClosely(const Element& value, bool checks_alphabet, Refusal* refusal) {
  const StringFault fault = FindStringFault(value.identifier, value.content, checks_alphabet);
  if (fault.reason == ORTHOLAN_REASON_NONE) return true;
  return Refuse(refusal, fault.reason, value.content.data + fault.offset,
                value.content.size - fault.offset, value.identifier);
}

}  // namespace

bool IsInAlphabet(uint8_t identifier, ByteView content) {
  return AreWithin(content, TypeOf(identifier).alphabet);
}

StringFault FindStringFault(uint8_t identifier, ByteView content, bool checksAlphabet) {
  const StringType& type = TypeOf(identifier);
  if (type.unit == 0) return FindBrokenUtf8(content);
  // Without its alphabet an 8-bit string still has no character above ASCII.
  if (type.alphabet != 0) {
    constexpr uint8_t kAscii = kInIA5;
    return FindOutside(content, checksAlphabet ? type.alphabet : kAscii);
  }
  if (type.unit > 1) return FindBrokenUnit(identifier, content);
  return {};
}

bool CheckCharacters(const Element& value, bool checks_alphabet, Refusal* refusal) {
  return (IsAsciiString(value.identifier) && IsInAlphabet(value.identifier, value.content)) ||
         CheckClosely(value, checks_alphabet, refusal);
}

ScalarReader::ScalarReader(uint8_t identifier, ByteView content)
    : rest_(content), unit_(TypeOf(identifier).unit), ascii_(TypeOf(identifier).alphabet != 0) {}

bool ScalarReader::Next(uint32_t* scalar) {
  if (rest_.empty() || broken_) return false;
  return unit_ == 0 ? NextUtf8(scalar) : NextUnit(scalar);
}

bool ScalarReader::NextUtf8(uint32_t* scalar) {
  const size_t count = ReadUtf8Scalar(rest_, scalar);
  broken_ = count == 0;
  rest_ = rest_.From(count);
  return !broken_;
}

bool ScalarReader::NextUnit(uint32_t* scalar) {
  if (rest_.size < unit_) {
    broken_ = true;
    return false;
  }
  uint32_t value = 0;
  for (size_t i = 0; i < unit_; ++i) value = value << 8 | rest_[i];
  broken_ = !IsScalar(value) || (ascii_ && value >= 0x80);
  if (broken_) return false;
  *scalar = value;
  rest_ = rest_.From(unit_);
  return true;
}

void PutUtf8(uint32_t scalar, Output* out) {
  uint8_t octets[4];
  out->Put({octets, static_cast<size_t>(WriteUtf8Scalar(octets, scalar) - octets)});
}

bool PutStringText(uint8_t identifier, ByteView content, Output* out) {
  if (identifier == kUtf8String || IsAsciiString(identifier)) {
    if (FindStringFault(identifier, content, false).reason != ORTHOLAN_REASON_NONE) return false;
    out->Put(content);
    return true;
  }
  ScalarReader scalars(identifier, content);
  for (uint32_t scalar; scalars.Next(&scalar);) PutUtf8(scalar, out);
  return !scalars.broken();
}

StringFault PutString(uint8_t identifier, ByteView text, Output* out) {
  const size_t unit = TypeOf(identifier).unit;
  if (unit == 0 || IsAsciiString(identifier)) {
    out->Put(text);
    return FindStringFault(identifier, text, true);
  }
  const uint32_t last = unit == 1 ? 0xFF : unit == 2 ? 0xFFFF : 0x10FFFF;
  ScalarReader scalars(kUtf8String, text);
  size_t offset = 0;
  for (uint32_t scalar; scalars.Next(&scalar); offset = text.size - scalars.rest().size) {
    if (scalar > last) return {ORTHOLAN_REASON_ALPHABET, offset};
    for (size_t i = unit; i-- != 0;) out->Put(static_cast<uint8_t>(scalar >> (8 * i)));
  }
  return {};
}

}  // namespace Ortholan::strict
