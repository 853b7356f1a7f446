// A name's encoding to text, pairs, tree and lists: all forms agree with each other, and with a
// renderer of its own kind.
#include <ortholan/der_helper.h>
#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bytes/byte_view.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/element_reader.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/attribute_walk.h"
#include "names/decoder/name_renderer.h"
#include "names/decoder/value_text.h"

namespace Ortholan::fuzzing {
namespace {

using Pairs = std::list<std::pair<std::wstring, std::list<std::wstring>>>;
using RdnList = std::list<std::list<RDNAttr>>;

constexpr DWORD kStyles[] = {1, 2, 3};
constexpr DWORD kPaddingBytes = 4;  // behind every decoded text
constexpr DWORD kSeparators[] = {0, 0x40000000, 0x08000000, 0x48000000};

bool SameRdns(const RdnList& a, const RdnList& b) {
  if (a.size() != b.size()) return false;
  auto other = b.begin();
  for (const std::list<RDNAttr>& rdn : a) {
    if (rdn.size() != 1 || other->size() != 1) return false;
    const RDNAttr& x = rdn.front();
    const RDNAttr& y = other++->front();
    if (x.oid != y.oid || x.valueType != y.valueType || x.value != y.value) return false;
  }
  return true;
}

// An address is written line by line: any line ends come back as one LF, and empty lines are lost.
RdnList WithPlainLines(RdnList rdns) {
  for (std::list<RDNAttr>& rdn : rdns) {
    RDNAttr& attr = rdn.front();
    if (attr.oid != "2.5.4.16" || attr.valueType != CERT_RDN_UNICODE_STRING) continue;
    const DWORD text_size = attr.value.cbData - kPaddingBytes;
    std::string lines;
    bool ended = false;
    for (DWORD i = 0; i < text_size; i += 2) {
      const BYTE* const unit = attr.value.pbData + i;
      const bool line_end = unit[1] == 0 && (unit[0] == '\r' || unit[0] == '\n');
      if (!line_end && ended && !lines.empty()) lines.append("\n\0", 2);
      if (!line_end) lines.append(reinterpret_cast<const char*>(unit), 2);
      ended = line_end;
    }
    if (lines.empty()) continue;
    lines.append(kPaddingBytes, '\0');
    attr.value = IdentObj(lines.data(), static_cast<DWORD>(lines.size()));
  }
  return rdns;
}

template <typename A, typename B>
bool SamePairs(const A& a, const B& b) {
  if (a.size() != b.size()) return false;
  auto other = b.begin();
  for (const SimpleRDN& pair : a) {
    if (pair.key != other->key || pair.value != other->value) return false;
    ++other;
  }
  return true;
}

std::wstring Quoted(const std::wstring& value) {
  static const std::wstring kSpace =
      L"\t\n\v\f\r \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
      L"\u2028\u2029\u202F\u205F\u3000";
  static const std::wstring kSpecial = X500NameDecoder::AuxSymbols + L"'";
  const bool plain = !value.empty() && value.find_first_of(kSpecial) == std::wstring::npos &&
                     kSpace.find(value.front()) == std::wstring::npos &&
                     kSpace.find(value.back()) == std::wstring::npos;
  if (plain) return value;
  std::wstring quoted = L"\"";
  for (const wchar_t c : value) quoted.append(c == L'"' ? 2 : 1, c);
  return quoted + L'"';
}

// The text that the pairs are shown as.
std::wstring Expected(const Pairs& pairs, DWORD style, DWORD options) {
  std::wstring separator = L",";
  if (style != 1 && (options & 0x40000000) != 0) separator = L";";
  if (style != 1 && (options & 0x08000000) != 0) separator = L"\r\n";
  std::wstring text;
  for (const auto& [type, values] : pairs) {
    if (!text.empty()) text += separator;
    if (style != 1) text += type + L'=';
    text += Quoted(Joined(values));
  }
  return text;
}

// The name in one style, by every way there is. Returns whether it was decoded.
bool CheckText(const X509Name& name, DWORD style, DWORD separator) {
  const DWORD options = style | separator;
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(options);
  std::wstring text;
  const auto decoded = Answer([&] { return decoder.Decode(name, text, options); });

  Pairs pairs;
  const auto listed = Answer([&] { return decoder.Decode(name, pairs, style); });
  // The text does not tell the faults of an RDN's own elements.
  LAW(listed.first == decoded.first);
  LAW(listed.second == decoded.second || decoded.second == kUntouched);
  LAW(Expected(pairs, style, options) == text);

  std::wstring tried = L"before";
  LAW(Answer([&] { return name.TryGetX500String(tried, options); }) == decoded);
  LAW(tried == (decoded.first ? text : L"before"));
  const std::string outcome = decoded.first ? kReturned : kNameRefused;
  LAW(Outcome([&] { name.GetX500String(tried, options); }) == outcome);
  LAW(tried == text);

  std::string narrow = "before";
  LAW(Answer([&] { return name.TryGetX500String(narrow, options); }) == decoded);
  CZEPString shared("before");
  LAW(Answer([&] { return name.TryGetX500String(shared, options); }) == decoded);
  LAW(shared == CZEPString(narrow.c_str()));
  const std::wstring shown = text.substr(0, text.find(L'\0'));
  const std::string expected = decoded.first ? DerHelper::ToString(shown, 0) : "before";
  LAW(narrow == expected);
  LAW(Outcome([&] { name.GetX500String(narrow, options); }) == outcome);
  LAW(Outcome([&] { name.GetX500String(shared, options); }) == outcome);
  LAW(narrow == (decoded.first ? expected : "") && shared == CZEPString(narrow.c_str()));
  return decoded.first;
}

IdentObj PaddedUtf16(const std::wstring& text) {
  std::string bytes;
  for (const wchar_t c : text) {
    bytes.push_back(static_cast<char>(c & 0xFF));
    bytes.push_back(static_cast<char>(c >> 8 & 0xFF));
  }
  return Input::Blob(bytes + std::string(4, '\0'));
}

// The tree takes what the pairs take, and values that are no text.
void CheckTree(const X509Name& name, bool decoded) {
  CertNameInfoWrapper wrapper;
  X500NameDecoder decoder;
  const auto built = Answer([&] { return decoder.Decode(name, wrapper); });
  RdnList before = {{RDNAttr("1.2", 4, IdentObj("x", 1))}};
  RdnList rdns = before;
  LAW(Answer([&] { return name.TryGetNameInfo(rdns); }) == built);
  if (!built.first) {
    LAW(!decoded && SameRdns(rdns, before));
    LAW(Outcome([&] { name.GetNameInfo(rdns); }) == kNameRefused && rdns.empty());
    return;
  }
  RdnList thrown;
  LAW(Outcome([&] { name.GetNameInfo(thrown); }) == kReturned && SameRdns(thrown, rdns));
  const CERT_NAME_INFO& tree = *static_cast<CERT_NAME_INFO*>(wrapper);
  LAW(tree.cRDN == rdns.size());
  Pairs pairs;
  decoder.Decode(name, pairs, 2);
  auto pair = pairs.begin();
  auto rdn = rdns.begin();
  bool all_text = true;
  for (DWORD i = 0; i < tree.cRDN; ++i, ++rdn) {
    LAW(tree.rgRDN[i].cRDNAttr == 1);
    const CERT_RDN_ATTR& attr = tree.rgRDN[i].rgRDNAttr[0];
    LAW(rdn->front().oid == CZEPString(attr.pszObjId));
    LAW(rdn->front().value == IdentObj(attr.Value) && rdn->front().valueType == attr.dwValueType);
    all_text &= attr.dwValueType == CERT_RDN_UNICODE_STRING;
    LAW(all_text || !decoded);
    if (!all_text) continue;
    LAW(pair != pairs.end());
    const std::wstring oid(attr.pszObjId,
                           attr.pszObjId + std::char_traits<char>::length(attr.pszObjId));
    LAW(pair->first == oid && PaddedUtf16(Joined(pair->second)) == rdn->front().value);
    ++pair;
  }
  LAW(all_text == decoded);
}

void CheckSimpleList(const X509Name& name) {
  const std::list<SimpleRDN> before = {SimpleRDN("k", "v")};
  std::list<SimpleRDN> list = before;
  std::vector<SimpleRDN> vector;
  const auto read = Answer([&] { return name.TryGetSimpleRDNList(list); });
  const std::string outcome = read.first ? kReturned : kNameRefused;
  std::list<SimpleRDN> thrown = before;
  LAW(Outcome([&] { name.GetSimpleRDNList(thrown, true); }) == outcome);
  LAW(Outcome([&] { name.GetSimpleRDNVector(vector); }) == outcome);
  RdnList rdns;
  LAW(name.TryGetNameInfo(rdns) == read.first);
  if (!read.first) {
    LAW(SamePairs(list, before) && thrown.empty() && vector.empty());
    return;
  }
  LAW(SamePairs(list, thrown) && SamePairs(list, vector) && list.size() == rdns.size());
  auto rdn = rdns.begin();
  for (const SimpleRDN& pair : list) {
    CZEPString value;
    rdn->front().GetValueString(value);
    LAW(pair.key == rdn->front().oid && pair.value == value);
    ++rdn;
  }
  for (const SimpleRDN& pair : list) {
    CZEPString value("before");
    LAW(name.GetSimpleRDN(pair.key.c_str(), value));
  }
}

// Some of a name's RDNs, as a name and as what tells them apart: each type with its value's text,
// or with the value itself where that is none.
struct Part {
  X509Name name;
  std::vector<std::wstring> keys;
};

Part PartOf(const std::vector<ByteView>& rdns) {
  std::string content;
  Part part;
  for (const ByteView rdn : rdns) {
    content += AsText(rdn);
    DecodedAttribute attribute;
    LAW(attribute.Read(rdn));
    const ByteView value = attribute.value().bytes;
    std::wstring text;
    const bool decoded = DecodeAttrData(attribute.value(), &text);
    if (!decoded) text.assign(value.begin(), value.end());
    const std::string_view dotted = attribute.type().dotted();
    part.keys.push_back(std::wstring(dotted.begin(), dotted.end()) + (decoded ? L'=' : L'#') +
                        text);
  }
  std::sort(part.keys.begin(), part.keys.end());
  std::vector<BYTE> der(static_cast<size_t>(ElementSize(content.size())));
  WriteBytes(WriteHeader(der.data(), kSequenceOctet, content.size()),
             AsBytes(content.data(), content.size()));
  part.name = IdentObj(der.data(), static_cast<DWORD>(der.size()));
  return part;
}

// Parts of one name in several orders are equal where they have the same keys.
void CheckOrders(ByteView name) {
  std::vector<ByteView> rdns;
  ElementReader reader(name);
  for (Element rdn; reader.Next(&rdn);) rdns.push_back(rdn.bytes);
  const auto middle = rdns.begin() + static_cast<std::ptrdiff_t>(rdns.size() / 2);
  std::vector<ByteView> turned(middle, rdns.end());
  turned.insert(turned.end(), rdns.begin(), middle);
  const Part parts[] = {PartOf(rdns), PartOf({rdns.rbegin(), rdns.rend()}), PartOf(turned),
                        PartOf({rdns.begin(), middle}), PartOf({middle, rdns.end()})};
  for (const Part& a : parts) {
    for (const Part& b : parts) LAW((a.name == b.name) == (a.keys == b.keys));
  }
}

void CheckComparison(const X509Name& name, bool has_tree) {
  bool equal = false;
  const X509Name copy(name);
  const std::string outcome = Outcome([&] { equal = name == copy; });
  LAW(outcome == (has_tree ? kReturned : kNameRefused));
  LAW(equal == has_tree);
  if (has_tree) CheckOrders(ViewOf(name));
}

// Encoding what was decoded, and decoding that, changes nothing more.
void CheckStable(const X509Name& name) {
  RdnList rdns;
  if (!name.TryGetNameInfo(rdns)) return;
  for (const DWORD options : {0u, 0x00040000u, 0x00140000u}) {
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(options);
    X509Name der;
    if (!encoder.Encode(rdns, der)) continue;
    RdnList again;
    LAW(der.TryGetNameInfo(again));
    X509Name repeated;
    LAW(encoder.Encode(again, repeated) && repeated == der);
    LAW(static_cast<const IdentObj&>(repeated) == der);
    LAW(options != 0 || SameRdns(again, WithPlainLines(rdns)));
  }
}

bool SameElement(const Element& a, const Element& b) {
  return a.bytes.data == b.bytes.data && a.bytes.size == b.bytes.size &&
         a.header.tag == b.header.tag && a.header.cls == b.header.cls &&
         a.header.constructed == b.header.constructed && a.header.length == b.header.length &&
         a.header.content == b.header.content && a.header.indefinite == b.header.indefinite;
}

// The usual shape, taken apart by itself and as any other.
void CheckSplitting(ByteView name) {
  ElementReader reader(name);
  for (Element rdn; reader.Next(&rdn);) {
    PlainAttribute plain;
    if (!SplitPlainRdn(rdn.bytes, &plain)) continue;
    AttributeElements any;
    Status status = Status::kCorrupt;
    LAW(SplitAnyRdn(rdn.bytes, &any, &status) && status == Status::kOk);
    const ElementHeader& type = any.child[0].header;
    LAW(plain.type.data == type.content && plain.type.size == type.length);
    LAW(SameElement(plain.value, any.child[1]));
    LAW(StandsAlone(any.child[0]) == Status::kOk && StandsAlone(any.child[1]) == Status::kOk);
  }
}

}  // namespace

void FuzzNameDecode(const uint8_t* data, size_t size) {
  if (size == 0) return;
  const X509Name name(IdentObj(data, static_cast<DWORD>(size)));
  const bool decoded = CheckText(name, 1, 0);
  for (const DWORD style : kStyles) {
    for (const DWORD separator : kSeparators) {
      LAW(CheckText(name, style, separator) == decoded);
      // Values alone are separated in one way.
      if (style == 1) break;
    }
  }
  CheckTree(name, decoded);
  RdnList rdns;
  CheckComparison(name, name.TryGetNameInfo(rdns));
  CheckSimpleList(name);
  CheckStable(name);
  CheckSplitting({data, size});
}

}  // namespace Ortholan::fuzzing
