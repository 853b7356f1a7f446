// show: certificates with their names as trees, and their extensions.

#include <cstddef>
#include <string>

#include "examples/certificate.h"
#include "examples/certificate_reading.h"
#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/progress.h"
#include "examples/show_json.h"
#include "examples/show_text.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

// Prints what it is given and remembers whether all of it was in order.
class Printer {
 public:
  explicit Printer(bool isJson) : isJson_(isJson) {
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
  void ShowCertificate(std::size_t number, const std::string& der, Progress& progress);
  void Item(const std::string& text);
  // `number` is 0 where the file itself is at fault.
  void Fault(std::size_t number, const Failure& failure);
  void Refuse(std::size_t number, const Failure& failure);

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

void Printer::Fault(std::size_t number, const Failure& failure) {
  // The lines of both streams in the order of the certificates, where they go to one place.
  FinishOutput();
  std::string place = "show: ";
  if (number != 0) place += path_ + ": certificate " + std::to_string(number) + ": ";
  ReportLine(place + Describe(failure));
  isSound_ = false;
}

void Printer::Refuse(std::size_t number, const Failure& failure) {
  if (isJson_) Item(FaultJson(path_, number, failure));
  Fault(number, failure);
}

void Printer::ShowCertificate(std::size_t number, const std::string& der, Progress& progress) {
  progress.HideForOutput();
  try {
    const CertificateReading certificate = ReadWholeCertificate(der);
    Item(isJson_ ? CertificateJson(path_, number, certificate)
                 : CertificateText(number, certificate));
    if (!certificate.faults.empty()) progress.Hide();
    for (const Failure& fault : certificate.faults) Fault(number, fault);
  } catch (const Failure& failure) {
    progress.Hide();
    Refuse(number, failure);
  }
}

void Printer::ShowFile(const std::string& path) {
  path_ = path;
  try {
    const std::string file = ReadOctets(path);
    Progress progress(file.size());
    const std::size_t count = ForEachCertificate(
        file,
        [this, &progress](std::size_t number, const std::string& der, std::size_t position) {
          ShowCertificate(number, der, progress);
          progress.Show(number, position);
        },
        [this, &progress](std::size_t number, const std::string& what) {
          progress.Hide();
          Refuse(number, {ERROR_SUCCESS, what});
        });
    if (count == 0) Example::Refuse(path + " holds no certificate");
  } catch (const Failure& failure) {
    Refuse(0, failure);
  }
}

int RunShow(const Arguments& arguments) {
  const bool isJson = arguments.Has("--json");
  Printer printer(isJson);
  for (const std::string& path : arguments.operands) {
    if (!isJson && arguments.operands.size() > 1) Print(Visible(FromUtf8(path)) + ":\n");
    printer.ShowFile(path);
  }
  return printer.IsSound() ? 0 : 1;
}

}  // namespace

const Command kShowCommand = {
    "show",
    RunShow,
    1,
    kAnyNumber,
    "FILE...",
    "certificates: names and extensions",
    "A FILE holds certificates, in PEM with anything between them, or in DER. Subject and issuer\n"
    "are shown as text and as a tree; what cannot be read is told on standard error, and the\n"
    "others follow.\n",
    "x509name show server.pem\n"
    "x509name show --json bundle.pem | jq -r '.[].subject.text'\n",
    {kJsonOption}};

}  // namespace Example
