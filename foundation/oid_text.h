// OBJECT IDENTIFIER content and dotted text.
//
// The first octet alone stands for the first two arcs, octet / 40 and octet % 40, both ways. That
// is narrower than X.690 8.19.4, where the first subidentifier may take several octets: 2.999 and
// its like are not told apart from other identifiers. Each later arc has 32 bits.
#ifndef ORTHOLAN_FOUNDATION_OID_TEXT_H_
#define ORTHOLAN_FOUNDATION_OID_TEXT_H_

#include <string_view>

#include "bytes/byte_view.h"
#include "bytes/small_buffer.h"
#include "foundation/status_code.h"

namespace Ortholan {

constexpr size_t kMaxOidContent = 260;

using OidText = SmallBuffer<char, 128>;

inline std::string_view View(const OidText& text) { return {text.data(), text.size()}; }

// Replaces `text`, without a terminator. kCorrupt for content that is empty or unfinished or has
// an arc above 32 bits; leading 80 octets of an arc are tolerated.
Status FormatOid(ByteView content, OidText* text);

// Content octets for two or more decimal arcs joined by single dots. kNotEncodable for anything
// else, an arc above 32 bits, and content of more than kMaxOidContent octets.
Status ParseOid(std::string_view dotted, SmallBuffer<uint8_t, kMaxOidContent>* content);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_OID_TEXT_H_
