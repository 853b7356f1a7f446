// Terminated texts: IA5String, and the DisplayText of RFC 5280 4.2.1.4.

#include <cstdint>

#include "bytes/utf8.h"
#include "platform/posix/structures/field.h"
#include "platform/posix/structures/load.h"

namespace Ortholan::posix {
namespace {

constexpr std::uint32_t kAsciiEnd = 0x80;
constexpr std::size_t kUnitSize = 2;  // octets of a UTF-16 unit

// A null text is an empty one.
template <class Char>
DWORD WriteIa5(const Char* text, DerWriter* out) {
  std::size_t size = 0;
  for (; text != nullptr && text[size] != 0; ++size) {
    const auto unit = static_cast<std::uint32_t>(text[size]);
    if (unit >= kAsciiEnd) return out->RefuseText(CRYPT_E_INVALID_IA5_STRING, size);
  }
  for (std::size_t i = size; i-- != 0;) out->PutOctet(static_cast<BYTE>(text[i]));
  return ERROR_SUCCESS;
}

DWORD WriteIa5Text(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  return WriteIa5(Load<LPCWSTR>(value), out);
}

// Puts the units of a text, one a character, whatever the characters' alignment.
struct UnitWriter {
  StructRoom* room;
  std::size_t at;
  bool has_nul = false;

  bool PutRun(const std::uint8_t* /*text*/) { return false; }
  bool PutUnits(std::uint64_t /*units*/) { return false; }
  bool Put(std::uint32_t scalar) {
    if (IsPair(scalar)) {
      PutUnit(HighSurrogate(scalar));
      scalar = LowSurrogate(scalar);
    }
    PutUnit(scalar);
    return true;
  }
  void PutUnit(std::uint32_t unit) {
    has_nul = has_nul || unit == 0;
    room->Put(at, static_cast<wchar_t>(unit));
    at += sizeof(wchar_t);
  }
};

std::size_t CountUnits(const Element& text) {
  const ByteView content = text.content;
  if (text.tag == kTagBmpString) return content.size / kUnitSize;
  if (text.tag != kTagUtf8String) return content.size;
  return FromUtf8(content.data, content.size, UnitCounter{}).sink.size;
}

UnitWriter PutUnits(const Element& text, UnitWriter out) {
  const ByteView content = text.content;
  if (text.tag == kTagUtf8String) return FromUtf8(content.data, content.size, out).sink;
  const std::size_t width = text.tag == kTagBmpString ? kUnitSize : 1;
  for (std::size_t i = 0; i < content.size; i += width) {
    const std::uint32_t octet = content[i];
    out.PutUnit(width == 1 ? octet : octet << 8 | content[i + 1]);
  }
  return out;
}

// Puts a pointer to the text and its terminator. Octets of 8-bit strings are the units of their
// value. A NUL would cut the text.
DWORD ReadText(const Field& /*field*/, const Element& element, std::size_t place,
               StructRoom* room) {
  if (element.tag == kTagBmpString && element.content.size % kUnitSize != 0) {
    return CRYPT_E_ASN1_CORRUPT;
  }
  const std::size_t size = (CountUnits(element) + 1) * sizeof(wchar_t);
  const std::size_t text = room->Take(size, sizeof(wchar_t));
  room->Put(place, room->Address(text));
  const UnitWriter written = PutUnits(element, {room, text});
  return written.has_nul ? DWORD{CRYPT_E_ASN1_RULE} : ERROR_SUCCESS;
}

bool IsDisplayText(const Field& /*field*/, BYTE tag) {
  return tag == kTagUtf8String || tag == kTagIA5String || tag == kTagVisibleString ||
         tag == kTagBmpString;
}

// As BMPString, which holds every text that the structure does.
DWORD WriteDisplayText(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  const auto* const text = Load<LPCWSTR>(value);
  const std::size_t mark = out->size();
  std::size_t size = 0;
  while (text != nullptr && text[size] != 0) ++size;
  for (std::size_t i = size; i-- != 0;) {
    const auto unit = static_cast<std::uint32_t>(text[i]);
    out->PutOctet(static_cast<BYTE>(unit));
    out->PutOctet(static_cast<BYTE>(unit >> 8));
  }
  out->PutHeader(kTagBmpString, mark);
  return ERROR_SUCCESS;
}

DWORD WriteNarrowText(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  const std::size_t mark = out->size();
  if (const DWORD error = WriteIa5(Load<LPCSTR>(value), out)) return error;
  out->PutHeader(kTagIA5String, mark);
  return ERROR_SUCCESS;
}

bool IsNarrowText(const Field& field, BYTE tag) {
  return tag != kTagBmpString && IsDisplayText(field, tag);
}

DWORD ReadNarrowText(const Field& /*field*/, const Element& element, std::size_t place,
                     StructRoom* room) {
  const std::size_t text = room->Take(element.content.size + 1, 1);
  room->Put(place, room->Address(text));
  for (std::size_t i = 0; i < element.content.size; ++i) {
    if (element.content[i] == 0) return CRYPT_E_ASN1_RULE;
    room->Put(text + i, element.content[i]);
  }
  return ERROR_SUCCESS;
}

}  // namespace

const Kind kIa5TextKind = {WriteIa5Text, ReadText, nullptr, true};
const Kind kDisplayTextKind = {WriteDisplayText, ReadText, IsDisplayText, true};
const Kind kNarrowTextKind = {WriteNarrowText, ReadNarrowText, IsNarrowText, true};

}  // namespace Ortholan::posix
