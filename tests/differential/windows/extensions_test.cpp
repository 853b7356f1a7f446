// Extensions as the library reads and writes them and as the system reads them.

#include <gtest/gtest.h>
#include <ortholan/asn1.h>
#include <ortholan/cert_extension.h>

#include "tests/differential/differences.h"
#include "tests/differential/samples.h"
#include "tests/differential/windows/system_reader.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

struct Case {
  std::string octets;
  CertExtension ours;
  DWORD size;  // 0 where the library refuses
  windows::Extension theirs;
};

// The last child of the record; "" where it cannot be split.
std::string LastChild(const std::string& octets) {
  std::list<IdentObj> children;
  DWORD status = 0;
  ASNTGetSequence(children, octets.data(), static_cast<DWORD>(octets.size()), &status);
  return status == 0 && !children.empty() ? std::string(AsText(children.back())) : "";
}

const Rule<Case> kDiffer[] = {
    {"value in no primitive OCTET STRING", "RFC 5280 4.1; here the last child is not looked at",
     [](const Case& record) {
       return !record.theirs.read && record.size != 0 && LastChild(record.octets)[0] != 0x04;
     }},
    {"indefinite length", "Wine does not nest it",
     [](const Case& record) { return record.octets[1] == '\x80'; }, true},
    {"arc above 28 bits", "goes wrong in Wine",
     [](const Case& record) { return record.theirs.oid.find('-') != std::string::npos; }, true},
    {"arc above 32 bits", "refused here; Wine lets it wrap",
     [](const Case& record) { return record.theirs.read && record.size == 0; }, true},
};

std::string Shown(const std::string& oid, bool critical, std::string_view value) {
  return oid + (critical ? " critical " : " ") + Hex(value);
}
std::string Shown(const windows::Extension& extension) {
  if (!extension.read) return "refused";
  return Shown(extension.oid, extension.critical, extension.value);
}
std::string Shown(const CertExtension& extension) {
  return Shown(std::string(AsText(extension.oid)), extension.critical != 0,
               AsText(extension.value));
}

TEST(ExtensionsBySystem, AreReadAlike) {
  Differences<Case> differ(kDiffer);
  size_t agreed = 0;
  for (const std::string& octets : Samples("extensions.txt")) {
    SCOPED_TRACE(Hex(octets));
    const windows::Extension theirs = windows::ReadExtension(octets);
    Case record = {octets, CertExtension(), 0, theirs};
    int error = 0;
    const IdentObj copy = ExactCopy(octets);
    record.size = record.ours.ReadData(copy.pbData, copy.cbData, &error);
    const std::string ours = record.size != 0 ? Shown(record.ours) : "refused";
    if (ours != Shown(theirs)) {
      EXPECT_TRUE(differ.Explain(record)) << ours << "\nfor " << Shown(theirs);
      continue;
    }
    if (record.size == 0) continue;
    const std::string written(AsText(record.ours.WriteData(&error)));
    EXPECT_EQ(Shown(windows::ReadExtension(written)), ours);
    ++agreed;
  }
  EXPECT_GT(agreed, 25u);
  differ.ExpectEachApplied();
}

}  // namespace
}  // namespace Ortholan::testing
