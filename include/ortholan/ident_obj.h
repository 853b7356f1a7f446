// The owned byte string that every DER encoding crosses the interface in.
//
//   Ortholan::IdentObj der(bytes, size);       // a copy
//   CryptDecodeObject(..., der.pbData, der.cbData, ...);
//
// An IdentObj is the platform's blob (`cbData` bytes at `pbData`) and can be handed to any call
// that takes one: as `static_cast<CRYPT_DATA_BLOB*>(&der)`, never through `void*`, because a
// virtual table precedes the two fields.
#ifndef ORTHOLAN_IDENT_OBJ_H_
#define ORTHOLAN_IDENT_OBJ_H_

#include <ortholan/export.h>
#include <ortholan/platform.h>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// A byte string that owns its buffer alone: copies are deep, moves hand the buffer over. Sizes are
// bytes. The empty blob has size 0 and a null pointer. Content is raw and never terminated.
//
// Every allocation that fails throws XZEPStatus with status 16 and no text; the blob is then
// unchanged. An argument may point into the blob itself.
class ORTHOLAN_EXPORT IdentObj : public CRYPT_DATA_BLOB {
 public:
  IdentObj() noexcept;
  // A copy of `size` bytes at `data`; `size` zero bytes where `data` is null.
  IdentObj(const void* data, DWORD size);
  IdentObj(const IdentObj& other);
  IdentObj(IdentObj&& other) noexcept;
  // A copy of the platform's blob.
  IdentObj(const CRYPT_DATA_BLOB& blob);

  IdentObj& operator=(const IdentObj& other);
  IdentObj& operator=(IdentObj&& other) noexcept;
  // Becomes a copy of the platform's blob.
  IdentObj& operator=(const CRYPT_DATA_BLOB& blob);
  // The characters of `text` without the terminator; null is "".
  IdentObj& operator=(const char* text);

  virtual ~IdentObj();
  // Keeps the first min(newSize, cbData) bytes; added bytes are not initialised.
  virtual void Resize(DWORD newSize);
  // Releases the buffer.
  virtual void Clear();

  // `size` bytes, not initialised; the old content is gone.
  void Allocate(DWORD size);
  // A copy of `size` bytes at `data`; the empty blob where `data` is null.
  void Assign(const void* data, DWORD size);

  // Sizes and bytes are equal.
  bool operator==(const IdentObj& other) const;
  // Sizes or bytes differ.
  bool operator!=(const IdentObj& other) const;

  // Bytes that the blob takes when stored as a 32-bit length and its content: cbData + 4.
  DWORD GetObjectSize() const;

 private:
  void Replace(BYTE* data, DWORD size) noexcept;
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_IDENT_OBJ_H_
