#include "fuzz/law.h"

#include <cstdio>
#include <cstdlib>

namespace Ortholan::fuzzing {
namespace {

std::string input_source;
std::string input_octets;

}  // namespace

void SetInput(const std::string& source, const std::string& octets) {
  input_source = source;
  input_octets = octets;
}

void Break(const char* law, const char* file, int line) {
  std::fprintf(stderr, "%s:%d: broken law: %s\n%s ", file, line, law, input_source.c_str());
  for (const char c : input_octets) std::fprintf(stderr, "%02X", static_cast<unsigned char>(c));
  std::fprintf(stderr, "\n");
  std::abort();
}

std::wstring Joined(const std::list<std::wstring>& values) {
  std::wstring text;
  for (const std::wstring& value : values) text += (text.empty() ? L"" : L"\n") + value;
  return text;
}

}  // namespace Ortholan::fuzzing
