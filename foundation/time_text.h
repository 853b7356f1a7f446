// UTCTime and GeneralizedTime content (X.690 11.7, 11.8) and the platform's FILETIME.
#ifndef ORTHOLAN_FOUNDATION_TIME_TEXT_H_
#define ORTHOLAN_FOUNDATION_TIME_TEXT_H_

#include <ortholan/platform.h>

#include "bytes/byte_view.h"
#include "foundation/status_code.h"

namespace Ortholan {

enum class TimeForm {
  kUtc,          // 13 characters, YYMMDDHHMMSSZ: years 1950 to 2049
  kGeneralized,  // 15 characters, YYYYMMDDHHMMSSZ
};

constexpr size_t kMaxTimeText = 15;

// Writes the text of a FILETIME of 8 bytes; whole seconds. kNotEncodable for another size, a time
// that the platform refuses, and a year that does not fit the form.
Status FormatTime(ByteView fileTime, TimeForm form, char (&text)[kMaxTimeText + 1], size_t* length);

// kCorrupt for anything but digits and a final "Z" of the form's length, and for no calendar time.
Status ParseTime(ByteView text, TimeForm form, FILETIME* time);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_TIME_TEXT_H_
