#include "names/encoder/structured_value.h"

#include <algorithm>

#include "bytes/ascii.h"
#include "bytes/byte_view.h"
#include "bytes/utf16.h"
#include "foundation/blob_view.h"

namespace Ortholan {
namespace {

constexpr size_t kPaddingUnits = 2;

std::string_view WithoutTrailingNuls(std::string_view text) {
  return text.substr(0, text.find_last_not_of('\0') + 1);
}

// What the value holds: zeros where it has a size and no pointer.
ByteView OctetsOf(const CRYPT_DATA_BLOB& value, Arena* arena) {
  if (value.pbData != nullptr || value.cbData == 0) return ViewOf(value);
  BYTE* const zeros = arena->Take<BYTE>(value.cbData);
  WriteBlob(zeros, value);
  return {zeros, value.cbData};
}

Characters ReadPadded(ByteView bytes, Arena* arena) {
  const LittleEndianSource units{bytes.data};
  size_t count = bytes.size / 2;
  for (size_t i = 0; i < kPaddingUnits && count != 0 && units[count - 1] == 0; ++i) --count;
  char* const ascii = arena->Take<char>(count);
  if (NarrowAscii(units, count, ascii)) return std::string_view(ascii, count);
  wchar_t* const wide = arena->Take<wchar_t>(count);
  for (size_t i = 0; i < count; ++i) wide[i] = static_cast<wchar_t>(units[i]);
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
  const ByteView octets = OctetsOf(attr.value, arena);
  if (octets.empty()) return true;
  const std::string_view text = AsText(octets);
  switch (attr.value_type) {
    case CERT_RDN_PRINTABLE_STRING:
    case CERT_RDN_IA5_STRING:
      return WidenCharacters(WithoutTrailingNuls(text), kCodePageThreadAnsi, arena, value);
    case CERT_RDN_BMP_STRING:
      *value = ReadPadded(octets, arena);
      return true;
    case CERT_RDN_UTF8_STRING:
      return WidenCharacters(text, kCodePageUtf8, arena, value);
    default:
      return false;
  }
}

}  // namespace Ortholan
