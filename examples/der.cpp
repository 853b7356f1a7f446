#include "examples/der.h"

#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/platform.h>

#include <limits>

#include "examples/text.h"

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

IdentObj Copy(std::string_view octets) {
  return {octets.data(), static_cast<DWORD>(octets.size())};
}

namespace {

// X.690 8.19.2: seven bits an octet, the highest first, the last without its top bit. Decimal
// digits, as an arc may have any size.
std::string ArcText(std::string_view octets) {
  std::string digits = "0";
  for (const char octet : octets) {
    unsigned carry = static_cast<unsigned char>(octet) & 0x7FU;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
      carry += static_cast<unsigned>(*digit - '0') * 128;
      *digit = static_cast<char>('0' + carry % 10);
      carry /= 10;
    }
    for (; carry != 0; carry /= 10)
      digits.insert(digits.begin(), static_cast<char>('0' + carry % 10));
  }
  return digits;
}

// The first subidentifier holds two arcs (X.690 8.19.4).
std::string FirstArcs(const std::string& digits) {
  if (digits.size() <= 2) {
    const int value = std::stoi(digits);
    const int first = value < 80 ? value / 40 : 2;
    return std::to_string(first) + "." + std::to_string(value - 40 * first);
  }
  std::string rest = digits;
  int borrow = 80;
  for (auto digit = rest.rbegin(); borrow != 0; ++digit) {
    const int value = *digit - '0' - borrow % 10;
    borrow = borrow / 10 + (value < 0 ? 1 : 0);
    *digit = static_cast<char>('0' + (value < 0 ? value + 10 : value));
  }
  rest.erase(0, rest.find_first_not_of('0'));
  return "2." + (rest.empty() ? "0" : rest);
}

// More octets than any identifier in use has by far; longer ones would take quadratic time.
constexpr std::size_t kMaxOidBytes = 512;

}  // namespace

std::string OidText(std::string_view content) {
  if (content.empty() || content.size() > kMaxOidBytes || (content.back() & 0x80) != 0) return {};
  std::string text;
  std::size_t start = 0;
  for (std::size_t i = 0; i < content.size(); ++i) {
    if ((content[i] & 0x80) != 0) continue;
    const std::string arc = ArcText(content.substr(start, i + 1 - start));
    text += start == 0 ? FirstArcs(arc) : "." + arc;
    start = i + 1;
  }
  return text;
}

std::string StringText(unsigned tag, std::string_view content) {
  if (tag == kUtf8String) return ToUtf8(DerHelper::ToWString(std::string(content), CP_UTF8));
  std::wstring text;
  const std::size_t step = tag == kBmpString ? 2 : 1;
  for (std::size_t i = 0; i + step <= content.size(); i += step) {
    unsigned unit = static_cast<unsigned char>(content[i]);
    if (step == 2) unit = unit << 8 | static_cast<unsigned char>(content[i + 1]);
    text += static_cast<wchar_t>(unit);
  }
  return ToUtf8(text);
}

std::string TimeText(unsigned tag, std::string_view content) {
  std::string text = StringText(kIa5String, content);
  const bool isDigits =
      text.find_first_not_of("0123456789") == text.size() - 1 && text.back() == 'Z';
  if (tag == kUtcTime && text.size() == 13 && isDigits) text.insert(0, text[0] < '5' ? "20" : "19");
  if (text.size() != 15 || !isDigits) return text;
  for (const auto& [place, mark] : {std::pair(4, '-'), {7, '-'}, {10, 'T'}, {13, ':'}, {16, ':'}}) {
    text.insert(text.begin() + place, mark);
  }
  return text;
}

}  // namespace Example
