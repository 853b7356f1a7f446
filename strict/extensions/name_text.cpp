#include "strict/extensions/name_text.h"

#include <ortholan/strict/extensions.h>

#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/extensions/leaf_text.h"
#include "strict/general_names/escaped_text.h"
#include "strict/general_names/general_name_to_text.h"
#include "strict/general_names/name_prefixes.h"
#include "strict/general_names/text_to_general_name.h"
#include "strict/names/name_to_text.h"
#include "strict/names/text_to_name.h"

namespace Ortholan::strict {
namespace {

// A base of a subtree may be less than a name: a host of mailboxes, ".example.org".
bool BaseOf(std::string_view text, std::string* element) {
  for (const GeneralNameKind kind :
       {GeneralNameKind::kMail, GeneralNameKind::kDns, GeneralNameKind::kUri}) {
    const std::string_view prefix = PrefixOf(kind);
    UnescapedText characters;
    if (text.substr(0, prefix.size()) != prefix ||
        !characters.Read(text.substr(prefix.size()), nullptr)) {
      continue;
    }
    *element = ElementOf(Context(static_cast<uint8_t>(kind)), characters.text());
    return true;
  }
  return false;
}

}  // namespace

std::string ElementOf(uint8_t identifier, std::string_view content) {
  BackwardOutput measure(nullptr, 0);
  measure.PutHeader(identifier, content.size());
  std::string element(measure.size(), '\0');
  BackwardOutput header(element.data(), element.size());
  header.PutHeader(identifier, content.size());
  return element.append(content);
}

std::string TextOfName(const Element& name) {
  GeneralNameView view;
  GeneralNameView::FromElement(name, &view);
  return TextOf([&view](Output* out) { PutTextOfGeneralName(view, out); });
}

bool ElementOfName(std::string_view text, bool isBase, std::string* element, Refusal* refusal) {
  if (isBase && BaseOf(text, element)) return true;
  BackwardOutput measure(nullptr, 0);
  if (!PutGeneralNameOfText(text, isBase, &measure, refusal)) return false;
  element->assign(measure.size(), '\0');
  BackwardOutput out(element->data(), element->size());
  return PutGeneralNameOfText(text, isBase, &out, refusal);
}

bool NameComesBack(std::string_view text, bool isBase, ByteView bytes) {
  std::string again;
  return ElementOfName(text, isBase, &again, nullptr) && again == AsText(bytes);
}

std::string TextOfRdn(ByteView content) {
  bool is_text = true;
  std::string text = TextOf(
      [content, &is_text](Output* out) { is_text = PutTextOfRdn(content, {}, out, nullptr); });
  return is_text ? text : std::string();
}

bool RdnComesBack(std::string_view text, ByteView content) {
  std::string again;
  return RdnOfText(text, &again, nullptr) &&
         SameBytes(AsBytes(again.data(), again.size()), content);
}

bool RdnOfText(std::string_view text, std::string* content, Refusal* refusal) {
  BackwardOutput measure(nullptr, 0);
  if (!PutNameOfText(text, {}, &measure, refusal)) return false;
  std::string der(measure.size(), '\0');
  BackwardOutput out(der.data(), der.size());
  PutNameOfText(text, {}, &out, nullptr);
  ByteView rdns;
  if (!ReadWhole({out.front(), out.size()}, kSequence, Leniency::kLenient, &rdns, nullptr)) {
    return false;
  }
  Element rdn;
  const bool is_one = NextRdn(&rdns, &rdn) && rdns.empty();
  if (!is_one) {
    return RefuseText(refusal, ORTHOLAN_REASON_JSON_TEXT, text);
  }
  content->assign(AsText(rdn.content));
  return true;
}

bool StringText(uint8_t identifier, ByteView content, std::string* text) {
  bool is_text = true;
  *text = TextOf([identifier, content, &is_text](Output* out) {
    is_text = PutStringText(identifier, content, out);
  });
  return is_text;
}

}  // namespace Ortholan::strict
