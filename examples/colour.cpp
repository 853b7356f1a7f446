#include "examples/colour.h"

#include <cstdlib>

namespace Example {
namespace {

bool HasColour(Stream stream) {
  static const bool isWanted = [] {
    const char* const noColour = std::getenv("NO_COLOR");
    return noColour == nullptr || *noColour == '\0';
  }();
  return isWanted && IsTerminal(stream);
}

// Of the eight colours that every scheme sets; none of black and white.
const char* Sequence(Colour colour) {
  switch (colour) {
    case Colour::kHeading:
      return "\x1B[1m";
    case Colour::kKey:
      return "\x1B[36m";
    case Colour::kNotable:
      return "\x1B[33m";
    case Colour::kFault:
      return "\x1B[31m";
  }
  return "";
}

}  // namespace

std::string Paint(Colour colour, const std::string& text, Stream stream) {
  if (text.empty() || !HasColour(stream)) return text;
  return Sequence(colour) + text + "\x1B[0m";
}

}  // namespace Example
