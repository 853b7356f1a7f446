// Sizes whose octets are not there, and lengths that are refused before a character is read.

#include <gtest/gtest.h>
#include <ortholan/asn1.h>
#include <ortholan/cert_extension.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>
#include <ortholan/name_encoder.h>
#include <ortholan/x509_name.h>

#include "names/attribute_table.h"
#include "tests/support/failure.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

// A blob, or what is made of one, with `size` octets that are not there.
template <class Type>
struct Lacking : Type {
  explicit Lacking(DWORD size) { this->cbData = size; }
  ~Lacking() { this->cbData = 0; }
};

TEST(MissingOctets, AreWrittenAsZeros) {
  char cn[] = "2.5.4.3";
  CERT_RDN_ATTR attr = {cn, CERT_RDN_UTF8_STRING, {2, nullptr}};
  CERT_RDN rdn = {1, &attr};
  IdentObj der;
  ASSERT_TRUE(X500NameEncoder().Encode(CERT_NAME_INFO{1, &rdn}, der));
  EXPECT_EQ(Hex(der), "30 0F 31 0D 30 0B 06 03 55 04 03 1E 04 00 00 00 00");

  EXPECT_EQ(Hex(DerHelper::EncodeOctetString(Lacking<IdentObj>(2))), "04 02 00 00");
  IdentObj shrunk;
  shrunk.cbData = 2;
  shrunk.Resize(1);
  EXPECT_EQ(Hex(shrunk), "00");
  CertExtension extension;
  extension.oid = "1.2";
  extension.value.cbData = 2;
  EXPECT_EQ(Hex(extension.WriteData(nullptr)), "30 07 06 01 2A 04 02 00 00");
  extension.value.cbData = 0;
}

TEST(MissingOctets, AreNotNone) {
  CertExtensionList list;
  list.emplace_back();
  list.front().oid.cbData = 3;
  CertExtension found;
  EXPECT_FALSE(list.FindExtension("", found));
  EXPECT_TRUE(list.Update(CertExtension()));
  EXPECT_EQ(list.size(), 2u);
  list.front().oid.cbData = 0;

  const Lacking<X509Name> name(3);
  EXPECT_EQ(Failure([&] { (void)(X509Name() == name); }), kUntyped);
  EXPECT_EQ(Failure([&] { (void)(name == X509Name()); }), kUntyped);

  std::string text = "before";
  EXPECT_FALSE(name.TryGetX500String(text, 3));
  EXPECT_EQ(text, "before");
  CZEPString value("before");
  X509Name::GetRDNAttrValueString(CERT_RDN_ATTR{nullptr, CERT_RDN_IA5_STRING, {2, nullptr}}, value);
  EXPECT_STREQ(value.c_str(), "before");

  EXPECT_EQ(CZEPString(nullptr, 5).GetLength(), 0);
  for (const bool constructed : {false, true}) {
    DWORD status = 0;
    EXPECT_EQ(ASNTGetIndefiniteLength(nullptr, 5, constructed, &status), 0u);
    EXPECT_EQ(status, 206u);
    EXPECT_EQ(ASNTGetIndefiniteLength(nullptr, 0, constructed, &status), 0u);
    EXPECT_EQ(status, 0u);
  }
}

TEST(MissingOctets, AreNoElements) {
  std::list<IdentObj> elements = {Blob("05 00")};
  EXPECT_EQ(ASNTSplitElements(elements, nullptr, 2), 206u);
  EXPECT_TRUE(elements.empty());
  elements = {Blob("05 00")};
  EXPECT_EQ(ASNTSplitElements(elements, nullptr, 0), 0u);
  EXPECT_TRUE(elements.empty());
}

TEST(LongTexts, AreRefusedByTheirLengthAlone) {
  IdentObj huge = Blob("0C 84 80 00 00 00");
  huge.cbData += 0x80000000u;
  EXPECT_EQ(Thrown([&] { DerHelper::DecodeUtf8String(huge, false); }),
            "28 DerHelper::ToWString MultiByteToWideChar(1)");
  EXPECT_EQ(AttributePriority(std::wstring_view(L"2.5.4.3", 0x3FFFFFFE)), 0);
  EXPECT_EQ(AttributePriority(std::wstring_view(L"2.5.4.3", 0x3FFFFFFF)), 99);
}

TEST(InnerNul, EndsWideTextAlone) {
  EXPECT_EQ(GetAttrPriority(CZEPString("2.5.4.3\0x", 9)), 99);
  EXPECT_EQ(GetAttrPriority(std::wstring(L"2.5.4.3\0x", 9)), 0);
}

TEST(Format, KnowsTheSizePrefixesOfWindows) {
  CZEPString text;
  text.Format("%I64d|%-5I64X|%Fs|%4Nd|%hs|%%Fs|%.1F|%F", int64_t{1} << 40, uint64_t{0xAB}, "far", 7,
              "h", 1.25, 2.5);
  EXPECT_STREQ(text.c_str(), "1099511627776|AB   |far|   7|h|%Fs|1.2|2.500000");
  // One prefix alone leaves the least room.
  text.Format("%I64d", int64_t{1});
  EXPECT_STREQ(text.c_str(), "1");
}

TEST(GeneralNameText, OfAnIdentifierIsInTheHostsCodePage) {
  GeneralName name(registeredID, Blob("0C 02 D0 90"));
  EXPECT_EQ(Hex(name.ToString(0, 0)), Hex(DerHelper::ToWString("\xD0\x90", 0)));
}

}  // namespace
}  // namespace Ortholan::testing
