// Names, extensions and general names as the system's own decoders read them.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_SYSTEM_READER_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_SYSTEM_READER_H_

#include <ortholan/platform.h>

#include <string>
#include <vector>

namespace Ortholan::testing::windows {

struct Attribute {
  size_t rdn;
  std::string type;
  DWORD value_type;    // CERT_RDN_*
  std::wstring text;   // of a string
  std::string octets;  // of any other value
};

struct Name {
  bool read = false;
  DWORD error = 0;
  std::vector<Attribute> attributes;
};
// By X509_UNICODE_NAME.
Name ReadName(const std::string& octets);
// The types alone, by X509_NAME.
Name ReadNameTypes(const std::string& octets);
// By CertNameToStrW; empty where it refuses.
std::wstring NameText(const std::string& octets, DWORD options);

struct Extension {
  bool read = false;
  DWORD error = 0;
  std::string oid;
  bool critical = false;
  std::string value;
};
// The only one of X509_EXTENSIONS.
Extension ReadExtension(const std::string& octets);

struct GeneralName {
  bool read = false;
  DWORD error = 0;
  DWORD choice = 0;    // CERT_ALT_NAME_*
  std::wstring text;   // of a string or an identifier
  std::string octets;  // of a directory name or an address
};
// The only one of X509_ALTERNATE_NAME.
GeneralName ReadGeneralName(const std::string& octets);

}  // namespace Ortholan::testing::windows

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_SYSTEM_READER_H_
