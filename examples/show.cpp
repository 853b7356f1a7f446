// show: certificates, requests and revocation lists with their names and extensions.

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "examples/commands.h"
#include "examples/document_file.h"
#include "examples/failure.h"
#include "examples/findings.h"
#include "examples/general_names.h"
#include "examples/input.h"
#include "examples/progress.h"
#include "examples/show_diff.h"
#include "examples/show_json.h"
#include "examples/show_text.h"
#include "examples/shown.h"
#include "examples/stream/item_octets.h"
#include "examples/text.h"

namespace Example {

namespace {

using Show = Shown (*)(const Source& source, ShowForm form);

// Prints what `show` makes of each document, and remembers whether all of it was in order.
class Printer {
 public:
  Printer(ShowForm form, Show show) : form_(form), show_(show), isJson_(form == ShowForm::kJson) {
    if (isJson_) Print("[\n");
  }
  // Also for what is cut short by a failure: the array is whole.
  ~Printer() {
    if (isJson_) Print("]\n");
  }
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;

  void ShowFile(const std::string& path);
  bool IsSound() const { return isSound_; }

 private:
  void ShowOne(std::size_t number, std::string_view der);
  void Item(const std::string& text);
  // `number` is 0 where the file itself is at fault.
  void Fault(std::size_t number, const std::string& what);
  void Refuse(std::size_t number, const std::string& what);

  ShowForm form_;
  Show show_;
  bool isJson_;
  bool isSound_ = true;
  bool isFirst_ = true;
  std::string path_;
};

// Whole lines, so that others may come between on a terminal.
void Printer::Item(const std::string& text) {
  if (!isJson_) {
    Print(text);
    return;
  }
  Print((isFirst_ ? "" : ",") + text + "\n");
  isFirst_ = false;
}

void Printer::Fault(std::size_t number, const std::string& what) {
  // The lines of both streams in the order of the documents, where they go to one place.
  FinishOutput();
  std::string place = "show: ";
  if (number != 0) place += path_ + ": certificate " + std::to_string(number) + ": ";
  ReportLine(place + what);
  isSound_ = false;
}

void Printer::Refuse(std::size_t number, const std::string& what) {
  if (isJson_) Item(RefusedJson(path_, number, what));
  Fault(number, what);
}

void Printer::ShowOne(std::size_t number, std::string_view der) {
  const Shown shown = show_({path_, number, der}, form_);
  if (!shown.output.empty()) Item(shown.output);
  for (const std::string& fault : shown.faults) Fault(number, fault);
  if (!shown.isSound) isSound_ = false;
}

void Printer::ShowFile(const std::string& path) {
  path_ = path;
  try {
    const std::string file = ReadOctets(path);
    Progress progress(file.size());
    const std::size_t count = ForEachDocument(
        file,
        [this, &progress](std::size_t number, std::string_view der, std::size_t position) {
          progress.HideForOutput();
          ShowOne(number, der);
          progress.Show(number, position);
        },
        [this, &progress](std::size_t number, const std::string& what) {
          progress.Hide();
          Refuse(number, what);
        });
    if (count == 0) Example::Refuse(path + " holds no certificate, request or revocation list");
  } catch (const Failure& failure) {
    Refuse(0, Describe(failure));
  }
}

int ShowFiles(const Arguments& arguments, Show show) {
  const bool isJson = arguments.Has("--json");
  Printer printer(isJson ? ShowForm::kJson : ShowForm::kText, show);
  for (const std::string& path : arguments.operands) {
    if (!isJson && arguments.operands.size() > 1) Print(Visible(Repaired(path)) + ":\n");
    printer.ShowFile(path);
  }
  return printer.IsSound() ? 0 : 1;
}

// All of it in one line: a tab for a line end, which no value has, as it would be shown escaped.
std::string Joined(std::string text, const std::vector<std::string>& faults) {
  for (const std::string& fault : faults) text += "  cannot be read: " + Visible(fault) + "\n";
  text.pop_back();
  std::replace(text.begin(), text.end(), '\n', '\t');
  return text;
}

std::string ShownLine(std::string_view der, bool isJson) {
  const Document document = ReadDocument(der);
  return isJson ? DocumentJson({}, 0, document)
                : Joined(DocumentText(0, document), document.faults);
}

std::string CheckedLine(std::string_view der, bool isJson) {
  const Findings findings = ReadFindings(der);
  return isJson ? FindingsJson({}, 0, findings) : Joined(FindingsText(0, findings), {});
}

ItemWork ShowLines(const Arguments& arguments) {
  arguments.RequireNone({"--diff"}, "--lines");
  const bool isCheck = arguments.Has("--check");
  if (isCheck) arguments.RequireNone({"--library-text"}, "--check");
  SetLibraryText(arguments.Has("--library-text"));
  const auto line = isCheck ? CheckedLine : ShownLine;
  return [line, buffer = std::string()](const Item& item, Answers& answers) mutable {
    const ortholan_octets octets = OctetsOf(item, buffer);
    const std::string_view der(reinterpret_cast<const char*>(octets.data), octets.size);
    if (KindOf(der) == Kind::kPkcs7) {
      Refuse("this is a PKCS #7 bundle, which show opens without --lines");
    }
    answers.AddLine(line(der, answers.IsJson()));
  };
}

int RunShow(const Arguments& arguments) {
  SetLibraryText(arguments.Has("--library-text"));
  return ShowFiles(arguments, ShowDocument);
}

int RunCheck(const Arguments& arguments) {
  arguments.RequireNone({"--diff", "--library-text"}, "--check");
  return ShowFiles(arguments, CheckDocument);
}

}  // namespace

const Command kShowCommand = {
    "show",
    RunShow,
    1,
    kAnyNumber,
    "FILE...",
    "certificates: names and extensions",
    "A FILE holds certificates, certificate requests, revocation lists or PKCS #7 bundles, in PEM "
    "with\n"
    "anything between them, or in DER. Names are shown as text and as a tree; what cannot be read\n"
    "is told on standard error, and the others follow.\n"
    "--check tells what RFC 5280 forbids in names and extensions, with its section; without "
    "--lines\n"
    "the exit status is 1 where there is anything. --diff tells what differs between the names "
    "and\n"
    "extensions of two documents; the exit status is that of equal.\n",
    "x509name show server.pem\n"
    "x509name show --json bundle.pem | jq -r '.[].subject.text'\n"
    "x509name show --check server.pem\n"
    "x509name show --diff old.pem new.pem\n"
    "x509name show --json --lines --jobs 2 log.pem | jq -r .sha256\n",
    {kJsonOption,
     {"--check", nullptr, "what RFC 5280 forbids in them", RunCheck},
     {"--diff", nullptr, "what differs between two", RunShowDiff},
     {"--library-text", nullptr, "the library's own text of each general name, too"}},
    {ShowLines, true}};

}  // namespace Example
