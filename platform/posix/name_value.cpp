#include "platform/posix/name_value.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "bytes/utf8.h"
#include "platform/posix/codec.h"

namespace Ortholan::posix {
namespace {

constexpr DWORD kInvalidArgument = 0x80070057;

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

BOOL EncodeNameValue(const CERT_NAME_VALUE& value, BYTE* out, DWORD* outBytes) noexcept {
  if (value.dwValueType == CERT_RDN_ANY_TYPE) return Fail(kInvalidArgument);
  const DWORD type = value.dwValueType;
  const TypeRow row = type < std::size(kTypes) ? kTypes[type] : kTypes[CERT_RDN_ANY_TYPE];
  if (row.form == Form::kRefused) return Fail(CRYPT_E_ASN1_CHOICE);
  const ByteView octets{value.Value.pbData, value.Value.cbData};
  if (octets.data == nullptr && octets.size != 0) return Fail(ERROR_INVALID_PARAMETER);

  const std::size_t contentSize = ContentSize(row.form, octets);
  const std::size_t size = row.form == Form::kWhole ? contentSize : ElementSize(contentSize);
  BOOL result;
  if (!WantsContent(size, out, outBytes, &result)) return result;

  if (row.form != Form::kWhole) out = WriteHeader(out, row.tag, contentSize);
  WriteContent(row.form, octets, contentSize, out);
  return TRUE;
}

BOOL DecodeNameValue(const BYTE* encoded, DWORD encodedBytes, void* out, DWORD* outBytes) noexcept {
  if (encodedBytes == 0) return Fail(CRYPT_E_ASN1_CORRUPT);
  const DWORD type = kTags.type[encoded[0]];
  if (type == 0) return Fail(CRYPT_E_ASN1_BADTAG);
  Element element;
  if (!ReadElement({encoded, encodedBytes}, &element)) return Fail(CRYPT_E_ASN1_CORRUPT);
  const ByteView content = element.content;
  if (type == CERT_RDN_BMP_STRING && content.size % 2 != 0) return Fail(CRYPT_E_ASN1_CORRUPT);

  const std::size_t valueSize = ValueSize(type, content);
  const std::size_t size = sizeof(CERT_NAME_VALUE) + valueSize;
  BOOL result;
  if (!WantsContent(size, out, outBytes, &result)) return result;

  auto* bytes = static_cast<BYTE*>(out) + sizeof(CERT_NAME_VALUE);
  WriteValue(type, content, bytes);
  CERT_NAME_VALUE value;
  std::memset(&value, 0, sizeof value);
  value.dwValueType = type;
  value.Value.cbData = static_cast<DWORD>(valueSize);
  value.Value.pbData = valueSize != 0 ? bytes : nullptr;
  // The caller's room need not be aligned.
  std::memcpy(out, &value, sizeof value);
  return TRUE;
}

}  // namespace Ortholan::posix
