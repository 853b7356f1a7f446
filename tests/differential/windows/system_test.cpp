// Names, general names and extensions as the library answers and as the system's own calls do: a
// difference has its row in system_differences.tsv. Spoiled octets are left out, for which Wine's
// calls crash, and so are texts that are refused here, for some of which they never return.

#include <ortholan/asn1.h>
#include <ortholan/cert_extension.h>
#include <ortholan/general_name.h>

#include <algorithm>
#include <regex>

#include "tests/differential/our_name.h"
#include "tests/differential/samples.h"
#include "tests/differential/windows/system_reader.h"
#include "tests/names/name_answers.h"
#include "tests/support/thrown.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kByIdentifier = CERT_OID_NAME_STR | CERT_NAME_STR_CRLF_FLAG;
constexpr DWORD kByKey = CERT_X500_NAME_STR | CERT_NAME_STR_CRLF_FLAG;

std::string NameValues(const std::string& octets) {
  const OurName name(octets);
  if (!name.has_tree) return kRefused;
  std::string shown;
  for (const OurAttribute& attribute : name.tree) {
    shown += attribute.type;
    shown += attribute.decoded ? '=' + Shown(attribute.text) : '#' + Hex(attribute.encoding);
    shown += ';';
  }
  return shown;
}

std::string NameText(const std::string& octets, DWORD options) {
  const std::string text = Rendered(ExactCopy(octets), options);
  return text.compare(0, kRefused.size(), kRefused) == 0 ? "" : text;
}
std::string NameFrom(const std::wstring& text) {
  IdentObj der;
  return X500NameEncoder().Encode(text, der, false) ? Hex(der) : kRefused;
}

std::string Content(const IdentObj& element) {
  ASNT_ASN_STRUCT_INFO info;
  if (ASNTGetStructInfo(info, element.pbData, element.cbData) != 0) return kRefused;
  return {reinterpret_cast<const char*>(info.content), info.length};
}

std::string ShownGeneralName(const std::string& octets) {
  std::string shown;
  const auto read = [&] {
    GeneralName name = GeneralName::DerDecode(ExactCopy(octets));
    const bool as_octets = name.GetTag() == directoryName || name.GetTag() == iPAddress;
    const std::string text = Shown(name.ToString(0, 0));
    shown = std::to_string(name.GetTag()) + ' ';
    shown += as_octets ? Hex(Content(name.GetContent())) : text;
  };
  return Thrown(read) == "0" ? shown : kRefused;
}

std::string ShownExtension(const std::string& octets) {
  CertExtension extension;
  const IdentObj copy = ExactCopy(octets);
  if (extension.ReadData(copy.pbData, copy.cbData, nullptr) == 0) return kRefused;
  return std::string(AsText(extension.oid)) + (extension.critical != 0 ? " critical " : " ") +
         Hex(extension.value);
}

std::vector<std::string> Children(const std::string& element) {
  std::list<IdentObj> children;
  DWORD status = 0;
  ASNTGetSequence(children, element.data(), static_cast<DWORD>(element.size()), &status);
  std::vector<std::string> octets;
  for (const IdentObj& child : children) octets.emplace_back(AsText(child));
  return octets;
}

// A row of system_differences.tsv and how many differences it explains.
struct Difference {
  explicit Difference(const VectorRow& row)
      : label(row.text("label")),
        asked(row.text("asked")),
        input(row.text("input")),
        answers(row.text("answers")),
        rare(row.has("rare")) {}

  std::string label;
  std::string asked;
  std::regex input;
  std::regex answers;
  bool rare;  // not needed by every run on tests/data
  size_t count = 0;
};

class SystemAnswers : public ::testing::Test {
 protected:
  // Whether both answers are the same; otherwise a row of the table has to tell why.
  bool IsSame(const std::string& asked, const std::string& input, const std::string& ours,
              const std::string& theirs) {
    same_ += ours == theirs ? 1u : 0u;
    if (ours == theirs) return true;
    const std::string answers = ours + " / " + theirs;
    const auto rule = std::find_if(rules_.begin(), rules_.end(), [&](const Difference& each) {
      return each.asked == asked && std::regex_search(input, each.input) &&
             std::regex_search(answers, each.answers);
    });
    if (rule != rules_.end()) ++rule->count;
    EXPECT_TRUE(rule != rules_.end()) << asked << ": " << input << '\n' << answers;
    return false;
  }
  bool HasSameText(const std::string& octets, DWORD options) {
    return IsSame("name", Hex(octets), NameText(octets, options),
                  windows::NameText(octets, options));
  }
  void IsWrittenAlike(const std::wstring& text) {
    const std::string ours = NameFrom(text);
    if (ours == kRefused) return;
    IsSame("from text", Shown(text), ours, windows::NameFrom(text, CERT_X500_NAME_STR));
  }

  size_t same_ = 0;
  std::vector<Difference> rules_ = [] {
    const std::vector<VectorRow> rows = ReadVectors("system_differences.tsv");
    return std::vector<Difference>(rows.begin(), rows.end());
  }();
};

TEST_F(SystemAnswers, AreTheLibrarys) {
  for (const std::string& octets : Samples("names.txt")) {
    bool same = true;
    for (const std::string& rdn : Children(octets)) {
      const std::string name(AsText(ASNTPutSequence({ExactCopy(rdn)}, 16)));
      IsSame("name", Hex(name), NameValues(name), windows::NameValues(name));
      same = HasSameText(name, kByIdentifier) && HasSameText(name, kByKey) && same;
    }
    std::wstring text;
    const bool decoded = X500NameDecoder().Decode(ExactCopy(octets), text, kStyleKeys);
    if (same && decoded && HasSameText(octets, kByKey)) IsWrittenAlike(text);
  }
  for (const std::string& octets : Samples("general-names.txt")) {
    IsSame("general name", Hex(octets), ShownGeneralName(octets), windows::GeneralName(octets));
  }
  for (const std::string& octets : Samples("extensions.txt")) {
    IsSame("extension", Hex(octets), ShownExtension(octets), windows::Extension(octets));
  }
  for (const VectorRow& row : ReadVectors("names.tsv")) {
    if (row.text("call") == "encode" && !row.has("options")) IsWrittenAlike(row.wide("in"));
  }
  EXPECT_GT(same_, 200u);
  for (const Difference& rule : rules_) {
    EXPECT_TRUE(rule.rare || rule.count > 0) << rule.label << ": explains nothing";
  }
}

}  // namespace
}  // namespace Ortholan::testing
