// Does each operation some times, for callgrind to count its instructions, and prints the heap
// allocations that one takes.
//
//   counted                     every operation; a dump of callgrind's counts after each
//   counted "DER to text" 1000  that one so many times, for a profile
#include <ortholan/ortholan.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "bench/allocations.h"
#include "bench/chains.h"
#include "bench/extension_list.h"
#include "bench/names.h"
#include "bench/operations.h"
#include "bench/samples.h"
#include "tests/support/certificates.h"

namespace Bench {
namespace {

using namespace Ortholan;

// Few enough for a dozen seconds under callgrind, enough to make a call's own cost none.
constexpr unsigned kTimes = 20;

constexpr size_t kManyCount = 100;
constexpr size_t kLargeSize = 10000;

struct Operation {
  std::string name;
  std::function<void()> run;
};

// Fails where the operation gives another result than what its name says.
void Expect(bool right, const char* name) {
  if (right) return;
  std::fprintf(stderr, "counted: wrong result: %s\n", name);
  std::exit(1);
}

void AddText(const std::string& what, const Attributes& attributes, unsigned tag,
             std::vector<Operation>* operations) {
  const std::string text = ToText(attributes, {"=", ", "});
  const std::wstring wide = Widen(text);
  const X509Name name(Blob(ToDer(attributes, tag)));
  const auto encode = [wide] {
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG);
    IdentObj der;
    encoder.Encode(wide, der, false);
    return der;
  };
  Expect(encode() == name, what.c_str());
  Expect(DecodeText(name) == Widen(ToText(attributes, {})), what.c_str());
  operations->push_back({"text to DER" + what, encode});
  operations->push_back({"DER to text" + what, [name] { DecodeText(name); }});
}

void AddNames(std::vector<Operation>* operations) {
  const Attributes six = SixAttributes();
  const std::string text = ToText(six, {"=", ", "});
  const X509Name name(Blob(ToDer(six)));
  const X509Name same(Blob(ToDer(six)));
  const X509Name utf8(Blob(ToDer(six, kUtf8String)));
  Expect(name == same && name == utf8, "compare");
  AddText("", six, kPrintableString, operations);
  AddText(", 100 attributes", ManyAttributes(kManyCount), kPrintableString, operations);
  AddText(", 10 kB of Latin", LargeValue(kLargeSize), kPrintableString, operations);
  AddText(", 10 kB of Cyrillic", LargeCyrillicValue(kLargeSize), kUtf8String, operations);
  const auto add = [operations](const char* what, std::function<void()> run) {
    operations->push_back({what, std::move(run)});
  };
  add("text to sorted DER", [text = Widen(text)] {
    IdentObj der;
    X500NameEncoder().Encode(text, der, true);
  });
  add("8-bit text to DER", [text] { SetByText(text); });
  add("DER to 8-bit text", [name] { GetText(name); });
  add("DER to pair list", [name] { DecodePairs(name); });
  add("DER to tree", [name] { DecodeTree(name); });
  add("DER to simple RDNs", [name] { SimpleList(name); });
  add("DER to attribute lists", [name] { NameInfo(name); });
  add("simple RDNs to DER", [list = SimpleList(name)] { EncodeStructured(list); });
  add("attribute lists to DER", [rdns = NameInfo(name)] { EncodeStructured(rdns); });
  add("compare", [name, utf8] { Expect(name == utf8, "compare"); });
  add("compare equal bytes", [name, same] { Expect(name == same, "compare equal bytes"); });
}

void AddOthers(std::vector<Operation>* operations) {
  const auto add = [operations](const char* what, std::function<void()> run) {
    operations->push_back({what, std::move(run)});
  };
  const IdentObj dns = Blob(DnsNameDer());
  const IdentObj registered = Blob(RegisteredIdDer());
  add("DNS general name to text",
      [name = GeneralName::DerDecode(dns)]() mutable { name.ToString(0, 0); });
  add("registered ID general name to text",
      [name = GeneralName::DerDecode(registered)]() mutable { name.ToString(0, 0); });
  const std::string record = ExtensionRecord();
  add("extension record, read", [record] { ReadExtension(record); });
  add("extension record, write",
      [extension = ReadExtension(record)]() mutable { extension.WriteData(nullptr); });
}

void AddStrictNames(std::vector<Operation>* operations) {
  const auto add = [operations](const char* what, std::function<void()> run) {
    operations->push_back({what, std::move(run)});
  };
  const std::string text = ToText(SixAttributes(), {"=", ",", "ST", "L", true, false});
  const std::string der = ToDer(SixAttributes());
  const std::string disguised = ToDer(Disguised(SixAttributes()));
  add("strict: read and check",
      [der] { Expect(ortholan::NameView::Read(der).has_value(), "read"); });
  add("strict: RFC 4514 text to DER", [text, der] {
    const auto name = ortholan::Name::FromText(text);
    Expect(ortholan::Octets(name->der()) == ortholan::Octets(der), "to DER");
  });
  add("strict: DER to RFC 4514 text", [text, der] {
    Expect(ortholan::NameView::Read(der).value().ToText().value() == text, "to text");
  });
  add("strict: same name in disguise",
      [=] { Expect(ortholan::MatchNames(der, disguised).is_yes(), "same name"); });
  add("strict: key of a name", [der] {
    uint8_t room[512];
    size_t size = 0;
    ortholan_match_key(ortholan::Octets(der), ORTHOLAN_MATCH_RFC5280, room, sizeof room, &size,
                       nullptr);
    Expect(size != 0, "key");
  });
}

void AddVerdicts(std::vector<Operation>* operations) {
  std::string names;
  for (int i = 0; i < 10; ++i) {
    names += Tlv(0x82, "www" + std::to_string(i) + ".department.example.org");
  }
  const std::string certificate = Ortholan::testing::CertificateWithNames(Tlv(0x30, names));
  operations->push_back({"strict: host of a certificate for 10", [certificate] {
                           const auto host =
                               ortholan::Reference::Host("www9.department.example.org");
                           Expect(ortholan::Identify(certificate, host)->matches(), "host");
                         }});
  operations->push_back({"strict: 10 names under 5 subtrees", [chain = UsualChain()] {
                           const ortholan_octets octets[] = {ortholan::Octets(chain.leaf),
                                                             ortholan::Octets(chain.authority)};
                           ortholan_verdict verdict = ORTHOLAN_VERDICT_NO;
                           ortholan_permits(octets, 2, nullptr, &verdict, nullptr, 0, nullptr);
                           Expect(verdict == ORTHOLAN_VERDICT_YES, "permitted");
                         }});
}

void AddExtensions(std::vector<Operation>* operations) {
  operations->push_back({"strict: 10 extensions of a certificate", [list = TlsExtensions()] {
                           Expect(ReadExtensions(list) == kTlsExtensions, "extensions");
                         }});
}

// The first time, which is not counted, finds the memory and the tables cold.
void CountOne(const Operation& operation) {
  operation.run();
  CALLGRIND_ZERO_STATS;
  const uint64_t before = AllocationCount();
  for (unsigned i = 0; i < kTimes; ++i) operation.run();
  const uint64_t allocations = AllocationCount() - before;
  CALLGRIND_DUMP_STATS_AT(operation.name.c_str());
  std::printf("%u\t%.2f\t%s\n", kTimes, static_cast<double>(allocations) / kTimes,
              operation.name.c_str());
}

int Run(const char* only, unsigned long times) {
  std::vector<Operation> operations;
  AddNames(&operations);
  AddOthers(&operations);
  AddStrictNames(&operations);
  AddVerdicts(&operations);
  AddExtensions(&operations);
  bool found = false;
  for (const Operation& operation : operations) {
    if (only == nullptr) {
      CountOne(operation);
    } else if (operation.name == only) {
      found = true;
      for (unsigned long i = 0; i < times; ++i) operation.run();
    }
  }
  return only == nullptr || found ? 0 : 2;
}

}  // namespace
}  // namespace Bench

int main(int argc, char** argv) {
  return Bench::Run(argc > 1 ? argv[1] : nullptr,
                    argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1);
}
