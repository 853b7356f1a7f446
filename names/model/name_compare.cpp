// Equality of two names as multisets of decoded attributes.
//
// Each attribute becomes one key: dotted type, "=" and text, or dotted type, "#" and the octets of
// a value that cannot be decoded. Keys have a total order, so that sorting both sides and comparing
// them one by one is sound for every input.
#include <ortholan/x509_name.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/code_page.h"
#include "foundation/untyped_failure.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"
#include "names/model/name_text.h"

namespace Ortholan {
namespace {

// Type and value of one RDN, checked as far as every decoder checks them.
struct Attribute {
  TypeText type;
  Element value;

  bool Read(ByteView rdn) {
    Status status = Status::kOk;
    AttributeElements elements;
    if (!SplitRdn(rdn, &elements, &status)) return false;
    for (const Element& child : elements.child) {
      if (StandsAlone(child) != Status::kOk) return false;
      if (!IsType(child)) {
        value = child;
      } else if (!DecodeAttrOid(child, &type)) {
        return false;
      }
    }
    return true;
  }
};

// Calls `use` with each attribute of a name; false where the bytes are no name.
template <typename Use>
bool ForEachAttribute(const X509Name& name, Use use) {
  if (name.cbData == 0) return true;
  ElementReader reader{ByteView(name)};
  for (Element rdn; reader.Next(&rdn);) {
    Attribute attribute;
    if (!attribute.Read(rdn.bytes)) return false;
    use(attribute);
  }
  return !reader.fault();
}

class Keys {
 public:
  bool Read(const X509Name& name) {
    text_.reserve(name.cbData);
    return ForEachAttribute(name, [this](const Attribute& attribute) { Add(attribute); });
  }

  void Sort() {
    std::sort(ends_.begin(), ends_.end(), [this](const Span& a, const Span& b) {
      return View(a) < View(b);
    });
  }

  friend bool operator==(const Keys& a, const Keys& b) {
    return std::equal(
        a.ends_.begin(), a.ends_.end(), b.ends_.begin(), b.ends_.end(),
        [&](const Span& x, const Span& y) { return a.View(x) == b.View(y); });
  }

 private:
  struct Span {
    size_t offset;
    size_t length;
  };

  void Add(const Attribute& attribute) {
    const size_t start = text_.size();
    AppendAscii(attribute.type.dotted(), &text_);
    const size_t value = text_.size();
    text_.push_back(L'=');
    if (!DecodeAttrData(attribute.value, &text_)) {
      text_.resize(value);
      text_.push_back(L'#');
      const ByteView octets = attribute.value.bytes;
      text_.append(octets.begin(), octets.end());
    }
    ends_.push_back({start, text_.size() - start});
  }

  std::wstring_view View(const Span& span) const {
    return std::wstring_view(text_).substr(span.offset, span.length);
  }

  std::wstring text_;
  std::vector<Span> ends_;
};

bool IsReadable(const X509Name& name) {
  return ForEachAttribute(name, [](const Attribute&) {});
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
