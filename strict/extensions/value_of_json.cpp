#include "strict/extensions/value_of_json.h"

#include <ortholan/strict/extensions.h>

#include "strict/der/set_order.h"
#include "strict/der/string_value.h"
#include "strict/extensions/json_fields.h"
#include "strict/extensions/leaf_of_json.h"
#include "strict/extensions/name_of_json.h"
#include "strict/extensions/shape_reader.h"
#include "strict/extensions/tls_reader.h"

namespace Ortholan::strict {
namespace {

constexpr uint8_t kOwnTag = 0;  // an element keeps the identifier that its shape has

// From the end of the encoding to its front, so that lengths are known when their headers are put.
class Writer {
 public:
  Writer(BackwardOutput* out, Refusal* refusal) : out_(out), refusal_(refusal) {}

  // A whole element, with another identifier where an implicit tag gives one.
  bool Put(const Shape& shape, const JsonValue& json, uint8_t identifier = kOwnTag) {
    switch (shape.kind) {
      case ShapeKind::kChoice:
        return PutChoice(shape, json);
      case ShapeKind::kOpen:
        return PutOpen(shape, json);
      case ShapeKind::kAny:
        return PutAny(json);
      case ShapeKind::kAddress:
        if (IsOctetsAlone(json)) return PutOctets(shape, json);
        break;
      case ShapeKind::kGeneralName:
      case ShapeKind::kSubtreeBase:
        return PutElement(NameOfJson(shape, json, &leaf_, refusal_));
      case ShapeKind::kString:
        if (IdentifierOf(shape) == 0) {
          return PutElement(StringOfJson(shape.number, json, &leaf_, refusal_));
        }
        break;
      default:
        break;
    }
    const size_t end = out_->size();
    if (!PutContent(shape, json)) return false;
    out_->PutHeader(identifier != kOwnTag ? identifier : IdentifierOf(shape), out_->size() - end);
    return true;
  }

 private:
  bool Fail(ortholan_reason reason, const JsonValue& json) {
    return RefuseJson(reason, json.rest, refusal_);
  }

  // What was made apart.
  bool PutElement(bool isMade) {
    if (isMade) out_->Put(AsBytes(leaf_.data(), leaf_.size()));
    return isMade;
  }

  bool PutContent(const Shape& shape, const JsonValue& json) {
    switch (shape.kind) {
      case ShapeKind::kSequence:
        return PutFields(shape, json);
      case ShapeKind::kSequenceOf:
      case ShapeKind::kSetOf:
        return PutList(shape, json);
      case ShapeKind::kTlsOctets:
        return PutTls(*shape.element, json);
      case ShapeKind::kAddress:
        return PutElement(AddressOfJson(shape, family_, json, &leaf_, refusal_));
      default:
        return PutElement(LeafOfJson(shape, json, &leaf_, refusal_));
    }
  }

  bool PutFields(const Shape& shape, const JsonValue& json) {
    std::vector<const JsonValue*> values(shape.fields.count);
    if (!Take(shape, json, &values) || !FindKeys(shape, values)) return false;
    const std::string oid = last_oid_;
    for (size_t i = shape.fields.count; i-- != 0;) {
      const Field& field = shape.fields.first[i];
      last_oid_ = oid;
      if (values[i] == nullptr ? !MayLack(field, json) : !PutField(field, *values[i])) return false;
    }
    return true;
  }

  bool Take(const Shape& shape, const JsonValue& json, std::vector<const JsonValue*>* values) {
    std::vector<const char*> names;
    for (const Field& field : shape.fields) names.push_back(field.name);
    return TakeMembers(json, names.data(), names.size(), values->data(), refusal_);
  }

  // Which type stands in an open field is told by the identifier beside it, what addresses are by
  // their family.
  bool FindKeys(const Shape& shape, const std::vector<const JsonValue*>& values) {
    for (size_t i = 0; i < values.size(); ++i) {
      const Shape& part = *shape.fields.first[i].shape;
      std::string* const key = part.kind == ShapeKind::kOid             ? &last_oid_
                               : part.kind == ShapeKind::kAddressFamily ? &family_
                                                                        : nullptr;
      if (key != nullptr && values[i] != nullptr && !LeafOfJson(part, *values[i], key, refusal_)) {
        return false;
      }
    }
    return true;
  }

  bool MayLack(const Field& field, const JsonValue& json) {
    return field.presence != Presence::kRequired || Fail(ORTHOLAN_REASON_JSON_LACKS, json);
  }

  bool PutField(const Field& field, const JsonValue& json) {
    if (field.presence >= Presence::kDefault && IsDefault(field, json)) return true;
    if (field.tagging == Tagging::kNone) return Put(*field.shape, json);
    if (field.tagging == Tagging::kImplicit) return Put(*field.shape, json, IdentifierOf(field));
    const size_t end = out_->size();
    if (!Put(*field.shape, json)) return false;
    out_->PutHeader(IdentifierOf(field), out_->size() - end);
    return true;
  }

  // X.690 11.5: a default value is left out.
  bool IsDefault(const Field& field, const JsonValue& json) {
    return LeafOfJson(*field.shape, json, &leaf_, nullptr) && leaf_.size() == 1 &&
           static_cast<uint8_t>(leaf_[0]) == field.fallback;
  }

  bool PutChoice(const Shape& shape, const JsonValue& json) {
    std::vector<const JsonValue*> values(shape.fields.count);
    if (!Take(shape, json, &values)) return false;
    if (json.members.size() != 1) {
      return Fail(json.members.empty() ? ORTHOLAN_REASON_JSON_LACKS : ORTHOLAN_REASON_JSON_FORM,
                  json);
    }
    size_t chosen = 0;
    while (values[chosen] == nullptr) ++chosen;
    return PutField(shape.fields.first[chosen], *values[chosen]);
  }

  bool PutList(const Shape& shape, const JsonValue& json) {
    if (json.form != JsonForm::kArray) return Fail(ORTHOLAN_REASON_JSON_FORM, json);
    const size_t end = out_->size();
    const std::string oid = last_oid_;
    for (size_t i = json.members.size(); i-- != 0;) {
      last_oid_ = oid;
      if (!Put(*shape.element, json.members[i].value)) return false;
    }
    if (shape.kind == ShapeKind::kSetOf && out_->fits() && out_->size() != end) {
      SortSetOf(out_->front(), out_->size() - end);
    }
    return true;
  }

  bool PutOpen(const Shape& shape, const JsonValue& json) {
    for (const OpenType& type : shape.types) {
      if (AsText(type.oid.view()) != last_oid_) continue;
      return IsOctetsAlone(json) ? PutOctets(*type.shape, json) : Put(*type.shape, json);
    }
    return PutAny(json);
  }

  bool PutAny(const JsonValue& json) {
    if (IsOctetsAlone(json)) return PutOctets(kAnyShape, json);
    return PutElement(StringOfJson(kStrings, json, &leaf_, refusal_));
  }

  // Octets as they are, which have to be of the shape.
  bool PutOctets(const Shape& shape, const JsonValue& json) {
    const JsonValue& octets = json.members[0].value;
    if (!OctetsOfJson(octets, &leaf_, refusal_)) return false;
    Refusal found;
    if (!CheckByShape(shape, AsBytes(leaf_.data(), leaf_.size()), Leniency::kDer, &found)) {
      return Fail(found.reason, octets);
    }
    return PutElement(true);
  }

  // What is put from `end` on, behind its size.
  bool PutTlsSize(size_t end, const JsonValue& json) {
    const size_t size = out_->size() - end;
    if (size > 0xFFFF) return Fail(ORTHOLAN_REASON_TLS_SIZE, json);
    out_->Put(static_cast<uint8_t>(size));
    out_->Put(static_cast<uint8_t>(size >> 8));
    return true;
  }

  bool PutTls(const Shape& shape, const JsonValue& json) {
    const size_t end = out_->size();
    switch (shape.kind) {
      case ShapeKind::kTlsList:
        return PutTlsList(shape, json) && PutTlsSize(end, json);
      case ShapeKind::kTlsRecord:
        return PutTlsRecord(shape, json);
      case ShapeKind::kTlsVector:
        return PutElement(LeafOfJson(shape, json, &leaf_, refusal_)) && PutTlsSize(end, json);
      default:
        return PutElement(LeafOfJson(shape, json, &leaf_, refusal_));
    }
  }

  bool PutTlsList(const Shape& shape, const JsonValue& json) {
    if (json.form != JsonForm::kArray) return Fail(ORTHOLAN_REASON_JSON_FORM, json);
    for (size_t i = json.members.size(); i-- != 0;) {
      const JsonValue& element = json.members[i].value;
      const size_t end = out_->size();
      const bool is_put =
          IsOctetsAlone(element) ? PutTlsUnknown(element) : PutTls(*shape.element, element);
      if (!is_put || !PutTlsSize(end, element)) return false;
    }
    return true;
  }

  // A structure of a version that is not known.
  bool PutTlsUnknown(const JsonValue& json) {
    const JsonValue& octets = json.members[0].value;
    if (!OctetsOfJson(octets, &leaf_, refusal_)) return false;
    if (leaf_.empty() || leaf_[0] == 0) return Fail(ORTHOLAN_REASON_JSON_TEXT, octets);
    return PutElement(true);
  }

  bool PutTlsRecord(const Shape& shape, const JsonValue& json) {
    std::vector<const JsonValue*> values(shape.fields.count);
    if (!Take(shape, json, &values)) return false;
    for (size_t i = shape.fields.count; i-- != 0;) {
      if (values[i] == nullptr) return Fail(ORTHOLAN_REASON_JSON_LACKS, json);
      if (!PutTls(*shape.fields.first[i].shape, *values[i])) return false;
    }
    return true;
  }

  BackwardOutput* out_;
  Refusal* refusal_;
  std::string leaf_;
  std::string last_oid_;
  std::string family_;
};

}  // namespace

bool PutValueOfJson(const Shape* shape, const JsonValue& json, BackwardOutput* out,
                    Refusal* refusal) {
  if (shape != nullptr && !IsOctetsAlone(json)) return Writer(out, refusal).Put(*shape, json);
  if (!IsOctetsAlone(json)) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json.rest, refusal);
  const JsonValue& value = json.members[0].value;
  std::string octets;
  if (!OctetsOfJson(value, &octets, refusal)) return false;
  const ByteView bytes = AsBytes(octets.data(), octets.size());
  Refusal found;
  if (shape != nullptr && !CheckByShape(*shape, bytes, Leniency::kDer, &found)) {
    return RefuseJson(found.reason, value.rest, refusal);
  }
  out->Put(bytes);
  return true;
}

}  // namespace Ortholan::strict
