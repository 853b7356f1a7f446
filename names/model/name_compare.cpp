// Equality of two names as multisets of decoded attributes.
//
// Each attribute becomes one key: dotted type, "=" and text, or dotted type, "#" and the octets of
// a value that cannot be decoded. Keys have a total order, so that sorting both sides and comparing
// them one by one is sound for every input.
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "foundation/code_page.h"
#include "foundation/small_buffer.h"
#include "foundation/untyped_failure.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/attribute_walk.h"
#include "names/decoder/value_text.h"
#include "names/model/name_text.h"

namespace Ortholan {
namespace {

// Calls `use` with the bytes of each RDN until it returns false; false then, and where the bytes
// are no name. The empty object has none.
template <typename Use>
bool ForEachRdn(const X509Name& name, Use use) {
  if (name.cbData == 0) return true;
  ElementReader reader{ByteView(name)};
  for (Element rdn; reader.Next(&rdn);) {
    if (!use(rdn.bytes)) return false;
  }
  return !reader.fault();
}

// Any total order will do; this one is by the characters' bytes, then by length.
int Order(std::wstring_view a, std::wstring_view b) {
  const int order = std::memcmp(a.data(), b.data(), std::min(a.size(), b.size()) * sizeof(wchar_t));
  if (order != 0 || a.size() == b.size()) return order;
  return a.size() < b.size() ? -1 : 1;
}

class Keys {
 public:
  bool Read(const X509Name& name) {
    text_.reserve(name.cbData);
    return ForEachRdn(name, [this](ByteView rdn) {
      DecodedAttribute attribute;
      if (!attribute.Read(rdn)) return false;
      Add(attribute);
      return true;
    });
  }

  void Sort() {
    std::sort(spans_.begin(), spans_.end(),
              [this](const Span& a, const Span& b) { return Order(View(a), View(b)) < 0; });
  }

  friend bool operator==(const Keys& a, const Keys& b) {
    return std::equal(
        a.spans_.begin(), a.spans_.end(), b.spans_.begin(), b.spans_.end(),
        [&](const Span& x, const Span& y) { return Order(a.View(x), b.View(y)) == 0; });
  }

 private:
  struct Span {
    size_t offset;
    size_t length;
  };

  void Add(const DecodedAttribute& attribute) {
    const size_t start = text_.size();
    AppendAscii(attribute.type().dotted(), &text_);
    const size_t value = text_.size();
    text_.push_back(L'=');
    if (attribute.is_ascii()) {
      AppendAscii(attribute.ascii(), &text_);
    } else if (!DecodeAttrData(attribute.value(), &text_)) {
      text_.resize(value);
      text_.push_back(L'#');
      const ByteView octets = attribute.value().bytes;
      text_.append(octets.begin(), octets.end());
    }
    *spans_.Extend(1) = {start, text_.size() - start};
  }

  std::wstring_view View(const Span& span) const {
    return std::wstring_view(text_).substr(span.offset, span.length);
  }

  std::wstring text_;
  SmallBuffer<Span, 32> spans_;
};

// An RDN of the usual shape with a type of the table can be read without looking further.
bool IsReadable(const X509Name& name) {
  return ForEachRdn(name, [](ByteView rdn) {
    PlainAttribute plain;
    if (SplitPlainRdn(rdn, &plain) && FindAttributeByDer(plain.type) != nullptr) return true;
    DecodedAttribute attribute;
    return attribute.Read(rdn);
  });
}

// False in the result's stead is left to the caller where a name cannot be read.
bool Compare(const X509Name& a, const X509Name& b, bool* equal) {
  if (SameBytes(ByteView(a), ByteView(b))) {
    *equal = true;
    return IsReadable(a);
  }
  Keys left;
  Keys right;
  if (!left.Read(a) || !right.Read(b)) return false;
  *equal = left == right;
  if (*equal) return true;
  left.Sort();
  right.Sort();
  *equal = left == right;
  return true;
}

}  // namespace

bool X509Name::operator==(const X509Name& other) const {
  bool equal = false;
  if (!Compare(*this, other, &equal)) ThrowUntyped(kNameFailure);
  return equal;
}

bool X509Name::operator!=(const X509Name& other) const { return !(*this == other); }

}  // namespace Ortholan
