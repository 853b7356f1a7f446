// Attribute types as text: the dotted identifier, and the short key.
//
//   TypeText type;
//   if (DecodeAttrOid(content, &type)) AppendType(type, kStyleKeys, &text);   // 55 04 03: "CN"
#ifndef ORTHOLAN_NAMES_DECODER_TYPE_NAME_H_
#define ORTHOLAN_NAMES_DECODER_TYPE_NAME_H_

#include <string>
#include <string_view>

#include "foundation/oid_text.h"
#include "names/attribute_table.h"

namespace Ortholan {

// An attribute type in dotted text, terminated.
class TypeText {
 public:
  std::string_view dotted() const { return dotted_; }
  const AttributeRow* row() const { return row_; }

 private:
  friend bool DecodeAttrOid(ByteView content, TypeText* type);
  bool Format(ByteView content);

  const AttributeRow* row_ = nullptr;  // null for octets that the table has not
  std::string_view dotted_;            // into the row or `formatted_`
  OidText formatted_;
};

// Renders the content of an identifier element, whatever its class. False with the last error set
// where the content is no identifier.
inline bool DecodeAttrOid(ByteView content, TypeText* type) {
  type->row_ = FindAttributeByDer(content);
  if (type->row_ == nullptr) return type->Format(content);
  type->dotted_ = type->row_->oid;
  return true;
}

// The platform's name of the type, otherwise the table's key; empty where neither has one, and the
// dotted text is shown. Valid for the life of the process.
std::wstring_view GetX500KeyFromOid(const TypeText& type);

// The key that the style shows; empty where it shows the dotted identifier.
std::wstring_view KeyFor(const TypeText& type, unsigned style);

// Appends the type as the style shows it: key or dotted identifier.
void AppendType(const TypeText& type, unsigned style, std::wstring* text);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_TYPE_NAME_H_
