// The classes of names: the rows of name_model.tsv, and what their objects do beside.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include "tests/names/name_answers.h"
#include "tests/support/calls.h"
#include "tests/support/failure.h"

namespace Ortholan::testing {
namespace {

using PairList = std::list<SimpleRDN>;

X509Name Name(const VectorRow& row) { return ExactCopy(row.octets("name")); }

// A cell as a C string; "null" is a null pointer.
const char* Pointer(const VectorRow& row, std::string_view column) {
  const std::string& text = row.text(column);
  return text == "null" ? nullptr : text.c_str();
}

template <class SomePairs>
std::string Shown(const SomePairs& pairs) {
  std::string shown;
  for (const SimpleRDN& pair : pairs) {
    shown += pair.key.c_str() + ('=' + std::string(pair.value.c_str())) + ';';
  }
  return shown;
}

std::string Quoted(const VectorRow& row) {
  CZEPString out = "old";
  X509Name::QuoteString(Pointer(row, "a"), out);
  CZEPString in_place = Pointer(row, "a");
  X509Name::QuoteString(in_place);
  EXPECT_STREQ(in_place.c_str(), out.c_str());
  return out.c_str();
}

std::string Unquoted(const VectorRow& row) {
  CZEPString out = "old";
  X509Name::UnquoteString(Pointer(row, "a"), out);
  CZEPString in_place = Pointer(row, "a");
  X509Name::UnquoteString(in_place);
  EXPECT_STREQ(in_place.c_str(), out.c_str());
  return out.c_str();
}

std::string Formatted(const VectorRow& row) {
  CZEPString out = "old";
  X509Name::FormatRDNAttr(Pointer(row, "a"), Pointer(row, "b"), out);
  return out.c_str();
}

// By all three ways; a refusal leaves what was there.
std::string Made(const VectorRow& row) {
  const char* const key = Pointer(row, "a");
  const char* const value = Pointer(row, "b");
  RDNAttr made("1.2.3", 99, Blob("01 02"));
  RDNAttr set = made;
  const std::string outcome = Failure([&] { X509Name::MakeRDNAttr(key, value, made); });
  EXPECT_EQ(Failure([&] { set.SetBy(key, value); }), outcome);
  EXPECT_EQ(Failure([&] { RDNAttr(key, value); }), outcome);
  EXPECT_EQ(Hex(set.value), Hex(made.value));
  EXPECT_STREQ(set.oid.c_str(), made.oid.c_str());
  if (outcome != "returned") {
    EXPECT_EQ(made.oid.c_str() + Hex(made.value), "1.2.301 02");
    return outcome;
  }
  EXPECT_EQ(made.valueType, DWORD{CERT_RDN_UNICODE_STRING});
  CZEPString text;
  made.GetValueString(text);
  return std::string(made.oid.c_str()) + ' ' + text.c_str();
}

// By all four ways, which leave the old text where there is none.
std::string ValueText(const VectorRow& row) {
  const RDNAttr attr("2.5.4.3", static_cast<DWORD>(row.number("a")), ExactCopy(row.octets("b")));
  char oid[] = "2.5.4.3";
  const CERT_RDN_ATTR raw = {oid, attr.valueType, attr.value};
  CZEPString texts[] = {"old", "old", "old"};
  std::wstring wide = L"old";
  X509Name::GetRDNAttrValueString(attr, texts[0]);
  attr.GetValueString(texts[1]);
  X509Name::GetRDNAttrValueString(raw, texts[2]);
  X509Name::GetRDNAttrValueString(raw, wide);
  for (const CZEPString& text : texts) EXPECT_EQ(testing::Shown(wide), text.c_str());
  return texts[0].c_str();
}

// The name made of a text by each way, as DER, or behind "TEXT" as dotted text; or the refusal,
// which empties the name or leaves it.
std::string FromText(const VectorRow& row, bool sort) {
  constexpr char kOld[] = "30 00";
  const char* const text = Pointer(row, "a");
  const auto options = static_cast<DWORD>(row.number("b"));
  X509Name tried = Blob(kOld);
  SetLastError(kUntouched);
  const bool done = tried.TrySetBy(text, options, sort);
  const std::string refusal = Refusal();
  X509Name set = Blob(kOld);
  const std::string outcome = Failure([&] { set.SetBy(text, options, sort); });
  X509Name made;
  EXPECT_EQ(Failure([&] { made = X509Name(text, options, sort); }), outcome);
  EXPECT_EQ(outcome, done ? "returned" : kUntyped);
  EXPECT_EQ(Hex(set), done ? Hex(tried) : "");
  EXPECT_EQ(Hex(made), Hex(set));
  EXPECT_TRUE(done || Hex(tried) == kOld);
  if (!done) return refusal;
  return row.text("out").compare(0, 5, "TEXT ") == 0 ? "TEXT " + Rendered(tried, 2) : Hex(tried);
}

std::string FromTextAsItStands(const VectorRow& row) { return FromText(row, false); }
std::string FromTextSorted(const VectorRow& row) { return FromText(row, true); }

// The wide text and the 8-bit one, by each reader; or the refusal and what wide text was left.
std::string Read(const VectorRow& row) {
  const X509Name name = Name(row);
  const auto options = static_cast<DWORD>(row.number("a"));
  std::wstring wide = L"old";
  std::string narrow = "old";
  CZEPString shared = "old";
  const std::string outcome = Failure([&] { name.GetX500String(wide, options); });
  EXPECT_EQ(Failure([&] { name.GetX500String(narrow, options); }), outcome);
  EXPECT_EQ(Failure([&] { name.GetX500String(shared, options); }), outcome);
  EXPECT_EQ(shared.c_str(), narrow);
  const bool readable = outcome == "returned";
  std::string refusal;
  const auto tried = [&](auto out) {
    SetLastError(kUntouched);
    EXPECT_EQ(name.TryGetX500String(out, options), readable);
    refusal = Refusal();
    return out;
  };
  EXPECT_EQ(tried(std::wstring(L"old")), readable ? wide : L"old");
  EXPECT_EQ(tried(std::string("old")), readable ? narrow : "old");
  EXPECT_STREQ(tried(CZEPString("old")).c_str(), readable ? narrow.c_str() : "old");
  if (readable) return testing::Shown(wide) + " / " + narrow;
  EXPECT_EQ(outcome + narrow, kUntyped);
  return refusal + " after " + testing::Shown(wide);
}

std::string Attributes(const VectorRow& row) {
  const X509Name name = Name(row);
  std::list<std::list<RDNAttr>> out = {{RDNAttr(), RDNAttr()}, {}};
  const bool readable = name.TryGetNameInfo(out);
  EXPECT_TRUE(readable || out.size() == 2);
  const std::string outcome = Failure([&] { name.GetNameInfo(out); });
  std::string shown;
  for (const std::list<RDNAttr>& rdn : out) {
    EXPECT_EQ(rdn.size(), 1u);
    const RDNAttr& attr = rdn.front();
    shown +=
        attr.oid.c_str() + (' ' + std::to_string(attr.valueType)) + ' ' + Hex(attr.value) + ';';
  }
  return readable && outcome == "returned" ? shown : outcome + shown;
}

std::string Pairs(const VectorRow& row) {
  const X509Name name = Name(row);
  PairList tried = {{"old", "old"}};
  const bool readable = name.TryGetSimpleRDNList(tried);
  std::vector<SimpleRDN> vector = {{"old", "old"}};
  const std::string outcome = Failure([&] { name.GetSimpleRDNVector(vector); });
  EXPECT_EQ(Shown(tried), readable ? Shown(vector) : "old=old;");
  for (const bool flag : {false, true}) {
    PairList list = {{"old", "old"}};
    EXPECT_EQ(Failure([&] { name.GetSimpleRDNList(list, flag); }), outcome);
    EXPECT_EQ(Shown(list), Shown(vector));
  }
  return outcome == "returned" ? Shown(vector) : outcome + Shown(vector);
}

std::string Got(const VectorRow& row) {
  const X509Name name = Name(row);
  bool found = false;
  bool found_wide = false;
  CZEPString text = "old";
  std::wstring wide = L"old";
  const std::string outcome = Failure([&] { found = name.GetSimpleRDN(Pointer(row, "a"), text); });
  EXPECT_EQ(Failure([&] { found_wide = name.GetSimpleRDN(Pointer(row, "a"), wide); }), outcome);
  EXPECT_EQ(found, found_wide);
  EXPECT_EQ(testing::Shown(wide), text.c_str());
  if (found) return std::string("found ") + text.c_str();
  EXPECT_STREQ(text.c_str(), "");
  return outcome == "returned" ? "none" : outcome;
}

// The text afterwards, "false" and the last error, or the failure.
std::string Replaced(const VectorRow& row) {
  X509Name name = Name(row);
  const SimpleRDN pair(Pointer(row, "a"), Pointer(row, "b"));
  bool set = false;
  const std::string outcome = Failure([&] {
    SetLastError(kUntouched);
    set = name.SetSimpleRDN(Pointer(row, "a"), Pointer(row, "b"));
  });
  const std::string refusal = Refusal();
  EXPECT_TRUE(set || Hex(name) == Hex(row.octets("name"))) << Hex(name);
  X509Name again = Name(row);
  EXPECT_EQ(Failure([&] { EXPECT_EQ(again.SetSimpleRDN(pair), set); }), outcome);
  EXPECT_EQ(Hex(again), Hex(name));
  if (outcome != "returned") return outcome;
  return set ? Rendered(name, 2) : "false" + refusal.substr(kRefused.size());
}

// "a=1;b=2".
PairList PairsOf(const std::string& text) {
  PairList pairs;
  for (size_t begin = 0, end; begin < text.size(); begin = end + 1) {
    end = std::min(text.find(';', begin), text.size());
    const size_t equals = text.find('=', begin);
    pairs.emplace_back(text.substr(begin, equals - begin).c_str(),
                       text.substr(equals + 1, end - equals - 1).c_str());
  }
  return pairs;
}

std::string Merged(const VectorRow& row) {
  const std::string& lists = row.text("name");
  const size_t middle = lists.find('/');
  PairList target = PairsOf(lists.substr(0, middle));
  PairList source = PairsOf(lists.substr(middle + 1));
  const std::string before = Shown(source);
  X509Name::MergeRDNAtributes(target, source, Pointer(row, "a"));
  EXPECT_EQ(Shown(source), before);
  return Shown(target);
}

std::string Comparison(const X509Name& a, const X509Name& b) {
  bool equal = false;
  bool unequal = false;
  const std::string outcome = Failure([&] { equal = a == b; });
  EXPECT_EQ(Failure([&] { unequal = a != b; }), outcome);
  if (outcome != "returned") return outcome;
  EXPECT_NE(equal, unequal);
  return equal ? "equal" : "not equal";
}

std::string Compared(const VectorRow& row) {
  const X509Name a = Name(row);
  const X509Name b = ExactCopy(row.octets("a"));
  const std::string answer = Comparison(a, b);
  EXPECT_EQ(Comparison(b, a), answer);
  return answer;
}

TEST(NameModel, Answers) {
  RunCalls("name_model.tsv", {{"quote", Quoted},
                              {"unquote", Unquoted},
                              {"format", Formatted},
                              {"make", Made},
                              {"value", ValueText},
                              {"set", FromTextAsItStands},
                              {"sort", FromTextSorted},
                              {"read", Read},
                              {"attributes", Attributes},
                              {"list", Pairs},
                              {"get", Got},
                              {"replace", Replaced},
                              {"merge", Merged},
                              {"compare", Compared}});
}

// Every text of up to six characters out of a quote, a letter and a comma. One of quotes alone
// comes back with one quote more, because the outer ones are a pair like any other.
TEST(Quoting, ComesBack) {
  for (int length = 0, count = 1; length <= 6; ++length, count *= 3) {
    for (int i = 0; i < count; ++i) {
      std::string text;
      for (int rest = i, n = 0; n < length; ++n, rest /= 3) text += "\"a,"[rest % 3];
      CZEPString quoted = text.c_str();
      X509Name::QuoteString(quoted);
      X509Name::UnquoteString(quoted);
      const bool quotes_alone = text.find_first_not_of('"') == std::string::npos;
      EXPECT_EQ(quoted.c_str(), quotes_alone ? text + '"' : text);
    }
  }
}

// The text that is changed may be what it is made from.
TEST(Arguments, MayBeTheTarget) {
  CZEPString text = "a\"b\xD0\xFF";
  X509Name::QuoteString(text.c_str() + 1, text);
  EXPECT_STREQ(text.c_str(), "\"\"\"b\xD0\xFF\"");
  X509Name::UnquoteString(text.c_str() + 1, text);
  EXPECT_STREQ(text.c_str(), "\"b\xD0\xFF");
  X509Name::FormatRDNAttr(text.c_str(), text.c_str(), text);
  EXPECT_STREQ(text.c_str(), "\"b\xD0\xFF=\"\"\"b\xD0\xFF\"");

  X509Name name = Blob("43 4E 3D 61 00");
  name.SetBy(reinterpret_cast<const char*>(name.pbData), 0, true);
  EXPECT_EQ(Rendered(name, 2), "2.5.4.3=a");
  text = "2.5.4.3";
  EXPECT_TRUE(name.GetSimpleRDN(text.c_str(), text));
  EXPECT_STREQ(text.c_str(), "a");

  PairList list = PairsOf("a=1;b=2");
  X509Name::MergeRDNAtributes(list, list, "B");
  EXPECT_EQ(Shown(list), "a=1;b=2;");
  PairList empty;
  X509Name::MergeRDNAtributes(list, empty, list.front().key.c_str());
  EXPECT_EQ(Shown(list), "b=2;");
  // Letters outside ASCII do not fold.
  list = {{"\xC4", "1"}};
  PairList other = {{"\xE4", "2"}};
  X509Name::MergeRDNAtributes(list, other, "\xE4");
  EXPECT_EQ(Shown(list), "\xC4=1;\xE4=2;");
}

// A size without bytes is not read; a long text needs more than a small buffer.
TEST(ValueText, IsBoundedByItsBytes) {
  CERT_RDN_ATTR attr = {nullptr, CERT_RDN_UNICODE_STRING, {8, nullptr}};
  CZEPString text = "old";
  std::wstring wide = L"old";
  X509Name::GetRDNAttrValueString(attr, text);
  X509Name::GetRDNAttrValueString(attr, wide);
  EXPECT_STREQ(text.c_str(), "old");
  EXPECT_EQ(wide, L"old");

  const IdentObj units = ExactCopy(std::string(2000, 'a'));
  attr.Value = units;
  X509Name::GetRDNAttrValueString(attr, wide);
  EXPECT_EQ(wide, std::wstring(1000, L'\x6161'));
  attr.dwValueType = CERT_RDN_IA5_STRING;
  X509Name::GetRDNAttrValueString(attr, text);
  EXPECT_EQ(text.c_str(), std::string(2000, 'a'));
}

}  // namespace
}  // namespace Ortholan::testing
