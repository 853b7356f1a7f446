#include "examples/show_text.h"

#include <algorithm>
#include <vector>

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

std::string NameLines(const NameReading& name) {
  std::string text = name.strict.text;
  if (name.text.accepted) text = Visible(ToUtf8(name.text.text));
  // The strict reader takes RDNs of several attributes.
  if (text.empty() && !name.text.accepted) text = Faulty("refused: " + name.text.reason);
  const std::string refusal =
      name.strict.refusal.empty() ? "" : "    " + Faulty("no DER: " + name.strict.refusal) + "\n";
  return "  " + Paint(Colour::kHeading, name.role) + ": " + text + "\n" + refusal +
         TreeText(name.tree, "    ");
}

// Two digits an octet, with blanks.
std::string Spaced(const std::string& digits) {
  std::string text;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    text += (i == 0 ? "" : " ") + digits.substr(i, 2);
  }
  return text;
}

bool IsScalar(const Value& value) {
  return value.form == Value::Form::kText || value.form == Value::Form::kOctets ||
         value.form == Value::Form::kLiteral;
}

std::string ScalarText(const Value& value) {
  return value.form == Value::Form::kOctets ? Spaced(value.text) : Visible(value.text);
}

// What fits behind its name: a scalar, or a list of such.
bool IsInline(const Value& value) {
  const std::vector<Member>& members = value.members;
  return IsScalar(value) || (value.form == Value::Form::kList &&
                             std::all_of(members.begin(), members.end(),
                                         [](const Member& each) { return IsScalar(each.value); }));
}

std::string InlineText(const Value& value) {
  if (IsScalar(value)) return ScalarText(value);
  std::string text;
  for (const Member& each : value.members)
    text += (text.empty() ? "" : ", ") + ScalarText(each.value);
  return text;
}

std::string Block(const Value& value, const std::string& indent);
std::string LineText(const Value& line, const std::string& indent);

std::string MemberText(const Member& member, const std::string& indent) {
  const std::string name = indent + Paint(Colour::kKey, member.name) + ":";
  if (IsInline(member.value)) return name + " " + InlineText(member.value) + "\n";
  if (member.value.form == Value::Form::kLine) {
    return name + " " + LineText(member.value, indent).substr(indent.size());
  }
  return name + "\n" + Block(member.value, indent + "  ");
}

// "dNSName: example.org", or with the name of a type "otherName xmppAddr: a@b"; the library's text,
// which is rare, stands below.
std::string LineText(const Value& line, const std::string& indent) {
  std::string kind = line.members[0].value.text;
  std::string below;
  for (const Member& each : line.members) {
    if (each.name == "typeName") kind += " " + each.value.text;
    if (each.name == "libraryText") below = MemberText(each, indent + "  ");
  }
  return indent + Paint(Colour::kKey, Visible(kind)) + ": " + ScalarText(line.members[1].value) +
         "\n" + below;
}

// A list's items are told apart by hyphens where they have several lines.
std::string ItemText(const Value& item, const std::string& indent) {
  if (IsScalar(item)) return indent + ScalarText(item) + "\n";
  if (item.form == Value::Form::kLine || item.IsUnread()) return Block(item, indent);
  std::string text = Block(item, indent + "  ");
  text[indent.size()] = '-';
  return text;
}

std::string Block(const Value& value, const std::string& indent) {
  if (value.form == Value::Form::kLine) return LineText(value, indent);
  if (value.IsUnread()) {
    return indent + Faulty("unreadable") + " " + ScalarText(value.members[0].value) + "\n";
  }
  std::string text;
  for (const Member& each : value.members) {
    const bool isItem = value.form == Value::Form::kList;
    text += isItem ? ItemText(each.value, indent) : MemberText(each, indent);
  }
  return text;
}

std::string ExtensionText(const ExtensionReading& extension, const std::string& indent) {
  if (!extension.isRead) return FaultyLine(indent, "unreadable", Copy(extension.record));
  std::string line = indent + Paint(Colour::kKey, extension.oid);
  if (extension.name != nullptr) line += " " + std::string(extension.name);
  if (extension.isCritical) line += ", " + Paint(Colour::kNotable, "critical");
  line += extension.isCritical ? ":" : ", not critical:";
  if (!extension.content) return line + " " + SpacedHex(Copy(extension.value)) + "\n";
  const std::string text = IsInline(*extension.content) ? InlineText(*extension.content) : "";
  if (IsInline(*extension.content)) return line + (text.empty() ? "" : " ") + text + "\n";
  return line + "\n" + Block(*extension.content, indent + "  ");
}

const char* Title(Kind kind) {
  switch (kind) {
    case Kind::kRequest:
      return "certificate request";
    case Kind::kRevocationList:
      return "certificate revocation list";
    default:
      return "certificate";
  }
}

}  // namespace

std::string DocumentText(std::size_t number, const Document& document) {
  const std::string place = number == 0 ? "" : " " + std::to_string(number);
  std::string text = Paint(Colour::kHeading, Title(document.kind) + place) + "\n";
  for (const Fact& fact : document.facts) {
    text += "  " + Paint(Colour::kHeading, fact.label) + ": " + InlineText(fact.value) + "\n";
  }
  for (const NameReading& name : document.names) text += NameLines(name);
  if (!document.extensions.empty()) text += "  " + Paint(Colour::kHeading, "extensions") + ":\n";
  for (const ExtensionReading& each : document.extensions) text += ExtensionText(each, "    ");
  return text;
}

}  // namespace Example
