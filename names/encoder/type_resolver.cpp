#include "names/encoder/type_resolver.h"

#include <cstdint>
#include <type_traits>

#include "bytes/ascii.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

// Longer texts are refused before anything else.
constexpr size_t kTypeTextLimit = 270;

struct Keyword {
  std::string_view text;
  const AttributeRow* row = nullptr;
};

constexpr size_t CountKeywords() {
  size_t count = 0;
  for (const AttributeRow& row : kAttributes) {
    for (const std::string_view keyword : row.keywords) count += keyword.empty() ? 0u : 1u;
  }
  return count;
}

constexpr bool IsInFront(std::string_view a, std::string_view b) {
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

// The keywords of the attribute table, short ones first.
struct Keywords {
  Keyword rows[CountKeywords()] = {};

  constexpr Keywords() {
    size_t count = 0;
    for (const AttributeRow& row : kAttributes) {
      for (const std::string_view text : row.keywords) {
        if (!text.empty()) Insert({text, &row}, count++);
      }
    }
  }
  constexpr void Insert(Keyword keyword, size_t place) {
    for (; place != 0 && IsInFront(keyword.text, rows[place - 1].text); --place) {
      rows[place] = rows[place - 1];
    }
    rows[place] = keyword;
  }
  constexpr const Keyword* begin() const { return rows; }
  constexpr const Keyword* end() const { return rows + CountKeywords(); }
};
constexpr Keywords kKeywords;

// A bit for each length that some form has: text of such a length is left unresolved where it is
// no form, text of another length is refused.
constexpr uint32_t LengthsOfForms() {
  uint32_t lengths = 0;
  for (const Keyword& keyword : kKeywords) lengths |= 1u << keyword.text.size();
  for (const AttributeRow& row : kAttributes) lengths |= 1u << row.oid.size();
  return lengths;
}
constexpr uint32_t kFormLengths = LengthsOfForms();
constexpr size_t kLongestForm = 22;
static_assert(kFormLengths >> kLongestForm == 1);

const AttributeRow* FindKeyword(std::string_view upper) {
  for (const Keyword& keyword : kKeywords) {
    if (keyword.text == upper) return keyword.row;
  }
  return nullptr;
}

bool MatchForm(std::string_view form, const AttributeRow** row) {
  if (form.size() > kLongestForm || (kFormLengths >> form.size() & 1) == 0) return false;
  *row = IsAsciiDigit(form[0]) ? FindAttribute(form) : FindKeyword(form);
  return true;
}

// The key of a look-up: the text as the caller wrote it, terminated. False for a text with a NUL.
template <typename Char>
bool ToKey(std::basic_string_view<Char> text, wchar_t* key) {
  for (const Char c : text) {
    if (c == Char(0)) return false;
    *key++ = static_cast<wchar_t>(c);
  }
  *key = L'\0';
  return true;
}

// The upper-cased text; a character above 0x7F becomes one that is in no form.
template <typename Char>
std::string_view ToForm(std::basic_string_view<Char> text, char* form) {
  char* end = form;
  for (const Char c : text) {
    const bool ascii = static_cast<std::make_unsigned_t<Char>>(c) < 0x80;
    *end++ = ascii ? static_cast<char>(ToAsciiUpper(c)) : '?';
  }
  return {form, text.size()};
}

template <typename Char>
bool ResolveWhole(std::basic_string_view<Char> text, const AttributeRow** row) {
  *row = nullptr;
  wchar_t key[kTypeTextLimit];
  if (text.empty() || text.size() >= kTypeTextLimit || !ToKey(text, key)) return false;
  char form[kTypeTextLimit];
  if (IsAsciiLetter(text.front())) {
    const CRYPT_OID_INFO* info = FindAttributeInfo(CRYPT_OID_INFO_NAME_KEY, key);
    if (info != nullptr && info->pszOID != nullptr) return MatchForm(info->pszOID, row);
  }
  return MatchForm(ToForm(text, form), row);
}

}  // namespace

RememberedTypes remembered_types;

template <typename Char>
bool TypeResolver::ResolveAfresh(std::basic_string_view<Char> text, RememberedText key,
                                 const AttributeRow** row) {
  const bool resolved = ResolveWhole(text, row);
  if (*row != nullptr) remembered_types.Keep(key, static_cast<uint8_t>(*row - kAttributes));
  return resolved;
}
template bool TypeResolver::ResolveAfresh(std::string_view, RememberedText, const AttributeRow**);
template bool TypeResolver::ResolveAfresh(std::wstring_view, RememberedText, const AttributeRow**);

std::string ListKeywords() {
  std::string list;
  for (const Keyword& keyword : kKeywords) {
    if (!list.empty()) list += ", ";
    list += keyword.text;
  }
  return list;
}

}  // namespace Ortholan
