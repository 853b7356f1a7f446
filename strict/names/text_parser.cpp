#include "strict/names/text_parser.h"

#include <ortholan/strict/names.h>

#include "bytes/ascii.h"
#include "bytes/hex.h"
#include "bytes/ignore_case.h"
#include "bytes/octet_run.h"
#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/names/attribute_types.h"

namespace Ortholan::strict {
namespace {

// What a character does in a value that is not quoted.
enum Role : uint8_t { kOrdinary, kSeparator, kEscape, kForbidden };

struct RoleTable {
  uint8_t roles[256];
};

constexpr RoleTable MakeRoles() {
  RoleTable table = {};
  for (const char c : {',', ';', '+'}) table.roles[static_cast<uint8_t>(c)] = kSeparator;
  for (const char c : {'"', '<', '>', '\0'}) table.roles[static_cast<uint8_t>(c)] = kForbidden;
  table.roles[static_cast<uint8_t>('\\')] = kEscape;
  return table;
}

constexpr RoleTable kRoles = MakeRoles();

Role RoleOf(char c) { return static_cast<Role>(kRoles.roles[static_cast<uint8_t>(c)]); }

// What may follow a backslash as itself.
bool IsSpecial(char c) { return c != '\0' && std::strchr("\\\"+,;<> #=", c) != nullptr; }

// What a character may stand in: a descriptor (RFC 4512 1.4), dotted text or both; bits.
enum TypeRole : uint8_t { kInDescriptor = 1, kInDotted = 2 };

constexpr RoleTable MakeTypeRoles() {
  RoleTable table = {};
  for (int c = 0; c < 0x80; ++c) {
    if (IsAsciiLetter(c) || IsAsciiDigit(c) || c == '-') table.roles[c] |= kInDescriptor;
    if (IsAsciiDigit(c) || c == '.') table.roles[c] |= kInDotted;
  }
  return table;
}

constexpr RoleTable kTypeRoles = MakeTypeRoles();

bool HasOidPrefix(std::string_view type) {
  return type.size() > 4 && type[3] == '.' && SameWithoutCase(type.substr(0, 3), "oid");
}

// Characters of the text that the pair at its front takes.
size_t PairSize(const char* pair) { return IsHexDigit(pair[1]) ? 3 : 2; }

}  // namespace

TextParser::TextParser(std::string_view text, Refusal* refusal) : text_(text), refusal_(refusal) {
  const StringFault fault = FindStringFault(kUtf8String, AsBytes(text.data(), text.size()), false);
  if (fault.reason != ORTHOLAN_REASON_NONE) {
    RefuseAt(ORTHOLAN_REASON_TEXT_UTF8, fault.offset);
    text_ = {};
  }
  // Blanks alone are the name without RDNs.
  SkipBlanks();
  more_ = !AtEnd();
}

bool TextParser::Next(TextAttribute* attribute) {
  if (!more_) return false;
  attribute->begins_rdn = begins_rdn_;
  // After a refusal there is nothing more.
  more_ = false;
  return ReadType(attribute) && ReadValue(attribute) && EndValue();
}

bool TextParser::AtSeparator() const { return AtEnd() || RoleOf(Here()) == kSeparator; }

void TextParser::SkipBlanks() {
  while (Here() == ' ') ++position_;
}

// Up to the value.
bool TextParser::ReadType(TextAttribute* attribute) {
  SkipBlanks();
  const size_t start = position_;
  uint8_t roles = kInDescriptor;  // those that all characters have
  size_t end = start;
  for (; end < text_.size(); ++end) {
    const uint8_t role = kTypeRoles.roles[static_cast<uint8_t>(text_[end])];
    if (role == 0) break;
    roles &= role;
  }
  position_ = end;
  std::string_view type(text_.data() + start, end - start);
  SkipBlanks();
  if (Here() != '=' || type.empty()) return RefuseType(start);
  ++position_;
  const bool prefixed = HasOidPrefix(type);
  if (prefixed) type.remove_prefix(4);
  attribute->dotted = IsAsciiDigit(type.front());
  const bool is_descriptor = roles == kInDescriptor && IsAsciiLetter(type.front());
  if (!attribute->dotted && (prefixed || !is_descriptor)) {
    return RefuseAt(ORTHOLAN_REASON_TEXT_TYPE, start);
  }
  attribute->type = type;
  return true;
}

// No type and "=" stand at `start`: the rest of a value whose separator was not escaped, a type
// that is none, or nothing at all.
bool TextParser::RefuseType(size_t start) {
  size_t end = start;
  while (end < text_.size() && RoleOf(text_[end]) != kSeparator && text_[end] != '=') ++end;
  if (end == start) return RefuseAt(ORTHOLAN_REASON_TEXT_NO_TYPE, start);
  const bool has_equals = end < text_.size() && text_[end] == '=';
  return RefuseAt(has_equals ? ORTHOLAN_REASON_TEXT_TYPE : ORTHOLAN_REASON_TEXT_NO_EQUALS, start);
}

bool TextParser::ReadValue(TextAttribute* attribute) {
  SkipBlanks();
  attribute->form = Here() == '#' ? ValueForm::kHex : ValueForm::kString;
  if (Here() == '#') return ReadHex(attribute);
  if (Here() == '"') return ReadQuoted(attribute);
  return ReadPlain(attribute);
}

bool TextParser::ReadHex(TextAttribute* attribute) {
  const size_t start = ++position_;
  while (IsHexDigit(Here())) ++position_;
  const size_t digits = position_ - start;
  attribute->value = text_.substr(start, digits);
  attribute->octets = digits / 2;
  if (digits == 0 || digits % 2 != 0) return RefuseAt(ORTHOLAN_REASON_TEXT_HEX, position_);
  SkipBlanks();
  return AtSeparator() || RefuseAt(ORTHOLAN_REASON_TEXT_HEX, position_);
}

bool TextParser::ReadQuoted(TextAttribute* attribute) {
  const size_t quote = position_++;
  size_t octets = 0;
  while (Here() != '"') {
    if (AtEnd()) return RefuseAt(ORTHOLAN_REASON_TEXT_QUOTE, quote);
    if (Here() == '\0') return RefuseAt(ORTHOLAN_REASON_TEXT_UNESCAPED, position_);
    if (Here() == '\\' && !SkipPair()) return false;
    ++octets;
    ++position_;
  }
  attribute->value = text_.substr(quote + 1, position_ - quote - 1);
  attribute->octets = octets;
  ++position_;
  SkipBlanks();
  return AtSeparator() || RefuseAt(ORTHOLAN_REASON_TEXT_BEHIND_QUOTE, position_);
}

bool TextParser::ReadPlain(TextAttribute* attribute) {
  const size_t start = position_;
  size_t pairs_end = start;
  size_t saved = 0;  // octets that pairs take in the text above those that they stand for
  for (; position_ < text_.size(); ++position_) {
    const ByteView rest = AsBytes(text_.data(), text_.size()).From(position_);
    position_ += OrdinaryRun(rest, kRoles.roles);
    if (AtEnd()) break;
    const Role role = RoleOf(text_[position_]);
    if (role == kSeparator) break;
    if (role == kForbidden) return RefuseAt(ORTHOLAN_REASON_TEXT_UNESCAPED, position_);
    const size_t pair = position_;
    if (!SkipPair()) return false;
    saved += position_ - pair;
    pairs_end = position_ + 1;
  }
  size_t end = position_;
  while (end > pairs_end && text_[end - 1] == ' ') --end;
  attribute->value = text_.substr(start, end - start);
  attribute->octets = end - start - saved;
  return true;
}

// To the last character of the pair at this place.
bool TextParser::SkipPair() {
  const char next = position_ + 1 < text_.size() ? text_[position_ + 1] : '\0';
  const char last = position_ + 2 < text_.size() ? text_[position_ + 2] : '\0';
  if (IsSpecial(next)) {
    position_ += 1;
  } else if (IsHexDigit(next) && IsHexDigit(last)) {
    position_ += 2;
  } else {
    return RefuseAt(ORTHOLAN_REASON_TEXT_PAIR, position_);
  }
  return true;
}

// What separates, and whether an attribute has to follow it.
bool TextParser::EndValue() {
  if (AtEnd()) return true;
  begins_rdn_ = Here() != '+';
  more_ = true;
  ++position_;
  return true;
}

bool TextParser::RefuseAt(ortholan_reason reason, size_t position) {
  return RefuseText(refusal_, reason, text_.substr(position));
}

void Unescape(std::string_view value, uint8_t* out) {
  const char* at = value.data();
  const char* const end = at + value.size();
  while (at != end) {
    const auto* const found =
        static_cast<const char*>(std::memchr(at, '\\', static_cast<size_t>(end - at)));
    const char* const pair = found != nullptr ? found : end;
    out = WriteBytes(out, AsBytes(at, static_cast<size_t>(pair - at)));
    if (pair == end) break;
    const size_t size = PairSize(pair);
    *out++ = size == 3 ? HexOctet(pair + 1) : static_cast<uint8_t>(pair[1]);
    at = pair + size;
  }
}

size_t PlaceOf(size_t offset, std::string_view value) {
  size_t place = 0;
  for (; offset != 0; --offset) place += value[place] == '\\' ? PairSize(&value[place]) : 1;
  return place;
}

void ReadHexDigits(std::string_view digits, uint8_t* out) {
  for (size_t i = 0; i + 1 < digits.size(); i += 2) *out++ = HexOctet(&digits[i]);
}

}  // namespace Ortholan::strict
