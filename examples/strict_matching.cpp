// equal --rfc5280, within, key: is it the same name, and is it below that one?
#include "examples/strict_matching.h"

#include <ortholan/strict.hpp>
#include <string>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/stream/item_octets.h"
#include "examples/stream/written.h"
#include "examples/text.h"

namespace Example {
namespace {

using Ortholan::IdentObj;

ortholan::Octets OctetsOf(const IdentObj& blob) { return {blob.pbData, blob.cbData}; }

// 0 for a yes; anything else is told on standard error.
int Finish(const ortholan::Match& match) {
  if (match.is_yes()) return 0;
  const bool is_known = match.verdict() == ortholan::Verdict::kNo;
  Refuse((is_known ? "" : "cannot tell: ") + match.Sentence());
}

ortholan::MatchRule EqualRule(const Arguments& arguments) {
  const bool any_order = arguments.Has(kAnyOrderOption.name);
  return any_order ? ortholan::kRfc5280 | ortholan::kAnyOrder : ortholan::kRfc5280;
}

int RunStrictEqual(const Arguments& arguments) {
  const IdentObj first = ReadElement(arguments.operands[0], Kind::kName);
  const IdentObj second = ReadElement(arguments.operands[1], Kind::kName);
  return Finish(ortholan::MatchNames(OctetsOf(first), OctetsOf(second), EqualRule(arguments)));
}

int RunWithin(const Arguments& arguments) {
  const IdentObj subtree = ReadElement(arguments.operands[0], Kind::kName);
  const IdentObj name = ReadElement(arguments.operands[1], Kind::kName);
  return Finish(ortholan::IsWithin(OctetsOf(subtree), OctetsOf(name)));
}

int RunKey(const Arguments& arguments) {
  const IdentObj name = ReadElement(arguments.operands[0], Kind::kName);
  const auto key = ortholan::MatchKey::Of(OctetsOf(name));
  if (!key) Refuse(key.refusal().Sentence());
  Print(Hex(key->octets()) + "\n");
  return 0;
}

// Two columns, of which `judge` makes a verdict.
template <typename Judge>
ItemWork VerdictLines(Judge judge) {
  return [judge, first = std::string(), second = std::string()](const Item& item,
                                                                Answers& answers) mutable {
    std::string_view columns[2];
    SplitColumns(item, columns, 2);
    const ortholan::Match match =
        judge(OctetsOfText(columns[0], first), OctetsOfText(columns[1], second));
    if (match.is_yes()) return answers.AddYes();
    const auto code = static_cast<std::uint32_t>(match.reason());
    if (match.verdict() == ortholan::Verdict::kNo) return answers.AddNo(code, match.Sentence());
    answers.AddCannotTell(code, match.Sentence());
  };
}

ItemWork WithinLines(const Arguments& /*arguments*/) {
  return VerdictLines([](ortholan::Octets subtree, ortholan::Octets name) {
    return ortholan::IsWithin(subtree, name);
  });
}

ItemWork KeyLines(const Arguments& /*arguments*/) {
  return
      [octets = std::string(), room = std::string()](const Item& item, Answers& answers) mutable {
        const ortholan_octets name = OctetsOf(item, octets);
        ortholan::Refusal refusal;
        const auto write = [&](char* out, std::size_t most, std::size_t* size) {
          return ortholan_match_key(name, ORTHOLAN_MATCH_RFC5280, reinterpret_cast<uint8_t*>(out),
                                    most, size, &refusal);
        };
        std::string_view key;
        if (Write(room, &key, write) == ORTHOLAN_REASON_NONE) {
          answers.AddHex("key", key);
        } else {
          answers.AddRefusal(refusal);
        }
      };
}

}  // namespace

ItemWork EqualRfc5280Lines(const Arguments& arguments) {
  return VerdictLines(
      [rule = EqualRule(arguments)](ortholan::Octets first, ortholan::Octets second) {
        return ortholan::MatchNames(first, second, rule);
      });
}

const Option kEqualRfc5280Option = {
    "--rfc5280", nullptr, "as RFC 5280 has it: in order, letter case and blanks do not count",
    RunStrictEqual};
const Option kAnyOrderOption = {"--any-order", nullptr, "with --rfc5280: RDNs in any order"};

void RequireRfc5280(const Arguments& arguments) {
  if (arguments.Has(kAnyOrderOption.name)) throw UsageError{"--any-order goes with --rfc5280"};
}

const Command kWithinCommand = {
    "within",
    RunWithin,
    2,
    2,
    "SUBTREE NAME",
    "whether a name begins with the RDNs of another",
    "Exit status 0 where NAME is SUBTREE itself or below it, 1 for others and where that cannot "
    "be\n"
    "told, with the reason on standard error. Values are compared as RFC 5280 7.1 has it.\n",
    "x509name within --rfc5280 subtree.der name.der && echo below\n",
    {{"--rfc5280", nullptr, "the rule, which is the only one"}},
    {WithinLines}};

const Command kKeyCommand = {
    "key",
    RunKey,
    1,
    1,
    "NAME",
    "octets that are the same for names that are the same",
    "Prints one line of hexadecimal digits, the same exactly for names of which equal --rfc5280 "
    "says\n"
    "yes. The key of a name is the beginning of the keys of all names below it.\n",
    "x509name key name.der\n"
    "x509name key --lines names.hex | sort | uniq -d\n",
    {},
    {KeyLines}};

}  // namespace Example
