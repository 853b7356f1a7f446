// The names that every library is measured on, as attributes, text and DER. The DER is built here
// by X.690 alone, so that it can judge all of them.
#ifndef ORTHOLAN_BENCH_NAMES_H_
#define ORTHOLAN_BENCH_NAMES_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/der.h"

namespace Bench {

using Ortholan::testing::Tlv;

struct Attribute {
  std::string keyword;  // as the platform calls the type
  std::string oid;      // dotted
  std::string value;    // UTF-8
};
using Attributes = std::vector<Attribute>;

// C=RU, S=Moscow, L=Moscow, O=Example Organisation, OU=Department of Names, CN=Ivan Petrov
Attributes SixAttributes();
// The same with capital letters and with two blanks for each, countries as they are.
Attributes Disguised(Attributes attributes);
// Six values of as many characters in Cyrillic, and the same in capital letters.
Attributes CyrillicAttributes();
Attributes CyrillicInCapitals();
// The six over and over, with a number of six digits in each value but the country's; below a
// million.
Attributes ManyAttributes(size_t count);
// One organisation of `size` letters, past every limit that X.520 sets.
Attributes LargeValue(size_t size);
// The same in Cyrillic, `size` octets in UTF-8.
Attributes LargeCyrillicValue(size_t size);

// Universal tags of values.
inline constexpr unsigned kUtf8String = 12;
inline constexpr unsigned kPrintableString = 19;

// The Name with one attribute an RDN; countries are PrintableStrings whatever `tag`.
std::string ToDer(const Attributes& attributes, unsigned tag = kPrintableString);

struct TextForm {
  std::string_view equals = "=";
  std::string_view separator = ",";
  // Keywords that not everybody writes alike.
  std::string_view state = "S";
  std::string_view locality = "L";
  bool reversed = false;
  bool quoted = false;
};
std::string ToText(const Attributes& attributes, const TextForm& form);

using Pairs = std::vector<std::pair<std::string, std::string>>;  // dotted type, value
Pairs ToPairs(const Attributes& attributes);

// An OBJECT IDENTIFIER from dotted text.
std::string OidElement(std::string_view dotted);

// Characters of UTF-8 text below U+10000, one a wchar_t.
std::wstring Widen(std::string_view text);

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_NAMES_H_
