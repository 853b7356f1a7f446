#include "strict/extensions/struct_reader.h"

#include <ortholan/strict/extension_values.h>

#include "strict/certificates/time_text.h"
#include "strict/der/integer.h"
#include "strict/extensions/moment.h"
#include "strict/extensions/tls_reader.h"

namespace Ortholan::strict {
namespace {

ortholan_octets Octets(ByteView view) { return {view.data, view.size}; }

ortholan_integer IntegerOf(ByteView content) {
  const bool is_negative = (content[0] & 0x80) != 0;
  if (content.size > 8) return {Octets(content), is_negative ? INT64_MIN : INT64_MAX};
  return {Octets(content), ReadInteger(content)};
}

ortholan_bits ViewOfBits(ByteView content) {
  uint32_t flags = 0;
  for (size_t bit = 0; bit < 32 && bit < (content.size - 1) * 8; ++bit) {
    flags |= static_cast<uint32_t>(content[1 + bit / 8] >> (7 - bit % 8) & 1) << bit;
  }
  return {Octets(content), flags};
}

ortholan_moment MomentOf(uint8_t identifier, ByteView content) {
  char text[20];
  Output out(text, sizeof text);
  PutTimeText(identifier, content, &out);
  return {SecondsOf({text, out.size()}), 1};
}

template <class Value>
void Store(const Value& value, uint8_t* place) {
  *static_cast<Value*>(static_cast<void*>(place)) = value;
}

// Fields go to their places; lists and values of open types are stored whole.
class Filler final : public ShapeVisitor {
 public:
  explicit Filler(void* out) : base_(static_cast<uint8_t*>(out)), place_(base_) {}

  void BeginFields(const Shape&) override {
    bases_[depth_++] = base_;
    base_ = place_;
  }
  void EndFields(const Shape&) override { base_ = bases_[--depth_]; }
  bool BeginList(const Shape&) override { return false; }
  void EndList(const Shape& shape, ByteView content, size_t count) override;
  bool BeginField(const Field& field, ByteView bytes) override;
  void Default(const Field& field) override;
  void Leaf(const Shape& shape, const Element& element) override;

 private:
  static constexpr size_t kMostDepth = 4;  // of structures inside each other

  uint8_t* base_;   // of the structure whose fields come
  uint8_t* place_;  // of the value that comes
  ByteView bytes_;  // its octets
  uint8_t* bases_[kMostDepth] = {};
  size_t depth_ = 0;
};

bool Filler::BeginField(const Field& field, ByteView bytes) {
  if (field.place == kNoMember) return false;
  place_ = base_ + field.place;
  bytes_ = bytes;
  if (field.shape->kind != ShapeKind::kOpen) return true;
  Store(Octets(bytes), place_);
  return false;
}

// Zeros stand there already.
void Filler::Default(const Field& field) {
  if (field.fallback == 0 || field.place == kNoMember) return;
  place_ = base_ + field.place;
  Leaf(*field.shape, DefaultOf(field));
}

void Filler::EndList(const Shape& shape, ByteView content, size_t count) {
  if (shape.element->kind == ShapeKind::kGeneralName) {
    Store(ortholan_general_names_view{Octets(bytes_), Octets(content), count}, place_);
  } else {
    Store(ortholan_list{Octets(content), count}, place_);
  }
}

void Filler::Leaf(const Shape& shape, const Element& element) {
  const ByteView content = element.content;
  switch (shape.kind) {
    case ShapeKind::kBoolean:
      return Store(int32_t{content[0] != 0}, place_);
    case ShapeKind::kInteger:
    case ShapeKind::kEnumerated:
      return Store(IntegerOf(content), place_);
    case ShapeKind::kBits:
      return Store(ViewOfBits(content), place_);
    case ShapeKind::kString: {
      const uint8_t only = IdentifierOf(shape);
      const uint8_t identifier = only != 0 ? only : element.identifier;
      return Store(ortholan_string{Octets(content), identifier}, place_);
    }
    case ShapeKind::kUtcTime:
    case ShapeKind::kTime:
      return Store(MomentOf(IdentifierOf(shape), content), place_);
    case ShapeKind::kTlsNumber:
    case ShapeKind::kTlsTime:
      return Store(TlsNumber(content), place_);
    case ShapeKind::kNull:
      return Store(int32_t{1}, place_);
    case ShapeKind::kGeneralName:
    case ShapeKind::kSubtreeBase:
    case ShapeKind::kAny:
      return Store(Octets(element.bytes), place_);
    default:
      return Store(Octets(content), place_);
  }
}

}  // namespace

bool ReadStruct(const Shape& shape, ByteView der, Leniency leniency, void* out, Refusal* refusal) {
  Filler filler(out);
  return ReadByShape(shape, der, leniency, &filler, refusal);
}

bool TakeTlsStruct(const Shape& element, ByteView* list, ByteView* bytes, void* out) {
  Filler filler(out);
  return ReadTlsElement(element, list, bytes, &filler);
}

}  // namespace Ortholan::strict
