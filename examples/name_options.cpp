#include "examples/name_options.h"

#include <ortholan/ortholan_c.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "examples/failure.h"

namespace Example {

using namespace Ortholan;

const Option kUtf8Option = {"--utf8", nullptr, "UTF8String where it would be BMPString"};
const Option kUtf8AlwaysOption = {"--utf8-always", nullptr, "UTF8String for all free text"};
const Option kSeparatorOption = {"--separator", "S",
                                 "what stands between attributes: \",\", \";\" or crlf", nullptr,
                                 ", ; crlf"};
const Option kStyleOption = {"--style", "STYLE", "keys (the default), oids or values", nullptr,
                             "keys oids values"};
const Option kOptionsOption = {"--options", "N",
                               "the same as one number; the manual page has them"};

namespace {

struct OptionWord {
  const char* text;
  DWORD bits;
};
constexpr OptionWord kStyles[] = {
    {"values", ORTHOLAN_STYLE_VALUES}, {"1", ORTHOLAN_STYLE_VALUES},  {"oids", ORTHOLAN_STYLE_OIDS},
    {"2", ORTHOLAN_STYLE_OIDS},        {"keys", ORTHOLAN_STYLE_KEYS}, {"3", ORTHOLAN_STYLE_KEYS},
};
constexpr OptionWord kSeparators[] = {
    {",", ORTHOLAN_ENCODE_COMMA},
    {";", ORTHOLAN_ENCODE_SEMICOLON},
    {"crlf", ORTHOLAN_ENCODE_CRLF},
};
constexpr DWORD kStyleMask = 0xFFFF;
constexpr DWORD kEncoderBits = ORTHOLAN_ENCODE_COMMA | ORTHOLAN_ENCODE_SEMICOLON |
                               ORTHOLAN_ENCODE_CRLF | ORTHOLAN_ENCODE_UTF8 | ORTHOLAN_ENCODE_ALWAYS;
constexpr DWORD kDecoderBits = 3 | ORTHOLAN_SEPARATE_SEMICOLON | ORTHOLAN_SEPARATE_CRLF;

// The bits of the option's word, 0 where it is not given.
template <std::size_t Count>
DWORD WordBits(const Arguments& arguments, const Option& option, const OptionWord (&words)[Count]) {
  const std::optional<std::string> text = arguments.Value(option.name);
  if (!text) return 0;
  const auto* const word =
      std::find_if(std::begin(words), std::end(words),
                   [&text](const OptionWord& each) { return *text == each.text; });
  if (word == std::end(words)) {
    throw UsageError{std::string(option.name) + ": there is no \"" + *text + "\", but " +
                     option.about};
  }
  return word->bits;
}

DWORD Number(const Arguments& arguments, DWORD known, DWORD byDefault) {
  const DWORD number = arguments.Number(kOptionsOption.name, byDefault);
  if ((number & ~known) == 0) return number;
  throw UsageError{"--options: " + *arguments.Value(kOptionsOption.name) +
                   " has bits that mean nothing here; the manual page lists those that do"};
}

}  // namespace

DWORD EncoderOptions(const Arguments& arguments) {
  DWORD options = Number(arguments, kEncoderBits, 0);
  if (arguments.Has(kUtf8Option.name)) options |= ORTHOLAN_ENCODE_UTF8;
  if (arguments.Has(kUtf8AlwaysOption.name)) {
    options |= ORTHOLAN_ENCODE_UTF8 | ORTHOLAN_ENCODE_ALWAYS;
  }
  return options | WordBits(arguments, kSeparatorOption, kSeparators);
}

DWORD DecoderOptions(const Arguments& arguments) {
  DWORD options = Number(arguments, kDecoderBits, ORTHOLAN_STYLE_KEYS);
  const DWORD style = WordBits(arguments, kStyleOption, kStyles);
  if (style != 0) options = (options & ~kStyleMask) | style;
  // A comma is what the decoder puts without being asked.
  return options | (WordBits(arguments, kSeparatorOption, kSeparators) & kDecoderBits);
}

}  // namespace Example
