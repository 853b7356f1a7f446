// Why a name text is refused.
#include <ortholan/name_text_error.h>

#include "bytes/utf16.h"
#include "capi/call.h"
#include "capi/text.h"

namespace Ortholan::capi {
namespace {

constexpr bool Is(NameTextFault fault, uint32_t word) { return static_cast<DWORD>(fault) == word; }
static_assert(Is(NameTextFault::kNone, ORTHOLAN_FAULT_NONE));
static_assert(Is(NameTextFault::kNoText, ORTHOLAN_FAULT_NO_TEXT));
static_assert(Is(NameTextFault::kMissingType, ORTHOLAN_FAULT_MISSING_TYPE));
static_assert(Is(NameTextFault::kMissingEquals, ORTHOLAN_FAULT_MISSING_EQUALS));
static_assert(Is(NameTextFault::kUnknownType, ORTHOLAN_FAULT_UNKNOWN_TYPE));
static_assert(Is(NameTextFault::kMissingValue, ORTHOLAN_FAULT_MISSING_VALUE));
static_assert(Is(NameTextFault::kUnexpectedEquals, ORTHOLAN_FAULT_UNEXPECTED_EQUALS));
static_assert(Is(NameTextFault::kUnexpectedText, ORTHOLAN_FAULT_UNEXPECTED_TEXT));
static_assert(Is(NameTextFault::kWrongCharacter, ORTHOLAN_FAULT_WRONG_CHARACTER));

struct Outputs {
  uint32_t* fault;
  size_t* position;
  size_t* length;
  char** message;
};

// Octets of a part of the text in UTF-8, which it came from.
size_t Octets(const std::wstring& text, size_t position, size_t length) {
  return static_cast<size_t>(CountUtf8(std::wstring_view(text).substr(position, length)));
}

Outcome DescribeText(std::string_view text, uint32_t options, const Outputs& out) {
  std::wstring wide;
  const Outcome read = ReadUtf8(text, &wide);
  if (!read) return read;
  const NameTextError error = DescribeNameTextError(wide, options);
  if (out.message != nullptr) {
    const Outcome given = GiveWideText(error.message, out.message, nullptr);
    if (!given) return given;
  }
  *out.fault = static_cast<uint32_t>(error.fault);
  *out.position = Octets(wide, 0, error.position);
  *out.length = Octets(wide, error.position, error.length);
  return Done();
}

// The message alone may be missing.
bool ClearAll(const Outputs& out) {
  if (out.message != nullptr) *out.message = nullptr;
  return Clear(out.fault, out.position, out.length);
}

}  // namespace
}  // namespace Ortholan::capi

using namespace Ortholan::capi;

ortholan_result ortholan_name_text_error(const char* text, uint32_t options, uint32_t* fault,
                                         size_t* position, size_t* length, char** message) {
  return Call(__func__, [&] {
    const Outputs out = {fault, position, length, message};
    if (!ClearAll(out) || text == nullptr) return NullArgument();
    return DescribeText(text, options, out);
  });
}

ortholan_result ortholan_name_text_error_n(const char* text, size_t size, uint32_t options,
                                           uint32_t* fault, size_t* position, size_t* length,
                                           char** message) {
  return Call(__func__, [&] {
    const Outputs out = {fault, position, length, message};
    if (!ClearAll(out) || (text == nullptr && size != 0)) return NullArgument();
    return DescribeText({text, size}, options, out);
  });
}
