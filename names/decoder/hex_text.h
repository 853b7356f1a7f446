// Octets as hexadecimal text.
//
//   AppendHex(bytes, &text);   // "05 00"
#ifndef ORTHOLAN_NAMES_DECODER_HEX_TEXT_H_
#define ORTHOLAN_NAMES_DECODER_HEX_TEXT_H_

#include <string>

#include "bytes/byte_view.h"

namespace Ortholan {

// Appends two upper-case digits an octet, octets separated by blanks; two double quotes for none.
void AppendHex(ByteView bytes, std::wstring* text);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_HEX_TEXT_H_
