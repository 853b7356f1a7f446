// The octets of an item or of one of its columns: whichever form pasted.h knows, the usual ones,
// digits or base64 without anything between, without a copy of the text.
#ifndef ORTHOLAN_EXAMPLES_STREAM_ITEM_OCTETS_H_
#define ORTHOLAN_EXAMPLES_STREAM_ITEM_OCTETS_H_

#include <ortholan/strict/base.h>

#include <string>
#include <string_view>

#include "examples/stream/item_source.h"

namespace Example {

// Views into the item or `buffer`, whose content is replaced. Throw Failure.
ortholan_octets OctetsOf(const Item& item, std::string& buffer);
ortholan_octets OctetsOfText(std::string_view text, std::string& buffer);

// Cuts the text up to the next tab from `rest`, and the tab; false where nothing is left. A line
// that ends with a tab has no column behind it.
bool TakeColumn(std::string_view& rest, std::string_view* column);

// Exactly `count` columns; throws the Failure that says how many there are.
void SplitColumns(const Item& item, std::string_view* columns, std::size_t count);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STREAM_ITEM_OCTETS_H_
