// General names by tag and content: the rows of the vector files, and what the factories make.

#include <gtest/gtest.h>
#include <ortholan/general_name.h>

#include <new>
#include <utility>

#include "tests/support/calls.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

GeneralName Name(const VectorRow& row) {
  return GeneralName(static_cast<GeneralNameTag>(row.number("tag")), ExactCopy(row.octets("in")));
}

std::string Encoded(const VectorRow& row) {
  GeneralName name = Name(row);
  const std::string der = Hex(name.DerEncode());
  EXPECT_EQ(Hex(name.GetContent()), row.text("in"));
  return der;
}

// The tag; the whole of the octets is kept.
std::string Decoded(const VectorRow& row) {
  GeneralName name;
  const std::string thrown =
      Thrown([&] { name = GeneralName::DerDecode(ExactCopy(row.octets("in"))); });
  if (thrown != "0") return thrown;
  EXPECT_EQ(Hex(name.GetContent()), row.text("in"));
  return std::to_string(name.GetTag());
}

// Texts are compared as units, because some are no characters; the arguments count for nothing.
std::string Text(const VectorRow& row) {
  GeneralName name = Name(row);
  std::wstring text;
  const std::string thrown = Thrown([&] { text = name.ToString(0, 0); });
  EXPECT_EQ(Thrown([&] { EXPECT_EQ(name.ToString(1, static_cast<size_t>(-1)), text); }), thrown);
  if (thrown != "0") return thrown;
  const bool same = text == row.wide("out");
  return same ? row.text("out") : "units " + Hex(text);
}

TEST(GeneralName, Answers) {
  RunCalls("general_name_content.tsv", {{"encode", Encoded}, {"decode", Decoded}, {"text", Text}});
}

// What the other interfaces are asked too.
TEST(GeneralName, IsReadFromItsEncoding) {
  for (const VectorRow& row : ReadVectors("general_names.tsv")) {
    SCOPED_TRACE(row.where());
    GeneralName name;
    const std::string thrown =
        Thrown([&] { name = GeneralName::DerDecode(ExactCopy(row.octets("der"))); });
    EXPECT_EQ(thrown == "0", row.has("tag"));
    if (thrown != "0") continue;
    EXPECT_EQ(name.GetTag(), row.number("tag"));
    if (row.text("code") == "DER") continue;  // it is kept with whatever follows the header
    std::wstring text;
    EXPECT_EQ(Thrown([&] { text = name.ToString(0, 0); }) == "0", !row.has("code"));
    EXPECT_EQ(Hex(text), Hex(row.wide("text")));
  }
}

TEST(GeneralName, MadeByAFactoryIsShown) {
  EXPECT_EQ(GeneralName::CreateUri(L"http://x/").ToString(0, 0), L"http://x/");
  EXPECT_EQ(GeneralName::CreateEdiPartyName({L"A", L"B"}).ToString(0, 0),
            L"30 06 A0 01 41 A1 01 42");
  EXPECT_EQ(GeneralName::CreateRegisteredId("1.2.3").ToString(0, 0), L"*\x03");
}

TEST(GeneralName, FactoriesStoreTheirTagAndContent) {
  const struct {
    const char* label;
    GeneralName name;
    GeneralNameTag tag;
    const char* content;
    const char* der;
  } kRows[] = {
      {"default", GeneralName(), otherName, "", ""},
      {"mail", GeneralName::CreateRfc822Name(L"a@b"), rfc822Name, "16 03 61 40 62",
       "A1 03 61 40 62"},
      {"empty mail", GeneralName::CreateRfc822Name(L""), rfc822Name, "16 00", "A1 00"},
      {"letter outside ASCII", GeneralName::CreateRfc822Name(L"я@b"), rfc822Name, "16 03 3F 40 62",
       "A1 03 3F 40 62"},
      {"host", GeneralName::CreateDnsName(L"x.ru"), dNSName, "16 04 78 2E 72 75",
       "A2 04 78 2E 72 75"},
      {"URI", GeneralName::CreateUri(L"a:б"), dNSName, "16 03 61 3A 3F", "A2 03 61 3A 3F"},
      {"X.400", GeneralName::CreateX400Address(Blob("30 03 61 01 41")), x400Address,
       "30 03 61 01 41", "A3 03 61 01 41"},
      {"directory", GeneralName::CreateDirectoryName(Blob("30 00")), directoryName, "30 00",
       "A4 00"},
      {"no directory", GeneralName::CreateDirectoryName(IdentObj()), directoryName, "", ""},
      {"empty party", GeneralName::CreateEdiPartyName({}), directoryName, "30 04 A0 00 A1 00",
       "A4 04 A0 00 A1 00"},
      {"party", GeneralName::CreateEdiPartyName({L"A", L"Б"}), directoryName,
       "30 07 A0 01 41 A1 02 D0 91", "A4 07 A0 01 41 A1 02 D0 91"},
      {"identifier", GeneralName::CreateRegisteredId("2.5.4.3"), dNSName, "06 03 55 04 03",
       "A2 03 55 04 03"},
      {"other", GeneralName::CreateOther("1.2.3", Blob("0C 01 41")), otherName,
       "30 07 06 02 2A 03 0C 01 41", "A0 07 06 02 2A 03 0C 01 41"},
      {"other, no element", GeneralName::CreateOther("1.2.3", Blob("FF")), otherName,
       "30 05 06 02 2A 03 FF", "A0 05 06 02 2A 03 FF"},
      {"other, no value", GeneralName::CreateOther("1.2.3", IdentObj()), otherName,
       "30 04 06 02 2A 03", "A0 04 06 02 2A 03"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    EXPECT_EQ(row.name.GetTag(), row.tag);
    EXPECT_EQ(Hex(row.name.GetContent()), row.content);
    EXPECT_EQ(Hex(GeneralName(row.name).DerEncode()), row.der);
  }
}

TEST(GeneralName, TextsHaveNoLimit) {
  const std::wstring text(300, L'a');
  const IdentObj content = GeneralName::CreateDnsName(text).GetContent();
  EXPECT_EQ(AsText(content), Octets("16 82 01 2C") + std::string(300, 'a'));
}

TEST(GeneralName, FactoriesRefuse) {
  EXPECT_EQ(Thrown([] { GeneralName::CreateRegisteredId("2.x"); }), "1 ASNTPutElement");
  EXPECT_EQ(Thrown([] { GeneralName::CreateOther("", IdentObj()); }), "1 ASNTPutElement");
  for (const wchar_t* address : {L"", L"10.0.0.1", L"::1", L"я"}) {
    EXPECT_THROW(GeneralName::CreateIpAddress(address), std::bad_alloc);
  }
}

TEST(GeneralName, IsAValue) {
  const GeneralName host = GeneralName::CreateDnsName(L"a");
  GeneralName copy = host;
  GeneralName& same = copy;
  copy = same;
  EXPECT_EQ(Hex(copy.GetContent()), "16 01 61");
  const GeneralName moved = std::move(copy);
  copy = GeneralName(iPAddress, Blob("0A"));
  EXPECT_EQ(copy.GetTag(), iPAddress);
  EXPECT_EQ(Hex(copy.GetContent()), "0A");
  EXPECT_EQ(moved.GetTag(), dNSName);
  EXPECT_EQ(Hex(moved.GetContent()), "16 01 61");
  EXPECT_EQ(Hex(host.GetContent()), "16 01 61");
}

}  // namespace
}  // namespace Ortholan::testing
