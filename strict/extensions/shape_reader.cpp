#include "strict/extensions/shape_reader.h"

#include <ortholan/strict/general_names.h>

#include "strict/certificates/time_text.h"
#include "strict/der/any_value.h"
#include "strict/der/boolean.h"
#include "strict/der/oid.h"
#include "strict/der/reader.h"
#include "strict/der/set_order.h"
#include "strict/extensions/tls_reader.h"
#include "strict/general_names/general_name_view.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {

const Shape kAnyShape = {ShapeKind::kAny};

namespace {

// Whether one of the alternatives may begin with the octet.
bool AnyMayBegin(const Rows<Field>& alternatives, uint8_t octet);

// Whether a value of the shape may.
inline bool MayBegin(const Shape& shape, uint8_t octet) {
  switch (shape.kind) {
    case ShapeKind::kAny:
    case ShapeKind::kOpen:
    case ShapeKind::kGeneralName:
    case ShapeKind::kSubtreeBase:
      return true;
    case ShapeKind::kString:
      return octet < 0x20 && (shape.number >> octet & 1) != 0;
    case ShapeKind::kChoice:
      return AnyMayBegin(shape.fields, octet);
    default:
      return octet == IdentifierOf(shape);
  }
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

class Walk {
 public:
  Walk(Leniency leniency, ShapeVisitor* visitor, Refusal* refusal)
      : leniency_(leniency), visitor_(visitor), refusal_(refusal) {}

  // The value at the reader's place.
  bool ReadValue(const Shape& shape, Reader* in) {
    Element element;
    if (in->AtEnd() || !MayBegin(shape, in->rest()[0])) {
      return in->RefuseHere(ORTHOLAN_REASON_IDENTIFIER, IdentifierOf(shape));
    }
    return in->Read(&element) && ReadElement(shape, element);
  }

 private:
  // An element whose tag is in order.
  bool ReadElement(const Shape& shape, const Element& element) {
    switch (shape.kind) {
      case ShapeKind::kSequence:
        return ReadSequence(shape, element.content);
      case ShapeKind::kChoice:
        return ReadChoice(shape, element);
      case ShapeKind::kSequenceOf:
      case ShapeKind::kSetOf:
        return ReadList(shape, element.content);
      case ShapeKind::kOpen:
        return ReadElementOf(TypeOf(shape), element);
      case ShapeKind::kTlsOctets:
        return ReadTls(*shape.element, element.content, visitor_, refusal_);
      default:
        break;
    }
    if (!CheckLeaf(shape, element)) return false;
    if (shape.kind == ShapeKind::kOid) last_oid_ = element.content;
    if (visitor_ != nullptr) visitor_->Leaf(shape, element);
    return true;
  }

  // A whole element that has to be of the shape.
  bool ReadElementOf(const Shape& shape, const Element& element) {
    Reader in(element.bytes, leniency_, refusal_);
    return ReadValue(shape, &in);
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
    if (!in->Read(&element)) return false;
    if (field.presence >= Presence::kDefault && leniency_ == Leniency::kDer &&
        IsDefault(element.content)) {
      return in->RefuseAt(ORTHOLAN_REASON_DEFAULT, place);
    }
    return ReadFieldValue(field, element);
  }

  bool ReadFieldValue(const Field& field, const Element& element) {
    ShapeVisitor* const listener = visitor_;
    if (listener != nullptr && !listener->BeginField(field, element.bytes)) visitor_ = nullptr;
    const bool is_read = field.tagging == Tagging::kExplicit
                             ? ReadInside(*field.shape, element.content)
                             : ReadElement(*field.shape, element);
    visitor_ = listener;
    return is_read;
  }

  // false and 0 are encoded alike.
  static bool IsDefault(ByteView content) { return content.size == 1 && content[0] == 0; }

  bool LacksField(const Field& field, Reader* in) {
    if (field.presence == Presence::kRequired) {
      return in->RefuseHere(ORTHOLAN_REASON_IDENTIFIER, IdentifierOf(field));
    }
    if (field.presence != Presence::kOptional && visitor_ != nullptr) visitor_->Default(field);
    return true;
  }

  // The one value inside an explicit tag.
  bool ReadInside(const Shape& shape, ByteView content) {
    Reader in(content, leniency_, refusal_);
    return ReadValue(shape, &in) && in.End();
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
    for (ByteView before; !in.AtEnd(); ++count) {
      const ByteView rest = in.rest();
      if (!ReadValue(*shape.element, &in)) return false;
      const ByteView element = rest.First(rest.size - in.rest().size);
      if (is_sorted && count != 0 && !IsAscending(before, element)) {
        return in.RefuseAt(ORTHOLAN_REASON_SET_ORDER, element.data);
      }
      before = element;
    }
    visitor_ = listener;
    if (listener != nullptr) listener->EndList(shape, content, count);
    return true;
  }

  bool CheckLeaf(const Shape& shape, const Element& element);
  bool CheckName(const Element& element, bool hasMask);
  bool CheckBits(ByteView content);
  bool CheckText(uint8_t identifier, const Element& element);

  bool Fail(ortholan_reason reason, ByteView content) {
    return Refuse(refusal_, reason, content.data, content.size);
  }

  Leniency leniency_;
  ShapeVisitor* visitor_;
  Refusal* refusal_;
  ByteView last_oid_;
};

// X.690 11.2: zeros behind the last bit that is set are no DER, as the bits have names.
bool Walk::CheckBits(ByteView content) {
  if (content.empty() || content[0] > 7 || (content.size == 1 && content[0] != 0)) {
    return Fail(ORTHOLAN_REASON_BIT_STRING, content);
  }
  if (content.size == 1 || leniency_ != Leniency::kDer) return true;
  const uint8_t last = content[content.size - 1];
  const unsigned unused = content[0];
  return (last & ((2u << unused) - 1)) == 1u << unused || Fail(ORTHOLAN_REASON_BIT_STRING, content);
}

bool Walk::CheckName(const Element& element, bool hasMask) {
  GeneralNameView name;
  if (!GeneralNameView::FromElement(element, &name)) {
    return Fail(ORTHOLAN_REASON_GENERAL_NAME, element.bytes);
  }
  return leniency_ == Leniency::kStructure || name.Check(leniency_, hasMask, refusal_);
}

bool Walk::CheckText(uint8_t identifier, const Element& element) {
  return CheckString({identifier, element.content, element.bytes}, leniency_, refusal_);
}

bool IsBooleanOf(ByteView content, Leniency leniency) {
  return content.size == 1 &&
         (content[0] == 0 || content[0] == 0xFF || leniency == Leniency::kLenient);
}

bool IsMinimal(ByteView content, Leniency leniency) {
  if (content.size < 2 || leniency == Leniency::kLenient) return !content.empty();
  return content[0] != (content[1] >= 0x80 ? 0xFF : 0x00);
}

bool IsTime(uint8_t identifier, ByteView content) {
  Output none(nullptr, 0);
  return PutTimeText(identifier, content, &none);
}

bool Walk::CheckLeaf(const Shape& shape, const Element& element) {
  const ByteView content = element.content;
  switch (shape.kind) {
    case ShapeKind::kBoolean:
      return IsBooleanOf(content, leniency_) || Fail(ORTHOLAN_REASON_BOOLEAN, content);
    case ShapeKind::kInteger:
    case ShapeKind::kEnumerated:
      return IsMinimal(content, leniency_) || Fail(ORTHOLAN_REASON_INTEGER, content);
    case ShapeKind::kBits:
      return CheckBits(content);
    case ShapeKind::kNull:
      return content.empty() || Fail(ORTHOLAN_REASON_NULL, content);
    case ShapeKind::kOid:
      return IsIdentifier(content) || Fail(ORTHOLAN_REASON_OID, content);
    case ShapeKind::kUtcTime:
    case ShapeKind::kTime:
      return IsTime(IdentifierOf(shape), content) || Fail(ORTHOLAN_REASON_TIME, content);
    case ShapeKind::kAscii:
      return CheckText(kIA5String, element);
    case ShapeKind::kString:
      return CheckText(IdentifierOf(shape) != 0 ? IdentifierOf(shape) : element.identifier,
                       element);
    case ShapeKind::kRdn: {
      size_t count = 0;
      return CheckRdn(content, leniency_, refusal_, &count);
    }
    case ShapeKind::kGeneralName:
    case ShapeKind::kSubtreeBase:
      return CheckName(element, shape.kind == ShapeKind::kSubtreeBase);
    case ShapeKind::kAny:
      return CheckValue(element, leniency_, refusal_);
    default:
      return true;
  }
}

}  // namespace

bool ReadByShape(const Shape& shape, ByteView der, Leniency leniency, ShapeVisitor* visitor,
                 Refusal* refusal) {
  Reader in(der, leniency, refusal);
  return Walk(leniency, visitor, refusal).ReadValue(shape, &in) && in.End();
}

}  // namespace Ortholan::strict
