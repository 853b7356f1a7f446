#include "names/encoder/type_resolver.h"

#include <cstdint>
#include <type_traits>

#include "bytes/ascii.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

// Longer texts are refused before anything else.
constexpr size_t kTypeTextLimit = 270;
constexpr std::string_view kBarePrefix = "OID.";

constexpr const AttributeRow* RowOf(std::string_view oid) {
  for (const AttributeRow& row : kAttributes) {
    if (row.oid == oid) return &row;
  }
  return nullptr;
}

struct Keyword {
  std::string_view text;
  const AttributeRow* row;
};

constexpr Keyword kKeywords[] = {
    {"C", RowOf("2.5.4.6")},
    {"E", RowOf("1.2.840.113549.1.9.1")},
    {"L", RowOf("2.5.4.7")},
    {"O", RowOf("2.5.4.10")},
    {"S", RowOf("2.5.4.8")},
    {"T", RowOf("2.5.4.12")},
    {"CN", RowOf("2.5.4.3")},
    {"OU", RowOf("2.5.4.11")},
    {"EMAIL", RowOf("1.2.840.113549.1.9.1")},
    {"TITLE", RowOf("2.5.4.12")},
    {"PSEUDONYM", RowOf("2.5.4.65")},
    {"DEPARTMENT", RowOf("1.2.840.113556.1.2.141")},
    {"SERIALNUMBER", RowOf("2.5.4.5")},
    {"POSTALADDRESS", RowOf("2.5.4.16")},
};

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
  if (text.size() == kBarePrefix.size() && ToForm(text, form) == kBarePrefix) return false;
  if (IsAsciiLetter(text.front())) {
    const CRYPT_OID_INFO* info = FindAttributeInfo(CRYPT_OID_INFO_NAME_KEY, key);
    if (info != nullptr && info->pszOID != nullptr) return MatchForm(info->pszOID, row);
  }
  return MatchForm(ToForm(text, form), row);
}

}  // namespace

RememberedTypes remembered_types;

template <typename Char>
bool TypeResolver::ResolveAfresh(std::basic_string_view<Char> text, uint64_t key,
                                 const AttributeRow** row) {
  const bool resolved = ResolveWhole(text, row);
  if (*row != nullptr) remembered_types.Keep(key, *row);
  return resolved;
}
template bool TypeResolver::ResolveAfresh(std::string_view, uint64_t, const AttributeRow**);
template bool TypeResolver::ResolveAfresh(std::wstring_view, uint64_t, const AttributeRow**);

std::string ListKeywords() {
  std::string list;
  for (const Keyword& keyword : kKeywords) {
    if (!list.empty()) list += ", ";
    list += keyword.text;
  }
  return list;
}

}  // namespace Ortholan
