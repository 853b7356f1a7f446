// Extensions as the library reads and writes them and as OpenSSL reads them: identifier, critical
// flag and value, of real records and of spoiled ones.

#include <gtest/gtest.h>
#include <openssl/asn1err.h>
#include <openssl/x509.h>
#include <ortholan/cert_extension.h>

#include "tests/differential/differences.h"
#include "tests/differential/posix/every_sample.h"
#include "tests/differential/posix/identifiers.h"
#include "tests/differential/posix/openssl_reader.h"
#include "tests/differential/samples.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

using openssl::Part;

// One record in both readings.
struct RecordCase {
  explicit RecordCase(const std::string& record)
      : octets(record), theirs(openssl::ReadExtension(record)) {
    for (const Part& part : openssl::Parts(record, Part::kAttribute)) {
      if (part.depth == 1) children.push_back(part);
    }
    const IdentObj copy = ExactCopy(record);
    size = ours.ReadData(copy.pbData, copy.cbData, nullptr);
  }

  bool taken() const { return size != 0; }
  bool IsRefusedFor(int reason) const { return theirs.reason == reason; }
  std::string octets;
  openssl::Read<X509_EXTENSION> theirs;
  std::vector<Part> children;
  CertExtension ours;
  DWORD size = 0;
};

const Rule<RecordCase> kTheyRefuseRecord[] = {
    {"outer tag", "RFC 5280 4.1; here any constructed element",
     [](const RecordCase& record) {
       return record.IsRefusedFor(ASN1_R_WRONG_TAG) && record.octets[0] != 0x30;
     }},
    {"value in no primitive OCTET STRING", "RFC 5280 4.1; here the last child is not looked at",
     [](const RecordCase& record) {
       return !record.children.empty() && record.children.back().identifier != 0x04;
     }},
    {"BOOLEAN of other than one octet", "X.690 8.2.1; here the flag is set where any octet is",
     [](const RecordCase& record) {
       return record.IsRefusedFor(ASN1_R_BOOLEAN_IS_WRONG_LENGTH) && record.children.size() == 3 &&
              record.children[1].content.size() != 1;
     }},
    {"padded arc", kPaddedReason,
     [](const RecordCase& record) {
       return record.IsRefusedFor(ASN1_R_INVALID_OBJECT_ENCODING) &&
              HasPaddedArc(record.children[0].content);
     }},
    {"length 0 in the long form at an end", "X.690 8.1.3.5; OpenSSL wants an octet behind it",
     [](const RecordCase& record) {
       return record.IsRefusedFor(ASN1_R_HEADER_TOO_LONG) &&
              record.children.back().content.empty() && record.children.back().header_size > 2;
     }},
};

const Rule<RecordCase> kWeRefuseRecord[] = {
    {"BOOLEAN with a long tag", "X.690 8.1.2.2; here its first octet is 01",
     [](const RecordCase& record) {
       return record.children.size() == 3 && record.children[1].identifier == 0x1F;
     }},
    {"arc above 32 bits", kLongArcReason,
     [](const RecordCase& record) { return HasLongArc(record.children[0].content); }},
};

const Rule<RecordCase> kAnswersDiffer[] = {
    {"first octet of an identifier above 119", kFirstOctetReason,
     [](const RecordCase& record) { return HasOtherFirstArc(record.children[0].content); }},
    {"value in a constructed OCTET STRING", "not in DER, X.690 10.2; here its content as it stands",
     [](const RecordCase& record) { return record.children.back().identifier == 0x24; }},
};

// Records that show what none of tests/data does.
constexpr Crafted kCraftedRecords[] = {
    {"long tag of a BOOLEAN", "30 0A 06 01 2A 1F 01 01 FF 04 01 00"},
    {"long form of length 0", "30 06 06 01 2A 04 81 00"},
    {"arc of 33 bits", "30 0B 06 06 2A 90 80 80 80 00 04 01 00"},
    {"BOOLEAN of no octet", "30 08 06 01 2A 01 00 04 01 00"},
};

std::string Shown(const std::string& oid, bool critical, std::string_view value) {
  return oid + (critical ? " critical " : " ") + Hex(value);
}
std::string Shown(const X509_EXTENSION* extension) {
  // OpenSSL's readers of an extension take it as changeable.
  auto* const theirs = const_cast<X509_EXTENSION*>(extension);
  return Shown(openssl::Dotted(X509_EXTENSION_get_object(theirs)),
               X509_EXTENSION_get_critical(theirs) != 0,
               openssl::Content(X509_EXTENSION_get_data(theirs)));
}

void ExpectSame(const RecordCase& record, Differences<RecordCase>* answers_differ) {
  const CertExtension& ours = record.ours;
  const std::string shown =
      Shown(std::string(AsText(ours.oid)), ours.critical != 0, AsText(ours.value));
  const std::string theirs = Shown(record.theirs.value.get());
  EXPECT_EQ(record.size, record.theirs.size);
  if (shown != theirs) {
    EXPECT_TRUE(answers_differ->Explain(record)) << shown << "\nfor " << theirs;
    return;
  }
  CertExtension copy(ours);
  int error = 0;
  const IdentObj written = copy.WriteData(&error);
  const openssl::Read<X509_EXTENSION> read = openssl::ReadExtension(std::string(AsText(written)));
  ASSERT_NE(read.value, nullptr);
  EXPECT_EQ(read.size, written.cbData);
  EXPECT_EQ(Shown(read.value.get()), theirs);
}

TEST(ExtensionsByOpenssl, AreReadAlike) {
  Differences<RecordCase> answers_differ(kAnswersDiffer);
  Comparison<RecordCase>(kTheyRefuseRecord, kWeRefuseRecord)
      .Run("extensions.txt", kCraftedRecords, 25, 2000,
           [&](const RecordCase& record) { ExpectSame(record, &answers_differ); });
  answers_differ.ExpectEachApplied();
}

}  // namespace
}  // namespace Ortholan::testing
