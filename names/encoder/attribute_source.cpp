#include "names/encoder/attribute_source.h"

#include <algorithm>

namespace Ortholan {
namespace {

constexpr size_t kPaddingUnits = 2;

std::string_view WithoutTrailingNuls(std::string_view text) {
  return text.substr(0, text.find_last_not_of('\0') + 1);
}

wchar_t UnitAt(ByteView bytes, size_t index) {
  return static_cast<wchar_t>(bytes[2 * index] | bytes[2 * index + 1] << 8);
}

// Copies the low octets of UTF-16LE units and tells whether all of them are ASCII. No branch in the
// loop: the compiler takes many units at a time.
bool NarrowAscii(const BYTE* units, size_t count, char* out) {
  unsigned high = 0;
  unsigned low = 0;
  for (size_t i = 0; i < count; ++i) {
    low |= units[2 * i];
    high |= units[2 * i + 1];
    out[i] = static_cast<char>(units[2 * i]);
  }
  return high == 0 && low < 0x80;
}

Characters ReadPadded(ByteView bytes, Arena* arena) {
  size_t count = bytes.size / 2;
  for (size_t i = 0; i < kPaddingUnits && count != 0 && UnitAt(bytes, count - 1) == L'\0'; ++i) {
    --count;
  }
  char* const ascii = arena->Take<char>(count);
  if (NarrowAscii(bytes.data, count, ascii)) return std::string_view(ascii, count);
  wchar_t* const wide = arena->Take<wchar_t>(count);
  for (size_t i = 0; i < count; ++i) wide[i] = UnitAt(bytes, i);
  return std::wstring_view(wide, count);
}

}  // namespace

AttributeView::AttributeView(const RDNAttr& attr)
    : oid(attr.oid.c_str()), value_type(attr.valueType), value(attr.value) {}

AttributeView::AttributeView(const CERT_RDN_ATTR& attr)
    : oid(attr.pszObjId != nullptr ? attr.pszObjId : ""),
      value_type(attr.dwValueType),
      value(attr.Value) {}

bool WidenCharacters(std::string_view text, UINT codePage, Arena* arena, Characters* characters) {
  if (IsAscii(text)) {
    *characters = text;
    return true;
  }
  std::wstring wide;
  if (Widen(text, codePage, &wide) != Conversion::kDone) return false;
  wchar_t* const kept = arena->Take<wchar_t>(wide.size());
  std::copy(wide.begin(), wide.end(), kept);
  *characters = std::wstring_view(kept, wide.size());
  return true;
}

bool ConvToX500NameElem(const AttributeView& attr, Arena* arena, Characters* value) {
  *value = std::string_view();
  if (attr.value.empty()) return true;
  const std::string_view text = AsText(attr.value);
  switch (attr.value_type) {
    case CERT_RDN_PRINTABLE_STRING:
    case CERT_RDN_IA5_STRING:
      return WidenCharacters(WithoutTrailingNuls(text), kCodePageThreadAnsi, arena, value);
    case CERT_RDN_BMP_STRING:
      *value = ReadPadded(attr.value, arena);
      return true;
    case CERT_RDN_UTF8_STRING:
      return WidenCharacters(text, kCodePageUtf8, arena, value);
    default:
      return false;
  }
}

}  // namespace Ortholan
