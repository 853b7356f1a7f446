// Shared strings whose text matters: where memory runs out a CZEPString becomes empty, which a
// reader could not tell from an empty text.
#ifndef ORTHOLAN_FOUNDATION_REQUIRED_TEXT_H_
#define ORTHOLAN_FOUNDATION_REQUIRED_TEXT_H_

#include <ortholan/zep_string.h>

#include <string_view>

namespace Ortholan {

// Replaces `out` by the text; throws XZEPStatus 16, `out` unchanged, where it cannot be allocated.
void SetRequiredText(const char* text, size_t length, CZEPString* out);
inline void SetRequiredText(std::string_view text, CZEPString* out) {
  SetRequiredText(text.data(), text.size(), out);
}

inline CZEPString RequiredText(std::string_view text) {
  CZEPString made;
  SetRequiredText(text, &made);
  return made;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_REQUIRED_TEXT_H_
