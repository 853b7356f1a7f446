// OpenSSL's libcrypto. It has no parser for the text of a name: the text is cut at its separators
// here, without copies, and each attribute handed over.
#include <openssl/asn1.h>
#include <openssl/bio.h>
#include <openssl/crypto.h>
#include <openssl/objects.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "bench/chains.h"
#include "bench/extensions.h"
#include "bench/hosts.h"
#include "bench/measure.h"
#include "bench/name_cases.h"
#include "bench/names.h"
#include "bench/samples.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "OpenSSL";

template <typename T, void (*kFree)(T*)>
struct Deleter {
  void operator()(T* object) const { kFree(object); }
};
using Name = std::unique_ptr<X509_NAME, Deleter<X509_NAME, X509_NAME_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Deleter<X509_EXTENSION, X509_EXTENSION_free>>;
using GenName = std::unique_ptr<GENERAL_NAME, Deleter<GENERAL_NAME, GENERAL_NAME_free>>;
using Bio = std::unique_ptr<BIO, Deleter<BIO, BIO_free_all>>;

const unsigned char* Octets(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

// The encoding that an i2d function allocates.
class Der {
 public:
  template <typename T>
  Der(const T* object, int (*encode)(const T*, unsigned char**)) : size_(encode(object, &data_)) {
    if (size_ < 0) std::abort();
  }
  Der(const Der&) = delete;
  Der& operator=(const Der&) = delete;
  ~Der() { OPENSSL_free(data_); }

  std::string_view view() const {
    return {reinterpret_cast<const char*>(data_), static_cast<size_t>(size_)};
  }

 private:
  unsigned char* data_ = nullptr;
  int size_;
};

Der TextToDer(std::string_view text) {
  const Name name(X509_NAME_new());
  while (!text.empty()) {
    const size_t comma = std::min(text.find(", "), text.size());
    const size_t equals = text.find('=');
    const std::string_view value = text.substr(equals + 1, comma - equals - 1);
    char key[32] = {};
    text.copy(key, equals);
    if (X509_NAME_add_entry_by_txt(name.get(), key, MBSTRING_UTF8, Octets(value),
                                   static_cast<int>(value.size()), -1, 0) != 1) {
      std::abort();
    }
    text.remove_prefix(std::min(comma + 2, text.size()));
  }
  return Der(name.get(), i2d_X509_NAME);
}

Name Decode(std::string_view der) {
  const unsigned char* position = Octets(der);
  return Name(d2i_X509_NAME(nullptr, &position, static_cast<long>(der.size())));
}

std::string_view Contents(const Bio& bio) {
  char* data = nullptr;
  const long size = BIO_get_mem_data(bio.get(), &data);
  return {data, static_cast<size_t>(size)};
}

Bio DerToText(std::string_view der) {
  const Name name = Decode(der);
  Bio bio(BIO_new(BIO_s_mem()));
  X509_NAME_print_ex(bio.get(), name.get(), 0, XN_FLAG_ONELINE & ~ASN1_STRFLGS_ESC_MSB);
  return bio;
}

Pairs DerToStrings(std::string_view der) {
  const Name name = Decode(der);
  Pairs pairs;
  for (int i = 0; i < X509_NAME_entry_count(name.get()); ++i) {
    const X509_NAME_ENTRY* entry = X509_NAME_get_entry(name.get(), i);
    char type[128];
    OBJ_obj2txt(type, sizeof(type), X509_NAME_ENTRY_get_object(entry), 1);
    unsigned char* value = nullptr;
    const int size = ASN1_STRING_to_UTF8(&value, X509_NAME_ENTRY_get_data(entry));
    if (size < 0) std::abort();
    pairs.emplace_back(type,
                       std::string(reinterpret_cast<char*>(value), static_cast<size_t>(size)));
    OPENSSL_free(value);
  }
  return pairs;
}

bool Equal(std::string_view a, std::string_view b) {
  return X509_NAME_cmp(Decode(a).get(), Decode(b).get()) == 0;
}

Extension ReadExtension(std::string_view record) {
  const unsigned char* position = Octets(record);
  return Extension(d2i_X509_EXTENSION(nullptr, &position, static_cast<long>(record.size())));
}

GenName ReadGeneralName(std::string_view der) {
  const unsigned char* position = Octets(der);
  return GenName(d2i_GENERAL_NAME(nullptr, &position, static_cast<long>(der.size())));
}

Bio GeneralNameText(GENERAL_NAME* name) {
  Bio bio(BIO_new(BIO_s_mem()));
  GENERAL_NAME_print(bio.get(), name);
  return bio;
}

void AddBothWays(const char* to_der, const char* to_text, const Attributes& attributes) {
  const std::string text = ToText(attributes, {"=", ", ", "ST"});
  const std::string printed = ToText(attributes, {" = ", ", ", "ST"});
  const std::string der = ToDer(attributes);
  Add({to_der, kSubject, [=] { return TextToDer(text).view() == der; }},
      [=] { return TextToDer(text); });
  Add({to_text, kSubject, [=] { return Contents(DerToText(der)) == printed; }},
      [=] { return DerToText(der); });
}

void AddNames() {
  AddTextCases(AddBothWays);
  AddPairCase(kSubject, DerToStrings);
  AddCompareCase(kSubject, Equal);
  AddDisguisedCase(kSubject, Equal);
}

void AddGeneralNames() {
  const struct {
    const char* work;
    std::string der;
    std::string text;
  } rows[] = {{kGeneralName, DnsNameDer(), std::string("DNS:") + kDnsName},
              {kRegisteredId, RegisteredIdDer(), std::string("Registered ID:") + kRegisteredOid}};
  for (const auto& row : rows) {
    const std::shared_ptr<GENERAL_NAME> name = ReadGeneralName(row.der);
    const std::string text = row.text;
    Add({row.work, kSubject, [=] { return Contents(GeneralNameText(name.get())) == text; }},
        [=] { return GeneralNameText(name.get()); });
  }
  const std::string der = DnsNameDer();
  const auto print = [der] { return GeneralNameText(ReadGeneralName(der).get()); };
  Add({kGeneralNameDer, kSubject, [=] { return Contents(print()) == rows[0].text; }}, print);
}

void AddExtension() {
  const std::string record = ExtensionRecord();
  const std::shared_ptr<X509_EXTENSION> extension = ReadExtension(record);
  const auto write = [=] { return Der(extension.get(), i2d_X509_EXTENSION); };
  const auto right = [=] { return write().view() == record; };
  Add({kReadExtension, kSubject, right}, [=] { return ReadExtension(record); });
  Add({kWriteExtension, kSubject, right}, write);
}

std::shared_ptr<X509> ReadCertificate(const std::string& der) {
  const unsigned char* at = reinterpret_cast<const unsigned char*>(der.data());
  return {d2i_X509(nullptr, &at, static_cast<long>(der.size())), X509_free};
}

bool Permitted(const Chain& chain) {
  const std::shared_ptr<X509> leaf = ReadCertificate(chain.leaf);
  const std::shared_ptr<X509> authority = ReadCertificate(chain.authority);
  if (!leaf || !authority) return false;
  const std::shared_ptr<NAME_CONSTRAINTS> constraints(
      static_cast<NAME_CONSTRAINTS*>(
          X509_get_ext_d2i(authority.get(), NID_name_constraints, nullptr, nullptr)),
      NAME_CONSTRAINTS_free);
  // The check looks at names that X509_check_purpose has read.
  return constraints && X509_check_purpose(leaf.get(), -1, 0) == 1 &&
         NAME_CONSTRAINTS_check(leaf.get(), constraints.get()) == X509_V_OK;
}

void AddConstraints() {
  const Chain usual = UsualChain();
  const Chain refused = UsualRefusedChain();
  Add({kConstraints, kSubject, [=] { return Permitted(usual) && !Permitted(refused); }},
      [=] { return Permitted(usual); });
}

bool IsFor(const std::string& der, const std::string& host) {
  const std::shared_ptr<X509> certificate = ReadCertificate(der);
  return X509_check_host(certificate.get(), host.data(), host.size(),
                         X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS | X509_CHECK_FLAG_NEVER_CHECK_SUBJECT,
                         nullptr) == 1;
}

// Reads a value into OpenSSL's structure and frees it.
bool ReadValue(X509_EXTENSION* extension) {
  const X509V3_EXT_METHOD* const method = X509V3_EXT_get(extension);
  void* const value = X509V3_EXT_d2i(extension);
  if (method == nullptr || value == nullptr) return false;
  if (method->it != nullptr) {
    ASN1_item_free(static_cast<ASN1_VALUE*>(value), ASN1_ITEM_ptr(method->it));
  } else {
    method->ext_free(value);
  }
  return true;
}

size_t ReadAll(const std::string& list) {
  const unsigned char* at = Octets(list);
  const std::shared_ptr<X509_EXTENSIONS> extensions(
      d2i_X509_EXTENSIONS(nullptr, &at, static_cast<long>(list.size())),
      [](X509_EXTENSIONS* all) { sk_X509_EXTENSION_pop_free(all, X509_EXTENSION_free); });
  size_t count = 0;
  for (int i = 0; i < sk_X509_EXTENSION_num(extensions.get()); ++i) {
    if (ReadValue(sk_X509_EXTENSION_value(extensions.get(), i))) ++count;
  }
  return count;
}

void AddCases() {
  // The smallest string type that holds a value, as the other libraries choose, not always UTF-8.
  ASN1_STRING_set_default_mask_asc("default");
  // Lifts the limit of 64 characters for the large value.
  ASN1_STRING_TABLE_add(NID_organizationName, 1, kLargeSize, DIRSTRING_TYPE, 0);
  AddNames();
  AddGeneralNames();
  AddExtension();
  AddConstraints();
  AddHosts(kSubject, IsFor);
  AddExtensions(kSubject, ReadAll);
}

const Registration registration(kSubject, OpenSSL_version(OPENSSL_VERSION_STRING), AddCases);

}  // namespace
}  // namespace Bench
