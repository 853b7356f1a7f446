#include "tests/differential/our_name.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kPaddingBytes = 4;
constexpr DWORD kDotted = 2;
constexpr DWORD kSemicolons = 0x40000000;

std::wstring Units(const CRYPT_DATA_BLOB& bytes) {
  std::wstring text;
  for (DWORD i = 0; i + kPaddingBytes + 1 < bytes.cbData; i += 2) {
    text += static_cast<wchar_t>(bytes.pbData[i] | bytes.pbData[i + 1] << 8);
  }
  return text;
}

OurAttribute Attribute(const CERT_RDN& rdn) {
  OurAttribute ours;
  EXPECT_EQ(rdn.cRDNAttr, 1u);
  const CERT_RDN_ATTR& attr = rdn.rgRDNAttr[0];
  ours.type = attr.pszObjId;
  ours.decoded = attr.dwValueType == CERT_RDN_UNICODE_STRING;
  if (ours.decoded) {
    EXPECT_EQ(Hex(AsText(attr.Value).substr(attr.Value.cbData - kPaddingBytes)), "00 00 00 00");
    ours.text = Units(attr.Value);
  } else {
    EXPECT_EQ(attr.dwValueType, DWORD{CERT_RDN_ENCODED_BLOB});
    ours.encoding = std::string(AsText(attr.Value));
  }
  return ours;
}

bool IsWhite(wchar_t c) {
  return (c >= 9 && c <= 13) || c == 0x20 || c == 0xA0 || c == 0x1680 ||
         (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F ||
         c == 0x3000;
}

}  // namespace

OurName::OurName(const std::string& octets) {
  const IdentObj name = ExactCopy(octets);
  X500NameDecoder decoder;
  CertNameInfoWrapper wrapper;
  SetLastError(0);
  has_tree = decoder.Decode(name, wrapper);
  error = GetLastError();
  const CERT_NAME_INFO* const info = wrapper;
  for (DWORD i = 0; has_tree && i < info->cRDN; ++i) tree.push_back(Attribute(info->rgRDN[i]));
  has_pairs = decoder.Decode(name, pairs, kDotted);
  decoder.SetDecoderOptions(kSemicolons);
  has_text = decoder.Decode(name, text, kSemicolons | kDotted);
}

std::wstring Quoted(const std::wstring& value) {
  const bool plain = !value.empty() && value.find_first_of(L"'#;,+\"\\=<>\n\r") == value.npos &&
                     !IsWhite(value.front()) && !IsWhite(value.back());
  if (plain) return value;
  std::wstring quoted = L"\"";
  for (const wchar_t c : value) quoted.append(c == L'"' ? 2 : 1, c);
  return quoted + L'"';
}

std::wstring Joined(const std::vector<std::wstring>& lines) {
  std::wstring joined;
  for (const std::wstring& line : lines) joined += (&line != &lines.front() ? L"\n" : L"") + line;
  return joined;
}

}  // namespace Ortholan::testing
