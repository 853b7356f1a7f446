#include "platform/posix/structures/name_value.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "bytes/utf8.h"
#include "platform/posix/structures/load.h"

namespace Ortholan::posix {
namespace {

constexpr DWORD kAnyTypeRefused = 0x80070057;
constexpr std::size_t kValueOffset = offsetof(CERT_NAME_VALUE, Value);

enum class Form : BYTE {
  kRefused,
  kWhole,  // the value is the element itself
  kOctets,
  kBigEndianUtf16,
  kUtf8,
};

struct TypeRow {
  Form form;
  BYTE tag;
};

// By value type. UniversalString (11) has no form: its content would be 32-bit characters.
constexpr TypeRow kTypes[] = {
    {Form::kRefused, 0},            // CERT_RDN_ANY_TYPE
    {Form::kWhole, 0},              // CERT_RDN_ENCODED_BLOB
    {Form::kOctets, 0x04},          // CERT_RDN_OCTET_STRING
    {Form::kOctets, 0x12},          // CERT_RDN_NUMERIC_STRING
    {Form::kOctets, 0x13},          // CERT_RDN_PRINTABLE_STRING
    {Form::kOctets, 0x14},          // CERT_RDN_TELETEX_STRING
    {Form::kOctets, 0x15},          // CERT_RDN_VIDEOTEX_STRING
    {Form::kOctets, 0x16},          // CERT_RDN_IA5_STRING
    {Form::kOctets, 0x19},          // CERT_RDN_GRAPHIC_STRING
    {Form::kOctets, 0x1A},          // CERT_RDN_VISIBLE_STRING
    {Form::kOctets, 0x1B},          // CERT_RDN_GENERAL_STRING
    {Form::kRefused, 0},            // CERT_RDN_UNIVERSAL_STRING
    {Form::kBigEndianUtf16, 0x1E},  // CERT_RDN_BMP_STRING
    {Form::kUtf8, 0x0C},            // CERT_RDN_UTF8_STRING
};

// Value type by tag octet, 0 where the tag is not read.
struct TagTable {
  BYTE type[256] = {};
  constexpr TagTable() {
    type[0x0C] = CERT_RDN_UTF8_STRING;
    type[0x13] = CERT_RDN_PRINTABLE_STRING;
    type[0x14] = CERT_RDN_TELETEX_STRING;
    type[0x16] = CERT_RDN_IA5_STRING;
    type[0x1A] = CERT_RDN_VISIBLE_STRING;
    type[0x1E] = CERT_RDN_BMP_STRING;
  }
};
constexpr TagTable kTags;

std::size_t ContentSize(Form form, ByteView value) {
  if (form == Form::kBigEndianUtf16) return value.size & ~std::size_t{1};
  if (form != Form::kUtf8) return value.size;
  return Utf8Size(LittleEndianSource{value.data}, value.size / 2);
}

void CopyOctets(ByteView from, BYTE* to) {
  if (from.size != 0) std::memcpy(to, from.data, from.size);
}

void WriteContent(Form form, ByteView value, std::size_t contentSize, BYTE* out) {
  switch (form) {
    case Form::kBigEndianUtf16:
      SwapUnits(value.data, contentSize, out);
      break;
    case Form::kUtf8:
      ToUtf8(LittleEndianSource{value.data}, value.size / 2, ByteWriter{out, contentSize});
      break;
    default:
      CopyOctets(value, out);
  }
}

std::size_t ValueSize(DWORD type, ByteView content) {
  if (type != CERT_RDN_UTF8_STRING) return content.size;
  return 2 * FromUtf8(content.data, content.size, UnitCounter{}).sink.size;
}

void WriteValue(DWORD type, ByteView content, BYTE* out) {
  if (type == CERT_RDN_UTF8_STRING || type == CERT_RDN_BMP_STRING) {
    ReadUtf16Le(type, content, out);
  } else {
    CopyOctets(content, out);
  }
}

}  // namespace

std::size_t ReadUtf16Le(DWORD type, ByteView content, BYTE* out) noexcept {
  if (type == CERT_RDN_BMP_STRING) {
    SwapUnits(content.data, content.size, out);
    return content.size;
  }
  const auto read = FromUtf8(content.data, content.size, LittleEndianWriter{out});
  return static_cast<std::size_t>(read.sink.out - out);
}

DWORD WriteNameValue(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  const auto type = Load<DWORD>(value);
  if (type == CERT_RDN_ANY_TYPE) return kAnyTypeRefused;
  const TypeRow row = type < std::size(kTypes) ? kTypes[type] : kTypes[CERT_RDN_ANY_TYPE];
  if (row.form == Form::kRefused) return CRYPT_E_ASN1_CHOICE;
  ByteView octets;
  if (!LoadOctets(value + kValueOffset, &octets)) return ERROR_INVALID_PARAMETER;

  const std::size_t mark = out->size();
  const std::size_t contentSize = ContentSize(row.form, octets);
  BYTE* const content = out->Take(contentSize);
  if (content != nullptr) WriteContent(row.form, octets, contentSize, content);
  if (row.form != Form::kWhole) out->PutHeader(row.tag, mark);
  return ERROR_SUCCESS;
}

DWORD ReadOtherValue(const Element& element, std::size_t place, StructRoom* room) {
  const bool isOctets = element.tag == kTagOctetString;
  room->Put(place, isOctets ? CERT_RDN_OCTET_STRING : CERT_RDN_ENCODED_BLOB);
  room->PutBlob(place + kValueOffset, isOctets ? element.content : element.whole);
  return ERROR_SUCCESS;
}

namespace {

DWORD ReadString(DWORD type, ByteView content, std::size_t place, StructRoom* room) {
  if (type == CERT_RDN_BMP_STRING && content.size % 2 != 0) return CRYPT_E_ASN1_CORRUPT;
  room->Put(place, type);
  BYTE* const value = room->PutBlob(place + kValueOffset, ValueSize(type, content));
  if (value != nullptr) WriteValue(type, content, value);
  return ERROR_SUCCESS;
}

bool IsNameValue(const Field& /*field*/, BYTE tag) { return kTags.type[tag] != 0; }

DWORD ReadNameValue(const Field& /*field*/, const Element& element, std::size_t place,
                    StructRoom* room) {
  return ReadString(kTags.type[element.tag], element.content, place, room);
}

// The strings that are no single values of X509_NAME_VALUE here but have a type all the same.
DWORD TypeOfAttribute(BYTE tag) {
  for (const DWORD type : {CERT_RDN_NUMERIC_STRING, CERT_RDN_VIDEOTEX_STRING,
                           CERT_RDN_GRAPHIC_STRING, CERT_RDN_GENERAL_STRING}) {
    if (kTypes[type].tag == tag) return type;
  }
  return kTags.type[tag];
}

DWORD ReadAttribute(const Field& /*field*/, const Element& element, std::size_t place,
                    StructRoom* room) {
  const DWORD type = TypeOfAttribute(element.tag);
  if (type == 0) return ReadOtherValue(element, place, room);
  return ReadString(type, element.content, place, room);
}

}  // namespace

const Kind kNameValueKind = {WriteNameValue, ReadNameValue, IsNameValue};
const Kind kAttributeKind = {WriteNameValue, ReadAttribute};

}  // namespace Ortholan::posix
