// Each allocation of each public operation made to fail in turn: the operation reports it as its
// header says, leaks nothing and leaves what it works on fit for use.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <functional>
#include <new>
#include <string>

#include "tests/memory/counting_new.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kUntouched = 77;

// Runs the operation proper with one failing allocation, and nothing around it.
class Arm {
 public:
  explicit Arm(std::size_t number) : number_(number) {}
  template <typename Operation>
  auto operator()(Operation operation) const {
    const FailingAllocation failing(number_);
    return operation();
  }

 private:
  std::size_t number_;
};

struct Case {
  const char* label;
  // What an operation that neither throws status 16 nor std::bad_alloc tells of the failure.
  const char* refusal;
  // Does the work and returns its result as text.
  std::function<std::string(const Arm&)> run;
};

constexpr wchar_t kText[] =
    L"C=RU, O=\"Org \"\"A\"\"\", OU=\x0418\x0432\x0430\x043D, E=a@b, CN=Alpha Beta Gamma";
// More elements than the encoder keeps without allocating.
std::wstring LongText() {
  std::wstring text = L"C=RU";
  for (int i = 0; i < 40; ++i) text += L", OU=\x0418 unit with a name of some length";
  return text;
}

IdentObj Encoded(const std::wstring& text) {
  IdentObj der;
  X500NameEncoder().Encode(text, der, false);
  return der;
}

X509Name Name() { return X509Name(Encoded(kText)); }

std::string Bool(bool result, const std::string& value) {
  return result ? value : "false " + std::to_string(GetLastError());
}

std::string Show(const std::list<SimpleRDN>& pairs) {
  std::string text;
  for (const SimpleRDN& pair : pairs) {
    text += std::string(pair.key.c_str()) + "=" + pair.value.c_str() + "\n";
  }
  return text;
}

CertExtension Extension() {
  CertExtension extension;
  extension.oid = "2.5.29.15";
  extension.critical = 1;
  extension.value = Blob("03 02 05 A0");
  return extension;
}

const Case kCases[] = {
    {"IdentObj copy", "-",
     [](const Arm& arm) {
       const IdentObj source = Blob("01 02 03");
       return arm([&] { return IdentObj(source); }).cbData == 3 ? "3" : "other";
     }},
    {"IdentObj Resize", "-",
     [](const Arm& arm) {
       IdentObj blob = Blob("01 02 03");
       try {
         arm([&] { blob.Resize(5); });
       } catch (...) {
         EXPECT_EQ("01 02 03", Hex(blob));
         throw;
       }
       return std::to_string(blob.cbData);
     }},
    {"IdentObj from text", "-",
     [](const Arm& arm) {
       IdentObj blob = Blob("01");
       arm([&] { blob = "abc"; });
       return Hex(blob);
     }},
    {"CZEPString", "",
     [](const Arm& arm) { return std::string(arm([] { return CZEPString("text"); }).c_str()); }},
    {"CZEPString append", "",
     [](const Arm& arm) {
       CZEPString text("abc");
       const CZEPString shared = text;
       const CZEPString more("def");
       arm([&] { text += more; });
       EXPECT_STREQ("abc", shared.c_str());
       return std::string(text.c_str());
     }},
    {"CZEPString Format", "",
     [](const Arm& arm) {
       CZEPString text;
       arm([&] { text.Format("%d %s", 5, "six"); });
       return std::string(text.c_str());
     }},
    {"ASNTGetSequence", "-",
     [](const Arm& arm) {
       const IdentObj der = Blob("30 06 02 01 01 02 01 02");
       std::list<IdentObj> out;
       arm([&] { return ASNTGetSequence(out, der.pbData, der.cbData, nullptr); });
       return std::to_string(out.size());
     }},
    {"ASNTGetSequence reported", "status 16",
     [](const Arm& arm) {
       const IdentObj der = Blob("30 06 02 01 01 02 01 02");
       std::list<IdentObj> out;
       DWORD status = 0;
       arm([&] { return ASNTGetSequence(out, der.pbData, der.cbData, &status); });
       return status != 0 ? "status " + std::to_string(status) : std::to_string(out.size());
     }},
    {"ASNTPutSequence reported", "status 16",
     [](const Arm& arm) {
       const std::list<IdentObj> children = {Blob("05 00")};
       DWORD status = 0;
       const IdentObj der = arm([&] { return ASNTPutSequence(children, 16, &status); });
       return status != 0 ? "status " + std::to_string(status) : Hex(der);
     }},
    {"EncodeOid", "-",
     [](const Arm& arm) {
       const std::string dotted = "1.2.840.113549.1.9.1";
       return Hex(arm([&] { return DerHelper::EncodeOid(dotted); }));
     }},
    {"DecodeUtf8String", "-",
     [](const Arm& arm) {
       const IdentObj der = Blob("0C 08 61 62 63 64 65 66 67 68");
       return Hex(arm([&] { return DerHelper::DecodeUtf8String(der, false); }));
     }},
    {"encode text", "false 8",
     [](const Arm& arm) {
       IdentObj der;
       return Bool(arm([&] { return X500NameEncoder().Encode(kText, der, true); }), Hex(der));
     }},
    {"encode long text", "false 8",
     [](const Arm& arm) {
       const std::wstring text = LongText();
       IdentObj der;
       return Bool(arm([&] { return X500NameEncoder().Encode(text, der, true); }), Hex(der));
     }},
    {"DevideIntoElements", "false 77",
     [](const Arm& arm) {
       const std::wstring text = LongText();
       std::list<X500NameEncoder::X500NAME_ELEM> out;
       return Bool(arm([&] { return X500NameEncoder().DevideIntoElements(text, out); }),
                   std::to_string(out.size()));
     }},
    {"encode SimpleRDN", "false 8",
     [](const Arm& arm) {
       const std::list<SimpleRDN> pairs = {{"2.5.4.3", "a"}, {"1.2.3.4", "b"}};
       IdentObj der = Blob("AA");
       const bool encoded = arm([&] { return X500NameEncoder().Encode(pairs, der, true); });
       EXPECT_TRUE(encoded || Hex(der) == "AA");
       return Bool(encoded, Hex(der));
     }},
    {"decode text", "false 77",
     [](const Arm& arm) {
       const IdentObj der = Encoded(LongText());
       std::wstring text;
       return Bool(arm([&] { return X500NameDecoder().Decode(der, text, 3); }), Hex(text));
     }},
    {"decode tree", "false 77",
     [](const Arm& arm) {
       const IdentObj der = Encoded(kText);
       CertNameInfoWrapper tree;
       return Bool(arm([&] { return X500NameDecoder().Decode(der, tree); }),
                   std::to_string(static_cast<CERT_NAME_INFO*>(tree)->cRDN));
     }},
    {"decode pairs", "false 77",
     [](const Arm& arm) {
       const IdentObj der = Encoded(kText);
       std::list<std::pair<std::wstring, std::list<std::wstring>>> pairs;
       return Bool(arm([&] { return X500NameDecoder().Decode(der, pairs, 3); }),
                   std::to_string(pairs.size()));
     }},
    {"TrySetBy text", "false 8",
     [](const Arm& arm) {
       X509Name name = Name();
       const IdentObj before = name;
       const auto set = [&] { return name.TrySetBy("CN=Other Name, O=Org", 0, true); };
       bool done = false;
       try {
         done = arm(set);
       } catch (...) {
         EXPECT_TRUE(before == name);
         throw;
       }
       EXPECT_TRUE(done || before == name);
       return Bool(done, Hex(name));
     }},
    {"TryGetX500String", "false 77",
     [](const Arm& arm) {
       const X509Name name = Name();
       std::wstring text = L"before";
       const bool done = arm([&] { return name.TryGetX500String(text, 3); });
       return Bool(done, Hex(text));
     }},
    {"TryGetNameInfo", "false 77",
     [](const Arm& arm) {
       const X509Name name = Name();
       std::list<std::list<RDNAttr>> rdns;
       return Bool(arm([&] { return name.TryGetNameInfo(rdns); }), std::to_string(rdns.size()));
     }},
    {"GetSimpleRDNList", "-",
     [](const Arm& arm) {
       const X509Name name("C=RU, O=Org, CN=Alpha", 0, false);
       std::list<SimpleRDN> pairs;
       arm([&] { name.GetSimpleRDNList(pairs, false); });
       return Show(pairs);
     }},
    {"operator==", "-",
     [](const Arm& arm) {
       const X509Name a("C=RU, O=Org", 0, false);
       const X509Name b("O=Org, C=RU", 0, false);
       return arm([&] { return a == b; }) ? "equal" : "differ";
     }},
    {"GeneralName", "-",
     [](const Arm& arm) {
       return Hex(arm([] { return GeneralName::CreateDnsName(L"example.org").DerEncode(); }));
     }},
    {"WriteData", "error 8",
     [](const Arm& arm) {
       CertExtension extension = Extension();
       int error = 0;
       const IdentObj record = arm([&] { return extension.WriteData(&error); });
       return error != 0 ? "error " + std::to_string(error) : Hex(record);
     }},
    {"ReadData", "error 8",
     [](const Arm& arm) {
       const IdentObj record = Blob("30 0E 06 03 55 1D 0F 01 01 FF 04 04 03 02 05 A0");
       CertExtension extension;
       int error = 0;
       arm([&] { return extension.ReadData(record.pbData, record.cbData, &error); });
       EXPECT_TRUE(error == 0 || extension == CertExtension());
       return error != 0 ? "error " + std::to_string(error) : Hex(extension.value);
     }},
    {"CertExtensionList", "-",
     [](const Arm& arm) {
       CertExtensionList list;
       const CertExtension extension = Extension();
       arm([&] { list.Update(extension); });
       return std::to_string(list.size());
     }},
};

// The result, or how it failed: "bad_alloc", the status of a thrown one, or what `run` tells.
std::string Outcome(const Case& row, std::size_t number) {
  SetLastError(kUntouched);
  try {
    return row.run(Arm(number));
  } catch (const std::bad_alloc&) {
    return "bad_alloc";
  } catch (const XZEPStatus& failure) {
    return std::to_string(failure.GetStatus());
  }
}

TEST(AllocationFailure, IsReportedAndLeaksNothing) {
  for (const Case& row : kCases) {
    SCOPED_TRACE(row.label);
    const std::string expected = Outcome(row, static_cast<std::size_t>(-1));
    EXPECT_NE(row.refusal, expected);
    bool reached_end = false;
    std::size_t failures = 0;
    for (std::size_t number = 0; !reached_end; ++number) {
      const std::size_t before = LiveBlocks();
      bool as_promised = false;
      std::string unexpected;
      {
        const std::string outcome = Outcome(row, number);
        reached_end = !FailingAllocation::Failed();
        // A sort can do without its scratch space.
        as_promised =
            outcome == expected ||
            (!reached_end && (outcome == "bad_alloc" || outcome == "16" || outcome == row.refusal));
        if (!as_promised) unexpected = outcome;
      }
      // What the message itself holds is no leak.
      const bool leaked = as_promised && LiveBlocks() != before;
      EXPECT_TRUE(as_promised) << "allocation " << number << ": " << unexpected;
      EXPECT_FALSE(leaked) << "allocation " << number;
      failures += reached_end ? 0 : 1;
      ASSERT_LT(number, 1000u);
    }
    EXPECT_GT(failures, 0u) << "the operation allocates nothing";
  }
}

}  // namespace
}  // namespace Ortholan::testing
