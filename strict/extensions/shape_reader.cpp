#include "strict/extensions/shape_reader.h"

#include "strict/der/reader.h"
#include "strict/der/set_order.h"
#include "strict/extensions/leaf_check.h"
#include "strict/extensions/tls_reader.h"

namespace Ortholan::strict {

const Shape kAnyShape = {ShapeKind::kAny};

namespace {

// Whether one of the alternatives may begin with the octet.
bool AnyMayBegin(const Rows<Field>& alternatives, uint8_t octet);

// Whether a value of the shape may.
inline bool MayBegin(const Shape& shape, uint8_t octet) {
  const uint8_t identifier = IdentifierOf(shape);
  if (identifier != 0) return octet == identifier;
  if (shape.kind == ShapeKind::kString) return octet < 0x20 && (shape.number >> octet & 1) != 0;
  return shape.kind != ShapeKind::kChoice || AnyMayBegin(shape.fields, octet);
}

inline bool MayBegin(const Field& field, uint8_t octet) {
  return field.tagging == Tagging::kNone ? MayBegin(*field.shape, octet)
                                         : octet == IdentifierOf(field);
}

bool AnyMayBegin(const Rows<Field>& alternatives, uint8_t octet) {
  for (const Field& field : alternatives) {
    if (MayBegin(field, octet)) return true;
  }
  return false;
}

// Whether values of the kind are read part by part.
constexpr bool HasParts(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kOpen:
    case ShapeKind::kTlsOctets:
    case ShapeKind::kSequence:
    case ShapeKind::kChoice:
    case ShapeKind::kSequenceOf:
    case ShapeKind::kSetOf:
      return true;
    default:
      return false;
  }
}

class Walk {
 public:
  Walk(Leniency leniency, ShapeVisitor* visitor, Refusal* refusal)
      : leniency_(leniency), visitor_(visitor), refusal_(refusal) {}

  // The one value of the shape that is all of `in`.
  bool ReadWhole(const Shape& shape, ByteView in) {
    Reader reader(in, leniency_, refusal_);
    Element element;
    return ReadValue(shape, &reader, &element) && reader.End();
  }

 private:
  // The value at the reader's place.
  bool ReadValue(const Shape& shape, Reader* in, Element* element) {
    if (in->AtEnd() || !MayBegin(shape, in->rest()[0])) {
      return in->RefuseHere(ORTHOLAN_REASON_IDENTIFIER, IdentifierOf(shape));
    }
    return in->ReadInline(element) && ReadElement(shape, *element);
  }

  // An element whose tag is in order.
  bool ReadElement(const Shape& shape, const Element& element) {
    return HasParts(shape.kind) ? ReadParts(shape, element) : ReadLeaf(shape, element);
  }

  // Most values are leaves, which need no frame of their own.
  [[gnu::noinline]] bool ReadParts(const Shape& shape, const Element& element) {
    switch (shape.kind) {
      case ShapeKind::kSequence:
        return ReadSequence(shape, element.content);
      case ShapeKind::kChoice:
        return ReadChoice(shape, element);
      case ShapeKind::kOpen:
        return ReadWhole(TypeOf(shape), element.bytes);
      case ShapeKind::kTlsOctets:
        return ReadTls(*shape.element, element.content, visitor_, refusal_);
      default:
        return ReadList(shape, element.content);
    }
  }

  bool ReadLeaf(const Shape& shape, const Element& element) {
    if (!CheckLeaf(shape, element, leniency_, refusal_)) return false;
    if (shape.kind == ShapeKind::kOid) last_oid_ = element.content;
    if (visitor_ != nullptr) visitor_->Leaf(shape, element);
    return true;
  }

  const Shape& TypeOf(const Shape& open) const {
    for (const OpenType& type : open.types) {
      if (SameBytes(type.oid.view(), last_oid_)) return *type.shape;
    }
    return kAnyShape;
  }

  bool ReadSequence(const Shape& shape, ByteView content) {
    Reader in(content, leniency_, refusal_);
    if (visitor_ != nullptr) visitor_->BeginFields(shape);
    for (const Field& field : shape.fields) {
      if (!ReadField(field, &in)) return false;
    }
    if (visitor_ != nullptr) visitor_->EndFields(shape);
    return in.End();
  }

  bool ReadField(const Field& field, Reader* in) {
    if (in->AtEnd() || !MayBegin(field, in->rest()[0])) return LacksField(field, in);
    const uint8_t* const place = in->rest().data;
    Element element;
    if (!in->ReadInline(&element)) return false;
    if (field.presence >= Presence::kDefault && leniency_ == Leniency::kDer &&
        IsDefault(field, element.content)) {
      return in->RefuseAt(ORTHOLAN_REASON_DEFAULT, place);
    }
    return ReadFieldValue(field, element);
  }

  bool ReadFieldValue(const Field& field, const Element& element) {
    ShapeVisitor* const listener = visitor_;
    if (listener != nullptr && !listener->BeginField(field, element.bytes)) visitor_ = nullptr;
    const bool is_read = field.tagging == Tagging::kExplicit
                             ? ReadWhole(*field.shape, element.content)
                             : ReadElement(*field.shape, element);
    visitor_ = listener;
    return is_read;
  }

  static bool IsDefault(const Field& field, ByteView content) {
    return content.size == 1 && content[0] == field.fallback;
  }

  bool LacksField(const Field& field, Reader* in) {
    if (field.presence == Presence::kRequired) {
      return in->RefuseHere(ORTHOLAN_REASON_IDENTIFIER, IdentifierOf(field));
    }
    if (field.presence != Presence::kOptional && visitor_ != nullptr) visitor_->Default(field);
    return true;
  }

  bool ReadChoice(const Shape& shape, const Element& element) {
    for (const Field& field : shape.fields) {
      if (!MayBegin(field, element.identifier)) continue;
      if (visitor_ != nullptr) visitor_->BeginFields(shape);
      const bool is_read = ReadFieldValue(field, element);
      if (is_read && visitor_ != nullptr) visitor_->EndFields(shape);
      return is_read;
    }
    return false;  // MayBegin has looked
  }

  bool ReadList(const Shape& shape, ByteView content) {
    Reader in(content, leniency_, refusal_);
    const bool is_sorted = shape.kind == ShapeKind::kSetOf && leniency_ == Leniency::kDer;
    size_t count = 0;
    ShapeVisitor* const listener = visitor_;
    if (listener != nullptr && !listener->BeginList(shape)) visitor_ = nullptr;
    Element element;
    for (ByteView before; !in.AtEnd(); before = element.bytes, ++count) {
      if (!ReadValue(*shape.element, &in, &element)) return false;
      if (is_sorted && count != 0 && !IsAscending(before, element.bytes)) {
        return in.RefuseAt(ORTHOLAN_REASON_SET_ORDER, element.bytes.data);
      }
    }
    visitor_ = listener;
    if (listener != nullptr) listener->EndList(shape, content, count);
    return true;
  }

  Leniency leniency_;
  ShapeVisitor* visitor_;
  Refusal* refusal_;
  ByteView last_oid_;
};

}  // namespace

bool ReadByShape(const Shape& shape, ByteView der, Leniency leniency, ShapeVisitor* visitor,
                 Refusal* refusal) {
  return Walk(leniency, visitor, refusal).ReadWhole(shape, der);
}

}  // namespace Ortholan::strict
