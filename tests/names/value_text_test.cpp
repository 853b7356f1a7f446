// Attribute values as text: one text for the tree, a list of texts for the pairs; octets as hex.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

// What the tree holds for the value: its text without the padding, or its encoding.
std::string TreeValue(const std::string& value) {
  X500NameDecoder decoder;
  CertNameInfoWrapper wrapper;
  if (!decoder.Decode(CommonName(value), wrapper)) return kRefused;
  const CERT_NAME_INFO* tree = wrapper;
  const CERT_RDN_ATTR& attr = tree->rgRDN[0].rgRDNAttr[0];
  if (attr.dwValueType == CERT_RDN_ENCODED_BLOB) return "blob " + Hex(attr.Value);
  std::wstring text;
  for (DWORD i = 0; i + 4 < attr.Value.cbData; i += 2) {
    text += static_cast<wchar_t>(attr.Value.pbData[i] | attr.Value.pbData[i + 1] << 8);
  }
  return Shown(text);
}

// What the pair list holds for it, ";" behind, or the refusal.
std::string PairValues(const std::string& value) {
  const std::string listed = Listed(CommonName(value), 2);
  return listed.front() == '2' ? listed.substr(sizeof "2.5.4.3") : listed;
}

struct Row {
  const char* label;
  const char* value;
  std::string text;  // in the tree
  std::string pair;  // "" where the list has the same text
  unsigned where = kNative | kWindows | kWine;
};

const Row kRows[] = {
    {"PrintableString", "13 04 54 65 73 74", "Test", ""},
    {"IA5String", "16 03 61 40 62", "a@b", ""},
    {"UTF8String of every length", "0C 0A 41 C3 A9 E2 82 AC F0 9F 98 80",
     "A<00E9><20AC><D83D><DE00>", ""},
    {"BMPString", "1E 04 04 16 00 41", "<0416>A", ""},
    {"8-bit text is the host's UTF-8", "14 02 D0 96", "<0416>", "", kNative},
    {"broken 8-bit text", "13 03 61 FF 62", "a<FFFD>b", "", kNative},
    {"broken UTF-8", "0C 03 61 FF 62", "a<FFFD>b", ""},
    {"long form of a short length", "13 82 00 01 61", "a", ""},
    {"NULs, 8-bit", "13 04 00 61 00 00", "<0000>a<0000><0000>", ""},
    {"NULs, UTF-8", "0C 05 00 C3 A9 00 00", "<0000><00E9><0000><0000>", ""},
    {"NULs, UTF-16", "1E 06 00 00 00 61 00 00", "<0000>a<0000>", ""},
    {"empty, 8-bit", "13 00", "", ""},
    {"empty, UTF-16", "1E 00", "", ""},

    {"NumericString", "12 03 31 32 33", "12 03 31 32 33", ""},
    {"SET", "31 03 13 01 EF", "31 03 13 01 EF", ""},
    {"indefinite length", "A3 80 05 00 00 00", "A3 80 05 00 00 00", ""},

    {"string tag of another class", "8C 01 61", "blob", kBadTag},
    {"constructed string", "33 03 13 01 61", "blob", kBadTag},
    // Wine reads these, or refuses them with another code.
    {"BMPString of an odd length", "1E 03 00 41 00", "blob", kCorrupt, kNative | kWindows},
    {"string in the form of a high tag", "1F 13 01 61", "blob", kBadTag, kNative},
    {"string of indefinite length", "2C 80 0C 01 61 00 00", "blob", kBadTag, kNative},

    {"lines", "30 06 0C 01 61 13 01 62", "a<000A>b", "a|b"},
    {"SEQUENCE of empty texts", "30 04 0C 00 30 00", "", ""},
    {"empty texts leave no line", "30 0C 0C 00 13 01 61 0C 00 30 00 13 01 62", "a<000A>b", "a|b"},
    {"nested SEQUENCE", "30 11 13 01 61 30 0C 13 01 62 13 00 30 02 0C 00 13 01 63",
     "a<000A>b<000A>c", "a|b<000A>c"},
    {"lines of other types", "30 06 02 01 05 13 01 61", "02 01 05<000A>a", "02 01 05|a"},
    {"tag number 16 of another class", "B0 03 13 01 61", "a", ""},
    {"SEQUENCE of indefinite length", "30 80 13 01 61 13 01 62 00 00", "a<000A>b", "a|b"},
    {"primitive SEQUENCE", "10 03 13 01 61", "blob", kBadTag},
    {"child that passes the end", "30 03 13 02 61", "blob", kCorrupt},
    {"child that is refused", "30 06 13 01 61 93 01 61", "blob", kBadTag},
    {"primitive child of indefinite length", "30 08 13 80 61 00 00 13 01 62", "blob", kCorrupt},
};

TEST(Value, IsText) {
  for (const Row& row : kRows) {
    if ((row.where & ThisRealisation()) == 0) continue;
    SCOPED_TRACE(row.label);
    const bool refused = row.text == "blob";
    EXPECT_EQ(TreeValue(Octets(row.value)), refused ? "blob " + std::string(row.value) : row.text);
    EXPECT_EQ(PairValues(Octets(row.value)),
              refused ? row.pair + " after " : (row.pair.empty() ? row.text : row.pair) + ';');
  }
}

// All universal tag numbers, primitive, over the content "12": five decode it as 8-bit text or
// UTF-8, one as UTF-16, SEQUENCE wants to be constructed, and 6 would be a second type.
TEST(Value, GoesByTagNumber) {
  for (unsigned tag = 0; tag < 31; ++tag) {
    const std::string value = Tlv(tag, "12");
    std::string expected = Hex(value) + ';';
    if (tag == 12 || tag == 19 || tag == 20 || tag == 22 || tag == 26) expected = "12;";
    if (tag == 30) expected = "<3132>;";
    if (tag == 16) expected = kBadTag + " after ";
    if (tag == 6) expected = kRefused + " after ";
    EXPECT_EQ(PairValues(value), expected) << tag;
  }
}

// 32 levels are the limit; the tree keeps a value beyond it as it is.
TEST(Value, BoundsNesting) {
  std::string value = Octets("13 01 61");
  for (int depth = 1; depth <= 40; ++depth) {
    value = Tlv(0x30, value);
    const bool fits = depth <= 32;
    EXPECT_EQ(PairValues(value), fits ? "a;" : kCorrupt + " after ") << depth;
    EXPECT_EQ(TreeValue(value), fits ? "a" : "blob " + Hex(value)) << depth;
    EXPECT_EQ(Rendered(CommonName(value), 1), fits ? "a" : kCorrupt + " after ") << depth;
  }
}

// Longer than any scratch space on the stack, in each of the encodings.
TEST(Value, MayBeLong) {
  for (const size_t length : {127u, 128u, 255u, 256u, 257u, 600u, 5000u}) {
    const std::string a(length, 'a');
    std::string utf16;
    for (size_t i = 0; i < length; ++i) utf16 += std::string("\0a", 2);
    EXPECT_EQ(PairValues(Tlv(0x13, a)), a + ';');
    EXPECT_EQ(PairValues(Tlv(0x0C, a + "\xC3\xA9")), a + "<00E9>;");
    EXPECT_EQ(PairValues(Tlv(0x1E, utf16)), a + ';');
    EXPECT_EQ(Rendered(CommonName(Tlv(0x13, a)), 1), a);
  }
}

TEST(ToHex, GivesTwoDigits) {
  EXPECT_EQ(X500NameDecoder::ToHex(0x0A), L"0A");
  EXPECT_EQ(X500NameDecoder::ToHex(0xF9), L"F9");
}

TEST(BlobToString, PartsOctets) {
  for (const char* hex : {"", "00", "12 03 AB CD EF"}) {
    std::wstring text = L"old";
    EXPECT_TRUE(X500NameDecoder::BlobToString(Blob(hex), text));
    EXPECT_EQ(Shown(text), *hex != '\0' ? hex : "\"\"");
  }
}

}  // namespace
}  // namespace Ortholan::testing
