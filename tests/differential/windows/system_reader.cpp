#include "tests/differential/windows/system_reader.h"

#include <cstring>

#include "tests/support/hex.h"

namespace Ortholan::testing::windows {
namespace {

// Decoded structures, with room to spare behind them: Wine writes more than it says.
struct Decoded {
  bool read = false;
  DWORD error = 0;
  std::vector<uint64_t> room;

  template <class Structure>
  const Structure& As() const {
    return *reinterpret_cast<const Structure*>(room.data());
  }
};

Decoded Decode(LPCSTR type, const std::string& octets) {
  constexpr DWORD kSpare = 1024;
  Decoded decoded;
  // Zeros behind the octets: Wine reads beyond an element that is cut short.
  const std::string padded = octets + std::string(64, '\0');
  const auto* const data = reinterpret_cast<const BYTE*>(padded.data());
  const DWORD size = static_cast<DWORD>(octets.size());
  DWORD needed = 0;
  if (CryptDecodeObject(X509_ASN_ENCODING, type, data, size, 0, nullptr, &needed)) {
    decoded.room.resize((2 * needed + kSpare) / sizeof(uint64_t));
    decoded.read =
        CryptDecodeObject(X509_ASN_ENCODING, type, data, size, 0, decoded.room.data(), &needed);
  }
  decoded.error = GetLastError();
  return decoded;
}

// A SEQUENCE of one element.
std::string Wrapped(const std::string& octets) {
  std::string wrapped = "\x30\x82";
  wrapped += {static_cast<char>(octets.size() >> 8), static_cast<char>(octets.size())};
  return wrapped + octets;
}

std::string Text(const char* text) { return text != nullptr ? text : ""; }
std::wstring Text(const wchar_t* text) { return text != nullptr ? text : L""; }

bool IsString(DWORD value_type) { return value_type >= CERT_RDN_NUMERIC_STRING; }

Attribute Shown(size_t rdn, const CERT_RDN_ATTR& attr) {
  Attribute shown{rdn, Text(attr.pszObjId), attr.dwValueType & CERT_RDN_TYPE_MASK, L"", ""};
  if (IsString(shown.value_type)) {
    shown.text.assign(reinterpret_cast<const wchar_t*>(attr.Value.pbData),
                      attr.Value.cbData / sizeof(wchar_t));
  } else {
    shown.octets = std::string(AsText(attr.Value));
  }
  return shown;
}

Name ReadAs(LPCSTR type, const std::string& octets) {
  const Decoded decoded = Decode(type, octets);
  Name name;
  name.read = decoded.read;
  name.error = decoded.error;
  if (!decoded.read) return name;
  const CERT_NAME_INFO& info = decoded.As<CERT_NAME_INFO>();
  for (DWORD i = 0; i < info.cRDN; ++i) {
    const CERT_RDN& rdn = info.rgRDN[i];
    for (DWORD j = 0; j < rdn.cRDNAttr; ++j) {
      name.attributes.push_back(Shown(i, rdn.rgRDNAttr[j]));
    }
  }
  return name;
}

}  // namespace

Name ReadName(const std::string& octets) { return ReadAs(X509_UNICODE_NAME, octets); }
Name ReadNameTypes(const std::string& octets) { return ReadAs(X509_NAME, octets); }

std::wstring NameText(const std::string& octets, DWORD options) {
  std::string copy = octets;
  CERT_NAME_BLOB blob = {static_cast<DWORD>(copy.size()), reinterpret_cast<BYTE*>(copy.data())};
  const DWORD size = CertNameToStrW(X509_ASN_ENCODING, &blob, options, nullptr, 0);
  std::wstring text(2 * size + 64, L'\0');
  const DWORD used = CertNameToStrW(X509_ASN_ENCODING, &blob, options, text.data(), size);
  text.resize(used > 0 ? used - 1 : 0);
  return text;
}

Extension ReadExtension(const std::string& octets) {
  const Decoded decoded = Decode(X509_EXTENSIONS, Wrapped(octets));
  Extension extension;
  extension.error = decoded.error;
  if (!decoded.read || decoded.As<CERT_EXTENSIONS>().cExtension != 1) return extension;
  const CERT_EXTENSION& only = decoded.As<CERT_EXTENSIONS>().rgExtension[0];
  extension.read = true;
  extension.oid = Text(only.pszObjId);
  extension.critical = only.fCritical != FALSE;
  extension.value = std::string(AsText(only.Value));
  return extension;
}

GeneralName ReadGeneralName(const std::string& octets) {
  const Decoded decoded = Decode(X509_ALTERNATE_NAME, Wrapped(octets));
  GeneralName name;
  name.error = decoded.error;
  if (!decoded.read || decoded.As<CERT_ALT_NAME_INFO>().cAltEntry != 1) return name;
  const CERT_ALT_NAME_ENTRY& only = decoded.As<CERT_ALT_NAME_INFO>().rgAltEntry[0];
  name.read = true;
  name.choice = only.dwAltNameChoice;
  switch (name.choice) {
    case CERT_ALT_NAME_RFC822_NAME:
    case CERT_ALT_NAME_DNS_NAME:
    case CERT_ALT_NAME_URL:
      name.text = Text(only.pwszRfc822Name);
      break;
    case CERT_ALT_NAME_DIRECTORY_NAME:
      name.octets = std::string(AsText(only.DirectoryName));
      break;
    case CERT_ALT_NAME_IP_ADDRESS:
      name.octets = std::string(AsText(only.IPAddress));
      break;
    case CERT_ALT_NAME_REGISTERED_ID: {
      const std::string oid = Text(only.pszRegisteredID);
      name.text.assign(oid.begin(), oid.end());
      break;
    }
    default:
      break;
  }
  return name;
}

}  // namespace Ortholan::testing::windows
