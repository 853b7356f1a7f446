// What holds for any name: the decoders agree with each other and with a reader of their own kind,
// what was decoded and encoded again stays as it is, and no octets are too broken to be refused.

#include <cstring>
#include <fstream>
#include <vector>

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kComma = CERT_NAME_STR_COMMA_FLAG;
constexpr DWORD kUtf8 = CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG;
constexpr DWORD kAlways = 0x00100000;

std::vector<std::string> ReadNames() {
  std::ifstream file(ORTHOLAN_TEST_DATA "/names.txt");
  std::vector<std::string> names;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty() && line.front() != '#') names.push_back(Octets(line));
  }
  EXPECT_GT(names.size(), 40u);
  return names;
}

// A reader of its own kind: the items that `octets` hold one behind the other, whole, and their
// contents. Tags have one octet, lengths up to three.
struct Item {
  std::string whole;
  std::string content;

  unsigned tag() const { return static_cast<unsigned char>(whole[0]); }
};

bool ReadItems(const std::string& octets, std::vector<Item>* items) {
  const auto at = [&octets](size_t i) { return static_cast<unsigned char>(octets.c_str()[i]); };
  items->clear();
  for (size_t i = 0; i < octets.size();) {
    const size_t count = octets.size() - i > 4 && at(i + 1) > 0x80 ? at(i + 1) - 0x80u : 0;
    size_t length = at(i + 1);
    if (count == 1) length = at(i + 2);
    if (count == 2) length = at(i + 2) * 0x100u + at(i + 3);
    const size_t content = i + 2 + count;
    if (at(i + 1) == 0x80 || count > 2 || content + length > octets.size()) return false;
    items->push_back({octets.substr(i, content + length - i), octets.substr(content, length)});
    i = content + length;
  }
  return true;
}

// "" for what this reader leaves alone.
std::string Dotted(const std::string& content) {
  std::string text;
  uint64_t arc = 0;
  for (const char c : content) {
    const auto octet = static_cast<unsigned char>(c);
    if (text.empty()) {
      text = std::to_string(octet / 40) + '.' + std::to_string(octet % 40);
      continue;
    }
    arc = arc * 128 + octet % 128;
    if (octet >= 0x80) continue;
    text += '.' + std::to_string(arc);
    arc = 0;
  }
  return arc == 0 ? text : "";
}

// An RDN of one attribute with a value in ASCII, as the pair list shows it.
std::string ReadRdn(const std::string& rdn) {
  std::vector<Item> attributes;
  std::vector<Item> parts;
  if (!ReadItems(rdn, &attributes) || !ReadItems(attributes[0].content, &parts)) return "";
  const std::string& value = parts.back().content;
  std::wstring text;
  for (const char c : value) text += static_cast<wchar_t>(c & 0x7F);
  const bool known =
      parts[0].tag() == 6 && std::strchr("\x0C\x13\x14\x16\x1A", parts.back().whole[0]);
  if (!known || std::string(text.begin(), text.end()) != value) return "";
  return Dotted(parts[0].content) + '=' + Shown(text) + ';';
}

// A name in all its decoded forms.
struct Views {
  bool decoded = false;
  std::wstring dotted;
  Pairs pairs;
  bool has_tree = false;
  std::list<std::list<RDNAttr>> attributes;
};

// The decoders take the same names, but that the tree also takes values that cannot be decoded.
Views Decoded(const IdentObj& name) {
  Views views;
  X500NameDecoder decoder;
  views.decoded = decoder.Decode(name, views.dotted, 2);
  std::wstring other;
  EXPECT_EQ(decoder.Decode(name, other, 1), views.decoded);
  EXPECT_EQ(decoder.Decode(name, other, 3), views.decoded);
  EXPECT_EQ(decoder.Decode(name, views.pairs, 2), views.decoded);
  CertNameInfoWrapper wrapper;
  views.has_tree = decoder.Decode(name, wrapper);
  const CERT_NAME_INFO* tree = wrapper;
  bool whole = views.has_tree;
  for (DWORD i = 0; views.has_tree && i < tree->cRDN; ++i) {
    const CERT_RDN_ATTR& attr = tree->rgRDN[i].rgRDNAttr[0];
    whole = whole && attr.dwValueType == CERT_RDN_UNICODE_STRING;
    views.attributes.push_back({RDNAttr(attr)});
  }
  EXPECT_EQ(whole, views.decoded);
  return views;
}

// Encoding what was decoded, and decoding that, changes nothing more. Text cannot tell a value that
// begins with NUL from the end of the text.
void ExpectStable(const Views& views, DWORD options) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(kComma | options);
  IdentObj der;
  IdentObj again;
  if (encoder.Encode(views.attributes, der)) {
    EXPECT_TRUE(encoder.Encode(Decoded(der).attributes, again));
    EXPECT_EQ(Hex(again), Hex(der));
  }
  const bool tells = views.dotted.find(L'\0') == std::wstring::npos;
  if (views.decoded && tells && encoder.Encode(views.dotted, der, false)) {
    EXPECT_TRUE(encoder.Encode(Decoded(der).dotted, again, false));
    EXPECT_EQ(Hex(again), Hex(der));
  }
}

TEST(RealNames, AreReadAsAnotherReaderReadsThem) {
  int compared = 0;
  for (const std::string& octets : ReadNames()) {
    const Pairs pairs = Decoded(ExactCopy(octets)).pairs;
    std::vector<Item> name;
    std::vector<Item> rdns;
    if (!ReadItems(octets, &name) || !ReadItems(name[0].content, &rdns)) continue;
    auto rdn = rdns.begin();
    for (const auto& pair : pairs) {
      ASSERT_NE(rdn, rdns.end());
      const std::string expected = ReadRdn(rdn++->content);
      if (expected.empty()) continue;
      EXPECT_EQ(Shown(Pairs{pair}), expected);
      ++compared;
    }
  }
  EXPECT_GT(compared, 100);
}

// As BMPString and PrintableString any text comes back.
TEST(RealNames, AreStable) {
  int kept = 0;
  for (const std::string& octets : ReadNames()) {
    SCOPED_TRACE(Hex(octets));
    const Views views = Decoded(ExactCopy(octets));
    for (const DWORD options : {DWORD{0}, kUtf8, kUtf8 | kAlways}) ExpectStable(views, options);
    X500NameEncoder encoder;
    IdentObj der;
    if (!views.decoded || !encoder.Encode(views.attributes, der)) continue;
    EXPECT_EQ(Shown(Decoded(der).pairs), Shown(views.pairs));
    ++kept;
  }
  EXPECT_GT(kept, 20);
}

TEST(RealNames, AreRefusedWhenCutShort) {
  for (const std::string& octets : ReadNames()) {
    std::vector<Item> name;
    const bool isWhole = ReadItems(octets, &name) && name.size() == 1;
    for (size_t size = 0; size < octets.size(); ++size) {
      const Views views = Decoded(ExactCopy(octets.substr(0, size)));
      EXPECT_FALSE(isWhole && views.has_tree) << Hex(octets.substr(0, size));
    }
  }
}

TEST(RealNames, MayBeSpoiled) {
  for (const std::string& octets : ReadNames()) {
    for (size_t i = 0; i < octets.size(); ++i) {
      const auto octet = static_cast<unsigned char>(octets[i]);
      for (const unsigned spoiled : {octet ^ 0x01u, octet ^ 0x20u, octet ^ 0xFFu, 0x80u}) {
        std::string broken = octets;
        broken[i] = static_cast<char>(spoiled);
        ExpectStable(Decoded(ExactCopy(broken)), 0);
        ASSERT_FALSE(HasFailure()) << Hex(broken);
      }
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
