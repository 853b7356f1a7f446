#include "examples/show_text.h"

#include "examples/colour.h"
#include "examples/text.h"

namespace Example {
namespace {

using Ortholan::IdentObj;

std::string Faulty(const std::string& what) { return Paint(Colour::kFault, "(" + what + ")"); }

std::string FaultyLine(const std::string& indent, const char* what, const IdentObj& octets) {
  return indent + Faulty(what) + " " + SpacedHex(octets) + "\n";
}

// "C (2.5.4.6)", or the identifier alone where it has no key.
std::string TypeText(const NameAttribute& attribute) {
  if (attribute.oid.empty()) return Faulty("unreadable type " + SpacedHex(attribute.type));
  const std::string key = Visible(attribute.key);
  return key.empty() ? Paint(Colour::kKey, attribute.oid)
                     : Paint(Colour::kKey, key) + " (" + attribute.oid + ")";
}

std::string AttributeText(const NameAttribute& attribute, const std::string& indent) {
  if (!attribute.isAttribute) return FaultyLine(indent, "no attribute", attribute.octets);
  std::string text;
  for (const std::wstring& line : attribute.lines) {
    text += (text.empty() ? "" : " | ") + Visible(line);
  }
  if (!attribute.isRead) text = SpacedHex(attribute.value);
  return indent + TypeText(attribute) + " " + attribute.stringType + ": " + text + "\n";
}

std::string TreeText(const NameTree& tree, const std::string& indent) {
  std::string text;
  std::size_t number = 0;
  for (const NameRdn& rdn : tree.rdns) {
    text += indent + "RDN " + std::to_string(++number) + "\n";
    for (const NameAttribute& attribute : rdn.attributes) {
      text += AttributeText(attribute, indent + "  ");
    }
    if (rdn.faulty.cbData != 0) {
      text += FaultyLine(indent + "  ", "cannot be read further", rdn.faulty);
    }
  }
  if (tree.faulty.cbData != 0) text += FaultyLine(indent, "cannot be read further", tree.faulty);
  return text;
}

std::string NameLines(const char* role, const NameReading& name) {
  const std::string text =
      name.text.accepted ? Visible(name.text.text) : Faulty("refused: " + name.text.reason);
  return "  " + Paint(Colour::kHeading, role) + ": " + text + "\n" + TreeText(name.tree, "    ");
}

std::string GeneralNameText(const GeneralNameReading& name, const std::string& indent) {
  if (!name.isRead) return FaultyLine(indent, "unreadable", name.octets);
  std::string lines = indent + Paint(Colour::kKey, name.kind) + ": " + Visible(name.text) + "\n";
  if (!name.meaning.empty()) lines += indent + "  = " + Visible(name.meaning) + "\n";
  return lines;
}

std::string GeneralNamesText(const GeneralNamesReading& reading, const std::string& indent) {
  std::string text;
  for (const GeneralNameReading& name : reading.names) text += GeneralNameText(name, indent);
  if (reading.faulty.cbData != 0) {
    text += FaultyLine(indent, "cannot be read further", reading.faulty);
  }
  return text;
}

std::string ExtensionText(const ExtensionReading& extension) {
  const std::string indent = "    ";
  if (!extension.isRead) return FaultyLine(indent, "unreadable", extension.record);
  std::string line = indent + Paint(Colour::kKey, extension.oid);
  if (extension.name != nullptr) line += " " + std::string(extension.name);
  line += extension.isCritical ? ", " + Paint(Colour::kNotable, "critical") + ":"
                               : std::string(", not critical:");
  if (!extension.generalNames) return line + " " + SpacedHex(extension.value) + "\n";
  return line + "\n" + GeneralNamesText(*extension.generalNames, indent + "  ");
}

}  // namespace

std::string CertificateText(std::size_t number, const CertificateReading& certificate) {
  std::string text = Paint(Colour::kHeading, "certificate " + std::to_string(number)) + "\n" +
                     NameLines("subject", certificate.subject) +
                     NameLines("issuer", certificate.issuer);
  if (!certificate.extensions.empty()) {
    text += "  " + Paint(Colour::kHeading, "extensions") + ":\n";
  }
  for (const ExtensionReading& extension : certificate.extensions) {
    text += ExtensionText(extension);
  }
  return text;
}

}  // namespace Example
