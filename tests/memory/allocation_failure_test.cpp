// Each allocation of each public operation made to fail in turn: the operation reports it as its
// header says, leaks nothing and leaves what it works on as it was.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <functional>
#include <new>
#include <string>

#include "tests/memory/counting_new.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kUntouched = 77;

// More elements than the encoder keeps without allocating.
std::wstring LongText() {
  std::wstring text = L"C=RU, O=\"Org \"\"A\"\"\", E=a@b";
  for (int i = 0; i < 40; ++i) text += L", OU=\x0418 unit with a name of some length";
  return text;
}

// What operations work on, made anew for each run; nothing of it may be changed by a failure, but
// what the row says.
struct Things {
  std::wstring text = LongText();
  IdentObj name;
  X509Name turned{"O=Org, C=RU", 0, false};
  X509Name small{"C=RU, O=Org", 0, false};
  IdentObj blob = Blob("01 02 03");
  CZEPString string{"abc"};
  CZEPString shared = string;
  CZEPString more{"def"};
  IdentObj sequence = Blob("30 06 02 01 01 02 01 02");
  IdentObj utf8 = Blob("0C 08 61 62 63 64 65 66 67 68");
  IdentObj record = Blob("30 0E 06 03 55 1D 0F 01 01 FF 04 04 03 02 05 A0");
  std::list<IdentObj> children = {Blob("05 00")};
  std::list<SimpleRDN> pairs = {{"2.5.4.3", "a"}, {"1.2.3.4", "b"}};
  CertExtension extension;
  std::list<IdentObj> out;
  std::wstring wide = L"before";
  std::list<std::list<RDNAttr>> rdns;
  std::list<SimpleRDN> read;
  CertExtensionList list;

  Things() {
    X500NameEncoder().Encode(text, name, false);
    extension.oid = "2.5.29.15";
    extension.critical = 1;
    extension.value = Blob("03 02 05 A0");
  }
  // What a failure of any row leaves.
  std::string State() const {
    return Hex(blob) + shared.c_str() + Hex(small) + Hex(wide) + Hex(extension.value) +
           std::to_string(rdns.size() + read.size() + list.size());
  }
};

struct Case {
  const char* label;
  // What an operation that neither throws status 16 nor std::bad_alloc tells of the failure.
  const char* refusal;
  // The operation; its result in a few characters, so that telling it allocates nothing.
  std::string (*run)(Things& things);
};

std::string Told(bool done) { return done ? "true" : "false " + std::to_string(GetLastError()); }
std::string Told(DWORD status) { return std::to_string(status); }

const Case kCases[] = {
    {"IdentObj copy", "-", [](Things& t) { return Told(IdentObj(t.blob).cbData); }},
    {"IdentObj Resize", "-", [](Things& t) { return t.blob.Resize(5), Told(t.blob.cbData); }},
    {"IdentObj from text", "-", [](Things& t) { return t.blob = "abcd", Told(t.blob.cbData); }},
    {"CZEPString", "", [](Things&) { return std::string(CZEPString("text").c_str()); }},
    {"CZEPString append", "",
     [](Things& t) { return t.string += t.more, std::string(t.string.c_str()); }},
    {"CZEPString Format", "",
     [](Things& t) { return t.string.Format("%d %s", 5, "six"), std::string(t.string.c_str()); }},
    {"ASNTGetSequence", "-",
     [](Things& t) { return Told(ASNTGetSequence(t.out, t.sequence.pbData, 8, nullptr)); }},
    {"ASNTGetSequence reported", "16",
     [](Things& t) {
       DWORD status = 0;
       ASNTGetSequence(t.out, t.sequence.pbData, 8, &status);
       return Told(status);
     }},
    {"ASNTPutSequence reported", "16",
     [](Things& t) {
       DWORD status = 0;
       ASNTPutSequence(t.children, 16, &status);
       return Told(status);
     }},
    {"EncodeOid", "-",
     [](Things&) { return Told(DerHelper::EncodeOid("1.2.840.113549.1.9.1").cbData); }},
    {"DecodeUtf8String", "-",
     [](Things& t) { return std::to_string(DerHelper::DecodeUtf8String(t.utf8, false).size()); }},
    {"encode text", "false 8",
     [](Things& t) { return Told(X500NameEncoder().Encode(t.text, t.name, true)); }},
    {"DevideIntoElements", "false 77",
     [](Things& t) {
       std::list<X500NameEncoder::X500NAME_ELEM> elements;
       return Told(X500NameEncoder().DevideIntoElements(t.text, elements));
     }},
    {"encode SimpleRDN", "false 8",
     [](Things& t) { return Told(X500NameEncoder().Encode(t.pairs, t.blob, true)); }},
    {"decode text", "false 77",
     [](Things& t) {
       std::wstring text;
       return Told(X500NameDecoder().Decode(t.name, text, 3));
     }},
    {"decode tree", "false 77",
     [](Things& t) {
       CertNameInfoWrapper tree;
       return Told(X500NameDecoder().Decode(t.name, tree));
     }},
    {"decode pairs", "false 77",
     [](Things& t) {
       std::list<std::pair<std::wstring, std::list<std::wstring>>> pairs;
       return Told(X500NameDecoder().Decode(t.name, pairs, 3));
     }},
    {"TrySetBy", "false 8",
     [](Things& t) { return Told(t.small.TrySetBy("CN=Other Name, O=Org", 0, true)); }},
    {"TryGetX500String", "false 77",
     [](Things& t) { return Told(X509Name(t.name).TryGetX500String(t.wide, 3)); }},
    {"TryGetNameInfo", "false 77",
     [](Things& t) { return Told(X509Name(t.name).TryGetNameInfo(t.rdns)); }},
    {"GetSimpleRDNList", "-",
     [](Things& t) { return t.small.GetSimpleRDNList(t.read, false), Told(DWORD{0}); }},
    {"operator==", "-", [](Things& t) { return Told(t.small == t.turned); }},
    {"GeneralName", "-",
     [](Things&) { return Told(GeneralName::CreateDnsName(L"example.org").DerEncode().cbData); }},
    {"WriteData", "8",
     [](Things& t) {
       int error = 0;
       t.extension.WriteData(&error);
       return std::to_string(error);
     }},
    {"ReadData", "8",
     [](Things& t) {
       int error = 0;
       t.extension.ReadData(t.record.pbData, t.record.cbData, &error);
       return std::to_string(error);
     }},
    {"CertExtensionList", "-", [](Things& t) { return Told(t.list.Update(t.extension)); }},
};

// The result, or how it failed: "bad_alloc", the status of a thrown one, or what `run` tells.
std::string Outcome(const Case& row, std::size_t number, Things* things) {
  SetLastError(kUntouched);
  const FailingAllocation failing(number);
  try {
    return row.run(*things);
  } catch (const std::bad_alloc&) {
    return "bad_alloc";
  } catch (const XZEPStatus& failure) {
    return std::to_string(failure.GetStatus());
  }
}

// Whether the allocation was reached, and what came of its failure.
bool Fails(const Case& row, std::size_t number, const std::string& expected) {
  Things things;
  const std::string before = things.State();
  const std::string outcome = Outcome(row, number, &things);
  const bool failed = FailingAllocation::Failed();
  const bool reported =
      failed && (outcome == "bad_alloc" || outcome == "16" || outcome == row.refusal);
  // A sort can do without its scratch space.
  EXPECT_TRUE(outcome == expected || reported) << "allocation " << number << ": " << outcome;
  EXPECT_TRUE(outcome == expected || things.State() == before) << "allocation " << number;
  return failed;
}

TEST(AllocationFailure, IsReportedAndLeaksNothing) {
  for (const Case& row : kCases) {
    SCOPED_TRACE(row.label);
    Things whole;
    const std::string expected = Outcome(row, static_cast<std::size_t>(-1), &whole);
    EXPECT_NE(row.refusal, expected);
    std::size_t failures = 0;
    for (std::size_t number = 0; number < 1000; ++number) {
      const std::size_t before = LiveBlocks();
      const bool failed = Fails(row, number, expected);
      EXPECT_EQ(LiveBlocks(), before) << "allocation " << number;
      if (!failed) break;
      ++failures;
    }
    EXPECT_GT(failures, 0u) << "the operation allocates nothing";
    EXPECT_LT(failures, 999u);
  }
}

}  // namespace
}  // namespace Ortholan::testing
