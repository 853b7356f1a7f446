// permitted: a chain of certificates against the name constraints in it.

#include <cstddef>
#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "examples/commands.h"
#include "examples/document_file.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/kinds.h"
#include "examples/stream/item_octets.h"
#include "examples/text.h"

namespace Example {
namespace {

constexpr std::size_t kAllFindings = 10000;

// Appends the certificates of one file in its order.
void AppendCertificates(const std::string& path, std::vector<std::string>* chain) {
  const std::string file = ReadOctets(path);
  const std::size_t before = chain->size();
  ForEachDocument(
      file,
      [chain](std::size_t, std::string_view der, std::size_t) {
        if (KindOf(der) == Kind::kCertificate) chain->emplace_back(der);
      },
      [&path](std::size_t number, const std::string& what) {
        Refuse(path + ": certificate " + std::to_string(number) + ": " + what);
      });
  if (chain->size() == before) Refuse(path + ": there is no certificate in it");
}

int RunPermitted(const Arguments& arguments) {
  std::vector<std::string> chain;
  for (const std::string& path : arguments.operands) AppendCertificates(path, &chain);

  ortholan::PermitOptions options;
  if (arguments.Has("--all")) options.most_findings = kAllFindings;
  const ortholan::Permission permission = ortholan::Permits({chain.begin(), chain.end()}, options);
  if (permission) {
    Print("permitted\n");
    return 0;
  }
  for (const ortholan::Finding& finding : permission.findings) {
    Print("refused: " + finding.Sentence() + "\n");
  }
  return 1;
}

// The certificates of a chain in as many columns.
ItemWork PermittedLines(const Arguments& arguments) {
  if (arguments.Has("--all")) throw UsageError{"--lines prints one reason, and takes no --all"};
  return [](const Item& item, Answers& answers) {
    std::vector<std::string> chain;
    std::string_view rest = item.text;
    for (std::string_view column; TakeColumn(rest, &column);) {
      OctetsOfText(column, chain.emplace_back());
    }
    const ortholan::Permission permission = ortholan::Permits({chain.begin(), chain.end()});
    if (permission) return answers.AddYes();
    if (permission.findings.empty()) Refuse("no certificates");
    const ortholan::Finding& finding = permission.findings.front();
    const auto code = static_cast<std::uint32_t>(finding.reason);
    if (permission.verdict == ortholan::Verdict::kNo) {
      return answers.AddNo(code, finding.Sentence());
    }
    answers.AddCannotTell(code, finding.Sentence());
  };
}

}  // namespace

const Command kPermittedCommand = {
    "permitted",
    RunPermitted,
    1,
    kAnyNumber,
    "FILE...",
    "a chain against its name constraints",
    "Holds the names of each certificate against the name constraints of those above it, and\n"
    "prints \"permitted\", or \"refused: \" and the reason. The certificates stand from the leaf "
    "up\n"
    "to the authority whose constraints count first; several files are read as one list.\n"
    "Signatures, times and usages are not looked at.\n",
    "x509name permitted chain.pem\n"
    "x509name permitted leaf.pem intermediate.pem root.pem\n",
    {{"--all", nullptr, "every reason, not the first alone"}},
    {PermittedLines}};

}  // namespace Example
