// Botan 2.
#include <botan/ber_dec.h>
#include <botan/der_enc.h>
#include <botan/pkix_types.h>
#include <botan/version.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "bench/names.h"
#include "bench/samples.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "Botan";

using Octets = std::vector<uint8_t>;

Octets ToOctets(const std::string& bytes) { return Octets(bytes.begin(), bytes.end()); }

template <typename T>
Octets Encode(const T& object) {
  Octets der;
  Botan::DER_Encoder(der).encode(object);
  return der;
}

template <typename T>
T Decode(const Octets& der) {
  T object;
  Botan::BER_Decoder(der).decode(object);
  return object;
}

Octets TextToDer(const std::string& text) {
  Botan::X509_DN name;
  std::istringstream stream(text);
  stream >> name;
  return Encode(name);
}

std::string DerToText(const Octets& der) { return Decode<Botan::X509_DN>(der).to_string(); }

Pairs DerToStrings(const Octets& der) {
  const Botan::X509_DN name = Decode<Botan::X509_DN>(der);
  Pairs pairs;
  for (const auto& [type, value] : name.dn_info()) {
    pairs.emplace_back(type.to_string(), value.value());
  }
  return pairs;
}

bool Equal(const Octets& a, const Octets& b) {
  return Decode<Botan::X509_DN>(a) == Decode<Botan::X509_DN>(b);
}

void AddBothWays(const char* to_der, const char* to_text, const Attributes& attributes) {
  // Without quotes its parser drops the spaces in a value.
  const std::string text = ToText(attributes, {"=", ", ", "ST", "L", false, true});
  const std::string der = ToDer(attributes);
  const Octets octets = ToOctets(der);
  const std::string printed =
      ToText(attributes, {"=", ",", "X520.State", "X520.Locality", false, true});
  Add({to_der, kSubject, [=] { return TextToDer(text) == octets; }},
      [=] { return TextToDer(text); });
  Add({to_text, kSubject, [=] { return DerToText(octets) == printed; }},
      [=] { return DerToText(octets); });
}

void AddNames() {
  AddBothWays(kTextToDer, kDerToText, SixAttributes());
  AddBothWays(kLargeToDer, kLargeToText, LargeValue(kLargeSize));
  AddBothWays(kManyToDer, kManyToText, ManyAttributes(kManyCount));

  const Attributes six = SixAttributes();
  const Octets der = ToOctets(ToDer(six));
  const Octets utf8 = ToOctets(ToDer(six, kUtf8String));
  const Octets other = ToOctets(ToDer(ManyAttributes(6)));
  Add({kDerToStrings, kSubject, [=] { return DerToStrings(der) == ToPairs(six); }},
      [=] { return DerToStrings(der); });
  Add({kCompare, kSubject, [=] { return Equal(der, utf8) && !Equal(der, other); }},
      [=] { return Equal(der, utf8); });
  const auto disguised = ToOctets(ToDer(Disguised(six)));
  const auto same = [=] { return Equal(der, disguised); };
  Add({kCompareDisguised, kSubject, same}, same);
}

std::string GeneralNameText(const Botan::GeneralName& name) {
  return name.type() + ':' + name.name();
}

// A decoded one holds its text.
void AddGeneralName() {
  const Octets der = ToOctets(DnsNameDer());
  const auto name = std::make_shared<Botan::GeneralName>(Decode<Botan::GeneralName>(der));
  const auto print = [name] { return GeneralNameText(*name); };
  const auto read = [der] { return GeneralNameText(Decode<Botan::GeneralName>(der)); };
  const std::string text = std::string("DNS:") + kDnsName;
  Add({kGeneralName, kSubject, [=] { return print() == text; }}, print);
  Add({kGeneralNameDer, kSubject, [=] { return read() == text; }}, read);
}

// Extensions come as the whole field, here of the one.
void AddExtension() {
  const Octets field = ToOctets(Tlv(0x30, ExtensionRecord()));
  const auto read = [field] {
    Botan::Extensions extensions;
    Botan::BER_Decoder(field).decode(extensions);
    return extensions;
  };
  const auto extensions = std::make_shared<Botan::Extensions>(read());
  const auto write = [extensions] {
    Octets der;
    Botan::DER_Encoder(der).start_cons(Botan::SEQUENCE).encode(*extensions).end_cons();
    return der;
  };
  const auto right = [=] { return write() == field; };
  Add({kReadExtension, kSubject, right}, read);
  Add({kWriteExtension, kSubject, right}, write);
}

void AddCases() {
  AddNames();
  AddGeneralName();
  AddExtension();
}

const Registration registration(kSubject, Botan::short_version_string(), AddCases);

}  // namespace
}  // namespace Bench
