// One value to its DER string, or to the SEQUENCE of strings that an address is written as.
#ifndef ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_
#define ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_

#include <ortholan/platform.h>

#include <cstdint>
#include <string_view>

#include "foundation/small_buffer.h"

namespace Ortholan {

// Takes the next line off the front of `*text`: lines end at CR and LF, empty ones are passed
// over, nothing is trimmed. False when no line is left.
bool NextLine(std::wstring_view* text, std::wstring_view* line);

// Calls `use` with each line of `text`, in order, until it returns false; text without any line is
// one line itself. Returns what the last call returned.
template <typename Use>
bool ForEachLine(std::wstring_view text, Use use) {
  std::wstring_view rest = text;
  std::wstring_view line;
  if (!NextLine(&rest, &line)) return use(text);
  do {
    if (!use(line)) return false;
  } while (NextLine(&rest, &line));
  return true;
}

// The value of one attribute, ready to be written.
struct ValuePlan {
  std::wstring_view text;
  DWORD type = 0;         // CERT_RDN_*: 4, 7, 12 or 13; the text is in its alphabet
  bool lines = false;     // a SEQUENCE of one string a line
  uint64_t size = 0;      // octets of the whole encoding
  uint64_t content = 0;   // octets inside the SEQUENCE, where `lines`
};

// Fills `size` and `content` from the rest.
void MeasureValue(ValuePlan* plan);

// Writes values with the platform's codec; keeps the scratch space that this takes.
class ValueEncoder {
 public:
  // Writes plan.size octets to `out`. False where the platform refuses; its last error stands.
  bool EncodeElemData(const ValuePlan& plan, BYTE* out);

 private:
  bool EncodeString(std::wstring_view text, DWORD type, uint64_t size, BYTE* out);

  SmallBuffer<BYTE, 512> bytes_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_
