// One extension record, one general name.

#include <ortholan/cert_extension.h>
#include <ortholan/general_name.h>

#include <ortholan/strict.hpp>
#include <string>

#include "examples/commands.h"
#include "examples/der.h"
#include "examples/extensions.h"
#include "examples/failure.h"
#include "examples/general_names.h"
#include "examples/input.h"
#include "examples/show_json.h"
#include "examples/show_text.h"
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

  // By what it means, from what was given.
  const ExtensionReading reading = ReadExtension(View(record));
  if (arguments.Has("--json")) {
    Print(ExtensionJson(reading) + "\n");
    return 0;
  }
  const std::string oid(reinterpret_cast<const char*>(extension.oid.pbData), extension.oid.cbData);
  Print(oid + "\n");
  Print(extension.critical != FALSE ? "critical\n" : "not critical\n");
  Print(Hex(extension.value) + "\n");
  Print(Hex(written) + "\n");
  Print(MeaningText(reading));
  return 0;
}

int RunGeneralName(const Arguments& arguments) {
  const IdentObj octets = ReadElement(arguments.operands[0], Kind::kGeneralName);
  GeneralName name = GeneralName::DerDecode(octets);
  const std::wstring text = name.ToString(0, 0);
  const GeneralNameReading reading = ReadGeneralName(View(octets));
  if (arguments.Has("--json")) {
    Print(GeneralNameJson(reading, name.GetTag(), ToUtf8(text)) + "\n");
    return 0;
  }
  Print(std::to_string(name.GetTag()) + "\t" + Output(text) + "\n");
  if (!reading.kind.empty()) Print(ortholan::GeneralNameText(View(octets)) + "\n");
  return 0;
}

}  // namespace

const Command kExtensionCommand = {"extension",
                                   RunExtension,
                                   1,
                                   1,
                                   "RECORD",
                                   "one certificate extension",
                                   "Prints identifier, critical or not, value, and the record "
                                   "written anew, a line each, and what\n"
                                   "the value means.\n",
                                   "x509name extension 300E0603551D0F0101FF0404030205A0\n",
                                   {kJsonOption}};

const Command kGeneralNameCommand = {
    "general-name",
    RunGeneralName,
    1,
    1,
    "NAME",
    "one general name",
    "Prints tag and the library's text, and a line of what it is.\n",
    "x509name general-name 820B6578616D706C652E6F7267\n"
    "    2       example.org\n"
    "    DNS:example.org\n",
    {kJsonOption}};

}  // namespace Example
