#include "tests/differential/windows/system_reader.h"

#include <vector>

#include "tests/names/name_answers.h"

namespace Ortholan::testing::windows {
namespace {

// Decoded structures, none where the octets are refused.
using Decoded = std::vector<uint64_t>;
Decoded Decode(LPCSTR type, const std::string& octets) {
  // Room to spare behind the structures, and zeros behind the octets: Wine writes more than it
  // says, and reads beyond an element that is cut short.
  constexpr DWORD kSpare = 1024;
  const std::string padded = octets + std::string(64, '\0');
  const auto* const data = reinterpret_cast<const BYTE*>(padded.data());
  const DWORD size = static_cast<DWORD>(octets.size());
  DWORD needed = 0;
  if (!CryptDecodeObject(X509_ASN_ENCODING, type, data, size, 0, nullptr, &needed)) return {};
  Decoded room((2 * needed + kSpare) / sizeof(uint64_t));
  if (!CryptDecodeObject(X509_ASN_ENCODING, type, data, size, 0, room.data(), &needed)) return {};
  return room;
}

// The structure that a SEQUENCE of this element is decoded to.
Decoded DecodeListOf(const std::string& element, LPCSTR type) {
  std::string list = "\x30\x82";
  list += {static_cast<char>(element.size() >> 8), static_cast<char>(element.size())};
  return Decode(type, list + element);
}

template <class Structure>
const Structure& As(const Decoded& decoded) {
  return *reinterpret_cast<const Structure*>(decoded.data());
}

std::string Line(const CERT_RDN_ATTR& attribute) {
  const std::string type = attribute.pszObjId;
  const CRYPT_DATA_BLOB& value = attribute.Value;
  if ((attribute.dwValueType & CERT_RDN_TYPE_MASK) < CERT_RDN_NUMERIC_STRING) {
    return type + '#' + Hex(value) + ';';
  }
  const auto* const text = reinterpret_cast<const wchar_t*>(value.pbData);
  return type + '=' + Shown(std::wstring(text, value.cbData / sizeof(wchar_t))) + ';';
}

}  // namespace

std::string NameValues(const std::string& octets) {
  const Decoded decoded = Decode(X509_UNICODE_NAME, octets);
  if (decoded.empty()) return kRefused;
  std::string shown;
  const auto& name = As<CERT_NAME_INFO>(decoded);
  for (DWORD i = 0; i < name.cRDN; ++i) {
    for (DWORD j = 0; j < name.rgRDN[i].cRDNAttr; ++j) shown += Line(name.rgRDN[i].rgRDNAttr[j]);
  }
  return shown;
}

std::string NameText(const std::string& octets, DWORD options) {
  std::string copy = octets;
  CERT_NAME_BLOB blob = {static_cast<DWORD>(copy.size()), reinterpret_cast<BYTE*>(copy.data())};
  const DWORD size = CertNameToStrW(X509_ASN_ENCODING, &blob, options, nullptr, 0);
  std::wstring text(2 * size + 64, L'\0');
  const DWORD used = CertNameToStrW(X509_ASN_ENCODING, &blob, options, text.data(), size);
  return Shown(text.substr(0, used > 0 ? used - 1 : 0));
}

std::string NameFrom(const std::wstring& text, DWORD options) {
  DWORD size = 0;
  const auto encode = [&](BYTE* out) {
    return CertStrToNameW(X509_ASN_ENCODING, text.c_str(), options, nullptr, out, &size, nullptr);
  };
  if (!encode(nullptr)) return kRefused;
  std::string der(size, '\0');
  if (!encode(reinterpret_cast<BYTE*>(der.data()))) return kRefused;
  return Hex(der.substr(0, size));
}

std::string GeneralName(const std::string& octets) {
  const Decoded decoded = DecodeListOf(octets, X509_ALTERNATE_NAME);
  if (decoded.empty() || As<CERT_ALT_NAME_INFO>(decoded).cAltEntry != 1) return kRefused;
  const CERT_ALT_NAME_ENTRY& name = As<CERT_ALT_NAME_INFO>(decoded).rgAltEntry[0];
  // The system counts its choices from 1.
  const std::string choice = std::to_string(name.dwAltNameChoice - 1) + ' ';
  switch (name.dwAltNameChoice) {
    case CERT_ALT_NAME_RFC822_NAME:
    case CERT_ALT_NAME_DNS_NAME:
    case CERT_ALT_NAME_URL:
      return choice + Shown(std::wstring(name.pwszRfc822Name));
    case CERT_ALT_NAME_DIRECTORY_NAME:
      return choice + Hex(name.DirectoryName);
    case CERT_ALT_NAME_IP_ADDRESS:
      return choice + Hex(name.IPAddress);
    case CERT_ALT_NAME_REGISTERED_ID:
      return choice + name.pszRegisteredID;
    default:
      return choice;
  }
}

std::string Extension(const std::string& octets) {
  const Decoded decoded = DecodeListOf(octets, X509_EXTENSIONS);
  if (decoded.empty() || As<CERT_EXTENSIONS>(decoded).cExtension != 1) return kRefused;
  const CERT_EXTENSION& only = As<CERT_EXTENSIONS>(decoded).rgExtension[0];
  return only.pszObjId + std::string(only.fCritical ? " critical " : " ") + Hex(only.Value);
}

}  // namespace Ortholan::testing::windows
