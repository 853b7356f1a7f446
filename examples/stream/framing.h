// Where items begin and end in the octets of a stream:
//
//   lines  302A...            an item a line, CR LF or LF
//   PEM    -----BEGIN ...     a block each, whatever stands between them
//   DER    30 82 ... 30 82    one element behind the other
//
// Blocks are read without regard to items. What is whole of them is cut off at once, by looking at
// the end alone, and taken apart item by item later, by whichever thread has it.
#ifndef ORTHOLAN_EXAMPLES_STREAM_FRAMING_H_
#define ORTHOLAN_EXAMPLES_STREAM_FRAMING_H_

#include <cstddef>
#include <string_view>

namespace Example {

enum class Framing { kLines, kPem, kDer };

// By the first octets of a file of certificates.
Framing RecogniseFraming(std::string_view start);

// Octets of `data`, which begins with an item, up to behind the last one that is whole; npos where
// it begins with what is no DER, so that nothing tells where the next item is. Of the first `seen`
// octets it is known that they are not whole.
std::size_t WholeItems(Framing framing, std::string_view data, std::size_t seen);

// Cuts the first item from whole ones; false where there is none left.
bool TakeItem(Framing framing, std::string_view& rest, std::string_view* item);

// Octets of `data`, the rest of an item that is too long, up to where the next one may begin; npos
// where that is not in it.
std::size_t RestOfItem(Framing framing, std::string_view data);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STREAM_FRAMING_H_
