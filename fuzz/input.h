// One input taken apart from its front: choices, numbers and texts for operations that take more
// than bytes. What is past the end reads as zeros and empty texts.
#ifndef ORTHOLAN_FUZZ_INPUT_H_
#define ORTHOLAN_FUZZ_INPUT_H_

#include <ortholan/ident_obj.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace Ortholan::fuzzing {

class Input {
 public:
  Input(const uint8_t* data, size_t size) : at_(data), end_(data + size) {}

  size_t left() const { return static_cast<size_t>(end_ - at_); }
  bool AtEnd() const { return at_ == end_; }

  uint8_t Byte() { return AtEnd() ? uint8_t{0} : *at_++; }
  bool Flag() { return (Byte() & 1) != 0; }
  // 0 to `count` - 1.
  size_t Below(size_t count) { return Byte() % count; }
  // Little-endian.
  uint32_t Word() {
    uint32_t word = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) word |= uint32_t{Byte()} << shift;
    return word;
  }
  template <typename T, size_t N>
  const T& Pick(const T (&choices)[N]) {
    return choices[Below(N)];
  }

  std::string Bytes(size_t count) {
    count = std::min(count, left());
    std::string bytes(reinterpret_cast<const char*>(at_), count);
    at_ += count;
    return bytes;
  }
  // Up to 255 bytes: a count and the bytes.
  std::string ShortText() { return Bytes(Byte()); }
  std::string Rest() { return Bytes(left()); }
  IdentObj RestAsBlob() { return Blob(Rest()); }

  // A heap block of exactly these octets, so that a sanitizer sees the first one read beyond them.
  static IdentObj Blob(const std::string& bytes) {
    return IdentObj(bytes.data(), static_cast<DWORD>(bytes.size()));
  }

 private:
  const uint8_t* at_;
  const uint8_t* end_;
};

// UTF-16LE bytes as wide text, an odd last byte dropped.
inline std::wstring WideOf(const std::string& bytes) {
  std::wstring text;
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<uint8_t>(bytes[i]);
    const auto high = static_cast<uint8_t>(bytes[i + 1]);
    text.push_back(static_cast<wchar_t>(high << 8 | low));
  }
  return text;
}

}  // namespace Ortholan::fuzzing

#endif  // ORTHOLAN_FUZZ_INPUT_H_
