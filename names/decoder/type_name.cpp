#include "names/decoder/type_name.h"

#include <ortholan/name_options.h>

#include "bytes/ascii.h"
#include "foundation/code_page.h"
#include "foundation/report.h"
#include "platform/calls.h"

namespace Ortholan {

bool TypeText::Format(ByteView content) {
  const Status status = FormatOid(content, &formatted_);
  if (status != Status::kOk) return FailWith(status);
  const size_t length = formatted_.size();
  formatted_.push_back('\0');
  dotted_ = {formatted_.data(), length};
  return true;
}

std::wstring_view GetX500KeyFromOid(const TypeText& type) {
  const CRYPT_OID_INFO* info = FindAttributeInfo(CRYPT_OID_INFO_OID_KEY, type.dotted().data());
  if (info != nullptr && info->pwszName != nullptr) return info->pwszName;
  // An arc padded with 80 octets has other octets than the row's, and the same text.
  const AttributeRow* row = type.row() != nullptr ? type.row() : FindAttribute(type.dotted());
  return row != nullptr ? row->key : std::wstring_view();
}

std::wstring_view KeyFor(const TypeText& type, unsigned style) {
  return style == kStyleKeys ? GetX500KeyFromOid(type) : std::wstring_view();
}

void AppendType(const TypeText& type, unsigned style, std::wstring* text) {
  const std::wstring_view key = KeyFor(type, style);
  if (!key.empty()) {
    text->append(key);
  } else {
    AppendAscii(type.dotted(), text);
  }
}

}  // namespace Ortholan
