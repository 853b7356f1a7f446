// One value to its DER string, or to the SEQUENCE of strings that an address is written as.
#ifndef ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_
#define ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_

#include <ortholan/platform.h>

#include <cstdint>
#include <string_view>

#include "bytes/der_length.h"
#include "names/encoder/alphabets.h"
#include "platform/string_value.h"

namespace Ortholan {

// The characters of a value, not owned: ASCII in bytes, or UTF-16 in wide characters.
struct Characters {
  const char* ascii = nullptr;    // null where they are wide
  const wchar_t* wide = nullptr;  // null where they are ASCII
  size_t size = 0;

  Characters() = default;
  Characters(std::string_view text) : ascii(text.data()), size(text.size()) {}
  Characters(std::wstring_view text) : wide(text.data()), size(text.size()) {}
};

inline unsigned CommonClasses(const Characters& text) {
  return text.ascii != nullptr ? CommonClasses(std::string_view(text.ascii, text.size))
                               : CommonClasses(std::wstring_view(text.wide, text.size));
}

// The value of one attribute, ready to be written.
struct ValuePlan {
  Characters text;   // in the type's alphabet
  DWORD type;        // CERT_RDN_*: 4, 7, 12 or 13
  bool lines;        // a SEQUENCE of one string a line
  uint64_t content;  // octets behind the header

  // Octets of the whole encoding.
  uint64_t size() const { return ElementSize(content); }
};

// Content octets of one string: the text in the type's encoding. Sized here rather than by a query
// of the platform.
inline uint64_t StringContent(std::string_view ascii, DWORD type) {
  return type == CERT_RDN_BMP_STRING ? 2 * ascii.size() : ascii.size();
}
uint64_t StringContent(std::wstring_view text, DWORD type);
inline uint64_t StringContent(const Characters& text, DWORD type) {
  return text.ascii != nullptr ? StringContent(std::string_view(text.ascii, text.size), type)
                               : StringContent(std::wstring_view(text.wide, text.size), type);
}
// Of a SEQUENCE of one string a line.
uint64_t LinesContent(const Characters& text, DWORD type);

// Content octets of a value in any of the forms above.
template <typename Text>
uint64_t ValueContent(const Text& text, DWORD type, bool lines) {
  return lines ? LinesContent(text, type) : StringContent(text, type);
}

inline bool EncodeString(const Characters& text, DWORD type, uint64_t content, BYTE* out) {
  const size_t octets = static_cast<size_t>(content);
  if (text.ascii != nullptr) return EncodeStringValue(type, text.ascii, text.size, out, octets);
  return EncodeStringValue(type, text.wide, text.size, out, octets);
}
bool EncodeLines(const ValuePlan& plan, BYTE* out);

// Writes plan.size() octets to `out` with the platform's codec. False where the platform refuses;
// its last error stands.
inline bool EncodeElemData(const ValuePlan& plan, BYTE* out) {
  return plan.lines ? EncodeLines(plan, out)
                    : EncodeString(plan.text, plan.type, plan.content, out);
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_
