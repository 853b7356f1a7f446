#include "tests/differential/samples.h"

#include <ortholan/asn1.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <fstream>

#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

void AddRecords(const std::string& path, std::vector<std::string>* samples) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    line.resize(std::min(line.size(), line.find_first_of("\t\r")));
    if (line.empty() || line.front() == '#') continue;
    std::string hex = line.substr(line.rfind(' ') + 1);
    for (char& digit : hex) digit = static_cast<char>(std::toupper(digit));
    samples->push_back(Octets(hex));
  }
}

// Numbers that look random and are the same everywhere (Marsaglia's xorshift).
class Numbers {
 public:
  explicit Numbers(const std::string& seed) {
    for (const char c : seed) state_ = (state_ ^ static_cast<unsigned char>(c)) * 16777619;
    if (state_ == 0) state_ = 1;
  }
  size_t Below(size_t limit) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_ % limit;
  }

 private:
  uint32_t state_ = 2166136261;
};

// Where the length octets of the elements in `octets` start, as far as they can be read.
void FindLengths(const std::string& octets, size_t begin, size_t end, std::vector<size_t>* found) {
  while (begin < end) {
    ASNT_ASN_STRUCT_INFO info;
    const char* const data = octets.data() + begin;
    if (ASNTGetStructInfo(info, data, static_cast<DWORD>(end - begin)) != 0) return;
    found->push_back(begin + 1);
    const size_t content = static_cast<size_t>(reinterpret_cast<const char*>(info.content) - data);
    if (info.length > end - begin - content) return;
    if (info.constructed)
      FindLengths(octets, begin + content, begin + content + info.length, found);
    begin += content + info.length;
  }
}

constexpr unsigned char kTelling[] = {0x00, 0x01, 0x02, 0x05, 0x06, 0x0C, 0x13, 0x14,
                                      0x16, 0x1A, 0x1E, 0x1F, 0x30, 0x31, 0x7F, 0x80,
                                      0x81, 0x82, 0xA0, 0xD8, 0xDC, 0xFF};

}  // namespace

std::vector<std::string> Samples(const std::string& file) {
  std::vector<std::string> samples;
  AddRecords(ORTHOLAN_TEST_DATA "/" + file, &samples);
  const char* const more = std::getenv("ORTHOLAN_MORE_DATA");
  if (more != nullptr) AddRecords(std::string(more) + '/' + file, &samples);
  return samples;
}

void ForEachMutation(const std::string& octets, size_t count,
                     const std::function<void(const std::string&)>& use) {
  Numbers numbers(octets);
  std::vector<size_t> lengths;
  FindLengths(octets, 0, octets.size(), &lengths);
  for (size_t i = 0; i < count && !octets.empty(); ++i) {
    std::string spoiled = octets;
    const size_t at = numbers.Below(octets.size());
    switch (i % 4) {
      case 0:
        spoiled[at] = static_cast<char>(kTelling[numbers.Below(sizeof kTelling)]);
        break;
      case 1:
        spoiled[at] = static_cast<char>(spoiled[at] ^ 1 << numbers.Below(8));
        break;
      case 2:
        spoiled.resize(at);
        break;
      default: {
        if (lengths.empty()) continue;
        char& length = spoiled[lengths[numbers.Below(lengths.size())]];
        length = static_cast<char>(length + static_cast<char>(numbers.Below(7)) - 3);
      }
    }
    if (spoiled != octets) use(spoiled);
  }
}

}  // namespace Ortholan::testing
