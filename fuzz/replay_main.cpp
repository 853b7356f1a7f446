// Runs the fuzz targets over kept inputs, without a fuzzer.
//
//   fuzz_replay <fuzz directory> <directory of samples> [<target>...]
//
// A target's inputs lie in corpus/<target> and findings/<target> of the fuzz directory, a file
// each; a directory that is missing holds none. A .txt file of samples has an input for every
// target on each line, in hex behind whatever else the line has; "#" begins a comment. What
// is of a target's own kind is also cut short after each octet, unless it is long, and a short
// one spoiled in each.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace {

using namespace Ortholan::fuzzing;
namespace fs = std::filesystem;

struct TargetRow {
  std::string_view name;
  void (*run)(const uint8_t* data, size_t size);
  std::string_view own = "";  // the samples of its own kind
};

constexpr TargetRow kTargets[] = {
    {"scanner", FuzzScanner, "names.txt"},
    {"name_decode", FuzzNameDecode, "names.txt"},
    {"name_encode", FuzzNameEncode},
    {"structured_encode", FuzzStructuredEncode},
    {"general_name", FuzzGeneralName, "general-names.txt"},
    {"extension", FuzzExtension, "extensions.txt"},
    {"conversion", FuzzConversion},
    {"format", FuzzFormat},
    {"c_interface", FuzzCInterface, "general-names.txt"},
    {"matching", FuzzMatching},
    {"rfc4514", FuzzRfc4514, "names.txt"},
    {"name_constraints", FuzzNameConstraints, "general-names.txt"},
    {"identity", FuzzIdentity},
    {"extension_value", FuzzExtensionValue, "extensions.txt"},
};

// What is longer is not cut, or not spoiled: every octet is a run of all laws.
constexpr size_t kLongestToCut = 64;
constexpr size_t kLongestToSpoil = 40;
constexpr size_t kMadeUp = 300;

class Replay {
 public:
  explicit Replay(const TargetRow& target) : target_(target) {}

  size_t count() const { return count_; }

  void RunKept(const fs::path& directory) {
    if (!fs::is_directory(directory)) return;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
      std::ifstream file(entry.path(), std::ios::binary);
      Run(entry.path(), std::string(std::istreambuf_iterator<char>(file), {}));
    }
  }

  void RunMadeUp() {
    uint32_t state = 2463534242;  // Marsaglia's xorshift
    const auto next = [&state] {
      state ^= state << 13;
      state ^= state >> 17;
      return state ^= state << 5;
    };
    for (size_t i = 0; i < kMadeUp; ++i) {
      std::string octets(next() % 120, '\0');
      for (char& octet : octets) octet = static_cast<char>(next() >> 11);
      Run("made up", octets);
    }
  }

  void RunSamples(const fs::path& directory) {
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
      if (entry.path().extension() != ".txt") continue;
      std::ifstream file(entry.path(), std::ios::binary);
      for (std::string line; std::getline(file, line);) RunSample(entry.path(), line);
    }
  }

 private:
  void RunSample(const fs::path& path, std::string_view line) {
    while (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.empty() || line.front() == '#') return;
    line.remove_prefix(line.find_last_of(" \t") + 1);
    const auto digit = [](char c) { return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10; };
    std::string bytes;
    for (size_t i = 0; i + 1 < line.size(); i += 2) {
      bytes.push_back(static_cast<char>(digit(line[i]) << 4 | digit(line[i + 1])));
    }
    Run(path, bytes);
    if (path.filename() != target_.own || bytes.size() > kLongestToCut) return;
    for (size_t size = 0; size < bytes.size(); ++size) Run(path, bytes.substr(0, size));
    if (bytes.size() > kLongestToSpoil) return;
    for (char& octet : bytes) {
      for (const unsigned flipped : {0x01u, 0x05u, 0x20u, 0x80u, 0xFFu}) {
        octet = static_cast<char>(static_cast<unsigned char>(octet) ^ flipped);
        Run(path, bytes);
        octet = static_cast<char>(static_cast<unsigned char>(octet) ^ flipped);
      }
    }
  }

  void Run(const fs::path& path, const std::string& bytes) {
    SetInput(std::string(target_.name) + ", " + path.filename().string(), bytes);
    target_.run(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    ++count_;
  }

  const TargetRow& target_;
  size_t count_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: fuzz_replay <fuzz directory> <samples> [<target>...]\n");
    return 2;
  }
  const fs::path fuzz = argv[1];
  const std::set<std::string_view> chosen(argv + 3, argv + argc);
  size_t targets = 0;
  for (const TargetRow& target : kTargets) {
    if (!chosen.empty() && chosen.count(target.name) == 0) continue;
    Replay replay(target);
    replay.RunKept(fuzz / "corpus" / target.name);
    replay.RunKept(fuzz / "findings" / target.name);
    replay.RunSamples(argv[2]);
    if (target.own.empty()) replay.RunMadeUp();
    std::printf("%s: %zu inputs\n", target.name.data(), replay.count());
    ++targets;
  }
  return targets != 0 ? 0 : 1;
}
