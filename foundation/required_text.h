// Shared strings whose text matters: where memory runs out a CZEPString becomes empty, which a
// reader could not tell from an empty text.
#ifndef ORTHOLAN_FOUNDATION_REQUIRED_TEXT_H_
#define ORTHOLAN_FOUNDATION_REQUIRED_TEXT_H_

#include <ortholan/zep_string.h>

#include <string_view>

#include "foundation/status_code.h"

namespace Ortholan {

// The text; throws XZEPStatus 16 where it could not be allocated.
inline CZEPString RequiredText(std::string_view text) {
  CZEPString made(text.data(), text.size());
  if (made.GetLength() == 0 && !text.empty()) ThrowNoMemory();
  return made;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_REQUIRED_TEXT_H_
