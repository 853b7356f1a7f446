#include "strict/extensions/leaf_of_json.h"

#include <ortholan/strict/extensions.h>

#include <algorithm>

#include "strict/certificates/time_text.h"
#include "strict/der/integer.h"
#include "strict/der/string_value.h"
#include "strict/extensions/json_fields.h"
#include "strict/extensions/leaf_text.h"
#include "strict/extensions/moment.h"
#include "strict/extensions/name_of_json.h"
#include "strict/extensions/oid_names.h"
#include "strict/extensions/resource_text.h"

namespace Ortholan::strict {
namespace {

constexpr int64_t kMostBit = 0xFFFFF;

using Leaf = bool (*)(const Shape& shape, const JsonValue& json, std::string* content,
                      Refusal* refusal);

bool BooleanOf(const Shape&, const JsonValue& json, std::string* content, Refusal* refusal) {
  *content = json.form == JsonForm::kTrue ? '\xFF' : '\0';
  return json.form == JsonForm::kTrue || json.form == JsonForm::kFalse ||
         RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
}

bool NullOf(const Shape&, const JsonValue& json, std::string* content, Refusal* refusal) {
  content->clear();
  return json.form == JsonForm::kNull || RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
}

// The number that a word or digits stand for; false, without a refusal, for a string that is no
// word.
bool NumberOf(const Shape& shape, const JsonValue& json, int64_t* number) {
  if (json.IsInteger(number)) return true;
  for (const NumberName& row : shape.names) {
    if (!json.IsString() || json.text != row.name) continue;
    *number = row.number;
    return true;
  }
  return false;
}

bool FailNumber(const JsonValue& json, Refusal* refusal) {
  if (json.form == JsonForm::kNumber) return RefuseJson(ORTHOLAN_REASON_JSON_NUMBER, json, refusal);
  return RefuseJson(json.IsString() ? ORTHOLAN_REASON_JSON_WORD : ORTHOLAN_REASON_JSON_FORM, json,
                    refusal);
}

bool IntegerOf(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  int64_t number = 0;
  if (NumberOf(shape, json, &number)) {
    uint8_t octets[kMaxIntegerOctets];
    content->assign(AsText({octets, WriteInteger(number, octets)}));
    return true;
  }
  if (!json.IsString()) return FailNumber(json, refusal);
  return OctetsOfJson(json, content, refusal) &&
         (IsMinimalInteger(AsBytes(content->data(), content->size())) ||
          RefuseJson(ORTHOLAN_REASON_JSON_TEXT, json, refusal));
}

// X.690 11.2: no zeros behind the last bit.
bool BitsOf(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  if (json.form != JsonForm::kArray) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
  content->assign(1, '\0');
  size_t bits = 0;
  for (const JsonMember& member : json.members) {
    int64_t bit = 0;
    if (!NumberOf(shape, member.value, &bit)) return FailNumber(member.value, refusal);
    if (bit < 0 || bit > kMostBit) {
      return RefuseJson(ORTHOLAN_REASON_JSON_NUMBER, member.value, refusal);
    }
    const auto place = static_cast<size_t>(bit);
    bits = std::max(bits, place + 1);
    if (content->size() < place / 8 + 2) content->resize(place / 8 + 2);
    (*content)[place / 8 + 1] |= static_cast<char>(0x80 >> place % 8);
  }
  (*content)[0] = static_cast<char>((8 - bits % 8) % 8);
  return true;
}

bool OctetsOf(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  if (!OctetsOfJson(json, content, refusal)) return false;
  return shape.kind != ShapeKind::kTlsFixed || content->size() == shape.number ||
         RefuseJson(ORTHOLAN_REASON_TLS_SIZE, json, refusal);
}

bool OidOf(const Shape&, const JsonValue& json, std::string* content, Refusal* refusal) {
  if (!json.IsString()) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
  bool is_oid = true;
  *content = TextOf([&](Output* out) { is_oid = PutIdentifierOf(json.text, out); });
  return is_oid || RefuseJson(ORTHOLAN_REASON_JSON_WORD, json, refusal);
}

// "2026-11-21T22:05:00Z" without what is no digit, and in a UTCTime without the century.
bool TimeOf(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  if (!json.IsString()) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
  content->clear();
  for (const char c : json.text) {
    if (IsAsciiDigit(static_cast<uint8_t>(c)) || c == 'Z') *content += c;
  }
  const uint8_t identifier = IdentifierOf(shape);
  if (identifier == kUtcTime && content->size() > 2) content->erase(0, 2);
  const ByteView octets = AsBytes(content->data(), content->size());
  return TextOf([=](Output* out) { PutTimeText(identifier, octets, out); }) == json.text ||
         RefuseJson(ORTHOLAN_REASON_JSON_TEXT, json, refusal);
}

// Numbers of TLS, the most significant octet first.
std::string TlsContentOf(uint64_t number, size_t octets) {
  std::string content;
  for (size_t i = octets; i-- != 0;) content += static_cast<char>(number >> (8 * i));
  return content;
}

bool TlsTimeOf(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  if (!json.IsString()) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
  uint64_t time = 0;
  if (!MillisecondsOf(json.text, &time))
    return RefuseJson(ORTHOLAN_REASON_JSON_TEXT, json, refusal);
  *content = TlsContentOf(time, shape.number);
  return true;
}

bool TlsNumberOf(const Shape& shape, const JsonValue& json, std::string* content,
                 Refusal* refusal) {
  int64_t number = 0;
  if (!NumberOf(shape, json, &number)) return FailNumber(json, refusal);
  if (number < 0 || number >> (8 * shape.number) != 0) {
    return RefuseJson(ORTHOLAN_REASON_JSON_NUMBER, json, refusal);
  }
  *content = TlsContentOf(static_cast<uint64_t>(number), shape.number);
  return true;
}

bool AsciiOf(const Shape&, const JsonValue& json, std::string* content, Refusal* refusal) {
  return TextOfJson(kIA5String, json, content, refusal);
}

bool StringOf(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  return TextOfJson(IdentifierOf(shape), json, content, refusal);
}

bool RdnOf(const Shape&, const JsonValue& json, std::string* content, Refusal* refusal) {
  return RdnOfJson(json, content, refusal);
}

bool FamilyOf(const Shape&, const JsonValue& json, std::string* content, Refusal* refusal) {
  return (json.IsString() && FamilyOfText(json.text, content)) ||
         OctetsOfJson(json, content, refusal);
}

struct LeafRow {
  ShapeKind kind;
  Leaf make;
};

constexpr LeafRow kLeaves[] = {
    {ShapeKind::kBoolean, BooleanOf},
    {ShapeKind::kInteger, IntegerOf},
    {ShapeKind::kEnumerated, IntegerOf},
    {ShapeKind::kBits, BitsOf},
    {ShapeKind::kOctets, OctetsOf},
    {ShapeKind::kAscii, AsciiOf},
    {ShapeKind::kNull, NullOf},
    {ShapeKind::kOid, OidOf},
    {ShapeKind::kUtcTime, TimeOf},
    {ShapeKind::kTime, TimeOf},
    {ShapeKind::kString, StringOf},
    {ShapeKind::kRdn, RdnOf},
    {ShapeKind::kTlsNumber, TlsNumberOf},
    {ShapeKind::kTlsTime, TlsTimeOf},
    {ShapeKind::kTlsFixed, OctetsOf},
    {ShapeKind::kTlsVector, OctetsOf},
    {ShapeKind::kAddressFamily, FamilyOf},
};

}  // namespace

bool LeafOfJson(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal) {
  for (const LeafRow& row : kLeaves) {
    if (row.kind == shape.kind) return row.make(shape, json, content, refusal);
  }
  return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
}

bool AddressOfJson(const Shape& shape, const std::string& family, const JsonValue& json,
                   std::string* content, Refusal* refusal) {
  if (!json.IsString()) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
  return AddressOfText(shape.number, AsBytes(family.data(), family.size()), json.text, content) ||
         RefuseJson(ORTHOLAN_REASON_JSON_TEXT, json, refusal);
}

}  // namespace Ortholan::strict
