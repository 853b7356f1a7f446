// Names by the strict layer: read and checked, and RFC 4514 text both ways, beside the other form
// and the peers.
#include <ortholan/strict.hpp>
#include <string>

#include "bench/measure.h"
#include "bench/names.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "Ortholan RFC 4514";

constexpr TextForm kForm = {"=", ",", "ST", "L", true, false};

std::string ToDerOf(const std::string& text) {
  const auto name = ortholan::Name::FromText(text);
  return name ? std::string(name->der().begin(), name->der().end()) : std::string();
}

std::string ToTextOf(const std::string& der) {
  const auto name = ortholan::NameView::Read(der);
  return name ? name->ToText().value() : std::string();
}

size_t AttributesOf(const std::string& der) {
  const auto name = ortholan::NameView::Read(der);
  return name ? name->attribute_count() : 0;
}

void AddBothWays(const char* to_der, const char* to_text, const Attributes& attributes) {
  const std::string text = ToText(attributes, kForm);
  const std::string der = ToDer(attributes);
  Add({to_der, kSubject, [=] { return ToDerOf(text) == der; }, der.size()},
      [=] { return ortholan::Name::FromText(text); });
  Add({to_text, kSubject, [=] { return ToTextOf(der) == text; }, text.size()},
      [=] { return ToTextOf(der); });
}

void AddCases() {
  const Attributes six = SixAttributes();
  const std::string der = ToDer(six);
  Add({"read and check", kSubject, [=] { return AttributesOf(der) == six.size(); }},
      [=] { return AttributesOf(der); });
  AddBothWays(kTextToDer, kDerToText, six);
  AddBothWays(kLargeToDer, kLargeToText, LargeValue(kLargeSize));
  AddBothWays(kManyToDer, kManyToText, ManyAttributes(kManyCount));
}

const Registration registration("Ortholan RFC 4514", "", AddCases);

}  // namespace
}  // namespace Bench
