#include "examples/text_failure.h"

#include <algorithm>

#include "examples/failure.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

// Characters of the text that are shown before the place and from it on.
constexpr size_t kBefore = 40;
constexpr size_t kBehind = 30;
constexpr const char* kMargin = "  ";

bool IsLowSurrogate(wchar_t c) { return (static_cast<unsigned>(c) & 0xFC00) == 0xDC00; }

// Not the second half of a pair.
size_t AtCharacter(const std::wstring& text, size_t position) {
  while (position != 0 && position < text.size() && IsLowSurrogate(text[position])) --position;
  return position;
}

// Columns that UTF-8 text takes, a column a character.
size_t Columns(const std::string& text) {
  return static_cast<size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

}  // namespace

void FailAtText(const std::wstring& text, const NameTextError& error) {
  if (error.fault == NameTextFault::kNone) return;
  const size_t first = AtCharacter(text, error.position > kBefore ? error.position - kBefore : 0);
  const size_t end = AtCharacter(text, std::min(text.size(), error.position + kBehind));
  const std::string before = VisibleInMessage(ToUtf8(text.substr(first, error.position - first)));
  const std::string behind =
      VisibleInMessage(ToUtf8(text.substr(error.position, end - error.position)));
  const std::string met =
      VisibleInMessage(ToUtf8(text.substr(error.position, std::min(error.length, kBehind))));
  const size_t marks = std::max<size_t>(1, std::min(Columns(met), Columns(behind)));
  Failure failure{ERROR_SUCCESS, VisibleInMessage(ToUtf8(error.message))};
  failure.excerpt = kMargin + before + behind + "\n" + kMargin + std::string(Columns(before), ' ') +
                    std::string(marks, '^');
  throw failure;
}

}  // namespace Example
