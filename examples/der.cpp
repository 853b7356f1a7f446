#include "examples/der.h"

#include <ortholan/asn1.h>
#include <ortholan/platform.h>

#include <limits>

namespace Example {

using namespace Ortholan;

bool TakeElement(std::string_view& rest, Der& element) {
  if (rest.empty() || rest.size() > std::numeric_limits<DWORD>::max()) return false;
  const auto* const data = reinterpret_cast<const BYTE*>(rest.data());
  const auto size = static_cast<DWORD>(rest.size());
  ASNT_ASN_STRUCT_INFO info;
  if (ASNTGetStructInfo(info, data, size) != 0) return false;
  const auto header = static_cast<DWORD>(info.content - data);
  DWORD length = info.length;
  DWORD end = 0;
  if (length == 0xFFFFFFFF) {
    DWORD status = 0;
    length = ASNTGetIndefiniteLength(info.content, size - header, true, &status);
    // Two octets of it are the end's.
    end = 2;
    if (status != 0 || length < end) return false;
  }
  if (length > size - header) return false;
  element.tag = (data[0] & 0x1F) == 0x1F ? 0 : data[0];
  element.content = rest.substr(header, length - end);
  element.whole = rest.substr(0, std::size_t{header} + length);
  rest.remove_prefix(element.whole.size());
  return true;
}

std::vector<Der> Elements(std::string_view content, bool* isWhole) {
  std::vector<Der> elements;
  for (Der each; TakeElement(content, each);) elements.push_back(each);
  if (isWhole != nullptr) *isWhole = content.empty();
  return elements;
}

Der OnlyElement(std::string_view octets) {
  Der element;
  return TakeElement(octets, element) && octets.empty() ? element : Der();
}

std::string_view View(const IdentObj& octets) {
  return {reinterpret_cast<const char*>(octets.pbData), octets.cbData};
}

std::string_view View(ortholan::Octets octets) {
  return {reinterpret_cast<const char*>(octets.data()), octets.size()};
}

IdentObj Copy(std::string_view octets) {
  return {octets.data(), static_cast<DWORD>(octets.size())};
}

}  // namespace Example
