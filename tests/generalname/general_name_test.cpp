#include <gtest/gtest.h>
#include <ortholan/general_name.h>

#include <new>
#include <utility>

#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr auto kTag30 = static_cast<GeneralNameTag>(30);
constexpr auto kTag31 = static_cast<GeneralNameTag>(31);
constexpr auto kTag128 = static_cast<GeneralNameTag>(128);

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

TEST(GeneralName, EncodingReplacesIdentifierOctetsAlone) {
  const struct {
    const char* label;
    GeneralNameTag tag;
    const char* content;
    const char* der;
  } kRows[] = {
      {"long identifier", rfc822Name, "1F 81 00 01 41", "A1 01 41"},
      {"padded identifier", directoryName, "BF 80 80 01 02 05 00", "A4 02 05 00"},
      {"long length", dNSName, "0C 81 01 41", "A2 81 01 41"},
      {"indefinite", directoryName, "30 80 05 00 00 00", "A4 80 05 00 00 00"},
      {"counted", x400Address, "04 80 41 00 00", "A3 80 41 00 00"},
      {"content cut short", rfc822Name, "16 05 41", "A1 05 41"},
      {"octets behind", rfc822Name, "0C 01 41 FF", "A1 01 41 FF"},
      {"an address passes for an element", iPAddress, "0A 00 00 01", "A7 00 00 01"},
      {"decoded", dNSName, "82 01 41", "A2 01 41"},
      {"last short tag", kTag30, "16 01 41", "BE 01 41"},
      {"first long tag", kTag31, "16 01 41", "BF 1F 01 41"},
      {"two groups", kTag128, "16 01 41", "BF 81 00 01 41"},
      {"one octet", rfc822Name, "16", "16"},
      {"identifier never ends", rfc822Name, "1F 81", "1F 81"},
      {"no length", rfc822Name, "1F 01", "1F 01"},
      {"length cut short", rfc822Name, "04 82 01", "04 82 01"},
      {"length too long", rfc822Name, "04 89 00 00 00 00 00 00 00 00 00",
       "04 89 00 00 00 00 00 00 00 00 00"},
      {"never terminated", rfc822Name, "04 80 41", "04 80 41"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    GeneralName name(row.tag, Blob(row.content));
    EXPECT_EQ(Hex(name.DerEncode()), row.der);
    EXPECT_EQ(Hex(name.GetContent()), row.content);
  }
}

TEST(GeneralName, DecodingKeepsTheWhole) {
  const struct {
    const char* label;
    const char* der;
    DWORD tag;
    const char* outcome = "0";
  } kRows[] = {
      {"host", "82 03 61 62 63", 2},
      {"any class", "30 00", 16},
      {"long identifier", "BF 81 00 00", 128},
      {"content cut short", "86 05 61", 6},
      {"octets behind", "82 00 FF", 2},
      {"nothing", "", 0, "206 DerHelper::GetTag"},
      {"one octet", "82", 0, "206 DerHelper::GetTag"},
      {"length cut short", "82 82 01", 0, "206 DerHelper::GetTag"},
      {"identifier never ends", "9F 81", 0, "205 DerHelper::GetTag"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    const IdentObj der = Blob(row.der);
    GeneralName name;
    EXPECT_EQ(Thrown([&] { name = GeneralName::DerDecode(der); }), row.outcome);
    if (row.outcome != std::string("0")) continue;
    EXPECT_EQ(name.GetTag(), static_cast<GeneralNameTag>(row.tag));
    EXPECT_EQ(Hex(name.GetContent()), row.der);
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
