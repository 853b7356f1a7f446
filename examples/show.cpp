// show: certificates with their names as trees, and their extensions.

#include <ortholan/cert_extension.h>
#include <ortholan/platform.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "examples/certificate.h"
#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/general_name_view.h"
#include "examples/input.h"
#include "examples/name_view.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

struct ExtensionName {
  const char* oid;
  const char* name;
  bool isGeneralNames = false;
};

constexpr ExtensionName kExtensionNames[] = {
    {"2.5.29.7", "Subject Alternative Name (superseded)", true},
    {"2.5.29.8", "Issuer Alternative Name (superseded)", true},
    {"2.5.29.9", "Subject Directory Attributes"},
    {"2.5.29.14", "Subject Key Identifier"},
    {"2.5.29.15", "Key Usage"},
    {"2.5.29.16", "Private Key Usage Period"},
    {"2.5.29.17", "Subject Alternative Name", true},
    {"2.5.29.18", "Issuer Alternative Name", true},
    {"2.5.29.19", "Basic Constraints"},
    {"2.5.29.30", "Name Constraints"},
    {"2.5.29.31", "CRL Distribution Points"},
    {"2.5.29.32", "Certificate Policies"},
    {"2.5.29.33", "Policy Mappings"},
    {"2.5.29.35", "Authority Key Identifier"},
    {"2.5.29.36", "Policy Constraints"},
    {"2.5.29.37", "Extended Key Usage"},
    {"2.5.29.46", "Freshest CRL"},
    {"2.5.29.54", "Inhibit anyPolicy"},
    {"1.2.643.100.111", "Subject Sign Tool"},
    {"1.2.643.100.112", "Issuer Sign Tool"},
    {"1.2.840.113549.1.9.15", "S/MIME Capabilities"},
    {"1.3.6.1.4.1.311.20.2", "Certificate Template Name"},
    {"1.3.6.1.4.1.311.21.1", "CA Version"},
    {"1.3.6.1.4.1.311.21.2", "Previous CA Certificate Hash"},
    {"1.3.6.1.4.1.311.21.7", "Certificate Template"},
    {"1.3.6.1.4.1.311.21.10", "Application Policies"},
    {"1.3.6.1.4.1.11129.2.4.2", "Signed Certificate Timestamps"},
    {"1.3.6.1.4.1.11129.2.4.3", "Precertificate Poison"},
    {"1.3.6.1.5.5.7.1.1", "Authority Information Access"},
    {"1.3.6.1.5.5.7.1.3", "Qualified Certificate Statements"},
    {"1.3.6.1.5.5.7.1.11", "Subject Information Access"},
    {"1.3.6.1.5.5.7.1.24", "TLS Feature"},
    {"1.3.6.1.5.5.7.48.1.5", "OCSP No Check"},
    {"2.16.840.1.113730.1.1", "Netscape Certificate Type"},
    {"2.16.840.1.113730.1.13", "Netscape Comment"},
};

// Prints certificates and remembers whether all of them were in order.
class Printer {
 public:
  explicit Printer(std::string path) : path_(std::move(path)) {}

  void Show(std::size_t number, const std::string& der);
  void Bad(std::size_t number, const std::string& what);
  bool IsSound() const { return isSound_; }

 private:
  void ShowName(const char* role, const IdentObj& name);
  void ShowExtension(const IdentObj& record);

  std::string path_;
  std::size_t number_ = 0;
  bool isSound_ = true;
};

void Printer::Bad(std::size_t number, const std::string& what) {
  // The lines of both streams in the order of the certificates, where they go to one place.
  FinishOutput();
  ReportLine("show: " + path_ + ": certificate " + std::to_string(number) + ": " + what);
  isSound_ = false;
}

void Printer::ShowName(const char* role, const IdentObj& name) {
  const NameText text = ReadNameText(name);
  const std::string shown = text.accepted ? Visible(text.text) : "(refused: " + text.reason + ")";
  Print("  " + std::string(role) + ": " + shown + "\n");
  PrintNameTree(name, "    ");
  if (text.accepted || text.isMultiValued) return;
  std::string what = std::string(role) + " cannot be decoded";
  if (text.code == ERROR_SUCCESS) what += " (" + text.reason + ")";
  Bad(number_, Describe({text.code, what}));
}

void Printer::ShowExtension(const IdentObj& record) {
  CertExtension extension;
  int error = 0;
  if (extension.ReadData(record.pbData, record.cbData, &error) == 0) {
    Print("    (unreadable) " + SpacedHex(record) + "\n");
    Bad(number_, Describe({static_cast<DWORD>(error), "an extension cannot be read"}));
    return;
  }
  const std::string oid(reinterpret_cast<const char*>(extension.oid.pbData), extension.oid.cbData);
  const auto* const row =
      std::find_if(std::begin(kExtensionNames), std::end(kExtensionNames),
                   [&oid](const ExtensionName& entry) { return entry.oid == oid; });
  const bool isKnown = row != std::end(kExtensionNames);
  std::string line = "    " + oid;
  if (isKnown) line += " " + std::string(row->name);
  line += extension.critical != FALSE ? ", critical:" : ", not critical:";
  if (!isKnown || !row->isGeneralNames) {
    Print(line + " " + SpacedHex(extension.value) + "\n");
    return;
  }
  Print(line + "\n");
  if (!PrintGeneralNames(extension.value, "      ")) {
    Bad(number_,
        Describe({static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT), "a general name cannot be read"}));
  }
}

void Printer::Show(std::size_t number, const std::string& der) {
  number_ = number;
  Certificate certificate;
  try {
    certificate = ReadCertificate(der);
  } catch (const Failure& failure) {
    Bad(number, Describe(failure));
    return;
  }
  Print("certificate " + std::to_string(number) + "\n");
  ShowName("subject", certificate.subject);
  ShowName("issuer", certificate.issuer);
  if (!certificate.extensions.empty()) Print("  extensions:\n");
  for (const IdentObj& record : certificate.extensions) ShowExtension(record);
}

bool ShowFile(const std::string& path) {
  Printer printer(path);
  try {
    const std::size_t count = ForEachCertificate(
        ReadOctets(path),
        [&printer](std::size_t number, const std::string& der) { printer.Show(number, der); },
        [&printer](std::size_t number, const std::string& what) {
          printer.Bad(number, Describe({ERROR_INVALID_DATA, what}));
        });
    if (count == 0) Fail(ERROR_INVALID_DATA, path + " holds no certificate");
  } catch (const Failure& failure) {
    ReportLine("show: " + Describe(failure));
    return false;
  }
  return printer.IsSound();
}

}  // namespace

int RunShow(const Arguments& arguments) {
  int status = 0;
  for (const std::string& path : arguments.operands) {
    if (arguments.operands.size() > 1) Print(Visible(FromUtf8(path)) + ":\n");
    if (!ShowFile(path)) status = 1;
  }
  return status;
}

}  // namespace Example
