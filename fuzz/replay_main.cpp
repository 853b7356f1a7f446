// Runs the fuzz targets over kept inputs, without a fuzzer.
//
//   fuzz_replay [--mutate <count>] <fuzz directory> <directory of samples> [<target>...]
//
// A target's inputs lie in corpus/<target> and findings/<target> of the fuzz directory, a file
// each; a directory that is missing holds none. A .txt file of samples has an input for every
// target on each line, in hex behind whatever else the line has; "#" begins a comment. What
// is of a target's own kind is also cut short after each octet, unless it is long, and a short
// one spoiled in each. With --mutate each target gets that many inputs made of all these instead.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/guarded_room.h"
#include "fuzz/law.h"
#include "fuzz/mutator.h"
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
  // Runs what it is given, or keeps it for RunMutated.
  Replay(const TargetRow& target, bool keeps) : target_(target), keeps_(keeps) {}

  size_t count() const { return count_; }

  void RunKept(const fs::path& directory) {
    if (!fs::is_directory(directory)) return;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
      std::ifstream file(entry.path(), std::ios::binary);
      Run(entry.path(), std::string(std::istreambuf_iterator<char>(file), {}));
    }
  }

  void RunMadeUp() {
    Numbers numbers;
    for (size_t i = 0; i < kMadeUp; ++i) {
      std::string octets(numbers.Below(120), '\0');
      for (char& octet : octets) octet = static_cast<char>(numbers.Next() >> 11);
      Run("made up", octets);
    }
  }

  void RunMutated(size_t count) {
    if (kept_.empty()) return;
    keeps_ = false;
    count_ = 0;
    Mutator mutator(kept_);
    for (size_t i = 0; i < count; ++i) Run("mutated", mutator.Next());
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
    ++count_;
    if (keeps_) return kept_.push_back(bytes);
    SetInput(std::string(target_.name) + ", " + path.filename().string(), bytes);
    target_.run(room_.Put(bytes), bytes.size());
  }

  const TargetRow& target_;
  bool keeps_;
  GuardedRoom room_;
  std::vector<std::string> kept_;
  size_t count_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  const bool mutates = argc > 2 && std::string_view(argv[1]) == "--mutate";
  const size_t mutated = mutates ? std::strtoull(argv[2], nullptr, 10) : 0;
  const int first = mutates ? 3 : 1;
  if (argc < first + 2) {
    std::fprintf(
        stderr, "usage: fuzz_replay [--mutate <count>] <fuzz directory> <samples> [<target>...]\n");
    return 2;
  }
  const fs::path fuzz = argv[first];
  const std::set<std::string_view> chosen(argv + first + 2, argv + argc);
  size_t targets = 0;
  for (const TargetRow& target : kTargets) {
    if (!chosen.empty() && chosen.count(target.name) == 0) continue;
    Replay replay(target, mutates);
    replay.RunKept(fuzz / "corpus" / target.name);
    replay.RunKept(fuzz / "findings" / target.name);
    replay.RunSamples(argv[first + 1]);
    if (target.own.empty()) replay.RunMadeUp();
    if (mutates) replay.RunMutated(mutated);
    std::printf("%s: %zu inputs\n", target.name.data(), replay.count());
    ++targets;
  }
  return targets != 0 ? 0 : 1;
}
