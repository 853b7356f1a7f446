#include "bench/measure.h"

#include <vector>

namespace Bench {
namespace {

struct Entry {
  const char* subject;
  std::string version;
  void (*add_cases)();
};

std::vector<Entry>& Entries() {
  static std::vector<Entry> entries;
  return entries;
}

}  // namespace

Registration::Registration(const char* subject, std::string version, void (*add_cases)()) {
  Entries().push_back({subject, std::move(version), add_cases});
}

void AddAllCases() {
  for (const Entry& entry : Entries()) {
    if (!entry.version.empty()) {
      benchmark::AddCustomContext(std::string("version ") + entry.subject, entry.version);
    }
    entry.add_cases();
  }
}

}  // namespace Bench
