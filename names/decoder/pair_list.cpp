// A name as pairs of type and values.
#include <ortholan/name_decoder.h>

#include <tuple>

#include "bytes/ascii.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/status_code.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"

namespace Ortholan {
namespace {

using Values = std::list<std::wstring>;
using Pairs = std::list<std::pair<std::wstring, Values>>;

Values* AddPair(const TypeText& type, DWORD style, Pairs* pairs) {
  const std::wstring_view key = KeyFor(type, style);
  const std::wstring_view text = key.empty() && type.row() != nullptr ? type.row()->wide_oid : key;
  Pairs::reference pair = pairs->emplace_back(
      std::piecewise_construct, std::forward_as_tuple(text.data(), text.size()), std::tuple<>());
  if (text.empty()) AppendAscii(type.dotted(), &pair.first);
  return &pair.second;
}

// The usual shape with a text in ASCII. One object serves many RDNs.
class AsciiElem {
 public:
  // False for any other, `pairs` unchanged.
  bool Decode(ByteView rdn, DWORD style, Pairs* pairs) {
    if (!SplitPlainRdn(rdn, &plain_) || !DecodeAttrOid(plain_.type, &type_)) return false;
    if (!value_.Decode(plain_.value)) return false;
    Values* const values = AddPair(type_, style, pairs);
    const std::string_view text = value_.text();
    if (!text.empty()) values->emplace_back(text.begin(), text.end());
    return true;
  }

 private:
  PlainAttribute plain_;
  TypeText type_;
  AsciiValue value_;
};

// Any shape. Children are decoded in the order in which they stand, so that the first failure is
// told.
bool DecodeElem(ByteView rdn, DWORD style, Pairs* pairs) {
  Status status = Status::kOk;
  AttributeElements attribute;
  if (!SplitRdn(rdn, &attribute, &status)) {
    return status != Status::kOk ? FailWith(status) : false;
  }
  TypeText type;
  Values values;
  for (const Element& child : attribute.child) {
    status = StandsAlone(child);
    if (status != Status::kOk) return FailWith(status);
    const bool decoded =
        IsType(child) ? DecodeAttrOid(child, &type) : DecodeAttrData(child, &values);
    if (!decoded) return false;
  }
  AddPair(type, style, pairs)->swap(values);
  return true;
}

}  // namespace

bool X500NameDecoder::Decode(const IdentObj& name,
                             std::list<std::pair<std::wstring, std::list<std::wstring>>>& pairs,
                             DWORD style) {
  const ByteView bytes = ViewOf(name);
  if (bytes.empty()) return false;
  pairs.clear();
  nameStyle_ = style;
  bool decoded = true;
  AsciiElem ascii;
  ElementReader reader(bytes);
  for (Element rdn; reader.Next(&rdn);) {
    decoded =
        decoded && (ascii.Decode(rdn.bytes, style, &pairs) || DecodeElem(rdn.bytes, style, &pairs));
  }
  if (!reader.fault()) return decoded;
  // A fault of the sequence itself counts before everything else and leaves no pairs.
  pairs.clear();
  return FailWith(reader.fault().status);
}

}  // namespace Ortholan
