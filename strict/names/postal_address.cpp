#include "strict/names/postal_address.h"

#include "bytes/ascii.h"
#include "bytes/der_length.h"
#include "strict/der/output.h"
#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/names/text_options.h"

namespace Ortholan::strict {
namespace {

constexpr ValueSyntax kLine = ValueSyntax::kDirectoryString;

void AppendElement(uint8_t identifier, std::string_view content, std::string* to) {
  uint8_t header[2 + sizeof(size_t)];
  const uint8_t* const end = WriteHeader(header, identifier, content.size());
  to->append(AsText({header, static_cast<size_t>(end - header)})).append(content);
}

// The character that the pair at the front stands for; 0 for none.
char PairAt(std::string_view rest) {
  if (rest.substr(0, 3) == "\\24") return '$';
  return rest.size() >= 3 && rest[1] == '5' && ToAsciiLower(rest[2]) == 'c' ? '\\' : '\0';
}

// The UTF-8 of a line's string, as it stands in the text.
bool PutLine(const Element& line, std::string* text) {
  std::string utf8(4 * line.content.size, '\0');
  Output out(&utf8[0], utf8.size());
  if (!PutStringText(line.identifier, line.content, &out)) return false;
  for (size_t i = 0; i < out.size(); ++i) {
    const char c = utf8[i];
    if (c == '$' || c == '\\') {
      *text += c == '$' ? "\\24" : "\\5C";
    } else {
      *text += c;
    }
  }
  return true;
}

}  // namespace

StringChoice ReadPostalAddress(ByteView text, StringPolicy policy, std::string* element) {
  const std::string_view all = AsText(text);
  std::string lines;
  std::string line;
  for (size_t at = 0; at <= all.size(); ++at) {
    if (at == all.size() || all[at] == '$') {
      if (line.empty()) return {kUtf8String, ORTHOLAN_REASON_TEXT_LINE, at};
      const StringChoice choice = ChooseString(AsBytes(line.data(), line.size()), kLine, policy);
      AppendElement(choice.identifier, line, &lines);
      line.clear();
    } else if (all[at] == '\\') {
      const char character = PairAt(all.substr(at));
      if (character == '\0') return {kUtf8String, ORTHOLAN_REASON_TEXT_LINE, at};
      line += character;
      at += 2;
    } else {
      line += all[at];
    }
  }
  element->clear();
  AppendElement(kSequence, lines, element);
  return {kSequence};
}

bool WritePostalAddress(const Element& value, StringPolicy policy, bool exact, std::string* text) {
  text->clear();
  if (value.identifier != kSequence || value.content.empty()) return false;
  Reader lines(value.content, Leniency::kLenient, nullptr);
  while (!lines.AtEnd()) {
    Element line;
    if (!lines.Read(&line) || !IsString(line.identifier) || line.content.empty()) return false;
    if (exact && !ComesBack(line, kLine, policy)) return false;
    if (!text->empty()) *text += '$';
    if (!PutLine(line, text)) return false;
  }
  return true;
}

}  // namespace Ortholan::strict
