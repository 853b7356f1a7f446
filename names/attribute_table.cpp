#include "names/attribute_table.h"

#include <ortholan/name_encoder.h>

#include <string>


namespace Ortholan {

const AttributeRow* FindAttribute(std::string_view oid) {
  if (oid.empty()) return nullptr;
  for (const AttributeRow& row : kAttributes) {
    // The last character tells most rows of one length apart.
    if (row.oid.size() == oid.size() && row.oid.back() == oid.back() && row.oid == oid) {
      return &row;
    }
  }
  return nullptr;
}

const AttributeRow* FindAttributeByDer(ByteView content) {
  if (content.empty()) return nullptr;
  for (const AttributeRow& row : kAttributes) {
    const ByteView own = row.oid_content();
    if (own.size == content.size && own[own.size - 1] == content[content.size - 1] &&
        SameBytes(own, content)) {
      return &row;
    }
  }
  return nullptr;
}

static int AttributePriority(std::string_view oid) {
  const AttributeRow* row = FindAttribute(oid);
  return row != nullptr ? row->rank : kUnrankedAttribute;
}

int GetAttrPriority(const CZEPString& oid) { return AttributePriority(oid.c_str()); }

int GetAttrPriority(const std::wstring& oid) {
  // The 8-bit text ends at the first NUL; characters above 0x7F are in no identifier.
  std::string narrow;
  for (const wchar_t c : oid) {
    if (c == L'\0') break;
    if (c > 0x7F) return kUnrankedAttribute;
    narrow.push_back(static_cast<char>(c));
  }
  return AttributePriority(narrow);
}

}  // namespace Ortholan
