// What holds for any name: fed back in each of the forms that it is read in, it compares equal, and
// a replaced value is all that changes.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include <fstream>
#include <set>
#include <vector>

#include "tests/names/name_answers.h"
#include "tests/support/failure.h"

namespace Ortholan::testing {
namespace {

std::vector<X509Name> ReadableNames() {
  std::ifstream file(ORTHOLAN_TEST_DATA "/names.txt");
  std::vector<X509Name> names;
  std::list<std::list<RDNAttr>> rdns;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line.front() == '#') continue;
    X509Name name = Blob(line);
    if (name.TryGetNameInfo(rdns) && !rdns.empty()) names.push_back(std::move(name));
  }
  EXPECT_GT(names.size(), 20u);
  return names;
}

bool IsTextOf(const std::wstring& text, bool (*kept)(wchar_t)) {
  for (const wchar_t c : text) {
    if (!kept(c)) return false;
  }
  return true;
}

// UTF-8, as which these forms write, has no unpaired surrogate, and an address loses its CRs.
bool SurvivesUtf8(wchar_t c) { return (c < 0xD800 || c > 0xDFFF) && c != L'\r'; }
// The code page of 8-bit text is Windows' choice, and a NUL ends such text.
bool SurvivesNarrow(wchar_t c) {
  return c != 0 && SurvivesUtf8(c) && (c < 0x80 || ThisRealisation() == kNative);
}

Pairs ReadPairs(const X509Name& name) {
  X500NameDecoder decoder;
  Pairs pairs;
  decoder.Decode(name, pairs, 2);
  return pairs;
}

bool AllText(const X509Name& name, bool (*kept)(wchar_t)) {
  std::wstring text;
  return name.TryGetX500String(text, 1) && IsTextOf(text, kept);
}

// Pairs as attributes: the lines of a value in one text.
std::list<std::list<RDNAttr>> FromPairs(const Pairs& pairs) {
  std::list<std::list<RDNAttr>> rdns;
  for (const auto& [type, values] : pairs) {
    std::string bytes;
    for (const std::wstring& value : values) {
      for (const wchar_t c : &value == &values.front() ? value : L'\n' + value) {
        bytes += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8 & 0xFF)};
      }
    }
    bytes += std::string(4, '\0');
    rdns.push_back({RDNAttr(std::string(type.begin(), type.end()).c_str(), CERT_RDN_UNICODE_STRING,
                            ExactCopy(bytes))});
  }
  return rdns;
}

struct Tally {
  int accepted = 0;
  int refused = 0;
};

// Feeds a form back under both flags; what is accepted equals the name.
template <class... Form>
void FeedBack(const X509Name& name, Tally* tally, const Form&... form) {
  const auto set = [](X509Name* to, bool flag, const auto& source, const auto&... sort) {
    return to->TrySetBy(source, flag, sort...);
  };
  for (const bool flag : {false, true}) {
    X509Name made;
    if (!set(&made, flag, form...)) {
      ++tally->refused;
      continue;
    }
    ++tally->accepted;
    EXPECT_TRUE(made == name) << Hex(made) << "\n" << Hex(name);
  }
}

TEST(ModelLaws, EveryFormComesBack) {
  Tally tree;
  Tally list;
  Tally pairs;
  Tally simple;
  for (const X509Name& name : ReadableNames()) {
    if (!AllText(name, SurvivesUtf8)) continue;
    CertNameInfoWrapper wrapper;
    ASSERT_TRUE(X500NameDecoder().Decode(name, wrapper));
    FeedBack(name, &tree, *static_cast<CERT_NAME_INFO*>(wrapper));
    std::list<std::list<RDNAttr>> rdns;
    name.GetNameInfo(rdns);
    FeedBack(name, &list, rdns);
    FeedBack(name, &pairs, FromPairs(ReadPairs(name)));
    if (!AllText(name, SurvivesNarrow)) continue;
    std::list<SimpleRDN> simple_rdns;
    name.GetSimpleRDNList(simple_rdns, false);
    FeedBack(name, &simple, simple_rdns, true);
  }
  EXPECT_EQ(tree.accepted, list.accepted);
  EXPECT_EQ(tree.refused, list.refused);
  EXPECT_GT(tree.accepted, 40);
  EXPECT_GT(pairs.accepted, 40);
  EXPECT_GT(simple.accepted, 20);
  // Empty values, at least, cannot be written.
  EXPECT_GT(tree.refused, 0);
}

TEST(ModelLaws, AReplacedValueIsAllThatChanges) {
  int replaced = 0;
  for (const X509Name& name : ReadableNames()) {
    if (!AllText(name, SurvivesUtf8)) continue;
    SCOPED_TRACE(Hex(name));
    const Pairs before = ReadPairs(name);
    std::set<std::wstring> seen;
    for (auto pair = before.begin(); pair != before.end(); ++pair) {
      if (!seen.insert(pair->first).second) continue;
      const std::string oid(pair->first.begin(), pair->first.end());
      X509Name changed = name;
      bool set = false;
      const std::string outcome =
          Failure([&] { set = changed.SetSimpleRDN(oid.c_str(), "New 1"); });
      EXPECT_EQ(set, outcome == "returned");
      Pairs expected = before;
      if (set)
        std::next(expected.begin(), std::distance(before.begin(), pair))->second = {L"New 1"};
      EXPECT_TRUE(set || outcome == kUntyped) << outcome;
      EXPECT_EQ(Shown(ReadPairs(changed)), Shown(expected));
      EXPECT_EQ(changed == name, !set || pair->second == std::list<std::wstring>{L"New 1"});
      replaced += set;
    }
  }
  EXPECT_GT(replaced, 50);
}

TEST(ModelLaws, EqualityIsOfItsOwnKind) {
  const std::vector<X509Name> names = ReadableNames();
  for (const X509Name& a : names) {
    EXPECT_TRUE(a == X509Name(a));
    for (const X509Name& b : names) {
      const bool equal = a == b;
      EXPECT_EQ(b == a, equal);
      EXPECT_TRUE(!equal || ReadPairs(a).size() == ReadPairs(b).size());
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
