// The language in which table.cpp says what each of the platform's structures is made of. A field
// is one element of the encoding and the place in the structure where its value lies:
//
//   constexpr Field kMembers[] = {Identifier(offsetof(CERT_EXTENSION, pszObjId)),
//                                 Optional(Flag(offsetof(CERT_EXTENSION, fCritical))),
//                                 Octets(offsetof(CERT_EXTENSION, Value))};
//   constexpr Field kExtension = Sequence(kMembers);
//   constexpr Field kExtensions = SequenceOf<CERT_EXTENSION>(0, kExtension);
//
// WriteField and ReadField walk these descriptions. No description contains itself, so that their
// nesting bounds the recursion, whatever the encoding.

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_FIELD_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_FIELD_H_

#include <ortholan/platform.h>

#include <cstddef>

#include "bytes/byte_view.h"
#include "bytes/der_tag.h"
#include "platform/posix/der.h"
#include "platform/posix/structures/der_writer.h"
#include "platform/posix/structures/struct_room.h"

namespace Ortholan::posix {

struct Field;

// How values of one sort go between structure and encoding.
struct Kind {
  // Writes the content; where the field has no tag, whole elements. A last-error code, 0 for
  // success. `value` is where the structure has it, aligned or not.
  DWORD (*write)(const Field& field, const BYTE* value, DerWriter* out);
  // Reads what `write` writes, to `place` in the room. The same codes.
  DWORD (*read)(const Field& field, const Element& element, std::size_t place, StructRoom* room);
  // Whether an element with this tag may be one; null where the field's own tag says so.
  bool (*accepts)(const Field& field, BYTE tag) = nullptr;
  // A null pointer stands for no value; for other sorts a first DWORD of 0 does.
  bool is_pointer = false;
};

enum class Presence : BYTE {
  kRequired,
  kOptional,  // absent where there is no value
  kFlagged,   // there where the BOOL before it says so
};

struct Field {
  const Kind* kind;
  BYTE tag;         // identifier octet; 0 where the value brings its own
  WORD at = 0;      // offset in the structure
  WORD size = 0;    // of what a pointer points at, one item of an array
  BYTE count = 0;   // of `inner`
  BYTE number = 0;  // of an alternative, as the structure has it
  BYTE index = 0;   // of an array: where an item's number stands in the place of a refused text
  BYTE mark = 0;    // where 1 stands in that place; 0 for nowhere
  Presence presence = Presence::kRequired;
  const Field* inner = nullptr;  // members, alternatives, the item of an array
};

// Writes the element, none where the field is absent. Codes as Kind has them.
DWORD WriteField(const Field& field, const BYTE* structure, DerWriter* out);

// Whether an element with this tag may be the field's.
bool Accepts(const Field& field, BYTE tag);
// Reads the element, whose tag the field accepts; `structure` is the structure's place.
DWORD ReadField(const Field& field, const Element& element, std::size_t structure,
                StructRoom* room);

// Single values, by the type that the structure has for them.
extern const Kind kIdentifierKind;        // LPSTR, dotted
extern const Kind kFlagKind;              // BOOL
extern const Kind kUnsignedKind;          // DWORD
extern const Kind kSignedKind;            // int
extern const Kind kNumberKind;            // CRYPT_INTEGER_BLOB, two's complement
extern const Kind kNaturalKind;           // CRYPT_UINT_BLOB
extern const Kind kOctetsKind;            // CRYPT_DATA_BLOB: the content
extern const Kind kAnyKind;               // CRYPT_OBJID_BLOB: a whole element
extern const Kind kBitsKind;              // CRYPT_BIT_BLOB
extern const Kind kIa5TextKind;           // LPWSTR
extern const Kind kDisplayTextKind;       // LPWSTR
extern const Kind kNarrowTextKind;        // LPSTR
extern const Kind kUtcTimeKind;           // FILETIME
extern const Kind kTimeKind;              // FILETIME
extern const Kind kNameValueKind;         // CERT_NAME_VALUE, of the strings that it can hold
extern const Kind kUnicodeNameValueKind;  // the same in UTF-16LE
extern const Kind kAttributeKind;         // CERT_NAME_VALUE, of anything
extern const Kind kUnicodeAttributeKind;  // the same with strings in UTF-16LE
extern const Kind kUnnamedKind;           // nothing: an alternative that the structure cannot hold

// What holds others.
extern const Kind kSequenceKind;  // members in the structure itself
extern const Kind kPointerKind;   // members in a structure that is pointed at
extern const Kind kArrayKind;     // DWORD count, and behind it a pointer to the items
extern const Kind kSetKind;       // the same, in the order of X.690 11.6
extern const Kind kChoiceKind;    // DWORD number of one alternative
extern const Kind kWrapperKind;   // an explicit tag

constexpr Field Identifier(WORD at) { return {&kIdentifierKind, kTagOid, at}; }
constexpr Field Flag(WORD at) { return {&kFlagKind, kTagBoolean, at}; }
constexpr Field Unsigned(WORD at) { return {&kUnsignedKind, kTagInteger, at}; }
constexpr Field Signed(WORD at) { return {&kSignedKind, kTagInteger, at}; }
constexpr Field Number(WORD at) { return {&kNumberKind, kTagInteger, at}; }
constexpr Field Natural(WORD at) { return {&kNaturalKind, kTagInteger, at}; }
constexpr Field Octets(WORD at) { return {&kOctetsKind, kTagOctetString, at}; }
constexpr Field Any(WORD at) { return {&kAnyKind, 0, at}; }
constexpr Field Bits(WORD at) { return {&kBitsKind, kTagBitString, at}; }
constexpr Field Ia5Text(WORD at) { return {&kIa5TextKind, kTagIA5String, at}; }
constexpr Field DisplayText(WORD at) { return {&kDisplayTextKind, 0, at}; }
constexpr Field NarrowText(WORD at) { return {&kNarrowTextKind, 0, at}; }
constexpr Field Value(const Kind& kind, WORD at) { return {&kind, 0, at}; }

template <std::size_t N>
constexpr Field Sequence(const Field (&members)[N], WORD at = 0) {
  Field field{&kSequenceKind, kSequenceOctet, at};
  field.inner = members;
  field.count = N;
  return field;
}
template <class Pointed, std::size_t N>
constexpr Field Pointer(WORD at, const Field (&members)[N]) {
  Field field{&kPointerKind, kSequenceOctet, at};
  field.inner = members;
  field.count = N;
  field.size = sizeof(Pointed);
  return field;
}
template <class Item>
constexpr Field SequenceOf(WORD at, const Field& item) {
  Field field{&kArrayKind, kSequenceOctet, at};
  field.inner = &item;
  field.count = 1;
  field.size = sizeof(Item);
  return field;
}
template <class Item>
constexpr Field SetOf(WORD at, const Field& item) {
  Field field = SequenceOf<Item>(at, item);
  field.kind = &kSetKind;
  field.tag = kSetOctet;
  return field;
}
template <std::size_t N>
constexpr Field Choice(const Field (&alternatives)[N], WORD at = 0) {
  Field field{&kChoiceKind, 0, at};
  field.inner = alternatives;
  field.count = N;
  return field;
}
constexpr Field Alternative(BYTE number, Field field) {
  field.number = number;
  return field;
}

// What may be said of a field.
constexpr Field Optional(Field field) {
  field.presence = Presence::kOptional;
  return field;
}
constexpr Field Flagged(Field field) {
  field.presence = Presence::kFlagged;
  return field;
}
constexpr Field Tagged(BYTE tag, Field field) {
  field.tag = tag;
  return field;
}
// The structure of `inner` begins at `at`.
constexpr Field Wrapped(BYTE tag, WORD at, const Field& inner) {
  Field field{&kWrapperKind, tag, at};
  field.inner = &inner;
  field.count = 1;
  return field;
}
// For the place of a text that is refused: the lowest bit of an array's index, a bit of its own.
constexpr Field Indexed(BYTE bit, Field field) {
  field.index = bit;
  return field;
}
constexpr Field Marked(BYTE bit, Field field) {
  field.mark = bit;
  return field;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_FIELD_H_
