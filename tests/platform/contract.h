// What the contract tests of the platform's calls have in common. Each row of a table states what
// the library relies on; where a realisation is known to answer otherwise, the row says so.

#ifndef ORTHOLAN_TESTS_PLATFORM_CONTRACT_H_
#define ORTHOLAN_TESTS_PLATFORM_CONTRACT_H_

#include <gtest/gtest.h>
#include <ortholan/platform.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "realisation.h"

namespace Ortholan::testing {

// The last error before each call: a code that no call sets.
inline constexpr DWORD kUntouched = 7777;
inline constexpr DWORD kEncoding = X509_ASN_ENCODING | PKCS_7_ASN_ENCODING;

// For failures whose code the library does not look at.
inline constexpr DWORD kAnyError = 0xFFFFFFFF;

// A known difference.
template <class Answer>
struct Except {
  unsigned where;  // set of Realisation
  Answer answer;
  const char* reason;
};

template <class Answer>
struct Contract {
  Answer answer;
  std::vector<Except<Answer>> exceptions = {};

  const Answer& Here() const {
    for (const Except<Answer>& exception : exceptions) {
      if ((exception.where & ThisRealisation()) != 0) return exception.answer;
    }
    return answer;
  }
};

// Checks the last error after a call: the code of a failure, and that success left it alone, which
// the native realisation alone promises.
inline void ExpectLastError(bool failed, DWORD expected) {
  const DWORD error = GetLastError();
  if (failed && expected != kAnyError) {
    EXPECT_EQ(error, expected) << std::hex << "last error 0x" << error;
  }
  if (!failed && ThisRealisation() == kNative) {
    EXPECT_EQ(error, kUntouched) << "success touched it";
  }
}

// A block of exactly the given size, so that a sanitizer sees the first octet read or written
// beyond it. Never null.
template <class Element>
class ExactBlock {
 public:
  explicit ExactBlock(std::size_t size) : size_(size), data_(new Element[size]()) {}
  template <class Text>
  static ExactBlock CopyOf(const Text& text) {
    ExactBlock block(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) block[i] = static_cast<Element>(text[i]);
    return block;
  }

  Element* data() { return data_.get(); }
  std::size_t size() const { return size_; }
  Element& operator[](std::size_t i) { return data_[i]; }

 private:
  std::size_t size_;
  std::unique_ptr<Element[]> data_;
};

// Upper-case hex of octets or of UTF-16 units, for messages and for rows.
template <class Text>
std::string Hex(const Text& text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string hex;
  for (const auto c : text) {
    const auto value = static_cast<unsigned>(c);
    for (int shift = sizeof(c) == 1 ? 4 : 12; shift >= 0; shift -= 4) {
      hex += kDigits[value >> shift & 0xF];
    }
  }
  return hex;
}

// Octets of hex digits; blanks are passed over.
inline std::string Octets(const std::string& hex) {
  std::string octets;
  int high = -1;
  for (const char c : hex) {
    if (c == ' ') continue;
    const int digit = c <= '9' ? c - '0' : c - 'A' + 10;
    if (high < 0) {
      high = digit;
    } else {
      octets += static_cast<char>(16 * high + digit);
      high = -1;
    }
  }
  return octets;
}

inline BYTE* AsBytes(char* text) { return reinterpret_cast<BYTE*>(text); }

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_PLATFORM_CONTRACT_H_
