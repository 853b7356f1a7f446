// What the tests of names have in common: operations' answers as text, and DER to feed them with.

#ifndef ORTHOLAN_TESTS_NAMES_NAME_ANSWERS_H_
#define ORTHOLAN_TESTS_NAMES_NAME_ANSWERS_H_

#include <gtest/gtest.h>
#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>

#include <sstream>
#include <string>
#include <utility>

#include "realisation.h"
#include "tests/support/der.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {

// The last error before each call: a code that no call sets.
inline constexpr DWORD kUntouched = 7777;

inline const std::string kRefused = "refused";
inline const std::string kCorrupt = "refused, 80093103";
inline const std::string kBadTag = "refused, 8009310B";
inline const std::string kNoIdentifier = "refused, 1326";

// "refused" and the last error that the library set. Calls of the system that succeed leave the
// last error alone natively, and may set it to one of two codes elsewhere.
inline std::string Refusal() {
  const DWORD error = GetLastError();
  const bool foreign = error == 0 || error == ERROR_FILE_NOT_FOUND;
  if (error == kUntouched || (foreign && ThisRealisation() != kNative)) return kRefused;
  std::ostringstream text;
  text << kRefused << ", " << (error < 0x10000 ? std::dec : std::hex) << std::uppercase << error;
  return text.str();
}

// What stays in the blob that an encoder refuses to fill: text empties it first.
inline constexpr char kEmptied[] = "";
inline constexpr char kKept[] = "01 02";

// Runs an encoder: the octets in hex, or the refusal.
template <class Encode>
std::string Encoded(const char* left, Encode&& encode) {
  IdentObj der = Blob(kKept);
  SetLastError(kUntouched);
  if (encode(der)) return Hex(der);
  const std::string refusal = Refusal();
  return Hex(der) == left ? refusal : refusal + " leaving " + Hex(der);
}

// A name of one attribute, from the attribute's content: identifier and value.
inline std::string NameOf(const std::string& attribute) {
  return Tlv(0x30, Tlv(0x31, Tlv(0x30, attribute)));
}
inline IdentObj CommonName(const std::string& value) {
  return ExactCopy(NameOf(Octets("06 03 55 04 03") + value));
}

// Characters other than ASCII's printing ones as "<units>", so that texts can be compared.
inline std::string Shown(const std::wstring& text) {
  std::string shown;
  for (const wchar_t c : text) {
    const bool plain = c >= L' ' && c <= L'~';
    shown += plain ? std::string(1, static_cast<char>(c)) : '<' + Hex(std::wstring(1, c)) + '>';
  }
  return shown;
}

using Pairs = std::list<std::pair<std::wstring, std::list<std::wstring>>>;

// "type=value|value;type=value;"
inline std::string Shown(const Pairs& pairs) {
  std::string shown;
  for (const auto& [type, values] : pairs) {
    shown += Shown(type) + '=';
    for (const std::wstring& value : values) {
      shown += (&value != &values.front() ? "|" : "") + Shown(value);
    }
    shown += ';';
  }
  return shown;
}

// Renders a name: its text, or the refusal and the text that was left.
inline std::string Rendered(const IdentObj& name, DWORD options) {
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(options);
  std::wstring text = L"old";
  SetLastError(kUntouched);
  const bool decoded = decoder.Decode(name, text, options);
  return (decoded ? "" : Refusal() + " after ") + Shown(text);
}

// The same as a pair list.
inline std::string Listed(const IdentObj& name, DWORD style) {
  X500NameDecoder decoder;
  Pairs pairs = {{L"old", {}}};
  SetLastError(kUntouched);
  const bool decoded = decoder.Decode(name, pairs, style);
  return (decoded ? "" : Refusal() + " after ") + Shown(pairs);
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_NAMES_NAME_ANSWERS_H_
