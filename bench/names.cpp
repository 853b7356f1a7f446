#include "bench/names.h"

#include <algorithm>
#include <cstdint>

namespace Bench {
namespace {

constexpr std::string_view kCountryOid = "2.5.4.6";

std::string Base128(uint32_t arc) {
  std::string octets(1, static_cast<char>(arc & 0x7F));
  while ((arc >>= 7) != 0) octets.insert(octets.begin(), static_cast<char>(0x80 | (arc & 0x7F)));
  return octets;
}

std::string_view KeywordOf(const Attribute& attribute, const TextForm& form) {
  if (attribute.keyword == "S") return form.state;
  if (attribute.keyword == "L") return form.locality;
  return attribute.keyword;
}

}  // namespace

Attributes SixAttributes() {
  return {{"C", "2.5.4.6", "RU"},
          {"S", "2.5.4.8", "Moscow"},
          {"L", "2.5.4.7", "Moscow"},
          {"O", "2.5.4.10", "Example Organisation"},
          {"OU", "2.5.4.11", "Department of Names"},
          {"CN", "2.5.4.3", "Ivan Petrov"}};
}

Attributes ManyAttributes(size_t count) {
  const Attributes six = SixAttributes();
  Attributes many;
  many.reserve(count);
  for (size_t i = 0; i < count; ++i) {
    many.push_back(six[i % six.size()]);
    if (many.back().oid == kCountryOid) continue;
    const std::string number = std::to_string(i);
    many.back().value += ' ' + std::string(6 - number.size(), '0') + number;
  }
  return many;
}

Attributes LargeValue(size_t size) {
  std::string value(size, ' ');
  for (size_t i = 0; i < size; ++i) value[i] = static_cast<char>('a' + i % 26);
  return {{"O", "2.5.4.10", value}};
}

Attributes LargeCyrillicValue(size_t size) {
  std::string value;
  value.reserve(size);
  for (size_t i = 0; i < size / 2; ++i) {
    value += '\xD0';
    value += static_cast<char>(0xB0 + i % 16);
  }
  return {{"O", "2.5.4.10", value}};
}

std::string OidElement(std::string_view dotted) {
  std::vector<uint32_t> arcs(1);
  for (const char c : dotted) {
    if (c == '.') {
      arcs.push_back(0);
    } else {
      arcs.back() = arcs.back() * 10 + static_cast<uint32_t>(c - '0');
    }
  }
  std::string content = Base128(arcs[0] * 40 + arcs[1]);
  for (size_t i = 2; i < arcs.size(); ++i) content += Base128(arcs[i]);
  return Tlv(0x06, content);
}

Attributes Disguised(Attributes attributes) {
  for (Attribute& attribute : attributes) {
    if (attribute.oid == kCountryOid) continue;
    std::string value;
    for (const char c : attribute.value) {
      value += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
      if (c == ' ') value += c;
    }
    attribute.value = value;
  }
  return attributes;
}

Attributes CyrillicAttributes() {
  const char* const values[] = {"Москва", "Москва", "Примерная организация",
                                "Отдел имён и названий", "Иван Петров"};
  Attributes attributes = SixAttributes();
  for (size_t i = 0; i < 5; ++i) attributes[i + 1].value = values[i];
  return attributes;
}

Attributes CyrillicInCapitals() {
  const char* const values[] = {"МОСКВА", "МОСКВА", "ПРИМЕРНАЯ ОРГАНИЗАЦИЯ",
                                "ОТДЕЛ ИМЁН И НАЗВАНИЙ", "ИВАН ПЕТРОВ"};
  Attributes attributes = SixAttributes();
  for (size_t i = 0; i < 5; ++i) attributes[i + 1].value = values[i];
  return attributes;
}

std::string ToDer(const Attributes& attributes, unsigned tag) {
  std::string rdns;
  for (const Attribute& attribute : attributes) {
    const unsigned value_tag = attribute.oid == kCountryOid ? kPrintableString : tag;
    const std::string pair = OidElement(attribute.oid) + Tlv(value_tag, attribute.value);
    rdns += Tlv(0x31, Tlv(0x30, pair));
  }
  return Tlv(0x30, rdns);
}

std::string ToText(const Attributes& attributes, const TextForm& form) {
  std::string text;
  const auto append = [&](const Attribute& attribute) {
    if (!text.empty()) text += form.separator;
    text += KeywordOf(attribute, form);
    text += form.equals;
    text += form.quoted ? '"' + attribute.value + '"' : attribute.value;
  };
  if (form.reversed) {
    std::for_each(attributes.rbegin(), attributes.rend(), append);
  } else {
    std::for_each(attributes.begin(), attributes.end(), append);
  }
  return text;
}

Pairs ToPairs(const Attributes& attributes) {
  Pairs pairs;
  for (const Attribute& attribute : attributes) pairs.emplace_back(attribute.oid, attribute.value);
  return pairs;
}

std::wstring Widen(std::string_view text) {
  std::wstring wide;
  for (size_t i = 0; i < text.size(); ++i) {
    const auto octet = [&](size_t at) { return static_cast<unsigned char>(text[at]); };
    unsigned unit = octet(i);
    if (unit >= 0xE0) {
      unit = (unit & 0x0F) << 12 | (octet(i + 1) & 0x3FU) << 6 | (octet(i + 2) & 0x3FU);
      i += 2;
    } else if (unit >= 0xC0) {
      unit = (unit & 0x1F) << 6 | (octet(i + 1) & 0x3FU);
      i += 1;
    }
    wide += static_cast<wchar_t>(unit);
  }
  return wide;
}

}  // namespace Bench
