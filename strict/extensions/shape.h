// What the value of an extension is made of, as data: one shape for each type of its ASN.1. The
// reader, the writer, JSON, words for people and the structures of C all go by these rows.
//
//   constexpr Field kFields[] = {
//       {"cA", "certificate authority", &kFlag, offsetof(Basic, is_authority),
//        Presence::kToldDefault},
//       {"pathLenConstraint", "path length", &kNumber, offsetof(Basic, path_length),
//        Presence::kOptional},
//   };
//   constexpr Shape kBasicConstraints = Sequence(kFields);
#ifndef ORTHOLAN_STRICT_EXTENSIONS_SHAPE_H_
#define ORTHOLAN_STRICT_EXTENSIONS_SHAPE_H_

#include "bytes/oid_constant.h"
#include "strict/der/element.h"

namespace Ortholan::strict {

enum class ShapeKind : uint8_t {
  kBoolean,
  kInteger,
  kEnumerated,
  kBits,           // BIT STRING with names
  kAddressFamily,  // OCTET STRING that tells what the kAddress behind it are
  kAddress,        // BIT STRING that an address begins with
  kOctets,         // OCTET STRING
  kAscii,          // characters of ASCII in an OCTET STRING or a GeneralString
  kTlsOctets,      // OCTET STRING that holds a TLS structure
  kNull,
  kOid,
  kUtcTime,
  kTime,    // GeneralizedTime
  kString,  // of one type or several
  kAny,
  kOpen,  // of the type that the identifier before it tells
  kRdn,
  kGeneralName,
  kSubtreeBase,  // a general name whose address has a mask
  kSequence,
  kChoice,
  kSequenceOf,
  kSetOf,
  // Parts of TLS structures (RFC 8446 3).
  kTlsList,    // of elements, each behind its size
  kTlsRecord,  // fields one behind the other
  kTlsNumber,
  kTlsTime,    // milliseconds since 1970
  kTlsFixed,   // octets
  kTlsVector,  // octets behind their size
};

// Rows of a table that stands elsewhere.
template <class Row>
struct Rows {
  const Row* first = nullptr;
  size_t count = 0;

  constexpr Rows() = default;
  template <size_t kCount>
  constexpr Rows(const Row (&rows)[kCount]) : first(rows), count(kCount) {}  // NOLINT
  constexpr const Row* begin() const { return first; }
  constexpr const Row* end() const { return first + count; }
};

// The name of a bit or a number.
struct NumberName {
  uint32_t number;
  const char* name;
};

struct Shape;

// The type that an identifier makes the value behind it.
struct OpenType {
  OidConstant oid;
  const Shape* shape;
};

enum class Presence : uint8_t {
  kRequired,
  kOptional,
  kDefault,      // `fallback` where it is not there
  kToldDefault,  // the same, and people are told
};
enum class Tagging : uint8_t { kNone, kImplicit, kExplicit };

constexpr size_t kNoMember = SIZE_MAX;

// A part of a SEQUENCE, or an alternative of a CHOICE.
struct Field {
  const char* name;   // as in its ASN.1
  const char* words;  // for people; "" for what stands on the line of the whole
  const Shape* shape;
  size_t place;  // offset in the structure of C; kNoMember where there is none
  Presence presence = Presence::kRequired;
  Tagging tagging = Tagging::kNone;
  uint8_t tag = 0;
  uint8_t fallback = 0;  // content of a default: false, or a number
};

// The identifier octet of a kind of which every value begins with the same; 0 for others.
constexpr uint8_t IdentifierOf(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kBoolean:
      return kBoolean;
    case ShapeKind::kInteger:
      return kInteger;
    case ShapeKind::kEnumerated:
      return kEnumerated;
    case ShapeKind::kBits:
    case ShapeKind::kAddress:
      return kBitString;
    case ShapeKind::kAddressFamily:
    case ShapeKind::kOctets:
    case ShapeKind::kTlsOctets:
      return kOctetString;
    case ShapeKind::kNull:
      return kNull;
    case ShapeKind::kOid:
      return kOid;
    case ShapeKind::kUtcTime:
      return kUtcTime;
    case ShapeKind::kTime:
      return kGeneralizedTime;
    case ShapeKind::kSequence:
    case ShapeKind::kSequenceOf:
      return kSequence;
    case ShapeKind::kSetOf:
    case ShapeKind::kRdn:
      return kSet;
    default:
      return 0;
  }
}

// The same where the number of the shape tells more.
constexpr uint8_t IdentifierOf(ShapeKind kind, uint32_t number) {
  if (kind == ShapeKind::kAscii) return static_cast<uint8_t>(number);
  if (kind != ShapeKind::kString) return IdentifierOf(kind);
  for (uint8_t identifier = 0; identifier < 0x20; ++identifier) {
    if (number == 1u << identifier) return identifier;
  }
  return 0;
}

struct Shape {
  ShapeKind kind;
  // What it is, for people, where it stands in a list; what a NULL says.
  const char* words = "";
  Rows<Field> fields = {};
  const Shape* element = nullptr;  // of a list; what octets hold
  Rows<NumberName> names = {};
  Rows<OpenType> types = {};
  // Identifiers of strings as bits; identifier of ASCII; octets of a TLS part; what an address is
  // for (resource_text.h).
  uint32_t number = 0;
  // The identifier octet that a value begins with; 0 where several may. No table writes it.
  uint8_t identifier = IdentifierOf(kind, number);
};

constexpr Shape Sequence(Rows<Field> fields, const char* words = "") {
  return {ShapeKind::kSequence, words, fields};
}
constexpr Shape Choice(Rows<Field> fields) { return {ShapeKind::kChoice, "", fields}; }
constexpr Shape SequenceOf(const Shape* element) {
  return {ShapeKind::kSequenceOf, "", {}, element};
}
constexpr Shape SetOf(const Shape* element) { return {ShapeKind::kSetOf, "", {}, element}; }
constexpr Shape NamedBits(Rows<NumberName> names) { return {ShapeKind::kBits, "", {}, {}, names}; }
constexpr Shape NamedNumbers(ShapeKind kind, Rows<NumberName> names, uint32_t octets = 0) {
  return {kind, "", {}, {}, names, {}, octets};
}
constexpr Shape Open(Rows<OpenType> types) { return {ShapeKind::kOpen, "", {}, {}, {}, types}; }
constexpr Shape StringOf(uint32_t identifiers) {
  return {ShapeKind::kString, "", {}, {}, {}, {}, identifiers};
}
constexpr Shape AsciiIn(uint8_t identifier) {
  return {ShapeKind::kAscii, "", {}, {}, {}, {}, identifier};
}
constexpr Shape TlsPart(ShapeKind kind, uint32_t octets = 0) {
  return {kind, "", {}, {}, {}, {}, octets};
}
constexpr Shape TlsList(const Shape* element) { return {ShapeKind::kTlsList, "", {}, element}; }
constexpr Shape TlsRecord(Rows<Field> fields, const char* words) {
  return {ShapeKind::kTlsRecord, words, fields};
}
constexpr Shape TlsInOctets(const Shape* structure) {
  return {ShapeKind::kTlsOctets, "", {}, structure};
}

constexpr uint8_t IdentifierOf(const Shape& shape) { return shape.identifier; }

// The same for a field with its tag; an implicit one keeps the form.
constexpr uint8_t IdentifierOf(const Field& field) {
  const uint8_t own = IdentifierOf(*field.shape);
  if (field.tagging == Tagging::kNone) return own;
  if (field.tagging == Tagging::kExplicit) return ContextConstructed(field.tag);
  return static_cast<uint8_t>(Context(field.tag) | (own & kConstructedBit));
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_SHAPE_H_
