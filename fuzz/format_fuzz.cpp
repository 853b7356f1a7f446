// CZEPString against std::string: formats put together from conversions that fit the arguments,
// and the string operations on strings that share their texts.
#include <ortholan/zep_string.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "bytes/ascii.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

constexpr size_t kStrings = 4;
// Longer inputs are only slower.
constexpr size_t kMaxInput = 256;
constexpr size_t kMaxLength = 1u << 12;

// A conversion of a text: how it is written, the width and the precision.
struct TextRow {
  const char* conversion;
  int width;
  size_t precision;
};
constexpr TextRow kTexts[] = {
    {"%s", 0, std::string::npos},
    {"%10s", 10, std::string::npos},
    {"%-12s", -12, std::string::npos},
    {"%.3s", 0, 3},
    {"%.0s", 0, 0},
    {"%-6.2s", -6, 2},
    {"%300s", 300, std::string::npos},
};
constexpr const char* kIntegers[] = {"%d", "%+d", "%08d", "%-8d", "%.5d", "%i", "%x", "%#X", "%o"};
constexpr const char* kLiterals[] = {"", " ", "%%", "name=", "%%d", "\xD0\xB9", "\n"};

std::string TextBetween(const char* literal) {
  std::string text;
  for (const char* c = literal; *c != '\0'; ++c) {
    if (c[0] == '%') ++c;
    text.push_back(*c);
  }
  return text;
}

std::string Padded(std::string text, const TextRow& row) {
  text = text.substr(0, std::min(text.find('\0'), row.precision));
  const size_t width = static_cast<size_t>(row.width < 0 ? -row.width : row.width);
  const size_t missing = width > text.size() ? width - text.size() : 0;
  return row.width < 0 ? text + std::string(missing, ' ') : std::string(missing, ' ') + text;
}

std::string Integer(const char* conversion, int value) {
  char text[64];
  const int length = std::snprintf(text, sizeof(text), conversion, value);
  return std::string(text, static_cast<size_t>(length));
}

// A string and what it should hold.
struct Pair {
  CZEPString string;
  std::string text;
};

int Sign(int order) { return (order > 0) - (order < 0); }

void CheckSame(const Pair& pair) {
  LAW(static_cast<size_t>(pair.string.GetLength()) == pair.text.size());
  LAW(std::string(pair.string.c_str(), pair.text.size() + 1) ==
      std::string(pair.text.c_str(), pair.text.size() + 1));
}

std::string Folded(std::string text) {
  for (char& c : text) c = ToAsciiLower(c);
  return text;
}

void CheckCompared(const Pair& a, const Pair& b) {
  const int order = Sign(a.text.compare(b.text));
  const bool empty = a.text.empty() || b.text.empty();
  LAW((a.string == b.string) == (order == 0) && (a.string != b.string) == (order != 0));
  LAW((a.string < b.string) == (!empty && order < 0));
  LAW((a.string > b.string) == (!empty && order > 0));
  LAW(a.string.Compare(b.string, false, false) == order);
  LAW(a.string.Compare(b.string, true, false) == Sign(Folded(a.text).compare(Folded(b.text))));
  LAW(a.string.Compare(b.string, false, true) == -b.string.Compare(a.string, false, true));
}

// Both texts between literals, and a number; the texts may be the string's own.
void Format(Input* input, Pair* to, const Pair& first, const Pair& second) {
  const TextRow& row = input->Pick(kTexts);
  const TextRow& other = input->Pick(kTexts);
  const char* const integer = input->Pick(kIntegers);
  const char* const front = input->Pick(kLiterals);
  const char* const back = input->Pick(kLiterals);
  const int value = static_cast<int>(input->Word());
  const std::string expected = TextBetween(front) + Padded(first.text, row) +
                               Integer(integer, value) + TextBetween(back) +
                               Padded(second.text, other);
  const std::string format =
      std::string(front) + row.conversion + integer + back + other.conversion;
  to->string.Format(format.c_str(), first.string.c_str(), value, second.string.c_str());
  to->text = expected;
}

void Step(Input* input, Pair (&pairs)[kStrings]) {
  const uint8_t step = input->Byte();
  Pair& to = pairs[step >> 4 & 3];
  const Pair& from = pairs[step >> 6];
  switch (step % 9) {
    case 0: {
      const std::string text = input->ShortText();
      to = {CZEPString(text.data(), text.size()), text};
      break;
    }
    case 1:
      to.string = from.string;
      to.text = std::string(from.text);
      break;
    case 2:
      if (to.text.size() + from.text.size() > kMaxLength) break;
      to.string += from.string;
      to.text += std::string(from.text);
      break;
    case 3: {
      const char c = static_cast<char>(input->Byte());
      to.string += c;
      to.text += c;
      break;
    }
    case 4:
      Format(input, &to, from, pairs[input->Below(kStrings)]);
      break;
    case 5:
      to.string = CZEPString(from.string.c_str());
      to.text = std::string(from.text.c_str());
      break;
    case 6: {
      CZEPString moved(std::move(to.string));
      to.string = std::move(moved);
      break;
    }
    case 7: {
      const char c = static_cast<char>(input->Byte());
      to = {CZEPString(c), std::string(1, c)};
      break;
    }
    default:
      if (to.text.size() >= kMaxLength) break;
      to.string += to.string.c_str();
      to.text += std::string(to.text.c_str());
      break;
  }
}

}  // namespace

void FuzzFormat(const uint8_t* data, size_t size) {
  Input input(data, std::min(size, kMaxInput));
  Pair pairs[kStrings];
  while (!input.AtEnd()) {
    Step(&input, pairs);
    for (const Pair& pair : pairs) CheckSame(pair);
    CheckCompared(pairs[0], pairs[1]);
    CheckCompared(pairs[2], pairs[1]);
  }
}

}  // namespace Ortholan::fuzzing
