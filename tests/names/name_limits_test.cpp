// What is asked of names for every character, every length and every depth.

#include <cstring>
#include <set>

#include "names/attribute_table.h"
#include "names/encoder/remembered_types.h"
#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

std::string EncodedText(const std::wstring& text, DWORD options = 0) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  return Encoded(kEmptied, [&](IdentObj& der) { return encoder.Encode(text, der, false); });
}

std::set<wchar_t> SetOf(const std::wstring& text) { return {text.begin(), text.end()}; }

// The value's tag, or the refusal. Its quotes guard delimiters, its "x" white space.
std::string TagOf(const std::wstring& type, wchar_t c) {
  const std::wstring value = c == L'"' ? L"\"\"" : std::wstring(1, c);
  const std::string der = EncodedText(type + L"=\"x" + value + L"x\"");
  const std::string octets = Octets(der);
  // SEQUENCE, SET, SEQUENCE, OBJECT IDENTIFIER, each with a short length.
  return der.front() == '3' ? Hex(octets.substr(8 + static_cast<size_t>(octets[7]), 1)) : der;
}

TEST(AttributeTable, FindsEachRowByTextAndOctets) {
  for (const AttributeRow& row : kAttributes) {
    EXPECT_EQ(FindAttribute(row.oid), &row);
    EXPECT_EQ(FindAttributeByDer(row.oid_content()), &row);
  }
}

TEST(RememberedTypes, AreThoseOfFewAsciiCharacters) {
  RememberedTypes types;
  const auto key = [](std::string_view text, uint16_t version) {
    const std::basic_string<unsigned char> octets(text.begin(), text.end());
    const std::wstring wide(octets.begin(), octets.end());
    const RememberedText narrow = RememberedText::Of(text, version);
    EXPECT_EQ(RememberedText::Of(std::wstring_view(wide), version).word(), narrow.word());
    return narrow;
  };
  for (const std::string_view text : {"C", "CN", "\1", "\x7F", "TITLE"}) {
    const auto place = static_cast<uint8_t>(text.size());
    types.Keep(key(text, 7), place);
    EXPECT_EQ(types.Find(key(text, 7)), place) << text;
    EXPECT_EQ(types.Find(key(text, 8)), RememberedTypes::kNone) << text;
  }
  const std::string_view without_key[] = {"", "TITLES", "\x80", "\xFF", {"\0C", 2}};
  for (const std::string_view text : without_key) EXPECT_FALSE(key(text, 7).has_text()) << text;
  EXPECT_EQ(types.Find({}), RememberedTypes::kNone);
}

TEST(Alphabets, DecideTheStringType) {
  const std::set<wchar_t> printable =
      SetOf(L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 '()+,-./:?\r\n");
  std::set<wchar_t> ascii = {L'\r', L'\n'};
  for (wchar_t c = L' '; c <= L'~'; ++c) ascii.insert(c);
  EXPECT_EQ(SetOf(X500NameEncoder::PrintableString), printable);
  EXPECT_EQ(SetOf(X500NameEncoder::IA5String), ascii);
  EXPECT_EQ(X500NameEncoder::PrintableString.size() + X500NameEncoder::IA5String.size(), 172u);
  for (wchar_t c = 0; c <= 0x180; ++c) {
    const bool plain = printable.count(c) != 0;
    EXPECT_EQ(TagOf(L"CN", c), plain ? "13" : "1E") << c;
    EXPECT_EQ(TagOf(L"C", c), plain ? "13" : kRefused) << c;
    EXPECT_EQ(TagOf(L"SERIALNUMBER", c), plain ? "13" : kRefused) << c;
    EXPECT_EQ(TagOf(L"E", c), ascii.count(c) != 0 ? "16" : kRefused) << c;
  }
}

TEST(Encoding, TakesCharactersBeyondTheUnits) {
  if (sizeof(wchar_t) == 2) GTEST_SKIP() << "a wide character is a unit";
  const std::wstring text = L"CN=" + std::wstring(1, static_cast<wchar_t>(0x1F600));
  EXPECT_EQ(EncodedText(text), Hex(CommonName(Octets("1E 04 D8 3D DE 00"))));
  EXPECT_EQ(EncodedText(text, 0x40000), Hex(CommonName(Octets("0C 04 F0 9F 98 80"))));
}

// Where a length field grows: of the name, the RDN, the attribute, the value.
TEST(Encoding, HasMinimalLengths) {
  const std::pair<size_t, const char*> rows[] = {
      {116, "30 7F 31 7D 30 7B 06 03 55 04 03 13 74"},
      {117, "30 81 80 31 7E 30 7C 06 03 55 04 03 13 75"},
      {119, "30 81 83 31 81 80 30 7E 06 03 55 04 03 13 77"},
      {121, "30 81 86 31 81 83 30 81 80 06 03 55 04 03 13 79"},
      {128, "30 81 8E 31 81 8B 30 81 88 06 03 55 04 03 13 81 80"},
      {256, "30 82 01 11 31 82 01 0D 30 82 01 09 06 03 55 04 03 13 82 01 00"},
      {65536, "30 83 01 00 14 31 83 01 00 0F 30 83 01 00 0A 06 03 55 04 03 13 83 01 00 00"},
  };
  for (const auto& [count, start] : rows) {
    const std::string der = Hex(Octets(start) + std::string(count, 'a'));
    EXPECT_EQ(EncodedText(L"CN=" + std::wstring(count, L'a')), der);
    const std::list<SimpleRDN> pairs = {{"2.5.4.3", std::string(count, 'a').c_str()}};
    EXPECT_EQ(
        Encoded(kKept, [&](IdentObj& out) { return X500NameEncoder().Encode(pairs, out, false); }),
        der);
  }
}

// More elements, and longer texts, than any scratch space on the stack holds.
TEST(Encoding, TakesLongTexts) {
  std::wstring text;
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    text += (i == 0 ? L"" : L",") + std::wstring(L"CN=\"") + std::wstring(50, L'x') + L"\"\"y\"";
    expected += "2.5.4.3=" + std::string(50, 'x') + "\"y;";
  }
  std::list<X500NameEncoder::X500NAME_ELEM> elements;
  ASSERT_TRUE(X500NameEncoder().DevideIntoElements(text, elements));
  EXPECT_EQ(elements.size(), 100u);
  EXPECT_EQ(Listed(Blob(EncodedText(text)), 2), expected);
}

// A text that is no form is left untyped where its length is some form's, whatever its characters.
TEST(Types, GoByLength) {
  for (const wchar_t kind : {L'X', L'9', L'\x0416'}) {
    for (size_t length = 1; length <= 600; ++length) {
      const bool isFormLength = length <= 2 || length == 5 || (length >= 7 && length <= 10) ||
                                length == 12 || length == 13 || length == 20 || length == 22;
      ASSERT_EQ(EncodedText(std::wstring(length, kind) + L"=x"),
                isFormLength ? kNoIdentifier : kRefused)
          << length;
    }
  }
}

// All universal tag numbers, primitive, over the content "12": five decode it as 8-bit text or
// UTF-8, one as UTF-16, SEQUENCE wants to be constructed, and 6 would be a second type.
TEST(Values, GoByTagNumber) {
  for (unsigned tag = 0; tag < 31; ++tag) {
    const std::string value = Tlv(tag, "12");
    std::string expected = "2.5.4.3=" + Hex(value) + ';';
    if (tag == 12 || tag == 19 || tag == 20 || tag == 22 || tag == 26) expected = "2.5.4.3=12;";
    if (tag == 30) expected = "2.5.4.3=<3132>;";
    if (tag == 16) expected = kBadTag + " after ";
    if (tag == 6) expected = kRefused + " after ";
    EXPECT_EQ(Listed(CommonName(value), 2), expected) << tag;
  }
}

// 32 levels are the limit; the tree keeps a value beyond it as it is.
TEST(Values, BoundNesting) {
  std::string value = Octets("13 01 61");
  for (int depth = 1; depth <= 40; ++depth) {
    value = Tlv(0x30, value);
    const IdentObj name = CommonName(value);
    const bool fits = depth <= 32;
    EXPECT_EQ(Listed(name, 2), fits ? "2.5.4.3=a;" : kCorrupt + " after ") << depth;
    EXPECT_EQ(Rendered(name, 1), fits ? "a" : kCorrupt + " after ") << depth;
    CertNameInfoWrapper wrapper;
    ASSERT_TRUE(X500NameDecoder().Decode(name, wrapper));
    const CERT_RDN_ATTR& attr = static_cast<CERT_NAME_INFO*>(wrapper)->rgRDN[0].rgRDNAttr[0];
    EXPECT_EQ(Hex(attr.Value), fits ? "61 00 00 00 00 00" : Hex(value)) << depth;
  }
}

// Longer than any scratch space on the stack, in each of the encodings.
TEST(Values, MayBeLong) {
  for (const size_t length : {127u, 128u, 255u, 256u, 257u, 600u, 5000u}) {
    const std::string a(length, 'a');
    std::string utf16;
    for (size_t i = 0; i < length; ++i) utf16 += std::string("\0a", 2);
    EXPECT_EQ(Rendered(CommonName(Tlv(0x13, a)), 1), a);
    EXPECT_EQ(Rendered(CommonName(Tlv(0x0C, a + "\xC3\xA9")), 1), a + "<00E9>");
    EXPECT_EQ(Rendered(CommonName(Tlv(0x1E, utf16)), 1), a);
    EXPECT_EQ(Listed(CommonName(Tlv(0x1E, utf16)), 2), "2.5.4.3=" + a + ';');
  }
}

bool IsQuoted(unsigned tag, const std::string& octets) {
  X500NameDecoder decoder;
  std::wstring text;
  EXPECT_TRUE(decoder.Decode(CommonName(Tlv(tag, octets)), text, 1));
  return text.front() == L'"';
}

// Every unit in front, at the end and inside: white space counts at the ends, symbols anywhere.
TEST(Quoting, GoesByCharacter) {
  std::set<unsigned> space = {0x20, 0xA0, 0x1680, 0x2028, 0x2029, 0x202F, 0x205F, 0x3000};
  for (unsigned unit = 0x09; unit <= 0x0D; ++unit) space.insert(unit);
  for (unsigned unit = 0x2000; unit <= 0x200A; ++unit) space.insert(unit);
  for (unsigned unit = 0; unit <= 0xFFFF; unit += ORTHOLAN_TEST_SCALE) {
    const bool symbol = unit != 0 && unit < 0x80 &&
                        std::strchr("#;,+\"\\=<>\n\r'", static_cast<int>(unit)) != nullptr;
    const bool any = symbol || space.count(unit) != 0;
    const std::string c = {static_cast<char>(unit >> 8), static_cast<char>(unit)};
    const std::string a("\0a", 2);
    ASSERT_EQ(IsQuoted(0x1E, c + a), any) << unit;
    ASSERT_EQ(IsQuoted(0x1E, a + c), any) << unit;
    ASSERT_EQ(IsQuoted(0x1E, a + c + a), symbol) << unit;
    if (unit >= 0x80) continue;
    ASSERT_EQ(IsQuoted(0x13, c.substr(1) + 'a'), any) << unit;
    ASSERT_EQ(IsQuoted(0x13, 'a' + c.substr(1)), any) << unit;
    ASSERT_EQ(IsQuoted(0x13, 'a' + c.substr(1) + 'a'), symbol) << unit;
  }
}

}  // namespace
}  // namespace Ortholan::testing
