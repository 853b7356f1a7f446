// Elements, identifiers, times and texts: the rows of asn1.tsv, and what holds for whole ranges.

#include <gtest/gtest.h>
#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>

#include <cstring>
#include <iomanip>
#include <sstream>

#include "foundation/blob_view.h"
#include "foundation/element_header.h"
#include "tests/support/calls.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

IdentObj In(const VectorRow& row) { return ExactCopy(row.octets("in")); }

// "02 01 05 | 05 00"
std::string Joined(const std::list<IdentObj>& elements) {
  std::string text;
  for (const IdentObj& element : elements) text += (text.empty() ? "" : " | ") + Hex(element);
  return text;
}

bool IsTime(DWORD tag) { return tag == 23 || tag == 24; }

// A row writes the two numbers of a FILETIME with their lowest octets first; here as the host has
// them, and the other way round.
std::string FileTime(std::string octets) {
  if (octets.size() != sizeof(FILETIME)) return octets;
  for (size_t at = 0; at < octets.size(); at += sizeof(DWORD)) {
    DWORD number = 0;
    for (size_t i = sizeof number; i-- > 0;)
      number = number << 8 | static_cast<BYTE>(octets[at + i]);
    std::memcpy(&octets[at], &number, sizeof number);
  }
  return octets;
}

// The element in hex, or what is thrown.
std::string Put(unsigned class_and_form, DWORD tag, const std::string& value) {
  const IdentObj in = ExactCopy(IsTime(tag) ? FileTime(value) : value);
  const auto cls = static_cast<BYTE>(class_and_form & 0xC0);
  const auto form = static_cast<BYTE>(class_and_form & 0x20);
  IdentObj element;
  // Length and content describe what was scanned; writing does not look at them.
  const std::string thrown = Thrown([&] {
    element = ASNTPutElement({cls, form, tag, 99, nullptr}, in.pbData, in.cbData);
  });
  return thrown == "0" ? Hex(element) : thrown;
}

// The plain value in hex, or the status.
std::string Get(const std::string& octets) {
  const IdentObj element = ExactCopy(octets);
  ASNT_ASN_STRUCT_INFO info;
  EXPECT_EQ(ASNTGetStructInfo(info, element.pbData, element.cbData), 0u);
  IdentObj value = Blob("77");
  const DWORD status = ASNTGetElement(info, element.pbData + element.cbData, value);
  EXPECT_TRUE(status == 0 || AsText(value) == "\x77") << "changed by a failure";
  if (status != 0) return "status " + std::to_string(status);
  const std::string held(AsText(value));
  return Hex(IsTime(info.tag) ? FileTime(held) : held);
}

std::string PutRow(const VectorRow& row) {
  unsigned class_and_form = 0;
  DWORD tag = 0;
  std::istringstream(row.text("arg")) >> std::setbase(0) >> class_and_form >> tag;
  return Put(class_and_form, tag, row.octets("in"));
}
std::string GetRow(const VectorRow& row) { return Get(row.octets("in")); }
std::string Identifier(const VectorRow& row) { return Put(0, 6, row.text("in")); }

// Calls with a place for the status and without one: the result and what is thrown without.
template <class Call>
std::string BothWays(const Call& call) {
  const std::string thrown = Thrown([&] { call(nullptr); });
  DWORD status = 7;
  const DWORD result = call(&status);
  EXPECT_EQ(std::to_string(status), thrown.substr(0, thrown.find(' ')));
  return std::to_string(result) + ": " + thrown;
}

// Octets split, what is thrown, and the children found before a fault.
std::string Sequence(const VectorRow& row) {
  const IdentObj in = In(row);
  std::list<IdentObj> out;
  const std::string answer = BothWays([&](DWORD* status) {
    out.clear();
    return ASNTGetSequence(out, in.pbData, in.cbData, status);
  });
  return answer + ": " + Joined(out);
}

// The octets to split lie in the list that takes the elements.
std::string Elements(const VectorRow& row) {
  std::list<IdentObj> out = {In(row)};
  const DWORD status = ASNTSplitElements(out, out.front().pbData, out.front().cbData);
  return std::to_string(status) + ": " + Joined(out);
}

std::string Measure(const VectorRow& row) {
  const IdentObj in = In(row);
  return BothWays([&](DWORD* status) {
    return ASNTGetIndefiniteLength(in.pbData, in.cbData, row.has("arg"), status);
  });
}

// Class and form, tag, length, octets of the header.
std::string Header(const VectorRow& row) {
  const IdentObj in = In(row);
  CASNTBaseRecord record;
  const std::string read =
      BothWays([&](DWORD* status) { return record.ReadASNInfo(in.pbData, in.cbData, status); });
  const std::string outcome = read.substr(read.find(": ") + 2);
  ASNT_ASN_STRUCT_INFO info;
  std::memset(&info, 0xAA, sizeof info);
  EXPECT_EQ(std::to_string(ASNTGetStructInfo(info, in.pbData, in.cbData)),
            outcome.substr(0, outcome.find(' ')));
  EXPECT_EQ(record.GetASNInfo().length, info.length);
  const auto size = static_cast<DWORD>(std::stoul(read));
  EXPECT_EQ(info.content, outcome == "0" ? in.pbData + size : nullptr);
  ElementHeader header;
  if (outcome == "0") {
    EXPECT_EQ(ReadHeader(ViewOf(in), &header), Status::kOk);
    EXPECT_EQ(header.indefinite, size == 2 && in.pbData[1] == 0x80);
  }
  std::ostringstream text;
  text << "0x" << std::uppercase << std::hex << std::setw(2) << std::setfill('0')
       << (info.cls | info.constructed) << std::dec << ' ' << info.tag << " 0x" << std::hex
       << info.length << std::dec << ' ' << read;
  return text.str();
}

// What `decode` gives, or what it throws; its Russian words are in code page 1251.
template <class Decode>
std::string Decoded(const VectorRow& row, const Decode& decode) {
  std::string text;
  std::string thrown = Thrown([&] { text = decode(In(row), row.has("arg")); });
  const size_t colon = thrown.find(": \xCD\xE5\xE2\xE5\xF0\xED\xFB\xE9 \xF2\xE8\xEF");
  if (colon != std::string::npos) thrown.replace(colon, std::string::npos, " wrong type");
  return thrown == "0" ? text : thrown;
}
std::string DecodedIdentifier(const VectorRow& row) { return Decoded(row, &DerHelper::DecodeOid); }
std::string DecodedText(const VectorRow& row) {
  return Decoded(row, [](const IdentObj& value, bool any_tag) {
    return Hex(DerHelper::DecodeUtf8String(value, any_tag));
  });
}

TEST(Asn1, Answers) {
  RunCalls("asn1.tsv", {{"put", PutRow},
                        {"get", GetRow},
                        {"identifier", Identifier},
                        {"sequence", Sequence},
                        {"elements", Elements},
                        {"measure", Measure},
                        {"header", Header},
                        {"decode identifier", DecodedIdentifier},
                        {"decode text", DecodedText}});
}

TEST(Elements, MayLieInTheTarget) {
  IdentObj value = Blob("55 04 03");
  EXPECT_EQ(ASNTGetElement({0, 0, 6, 3, value.pbData}, value.pbData + 3, value), 0u);
  EXPECT_EQ(AsText(value), "2.5.4.3");
  EXPECT_EQ(ASNTGetElement({0, 0, 4, 0, nullptr}, value.pbData, value), 206u);
  EXPECT_EQ(ASNTGetElement({0, 0, 4, 1, value.pbData}, nullptr, value), 206u);
  EXPECT_EQ(ASNTGetElement({0, 0, 4, 1, value.pbData + 1}, value.pbData, value), 206u);
  std::list<IdentObj> out = {Blob("05 00")};
  ASNTGetSequence(out, "\x30\x02\x00\x00", 4);
  EXPECT_EQ(Joined(out), "05 00 | 00 00") << "children are appended";
  EXPECT_EQ(ASNTSplitElements(out, nullptr, 5), 206u);
  EXPECT_TRUE(out.empty());
}

TEST(Elements, StringsAndNumbersComeBack) {
  for (const DWORD tag : {3u, 4u, 12u, 16u, 17u, 18u, 19u, 20u, 22u, 26u}) {
    const std::string element = Put(0, tag, Octets("00 80 FF"));
    EXPECT_EQ(element, Hex(std::string(1, static_cast<char>(tag))) + " 03 00 80 FF");
    EXPECT_EQ(Get(Octets(element)), "00 80 FF");
  }
  // Every number of 16 bits: the shortest content, which means the same.
  for (int number = -32768; number <= 32767; number += ORTHOLAN_TEST_SCALE) {
    const std::string value = {static_cast<char>(number), static_cast<char>(number >> 8)};
    const std::string element = Octets(Put(0, 2, value));
    const bool one = number >= -128 && number <= 127;
    ASSERT_EQ(element.size(), one ? 3u : 4u) << number;
    const int top = static_cast<signed char>(element[2]);
    ASSERT_EQ(one ? top : top * 256 + static_cast<BYTE>(element[3]), number);
    ASSERT_EQ(Get(element), Hex(value.substr(0, one ? 1 : 2)));
  }
}

// Written from the definition: the top bit of an octet alone tells where an arc ends.
std::string Dotted(const std::string& content) {
  const auto octet = [&](size_t i) { return static_cast<BYTE>(content[i]); };
  std::string text = std::to_string(octet(0) / 40) + "." + std::to_string(octet(0) % 40);
  uint64_t arc = 0;
  for (size_t i = 1; i < content.size(); ++i) {
    arc = arc * 128 + octet(i) % 128;
    if (arc > 0xFFFFFFFF || (octet(i) >= 128 && i + 1 == content.size())) return "status 206";
    if (octet(i) >= 128) continue;
    text += "." + std::to_string(arc);
    arc = 0;
  }
  return Hex(text);
}

TEST(Identifiers, AreReadByTheDefinition) {
  for (const char* start : {"", "2A 8F FF FF", "2A 90 80 80", "55 04 81"}) {
    std::string content = Octets(start) + "xy";
    const std::string header = {6, static_cast<char>(content.size())};
    for (unsigned tail = 0; tail < 0x10000; tail += ORTHOLAN_TEST_SCALE) {
      content[content.size() - 2] = static_cast<char>(tail >> 8);
      content[content.size() - 1] = static_cast<char>(tail);
      ASSERT_EQ(Get(header + content), Dotted(content)) << Hex(content);
    }
  }
  std::string many = Octets("2A");
  for (int i = 0; i < 1000; ++i) many += Octets("80 80 80 8F FF FF FF 7F");
  EXPECT_EQ(Get(Octets("06 82 1F 41") + many), Dotted(many));
}

TEST(IndefiniteLength, CostsNoStack) {
  std::string nested;
  for (int depth = 0; depth < 200000; ++depth) nested += "\x30\x80";
  EXPECT_EQ(ASNTGetIndefiniteLength(nested.data(), 400000, true), 400000u);
}

TEST(PutSequence, WrapsInTheOrderGivenWithMinimalLengths) {
  const struct {
    DWORD tag;
    DWORD content;
    const char* header;
  } kRows[] = {{16, 127, "30 7F"},
               {16, 128, "30 81 80"},
               {16, 300, "30 82 01 2C"},
               {17, 65535, "31 82 FF FF"},
               {17, 65536, "31 83 01 00 00"}};
  for (const auto& row : kRows) {
    const std::list<IdentObj> children = {IdentObj(nullptr, row.content - 3), Blob("02 01 01")};
    const IdentObj element =
        Reported([&](DWORD* status) { return ASNTPutSequence(children, row.tag, status); }, "0");
    const size_t header = Octets(row.header).size();
    ASSERT_EQ(element.cbData, header + row.content);
    EXPECT_EQ(Hex(AsText(element).substr(0, header)), row.header);
    EXPECT_EQ(Hex(AsText(element).substr(element.cbData - 3)), "02 01 01");
  }
  EXPECT_EQ(Hex(ASNTPutSequence({}, 16)), "30 00");
}

TEST(PutSequence, RefusesOtherTagsAndTooMuch) {
  std::list<IdentObj> children(2);
  DWORD tag = 0;
  const auto put = [&](DWORD* status) { return ASNTPutSequence(children, tag, status); };
  for (const DWORD other : {4u, 15u, 18u, 0x31u}) {
    tag = other;
    EXPECT_EQ(Hex(Reported(put, "28 ASNTPutSequence")), "") << tag;
  }
  // Children without bytes, so that the sum alone is too large.
  tag = 17;
  children.front().cbData = children.back().cbData = 0x80000000;
  EXPECT_EQ(Hex(Reported(put, "16 ASNTPutSequence")), "");
  children.front().cbData = 1;
  children.back() = Blob("05 00");
  EXPECT_EQ(Hex(put(nullptr)), "31 03 00 05 00");
}

}  // namespace
}  // namespace Ortholan::testing
