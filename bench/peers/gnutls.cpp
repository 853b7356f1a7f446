// GnuTLS. Texts are those of RFC 4514: the last RDN comes first.
#include <gnutls/gnutls.h>
#include <gnutls/x509.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "bench/chains.h"
#include "bench/hosts.h"
#include "bench/measure.h"
#include "bench/name_cases.h"
#include "bench/names.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "GnuTLS";

class Name {
 public:
  Name() {
    if (gnutls_x509_dn_init(&name_) != GNUTLS_E_SUCCESS) std::abort();
  }
  Name(const Name&) = delete;
  Name& operator=(const Name&) = delete;
  ~Name() { gnutls_x509_dn_deinit(name_); }

  gnutls_x509_dn_t get() const { return name_; }

 private:
  gnutls_x509_dn_t name_;
};

// What the library allocated, "" where it failed.
std::string Take(int error, gnutls_datum_t* datum) {
  if (error != GNUTLS_E_SUCCESS) return std::string();
  std::string bytes(reinterpret_cast<char*>(datum->data), datum->size);
  gnutls_free(datum->data);
  return bytes;
}

void Import(const std::string& der, const Name& name) {
  // The data is only read.
  const gnutls_datum_t data = {reinterpret_cast<unsigned char*>(const_cast<char*>(der.data())),
                               static_cast<unsigned>(der.size())};
  gnutls_x509_dn_import(name.get(), &data);
}

std::string TextToDer(const std::string& text) {
  const Name name;
  if (gnutls_x509_dn_set_str(name.get(), text.c_str(), nullptr) != GNUTLS_E_SUCCESS) return "";
  gnutls_datum_t der = {};
  return Take(gnutls_x509_dn_export2(name.get(), GNUTLS_X509_FMT_DER, &der), &der);
}

std::string DerToText(const std::string& der) {
  const Name name;
  Import(der, name);
  gnutls_datum_t text = {};
  return Take(gnutls_x509_dn_get_str2(name.get(), &text, 0), &text);
}

Pairs DerToStrings(const std::string& der) {
  const Name name;
  Import(der, name);
  Pairs pairs;
  gnutls_x509_ava_st ava;
  for (int i = 0; gnutls_x509_dn_get_rdn_ava(name.get(), i, 0, &ava) == GNUTLS_E_SUCCESS; ++i) {
    // The identifier ends with a NUL that is counted.
    pairs.emplace_back(reinterpret_cast<char*>(ava.oid.data),
                       std::string(reinterpret_cast<char*>(ava.value.data), ava.value.size));
  }
  return pairs;
}

bool Equal(const std::string& a, const std::string& b) { return DerToText(a) == DerToText(b); }

bool Read(const std::string& der, gnutls_x509_crt_t certificate) {
  const gnutls_datum_t data = {reinterpret_cast<unsigned char*>(const_cast<char*>(der.data())),
                               static_cast<unsigned>(der.size())};
  return gnutls_x509_crt_import(certificate, &data, GNUTLS_X509_FMT_DER) == GNUTLS_E_SUCCESS;
}

// Of DNS names alone: each form of names is a call of its own.
bool Permitted(const Chain& chain) {
  gnutls_x509_crt_t leaf = nullptr;
  gnutls_x509_crt_t authority = nullptr;
  gnutls_x509_name_constraints_t constraints = nullptr;
  gnutls_x509_crt_init(&leaf);
  gnutls_x509_crt_init(&authority);
  gnutls_x509_name_constraints_init(&constraints);
  unsigned critical = 0;
  const bool permitted =
      Read(chain.leaf, leaf) && Read(chain.authority, authority) &&
      gnutls_x509_crt_get_name_constraints(authority, constraints, 0, &critical) ==
          GNUTLS_E_SUCCESS &&
      gnutls_x509_name_constraints_check_crt(constraints, GNUTLS_SAN_DNSNAME, leaf) != 0;
  gnutls_x509_name_constraints_deinit(constraints);
  gnutls_x509_crt_deinit(authority);
  gnutls_x509_crt_deinit(leaf);
  return permitted;
}

void AddConstraints() {
  const Chain usual = UsualChain();
  const Chain refused = UsualRefusedChain();
  Add({kConstraints, kSubject, [=] { return Permitted(usual) && !Permitted(refused); }},
      [=] { return Permitted(usual); });
}

void AddBothWays(const char* to_der, const char* to_text, const Attributes& attributes) {
  const std::string text = ToText(attributes, {"=", ",", "ST", "L", true});
  const std::string der = ToDer(attributes);
  Add({to_der, kSubject, [=] { return TextToDer(text) == der; }}, [=] { return TextToDer(text); });
  Add({to_text, kSubject, [=] { return DerToText(der) == text; }}, [=] { return DerToText(der); });
}

bool IsFor(const std::string& der, const std::string& host) {
  gnutls_x509_crt_t certificate = nullptr;
  gnutls_x509_crt_init(&certificate);
  const bool is_for = Read(der, certificate) &&
                      gnutls_x509_crt_check_hostname2(certificate, host.c_str(),
                                                      GNUTLS_VERIFY_DO_NOT_ALLOW_IP_MATCHES) != 0;
  gnutls_x509_crt_deinit(certificate);
  return is_for;
}

void AddCases() {
  AddTextCases(AddBothWays);
  AddPairCase(kSubject, DerToStrings);
  AddCompareCase(kSubject, Equal);
  AddConstraints();
  AddHosts(kSubject, IsFor);
}

const Registration registration(kSubject, gnutls_check_version(nullptr), AddCases);

}  // namespace
}  // namespace Bench
