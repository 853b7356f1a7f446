#include <ortholan/ident_obj.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "bytes/byte_view.h"
#include "foundation/blob_view.h"
#include "foundation/report.h"

namespace Ortholan {
namespace {

BYTE* NewBytes(DWORD size) {
  if (size == 0) return nullptr;
  BYTE* bytes = new (std::nothrow) BYTE[size];
  if (bytes == nullptr) ThrowNoMemory();
  return bytes;
}

BYTE* CopyBytes(const void* data, DWORD size) {
  BYTE* bytes = NewBytes(size);
  if (size == 0) return bytes;
  if (data != nullptr) {
    std::memcpy(bytes, data, size);
  } else {
    std::memset(bytes, 0, size);
  }
  return bytes;
}

}  // namespace

IdentObj::IdentObj() noexcept : CRYPT_DATA_BLOB{0, nullptr} {}

IdentObj::IdentObj(const void* data, DWORD size) : IdentObj() {
  Replace(CopyBytes(data, size), size);
}

IdentObj::IdentObj(const IdentObj& other) : IdentObj(other.pbData, other.cbData) {}

IdentObj::IdentObj(IdentObj&& other) noexcept : IdentObj() { *this = std::move(other); }

IdentObj::IdentObj(const CRYPT_DATA_BLOB& blob) : IdentObj(blob.pbData, blob.cbData) {}

IdentObj& IdentObj::operator=(const IdentObj& other) {
  return *this = static_cast<const CRYPT_DATA_BLOB&>(other);
}

IdentObj& IdentObj::operator=(IdentObj&& other) noexcept {
  if (this != &other) {
    Replace(std::exchange(other.pbData, nullptr), std::exchange(other.cbData, 0));
  }
  return *this;
}

IdentObj& IdentObj::operator=(const CRYPT_DATA_BLOB& blob) {
  if (static_cast<const CRYPT_DATA_BLOB*>(this) != &blob) {
    Replace(CopyBytes(blob.pbData, blob.cbData), blob.cbData);
  }
  return *this;
}

IdentObj& IdentObj::operator=(const char* text) {
  const size_t length = text != nullptr ? std::strlen(text) : 0;
  if (length > std::numeric_limits<DWORD>::max()) ThrowNoMemory();
  const DWORD size = static_cast<DWORD>(length);
  Replace(CopyBytes(text, size), size);
  return *this;
}

IdentObj::~IdentObj() {
  if (cbData != 0 && pbData != nullptr) {
    delete[] pbData;
    pbData = nullptr;
    cbData = 0;
  }
}

void IdentObj::Resize(DWORD newSize) {
  if (newSize == cbData) return;
  BYTE* bytes = NewBytes(newSize);
  const DWORD kept = std::min(newSize, cbData);
  if (kept != 0 && pbData != nullptr) {
    std::memcpy(bytes, pbData, kept);
  } else if (kept != 0) {
    std::memset(bytes, 0, kept);
  }
  Replace(bytes, newSize);
}

void IdentObj::Clear() { Replace(nullptr, 0); }

void IdentObj::Allocate(DWORD size) { Replace(NewBytes(size), size); }

void IdentObj::Assign(const void* data, DWORD size) {
  const DWORD taken = data != nullptr ? size : 0;
  Replace(CopyBytes(data, taken), taken);
}

bool IdentObj::operator==(const IdentObj& other) const {
  if (cbData != other.cbData) return false;
  return SameBytes(ViewOf(*this), ViewOf(other));
}

bool IdentObj::operator!=(const IdentObj& other) const { return !(*this == other); }

DWORD IdentObj::GetObjectSize() const { return cbData + static_cast<DWORD>(sizeof(DWORD)); }

void IdentObj::Replace(BYTE* data, DWORD size) noexcept {
  delete[] pbData;
  pbData = data;
  cbData = size;
}

}  // namespace Ortholan
