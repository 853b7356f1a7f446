// What is wrong with a name text, from the parser and the tables that the encoder itself uses.
#include <ortholan/name_text_error.h>

#include <algorithm>
#include <iterator>

#include "bytes/ascii.h"
#include "foundation/code_page.h"
#include "names/encoder/alphabets.h"
#include "names/encoder/name_parser.h"
#include "names/encoder/refused_values.h"
#include "names/encoder/trim.h"
#include "names/encoder/type_resolver.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

using Parser = NameParser<wchar_t>;
using Elem = NameElem<wchar_t>;

constexpr size_t kMostShown = 40;

struct Expectation {
  NameTextFault fault;
  std::wstring_view text;
};

constexpr Expectation kExpectations[] = {
    {NameTextFault::kNoText, L"a type such as CN, \"=\" and a value"},
    {NameTextFault::kMissingType, L"a type such as CN"},
    {NameTextFault::kMissingEquals,
     L"\"=\" and a value behind the type; a value that holds a delimiter has to stand in double "
     L"quotes"},
    {NameTextFault::kMissingValue, L"a value"},
    {NameTextFault::kUnexpectedEquals, L"a value, in double quotes where it begins with \"=\""},
    {NameTextFault::kUnexpectedText,
     L"a delimiter behind the closing quote; a quote inside a quoted value is written twice"},
};

// What the fault is about: where it is, and for a character that is not taken the value's row.
struct Found {
  NameTextFault fault = NameTextFault::kNone;
  std::wstring_view stop;
  const AttributeRow* row = nullptr;
  bool follows_backslash = false;  // with delimiters between
};

// The first character of the value outside the alphabet.
const wchar_t* FindOutside(std::wstring_view value, unsigned alphabet) {
  return std::find_if(value.data(), value.data() + value.size(),
                      [alphabet](wchar_t c) { return (ClassesOf(c) & alphabet) == 0; });
}

Found CheckElem(const Elem& elem, const Parser& parser, std::wstring_view text) {
  if (elem.row() == nullptr) return {NameTextFault::kUnknownType, parser.last_type()};
  const std::wstring_view value = elem.value();
  const ValueFault fault = CheckValue(elem.row()->rule, value.size(), elem.classes());
  if (fault == ValueFault::kNone) return {};
  if (fault == ValueFault::kEmpty) {
    const wchar_t* const end = text.data() + text.size();
    const wchar_t* const at = value.data() != nullptr ? parser.Origin(value.data()) : end;
    return {NameTextFault::kMissingValue, {at, 0}};
  }
  const unsigned alphabet = PrescribedAlphabet(elem.row()->rule);
  const wchar_t* const wrong = parser.Origin(FindOutside(value, alphabet));
  return {NameTextFault::kWrongCharacter, {wrong, 1}, elem.row()};
}

Found FindFault(std::wstring_view text, DWORD options) {
  const std::wstring_view trimmed = Trimmed(text);
  if (trimmed.empty()) return {NameTextFault::kNoText, trimmed};
  Parser parser(trimmed, options, nullptr);
  if (!parser.Parse_NameElems()) return {parser.fault(), parser.stop()};
  Found found;
  parser.elements().ForEach([&](const Elem& elem) {
    found = CheckElem(elem, parser, trimmed);
    return found.fault == NameTextFault::kNone;
  });
  return found;
}

// A type that holds a delimiter is the rest of a value and the type behind it.
void CutAtDelimiter(DWORD options, Found* found) {
  if (found->fault != NameTextFault::kUnknownType &&
      found->fault != NameTextFault::kMissingEquals) {
    return;
  }
  const ValueChars& chars = ValueCharsFor(options);
  const auto delimiter = std::find_if(found->stop.begin(), found->stop.end(),
                                      [&chars](wchar_t c) { return chars.Ends(c); });
  if (delimiter == found->stop.end()) return;
  found->fault = NameTextFault::kMissingEquals;
  found->stop = found->stop.substr(0, static_cast<size_t>(delimiter - found->stop.begin()));
}

// A backslash before the delimiters in front of `at`, as where somebody meant to escape them.
bool FollowsBackslash(std::wstring_view text, const wchar_t* at, DWORD options) {
  const ValueChars& chars = ValueCharsFor(options);
  while (at != text.data() && (IsTrimmed(at[-1]) || chars.Ends(at[-1]))) --at;
  return at != text.data() && at[-1] == L'\\';
}

std::wstring Shown(std::wstring_view text) {
  std::wstring shown(text.substr(0, kMostShown));
  // No half of a pair.
  if (shown.size() < text.size() && (shown.back() & 0xFC00) == 0xD800) shown.pop_back();
  return shown;
}

std::wstring NameOf(const AttributeRow& row) {
  const CRYPT_OID_INFO* info = FindAttributeInfo(CRYPT_OID_INFO_OID_KEY, row.oid.data());
  return info != nullptr && info->pwszName != nullptr ? info->pwszName : std::wstring(row.wide_oid);
}

std::wstring Expected(const Found& found) {
  if (found.fault == NameTextFault::kUnknownType) {
    std::wstring text = L"one of the types that are written: ";
    AppendAscii(ListKeywords(), &text);
    return text + L" or an identifier of theirs";
  }
  if (found.fault == NameTextFault::kWrongCharacter) {
    const bool ia5 = PrescribedAlphabet(found.row->rule) == kInIA5;
    const wchar_t* const alphabet =
        ia5 ? L"printing ASCII characters" : L"letters, digits, blank and '()+,-./:?";
    return alphabet + std::wstring(L" alone in the value of ") + NameOf(*found.row);
  }
  const auto row = std::find_if(std::begin(kExpectations), std::end(kExpectations),
                                [&](const Expectation& e) { return e.fault == found.fault; });
  std::wstring text(row->text);
  if (found.follows_backslash) text += L", and a backslash escapes nothing";
  return text;
}

std::wstring Sentence(const NameTextError& error, bool is_end) {
  const std::wstring nothing = is_end ? L"end of the text" : L"nothing";
  const std::wstring what = error.length != 0 ? L"\"" + error.met + L"\"" : nothing;
  return what + L" at character " + std::to_wstring(error.position + 1) + L": expected " +
         error.expected;
}

}  // namespace

NameTextError DescribeNameTextError(const std::wstring& text, unsigned long options) {
  const DWORD word = static_cast<DWORD>(options);
  Found found = FindFault(text, word);
  NameTextError error;
  if (found.fault == NameTextFault::kNone) return error;
  CutAtDelimiter(word, &found);
  found.follows_backslash = found.fault == NameTextFault::kMissingEquals &&
                            FollowsBackslash(text, found.stop.data(), word);
  error.fault = found.fault;
  error.position = static_cast<size_t>(found.stop.data() - text.data());
  error.length = found.stop.size();
  error.met = Shown(found.stop);
  error.expected = Expected(found);
  error.message = Sentence(error, error.position == text.size());
  return error;
}

}  // namespace Ortholan
