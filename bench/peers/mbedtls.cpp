// mbedTLS. It writes from the end of a buffer towards its front and takes a name of unequal string
// types apart without reading them, so that comparison is bytewise.
#include <mbedtls/asn1.h>
#include <mbedtls/asn1write.h>
#include <mbedtls/oid.h>
#include <mbedtls/platform.h>
#include <mbedtls/version.h>
#include <mbedtls/x509.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "bench/measure.h"
#include "bench/name_cases.h"
#include "bench/names.h"
#include "bench/samples.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "mbedTLS";

using Octet = unsigned char;

// A buffer on the stack, or on the heap for the large names.
template <size_t kSize>
struct StackBuffer {
  Octet data[kSize];
  Octet* begin() { return data; }
  Octet* end() { return data + kSize; }
};
using HeapBuffer = std::vector<Octet>;

struct Encoded {
  mbedtls_asn1_named_data* list = nullptr;
  ~Encoded() { mbedtls_asn1_free_named_data_list(&list); }
};

// Bytes written into `buffer`, 0 on failure; they stand at its end.
size_t TextToDer(const std::string& text, Octet* begin, Octet* end) {
  Encoded names;
  if (mbedtls_x509_string_to_names(&names.list, text.c_str()) != 0) return 0;
  Octet* position = end;
  const int size = mbedtls_x509_write_names(&position, begin, names.list);
  benchmark::DoNotOptimize(*position);
  return size < 0 ? 0 : static_cast<size_t>(size);
}

class Name {
 public:
  explicit Name(std::string_view der) {
    // The elements are only read.
    Octet* position = reinterpret_cast<Octet*>(const_cast<char*>(der.data()));
    const Octet* end = position + der.size();
    size_t size = 0;
    read_ = mbedtls_asn1_get_tag(&position, end, &size,
                                 MBEDTLS_ASN1_CONSTRUCTED | MBEDTLS_ASN1_SEQUENCE) == 0 &&
            mbedtls_x509_get_name(&position, end, &first_) == 0;
  }
  Name(const Name&) = delete;
  Name& operator=(const Name&) = delete;
  ~Name() {
    for (mbedtls_x509_name* next = first_.next; next != nullptr;) {
      mbedtls_x509_name* const current = next;
      next = current->next;
      mbedtls_free(current);
    }
  }

  bool read() const { return read_; }
  const mbedtls_x509_name& first() const { return first_; }

 private:
  mbedtls_x509_name first_ = {};
  bool read_ = false;
};

std::string_view View(const mbedtls_x509_buf& buffer) {
  return {reinterpret_cast<const char*>(buffer.p), buffer.len};
}

// Characters written into `buffer`, 0 on failure.
size_t DerToText(std::string_view der, char* buffer, size_t size) {
  const Name name(der);
  const int length = name.read() ? mbedtls_x509_dn_gets(buffer, size, &name.first()) : -1;
  benchmark::DoNotOptimize(*buffer);
  return length < 0 ? 0 : static_cast<size_t>(length);
}

Pairs DerToStrings(std::string_view der) {
  const Name name(der);
  Pairs pairs;
  for (const mbedtls_x509_name* at = &name.first(); at != nullptr; at = at->next) {
    char type[128];
    if (mbedtls_oid_get_numeric_string(type, sizeof(type), &at->oid) < 0) std::abort();
    pairs.emplace_back(type, View(at->val));
  }
  return pairs;
}

bool Equal(std::string_view left, std::string_view right) {
  const Name a(left);
  const Name b(right);
  const mbedtls_x509_name* x = &a.first();
  const mbedtls_x509_name* y = &b.first();
  for (; x != nullptr && y != nullptr; x = x->next, y = y->next) {
    if (View(x->oid) != View(y->oid) || View(x->val) != View(y->val)) return false;
  }
  return x == y;
}

// Free text is a UTF8String there.
void AddBothWays(const char* to_der, const char* to_text, const Attributes& attributes) {
  const std::string text = ToText(attributes, {"=", ", ", "ST"});
  const std::string der = ToDer(attributes, kUtf8String);
  const auto buffer = std::make_shared<HeapBuffer>(der.size() + text.size() + 1000);
  Octet* const begin = buffer->data();
  Octet* const end = begin + buffer->size();
  const auto right = [=] {
    const size_t size = TextToDer(text, begin, end);
    return std::equal(end - size, end, der.begin(), der.end(),
                      [](Octet a, char b) { return a == static_cast<Octet>(b); });
  };
  Add({to_der, kSubject, right}, [=] {
    benchmark::DoNotOptimize(buffer.get());
    return TextToDer(text, begin, end);
  });

  char* const out = reinterpret_cast<char*>(begin);
  const auto reads = [=] {
    const size_t size = DerToText(der, out, buffer->size());
    return std::string_view(out, size) == text;
  };
  Add({to_text, kSubject, reads}, [=] {
    benchmark::DoNotOptimize(buffer.get());
    return DerToText(der, out, buffer->size());
  });
}

void AddNames() {
  AddTextCases(AddBothWays);
  AddPairCase(kSubject, DerToStrings);
  AddCompareCase(kSubject, Equal);
  AddDisguisedCase(kSubject, Equal);
}

// Writes what stands ready in the library's own form, the identifier already encoded.
void AddExtension() {
  const std::string record = ExtensionRecord();
  const std::string oid = OidElement(kExtensionOid).substr(2);
  const std::string value = ExtensionValue();
  const auto list = std::make_shared<Encoded>();
  if (mbedtls_x509_set_extension(&list->list, oid.data(), oid.size(), 1,
                                 reinterpret_cast<const Octet*>(value.data()), value.size()) != 0) {
    std::abort();
  }
  const auto write = [list] {
    StackBuffer<256> buffer;
    Octet* position = buffer.end();
    const int size = mbedtls_x509_write_extensions(&position, buffer.begin(), list->list);
    return std::string(reinterpret_cast<const char*>(position), static_cast<size_t>(size));
  };
  Add({kWriteExtension, kSubject, [=] { return write() == record; }}, write);
}

void AddCases() {
  AddNames();
  AddExtension();
}

std::string Version() {
  char version[16];
  mbedtls_version_get_string(version);
  return version;
}

const Registration registration(kSubject, Version(), AddCases);

}  // namespace
}  // namespace Bench
