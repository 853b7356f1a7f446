// Measures the library and the system's crypt32 on the same names, and prints the medians in the
// shape of Google Benchmark's JSON, of which Debian has no source to build for Windows.
#include <ortholan/ortholan.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/names.h"
#include "bench/operations.h"

namespace Bench {
namespace {

using namespace Ortholan;
using Clock = std::chrono::steady_clock;

constexpr size_t kRepetitions = 15;
constexpr double kRepetitionNs = 2e7;

struct Case {
  std::string work;
  std::string subject;
  std::function<bool()> is_right;
  // Does the work so many times. Returns what depends on every result.
  std::function<size_t(size_t)> repeat;
  size_t iterations = 1;
  std::vector<double> times = {};  // ns an operation, one a repetition
};

std::vector<Case> cases;

template <typename Operation>
void Add(const char* work, const char* subject, std::function<bool()> is_right,
         Operation operation) {
  cases.push_back({work, subject, std::move(is_right), [operation](size_t count) {
                     size_t sum = 0;
                     for (size_t i = 0; i < count; ++i) sum += operation();
                     return sum;
                   }});
}

// The result's size keeps the work from being left out.
template <typename Operation>
auto SizeOf(Operation operation) {
  return [operation] { return operation().size(); };
}

template <typename Operation>
auto BlobSizeOf(Operation operation) {
  return [operation]() -> size_t { return operation().cbData; };
}

constexpr char kLibrary[] = "Ortholan";
constexpr char kSystem[] = "crypt32";

// Into a buffer that is large enough, so that nothing is done twice for its size.
size_t CertStrToName(const std::wstring& text, std::vector<BYTE>* der) {
  DWORD size = static_cast<DWORD>(der->size());
  if (!CertStrToNameW(X509_ASN_ENCODING, text.c_str(), CERT_X500_NAME_STR, nullptr, der->data(),
                      &size, nullptr)) {
    return 0;
  }
  return size;
}

size_t CertNameToStr(const IdentObj& der, std::vector<wchar_t>* text) {
  CERT_NAME_BLOB blob = {der.cbData, der.pbData};
  const DWORD size = CertNameToStrW(X509_ASN_ENCODING, &blob, CERT_X500_NAME_STR, text->data(),
                                    static_cast<DWORD>(text->size()));
  return size - 1;
}

size_t DecodeName(const IdentObj& der, std::vector<CERT_NAME_INFO>* tree) {
  DWORD size = static_cast<DWORD>(tree->size() * sizeof(CERT_NAME_INFO));
  if (!CryptDecodeObject(X509_ASN_ENCODING, X509_UNICODE_NAME, der.pbData, der.cbData, 0,
                         tree->data(), &size)) {
    return 0;
  }
  return tree->front().cRDN;
}

void AddNames() {
  const Attributes six = SixAttributes();
  const std::wstring text = Widen(ToText(six, {"=", ", "}));
  const std::string bytes = ToDer(six);
  const IdentObj der = Blob(bytes);

  Add(
      "text to DER", kLibrary, [=] { return Bytes(EncodeText(text)) == bytes; },
      BlobSizeOf([=] { return EncodeText(text); }));
  const auto encoded = std::make_shared<std::vector<BYTE>>(1000);
  const auto encode = [=] { return CertStrToName(text, encoded.get()); };
  Add(
      "text to DER", kSystem,
      [=] {
        return encode() == bytes.size() &&
               std::equal(der.pbData, der.pbData + der.cbData, encoded->begin());
      },
      encode);

  Add(
      "DER to text", kLibrary, [=] { return DecodeText(der) == Widen(ToText(six, {})); },
      SizeOf([=] { return DecodeText(der); }));
  const auto decoded = std::make_shared<std::vector<wchar_t>>(1000);
  const auto decode = [=] { return CertNameToStr(der, decoded.get()); };
  Add(
      "DER to text", kSystem, [=] { return std::wstring(decoded->data(), decode()) == text; },
      decode);

  const Pairs pairs = ToPairs(six);
  Add(
      "DER to tree", kLibrary, [=] { return TreePairs(der) == pairs; },
      [=]() -> size_t { return DecodeTree(der); });
  const auto tree = std::make_shared<std::vector<CERT_NAME_INFO>>(200);
  const auto take_apart = [=] { return DecodeName(der, tree.get()); };
  Add(
      "DER to tree", kSystem, [=] { return take_apart() == six.size(); }, take_apart);
}

// What the library asks the system for, to tell how much of its time that can be.
void AddSystemCalls() {
  static char oid[] = "2.5.4.10";
  const auto find = [] {
    const PCCRYPT_OID_INFO info =
        CryptFindOIDInfo(CRYPT_OID_INFO_OID_KEY, oid, CRYPT_RDN_ATTR_OID_GROUP_ID);
    return info != nullptr ? wcslen(info->pwszName) : 0;
  };
  Add(
      "one CryptFindOIDInfo", kSystem, [=] { return find() == 1; }, find);

  static wchar_t text[] = L"Example Organisation";
  const auto encode = []() -> size_t {
    CERT_NAME_VALUE value = {CERT_RDN_PRINTABLE_STRING, {}};
    static char narrow[] = "Example Organisation";
    value.Value.pbData = reinterpret_cast<BYTE*>(narrow);
    value.Value.cbData = sizeof(narrow) - 1;
    BYTE der[100];
    DWORD size = sizeof(der);
    return CryptEncodeObject(X509_ASN_ENCODING, X509_NAME_VALUE, &value, der, &size) ? size : 0;
  };
  Add(
      "one X509_NAME_VALUE, encode", kSystem, [=] { return encode() == wcslen(text) + 2; }, encode);

  const std::string element = Element(kPrintableString, Narrow(text));
  const auto decode = [element]() -> size_t {
    CERT_NAME_VALUE value[10];
    DWORD size = sizeof(value);
    const BYTE* der = reinterpret_cast<const BYTE*>(element.data());
    if (!CryptDecodeObject(X509_ASN_ENCODING, X509_UNICODE_NAME_VALUE, der,
                           static_cast<DWORD>(element.size()), 0, value, &size)) {
      return 0;
    }
    return value->Value.cbData;
  };
  Add(
      "one X509_UNICODE_NAME_VALUE, decode", kSystem,
      [=] { return decode() == wcslen(text) * sizeof(wchar_t); }, decode);
}

volatile size_t sink;

double Measure(const Case& c) {
  const Clock::time_point start = Clock::now();
  sink = c.repeat(c.iterations);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

void Calibrate(Case* c) {
  while (Measure(*c) < kRepetitionNs) c->iterations *= 2;
}

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void Print() {
  std::printf("{\n  \"benchmarks\": [\n");
  for (const Case& c : cases) {
    std::printf("    {\n      \"run_name\": \"%s/%s\",\n      \"aggregate_name\": \"median\",\n",
                c.work.c_str(), c.subject.c_str());
    std::printf("      \"repetitions\": %u,\n      \"real_time\": %.1f\n    }%s\n",
                static_cast<unsigned>(kRepetitions), Median(c.times),
                &c == &cases.back() ? "" : ",");
  }
  std::printf("  ]\n}\n");
}

int Run() {
  AddNames();
  AddSystemCalls();
  for (Case& c : cases) {
    if (!c.is_right()) {
      std::fprintf(stderr, "%s/%s: wrong result\n", c.work.c_str(), c.subject.c_str());
      return 1;
    }
    Calibrate(&c);
  }
  // In turns, so that what else the machine does falls on all alike.
  for (size_t i = 0; i < kRepetitions; ++i) {
    for (Case& c : cases) c.times.push_back(Measure(c) / static_cast<double>(c.iterations));
  }
  Print();
  return 0;
}

}  // namespace
}  // namespace Bench

int main() { return Bench::Run(); }
