// Plain values and content, with the texts of identifiers and times among them.
#include <gtest/gtest.h>
#include <ortholan/asn1.h>

#include <string>

#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

// The element, or what is thrown.
std::string Put(BYTE classAndForm, DWORD tag, const std::string& value) {
  const IdentObj in = ExactCopy(value);
  const auto cls = static_cast<BYTE>(classAndForm & 0xC0);
  const auto form = static_cast<BYTE>(classAndForm & 0x20);
  IdentObj element;
  // Length and content describe what was scanned; writing does not look at them.
  const std::string thrown = Thrown([&] {
    element = ASNTPutElement({cls, form, tag, 99, nullptr}, in.pbData, in.cbData);
  });
  return thrown == "0" ? std::string(AsText(element)) : thrown;
}

// The plain value, or the status code.
std::string Get(const std::string& octets) {
  const IdentObj element = ExactCopy(octets);
  ASNT_ASN_STRUCT_INFO info;
  EXPECT_EQ(ASNTGetStructInfo(info, element.pbData, element.cbData), 0u);
  IdentObj value = Blob("77");
  const DWORD status = ASNTGetElement(info, element.pbData + element.cbData, value);
  EXPECT_TRUE(status == 0 || AsText(value) == "\x77") << "changed by a failure";
  return status == 0 ? std::string(AsText(value)) : std::to_string(status);
}

TEST(PutElement, Writes) {
  const struct {
    const char* label;
    BYTE classAndForm;
    DWORD tag;
    const char* value;
    const char* element;
  } kRows[] = {
      {"false", 0, 1, "00 00", "01 01 00"},
      {"true in the last octet", 0, 1, "00 00 80", "01 01 FF"},
      {"BOOLEAN of nothing", 0, 1, "", "01 01 00"},
      {"zeros", 0, 2, "00 00 00 00", "02 01 00"},
      {"-129", 0, 2, "7F FF FF", "02 02 FF 7F"},
      {"INTEGER of nothing", 0, 2, "", "02 00"},
      {"ENUMERATED", 0, 10, "01 02 03", "0A 03 03 02 01"},
      {"NULL", 0, 5, "01 02", "05 00"},
      {"constructed", 0x20, 16, "05 00", "30 02 05 00"},
      {"context-specific, as it stands", 0x80, 1, "05", "81 01 05"},
      {"application, as it stands", 0x40, 2, "80 00", "42 02 80 00"},
      {"private, no such universal tag", 0xE0, 9, "80", "E9 01 80"},
      {"tag 31", 0x80, 31, "", "9F 1F 00"},
      {"tag 128", 0xA0, 128, "01", "BF 81 00 01 01"},
      {"largest tag", 0x80, 0xFFFFFFFF, "", "9F 8F FF FF FF 7F 00"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(Hex(Put(row.classAndForm, row.tag, Octets(row.value))), row.element) << row.label;
  }
  for (const DWORD tag : {0u, 6u, 7u, 9u, 13u, 21u, 23u, 24u, 25u, 27u, 28u, 30u, 31u, 128u}) {
    EXPECT_EQ(Put(0, tag, "x"), "1 ASNTPutElement") << tag;
  }
}

TEST(GetElement, Reads) {
  const struct {
    const char* label;
    const char* element;
    std::string value;
  } kRows[] = {
      {"INTEGER", "02 03 03 02 01", "\x01\x02\x03"},
      {"NULL with content", "05 01 41", ""},
      {"BMPString", "1E 02 00 41", Octets("00 41")},
      {"context-specific, by number", "82 02 01 02", "\x02\x01"},
      {"primitive indefinite, octets behind", "04 80 41 00 00 42", "A"},
      {"content passes the end", "04 02 41", "206"},
      {"largest content", "04 84 FF FF FF FE 41", "206"},
      {"indefinite", "30 80 00 00", "206"},
      {"no such tag: 28", "1C 04 00 00 00 41", "205"},
      {"no such tag: 31", "1F 1F 00", "205"},
  };
  for (const auto& row : kRows) EXPECT_EQ(Get(Octets(row.element)), row.value) << row.label;

  // The content may lie in the value that it replaces.
  IdentObj value = Blob("55 04 03");
  EXPECT_EQ(ASNTGetElement({0, 0, 6, 3, value.pbData}, value.pbData + 3, value), 0u);
  EXPECT_EQ(AsText(value), "2.5.4.3");
  EXPECT_EQ(ASNTGetElement({0, 0, 4, 0, nullptr}, value.pbData, value), 206u);
  EXPECT_EQ(ASNTGetElement({0, 0, 4, 1, value.pbData}, nullptr, value), 206u);
  EXPECT_EQ(ASNTGetElement({0, 0, 4, 1, value.pbData + 1}, value.pbData, value), 206u);
}

TEST(Elements, StringsAndNumbersComeBack) {
  for (const int tag : {3, 4, 12, 16, 17, 18, 19, 20, 22, 26}) {
    const std::string element = Put(0, static_cast<DWORD>(tag), Octets("00 80 FF"));
    EXPECT_EQ(element, static_cast<char>(tag) + Octets("03 00 80 FF"));
    EXPECT_EQ(Get(element), Octets("00 80 FF"));
  }
  // Every number of 16 bits: the shortest content, which means the same.
  for (int number = -32768; number <= 32767; ++number) {
    const std::string value = {static_cast<char>(number), static_cast<char>(number >> 8)};
    const std::string element = Put(0, 2, value);
    const bool one = number >= -128 && number <= 127;
    ASSERT_EQ(element.size(), one ? 3u : 4u) << number;
    const int top = static_cast<signed char>(element[2]);
    ASSERT_EQ(one ? top : top * 256 + static_cast<BYTE>(element[3]), number);
    ASSERT_EQ(Get(element), value.substr(0, one ? 1 : 2));
  }
}

std::string Repeated(const std::string& text, size_t count) {
  std::string all;
  while (count-- != 0) all += text;
  return all;
}

TEST(Identifiers, AreWritten) {
  const struct {
    std::string text;
    std::string element;
  } kRows[] = {
      {"2.5.4.3", "06 03 55 04 03"},
      {std::string("2.5\0..", 6), "06 01 55"},
      {"1.2.0.127.128.16383", "06 07 2A 00 7F 81 00 FF 7F"},
      {"1.2.16384.2097151", "06 07 2A 81 80 00 FF FF 7F"},
      {"1.2.4294967295", "06 06 2A 8F FF FF FF 7F"},
      {"2.005.0000000000004", "06 02 55 04"},
      {"2.999.1", "06 02 37 01"},  // the first two arcs in the low bits of one octet
      {"4294967295.4294967295", "06 01 D7"},
      {"1.2" + Repeated(".1", 259), "06 82 01 04 2A" + Repeated(" 01", 259)},
  };
  for (const auto& row : kRows) EXPECT_EQ(Hex(Put(0, 6, row.text)), row.element) << row.text;
  for (const std::string& text :
       {std::string(), "1.2" + Repeated(".1", 260), "1.2" + Repeated(".1", 258) + ".128"}) {
    EXPECT_EQ(Put(0, 6, text), "1 ASNTPutElement") << text;
  }
  for (const char* text : {"2", "2.", ".", ".2.5", "2..5", "2.5.", "2.5 ", " 2.5", "2. 5", "+2.5",
                           "2.-5", "2.5a", "a.5", "0x2.5", "2,5", "2.5.4294967296", "2.4294967296",
                           "4294967296.1", "2.5.18446744073709551617"}) {
    EXPECT_EQ(Put(0, 6, text), "1 ASNTPutElement") << text;
  }
}

// Written from the definition: the top bit of an octet alone tells where an arc ends.
std::string Dotted(const std::string& content) {
  const auto octet = [&](size_t i) { return static_cast<BYTE>(content[i]); };
  std::string text = std::to_string(octet(0) / 40) + "." + std::to_string(octet(0) % 40);
  uint64_t arc = 0;
  for (size_t i = 1; i < content.size(); ++i) {
    arc = arc * 128 + octet(i) % 128;
    if (arc > 0xFFFFFFFF || (octet(i) >= 128 && i + 1 == content.size())) return "206";
    if (octet(i) >= 128) continue;
    text += "." + std::to_string(arc);
    arc = 0;
  }
  return text;
}

TEST(Identifiers, AreReadByTheDefinition) {
  for (const char* start : {"", "2A 8F FF FF", "2A 90 80 80", "55 04 81"}) {
    std::string content = Octets(start) + "xy";
    const std::string header = {6, static_cast<char>(content.size())};
    for (unsigned tail = 0; tail < 0x10000; ++tail) {
      content[content.size() - 2] = static_cast<char>(tail >> 8);
      content[content.size() - 1] = static_cast<char>(tail);
      ASSERT_EQ(Get(header + content), Dotted(content)) << Hex(content);
    }
  }
  EXPECT_EQ(Get(Octets("06 00")), "206");
  EXPECT_EQ(Get(Octets("06 07 2A 81 80 80 80 80 00")), "206");
  EXPECT_EQ(Get(Octets("06 82 1F 41 2A") + Repeated(Octets("80 80 80 8F FF FF FF 7F"), 1000)),
            "1.2" + Repeated(".4294967295", 1000));
}

// UTCTime is the same text without its first two digits, where the year allows.
TEST(Times, AreWrittenAndRead) {
  const struct {
    const char* fileTime;  // 100 ns since 1601, least significant octet first
    const char* text;
    bool utc;
  } kRows[] = {
      {"00 00 00 00 00 00 00 00", "16010101000000Z", false},
      {"80 29 0E 91 93 45 87 01", "19491231235959Z", false},
      {"00 C0 A6 91 93 45 87 01", "19500101000000Z", true},
      {"80 A9 D4 24 EB 53 BF 01", "19991231235959Z", true},
      {"00 98 51 62 B1 82 BF 01", "20000229123456Z", true},
      {"80 E9 04 E3 0B 63 F7 01", "20491231235959Z", true},
      {"00 80 9D E3 0B 63 F7 01", "20500101000000Z", false},
      {"80 A9 27 D1 5E 5A C8 24", "99991231235959Z", false},
  };
  for (const auto& row : kRows) {
    const std::string value = Octets(row.fileTime);
    const std::string generalized = Octets("18 0F") + row.text;
    const std::string utc = Octets("17 0D") + (row.text + 2);
    EXPECT_EQ(Put(0, 24, value), generalized);
    EXPECT_EQ(Get(generalized), value);
    EXPECT_EQ(Put(0, 23, value), row.utc ? utc : "1 ASNTPutElement");
    EXPECT_EQ(Get(utc) == value, row.utc) << row.text;
  }
  EXPECT_EQ(Put(0, 23, Octets("7F 2E EA 62 B1 82 BF 01")), Octets("17 0D") + "000229123456Z");
  for (const char* value : {"", "00 40 6D 25 EB 53 BF", "00 40 6D 25 EB 53 BF 01 00",
                            "00 40 C0 D1 5E 5A C8 24", "FF FF FF FF FF FF FF FF"}) {
    EXPECT_EQ(Put(0, 24, Octets(value)), "1 ASNTPutElement") << value;
  }
}

TEST(Times, AreDigitsAndZ) {
  for (const std::string text :
       {"", "0001010000Z", "000101000000", "000101000000z", "00010100000Z", "000101000000ZZ",
        "0001010:0000Z", "0001-1000000Z", "000001000000Z", "001301000000Z", "000100000000Z",
        "000230000000Z", "000101240000Z", "000101006000Z", "000101000060Z"}) {
    const auto size = static_cast<char>(text.size());
    EXPECT_EQ(Get(std::string{0x17, size} + text), "206") << text;
    EXPECT_EQ(Get(std::string{0x18, static_cast<char>(size + 2)} + "20" + text), "206") << text;
  }
  EXPECT_EQ(Get(Octets("17 0F") + "20000101000000Z"), "206");
  EXPECT_EQ(Get(Octets("18 0D") + "000101000000Z"), "206");
  EXPECT_EQ(Get(Octets("18 0F") + "16001231235959Z"), "206");
}

}  // namespace
}  // namespace Ortholan::testing
