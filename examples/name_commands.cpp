// encode, decode, pairs, equal: a name's text and its octets.

#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_text_error.h>
#include <ortholan/rdn.h>
#include <ortholan/x509_name.h>

#include <list>
#include <string>
#include <utility>

#include "examples/colour.h"
#include "examples/commands.h"
#include "examples/der.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/json.h"
#include "examples/name_options.h"
#include "examples/name_text.h"
#include "examples/stream/item_octets.h"
#include "examples/strict_matching.h"
#include "examples/strict_names.h"
#include "examples/text.h"
#include "examples/text_failure.h"

namespace Example {

using namespace Ortholan;

const Option kJsonOption = {"--json", nullptr,
                            "JSON in place of lines; the manual page has its shape"};

namespace {

// It is a letter of a name's text, where other forms have it take the next character's meaning.
void WarnOfBackslash(const std::wstring& text) {
  const std::size_t place = text.find(L'\\');
  if (place == std::wstring::npos) return;
  ReportLine("encode: warning: the backslash at character " + std::to_string(place + 1) +
             " escapes nothing here and is a part of the value; --rfc4514 takes text with escapes");
}

// Wide text is the one form that means the same whatever the thread's code page.
IdentObj EncodeText(const std::wstring& text, DWORD options, bool sort) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  IdentObj der;
  SetLastError(ERROR_SUCCESS);
  if (encoder.Encode(text, der, sort)) return der;
  const DWORD code = GetLastError();
  FailAtText(text, DescribeNameTextError(text, options));
  Fail(code, "the text cannot be encoded");
}

std::wstring DecodeText(const IdentObj& der, DWORD options) {
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(options);
  std::wstring text;
  SetLastError(ERROR_SUCCESS);
  if (!decoder.Decode(der, text, options)) FailToDecode(GetLastError(), der);
  return text;
}

int RunEncode(const Arguments& arguments) {
  const DWORD options = EncoderOptions(arguments);
  const std::wstring text =
      ReadText(arguments.operands[0], (options & CERT_NAME_STR_CRLF_FLAG) != 0);
  WarnOfBackslash(text);
  const IdentObj der = EncodeText(text, options, arguments.Has("--sort"));
  if (const auto path = arguments.Value("--out")) {
    WriteOctets(*path, der);
  } else {
    Print(Hex(der) + "\n");
  }
  return 0;
}

ItemWork EncodeLines(const Arguments& arguments) {
  if (arguments.Has("--out")) throw UsageError{"--lines prints, and takes no --out"};
  if (arguments.Has(kEncodeRfc4514Option.name)) return EncodeRfc4514Lines(arguments);
  const DWORD options = EncoderOptions(arguments);
  const bool sort = arguments.Has("--sort");
  return [options, sort](const Item& item, Answers& answers) {
    const std::wstring text = FromUtf8(std::string(item.text));
    answers.AddHex("der", View(EncodeText(text, options, sort)));
  };
}

int RunDecode(const Arguments& arguments) {
  RequireRfc4514(arguments);
  const DWORD options = DecoderOptions(arguments);
  const std::wstring text = DecodeText(ReadElement(arguments.operands[0], Kind::kName), options);
  Print((arguments.Has("--json") ? JsonObject().AddText("text", text).End() : Output(text)) + "\n");
  return 0;
}

ItemWork DecodeLines(const Arguments& arguments) {
  if (arguments.Has(kDecodeRfc4514Option.name)) return DecodeRfc4514Lines(arguments);
  RequireRfc4514(arguments);
  return [options = DecoderOptions(arguments)](const Item& item, Answers& answers) {
    const IdentObj der = ReadElementText(std::string(item.text), Kind::kName);
    const std::string text = ToUtf8(DecodeText(der, options));
    answers.AddFreeText("text", answers.IsJson() ? text : Output(text));
  };
}

// A type and the lines of its value.
using Pair = std::pair<std::wstring, std::list<std::wstring>>;

std::string PairLine(const Pair& pair) {
  std::wstring joined;
  for (const std::wstring& value : pair.second) {
    joined += (&value == &pair.second.front() ? L"" : L" | ") + value;
  }
  return Paint(Colour::kKey, Output(pair.first)) + "\t" + Output(joined) + "\n";
}

std::string PairJson(const Pair& pair) {
  std::list<std::string> values;
  for (const std::wstring& value : pair.second) values.push_back(JsonString(value));
  return JsonObject().AddText("type", pair.first).Add("values", JsonArray(values)).End();
}

int RunPairs(const Arguments& arguments) {
  const DWORD style = DecoderOptions(arguments);
  const IdentObj der = ReadElement(arguments.operands[0], Kind::kName);
  X500NameDecoder decoder;
  std::list<Pair> pairs;
  SetLastError(ERROR_SUCCESS);
  if (!decoder.Decode(der, pairs, style)) FailToDecode(GetLastError(), der);
  if (arguments.Has("--json")) {
    std::list<std::string> objects;
    for (const Pair& pair : pairs) objects.push_back(PairJson(pair));
    Print(JsonArray(objects) + "\n");
  } else {
    for (const Pair& pair : pairs) Print(PairLine(pair));
  }
  return 0;
}

X509Name ReadName(const IdentObj& der, const char* what) {
  X509Name name(der);
  std::list<std::list<RDNAttr>> tree;
  SetLastError(ERROR_SUCCESS);
  // An object without octets would be no name, and no failure either.
  if (name.cbData == 0 || !name.TryGetNameInfo(tree)) FailToDecode(GetLastError(), name, what);
  return name;
}

int RunEqual(const Arguments& arguments) {
  RequireRfc5280(arguments);
  const X509Name first =
      ReadName(ReadElement(arguments.operands[0], Kind::kName), "the first name");
  const X509Name second =
      ReadName(ReadElement(arguments.operands[1], Kind::kName), "the second name");
  return first == second ? 0 : 1;
}

ItemWork EqualLines(const Arguments& arguments) {
  if (arguments.Has(kEqualRfc5280Option.name)) return EqualRfc5280Lines(arguments);
  RequireRfc5280(arguments);
  return [](const Item& item, Answers& answers) {
    std::string_view columns[2];
    SplitColumns(item, columns, 2);
    const auto read = [](std::string_view column, const char* what) {
      return ReadName(ReadElementText(std::string(column), Kind::kName), what);
    };
    if (read(columns[0], "the first name") == read(columns[1], "the second name")) {
      answers.AddYes();
    } else {
      answers.AddNo(0, "the attributes are different");
    }
  };
}

}  // namespace

const Command kEncodeCommand = {
    "encode",
    RunEncode,
    1,
    1,
    "TEXT",
    "the DER of a name text",
    "Prints one line of hexadecimal digits. TEXT is a list of type=value; \"-\" reads it from\n"
    "standard input, but for one line end behind it.\n",
    "x509name encode --sort 'CN=Alpha, O=Org, C=RU'\n"
    "x509name encode --utf8 --out name.der 'CN=Альфа, O=\"Org, Ltd\"'\n"
    "x509name encode --rfc4514 --lines <names.txt >names.hex\n",
    {kEncodeRfc4514Option,
     kUtf8Option,
     kUtf8AlwaysOption,
     kSeparatorOption,
     kOptionsOption,
     {"--sort", nullptr, "put the attributes in canonical order, common name last"},
     {"--out", "FILE", "write the octets into FILE"}},
    {EncodeLines}};

const Command kDecodeCommand = {
    "decode",
    RunDecode,
    1,
    1,
    "NAME",
    "the text of a name",
    "Prints the text in one line, or with CR LF as the separator in several.\n",
    "x509name decode 3010310E300C06035504031305416C706861\n"
    "    CN=Alpha\n"
    "x509name encode 'CN=Alpha, C=RU' | x509name decode --separator ';' -\n"
    "x509name decode --json name.der\n",
    {kDecodeRfc4514Option, kExactOption, kLongNamesOption, kStyleOption, kSeparatorOption,
     kOptionsOption, kJsonOption},
    {DecodeLines}};

const Command kPairsCommand = {"pairs",
                               RunPairs,
                               1,
                               1,
                               "NAME",
                               "type and values of each RDN",
                               "Prints a line for each RDN: type, tab, values joined by \" | \".\n",
                               "x509name pairs name.der\n"
                               "x509name pairs --style oids name.der | cut -f 1\n",
                               {kStyleOption, kOptionsOption, kJsonOption}};

const Command kEqualCommand = {
    "equal",
    RunEqual,
    2,
    2,
    "NAME NAME",
    "whether two names hold the same",
    "Exit status 0 for equal names, 1 for others. The order of the attributes and the string\n"
    "types of values do not count, letter case does.\n",
    "x509name equal a.der b.der && echo same\n"
    "x509name equal --rfc5280 issuer.der subject.der\n",
    {kEqualRfc5280Option, kAnyOrderOption},
    {EqualLines}};

}  // namespace Example
