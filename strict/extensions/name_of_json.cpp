#include "strict/extensions/name_of_json.h"

#include <ortholan/strict/extensions.h>

#include "strict/der/string_value.h"
#include "strict/extensions/json_fields.h"
#include "strict/extensions/leaf_text.h"
#include "strict/extensions/name_text.h"
#include "strict/extensions/shape_reader.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {
namespace {

enum NamePart : size_t { kKind, kText, kNameOctets, kNamePartCount };
constexpr const char* kNameParts[] = {"kind", "text", "octets"};

// The parts of {"kind","text","octets"} that stand there, all of them strings.
bool TakeParts(const JsonValue& json, const JsonValue** parts, Refusal* refusal) {
  if (!TakeMembers(json, kNameParts, kNamePartCount, parts, refusal)) return false;
  for (size_t i = 0; i < kNamePartCount; ++i) {
    if (parts[i] != nullptr && !parts[i]->IsString()) {
      return RefuseJson(ORTHOLAN_REASON_JSON_FORM, *parts[i], refusal);
    }
  }
  return true;
}

ByteView Bytes(const std::string& text) { return AsBytes(text.data(), text.size()); }

bool NameOfText(const Shape& shape, const std::string& text, const JsonValue& json,
                std::string* element, Refusal* refusal) {
  Refusal found;
  return (ElementOfName(text, shape.kind == ShapeKind::kSubtreeBase, element, &found) &&
          CheckByShape(shape, Bytes(*element), Leniency::kDer, &found)) ||
         RefuseJson(found.reason, json, refusal);
}

// Octets stand for themselves; kind and text beside them have to be theirs.
bool NameOfOctets(const Shape& shape, const JsonValue* const* parts, std::string* element,
                  Refusal* refusal) {
  const JsonValue& octets = *parts[kNameOctets];
  if (!OctetsOfJson(octets, element, refusal)) return false;
  struct Keep final : ShapeVisitor {
    void Leaf(const Shape&, const Element& each) override { name = each; }
    Element name;
  } keep;
  Refusal found;
  if (!ReadByShape(shape, Bytes(*element), Leniency::kDer, &keep, &found)) {
    return RefuseJson(found.reason, octets, refusal);
  }
  const std::string text = TextOfName(keep.name);
  const size_t colon = text.find(':');
  const bool is_same =
      (parts[kKind] == nullptr || text.compare(0, colon, parts[kKind]->text) == 0) &&
      (parts[kText] == nullptr || text.compare(colon + 1, text.npos, parts[kText]->text) == 0);
  return is_same || RefuseJson(ORTHOLAN_REASON_JSON_DIFFERENT, octets, refusal);
}

bool RdnOfOctets(const JsonValue& octets, const JsonValue* text, std::string* content,
                 Refusal* refusal) {
  if (!OctetsOfJson(octets, content, refusal)) return false;
  Refusal found;
  size_t count = 0;
  if (!CheckRdn(Bytes(*content), Leniency::kDer, &found, &count)) {
    return RefuseJson(found.reason, octets, refusal);
  }
  return text == nullptr || TextOfRdn(Bytes(*content)) == text->text ||
         RefuseJson(ORTHOLAN_REASON_JSON_DIFFERENT, octets, refusal);
}

uint8_t FirstString(uint32_t identifiers) {
  if ((identifiers >> kUtf8String & 1) != 0) return kUtf8String;
  uint8_t first = 0;
  while ((identifiers >> first & 1) == 0) ++first;
  return first;
}

}  // namespace

bool TextOfJson(uint8_t identifier, const JsonValue& json, std::string* content, Refusal* refusal) {
  if (!json.IsString()) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json, refusal);
  StringFault fault;
  *content = TextOf([&](Output* out) { fault = PutString(identifier, Bytes(json.text), out); });
  return fault.reason == ORTHOLAN_REASON_NONE || RefuseJson(fault.reason, json, refusal);
}

bool StringOfJson(uint32_t identifiers, const JsonValue& json, std::string* element,
                  Refusal* refusal) {
  uint8_t identifier = FirstString(identifiers);
  const JsonValue* text = &json;
  if (!json.IsString()) {
    const JsonValue* parts[kNamePartCount];
    if (!TakeMembers(json, kNameParts, kNameOctets, parts, refusal)) return false;
    if (parts[kKind] == nullptr || parts[kText] == nullptr) {
      return RefuseJson(ORTHOLAN_REASON_JSON_LACKS, json, refusal);
    }
    identifier = StringKindOf(parts[kKind]->text);
    if (identifier == 0 || (identifiers >> identifier & 1) == 0) {
      return RefuseJson(ORTHOLAN_REASON_JSON_WORD, *parts[kKind], refusal);
    }
    text = parts[kText];
  }
  std::string content;
  if (!TextOfJson(identifier, *text, &content, refusal)) return false;
  *element = ElementOf(identifier, content);
  return true;
}

bool NameOfJson(const Shape& shape, const JsonValue& json, std::string* element, Refusal* refusal) {
  const JsonValue* parts[kNamePartCount];
  if (!TakeParts(json, parts, refusal)) return false;
  if (parts[kNameOctets] != nullptr) return NameOfOctets(shape, parts, element, refusal);
  if (parts[kKind] == nullptr || parts[kText] == nullptr) {
    return RefuseJson(ORTHOLAN_REASON_JSON_LACKS, json, refusal);
  }
  return NameOfText(shape, parts[kKind]->text + ":" + parts[kText]->text, *parts[kText], element,
                    refusal);
}

bool RdnOfJson(const JsonValue& json, std::string* content, Refusal* refusal) {
  const JsonValue* parts[kNamePartCount] = {};
  const JsonValue* text = &json;
  if (!json.IsString()) {
    if (!TakeParts(json, parts, refusal)) return false;
    text = parts[kText];
    if (parts[kKind] != nullptr) return RefuseJson(ORTHOLAN_REASON_JSON_MEMBER, json, refusal);
    if (parts[kNameOctets] != nullptr) {
      return RdnOfOctets(*parts[kNameOctets], text, content, refusal);
    }
    if (text == nullptr) return RefuseJson(ORTHOLAN_REASON_JSON_LACKS, json, refusal);
  }
  Refusal found;
  return RdnOfText(text->text, content, &found) || RefuseJson(found.reason, *text, refusal);
}

}  // namespace Ortholan::strict
