#include <cstddef>
#include <cstdint>
#include <cstring>

#include "bytes/utf8.h"
#include "platform/posix/codec.h"
#include "platform/posix/name_value.h"

namespace Ortholan::posix {
namespace {

enum class Form : BYTE { kOctets, kBmp, kUniversal, kUtf8 };

// Which units a type takes, and the code of the refusal.
struct Alphabet {
  bool (*has)(std::uint32_t unit);
  DWORD refusal;
};

bool IsNumeric(std::uint32_t unit) { return (unit >= '0' && unit <= '9') || unit == ' '; }

// X.680 41.4.
bool IsPrintable(std::uint32_t unit) {
  constexpr char kOthers[] = "'()+,-./:=?";
  const std::uint32_t letter = unit | 0x20;
  return IsNumeric(unit) || (letter >= 'a' && letter <= 'z') ||
         (unit != 0 && unit < 0x80 && std::strchr(kOthers, static_cast<char>(unit)) != nullptr);
}

bool IsAscii(std::uint32_t unit) { return unit < 0x80; }
bool IsOctet(std::uint32_t unit) { return unit < 0x100; }
bool IsAny(std::uint32_t) { return true; }

constexpr Alphabet kNumeric = {IsNumeric, CRYPT_E_INVALID_NUMERIC_STRING};
constexpr Alphabet kPrintable = {IsPrintable, CRYPT_E_INVALID_PRINTABLE_STRING};
constexpr Alphabet kIa5 = {IsAscii, CRYPT_E_INVALID_IA5_STRING};
constexpr Alphabet kEightBit = {IsOctet, CRYPT_E_INVALID_X500_STRING};
constexpr Alphabet kUnicode = {IsAny, ERROR_SUCCESS};

constexpr std::size_t kUnitSize = 2;       // octets of a UTF-16 unit
constexpr std::size_t kUniversalSize = 4;  // octets of a UniversalString's character

struct TypeRow {
  DWORD type;
  BYTE tag;
  Form form;
  Alphabet alphabet;
};

constexpr TypeRow kTypes[] = {
    {CERT_RDN_NUMERIC_STRING, 0x12, Form::kOctets, kNumeric},
    {CERT_RDN_PRINTABLE_STRING, 0x13, Form::kOctets, kPrintable},
    {CERT_RDN_TELETEX_STRING, 0x14, Form::kOctets, kEightBit},
    {CERT_RDN_VIDEOTEX_STRING, 0x15, Form::kOctets, kEightBit},
    {CERT_RDN_IA5_STRING, 0x16, Form::kOctets, kIa5},
    {CERT_RDN_GRAPHIC_STRING, 0x19, Form::kOctets, kEightBit},
    {CERT_RDN_VISIBLE_STRING, 0x1A, Form::kOctets, kEightBit},
    {CERT_RDN_GENERAL_STRING, 0x1B, Form::kOctets, kEightBit},
    {CERT_RDN_UNIVERSAL_STRING, 0x1C, Form::kUniversal, kUnicode},
    {CERT_RDN_BMP_STRING, 0x1E, Form::kBmp, kUnicode},
    {CERT_RDN_UTF8_STRING, 0x0C, Form::kUtf8, kUnicode},
};

const TypeRow* RowOfType(DWORD type) {
  for (const TypeRow& row : kTypes) {
    if (row.type == type) return &row;
  }
  return nullptr;
}

const TypeRow* RowOfTag(BYTE tag) {
  for (const TypeRow& row : kTypes) {
    if (row.tag == tag) return &row;
  }
  return nullptr;
}

// U+FFFD for what is no character.
std::uint32_t ToScalar(std::uint32_t value) {
  return IsSurrogate(value) || value > kLastScalar ? kReplacement : value;
}

std::uint32_t UniversalAt(const BYTE* octets) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < kUniversalSize; ++i) value = value << 8 | octets[i];
  return ToScalar(value);
}

// Writes UniversalString content, or only counts its octets.
std::size_t WriteUniversal(LittleEndianSource text, std::size_t units, BYTE* out) {
  std::size_t written = 0;
  std::size_t count;
  for (std::size_t i = 0; i < units; i += count) {
    const std::uint32_t scalar = ReadUtf16(text, i, units - i, &count);
    for (unsigned shift = 32; out != nullptr && shift != 0; shift -= 8) {
      *out++ = static_cast<BYTE>((scalar != kBroken ? scalar : kReplacement) >> (shift - 8));
    }
    written += kUniversalSize;
  }
  return written;
}

template <class Sink>
Sink ReadUniversal(ByteView content, Sink sink) {
  for (std::size_t i = 0; i < content.size; i += kUniversalSize) {
    sink.Put(UniversalAt(content.data + i));
  }
  return sink;
}

bool EndsWithCharacter(Form form, std::size_t contentSize) {
  const std::size_t width = form == Form::kUniversal ? kUniversalSize
                            : form == Form::kBmp     ? kUnitSize
                                                     : 1;
  return contentSize % width == 0;
}

std::size_t CountUnits(Form form, ByteView content) {
  switch (form) {
    case Form::kBmp:
      return content.size / kUnitSize;
    case Form::kUniversal:
      return ReadUniversal(content, UnitCounter{}).size;
    case Form::kUtf8:
      return FromUtf8(content.data, content.size, UnitCounter{}).sink.size;
    default:
      return content.size;
  }
}

void ReadText(Form form, ByteView content, BYTE* out) {
  LittleEndianWriter writer{out};
  switch (form) {
    case Form::kBmp:
      SwapUnits(content.data, content.size, out);
      break;
    case Form::kUniversal:
      ReadUniversal(content, writer);
      break;
    case Form::kUtf8:
      FromUtf8(content.data, content.size, writer);
      break;
    default:
      for (std::size_t i = 0; i < content.size; ++i) writer.PutUnit(content.data[i]);
  }
}

// Position of the first unit that the type does not take; `units` where it takes all.
std::size_t FirstRefused(const Alphabet& alphabet, LittleEndianSource text, std::size_t units) {
  std::size_t i = 0;
  while (i < units && alphabet.has(text[i])) ++i;
  return i;
}

}  // namespace

BOOL EncodeUnicodeNameValue(const CERT_NAME_VALUE& value, BYTE* out, DWORD* outBytes) noexcept {
  if (value.dwValueType <= CERT_RDN_OCTET_STRING) {
    return Fail(CRYPT_E_NOT_CHAR_STRING);
  }
  const TypeRow* const row = RowOfType(value.dwValueType);
  // BMPString and UTF8String are written alike from both structures.
  if (row == nullptr || row->form == Form::kBmp || row->form == Form::kUtf8) {
    return EncodeNameValue(value, out, outBytes);
  }
  if (!IsThere(value.Value)) return Fail(ERROR_INVALID_PARAMETER);
  const LittleEndianSource text{value.Value.pbData};
  const std::size_t units = value.Value.cbData / kUnitSize;
  const std::size_t refused = FirstRefused(row->alphabet, text, units);
  if (refused != units) {
    *outBytes = static_cast<DWORD>(refused);
    return Fail(row->alphabet.refusal);
  }

  const bool universal = row->form == Form::kUniversal;
  const std::size_t contentSize = universal ? WriteUniversal(text, units, nullptr) : units;
  BOOL result;
  if (!WantsContent(ElementSize(contentSize), out, outBytes, &result)) return result;
  out = WriteHeader(out, row->tag, contentSize);
  if (universal) {
    WriteUniversal(text, units, out);
  } else {
    for (std::size_t i = 0; i < units; ++i) out[i] = static_cast<BYTE>(text[i]);
  }
  return TRUE;
}

BOOL DecodeUnicodeNameValue(const BYTE* encoded, DWORD encodedBytes, void* out,
                            DWORD* outBytes) noexcept {
  if (encodedBytes == 0) return Fail(CRYPT_E_ASN1_CORRUPT);
  const TypeRow* const row = RowOfTag(encoded[0]);
  if (row == nullptr) return Fail(CRYPT_E_ASN1_BADTAG);
  Element element;
  if (!ReadElement({encoded, encodedBytes}, &element)) return Fail(CRYPT_E_ASN1_CORRUPT);
  const ByteView content = element.content;
  if (!EndsWithCharacter(row->form, content.size)) return Fail(CRYPT_E_ASN1_CORRUPT);

  const std::size_t textSize = kUnitSize * CountUnits(row->form, content);
  const std::size_t terminator = textSize != 0 ? kUnitSize : 0;
  const std::size_t size = sizeof(CERT_NAME_VALUE) + textSize + terminator;
  BOOL result;
  if (!WantsContent(size, out, outBytes, &result)) return result;
  auto* const text = static_cast<BYTE*>(out) + sizeof(CERT_NAME_VALUE);
  ReadText(row->form, content, text);
  std::memset(text + textSize, 0, terminator);
  CERT_NAME_VALUE value;
  std::memset(&value, 0, sizeof value);
  value.dwValueType = row->type;
  value.Value = {static_cast<DWORD>(textSize), textSize != 0 ? text : nullptr};
  std::memcpy(out, &value, sizeof value);
  return TRUE;
}

}  // namespace Ortholan::posix
