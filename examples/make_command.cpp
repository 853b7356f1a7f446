// make: extensions in DER from a description in JSON, and what a request has them in.

#include <algorithm>
#include <cstdint>
#include <optional>
#include <ortholan/strict.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "examples/commands.h"
#include "examples/der.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/nearest.h"
#include "examples/pem.h"
#include "examples/text.h"
#include "examples/text_failure.h"

namespace Example {
namespace {

// What begins as JSON does is the description itself.
std::string ReadDescription(const std::string& operand) {
  constexpr std::string_view kStarts = "{[\"";
  const bool isJson = !operand.empty() && kStarts.find(operand[0]) != std::string_view::npos;
  return isJson ? operand : ReadOctets(operand);
}

// The line that the place is in, marked there.
[[noreturn]] void FailAtPlace(const std::string& json, const ortholan::Refusal& refusal) {
  const std::size_t place = std::min(refusal.offset, json.size());
  const auto front = static_cast<std::ptrdiff_t>(place);
  const auto number = 1 + std::count(json.begin(), json.begin() + front, '\n');
  const std::size_t before = place == 0 ? std::string::npos : json.rfind('\n', place - 1);
  const std::size_t start = before == std::string::npos ? 0 : before + 1;
  std::string_view rest = std::string_view(json).substr(start);
  const std::string line = Repaired(std::string(TakeLine(rest)));
  FailAtText(line, {place - start, 1},
             "line " + std::to_string(number) + ": " + ortholan_reason_sentence(refusal.reason));
}

[[noreturn]] void RefuseType(const std::string& type) {
  std::vector<std::string> names;
  for (const ortholan::ExtensionType& known : ortholan::KnownExtensions()) {
    names.emplace_back(known.name);
  }
  Refuse("there is no extension " + type + DidYouMean(type, names));
}

using Made = ortholan::Result<std::vector<std::uint8_t>>;

Made Make(const std::optional<std::string>& type, const std::string& json) {
  if (!type) return ortholan::ExtensionsFromJson(json);
  if (!ortholan::ExtensionOid(*type)) RefuseType(*type);
  return ortholan::ExtensionFromJson(*type, json);
}

std::vector<std::uint8_t> RequestOf(const std::vector<std::uint8_t>& extensions) {
  const Made attribute = ortholan::WriteExtensionRequest(extensions);
  if (!attribute) Refuse("a request has a list of extensions, and this is one extension");
  return *attribute;
}

void RequireOneForm(const Arguments& arguments) {
  const auto exclude = [&arguments](const char* option, const char* other) {
    if (!arguments.Has(option) || !arguments.Has(other)) return;
    throw UsageError{std::string(option) + " does not go with " + other};
  };
  exclude("--request", "--value");
  exclude("--base64", "--out");
}

int RunMake(const Arguments& arguments) {
  RequireOneForm(arguments);
  const std::string json = ReadDescription(arguments.operands[0]);
  const Made made = Make(arguments.Value("--value"), json);
  if (!made && made.refusal().offset == ORTHOLAN_NO_PLACE) Refuse(made.refusal().Sentence());
  if (!made) FailAtPlace(json, made.refusal());
  const std::vector<std::uint8_t> der = arguments.Has("--request") ? RequestOf(*made) : *made;
  const Ortholan::IdentObj octets(der.data(), static_cast<Ortholan::DWORD>(der.size()));
  if (const auto path = arguments.Value("--out")) {
    WriteOctets(*path, octets);
  } else {
    Print(arguments.Has("--base64") ? Base64Lines(View(octets)) : Hex(octets) + "\n");
  }
  return 0;
}

}  // namespace

const Command kMakeCommand = {
    "make",
    RunMake,
    1,
    1,
    "JSON",
    "extensions in DER from their description",
    "JSON is a file, - for standard input, or the text itself. An object is one extension, an "
    "array\n"
    "a list of them, as `show --json` has them: name or oid, critical, value; with --value it is "
    "the\n"
    "value of that extension alone, with --request an array becomes the attribute that a request\n"
    "has its extensions in.\n",
    "x509name make --value basicConstraints '{\"cA\":true,\"pathLenConstraint\":0}'\n"
    "    30060101FF020100\n"
    "x509name make '{\"name\":\"extKeyUsage\",\"value\":[\"serverAuth\"]}'\n"
    "x509name make --out extensions.der extensions.json\n"
    "x509name make --request --base64 extensions.json\n",
    {{"--value", "EXTENSION", "the value of one extension, by name or identifier"},
     {"--request", nullptr, "the attribute extensionRequest of PKCS #9"},
     {"--base64", nullptr, "base64 in lines of 64 characters"},
     {"--out", "FILE", "write the octets into FILE"}}};

}  // namespace Example
