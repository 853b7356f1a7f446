// Certificates, requests and CRLs: their parts, and PEM text.
#include "tests/support/certificates.h"

#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/strict/reasons.h"

namespace Ortholan::testing {
namespace {

ortholan_octets View(const std::string& octets) {
  return {reinterpret_cast<const uint8_t*>(octets.data()), octets.size()};
}
ortholan_text Text(const std::string& text) { return {text.data(), text.size()}; }

TEST(CertificateView, FindsExtensions) {
  const std::string der = CertificateWithNames("\x05");
  ortholan_certificate_view certificate;
  ASSERT_EQ(ortholan_certificate_view_read(View(der), ORTHOLAN_READ_DER, &certificate, nullptr), 0);
  EXPECT_EQ(certificate.kind, ORTHOLAN_CERTIFICATE);
  EXPECT_EQ(certificate.serial.data[0], 1);
  EXPECT_EQ(certificate.extension_count, 1u);
  ortholan_extension_view extension;
  EXPECT_EQ(
      ortholan_certificate_view_extension(&certificate, View("\x55\x1D\x11"), &extension, nullptr),
      0);
  EXPECT_EQ(extension.value.size, 1u);
  EXPECT_EQ(extension.critical, 0);
  EXPECT_EQ(
      ortholan_certificate_view_extension(&certificate, View("\x55\x1D\x12"), &extension, nullptr),
      ORTHOLAN_REASON_NOT_FOUND);
  std::size_t offset = 0;
  EXPECT_EQ(ortholan_certificate_view_next_extension(&certificate, &offset, &extension), 0);
  EXPECT_EQ(ortholan_certificate_view_next_extension(&certificate, &offset, &extension),
            ORTHOLAN_REASON_NOT_FOUND);
}

// Records as OpenSSL writes them for keyUsage, critical, and basicConstraints.
TEST(ExtensionLists, AreChangedAndWritten) {
  const std::string usage("\x30\x0E\x06\x03\x55\x1D\x0F\x01\x01\xFF\x04\x04\x03\x02\x05\xA0", 16);
  const std::string constraints("\x30\x09\x06\x03\x55\x1D\x13\x04\x02\x30\x00", 11);
  const std::string one = "\x30\x10" + usage;
  std::vector<ortholan::Extension> list = ortholan::ReadExtensions(one).value();
  EXPECT_TRUE(list.at(0).critical);
  list.push_back({std::string_view("\x55\x1D\x13"), std::string_view("\x30\x00", 2)});
  const auto both = ortholan::WriteExtensions(list).value();
  EXPECT_TRUE(ortholan::Octets(both) == "\x30\x1B" + usage + constraints);
  list.erase(list.begin());
  list[0].value = {};
  list[0].oid = std::string_view("\x2A\x03");
  EXPECT_TRUE(ortholan::Octets(ortholan::WriteExtensions(list).value()) ==
              std::string_view("\x30\x08\x30\x06\x06\x02\x2A\x03\x04\x00", 10));
}

TEST(ExtensionLists, AreRefusedWithTheNumber) {
  const std::string_view usage = "\x55\x1D\x0F";
  const struct {
    std::vector<ortholan::Extension> list;
    ortholan_reason reason;
    uint32_t met;
  } kRows[] = {
      {{}, ORTHOLAN_REASON_EMPTY, 0},
      {{{usage, usage}, {{}, usage}}, ORTHOLAN_REASON_OID, 1},
      {{{std::string_view("\x55\x9D"), usage}}, ORTHOLAN_REASON_OID, 0},
      {{{usage, {}}, {std::string_view("\x2A"), {}}, {usage, usage}},
       ORTHOLAN_REASON_DUPLICATE_EXTENSION,
       2},
  };
  for (const auto& row : kRows) {
    const ortholan::Refusal refusal = ortholan::WriteExtensions(row.list).refusal();
    EXPECT_EQ(refusal.reason, row.reason);
    EXPECT_EQ(refusal.met, row.met);
  }
  EXPECT_EQ(ortholan::ReadExtensions(std::string_view("\x30\x00", 2)).refusal().reason,
            ORTHOLAN_REASON_EMPTY);
}

TEST(CertificateView, ShowsTimes) {
  const struct {
    const char* element;
    const char* text;
  } kRows[] = {
      {"\x17\x0D"
       "491231235959Z",
       "2049-12-31T23:59:59Z"},
      {"\x17\x0D"
       "500101000000Z",
       "1950-01-01T00:00:00Z"},
      {"\x18\x0F"
       "20500101000000Z",
       "2050-01-01T00:00:00Z"},
      {"\x18\x0F"
       "20000229000000Z",
       "2000-02-29T00:00:00Z"},
      {"\x18\x0F"
       "21000229000000Z",
       ""},
      {"\x17\x0D"
       "260431000000Z",
       ""},
      {"\x17\x0D"
       "260100000000Z",
       ""},
      {"\x17\x0D"
       "260101240000Z",
       ""},
      {"\x17\x0B"
       "2601010000Z",
       ""},
      {"\x17\x11"
       "260101000000+0000",
       ""},
      {"\x17\x0D"
       "2601010000a0Z",
       ""},
      {"\x16\x0D"
       "260101000000Z",
       ""},
  };
  for (const auto& row : kRows) {
    char text[32];
    std::size_t size = 0;
    const ortholan_reason reason =
        ortholan_time_to_text(View(row.element), text, sizeof text, &size);
    EXPECT_EQ(std::string(text, size), row.text);
    EXPECT_EQ(reason == ORTHOLAN_REASON_TIME, *row.text == '\0') << row.text;
  }
}

// The octets of all blocks, each behind its label, and why the text is refused at the end.
std::string BlocksOf(const std::string& text) {
  std::string found;
  std::size_t offset = 0;
  ortholan_pem_block block;
  ortholan_refusal refusal;
  ortholan_reason reason;
  while ((reason = ortholan_pem_next(Text(text), &offset, &block, &refusal)) == 0) {
    uint8_t octets[16];
    std::size_t size = 0;
    EXPECT_EQ(ortholan_pem_octets(&block, octets, sizeof octets, &size), 0);
    found += std::string(block.label.data, block.label.size) + "=" +
             std::string(octets, octets + size) + ";";
  }
  if (reason == ORTHOLAN_REASON_NOT_FOUND) return found;
  return found + ReasonName(reason) + "@" + std::to_string(refusal.offset);
}

TEST(Pem, IsReadBlockByBlock) {
  const std::string a = "-----BEGIN A-----\nYWI=\n-----END A-----\n";
  const struct {
    std::string text;
    const char* blocks;
  } kRows[] = {
      {"", ""},
      {"nothing -----BEGIN A-----", ""},
      {a, "A=ab;"},
      {"before\n" + a + "between\r\n" + a + "behind", "A=ab;A=ab;"},
      {"-----BEGIN X Y-----\r\nYW\r\n Jj \r\n-----END X Y-----", "X Y=abc;"},
      {"-----BEGIN A-----\n-----END A-----", "A=;"},
      {"before\r-----BEGIN A-----\rYWI=\r-----END A-----\rbehind", "A=ab;"},
      {a + "-----BEGIN A-----\nYWI=\n", "A=ab;PEM_END@62"},
      {"-----BEGIN A-----\nYWI=\n-----END B-----\n", "PEM_LABEL@32"},
      {"-----BEGIN A-----\nYWI=\n-----BEGIN A-----\n", "PEM_END@23"},
      {"-----BEGIN A-----\nY*I=\n-----END A-----\n", "BASE64@19"},
      {"-----BEGIN A-----\nYWI\n-----END A-----\n", "BASE64@22"},
      {"-----BEGIN A-----\nYWJ=\n-----END A-----\n", "BASE64@23"},
      {"-----BEGIN A-----\nYQ=a\n-----END A-----\n", "BASE64@21"},
      {"-----BEGIN A-----\nKey: x\n\nYWI=\n-----END A-----\n", "BASE64@21"},
  };
  for (const auto& row : kRows) EXPECT_EQ(BlocksOf(row.text), row.blocks) << row.text;
}

}  // namespace
}  // namespace Ortholan::testing
