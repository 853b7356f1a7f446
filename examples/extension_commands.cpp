// One extension record, one general name.

#include <ortholan/cert_extension.h>
#include <ortholan/general_name.h>

#include <string>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

int RunExtension(const Arguments& arguments) {
  const IdentObj record = ReadElement(arguments.operands[0], Kind::kExtension);
  CertExtension extension;
  int error = 0;
  if (extension.ReadData(record.pbData, record.cbData, &error) == 0) {
    Fail(static_cast<DWORD>(error), "the extension cannot be read");
  }
  const IdentObj written = extension.WriteData(&error);
  if (error != 0) Fail(static_cast<DWORD>(error), "the extension cannot be written");

  const std::string oid(reinterpret_cast<const char*>(extension.oid.pbData), extension.oid.cbData);
  Print(oid + "\n");
  Print(extension.critical != FALSE ? "critical\n" : "not critical\n");
  Print(Hex(extension.value) + "\n");
  Print(Hex(written) + "\n");
  return 0;
}

int RunGeneralName(const Arguments& arguments) {
  GeneralName name = GeneralName::DerDecode(ReadElement(arguments.operands[0], Kind::kGeneralName));
  const std::string text = Output(name.ToString(0, 0));
  Print(std::to_string(name.GetTag()) + "\t" + text + "\n");
  return 0;
}

}  // namespace

const Command kExtensionCommand = {
    "extension",
    RunExtension,
    1,
    1,
    "RECORD",
    "one certificate extension",
    "Prints identifier, critical or not, value, and the record written anew, a line each.\n",
    "x509name extension 300E0603551D0F0101FF0404030205A0\n",
    {}};

const Command kGeneralNameCommand = {"general-name",
                                     RunGeneralName,
                                     1,
                                     1,
                                     "NAME",
                                     "one general name",
                                     "Prints tag and text.\n",
                                     "x509name general-name 820B6578616D706C652E6F7267\n"
                                     "    2       example.org\n",
                                     {}};

}  // namespace Example
