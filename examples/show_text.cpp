#include "examples/show_text.h"

#include "examples/colour.h"
#include "examples/der.h"
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
  const std::string key = Visible(ToUtf8(attribute.key));
  return key.empty() ? Paint(Colour::kKey, attribute.oid)
                     : Paint(Colour::kKey, key) + " (" + attribute.oid + ")";
}

std::string AttributeText(const NameAttribute& attribute, const std::string& indent) {
  if (!attribute.isAttribute) return FaultyLine(indent, "no attribute", attribute.octets);
  std::string text;
  for (const std::wstring& line : attribute.lines) {
    text += (text.empty() ? "" : " | ") + Visible(ToUtf8(line));
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

std::string RefusalLine(const std::string& refusal, const std::string& indent) {
  return refusal.empty() ? "" : indent + Faulty("no DER: " + refusal) + "\n";
}

std::string NameLines(const NameReading& name) {
  std::string text = name.strict.text;
  if (name.text.accepted) text = Visible(ToUtf8(name.text.text));
  // The strict reader takes RDNs of several attributes.
  if (text.empty() && !name.text.accepted) text = Faulty("refused: " + name.text.reason);
  return "  " + Paint(Colour::kHeading, name.role) + ": " + text + "\n" +
         RefusalLine(name.strict.refusal, "    ") + TreeText(name.tree, "    ");
}

// "dNSName: example.org", or with the name of a type "otherName xmppAddr: a@b"; the library's text,
// which is rare, stands below.
std::string GeneralNameText(const GeneralNameReading& name, const std::string& indent) {
  if (name.kind.empty()) {
    return indent + Paint(Colour::kKey, "octets") + ": " + SpacedHex(Copy(name.octets)) + "\n";
  }
  const std::string kind = name.kind + (name.typeName.empty() ? "" : " " + name.typeName);
  std::string text = indent + Paint(Colour::kKey, kind) + ": " + Visible(name.text) + "\n";
  if (name.libraryText.empty()) return text;
  return text + indent + "  " + Paint(Colour::kKey, "libraryText") + ": " +
         Visible(name.libraryText) + "\n";
}

constexpr char kBelow[] = "      ";
static_assert(sizeof kBelow == kExtensionIndent + 1);

// What stands behind the title: a value of one word or list on its line, others below it.
std::string ContentText(const ExtensionReading& extension, const std::string& indent) {
  const std::string& lines = extension.lines;
  const bool isByNames = lines.empty() || extension.HasLibraryText();
  if (isByNames && !extension.names.empty()) {
    std::string text = "\n";
    for (const GeneralNameReading& each : extension.names) text += GeneralNameText(each, indent);
    return text;
  }
  if (lines.empty()) return " " + SpacedHex(Copy(extension.value)) + "\n";
  const bool isOneFact =
      lines.find('\n') == lines.size() - 1 && lines.find(": ") == std::string::npos;
  return isOneFact ? " " + lines.substr(indent.size()) : "\n" + lines;
}

std::string ExtensionText(const ExtensionReading& extension, const std::string& indent) {
  if (!extension.isRead) {
    return FaultyLine(indent, "no extension", Copy(extension.record));
  }
  std::string line = indent + extension.oid;
  if (!extension.title.empty()) line += " " + Paint(Colour::kKey, extension.title);
  if (extension.isCritical) line += ", " + Paint(Colour::kNotable, "critical");
  line += extension.isCritical ? ":" : ", not critical:";
  return line + ContentText(extension, kBelow) + RefusalLine(extension.refusal, kBelow);
}

}  // namespace

std::string MeaningText(const ExtensionReading& extension) {
  if (extension.lines.empty() && extension.refusal.empty()) return {};
  std::string text = ExtensionTitle(extension) + ":" + ContentText(extension, kBelow);
  return text + RefusalLine(extension.refusal, kBelow);
}

std::string DocumentTitle(Kind kind, std::size_t number) {
  std::string title = "certificate";
  if (kind == Kind::kRequest) title = "certificate request";
  if (kind == Kind::kRevocationList) title = "certificate revocation list";
  return title + (number != 0 ? " " + std::to_string(number) : "");
}

std::string DocumentText(std::size_t number, const Document& document) {
  std::string text = Paint(Colour::kHeading, DocumentTitle(document.kind, number)) + "\n";
  for (const Fact& fact : document.facts) {
    text += "  " + Paint(Colour::kHeading, fact.label) + ": " + Visible(fact.text) + "\n";
  }
  text += RefusalLine(document.refusal, "  ");
  for (const NameReading& name : document.names) text += NameLines(name);
  if (!document.extensions.empty()) text += "  " + Paint(Colour::kHeading, "extensions") + ":\n";
  for (const ExtensionReading& each : document.extensions) text += ExtensionText(each, "    ");
  return text;
}

}  // namespace Example
