// Names, extensions and general names as the OpenSSL library reads them: the other opinion that the
// tests here compare with.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_OPENSSL_READER_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_OPENSSL_READER_H_

#include <openssl/asn1.h>
#include <openssl/x509v3.h>

#include <memory>
#include <string>
#include <vector>

namespace Ortholan::testing::openssl {

struct Free {
  void operator()(ASN1_TYPE* type) const { ASN1_TYPE_free(type); }
  void operator()(GENERAL_NAME* name) const { GENERAL_NAME_free(name); }
  void operator()(X509_EXTENSION* extension) const { X509_EXTENSION_free(extension); }
  void operator()(::X509_NAME* name) const { X509_NAME_free(name); }
};

// Octets read by one of the d2i functions.
template <class Type>
struct Read {
  std::unique_ptr<Type, Free> value;  // null where the octets were refused
  size_t size = 0;                    // octets consumed
  int reason = 0;                     // ASN1_R_*, X509_R_*: the first one noted
};
Read<ASN1_TYPE> ReadElement(const std::string& octets);
Read<GENERAL_NAME> ReadGeneralName(const std::string& octets);
Read<X509_EXTENSION> ReadExtension(const std::string& octets);
Read<::X509_NAME> ReadName(const std::string& octets);

// The dotted text of an identifier, and its content octets.
std::string Dotted(const ASN1_OBJECT* oid);
std::string Content(const ASN1_OBJECT* oid);
std::string Content(const ASN1_STRING* string);

// Whether `element` is the encoding of `string`.
bool IsEncodingOf(const std::string& element, const ASN1_STRING* string);

// UTF-16 units of UTF-8; false for what is no UTF-8.
bool FromUtf8(const std::string& octets, std::wstring* text);

// A value as the library's texts show it.
//   kText    the characters of a string; a SEQUENCE of strings has a line for each
//   kOctets  8-bit text outside ASCII that is no UTF-8: OpenSSL has no opinion on it
//   kOther   no string
struct ValueText {
  enum Kind { kText, kOctets, kOther } kind = kText;
  std::vector<std::wstring> lines;
};
ValueText TextOf(const ASN1_STRING* value);

// An attribute and the place of its RDN.
struct Attribute {
  int rdn;
  const ASN1_OBJECT* type;
  const ASN1_STRING* value;
};
std::vector<Attribute> Attributes(const ::X509_NAME* name);

// Headers as OpenSSL reads them, without a look at the tags: what the elements are that stand where
// a Name has its parts, or from `outermost` on. What is in a value is left alone, but where its end
// has to be looked for.
struct Part {
  enum Place { kName, kRdn, kAttribute, kTypeOrValue } place;
  int depth;
  unsigned char identifier;  // the first identifier octet
  size_t header_size;
  size_t children;
  std::string content;
};
std::vector<Part> Parts(const std::string& octets, Part::Place outermost = Part::kName);

}  // namespace Ortholan::testing::openssl

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_OPENSSL_READER_H_
