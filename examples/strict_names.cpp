#include "examples/strict_names.h"

#include <ortholan/strict.hpp>
#include <string>

#include "examples/failure.h"
#include "examples/input.h"
#include "examples/stream/item_octets.h"
#include "examples/stream/written.h"
#include "examples/text.h"
#include "examples/text_failure.h"

namespace Example {
namespace {

ortholan::Rfc4514 TextOptions(const Arguments& arguments) {
  ortholan::Rfc4514 options;
  if (arguments.Has("--utf8-always")) options.strings = ortholan::StringPolicy::kUtf8;
  options.long_names = arguments.Has("--long-names");
  options.exact = arguments.Has("--exact");
  return options;
}

ortholan::Rfc4514 EncodeOptions(const Arguments& arguments) {
  arguments.RequireNone({"--utf8", "--separator", "--options", "--sort"}, "--rfc4514");
  return TextOptions(arguments);
}

ortholan::Rfc4514 DecodeOptions(const Arguments& arguments) {
  arguments.RequireNone({"--style", "--separator", "--options"}, "--rfc4514");
  return TextOptions(arguments);
}

ortholan::Name Encode(const std::string& text, const ortholan::Rfc4514& options) {
  const ortholan::Result<ortholan::Name> name = ortholan::Name::FromText(text, options);
  if (name) return *name;
  const ortholan::NameTextError error = ortholan::ExplainNameText(text, name.refusal());
  FailAtText(text, {error.position, error.met.size()}, error.message);
}

// One name; none holds a line end that is not escaped.
std::string ReadOne(const std::string& operand) {
  const std::string text = ToUtf8(ReadText(operand, true));
  if (operand == "-" && text.find('\n') != std::string::npos) {
    Refuse(
        "standard input has several lines: --lines takes a name a line, and a line end of a "
        "value is written \\0A");
  }
  return text;
}

Ortholan::IdentObj DerOf(const ortholan::Name& name) {
  return {name.der().data(), static_cast<Ortholan::DWORD>(name.der().size())};
}

std::string Decode(const Ortholan::IdentObj& der, const ortholan::Rfc4514& options) {
  const auto name = ortholan::NameView::Read({der.pbData, der.cbData});
  if (!name) Refuse("the name is no DER: " + name.refusal().Sentence());
  const ortholan::Result<std::string> text = name->ToText(options);
  if (!text) Refuse(text.refusal().Sentence());
  return *text;
}

int RunEncodeRfc4514(const Arguments& arguments) {
  const ortholan::Rfc4514 options = EncodeOptions(arguments);
  const Ortholan::IdentObj der = DerOf(Encode(ReadOne(arguments.operands[0]), options));
  if (const auto path = arguments.Value("--out")) {
    WriteOctets(*path, der);
  } else {
    Print(Hex(der) + "\n");
  }
  return 0;
}

int RunDecodeRfc4514(const Arguments& arguments) {
  arguments.RequireNone({"--json"}, "--rfc4514");
  const ortholan::Rfc4514 options = DecodeOptions(arguments);
  Print(Decode(ReadElement(arguments.operands[0], Kind::kName), options) + "\n");
  return 0;
}

}  // namespace

const Option kEncodeRfc4514Option = {"--rfc4514", nullptr, "TEXT is that of RFC 4514",
                                     RunEncodeRfc4514};
const Option kDecodeRfc4514Option = {"--rfc4514", nullptr, "text of RFC 4514, safe to show",
                                     RunDecodeRfc4514};
const Option kExactOption = {"--exact", nullptr,
                             "with --rfc4514: text that encode takes back to the very octets"};
const Option kLongNamesOption = {"--long-names", nullptr,
                                 "with --rfc4514: commonName in place of CN"};

namespace {

// As the C functions take them. There are no names of types among them.
ortholan_rfc4514_options PlainOptions(const ortholan::Rfc4514& options) {
  ortholan_rfc4514_options plain = {};
  plain.strings = static_cast<int32_t>(options.strings);
  plain.long_names = options.long_names ? 1 : 0;
  plain.exact = options.exact ? 1 : 0;
  return plain;
}

void AddTextRefusal(std::string_view text, const ortholan::Refusal& refusal, Answers& answers) {
  answers.AddRefusal(static_cast<std::uint32_t>(refusal.reason),
                     ortholan::ExplainNameText(text, refusal).message);
}

}  // namespace

// Both write into memory that serves the next item again: nothing is allocated for a name.
ItemWork EncodeRfc4514Lines(const Arguments& arguments) {
  const ortholan_rfc4514_options options = PlainOptions(EncodeOptions(arguments));
  return [options, room = std::string()](const Item& item, Answers& answers) mutable {
    ortholan::Refusal refusal;
    const auto write = [&](char* out, std::size_t most, std::size_t* size) {
      return ortholan_rfc4514_read(ortholan::ToText(item.text), &options,
                                   reinterpret_cast<uint8_t*>(out), most, size, &refusal);
    };
    std::string_view der;
    if (Write(room, &der, write) == ORTHOLAN_REASON_NONE) {
      answers.AddHex("der", der);
    } else {
      AddTextRefusal(item.text, refusal, answers);
    }
  };
}

ItemWork DecodeRfc4514Lines(const Arguments& arguments) {
  const ortholan_rfc4514_options options = PlainOptions(DecodeOptions(arguments));
  return [options, octets = std::string(), room = std::string()](const Item& item,
                                                                 Answers& answers) mutable {
    ortholan_name_view name;
    ortholan::Refusal refusal;
    const auto write = [&](char* out, std::size_t most, std::size_t* size) {
      return ortholan_rfc4514_write(&name, &options, out, most, size, &refusal);
    };
    std::string_view text;
    if (ortholan_name_view_read(OctetsOf(item, octets), ORTHOLAN_READ_DER, &name, &refusal) == 0 &&
        Write(room, &text, write) == ORTHOLAN_REASON_NONE) {
      answers.AddText("text", text);
    } else {
      answers.AddRefusal(refusal);
    }
  };
}

StrictName ReadStrictName(std::string_view der) {
  const auto name = ortholan::NameView::Read(der);
  if (!name) return {{}, name.refusal().Sentence()};
  const ortholan::Result<std::string> text = name->ToText();
  if (!text) return {{}, text.refusal().Sentence()};
  return {*text, {}};
}

void RequireRfc4514(const Arguments& arguments) {
  for (const Option& option : {kExactOption, kLongNamesOption}) {
    if (arguments.Has(option.name)) throw UsageError{std::string(option.name) + " needs --rfc4514"};
  }
}

}  // namespace Example
