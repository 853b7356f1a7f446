#include "examples/text_failure.h"

#include <algorithm>

#include "examples/failure.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

// Octets of the text that are shown before the place and from it on.
constexpr size_t kBefore = 40;
constexpr size_t kBehind = 30;
constexpr const char* kMargin = "  ";

bool IsFollower(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// Not inside a character.
size_t AtCharacter(const std::string& text, size_t position) {
  while (position != 0 && position < text.size() && IsFollower(text[position])) --position;
  return position;
}

// Columns that UTF-8 text takes, a column a character.
size_t Columns(const std::string& text) {
  return text.size() - static_cast<size_t>(std::count_if(text.begin(), text.end(), IsFollower));
}

}  // namespace

void FailAtText(const std::string& text, const TextPlace& place, const std::string& message) {
  const size_t position = std::min(place.position, text.size());
  const size_t first = AtCharacter(text, position > kBefore ? position - kBefore : 0);
  const size_t end = AtCharacter(text, std::min(text.size(), position + kBehind));
  const size_t met_end = std::min(position + place.length, end);
  const std::string before = VisibleInMessage(text.substr(first, position - first));
  const std::string behind = VisibleInMessage(text.substr(position, end - position));
  const std::string met = VisibleInMessage(text.substr(position, met_end - position));
  const size_t marks = std::max<size_t>(1, Columns(met));
  Failure failure{ERROR_SUCCESS, VisibleInMessage(message)};
  failure.excerpt = kMargin + before + behind + "\n" + kMargin + std::string(Columns(before), ' ') +
                    std::string(marks, '^');
  throw failure;
}

void FailAtText(const std::wstring& text, const NameTextError& error) {
  if (error.fault == NameTextFault::kNone) return;
  const size_t before = ToUtf8(text.substr(0, error.position)).size();
  const size_t met = ToUtf8(text.substr(error.position, error.length)).size();
  FailAtText(ToUtf8(text), {before, met}, ToUtf8(error.message));
}

}  // namespace Example
