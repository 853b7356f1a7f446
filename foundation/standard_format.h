// Formats with the size prefixes that stem from Windows, for vsnprintf of any platform.
//
//   StandardFormat("%I64d of %Fs").text()   // "%lld of %s"
#ifndef ORTHOLAN_FOUNDATION_STANDARD_FORMAT_H_
#define ORTHOLAN_FOUNDATION_STANDARD_FORMAT_H_

#include <memory>

namespace Ortholan {

// "I64" becomes "ll"; "F" and "N", once a far and a near pointer, become nothing in front of a
// conversion. Everything else stays. Formats without them, nearly all, are not copied.
class StandardFormat {
 public:
  // `format` may be null and has to outlive the object.
  explicit StandardFormat(const char* format);

  // Null for no format, and where memory ran out.
  const char* text() const { return text_; }

 private:
  const char* text_;
  std::unique_ptr<char[]> copy_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_STANDARD_FORMAT_H_
