#include "strict/extensions/value_json.h"

#include "strict/certificates/time_text.h"
#include "strict/der/string_value.h"
#include "strict/extensions/leaf_text.h"
#include "strict/extensions/moment.h"
#include "strict/extensions/name_text.h"
#include "strict/extensions/oid_names.h"
#include "strict/extensions/resource_text.h"
#include "strict/extensions/shape_reader.h"
#include "strict/extensions/tls_reader.h"

namespace Ortholan::strict {
namespace {

class JsonVisitor final : public ShapeVisitor {
 public:
  explicit JsonVisitor(JsonOutput* json) : json_(*json) {}

  void BeginFields(const Shape&) override { json_.Begin('{'); }
  void EndFields(const Shape&) override { json_.End('}'); }
  bool BeginList(const Shape&) override {
    json_.Begin('[');
    return true;
  }
  void EndList(const Shape&, ByteView, size_t) override { json_.End(']'); }
  bool BeginField(const Field& field, ByteView) override {
    json_.Member(field.name);
    return true;
  }
  void Default(const Field& field) override {
    json_.Member(field.name);
    Leaf(*field.shape, DefaultOf(field));
  }
  void Leaf(const Shape& shape, const Element& element) override;

 private:
  void PutInteger(ByteView content);
  void PutNamed(const Shape& shape, ByteView content);
  void PutBits(const Shape& shape, ByteView content);
  void PutString(const Shape& shape, const Element& element);
  void PutKind(uint8_t identifier, const Element& element);
  void PutName(const Element& element, bool hasMask);
  void PutRdn(ByteView content);
  void PutFamily(ByteView content);
  void PutAddress(const Shape& shape, const Element& element);
  void PutOctets(ByteView bytes) {
    json_.Begin('{');
    json_.HexMember("octets", bytes);
    json_.End('}');
  }
  // Octets where the text does not tell them.
  void PutTextOrBoth(std::string_view text, bool comesBack, ByteView bytes) {
    json_.StringMember("text", text);
    if (!comesBack) json_.HexMember("octets", bytes);
    json_.End('}');
  }
  template <class Put>
  void PutText(Put put) {
    json_.String(TextOf(put));
  }

  JsonOutput& json_;
  ByteView family_;  // of the addresses that come
};

void JsonVisitor::Leaf(const Shape& shape, const Element& element) {
  const ByteView content = element.content;
  switch (shape.kind) {
    case ShapeKind::kBoolean:
      return json_.Literal(content[0] != 0 ? "true" : "false");
    case ShapeKind::kNull:
      return json_.Literal("null");
    case ShapeKind::kInteger:
      return shape.names.count != 0 ? PutNamed(shape, content) : PutInteger(content);
    case ShapeKind::kEnumerated:
    case ShapeKind::kTlsNumber:
      return PutNamed(shape, content);
    case ShapeKind::kBits:
      return PutBits(shape, content);
    case ShapeKind::kAddressFamily:
      return PutFamily(content);
    case ShapeKind::kAddress:
      return PutAddress(shape, element);
    case ShapeKind::kOid:
      return PutText([content](Output* out) { PutIdentifierName(content, out); });
    case ShapeKind::kUtcTime:
    case ShapeKind::kTime:
      return PutText([&](Output* out) { PutTimeText(IdentifierOf(shape), content, out); });
    case ShapeKind::kTlsTime:
      return PutText([content](Output* out) { PutMilliseconds(TlsNumber(content), out); });
    case ShapeKind::kAscii:
    case ShapeKind::kString:
      return PutString(shape, element);
    case ShapeKind::kGeneralName:
    case ShapeKind::kSubtreeBase:
      return PutName(element, shape.kind == ShapeKind::kSubtreeBase);
    case ShapeKind::kRdn:
      return PutRdn(content);
    case ShapeKind::kAny:
      return PutKind(element.identifier, element);
    default:
      return json_.Hex(content);
  }
}

void JsonVisitor::PutInteger(ByteView content) {
  int64_t number = 0;
  if (IsShortInteger(content, &number)) return json_.Number(number);
  json_.Hex(content);
}

void JsonVisitor::PutNamed(const Shape& shape, ByteView content) {
  int64_t number = 0;
  const bool is_short = shape.kind == ShapeKind::kTlsNumber
                            ? (number = static_cast<int64_t>(TlsNumber(content)), true)
                            : IsShortInteger(content, &number);
  const char* const name =
      is_short && number >= 0 ? NameOf(shape, static_cast<uint64_t>(number)) : nullptr;
  if (name != nullptr) return json_.String(name);
  return is_short ? json_.Number(number) : json_.Hex(content);
}

void JsonVisitor::PutBits(const Shape& shape, ByteView content) {
  json_.Begin('[');
  ForEachBit(content, [this, &shape](size_t bit) {
    const char* const name = NameOf(shape, bit);
    if (name != nullptr) {
      json_.String(name);
    } else {
      json_.Number(static_cast<int64_t>(bit));
    }
  });
  json_.End(']');
}

void JsonVisitor::PutString(const Shape& shape, const Element& element) {
  const uint8_t only = shape.kind == ShapeKind::kAscii ? uint8_t{kIA5String} : IdentifierOf(shape);
  if (only == 0) return PutKind(element.identifier, element);
  std::string text;
  if (!StringText(only, element.content, &text)) return PutOctets(element.bytes);
  json_.String(text);
}

void JsonVisitor::PutKind(uint8_t identifier, const Element& element) {
  const char* const kind = StringKindName(identifier);
  std::string text;
  if (kind == nullptr || !StringText(identifier, element.content, &text)) {
    return PutOctets(element.bytes);
  }
  json_.Begin('{');
  json_.StringMember("kind", kind);
  json_.StringMember("text", text);
  json_.End('}');
}

void JsonVisitor::PutName(const Element& element, bool hasMask) {
  const std::string text = TextOfName(element);
  const size_t colon = text.find(':');
  json_.Begin('{');
  json_.StringMember("kind", std::string_view(text).substr(0, colon));
  PutTextOrBoth(std::string_view(text).substr(colon + 1),
                NameComesBack(text, hasMask, element.bytes), element.bytes);
}

void JsonVisitor::PutRdn(ByteView content) {
  const std::string text = TextOfRdn(content);
  json_.Begin('{');
  PutTextOrBoth(text, RdnComesBack(text, content), content);
}

void JsonVisitor::PutFamily(ByteView content) {
  family_ = content;
  if (AddressSizeOf(content) == 0) return json_.Hex(content);
  PutText([content](Output* out) { PutFamilyText(content, out); });
}

void JsonVisitor::PutAddress(const Shape& shape, const Element& element) {
  if (!AddressComesBack(shape.number, family_, element.content)) return PutOctets(element.bytes);
  PutText([&](Output* out) { PutAddressText(shape.number, family_, element.content, out); });
}

}  // namespace

bool PutValueJson(const Shape* shape, ByteView der, Leniency leniency, JsonOutput* json,
                  Refusal* refusal) {
  if (shape == nullptr) {
    json->Begin('{');
    json->HexMember("octets", der);
    json->End('}');
    return true;
  }
  JsonVisitor visitor(json);
  return ReadByShape(*shape, der, leniency, &visitor, refusal);
}

}  // namespace Ortholan::strict
