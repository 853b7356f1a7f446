// Time and memory for inputs at the edge of what is sane. Every row of SECURITY.md that has no
// test of its own elsewhere is held here.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <algorithm>
#include <functional>
#include <string>

#include "processor_time.h"
#include "tests/memory/counting_new.h"
#include "tests/support/der.h"

namespace Ortholan::testing {
namespace {

// Sanitizers and emulation take a smaller share.
constexpr std::size_t kScale = 8 * ORTHOLAN_TEST_SCALE;

constexpr std::size_t kMiB = std::size_t{1} << 20;

std::string Rdn(const std::string& value) {
  static const std::string kCommonName("\x06\x03\x55\x04\x03", 5);
  return Tlv(0x31, Tlv(0x30, kCommonName + value));
}

std::string Repeated(const std::string& part, std::size_t count) {
  std::string whole;
  whole.reserve(part.size() * count);
  for (std::size_t i = 0; i < count; ++i) whole += part;
  return whole;
}

// One element inside the other, each in the definite form; the innermost is NULL.
std::string NestedDefinite(std::size_t levels) {
  std::string reversed("\x00\x05", 2);
  std::size_t size = 2;
  for (std::size_t i = 0; i < levels; ++i) {
    std::string header = '\x30' + LengthOctets(size);
    size += header.size();
    reversed.append(header.rbegin(), header.rend());
  }
  std::reverse(reversed.begin(), reversed.end());
  return reversed;
}

std::string NestedIndefinite(std::size_t levels) {
  return Repeated(std::string("\x30\x80", 2), levels) + std::string(2 * levels, '\0');
}

IdentObj Der(const std::string& octets) {
  return IdentObj(octets.data(), static_cast<DWORD>(octets.size()));
}

struct Row {
  const char* label;
  IdentObj der;
  std::size_t memory_factor;  // peak beside the input, in multiples of it
};

// Each must end, with a result or a refusal.
void DecodeText(const IdentObj& der) {
  std::wstring text;
  X500NameDecoder().Decode(der, text, 3);
}

void DecodeStructures(const IdentObj& der) {
  CertNameInfoWrapper tree;
  X500NameDecoder().Decode(der, tree);
  std::list<std::pair<std::wstring, std::list<std::wstring>>> pairs;
  X500NameDecoder().Decode(der, pairs, 3);
}

// Of this thread, whatever else the machine does.
double Seconds(const std::function<void()>& work) {
  const double start = ProcessorSeconds();
  work();
  return ProcessorSeconds() - start;
}

// More than ten times what any of these takes: a quadratic pass over it takes minutes.
constexpr double kPatience = 20;

TEST(Bounds, HugeNamesEndInTimeAndMemory) {
  const std::size_t rdns = 1000000 / kScale;
  const std::string printable("\x13\x01\x41", 3);
  const Row rows[] = {
      {"a million RDNs", Der(Tlv(0x30, Repeated(Rdn(printable), rdns))), 8},
      {"one value of 32 MiB", Der(Tlv(0x30, Rdn(Tlv(0x13, std::string(32 * kMiB / kScale, 'a'))))),
       8},
      {"one UTF-8 value of 32 MiB",
       Der(Tlv(0x30, Rdn(Tlv(0x0C, Repeated("\xD0\x98", 16 * kMiB / kScale))))), 8},
      {"64 MiB of hexadecimal",
       Der(Tlv(0x30, Rdn(Tlv(0x04, std::string(64 * kMiB / kScale, '\x5A'))))), 16},
      {"an identifier of 10,000 arcs",
       Der(Tlv(0x30,
               Tlv(0x31, Tlv(0x30, Tlv(0x06, '\x55' + std::string(10000, '\x01')) + printable)))),
       64},
      {"definite nesting in a value", Der(Tlv(0x30, Rdn(NestedDefinite(1000000 / kScale)))), 16},
      {"indefinite nesting in a value", Der(Tlv(0x30, Rdn(NestedIndefinite(1000000 / kScale)))),
       16},
      {"indefinite nesting", Der(NestedIndefinite(1000000 / kScale)), 16},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    ResetPeak();
    const std::size_t before = LiveBytes();
    EXPECT_LT(Seconds([&] { DecodeText(row.der); }), kPatience);
    EXPECT_LT(PeakBytes() - before, row.memory_factor * row.der.cbData + kMiB);
    EXPECT_LT(Seconds([&] { DecodeStructures(row.der); }), kPatience);
    std::list<IdentObj> children;
    DWORD status = 0;
    EXPECT_LT(Seconds([&] {
                ASNTGetSequence(children, row.der.pbData, row.der.cbData, &status);
                ASNTGetIndefiniteLength(row.der.pbData, row.der.cbData, true, &status);
              }),
              kPatience);
  }
}

struct TextRow {
  const char* label;
  std::wstring text;
};

TEST(Bounds, HugeTextsEndInTimeAndMemory) {
  const std::size_t many = 10000000 / kScale;
  std::wstring elements = L"C=RU";
  for (std::size_t i = 0; i < 1000000 / kScale; ++i) elements += L",OU=a";
  const TextRow rows[] = {
      {"delimiters", L"CN=a" + std::wstring(many, L',')},
      {"delimiters and blanks", L"CN=a," + std::wstring(many, L' ') + L","},
      {"doubled quotes", L"CN=\"" + std::wstring(many / 2 * 2, L'"')},
      {"equals signs", L"CN=" + std::wstring(many, L'=')},
      {"a type without end", std::wstring(many, L'x')},
      {"elements", elements},
      {"one value", L"CN=" + std::wstring(many, L'\x0418')},
  };
  for (const TextRow& row : rows) {
    for (const DWORD options : {0u, 0x00040000u, 0x00140000u, 0x08000000u}) {
      SCOPED_TRACE(row.label);
      X500NameEncoder encoder;
      encoder.SetEncoderOptions(options);
      IdentObj der;
      ResetPeak();
      const std::size_t before = LiveBytes();
      EXPECT_LT(Seconds([&] { encoder.Encode(row.text, der, true); }), kPatience);
      EXPECT_LT(PeakBytes() - before, 8 * row.text.size() + kMiB);
    }
  }
}

// Every third value is the same, so that runs of equals are compared too.
TEST(Bounds, EqualNamesInReverseOrderCompareInTime) {
  const std::size_t rdns = 100000 / kScale;
  std::string forward;
  std::string backward;
  const auto rdn = [](std::size_t i) { return Rdn(Tlv(0x13, std::to_string(i % 3 * i))); };
  for (std::size_t i = 0; i < rdns; ++i) {
    forward += rdn(i);
    backward += rdn(rdns - 1 - i);
  }
  const X509Name a(Der(Tlv(0x30, forward)));
  const X509Name b(Der(Tlv(0x30, backward)));
  backward.back() ^= 1;
  const X509Name other(Der(Tlv(0x30, backward)));
  EXPECT_LT(Seconds([&] { EXPECT_TRUE(a == b); }), kPatience);
  EXPECT_LT(Seconds([&] { EXPECT_FALSE(a == other); }), kPatience);
}

}  // namespace
}  // namespace Ortholan::testing
