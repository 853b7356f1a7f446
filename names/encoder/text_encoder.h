// A whole name text to its encoding.
//
//   const AttributeRow* fresh = nullptr;
//   if (!EncodeNameText(std::string_view("CN=Alpha"), 0, false, &fresh, &der)) ...
#ifndef ORTHOLAN_NAMES_ENCODER_TEXT_ENCODER_H_
#define ORTHOLAN_NAMES_ENCODER_TEXT_ENCODER_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <string_view>

#include "names/attribute_table.h"

namespace Ortholan {

// Encode `text` under the encoder's options, sorted by falling rank or as it stands. `*unfinished`
// is the parser's leftover, null for a fresh start. `der` is unchanged on failure: false, with the
// last error set where X500NameEncoder says so.
bool EncodeNameText(std::wstring_view text, DWORD options, bool sortByPriority,
                    const AttributeRow** unfinished, IdentObj* der);
// The same for text in ASCII.
bool EncodeNameText(std::string_view ascii, DWORD options, bool sortByPriority,
                    const AttributeRow** unfinished, IdentObj* der);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_TEXT_ENCODER_H_
