// What a finding says, and which come first.

#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/support/certificates.h"

namespace Ortholan::testing {
namespace {

const std::string kNobody = Tlv(0x30, "");
const std::string kIssuer =
    Tlv(0x30, Tlv(0x31, Tlv(0x30, Tlv(0x06, "\x55\x04\x03") + Tlv(0x0C, "i"))));

std::string Subtree(uint8_t tag, const std::string& content) {
  return Tlv(0x30, Tlv(tag, content));
}

struct Row {
  const char* label;
  std::string names;        // of the leaf
  std::string constraints;  // content of the extension's SEQUENCE
  std::vector<const char*> sentences;
};

TEST(NameConstraints, TellsWhichNameWhichRuleWhichSubtree) {
  const std::string permitted = Tlv(0xA0, Subtree(0x82, "example.org"));
  const Row rows[] = {
      {"in no permitted subtree",
       Tlv(0x82, "a.example.com"),
       permitted,
       {"certificate 1: DNS name a.example.com is in no permitted subtree of certificate 2 "
        "(example.org)"}},
      {"of several",
       Tlv(0x82, "a.example.com"),
       Tlv(0xA0, Subtree(0x82, "a.org") + Subtree(0x82, "b.org") + Subtree(0x82, "c.org")),
       {"certificate 1: DNS name a.example.com is in no permitted subtree of certificate 2 (a.org, "
        "and 2 more)"}},
      {"address",
       Tlv(0x87, std::string("\x0A\0\0\1", 4)),
       Tlv(0xA1, Subtree(0x87, std::string("\x0A\0\0\0\xFF\0\0\0", 8))),
       {"certificate 1: IP address 10.0.0.1 is in an excluded subtree of certificate 2 "
        "(10.0.0.0/8)"}},
      {"refusals stand before what cannot be told",
       Tlv(0x82, "bad..example") + Tlv(0x82, "b.net") + Tlv(0x82, "c.net"),
       permitted,
       {"certificate 1: DNS name b.net is in no permitted subtree of certificate 2 (example.org)",
        "certificate 1: DNS name c.net is in no permitted subtree of certificate 2 (example.org)",
        "certificate 1: DNS name bad..example cannot be held against the constraints of "
        "certificate "
        "2: a label of the host name is empty"}},
      {"what cannot be seen",
       Tlv(0x86, "urn:\x1B\\"),
       Tlv(0xA1, Subtree(0x86, "a.org")),
       {"certificate 1: URI urn:\\1B\\\\ cannot be held against the constraints of certificate 2: "
        "a character stands there that the part of the URI cannot have"}},
      {"a subtree of no mailbox",
       Tlv(0x82, "a.org"),
       Tlv(0xA0, Subtree(0x81, "")),
       {"certificate 2: its name constraints cannot be used: a subtree of mailboxes or URIs names "
        "nothing"}},
      {"constraints without lists",
       Tlv(0x82, "a.org"),
       "",
       {"certificate 2: its name constraints cannot be used: at least one element has to be "
        "inside"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    const std::string leaf = Certificate(kIssuer, kNobody, Extension(17, Tlv(0x30, row.names)));
    const std::string authority =
        Certificate(kIssuer, kNobody, Extension(30, Tlv(0x30, row.constraints)));
    const ortholan::Permission permission = ortholan::Permits({leaf, authority}, {1000, 9});
    std::vector<std::string> sentences;
    for (const ortholan::Finding& finding : permission.findings) {
      sentences.push_back(finding.Sentence());
    }
    EXPECT_EQ(sentences, std::vector<std::string>(row.sentences.begin(), row.sentences.end()));
    const ortholan::Permission first = ortholan::Permits({leaf, authority});
    ASSERT_EQ(first.findings.size(), 1u);
    EXPECT_EQ(first.findings[0].Sentence(), row.sentences.front());
    EXPECT_EQ(first.verdict, permission.verdict);
  }
}

}  // namespace
}  // namespace Ortholan::testing
