// The iterator of the views over checked octets: it stands at a part, which has no octets at the
// end. A `Walk` has the part, `part`, whose `bytes` tell where it stands, and steps to the next
// one.
//
//   class ExtensionsView {
//     using Iterator = ViewIterator<ExtensionWalk>;
//     Iterator begin() const { return Iterator(content_); }
//     Iterator end() const { return {}; }
#ifndef ORTHOLAN_STRICT_DER_VIEW_ITERATOR_H_
#define ORTHOLAN_STRICT_DER_VIEW_ITERATOR_H_

#include <iterator>
#include <utility>

#include "bytes/byte_view.h"

namespace Ortholan::strict {

template <class Walk>
class ViewIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = decltype(std::declval<Walk>().part);
  using difference_type = std::ptrdiff_t;
  using pointer = const value_type*;
  using reference = const value_type&;

  ViewIterator() = default;
  // At the first part of checked octets.
  explicit ViewIterator(ByteView octets) : walk_(octets) { walk_.Step(); }

  reference operator*() const { return walk_.part; }
  pointer operator->() const { return &walk_.part; }
  ViewIterator& operator++() {
    walk_.Step();
    return *this;
  }
  bool operator==(const ViewIterator& other) const {
    return walk_.part.bytes.data == other.walk_.part.bytes.data;
  }
  bool operator!=(const ViewIterator& other) const { return !(*this == other); }

 private:
  Walk walk_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_VIEW_ITERATOR_H_
