// RFC 4514 text both ways: as a name and as a text. What is written is safe to show, no value can
// forge an attribute, every name comes back, and the C++ face says what the C functions say.
#include <ortholan/strict.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/hidden.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

using ortholan::Name;
using ortholan::NameView;
using ortholan::Rfc4514;

Rfc4514 Options(uint8_t bits) {
  Rfc4514 options;
  if ((bits & 1) != 0) options.order = ortholan::RdnOrder::kAsEncoded;
  if ((bits & 2) != 0) options.strings = ortholan::StringPolicy::kUtf8;
  options.long_names = (bits & 4) != 0;
  options.exact = (bits & 8) != 0;
  return options;
}

bool SameAttributes(const NameView& a, const NameView& b) {
  if (a.attribute_count() != b.attribute_count() || a.rdn_count() != b.rdn_count()) return false;
  auto other = b.begin();
  for (const ortholan::Attribute& each : a) {
    if (each.rdn() != other->rdn()) return false;
    ++other;
  }
  return true;
}

void CheckWriting(const NameView& name) {
  for (uint8_t bits = 0; bits < 16; ++bits) {
    const Rfc4514 options = Options(bits);
    const auto text = name.ToText(options);
    // Refused is an identifier that is too long alone.
    if (!text) {
      LAW(text.refusal().reason == ORTHOLAN_REASON_TOO_LONG);
      continue;
    }
    LAW(!HasHidden(*text));
    const auto back = Name::FromText(*text, options);
    LAW(back.has_value());
    LAW(SameAttributes(back->view(), name));
    if (options.exact) LAW(ortholan::Octets(back->der()) == name.der());
  }
}

void CheckCAgrees(std::string_view text, const ortholan::Result<Name>& name) {
  size_t size = 0;
  ortholan_refusal refusal;
  const auto asked =
      ortholan_rfc4514_read(ortholan::ToText(text), nullptr, nullptr, 0, &size, &refusal);
  LAW(asked == (name ? ORTHOLAN_REASON_ROOM : name.refusal().reason));
  if (!name) {
    LAW(size == 0 && refusal.offset == name.refusal().offset && refusal.offset <= text.size());
    const ortholan::NameTextError error = ortholan::ExplainNameText(text, name.refusal());
    LAW(!error.message.empty() && !HasHidden(error.message));
    return;
  }
  LAW(size == name->der().size());
  std::vector<uint8_t> out(size);
  LAW(ortholan_rfc4514_read(ortholan::ToText(text), nullptr, out.data(), size, &size, nullptr) ==
      ORTHOLAN_REASON_NONE);
  LAW(out == name->der());
}

// Whatever a value holds, the text has one attribute.
void CheckForgery(const std::string& value) {
  const auto name = ortholan::NameBuilder().Add("CN", value, 0x0C).Build();
  if (!name) return;
  const auto back = Name::FromText(name->ToText().value());
  LAW(back.has_value() && back->view().attribute_count() == 1);
  LAW(back->view().begin()->Text().value() == value);
}

}  // namespace

void FuzzRfc4514(const uint8_t* data, size_t size) {
  const std::string text(data, data + size);
  if (const auto name = NameView::Read({data, size})) CheckWriting(*name);
  const auto made = Name::FromText(text);
  CheckCAgrees(text, made);
  if (made) {
    const auto strict = NameView::Read(made->der());
    LAW(strict.has_value());
    CheckWriting(*strict);
  }
  CheckForgery(text);
}

}  // namespace Ortholan::fuzzing
