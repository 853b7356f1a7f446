// Names from text and structures to DER and back: the rows of names.tsv and name_attributes.tsv.

#include "tests/names/name_answers.h"
#include "tests/support/calls.h"

namespace Ortholan::testing {
namespace {

DWORD Options(const VectorRow& row) { return static_cast<DWORD>(row.number("options")); }

X500NameEncoder Encoder(const VectorRow& row) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(Options(row));
  return encoder;
}

// Writes a text by `row`'s options, in canonical order or as it stands.
std::string Encode(const VectorRow& row, bool sort) {
  return Encoded(kEmptied,
                 [&](IdentObj& der) { return Encoder(row).Encode(row.wide("in"), der, sort); });
}

std::string AsItStands(const VectorRow& row) { return Encode(row, false); }
std::string Sorted(const VectorRow& row) { return Encode(row, true); }
std::string Order(const VectorRow& row) { return Rendered(Blob(Sorted(row)), 2); }

std::string Trimmed(const VectorRow& row) {
  std::wstring text = row.wide("in");
  TrimLeftRight(text);
  return Shown(text);
}

// "type=value;type=value;" or the refusal.
std::string Elements(X500NameEncoder* encoder, const std::wstring& text) {
  std::list<X500NameEncoder::X500NAME_ELEM> elements(1);
  SetLastError(kUntouched);
  const bool divided = encoder->DevideIntoElements(text, elements);
  EXPECT_TRUE(divided || elements.empty());
  std::string shown = divided ? "" : Refusal();
  for (const auto& element : elements) shown += Shown(element.type + L"=" + element.value) + ';';
  return shown;
}

// Encode reads the same elements: its answer is compared where each can be encoded.
std::string Divided(const VectorRow& row) {
  X500NameEncoder encoder = Encoder(row);
  const std::string shown = Elements(&encoder, row.wide("in"));
  const bool complete = shown.find("=;") == std::string::npos;
  const bool encodable = shown != kRefused && !shown.empty() && complete;
  IdentObj der;
  EXPECT_EQ(Encoder(row).Encode(row.wide("in"), der, false), encodable);
  EXPECT_EQ(encodable ? Listed(der, 2) : shown, shown);
  return shown;
}

// The identifier, "untyped", or the refusal; Encode has to agree.
std::string TypeOf(const VectorRow& row) {
  X500NameEncoder encoder;
  const std::wstring text = row.wide("in") + L"=x";
  std::string oid = Elements(&encoder, text);
  const bool refused = oid.compare(0, kRefused.size(), kRefused) == 0;
  if (!refused) oid.resize(oid.find('='));
  const std::string encoded = Encoded(
      kEmptied, [&text](IdentObj& der) { return X500NameEncoder().Encode(text, der, false); });
  if (refused) {
    EXPECT_EQ(encoded, oid);
  } else if (oid.empty()) {
    EXPECT_EQ(encoded, kNoIdentifier);
  } else {
    EXPECT_EQ(Rendered(Blob(encoded), 2), oid + "=x");
  }
  return oid.empty() ? "untyped" : oid;
}

template <Answer answer>
std::string WithoutTheSystem(const VectorRow& row) {
  [[maybe_unused]] const EmptyAttributeRegistry empty;
  return answer(row);
}

std::string Rank(const VectorRow& row) {
  const int rank = GetAttrPriority(CZEPString(row.text("in").c_str()));
  EXPECT_EQ(GetAttrPriority(row.wide("in")), rank);
  return std::to_string(rank);
}

// "oid type octets; ..." of each attribute.
std::string TreeText(const CERT_NAME_INFO& tree) {
  std::string shown;
  for (DWORD i = 0; i < tree.cRDN; ++i) {
    EXPECT_EQ(tree.rgRDN[i].cRDNAttr, 1u);
    const CERT_RDN_ATTR& attr = tree.rgRDN[i].rgRDNAttr[0];
    if (i != 0) shown += ' ';
    shown += std::string(attr.pszObjId != nullptr ? attr.pszObjId : "-") + ' ' +
             std::to_string(attr.dwValueType) + ' ' + Hex(attr.Value) + ';';
  }
  EXPECT_EQ(tree.rgRDN == nullptr, tree.cRDN == 0);
  return shown;
}

// Into a wrapper that held another tree, which is released.
std::string Tree(const VectorRow& row) {
  CertNameInfoWrapper wrapper;
  EXPECT_TRUE(X500NameDecoder().Decode(CommonName(Octets("13 01 61")), wrapper));
  const bool decoded = X500NameDecoder().Decode(ExactCopy(row.octets("in")), wrapper);
  return (decoded ? "" : "refused ") + TreeText(*static_cast<CERT_NAME_INFO*>(wrapper));
}

// A value's text in the tree without its padding, or its encoding; then the pair list's texts.
std::string Value(const VectorRow& row) {
  const IdentObj name = CommonName(row.octets("in"));
  CertNameInfoWrapper wrapper;
  EXPECT_TRUE(X500NameDecoder().Decode(name, wrapper));
  const CERT_RDN_ATTR& attr = static_cast<CERT_NAME_INFO*>(wrapper)->rgRDN[0].rgRDNAttr[0];
  std::wstring text;
  for (DWORD i = 0; i + 4 < attr.Value.cbData; i += 2) {
    text += static_cast<wchar_t>(attr.Value.pbData[i] | attr.Value.pbData[i + 1] << 8);
  }
  const bool blob = attr.dwValueType == CERT_RDN_ENCODED_BLOB;
  const std::string listed = Listed(name, 2);
  return (blob ? "blob " + Hex(attr.Value) : Shown(text)) + " / " +
         (listed[0] == '2' ? listed.substr(sizeof "2.5.4.3") : listed);
}

std::string Text(const VectorRow& row) {
  return Rendered(ExactCopy(row.octets("in")), Options(row));
}
std::string PairList(const VectorRow& row) {
  return Listed(ExactCopy(row.octets("in")), Options(row));
}

// What text, pairs and tree tell of a name that is none: the text tells nothing of the faults of an
// RDN's own octets, the tree nothing of the name's, and it takes values that cannot be decoded.
std::string Refusals(const VectorRow& row) {
  const IdentObj name = ExactCopy(row.octets("in"));
  const std::string text = Rendered(name, 2);
  const std::string refusal = text.substr(0, text.find(" after "));
  for (const DWORD style : {1u, 3u}) {
    EXPECT_EQ(Rendered(name, style).substr(0, refusal.size()), refusal);
  }
  CertNameInfoWrapper tree;
  SetLastError(kUntouched);
  const bool taken = X500NameDecoder().Decode(name, tree);
  const std::string tree_refusal = taken ? "taken" : Refusal();
  return text + " / " + Listed(name, 2) + " / " + tree_refusal;
}

// The type as key and as dotted text, which the pair list has too.
std::string Keys(const VectorRow& row) {
  const IdentObj name = ExactCopy(row.octets("in"));
  const std::string keys = Rendered(name, 3);
  const std::string dotted = Rendered(name, 2);
  EXPECT_EQ(Listed(name, 3), keys + ';');
  EXPECT_EQ(Listed(name, 1), dotted + ';');
  return keys.substr(0, keys.size() - 2) + " / " + dotted.substr(0, dotted.size() - 2);
}

TEST(Names, Answer) {
  RunCalls("names.tsv", {{"trim", Trimmed},
                         {"divide", Divided},
                         {"encode", AsItStands},
                         {"sort", Sorted},
                         {"order", Order},
                         {"type", TypeOf},
                         {"type without the system", WithoutTheSystem<TypeOf>},
                         {"rank", Rank},
                         {"value", Value},
                         {"render", Text},
                         {"list", PairList},
                         {"refuse", Refusals},
                         {"tree", Tree},
                         {"keys", Keys},
                         {"keys without the system", WithoutTheSystem<Keys>}});
}

// The same attribute by both structured ways.
std::string Attribute(const VectorRow& row) {
  const X500NameEncoder encoder = Encoder(row);
  const IdentObj value = ExactCopy(row.octets("value"));
  std::string oid = row.text("oid");
  const auto type = static_cast<DWORD>(row.number("type"));
  const std::list<std::list<RDNAttr>> list = {{RDNAttr(oid.c_str(), type, value)}};
  CERT_RDN_ATTR attr = {oid.data(), type, {value.cbData, value.pbData}};
  CERT_RDN rdn = {1, &attr};
  const CERT_NAME_INFO info = {1, &rdn};
  const auto encoded = [&encoder](const auto& form) {
    return Encoded(kKept,
                   [&](IdentObj& der) { return X500NameEncoder(encoder).Encode(form, der); });
  };
  EXPECT_EQ(encoded(info), encoded(list));
  return encoded(list);
}

TEST(Attributes, AreEncoded) { RunCalls("name_attributes.tsv", {{"encode", Attribute}}); }

TEST(Render, UsesKeysWithoutTheSystem) {
  if (!EmptyAttributeRegistry::kPossible) GTEST_SKIP() << "the system's registry stays";
  [[maybe_unused]] const EmptyAttributeRegistry empty;
  EXPECT_EQ(Rendered(CommonName(Octets("13 01 61")), 3), "cn=a");
}

// The separator comes from the decoder's own options, the style from the call.
TEST(Render, TakesTheSeparatorFromTheDecoder) {
  IdentObj der;
  ASSERT_TRUE(X500NameEncoder().Encode(L"C=RU, O=Org", der, false));
  X500NameDecoder decoder;
  EXPECT_EQ(decoder.GetDecoderOptions(), 0u);
  std::wstring text;
  ASSERT_TRUE(decoder.Decode(der, text, 0x40000003));
  EXPECT_EQ(text, L"C=RU,O=Org");
  decoder.SetDecoderOptions(0x4000FFFF);
  EXPECT_EQ(decoder.GetDecoderOptions(), 0x40000000u);
  X500NameDecoder copy(decoder);
  ASSERT_TRUE(copy.Decode(der, text, 3));
  EXPECT_EQ(text, L"C=RU;O=Org");
}

// A text that breaks off between a type and its value leaves the type behind, which makes the next
// text begin with a value; copies take it along.
TEST(Elements, LeaveATypeBehind) {
  const std::pair<const wchar_t*, bool> rows[] = {
      {L"CN=, O=a", true}, {L"CN==a", true},          {L"CN=a, O=,", true}, {L"XYZ=a", false},
      {L"CN", false},      {L"ABCDE=a, O=b", false},  {L",CN=a", false},    {L"CN=a, O=", false},
      {L"CN=a, ,", false}, {L"CN=\"a\"b, O=c", false}};
  for (const auto& [broken, leaves] : rows) {
    SCOPED_TRACE(Shown(broken));
    const std::string good = leaves ? kRefused : "2.5.4.3=a;";
    X500NameEncoder encoder;
    X500NameEncoder writer;
    IdentObj der;
    Elements(&encoder, broken);
    writer.Encode(broken, der, false);
    for (X500NameEncoder again : {encoder, writer, X500NameEncoder(encoder)}) {
      EXPECT_EQ(Elements(&again, L""), "");
      EXPECT_EQ(Elements(&again, L"CN=a"), good);
      EXPECT_EQ(again.Encode(L"CN=a", der, false), !leaves);
      again = X500NameEncoder();
      EXPECT_EQ(Elements(&again, L"CN=a"), "2.5.4.3=a;");
    }
  }
  std::list<X500NameEncoder::X500NAME_ELEM> own = {{L"", L"CN=a, O=b"}};
  ASSERT_TRUE(X500NameEncoder().DevideIntoElements(own.front().value, own));
  EXPECT_EQ(Shown(own.back().type), "2.5.4.10");
}

TEST(EncoderOptions, AreKeptAndCopied) {
  X500NameEncoder encoder;
  EXPECT_EQ(encoder.GetEncoderOptions(1), 0u);
  encoder.SetEncoderOptions(0xF00000F1);
  encoder.AddEncoderOption(0x0000000E);
  encoder.RemoveEncoderOption(0x30000001);
  EXPECT_EQ(X500NameEncoder(encoder).GetEncoderOptions(0), 0xC00000FEu);
}

TEST(NameTree, StaysWhereTheNameCannotBeScanned) {
  X500NameDecoder decoder;
  CertNameInfoWrapper wrapper;
  ASSERT_TRUE(decoder.Decode(CommonName(Octets("05 00")), wrapper));
  EXPECT_FALSE(decoder.Decode(Blob("30 03 31 02"), wrapper));
  EXPECT_FALSE(decoder.Decode(IdentObj(), wrapper));
  EXPECT_EQ(TreeText(*wrapper), "2.5.4.3 12 30 00 35 00 20 00 30 00 30 00 00 00 00 00;");
}

// Arrays that are not counted are not the wrapper's: a sanitizer sees them freed.
TEST(NameTree, CleansWhatItCounts) {
  CERT_RDN rdn = {1, nullptr};
  CERT_RDN_ATTR attr = {};
  CertNameInfoWrapper wrapper;
  CERT_NAME_INFO* const tree = wrapper;
  const CERT_NAME_INFO trees[] = {
      {0, &rdn}, {5, nullptr}, {2, new CERT_RDN[2]{{0, &attr}, {3, nullptr}}}};
  for (const CERT_NAME_INFO& counted : trees) {
    *tree = counted;
    wrapper.Clean();
    EXPECT_EQ(tree->cRDN, 0u);
    EXPECT_EQ(tree->rgRDN, nullptr);
  }
  // A tree that a caller has built is released with the wrapper, all attributes of an RDN too.
  const auto attribute = [](BYTE value) {
    return CERT_RDN_ATTR{new char[2]{'1', '\0'}, 4, {1, new BYTE[1]{value}}};
  };
  *tree = {2, new CERT_RDN[2]{{3, new CERT_RDN_ATTR[3]{attribute('a'), attribute('b'), {}}},
                              {1, new CERT_RDN_ATTR[1]{attribute('c')}}}};
}

TEST(Octets, AreShown) {
  EXPECT_EQ(X500NameDecoder::ToHex(0x0A), L"0A");
  EXPECT_EQ(X500NameDecoder::ToHex(0xF9), L"F9");
  EXPECT_EQ(Shown(X500NameDecoder::AuxSymbols), "#;,+\"\\=<><000A><000D>");
  for (const char* hex : {"", "00", "12 03 AB CD EF"}) {
    std::wstring text = L"old";
    EXPECT_TRUE(X500NameDecoder::BlobToString(Blob(hex), text));
    EXPECT_EQ(Shown(text), *hex != '\0' ? hex : "\"\"");
  }
}

}  // namespace
}  // namespace Ortholan::testing
