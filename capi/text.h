// Text and octets across the border: UTF-8 in, blocks that the caller owns out.
#ifndef ORTHOLAN_CAPI_TEXT_H_
#define ORTHOLAN_CAPI_TEXT_H_

#include <ortholan/ident_obj.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "bytes/byte_view.h"
#include "capi/call.h"

namespace Ortholan::capi {

// Octets that a caller handed in. ORTHOLAN_ERROR_ARGUMENT for a size without octets and one that
// passes 32 bits.
Outcome ReadOctets(const uint8_t* data, size_t size, ByteView* octets);

// A copy of octets that ReadOctets let through, or of a part of them.
inline IdentObj ToBlob(ByteView octets) { return {octets.data, static_cast<DWORD>(octets.size)}; }

// Replaces `wide` by the text, one UTF-16 unit a character. ORTHOLAN_ERROR_UTF8.
Outcome ReadUtf8(std::string_view text, std::wstring* wide);

// `size` octets, then a zero one, for ortholan_free. Throws std::bad_alloc.
char* NewBlock(size_t size);

// Copies into a block of the caller's, terminated. `size` may be null for text.
void GiveText(std::string_view text, char** out, size_t* size);
void GiveOctets(ByteView octets, uint8_t** out, size_t* size);
// The same for wide text; an unpaired surrogate becomes U+FFFD. ORTHOLAN_ERROR_MEMORY for text that
// is too long to be converted.
Outcome GiveWideText(std::wstring_view text, char** out, size_t* size);

// A dotted identifier that comes back from its encoding as it was written. ORTHOLAN_ERROR_UTF8,
// ORTHOLAN_ERROR_TYPE: no identifier, or one that the library takes for another (2.999).
Outcome CheckIdentifier(std::string_view dotted);

}  // namespace Ortholan::capi

#endif  // ORTHOLAN_CAPI_TEXT_H_
