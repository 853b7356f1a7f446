// A name's text to its encoding under every option: what is encoded decodes to a text that is
// encoded to the same octets, and text in bytes and in wide characters gives the same.
//
// The first byte holds the options, the rest is the text. An input that is an encoded name stands
// for its own text.
#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_text_error.h>
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstdint>
#include <list>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"
#include "names/encoder/name_parser.h"
#include "names/encoder/text_encoder.h"
#include "names/encoder/trim.h"

namespace Ortholan::fuzzing {
namespace {

using Elements = std::list<X500NameEncoder::X500NAME_ELEM>;
using Pairs = std::list<std::pair<std::wstring, std::list<std::wstring>>>;

constexpr DWORD kOptionBits[] = {kEncodeComma, kEncodeSemicolon, kEncodeCrLf, kEncodeUtf8,
                                 kEncodeAlways};

bool AllAscii(const std::wstring& text) {
  return std::all_of(text.begin(), text.end(),
                     [](wchar_t c) { return static_cast<uint32_t>(c) < 0x80; });
}

DWORD OptionsFrom(uint8_t bits) {
  DWORD options = 0;
  for (const DWORD option : kOptionBits) {
    if ((bits & 1) != 0) options |= option;
    bits = static_cast<uint8_t>(bits >> 1);
  }
  return options;
}

// The decoder's option for a separator that the encoder under `options` splits at.
DWORD SeparatorFor(DWORD options) {
  if ((options & kEncodeComma) != 0) return 0;
  if ((options & kEncodeSemicolon) != 0) return kEncodeSemicolon;
  return options & kEncodeCrLf;
}

bool Encode(const std::wstring& text, DWORD options, bool sort, IdentObj* der) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  return encoder.Encode(text, *der, sort);
}

bool Divide(const std::wstring& text, DWORD options, Elements* elements) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  return encoder.DevideIntoElements(text, *elements);
}

// Every way of encoding one text.
bool CheckWays(const std::wstring& text, DWORD options, bool sort, IdentObj* der) {
  const auto encoded = Answer([&] { return Encode(text, options, sort, der); });
  LAW(encoded.first || der->cbData == 0);
  const IdentObj before("before", 6);
  const IdentObj expected = encoded.first ? *der : before;

  if (!AllAscii(text)) return encoded.first;

  std::string ascii(text.begin(), text.end());
  IdentObj narrow(before);
  const AttributeRow* narrow_left = nullptr;
  const auto narrow_answer = Answer([&] {
    return EncodeNameText(std::string_view(ascii), options, sort, &narrow_left, &narrow);
  });
  LAW(narrow_answer == encoded && narrow == expected);
  return encoded.first;
}

// The byte parser and the wide one find the same elements.
void CheckParsers(const std::wstring& text, DWORD options) {
  Elements elements;
  const bool divided = Divide(text, options, &elements);
  LAW(divided || elements.empty());
  const std::string bytes(text.begin(), text.end());
  const std::string_view trimmed = Trimmed(std::string_view(bytes));
  if (!AllAscii(text) || trimmed.empty()) return;
  NameParser<char> parser(trimmed, options, nullptr);
  LAW(parser.Parse_NameElems() == divided);
  if (!divided) return;
  LAW(parser.elements().size() == elements.size());
  auto element = elements.begin();
  parser.elements().ForEach([&element](const NameElem<char>& found) {
    const AttributeRow* const row = found.row();
    LAW(element->type == (row != nullptr ? row->wide_oid : std::wstring_view()));
    LAW(element->value == std::wstring(found.value().begin(), found.value().end()));
    LAW(found.classes() == CommonClasses(std::wstring_view(element->value)));
    ++element;
    return true;
  });
}

// A place is named exactly where the text is refused, and lies in the text.
void CheckDescribed(const std::wstring& text, DWORD options, bool encoded) {
  const NameTextError error = DescribeNameTextError(text, options);
  LAW((error.fault == NameTextFault::kNone) == encoded);
  LAW(error.position <= text.size() && error.length <= text.size() - error.position);
  LAW(text.compare(error.position, error.met.size(), error.met) == 0);
  LAW(error.met.size() <= error.length && error.message.empty() == encoded);
}

// The 8-bit operations of the name, which throw and do not.
void CheckModel(const std::wstring& text, DWORD options, bool sort) {
  if (text.find(L'\0') != std::wstring::npos) return;
  const std::string narrow = DerHelper::ToString(text, 0);
  const DWORD used = (options & kEncodeUtf8) != 0 ? options & kEncodeAlways : options;
  IdentObj der;
  const auto encoded =
      Answer([&] { return Encode(DerHelper::ToWString(narrow, 0), used, sort, &der); });
  const IdentObj before("before", 6);
  X509Name tried(before);
  const auto answer = Answer([&] { return tried.TrySetBy(narrow.c_str(), options, sort); });
  LAW(answer == encoded);
  LAW(static_cast<const IdentObj&>(tried) == (encoded.first ? der : before));
  X509Name thrown(before);
  const std::string outcome = Outcome([&] { thrown.SetBy(narrow.c_str(), options, sort); });
  LAW(outcome == (encoded.first ? kReturned : kNameRefused));
  LAW(static_cast<const IdentObj&>(thrown) == der);
}

// The text that the encoding is shown as parses back to the same types and values, and is encoded
// as it was. A NUL at the front of a value ends a text.
void CheckRoundTrip(const IdentObj& der, DWORD options) {
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(SeparatorFor(options));
  Pairs pairs;
  LAW(decoder.Decode(der, pairs, 2));
  for (const DWORD style : {2u, 3u}) {
    std::wstring shown;
    LAW(decoder.Decode(der, shown, style));
    if (shown.find(L'\0') != std::wstring::npos) continue;
    Elements elements;
    LAW(Divide(shown, options, &elements) && elements.size() == pairs.size());
    auto pair = pairs.begin();
    for (const X500NameEncoder::X500NAME_ELEM& element : elements) {
      LAW(element.type == pair->first && element.value == Joined(pair->second));
      ++pair;
    }
    IdentObj again;
    LAW(Encode(shown, options, false, &again) && again == der);
  }
}

// Sorting is stable and goes by falling GetAttrPriority of the types.
void CheckOrder(const IdentObj& unsorted, const IdentObj& sorted) {
  std::list<IdentObj> rdns;
  ASNTGetSequence(rdns, unsorted.pbData, unsorted.cbData);
  X500NameDecoder decoder;
  Pairs pairs;
  LAW(decoder.Decode(unsorted, pairs, 2) && pairs.size() == rdns.size());
  std::vector<std::pair<int, const IdentObj*>> order;
  auto rdn = rdns.begin();
  for (const auto& pair : pairs) order.emplace_back(GetAttrPriority(pair.first), &*rdn++);
  std::stable_sort(order.begin(), order.end(),
                   [](const auto& a, const auto& b) { return a.first > b.first; });
  std::list<IdentObj> expected;
  for (const auto& entry : order) expected.push_back(*entry.second);
  LAW(ASNTPutSequence(expected, 16) == sorted);
}

// Any value comes back from between double quotes, but for white space at its ends.
void CheckQuoted(std::wstring value, DWORD options) {
  TrimLeftRight(value);
  std::wstring quoted;
  for (const wchar_t c : value) quoted.append(c == L'"' ? 2 : 1, c);
  std::wstring separator = L",";
  if (SeparatorFor(options) != 0) {
    separator = SeparatorFor(options) == kEncodeSemicolon ? L";" : L"\r\n";
  }
  Elements elements;
  LAW(Divide(L"CN=\"" + quoted + L'"' + separator + L"ou=x", options, &elements));
  LAW(elements.size() == 2 && elements.front().value == value);
  LAW(elements.front().type == L"2.5.4.3" && elements.back().type == L"2.5.4.11");
  LAW(elements.back().value == L"x");
}

void CheckTrim(const std::wstring& text) {
  std::wstring trimmed = text;
  TrimLeftRight(trimmed);
  const std::wstring once = trimmed;
  TrimLeftRight(trimmed);
  LAW(trimmed == once && text.find(once) != std::wstring::npos);
}

}  // namespace

void FuzzNameEncode(const uint8_t* data, size_t size) {
  constexpr uint8_t kSequence = 0x30;
  constexpr uint8_t kUtf16 = 0x20;
  Input input(data, size);
  const uint8_t bits = input.Byte();
  const DWORD options = OptionsFrom(bits);
  std::wstring text;
  const IdentObj whole(data, static_cast<DWORD>(size));
  if (bits != kSequence || !X500NameDecoder().Decode(whole, text, 3)) {
    const std::string rest = input.Rest();
    text = (bits & kUtf16) != 0 ? WideOf(rest) : DerHelper::ToWString(rest, 65001);
  }
  CheckTrim(text);
  CheckQuoted(text, options);
  CheckParsers(text, options);
  IdentObj unsorted;
  IdentObj sorted;
  const bool encoded = CheckWays(text, options, false, &unsorted);
  LAW(CheckWays(text, options, true, &sorted) == encoded);
  CheckDescribed(text, options, encoded);
  CheckModel(text, options, (bits & 0x40) != 0);
  if (!encoded) return;
  CheckOrder(unsorted, sorted);
  CheckRoundTrip(unsorted, options);
  CheckRoundTrip(sorted, options);
}

}  // namespace Ortholan::fuzzing
