// What the codecs of CryptEncodeObject and CryptDecodeObject are made of. Each codec is a function
// over one structure, run once to learn the size and once more to fill the caller's room:
//
//   DWORD Write(const Info& info, DerWriter* out);          last-error code, 0 for success
//   DWORD Read(ByteView der, StructRoom* room, Info* info);

#ifndef ORTHOLAN_PLATFORM_POSIX_CODEC_H_
#define ORTHOLAN_PLATFORM_POSIX_CODEC_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "platform/posix/der.h"
#include "platform/posix/fail.h"

namespace Ortholan::posix {

inline constexpr std::size_t kLargestSize = 0xFFFFFFFF;

// Writes DER from its end to its front, so that each length is known when its turn comes. Without
// a room it only counts.
class DerWriter {
 public:
  explicit DerWriter(BYTE* end = nullptr) : end_(end) {}

  std::size_t size() const { return size_; }

  void PutOctet(BYTE octet) {
    ++size_;
    if (end_ != nullptr) *(end_ - size_) = octet;
  }
  void PutOctets(ByteView octets) {
    size_ += octets.size;
    if (end_ != nullptr && octets.size != 0) std::memcpy(end_ - size_, octets.data, octets.size);
  }
  // Makes an element of what was written since `mark`, a former size().
  void PutHeader(BYTE tag, std::size_t mark) {
    const std::size_t contentSize = size_ - mark;
    size_ += ElementSize(contentSize) - contentSize;
    if (end_ != nullptr) WriteHeader(end_ - size_, tag, contentSize);
  }

  // Where in the structure a text was refused; the caller of the codec gets it in place of a size.
  void SetFault(DWORD position) { fault_ = position; }
  DWORD fault() const { return fault_; }

 private:
  BYTE* end_;
  std::size_t size_ = 0;
  DWORD fault_ = 0;
};

// The room behind a decoded structure, for what its pointers point at. Without a place it only
// counts, and every pointer is null. The place need not be aligned.
class StructRoom {
 public:
  explicit StructRoom(std::size_t structSize, BYTE* place = nullptr)
      : place_(place), used_(structSize) {}

  std::size_t used() const { return used_; }

  // Null for no elements.
  template <class Element>
  Element* Take(std::size_t count) {
    used_ = (used_ + alignof(Element) - 1) / alignof(Element) * alignof(Element);
    BYTE* const taken = place_ != nullptr && count != 0 ? place_ + used_ : nullptr;
    used_ += count * sizeof(Element);
    return reinterpret_cast<Element*>(taken);
  }
  template <class Element>
  static void Store(Element* array, std::size_t i, const Element& value) {
    static_assert(std::is_trivially_copyable_v<Element>);
    if (array != nullptr)
      std::memcpy(reinterpret_cast<BYTE*>(array) + i * sizeof value, &value, sizeof value);
  }
  CRYPT_DATA_BLOB Copy(ByteView octets) {
    BYTE* const copy = Take<BYTE>(octets.size);
    if (copy != nullptr) std::memcpy(copy, octets.data, octets.size);
    return {static_cast<DWORD>(octets.size), copy};
  }

 private:
  BYTE* place_;
  std::size_t used_;
};

inline bool IsThere(const CRYPT_DATA_BLOB& blob) {
  return blob.cbData == 0 || blob.pbData != nullptr;
}

inline ByteView ToBytes(const CRYPT_DATA_BLOB& blob) { return {blob.pbData, blob.cbData}; }

// Stores the size; true where the caller's room takes it and is to be filled. `*result` is what
// the call returns.
inline bool WantsContent(std::size_t size, const void* out, DWORD* outBytes, BOOL* result) {
  if (size > kLargestSize) {
    *result = Fail(CRYPT_E_ASN1_LARGE);
    return false;
  }
  const DWORD room = *outBytes;
  *outBytes = static_cast<DWORD>(size);
  *result = out == nullptr || room >= size ? TRUE : Fail(ERROR_MORE_DATA);
  return out != nullptr && *result != FALSE;
}

template <class Info, DWORD (*Write)(const Info&, DerWriter*)>
BOOL EncodeWith(const void* structInfo, BYTE* out, DWORD* outBytes) noexcept {
  const Info& info = *static_cast<const Info*>(structInfo);
  DerWriter counter;
  if (const DWORD error = Write(info, &counter)) {
    *outBytes = counter.fault();
    return Fail(error);
  }
  BOOL result;
  if (!WantsContent(counter.size(), out, outBytes, &result)) return result;
  DerWriter writer(out + counter.size());
  Write(info, &writer);
  return TRUE;
}

template <class Info, DWORD (*Read)(ByteView, StructRoom*, Info*)>
BOOL DecodeWith(const BYTE* encoded, DWORD encodedBytes, void* out, DWORD* outBytes) noexcept {
  const ByteView der{encoded, encodedBytes};
  Info info = {};
  StructRoom counter(sizeof info);
  if (const DWORD error = Read(der, &counter, &info)) return Fail(error);
  BOOL result;
  if (!WantsContent(counter.used(), out, outBytes, &result)) return result;
  std::memset(out, 0, counter.used());
  StructRoom room(sizeof info, static_cast<BYTE*>(out));
  info = {};
  Read(der, &room, &info);
  std::memcpy(out, &info, sizeof info);
  return TRUE;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_CODEC_H_
