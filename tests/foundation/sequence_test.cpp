#include <gtest/gtest.h>
#include <ortholan/asn1.h>

#include <list>
#include <string>

#include "foundation/blob_view.h"
#include "foundation/element_reader.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr char kBadHeader[] = "206 CASNTBaseRecord::ReadASNInfo";
constexpr char kBadTagNumber[] = "205 CASNTBaseRecord::ReadASNInfo";
constexpr char kBadContent[] = "206 ASNTGetIndefiniteLength";
constexpr char kBadChild[] = "206 ASNTGetSequence";

// "02 01 05 | 05 00"
std::string Joined(const std::list<IdentObj>& elements) {
  std::string text;
  for (const IdentObj& element : elements) text += (text.empty() ? "" : " | ") + Hex(element);
  return text;
}

struct SplitRow {
  const char* label;
  const char* hex;
  const char* children;
  DWORD consumed;
  const char* outcome = "0";
};

const SplitRow kSequences[] = {
    {"empty", "30 00", "", 2},
    {"two children, octets behind", "31 06 02 01 01 02 01 02 FF", "02 01 01 | 02 01 02", 8},
    {"any class, high tag, long length", "BF 81 00 81 03 02 01 01", "02 01 01", 8},
    {"indefinite", "30 80 02 01 05 00 00 77", "02 01 05", 7},
    {"indefinite child", "30 80 30 80 02 01 05 00 00 00 00", "30 80 02 01 05 00 00", 11},
    // The pair that ends a primitive's content is no part of it and stands in the stream.
    {"primitive indefinite child", "30 05 04 80 41 00 00", "04 80 41 | 00 00", 7},
    {"the same, both indefinite", "30 80 04 80 41 00 00 00 00", "04 80 41", 7},

    {"one octet", "30", "", 0, kBadHeader},
    {"no terminator", "30 80 02 01 05", "02 01 05", 5, kBadChild},
    {"half a terminator", "30 80 02 01 05 00", "", 2, kBadContent},
    {"second child passes the parent", "30 06 02 01 01 02 02 01 02", "02 01 01", 5, kBadChild},
    {"child's header passes it", "30 01 02 00", "", 2, kBadChild},
    {"indefinite child passes it", "30 05 30 80 05 00 00 00", "", 2, kBadChild},
    {"largest child", "30 09 02 84 FF FF FF FE 01", "", 2, kBadChild},
    {"child's tag never ends", "30 02 1F 81", "", 2, kBadTagNumber},
    {"parent claims too much", "30 09 02 01 01", "02 01 01", 5, kBadHeader},
};

TEST(GetSequence, SplitsAndKeepsWhatItFoundBeforeAFault) {
  for (const SplitRow& row : kSequences) {
    SCOPED_TRACE(row.label);
    const IdentObj in = Blob(row.hex);
    std::list<IdentObj> out;
    const auto split = [&](DWORD* status) {
      out.clear();
      return ASNTGetSequence(out, in.pbData, in.cbData, status);
    };
    EXPECT_EQ(Reported(split, row.outcome), row.consumed);
    EXPECT_EQ(Joined(out), row.children);
  }
  std::list<IdentObj> out = {Blob("05 00")};
  Reported([&](DWORD* s) { return ASNTGetSequence(out, "\x04\x00", 2, s); }, "205 ASNTGetSequence");
  ASNTGetSequence(out, "\x30\x02\x00\x00", 4);
  EXPECT_EQ(Joined(out), "05 00 | 00 00") << "children are appended";
}

// No strict prefix of these is a whole element.
constexpr const char* kGood[] = {"31 0B 30 09 06 03 55 04 03 0C 02 41 42",
                                 "30 80 30 80 02 01 05 00 00 31 00 00 00",
                                 "BF 81 00 81 06 24 80 04 00 00 00"};

// Splits `in` and, below it, its children, and checks the reader of views against that.
DWORD Walk(const IdentObj& in) {
  std::list<IdentObj> children;
  DWORD status = 7;
  const DWORD consumed = ASNTGetSequence(children, in.pbData, in.cbData, &status);
  EXPECT_LE(consumed, in.cbData);
  EXPECT_TRUE(status == 0 || status == 205 || status == 206) << status;

  ElementReader reader{ViewOf(in)};
  std::list<IdentObj> views;
  for (Element child; reader.Next(&child);) {
    views.emplace_back(child.bytes.data, static_cast<DWORD>(child.bytes.size));
  }
  EXPECT_EQ(views, children);
  EXPECT_EQ(reader.position(), consumed);
  Element none;
  EXPECT_FALSE(reader.Next(&none));
  EXPECT_EQ(ToCode(reader.fault().status), status);
  for (const IdentObj& child : children) {
    if ((child.pbData[0] & 0x20) != 0) Walk(child);
  }
  return status;
}

TEST(GetSequence, RefusesTruncationAndSurvivesSpoiltOctets) {
  for (const char* hex : kGood) {
    const std::string whole = Octets(hex);
    EXPECT_EQ(Walk(ExactCopy(whole)), 0u) << hex;
    for (size_t i = 0; i < whole.size(); ++i) {
      EXPECT_NE(Walk(ExactCopy(whole.substr(0, i))), 0u) << hex << " cut to " << i;
      for (int value = 0; value < 256; ++value) {
        std::string spoilt = whole;
        spoilt[i] = static_cast<char>(value);
        SCOPED_TRACE(Hex(spoilt));
        Walk(ExactCopy(spoilt));
      }
    }
  }
}

TEST(SplitElements, StopsAtAnEmptyElement) {
  const struct {
    const char* label;
    const char* hex;
    const char* children;
    DWORD status;
  } kRows[] = {
      {"two", "02 01 01 02 01 02", "02 01 01 | 02 01 02", 0},
      {"NULL stops", "02 01 01 05 00 02 01 02", "02 01 01", 0},
      {"indefinite, empty", "30 80 00 00 02 01 01", "30 80 00 00 | 02 01 01", 0},
      {"indefinite, not ended", "30 80 02 01 05", "30 80 02 01 05", 0},
      {"primitive indefinite, empty", "04 80 00 00 02 01 01", "", 0},
      {"primitive indefinite, its pair stops", "04 80 41 00 00 02 01 01", "04 80 41", 0},
      {"second cut", "02 01 01 02 02 01", "", 206},
      {"second's header cut", "02 01 01 02", "", 206},
      {"fault in indefinite content", "02 01 01 30 80 1F 81", "", 205},
  };
  for (const auto& row : kRows) {
    // The octets to split lie in the list that takes the elements.
    std::list<IdentObj> out = {Blob(row.hex)};
    EXPECT_EQ(ASNTSplitElements(out, out.front().pbData, out.front().cbData), row.status);
    EXPECT_EQ(Joined(out), row.children) << row.label;
  }
  std::list<IdentObj> out(1);
  EXPECT_EQ(ASNTSplitElements(out, nullptr, 5), 206u);
  EXPECT_TRUE(out.empty());
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
