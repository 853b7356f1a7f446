// Values in double quotes, where their characters call for them.
#ifndef ORTHOLAN_NAMES_DECODER_QUOTING_H_
#define ORTHOLAN_NAMES_DECODER_QUOTING_H_

#include <string>

namespace Ortholan {

// Quotes the value that `text` holds from `start` to its end, unless it is plain: not empty, free
// of apostrophes and of the characters of X500NameDecoder::AuxSymbols, and without white space at
// either end.
void EscapeAttrAuxSym(size_t start, std::wstring* text);

// Doubles the double quotes of that value and puts one at either end.
void QuoteAttr(size_t start, std::wstring* text);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_QUOTING_H_
