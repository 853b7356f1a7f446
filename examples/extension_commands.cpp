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

int RunExtension(const Arguments& arguments) {
  const IdentObj record = ReadElement(arguments.operands[0]);
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
  GeneralName name = GeneralName::DerDecode(ReadElement(arguments.operands[0]));
  const std::string text = Output(name.ToString(0, 0));
  Print(std::to_string(name.GetTag()) + "\t" + text + "\n");
  return 0;
}

}  // namespace Example
