// The library on what its peers do as well.
#include <ortholan/ortholan.h>

#include <memory>
#include <string>
#include <utility>

#include "bench/measure.h"
#include "bench/names.h"
#include "bench/operations.h"
#include "bench/samples.h"

namespace Bench {
namespace {

using namespace Ortholan;

constexpr char kWide[] = "Ortholan";
constexpr char kNarrow[] = "Ortholan 8-bit";
constexpr char kPairList[] = "Ortholan pair list";
constexpr char kTree[] = "Ortholan tree";
constexpr char kSimpleList[] = "Ortholan simple RDNs";

void AddTextToDer(const char* work, const Attributes& attributes) {
  const std::string text = ToText(attributes, {"=", ", "});
  const std::wstring wide = Widen(text);
  const std::string der = ToDer(attributes);
  Add({work, kWide, [=] { return Bytes(EncodeText(wide)) == der; }, der.size()},
      [=] { return EncodeText(wide); });
  Add({work, kNarrow, [=] { return Bytes(SetByText(text)) == der; }},
      [=] { return SetByText(text); });
}

void AddDerToText(const char* work, const Attributes& attributes) {
  const IdentObj der = Blob(ToDer(attributes));
  const X509Name name(der);
  const std::string text = ToText(attributes, {});
  const std::wstring wide = Widen(text);
  Add({work, kWide, [=] { return DecodeText(der) == wide; }, wide.size() * sizeof(wchar_t)},
      [=] { return DecodeText(der); });
  Add({work, kNarrow, [=] { return GetText(name) == text; }}, [=] { return GetText(name); });
}

void AddDerToStrings(const Attributes& attributes) {
  const IdentObj der = Blob(ToDer(attributes));
  const X509Name name(der);
  const Pairs pairs = ToPairs(attributes);
  Add({kDerToStrings, kPairList, [=] { return ToPairs(DecodePairs(der)) == pairs; }},
      [=] { return DecodePairs(der); });
  Add({kDerToStrings, kTree, [=] { return TreePairs(der) == pairs; }},
      [=] { return DecodeTree(der); });
  Add({kDerToStrings, kSimpleList, [=] { return ToPairs(SimpleList(name)) == pairs; }},
      [=] { return SimpleList(name); });
}

void AddCompare() {
  const Attributes attributes = SixAttributes();
  Attributes other = attributes;
  other.back().value.back() = 'w';
  const X509Name printable(Blob(ToDer(attributes, kPrintableString)));
  const X509Name same(Blob(ToDer(attributes, kPrintableString)));
  const X509Name utf8(Blob(ToDer(attributes, kUtf8String)));
  const X509Name different(Blob(ToDer(other, kUtf8String)));
  const auto right = [=] { return printable == utf8 && !(printable == different); };
  Add({kCompare, kWide, right}, [=] { return printable == utf8; });
  Add({"compare names of equal bytes", kWide, [=] { return printable == same; }},
      [=] { return printable == same; });
  Add({"compare different names", kWide, right}, [=] { return printable == different; });
}

void AddGeneralNames() {
  const struct {
    const char* work;
    std::string der;
    std::string text;
  } rows[] = {{kGeneralName, DnsNameDer(), kDnsName},
              {kRegisteredId, RegisteredIdDer(), kRegisteredOid}};
  for (const auto& row : rows) {
    const auto name = std::make_shared<GeneralName>(GeneralName::DerDecode(Blob(row.der)));
    const std::wstring text = Widen(row.text);
    Add({row.work, kWide, [=] { return name->ToString(0, 0) == text; }},
        [=] { return name->ToString(0, 0); });
  }
  const IdentObj der = Blob(DnsNameDer());
  const auto print = [der] { return GeneralName::DerDecode(der).ToString(0, 0); };
  Add({kGeneralNameDer, kWide, [=] { return print() == Widen(kDnsName); }}, print);
}

void AddExtension() {
  const std::string record = ExtensionRecord();
  const auto extension = std::make_shared<CertExtension>(ReadExtension(record));
  Add({kReadExtension, kWide,
       [=] {
         return Bytes(extension->oid) == kExtensionOid && extension->critical &&
                Bytes(extension->value) == ExtensionValue();
       }},
      [=] { return ReadExtension(record); });
  Add({kWriteExtension, kWide, [=] { return Bytes(extension->WriteData(nullptr)) == record; }},
      [=] { return extension->WriteData(nullptr); });
}

void AddThreads() {
  const Attributes attributes = SixAttributes();
  const std::wstring text = Widen(ToText(attributes, {"=", ", "}));
  const IdentObj der = Blob(ToDer(attributes));
  const auto right = [] { return true; };
  Add({"threads: text to DER", kWide, right, 0, true}, [=] { return EncodeText(text); });
  Add({"threads: DER to text", kWide, right, 0, true}, [=] { return DecodeText(der); });
}

void AddCases() {
  const Attributes six = SixAttributes();
  const Attributes large = LargeValue(kLargeSize);
  const Attributes many = ManyAttributes(kManyCount);
  AddTextToDer(kTextToDer, six);
  AddDerToText(kDerToText, six);
  AddDerToStrings(six);
  AddCompare();
  AddTextToDer(kLargeToDer, large);
  AddDerToText(kLargeToText, large);
  AddTextToDer(kManyToDer, many);
  AddDerToText(kManyToText, many);
  AddGeneralNames();
  AddExtension();
  AddThreads();
}

const Registration registration("Ortholan", "", AddCases);

}  // namespace
}  // namespace Bench
