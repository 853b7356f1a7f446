#include <cstddef>
#include <cstdint>
#include <cstring>

#include "bytes/utf8.h"
#include "platform/posix/structures/load.h"
#include "platform/posix/structures/name_value.h"

namespace Ortholan::posix {
namespace {

enum class UnicodeForm : BYTE { kSingleOctets, kBmp, kUniversal, kUtf8 };

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

constexpr std::size_t kUnicodeValueOffset = offsetof(CERT_NAME_VALUE, Value);
constexpr std::size_t kUtf16UnitSize = 2;  // octets of a UTF-16 unit
constexpr std::size_t kUniversalSize = 4;  // octets of a UniversalString's character

struct UnicodeTypeRow {
  DWORD type;
  BYTE tag;
  UnicodeForm form;
  Alphabet alphabet;
};

constexpr UnicodeTypeRow kUnicodeTypes[] = {
    {CERT_RDN_NUMERIC_STRING, 0x12, UnicodeForm::kSingleOctets, kNumeric},
    {CERT_RDN_PRINTABLE_STRING, 0x13, UnicodeForm::kSingleOctets, kPrintable},
    {CERT_RDN_TELETEX_STRING, 0x14, UnicodeForm::kSingleOctets, kEightBit},
    {CERT_RDN_VIDEOTEX_STRING, 0x15, UnicodeForm::kSingleOctets, kEightBit},
    {CERT_RDN_IA5_STRING, 0x16, UnicodeForm::kSingleOctets, kIa5},
    {CERT_RDN_GRAPHIC_STRING, 0x19, UnicodeForm::kSingleOctets, kEightBit},
    {CERT_RDN_VISIBLE_STRING, 0x1A, UnicodeForm::kSingleOctets, kEightBit},
    {CERT_RDN_GENERAL_STRING, 0x1B, UnicodeForm::kSingleOctets, kEightBit},
    {CERT_RDN_UNIVERSAL_STRING, 0x1C, UnicodeForm::kUniversal, kUnicode},
    {CERT_RDN_BMP_STRING, 0x1E, UnicodeForm::kBmp, kUnicode},
    {CERT_RDN_UTF8_STRING, 0x0C, UnicodeForm::kUtf8, kUnicode},
};

const UnicodeTypeRow* RowOfType(DWORD type) {
  for (const UnicodeTypeRow& row : kUnicodeTypes) {
    if (row.type == type) return &row;
  }
  return nullptr;
}

const UnicodeTypeRow* RowOfTag(BYTE tag) {
  for (const UnicodeTypeRow& row : kUnicodeTypes) {
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

bool EndsWithCharacter(UnicodeForm form, std::size_t contentSize) {
  const std::size_t width = form == UnicodeForm::kUniversal ? kUniversalSize
                            : form == UnicodeForm::kBmp     ? kUtf16UnitSize
                                                            : 1;
  return contentSize % width == 0;
}

std::size_t CountUnits(UnicodeForm form, ByteView content) {
  switch (form) {
    case UnicodeForm::kBmp:
      return content.size / kUtf16UnitSize;
    case UnicodeForm::kUniversal:
      return ReadUniversal(content, UnitCounter{}).size;
    case UnicodeForm::kUtf8:
      return FromUtf8(content.data, content.size, UnitCounter{}).sink.size;
    default:
      return content.size;
  }
}

void ReadText(UnicodeForm form, ByteView content, BYTE* out) {
  LittleEndianWriter writer{out};
  switch (form) {
    case UnicodeForm::kBmp:
      SwapUnits(content.data, content.size, out);
      break;
    case UnicodeForm::kUniversal:
      ReadUniversal(content, writer);
      break;
    case UnicodeForm::kUtf8:
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

void WriteText(const UnicodeTypeRow& row, LittleEndianSource text, std::size_t units, BYTE* out) {
  if (row.form == UnicodeForm::kUniversal) {
    WriteUniversal(text, units, out);
    return;
  }
  for (std::size_t i = 0; i < units; ++i) out[i] = static_cast<BYTE>(text[i]);
}

// Text is checked against its type.
DWORD WriteString(const Field& field, const BYTE* value, DerWriter* out) {
  const UnicodeTypeRow* const row = RowOfType(Load<DWORD>(value));
  // BMPString and UTF8String are written alike from both structures.
  if (row == nullptr || row->form == UnicodeForm::kBmp || row->form == UnicodeForm::kUtf8) {
    return WriteNameValue(field, value, out);
  }
  ByteView octets;
  if (!LoadOctets(value + kUnicodeValueOffset, &octets)) return ERROR_INVALID_PARAMETER;
  const LittleEndianSource text{octets.data};
  const std::size_t units = octets.size / kUtf16UnitSize;
  const std::size_t refused = FirstRefused(row->alphabet, text, units);
  if (refused != units) return out->RefuseText(row->alphabet.refusal, refused);

  const std::size_t mark = out->size();
  const bool universal = row->form == UnicodeForm::kUniversal;
  BYTE* const content = out->Take(universal ? WriteUniversal(text, units, nullptr) : units);
  if (content != nullptr) WriteText(*row, text, units, content);
  out->PutHeader(row->tag, mark);
  return ERROR_SUCCESS;
}

DWORD WriteUnicodeNameValue(const Field& field, const BYTE* value, DerWriter* out) {
  if (Load<DWORD>(value) <= CERT_RDN_OCTET_STRING) return CRYPT_E_NOT_CHAR_STRING;
  return WriteString(field, value, out);
}

bool IsUnicodeNameValue(const Field& /*field*/, BYTE tag) { return RowOfTag(tag) != nullptr; }

// Text is followed by U+0000, which its size does not count.
DWORD ReadUnicodeNameValue(const Field& /*field*/, const Element& element, std::size_t place,
                           StructRoom* room) {
  const UnicodeTypeRow& row = *RowOfTag(element.tag);
  const ByteView content = element.content;
  if (!EndsWithCharacter(row.form, content.size)) return CRYPT_E_ASN1_CORRUPT;
  room->Put(place, row.type);
  const std::size_t size = kUtf16UnitSize * CountUnits(row.form, content);
  BYTE* const text = room->PutBlob(place + kUnicodeValueOffset, size);
  if (size != 0) room->Take(kUtf16UnitSize, 1);
  if (text != nullptr) ReadText(row.form, content, text);
  return ERROR_SUCCESS;
}

DWORD ReadUnicodeAttribute(const Field& field, const Element& element, std::size_t place,
                           StructRoom* room) {
  if (!IsUnicodeNameValue(field, element.tag)) return ReadOtherValue(element, place, room);
  return ReadUnicodeNameValue(field, element, place, room);
}

}  // namespace

const Kind kUnicodeNameValueKind = {WriteUnicodeNameValue, ReadUnicodeNameValue,
                                    IsUnicodeNameValue};
const Kind kUnicodeAttributeKind = {WriteString, ReadUnicodeAttribute};

}  // namespace Ortholan::posix
