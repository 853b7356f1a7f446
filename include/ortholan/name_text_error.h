// Why a name text is refused, and where.
//
//   Ortholan::IdentObj der;
//   if (!encoder.Encode(text, der, true)) {
//     const Ortholan::NameTextError error = Ortholan::DescribeNameTextError(text, options);
//     // C=R_U: error.position is 3, error.message
//     // "_" at character 4: expected letters, digits, blank and '()+,-./:? alone in the value of C
//   }
#ifndef ORTHOLAN_NAME_TEXT_ERROR_H_
#define ORTHOLAN_NAME_TEXT_ERROR_H_

#include <ortholan/export.h>
#include <ortholan/platform.h>

#include <cstddef>
#include <string>

namespace Ortholan {

// What is wrong with the first place that is. The numbers stay.
enum class NameTextFault : DWORD {
  kNone = 0,              // the text is taken
  kNoText = 1,            // nothing but white space
  kMissingType = 2,       // a delimiter, "=" or the end where a type has to stand
  kMissingEquals = 3,     // a type without "=", often the rest of a value that holds a delimiter
  kUnknownType = 4,       // a type that is not written
  kMissingValue = 5,      // a type and "=" alone
  kUnexpectedEquals = 6,  // an unquoted value that begins with "="
  kUnexpectedText = 7,    // text behind a closing quote
  kWrongCharacter = 8,    // a character outside the string type that the attribute prescribes
};

// The first place of a text that keeps it from being encoded.
struct NameTextError {
  NameTextFault fault = NameTextFault::kNone;  // what is wrong there
  // Where, in characters of the text from 0.
  size_t position = 0;
  // How many characters were met there: 0 at the end.
  size_t length = 0;
  // What was met, at most 40 characters of it.
  std::wstring met;
  // What was expected instead.
  std::wstring expected;
  // Both and the place, counted from 1, in one sentence without a full stop; "" for kNone.
  std::wstring message;
};

// Reads `text` as X500NameEncoder::Encode does with these options, and tells what keeps it from
// being encoded: kNone exactly where the text itself is no obstacle, so that memory, the platform
// or an encoder that an earlier text was broken off in are to blame. Throws std::bad_alloc.
ORTHOLAN_EXPORT NameTextError DescribeNameTextError(const std::wstring& text,
                                                    unsigned long options);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAME_TEXT_ERROR_H_
