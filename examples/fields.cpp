#include "examples/fields.h"

namespace Example {

Fields::Fields(std::string_view content) {
  bool isWhole = false;
  elements_ = Elements(content, &isWhole);
  if (!isWhole) throw Malformed();
}

const Der* Fields::Take(unsigned tag) {
  const bool isNext = !AtEnd() && elements_[next_].tag == tag;
  return isNext ? &elements_[next_++] : nullptr;
}

const Der& Fields::Need(unsigned tag) {
  const Der* const element = Take(tag);
  if (element == nullptr) throw Malformed();
  return *element;
}

const Der& Fields::Any() {
  if (AtEnd()) throw Malformed();
  return elements_[next_++];
}

void Fields::End() const {
  if (!AtEnd()) throw Malformed();
}

std::string_view ContentOf(std::string_view octets, unsigned tag) {
  const Der element = OnlyElement(octets);
  if (element.tag != tag) throw Malformed();
  return element.content;
}

}  // namespace Example
