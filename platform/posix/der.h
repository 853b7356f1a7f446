// Reading single BER elements, for the codecs. X.690, 8.1.

#ifndef ORTHOLAN_PLATFORM_POSIX_DER_H_
#define ORTHOLAN_PLATFORM_POSIX_DER_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstdint>

#include "bytes/byte_view.h"
#include "bytes/der_identifier.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"

namespace Ortholan::posix {

struct Element {
  BYTE tag = 0;
  ByteView content;
  ByteView whole;
};

// Measures the content of a constructed element of indefinite length, from its first octet to the
// end-of-contents pair, which does not count. False where that pair is missing. X.690 8.1.3.6.
bool MeasureIndefinite(ByteView in, std::size_t* size);

// Reads the element at the front of `in`, whose tag takes one octet. False where the length or the
// content is not all there.
inline bool ReadElement(ByteView in, Element* element) {
  if (in.size < 2) return false;
  element->tag = in[0];
  std::size_t position = 2;
  std::uint64_t size = in[1];
  std::size_t terminator = 0;
  if (size >= kLongForm) {
    Length length;
    if (!ReadLongLength(in, in[1], &position, &length)) return false;
    size = length.octets;
    if (length.indefinite) {
      std::size_t measured;
      const bool constructed = (element->tag & kConstructed) != 0;
      if (!constructed || !MeasureIndefinite(in.From(position), &measured)) return false;
      size = measured;
      terminator = 2;
    }
  }
  if (size > in.size - position) return false;
  element->content = {in.data + position, static_cast<std::size_t>(size)};
  element->whole = in.First(position + element->content.size + terminator);
  return true;
}

// Reads the element at the front of `in`, which must have the tag. A last-error code; 0 for
// success.
inline DWORD ReadTagged(ByteView in, BYTE tag, ByteView* content) {
  if (in.size == 0) return CRYPT_E_ASN1_CORRUPT;
  if (in.data[0] != tag) return CRYPT_E_ASN1_BADTAG;
  Element element;
  if (!ReadElement(in, &element)) return CRYPT_E_ASN1_CORRUPT;
  *content = element.content;
  return ERROR_SUCCESS;
}

// Moves the element at the front of `*in`, whatever its tag, out of it. The same codes; `tag` is
// the first octet of the identifier.
inline DWORD TakeElement(ByteView* in, Element* element) {
  const std::size_t identifier = IdentifierOctets(*in);
  // Lengths read alike behind the last octet of any identifier.
  if (identifier == 0 || !ReadElement(in->From(identifier - 1), element)) {
    return CRYPT_E_ASN1_CORRUPT;
  }
  element->tag = (*in)[0];
  element->whole = in->First(identifier - 1 + element->whole.size);
  *in = in->From(element->whole.size);
  return ERROR_SUCCESS;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_DER_H_
