// The attribute type that a caller names: by dotted identifier or by key.
#ifndef ORTHOLAN_CAPI_ATTRIBUTE_TYPE_H_
#define ORTHOLAN_CAPI_ATTRIBUTE_TYPE_H_

#include <string_view>

#include "capi/call.h"
#include "names/decoder/type_name.h"

namespace Ortholan::capi {

// Holds views into the caller's text.
class AttributeType {
 public:
  // ORTHOLAN_ERROR_UTF8, ORTHOLAN_ERROR_TYPE: empty, outside ASCII, or a malformed identifier.
  Outcome Read(const char* text);

  // Whether an attribute is of this type: by identifier, or by the key that it is rendered with.
  bool Matches(const TypeText& type) const;

  // The identifier to write; empty for a key that has none of its own.
  std::string_view dotted() const { return dotted_; }

 private:
  std::string_view dotted_;
  std::string_view key_;
};

}  // namespace Ortholan::capi

#endif  // ORTHOLAN_CAPI_ATTRIBUTE_TYPE_H_
