#include "strict/extensions/name_text.h"

#include <ortholan/strict/extensions.h>

#include "strict/der/string_value.h"
#include "strict/extensions/leaf_text.h"
#include "strict/general_names/general_name_parser.h"
#include "strict/general_names/general_name_text.h"
#include "strict/names/name_to_text.h"
#include "strict/names/text_to_name.h"

namespace Ortholan::strict {

std::string TextOfName(const Element& name) {
  GeneralNameView view;
  GeneralNameView::FromElement(name, &view);
  return TextOf([&view](Output* out) { PutTextOfGeneralName(view, out); });
}

bool NameComesBack(std::string_view text, bool hasMask, ByteView bytes) {
  std::string again(bytes.size, '\0');
  BackwardOutput out(again.data(), again.size());
  return PutGeneralNameOfText(text, hasMask, &out, nullptr) && out.fits() &&
         SameBytes({out.front(), out.size()}, bytes);
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
    return Refuse(refusal, ORTHOLAN_REASON_JSON_TEXT, reinterpret_cast<const uint8_t*>(text.data()),
                  text.size());
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
