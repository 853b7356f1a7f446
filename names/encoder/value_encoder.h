// One value to its DER string, or to the SEQUENCE of strings that an address is written as.
#ifndef ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_
#define ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_

#include <ortholan/platform.h>

#include <cstdint>
#include <string_view>

#include "foundation/small_buffer.h"

namespace Ortholan {

// The value of one attribute, ready to be written.
struct ValuePlan {
  std::wstring_view text;  // in the type's alphabet
  DWORD type;              // CERT_RDN_*: 4, 7, 12 or 13
  bool lines;              // a SEQUENCE of one string a line
  uint64_t size;           // octets of the whole encoding
};

// Takes the next line off the front of `*text`: lines end at CR and LF, empty ones are passed
// over, nothing is trimmed. False when no line is left.
bool NextLine(std::wstring_view* text, std::wstring_view* line);

// Octets of the encoding.
uint64_t MeasureValue(std::wstring_view text, DWORD type, bool lines);

// Writes values with the platform's codec; keeps the scratch space that this takes.
class ValueEncoder {
 public:
  // Writes plan.size octets to `out`. False where the platform refuses; its last error stands.
  bool EncodeElemData(const ValuePlan& plan, BYTE* out);

 private:
  bool EncodeLines(const ValuePlan& plan, BYTE* out);
  bool EncodeString(std::wstring_view text, DWORD type, uint64_t size, BYTE* out);

  SmallBuffer<BYTE, 512> bytes_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_VALUE_ENCODER_H_
