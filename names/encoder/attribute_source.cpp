#include "names/encoder/attribute_source.h"

#include "foundation/code_page.h"
#include "foundation/utf16.h"

namespace Ortholan {
namespace {

constexpr size_t kPaddingUnits = 2;

bool WidenWithoutTrailingNuls(ByteView bytes, std::wstring* value) {
  std::string_view text = AsText(bytes);
  text = text.substr(0, text.find_last_not_of('\0') + 1);
  return Widen(text, kCodePageThreadAnsi, value) == Conversion::kDone;
}

void ReadPadded(ByteView bytes, std::wstring* value) {
  value->clear();
  AppendUtf16Le(bytes, value);
  for (size_t i = 0; i < kPaddingUnits && !value->empty() && value->back() == L'\0'; ++i) {
    value->pop_back();
  }
}

}  // namespace

AttributeView::AttributeView(const RDNAttr& attr)
    : oid(attr.oid.c_str()), value_type(attr.valueType), value(attr.value) {}

AttributeView::AttributeView(const CERT_RDN_ATTR& attr)
    : oid(attr.pszObjId != nullptr ? attr.pszObjId : ""),
      value_type(attr.dwValueType),
      value(attr.Value) {}

bool ConvToX500NameElem(const AttributeView& attr, std::wstring* value) {
  value->clear();
  if (attr.value.empty()) return true;
  switch (attr.value_type) {
    case CERT_RDN_PRINTABLE_STRING:
    case CERT_RDN_IA5_STRING:
      return WidenWithoutTrailingNuls(attr.value, value);
    case CERT_RDN_BMP_STRING:
      ReadPadded(attr.value, value);
      return true;
    case CERT_RDN_UTF8_STRING:
      return Widen(AsText(attr.value), kCodePageUtf8, value) == Conversion::kDone;
    default:
      return false;
  }
}

}  // namespace Ortholan
