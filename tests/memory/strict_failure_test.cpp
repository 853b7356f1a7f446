// Each allocation of the strict layer's C functions made to fail in turn: the function refuses with
// ORTHOLAN_REASON_MEMORY, its output is as empty as at the start, and nothing leaks.

#include <gtest/gtest.h>

#include <iterator>
#include <ortholan/strict.hpp>
#include <string>
#include <string_view>

#include "tests/memory/counting_new.h"
#include "tests/support/certificates.h"

namespace Ortholan::testing {
namespace {

// Inputs past what the functions hold without an allocation.
std::string Repeated(const std::string& part, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += part;
  return text;
}
std::string DerOf(const std::string& text) {
  const auto name = ortholan::Name::FromText(text);
  EXPECT_TRUE(name) << text;
  return std::string(name->der().begin(), name->der().end());
}

const std::string kEscaped = "\\41" + Repeated(" name of some length", 3);
const std::string kEscapedName = "CN=" + kEscaped;
const std::string kEscapedUpn = "UPN:" + kEscaped;
const std::string kMany = DerOf("CN=a" + Repeated(", OU=Unit of a name", 40));
const std::string kManyOther = DerOf("CN=a" + Repeated(", OU=unit of a NAME", 40));
const std::string kWide = DerOf("CN=a" + Repeated("+CN=B", 40));
const std::string kWideOther = DerOf("CN=A" + Repeated("+CN=b", 40));
const std::string kLongOid = "1.2" + Repeated(".4294967295", 10) + "=#0500";
const std::string kMarks = Repeated("a name with a value ", 30) + Repeated("\xCC\x87\xCC\xA3", 40);
const std::string kDirectory = Tlv(0xA4, kMany);
const std::string kHosts = Tlv(0x30, Tlv(0xA0, Repeated(Tlv(0x30, Tlv(0x82, "a.b")), 100)));
const std::string kDirectories = Tlv(0x30, Tlv(0xA1, Tlv(0x30, Tlv(0xA4, kWide))));
const std::string kAlternative = Tlv(0x30, Tlv(0x82, "c.a.b"));
const std::string kEmpty;
const std::string kCertificate = CertificateOf("");
const std::string kNamedCertificate = CertificateWithNames(kAlternative);

ortholan_octets Octets(const std::string& octets) { return ortholan::Octets(octets); }
ortholan_text TextOf(std::string_view text) { return {text.data(), text.size()}; }

ortholan_name_view View(const std::string& der) {
  ortholan_name_view view;
  EXPECT_EQ(ORTHOLAN_REASON_NONE,
            ortholan_name_view_read(Octets(der), ORTHOLAN_READ_DER, &view, nullptr));
  return view;
}
const ortholan_name_view kManyView = View(kMany);

ortholan_new_attribute Attribute(const std::string& type, const std::string& text, int32_t joins) {
  ortholan_new_attribute attribute = {};
  attribute.type = TextOf(type);
  attribute.text = TextOf(text);
  attribute.joins_rdn = joins;
  return attribute;
}
const std::string kTypes[] = {"OU", "CN"};
const ortholan_new_attribute kAttributes[] = {Attribute(kTypes[0], kEscaped, 0),
                                              Attribute(kTypes[1], kEscaped, 1)};

// Where a call leaves its result. The size is 0 for a call that failed, and else is not.
struct Out {
  uint8_t octets[8192];
  char* text() { return reinterpret_cast<char*>(octets); }
  size_t size = 77;
  ortholan_refusal refusal = {};
};

// A verdict in the place of a size: nothing can be told without memory.
void Store(ortholan_verdict verdict, Out* out) {
  out->size = verdict == ORTHOLAN_VERDICT_CANNOT_TELL ? 0 : 1;
}
ortholan_reason Match(const std::string& first, const std::string& second, int32_t rule, Out* out) {
  ortholan_match match;
  Store(ortholan_match_names(Octets(first), Octets(second), rule, &match), out);
  return match.reason;
}

ortholan_reason ReadText(std::string_view text, Out* out) {
  return ortholan_rfc4514_read(TextOf(text), nullptr, out->octets, sizeof out->octets, &out->size,
                               &out->refusal);
}
// Without room a value is written where it can be looked at.
ortholan_reason CountText(Out* out) {
  const ortholan_reason reason =
      ortholan_rfc4514_read(TextOf(kEscapedName), nullptr, nullptr, 0, &out->size, &out->refusal);
  return reason == ORTHOLAN_REASON_ROOM ? ORTHOLAN_REASON_NONE : reason;
}
ortholan_reason ReadGeneralName(std::string_view text, Out* out) {
  return ortholan_general_name_from_text(TextOf(text), 0, out->octets, sizeof out->octets,
                                         &out->size, &out->refusal);
}

ortholan_reason Permits(const std::string& constraints, const std::string& subject, Out* out) {
  ortholan_verdict verdict;
  const ortholan_reason reason =
      ortholan_permits_names(Octets(constraints), Octets(subject), Octets(kAlternative), nullptr,
                             &verdict, nullptr, 0, &out->size);
  Store(verdict, out);
  return reason;
}
ortholan_reason PermitsChain(Out* out) {
  const ortholan_octets der = Octets(kCertificate);
  const ortholan_octets chain[] = {der, der, der, der, der, der, der, der};
  ortholan_verdict verdict;
  const ortholan_reason reason =
      ortholan_permits(chain, std::size(chain), nullptr, &verdict, nullptr, 0, nullptr);
  Store(verdict, out);
  return reason;
}
ortholan_reason Say(Out* out) {
  ortholan_finding finding = {};
  finding.reason = ORTHOLAN_REASON_EXCLUDED;
  finding.verdict = ORTHOLAN_VERDICT_NO;
  finding.place = ORTHOLAN_NAME_ALTERNATIVE;
  finding.name = Octets(kDirectory);
  out->size = 0;
  return ortholan_finding_sentence(&finding, out->text(), sizeof out->octets, &out->size);
}

ortholan_reason FindFaults(Out* out) {
  return ortholan_check(Octets(kNamedCertificate), nullptr, 0, &out->size, &out->refusal);
}

struct StrictCall {
  const char* label;
  ortholan_reason (*call)(Out*);
};

const StrictCall kStrictCalls[] = {
    {"what RFC 5280 forbids", FindFaults},
    {"text of a name",
     [](Out* out) {
       return ortholan_rfc4514_write(&kManyView, nullptr, out->text(), sizeof out->octets,
                                     &out->size, &out->refusal);
     }},
    {"size of a name of text", CountText},
    {"name of text, a SET to sort", [](Out* out) { return ReadText("OU=b+CN=a", out); }},
    {"name of text, a long identifier", [](Out* out) { return ReadText(kLongOid, out); }},
    {"built name",
     [](Out* out) {
       return ortholan_name_build(kAttributes, std::size(kAttributes), nullptr, out->octets,
                                  sizeof out->octets, &out->size, &out->refusal);
     }},
    {"replaced attribute",
     [](Out* out) {
       return ortholan_name_view_replace(&kManyView, 0, kAttributes, nullptr, out->octets,
                                         sizeof out->octets, &out->size, &out->refusal);
     }},
    {"inserted attribute",
     [](Out* out) {
       return ortholan_name_view_insert(&kManyView, 0, kAttributes, nullptr, out->octets,
                                        sizeof out->octets, &out->size, &out->refusal);
     }},
    {"same name", [](Out* out) { return Match(kWide, kWideOther, ORTHOLAN_MATCH_RFC5280, out); }},
    {"same name in any order",
     [](Out* out) {
       return Match(kMany, kManyOther, ORTHOLAN_MATCH_RFC5280 | ORTHOLAN_MATCH_ANY_ORDER, out);
     }},
    {"subtree",
     [](Out* out) {
       ortholan_match match;
       Store(
           ortholan_name_within(Octets(kWide), Octets(kWideOther), ORTHOLAN_MATCH_RFC5280, &match),
           out);
       return match.reason;
     }},
    {"key",
     [](Out* out) {
       return ortholan_match_key(Octets(kMany), ORTHOLAN_MATCH_RFC5280, out->octets,
                                 sizeof out->octets, &out->size, &out->refusal);
     }},
    {"prepared text",
     [](Out* out) {
       return ortholan_prepare_text(TextOf(kMarks), out->text(), sizeof out->octets, &out->size,
                                    &out->refusal);
     }},
    {"text of a general name",
     [](Out* out) {
       return ortholan_general_name_to_text(Octets(kDirectory), out->text(), sizeof out->octets,
                                            &out->size, &out->refusal);
     }},
    {"general name of text", [](Out* out) { return ReadGeneralName(kEscapedUpn, out); }},
    {"directory name of text", [](Out* out) { return ReadGeneralName("dirName:OU=b+CN=a", out); }},
    {"GUID of text",
     [](Out* out) { return ReadGeneralName("GUID:00112233-4455-6677-8899-aabbccddeeff", out); }},
    {"alternative names of text",
     [](Out* out) {
       const ortholan_text texts[] = {TextOf(kEscapedUpn)};
       return ortholan_alternative_names_from_text(
           texts, std::size(texts), ORTHOLAN_ALTERNATIVE_NAMES_VALUE, out->octets,
           sizeof out->octets, &out->size, nullptr, &out->refusal);
     }},
    {"names against many hosts", [](Out* out) { return Permits(kHosts, kEmpty, out); }},
    {"names against directories", [](Out* out) { return Permits(kDirectories, kWideOther, out); }},
    {"chain", PermitsChain},
    {"sentence of a finding", Say},
};

TEST(StrictFailure, IsReportedAndLeaksNothing) {
  for (const StrictCall& row : kStrictCalls) {
    SCOPED_TRACE(row.label);
    std::size_t failures = 0;
    for (bool reached_end = false; !reached_end; ++failures) {
      Out out;
      const std::size_t before = LiveBlocks();
      ortholan_reason reason = ORTHOLAN_REASON_NONE;
      {
        const FailingAllocation failing(failures);
        reason = row.call(&out);
      }
      EXPECT_EQ(before, LiveBlocks()) << "allocation " << failures;
      reached_end = !FailingAllocation::Failed();
      // A sort can do without its scratch space.
      EXPECT_TRUE(reason == ORTHOLAN_REASON_NONE ||
                  (!reached_end && reason == ORTHOLAN_REASON_MEMORY))
          << "allocation " << failures << ": " << reason;
      EXPECT_EQ(reason == ORTHOLAN_REASON_NONE, out.size != 0) << "allocation " << failures;
      ASSERT_LT(failures, 1000u);
    }
    EXPECT_GT(failures, 1u) << "the function allocates nothing";
  }
}

}  // namespace
}  // namespace Ortholan::testing
