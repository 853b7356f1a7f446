// equal --rfc5280, within, key: is it the same name, and is it below that one?
#include "examples/strict_matching.h"

#include <ortholan/strict.hpp>
#include <string>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
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

int RunStrictEqual(const Arguments& arguments) {
  const IdentObj first = ReadElement(arguments.operands[0], Kind::kName);
  const IdentObj second = ReadElement(arguments.operands[1], Kind::kName);
  const bool any_order = arguments.Has(kAnyOrderOption.name);
  const ortholan::MatchRule rule =
      any_order ? ortholan::kRfc5280 | ortholan::kAnyOrder : ortholan::kRfc5280;
  return Finish(ortholan::MatchNames(OctetsOf(first), OctetsOf(second), rule));
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

}  // namespace

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
    {{"--rfc5280", nullptr, "the rule, which is the only one"}}};

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
    "x509name key name.der\n",
    {}};

}  // namespace Example
