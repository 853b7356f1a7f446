// identify: is a certificate for that host, address, mailbox, URI or service?

#include <algorithm>
#include <iterator>
#include <ortholan/strict.hpp>
#include <string>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/stream/item_octets.h"
#include "examples/text.h"

namespace Example {
namespace {

constexpr std::size_t kMostExplained = 20;

struct ReferenceRow {
  const char* option;
  ortholan::Reference (*make)(std::string_view text);
};

const ReferenceRow kReferences[] = {
    {"--host", ortholan::Reference::Host},     {"--ip", ortholan::Reference::Address},
    {"--email", ortholan::Reference::Mailbox}, {"--uri", ortholan::Reference::Uri},
    {"--srv", ortholan::Reference::Service},
};

// The one question of the command line, null where there is none.
const ReferenceRow* FindReference(const Arguments& arguments) {
  const ReferenceRow* found = nullptr;
  for (const ReferenceRow& row : kReferences) {
    if (!arguments.Has(row.option)) continue;
    if (found != nullptr) {
      throw UsageError{std::string(found->option) + " and " + row.option +
                       " are two questions; ask one at a time"};
    }
    found = &row;
  }
  return found;
}

ortholan::Reference MakeReference(const ReferenceRow& row, std::string_view text,
                                  const Arguments& arguments) {
  const ortholan::Reference reference = row.make(text);
  return arguments.Has("--no-underscore") ? reference.WithoutUnderscores() : reference;
}

// A line for each name of the certificate, and why it is not the one.
std::string Explain(const ortholan::Identity& identity) {
  std::string lines;
  std::size_t count = 0;
  for (const ortholan::Mismatch& mismatch : identity.Mismatches()) {
    if (++count > kMostExplained) continue;
    if (!lines.empty()) lines += '\n';
    const std::string text = mismatch.Text();
    lines +=
        "  " +
        (text.empty() ? Hex(std::string_view(reinterpret_cast<const char*>(mismatch.name.data()),
                                             mismatch.name.size()))
                      : text) +
        ": " + mismatch.Sentence();
  }
  if (count > kMostExplained) {
    lines += "\n  and " + std::to_string(count - kMostExplained) + " more";
  }
  return lines;
}

int RunIdentify(const Arguments& arguments) {
  const ReferenceRow* const found = FindReference(arguments);
  if (found == nullptr) throw UsageError{"one of --host, --ip, --email, --uri, --srv is needed"};
  const ReferenceRow& row = *found;
  const std::string text = *arguments.Value(row.option);
  const Ortholan::IdentObj der = ReadElement(arguments.operands[0], Kind::kCertificate);
  const auto identity =
      ortholan::Identify({der.pbData, der.cbData}, MakeReference(row, text, arguments));
  if (!identity) {
    Refuse(std::string(row.option) + " " + text + ": " + identity.refusal().Sentence());
  }
  if (identity->matches()) {
    Print(Output(identity->match().Text()) + "\n");
    return 0;
  }
  const bool is_known = identity->verdict() == ortholan::Verdict::kNo;
  throw Failure{0, (is_known ? "" : "cannot tell: ") + identity->refusal().Sentence(),
                Explain(*identity)};
}

void AddIdentity(ortholan::Octets certificate, const ortholan::Reference& reference,
                 Answers& answers) {
  const auto identity = ortholan::Identify(certificate, reference);
  if (!identity) return answers.AddRefusal(identity.refusal());
  if (identity->matches()) return answers.AddYes("name", identity->match().Text());
  const ortholan::Refusal& why = identity->refusal();
  const auto code = static_cast<std::uint32_t>(why.reason);
  if (identity->verdict() == ortholan::Verdict::kNo) return answers.AddNo(code, why.Sentence());
  answers.AddCannotTell(code, why.Sentence());
}

// The question in the columns in front of the certificate: "host", "www.example.org".
ItemWork IdentifyColumns(const Arguments& arguments) {
  return [arguments, octets = std::string()](const Item& item, Answers& answers) mutable {
    std::string_view columns[3];
    SplitColumns(item, columns, 3);
    const auto* const row =
        std::find_if(std::begin(kReferences), std::end(kReferences),
                     [&](const ReferenceRow& each) { return columns[0] == each.option + 2; });
    if (row == std::end(kReferences)) {
      Refuse("the first column is none of host, ip, email, uri, srv");
    }
    AddIdentity(OctetsOfText(columns[2], octets), MakeReference(*row, columns[1], arguments),
                answers);
  };
}

ItemWork IdentifyLines(const Arguments& arguments) {
  const ReferenceRow* const row = FindReference(arguments);
  if (row == nullptr) return IdentifyColumns(arguments);
  return [row, arguments, text = *arguments.Value(row->option), octets = std::string()](
             const Item& item, Answers& answers) mutable {
    AddIdentity(OctetsOf(item, octets), MakeReference(*row, text, arguments), answers);
  };
}

}  // namespace

const Command kIdentifyCommand = {
    "identify",
    RunIdentify,
    1,
    1,
    "CERT",
    "whether a certificate is for a host, address, mailbox, URI or service",
    "Looks into the subject alternative names by RFC 9525, and prints the one that matches. "
    "Signature,\n"
    "validity, usage and revocation are not looked at.\n",
    "x509name identify --host www.example.org server.pem\n"
    "    DNS:*.example.org\n"
    "x509name identify --host www.example.org --lines bundle.pem\n",
    {
        {"--host", "HOST", "a host name; letters beyond ASCII as A-labels"},
        {"--ip", "ADDRESS", "an IPv4 or IPv6 address"},
        {"--email", "MAILBOX", "a mailbox; the case of its local part counts"},
        {"--uri", "URI", "a URI, of which scheme and host count"},
        {"--srv", "SERVICE", "a service: _imaps.example.org"},
        {"--no-underscore", nullptr, "hosts with an underscore are no hosts"},
    },
    {IdentifyLines, true}};

}  // namespace Example
