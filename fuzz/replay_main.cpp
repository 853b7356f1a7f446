// Runs one fuzz target over kept inputs, without a fuzzer.
//
//   fuzz_replay <target> <file or directory>...
//
// A .txt file holds an input a line, in hex behind whatever else the line has; "#" begins a
// comment. Any other file is one input. A path that is missing holds nothing.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "fuzz/targets.h"

namespace {

using namespace Ortholan::fuzzing;
namespace fs = std::filesystem;

struct TargetRow {
  std::string_view name;
  void (*run)(const uint8_t* data, size_t size);
};

constexpr TargetRow kTargets[] = {
    {"scanner", FuzzScanner},          {"name_decode", FuzzNameDecode},
    {"name_encode", FuzzNameEncode},   {"structured_encode", FuzzStructuredEncode},
    {"general_name", FuzzGeneralName}, {"extension", FuzzExtension},
    {"conversion", FuzzConversion},    {"format", FuzzFormat},
    {"c_interface", FuzzCInterface},
};

const TargetRow* FindTarget(std::string_view name) {
  for (const TargetRow& row : kTargets) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

class Replay {
 public:
  explicit Replay(const TargetRow& target) : target_(target) {}

  size_t count() const { return count_; }

  void RunPath(const fs::path& path) {
    if (fs::is_directory(path)) {
      for (const fs::directory_entry& entry : fs::directory_iterator(path)) RunPath(entry.path());
    } else if (fs::is_regular_file(path)) {
      RunFile(path);
    }
  }

 private:
  void RunFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (path.extension() == ".txt") {
      for (std::string line; std::getline(file, line);) RunLine(path, line);
    } else {
      Run(path, std::string(std::istreambuf_iterator<char>(file), {}));
    }
  }

  void RunLine(const fs::path& path, std::string_view line) {
    while (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.empty() || line.front() == '#') return;
    line.remove_prefix(line.find_last_of(" \t") + 1);
    const auto digit = [](char c) { return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10; };
    std::string bytes;
    for (size_t i = 0; i + 1 < line.size(); i += 2) {
      bytes.push_back(static_cast<char>(digit(line[i]) << 4 | digit(line[i + 1])));
    }
    Run(path, bytes);
  }

  // A broken law ends the process: the line printed last tells the input.
  void Run(const fs::path& path, const std::string& bytes) {
    std::printf("%s: %zu bytes\n", path.filename().string().c_str(), bytes.size());
    std::fflush(stdout);
    target_.run(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    ++count_;
  }

  const TargetRow& target_;
  size_t count_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  const TargetRow* target = argc > 1 ? FindTarget(argv[1]) : nullptr;
  if (target == nullptr) {
    std::fprintf(stderr, "usage: fuzz_replay <target> <file or directory>...\n");
    return 2;
  }
  Replay replay(*target);
  for (int i = 2; i < argc; ++i) replay.RunPath(argv[i]);
  std::printf("%zu inputs\n", replay.count());
  return replay.count() != 0 ? 0 : 1;
}
