// A name as pairs of type and values.
#include <ortholan/name_decoder.h>

#include <tuple>

#include "bytes/ascii.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/report.h"
#include "names/decoder/rdn_reader.h"
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

// One attribute after the other: one object serves many RDNs.
class PairReader {
 public:
  PairReader(DWORD style, Pairs* pairs) : style_(style), pairs_(pairs) {}

  bool Read(ByteView rdn) {
    Values values;
    const bool read = ReadRdn(
        rdn, [this](ByteView type) { return DecodeAttrOid(type, &type_); },
        [this, &values](const Element& value) {
          is_ascii_ = ascii_.Decode(value);
          return is_ascii_ || DecodeAttrData(value, &values);
        });
    if (!read) return false;
    Values* const kept = AddPair(type_, style_, pairs_);
    const std::string_view text = is_ascii_ ? ascii_.text() : std::string_view();
    if (!text.empty()) kept->emplace_back(text.begin(), text.end());
    if (!is_ascii_) kept->swap(values);
    return true;
  }

 private:
  DWORD style_;
  Pairs* pairs_;
  TypeText type_;
  AsciiValue ascii_;
  bool is_ascii_ = false;
};

}  // namespace

bool X500NameDecoder::Decode(const IdentObj& name,
                             std::list<std::pair<std::wstring, std::list<std::wstring>>>& pairs,
                             DWORD style) {
  const ByteView bytes = ViewOf(name);
  if (bytes.empty()) return false;
  pairs.clear();
  nameStyle_ = style;
  bool decoded = true;
  PairReader attribute(style, &pairs);
  ElementReader reader(bytes);
  for (Element rdn; reader.Next(&rdn);) {
    decoded = decoded && attribute.Read(rdn.bytes);
  }
  if (!reader.fault()) return decoded;
  // A fault of the sequence itself counts before everything else and leaves no pairs.
  pairs.clear();
  return FailWith(reader.fault().status);
}

}  // namespace Ortholan
