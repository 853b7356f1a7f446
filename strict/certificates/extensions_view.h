// The extensions of a certificate, request or CRL over borrowed octets (RFC 5280 4.1.2.9):
// identifier, critical flag and the value's octets. What is inside a value is read elsewhere.
//
//   ExtensionsView extensions;
//   if (!ExtensionsView::Read(element, Leniency::kDer, &extensions, &refusal)) ...
//   for (const ExtensionView& extension : extensions) ...
#ifndef ORTHOLAN_STRICT_CERTIFICATES_EXTENSIONS_VIEW_H_
#define ORTHOLAN_STRICT_CERTIFICATES_EXTENSIONS_VIEW_H_

#include "bytes/byte_view.h"
#include "strict/der/element.h"
#include "strict/der/view_iterator.h"

namespace Ortholan::strict {

struct Refusal;

struct ExtensionView {
  ByteView oid;    // content octets of the identifier
  ByteView value;  // content of the OCTET STRING: the encoding of the extension's own structure
  ByteView bytes;  // the whole SEQUENCE
  bool critical = false;
};

// Checked extensions, one by one.
struct ExtensionWalk {
  ExtensionWalk() = default;
  explicit ExtensionWalk(ByteView content) : rest(content) {}
  void Step();

  ExtensionView part;
  ByteView rest;  // behind the part
};

class ExtensionsView {
 public:
  using Iterator = ViewIterator<ExtensionWalk>;

  // No extensions.
  ExtensionsView() = default;

  // Reads SEQUENCE SIZE (1..MAX) OF Extension that is the whole of `der`.
  static bool Read(ByteView der, Leniency leniency, ExtensionsView* extensions, Refusal* refusal);

  Iterator begin() const { return Iterator(content_); }
  Iterator end() const { return {}; }
  size_t size() const { return size_; }
  // The extensions one behind the other.
  ByteView content() const { return content_; }

  // The first of checked extensions one behind the other; without octets where there is none.
  static ExtensionView First(ByteView content);

  // Looks for the one extension of a type. False, with the second one's place in the refusal, where
  // there are several; `*found` is without octets where there is none.
  bool Find(ByteView oid, ExtensionView* found, Refusal* refusal) const {
    return FindIn(content_, oid, found, refusal);
  }
  // The same among checked extensions one behind the other.
  static bool FindIn(ByteView content, ByteView oid, ExtensionView* found, Refusal* refusal);

 private:
  ByteView content_;
  size_t size_ = 0;
};

inline void ExtensionWalk::Step() {
  part = ExtensionsView::First(rest);
  rest = rest.From(part.bytes.size);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_EXTENSIONS_VIEW_H_
