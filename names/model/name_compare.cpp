// Equality of two names as multisets of decoded attributes.
//
// Each attribute has a key: dotted type, "=" and text, or dotted type, "#" and the octets of a
// value that cannot be decoded. Names are nearly always equal in the same order, so both are walked
// side by side as long as their keys are the same; only what is left is gathered. Keys have a total
// order, so that sorting both rests and comparing them one by one is sound for every input.
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "bytes/ascii.h"
#include "bytes/small_buffer.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/untyped_failure.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/attribute_walk.h"
#include "names/decoder/value_text.h"
#include "names/model/name_failure.h"

namespace Ortholan {
namespace {

// The RDNs of a name; the empty object has none.
class RdnReader {
 public:
  explicit RdnReader(const X509Name& name) : empty_(name.cbData == 0), reader_(ViewOf(name)) {}

  bool Next(Element* rdn) { return reader_.Next(rdn); }
  size_t rest() const { return reader_.rest(); }
  // Whether all that was read so far is a name's.
  bool IsName() const { return empty_ || !reader_.fault(); }

 private:
  bool empty_;
  ElementReader reader_;
};

// The attributes of a name, one at a time, from the first.
class AttributeReader {
 public:
  explicit AttributeReader(const X509Name& name) : rdns_(name) { Next(); }

  // Whether it stands at an attribute: not behind the last one, nor where one cannot be read.
  bool at_attribute() const { return at_attribute_; }
  const DecodedAttribute& attribute() const { return attribute_; }
  void Next() {
    Element rdn;
    at_attribute_ = rdns_.Next(&rdn);
    if (!at_attribute_) return;
    octets_ = rdn.bytes.size;
    at_attribute_ = readable_ = attribute_.Read(rdn.bytes);
  }
  // Octets from this attribute on.
  size_t octets() const { return octets_ + rdns_.rest(); }
  bool IsName() const { return readable_ && rdns_.IsName(); }

 private:
  RdnReader rdns_;
  DecodedAttribute attribute_;
  size_t octets_ = 0;
  bool at_attribute_ = false;
  bool readable_ = true;
};

void AppendKey(const DecodedAttribute& attribute, std::wstring* text) {
  AppendAscii(attribute.type().dotted(), text);
  const size_t value = text->size();
  text->push_back(L'=');
  if (attribute.is_ascii()) {
    AppendAscii(attribute.ascii(), text);
  } else if (!DecodeAttrData(attribute.value(), text)) {
    text->resize(value);
    text->push_back(L'#');
    const ByteView octets = attribute.value().bytes;
    text->append(octets.begin(), octets.end());
  }
}

// Whether two attributes have the same key by what can be told without making it.
bool HaveSameKey(const DecodedAttribute& a, const DecodedAttribute& b) {
  if (a.type().dotted() != b.type().dotted()) return false;
  if (a.is_ascii() && b.is_ascii()) return a.ascii() == b.ascii();
  return SameBytes(a.value().bytes, b.value().bytes);
}

// Any total order will do; this one is by length, then by the characters' bytes.
bool IsLess(std::wstring_view a, std::wstring_view b) {
  if (a.size() != b.size()) return a.size() < b.size();
  return std::memcmp(a.data(), b.data(), a.size() * sizeof(wchar_t)) < 0;
}

// What is left of a name, each attribute as its key.
class Keys {
 public:
  // Takes the attribute that `from` stands at, if any, and all behind it. False where there is one
  // that cannot be read.
  bool Read(AttributeReader* from) {
    if (from->at_attribute()) text_.reserve(from->octets());
    for (; from->at_attribute(); from->Next()) {
      const size_t start = text_.size();
      AppendKey(from->attribute(), &text_);
      *spans_.Extend(1) = {start, text_.size() - start};
    }
    return from->IsName();
  }

  size_t size() const { return spans_.size(); }

  void Sort() {
    std::sort(spans_.begin(), spans_.end(),
              [this](const Span& a, const Span& b) { return IsLess(View(a), View(b)); });
  }

  friend bool operator==(const Keys& a, const Keys& b) {
    return std::equal(a.spans_.begin(), a.spans_.end(), b.spans_.begin(), b.spans_.end(),
                      [&](const Span& x, const Span& y) { return a.View(x) == b.View(y); });
  }

 private:
  struct Span {
    size_t offset;
    size_t length;
  };

  std::wstring_view View(const Span& span) const {
    return std::wstring_view(text_).substr(span.offset, span.length);
  }

  std::wstring text_;
  SmallBuffer<Span, 32> spans_;
};

// An RDN of the usual shape with a type of the table can be read without looking further.
bool IsReadable(const X509Name& name) {
  RdnReader rdns(name);
  for (Element rdn; rdns.Next(&rdn);) {
    PlainAttribute plain;
    if (SplitPlainRdn(rdn.bytes, &plain) && FindAttributeByDer(plain.type) != nullptr) continue;
    DecodedAttribute attribute;
    if (!attribute.Read(rdn.bytes)) return false;
  }
  return rdns.IsName();
}

// False in the result's stead is left to the caller where a name cannot be read.
bool Compare(const X509Name& a, const X509Name& b, bool* equal) {
  if (static_cast<const IdentObj&>(a) == static_cast<const IdentObj&>(b)) {
    *equal = true;
    return IsReadable(a);
  }
  AttributeReader from_a(a);
  AttributeReader from_b(b);
  while (from_a.at_attribute() && from_b.at_attribute() &&
         HaveSameKey(from_a.attribute(), from_b.attribute())) {
    from_a.Next();
    from_b.Next();
  }
  Keys rest_a;
  Keys rest_b;
  if (!rest_a.Read(&from_a) || !rest_b.Read(&from_b)) return false;
  *equal = rest_a.size() == rest_b.size();
  if (!*equal) return true;
  rest_a.Sort();
  rest_b.Sort();
  *equal = rest_a == rest_b;
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
