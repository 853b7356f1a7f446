#include "strict/extensions/leaf_check.h"

#include "strict/certificates/time_text.h"
#include "strict/der/any_value.h"
#include "strict/der/bit_string.h"
#include "strict/der/integer.h"
#include "strict/der/oid.h"
#include "strict/general_names/general_name_view.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {
namespace {

bool Fail(Refusal* refusal, ortholan_reason reason, ByteView content) {
  return Refuse(refusal, reason, content.data, content.size);
}

bool IsBoolean(ByteView content, Leniency leniency) {
  return content.size == 1 &&
         (content[0] == 0 || content[0] == 0xFF || leniency == Leniency::kLenient);
}

bool IsInteger(ByteView content, Leniency leniency) {
  return leniency == Leniency::kLenient ? !content.empty() : IsMinimalInteger(content);
}

bool IsNamedBits(ByteView content, Leniency leniency) {
  return IsBitString(content) && (leniency != Leniency::kDer || AreNamedBits(content));
}

bool IsPlainBits(ByteView content, Leniency leniency) {
  return IsBitString(content) && (leniency != Leniency::kDer || AreUnusedZero(content));
}

bool IsTime(uint8_t identifier, ByteView content) {
  Output none(nullptr, 0);
  return PutTimeText(identifier, content, &none);
}

bool CheckName(const Element& element, bool has_mask, Leniency leniency, Refusal* refusal) {
  GeneralNameView name;
  if (!GeneralNameView::FromElement(element, &name)) {
    return Fail(refusal, ORTHOLAN_REASON_GENERAL_NAME, element.bytes);
  }
  return leniency == Leniency::kStructure || name.Check(leniency, has_mask, refusal);
}

bool CheckText(uint8_t identifier, const Element& element, Leniency leniency, Refusal* refusal) {
  return CheckString({identifier, element.content, element.bytes}, leniency, refusal);
}

bool CheckOneRdn(ByteView content, Leniency leniency, Refusal* refusal) {
  size_t count = 0;
  return CheckRdn(content, leniency, refusal, &count);
}

}  // namespace

bool CheckLeaf(const Shape& shape, const Element& element, Leniency leniency, Refusal* refusal) {
  const ByteView content = element.content;
  switch (shape.kind) {
    case ShapeKind::kBoolean:
      return IsBoolean(content, leniency) || Fail(refusal, ORTHOLAN_REASON_BOOLEAN, content);
    case ShapeKind::kInteger:
    case ShapeKind::kEnumerated:
      return IsInteger(content, leniency) || Fail(refusal, ORTHOLAN_REASON_INTEGER, content);
    case ShapeKind::kBits:
      return IsNamedBits(content, leniency) || Fail(refusal, ORTHOLAN_REASON_BIT_STRING, content);
    case ShapeKind::kAddress:
      return IsPlainBits(content, leniency) || Fail(refusal, ORTHOLAN_REASON_BIT_STRING, content);
    case ShapeKind::kNull:
      return content.empty() || Fail(refusal, ORTHOLAN_REASON_NULL, content);
    case ShapeKind::kOid:
      return IsIdentifier(content) || Fail(refusal, ORTHOLAN_REASON_OID, content);
    case ShapeKind::kUtcTime:
    case ShapeKind::kTime:
      return IsTime(IdentifierOf(shape), content) || Fail(refusal, ORTHOLAN_REASON_TIME, content);
    case ShapeKind::kAscii:
      return CheckText(kIA5String, element, leniency, refusal);
    case ShapeKind::kString:
      return CheckText(IdentifierOf(shape) != 0 ? IdentifierOf(shape) : element.identifier, element,
                       leniency, refusal);
    case ShapeKind::kRdn:
      return CheckOneRdn(content, leniency, refusal);
    case ShapeKind::kGeneralName:
    case ShapeKind::kSubtreeBase:
      return CheckName(element, shape.kind == ShapeKind::kSubtreeBase, leniency, refusal);
    case ShapeKind::kAny:
      return CheckValue(element, leniency, refusal);
    default:
      return true;
  }
}

}  // namespace Ortholan::strict
