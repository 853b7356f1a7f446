// A file of bytes.
//
//   Ortholan::CZEPFile file;
//   if (!file.Open("extension.der", Ortholan::CZEPFile::kRead)) return GetLastError();
#ifndef ORTHOLAN_ZEP_FILE_H_
#define ORTHOLAN_ZEP_FILE_H_

#include <ortholan/export.h>
#include <ortholan/platform.h>

#include <cstdint>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// A file that closes itself. Every operation returns false with the platform's code in the last
// error where it fails. Positions are bytes from the start. Reading and seeking are const: they do
// not change the file, though its position moves.
class ORTHOLAN_EXPORT CZEPFile {
 public:
  // What Open is to do with the file.
  enum Mode {
    kRead,       // must exist
    kReadWrite,  // must exist
    kCreate,     // read and write; made anew, or emptied
  };

  CZEPFile() noexcept;
  CZEPFile(const CZEPFile&) = delete;
  CZEPFile& operator=(const CZEPFile&) = delete;
  virtual ~CZEPFile();

  // Closes what was open. `path` is in the platform's 8-bit form; null is error 87.
  bool Open(const char* path, Mode mode);
  // What the system could not write until now is reported here. True where nothing was open.
  bool Close();
  // Whether a file is open.
  bool IsOpen() const noexcept;

  // Reads up to `size` bytes; `*read` is less only at the end of the file.
  bool Read(void* data, DWORD size, DWORD* read) const;
  // Writes all of `size` bytes or fails.
  bool Write(const void* data, DWORD size);

  // Moves to `position`.
  bool Seek(uint64_t position) const;
  // Where reading and writing go on.
  bool GetPosition(uint64_t* position) const;
  // Bytes of the whole file.
  bool GetSize(uint64_t* size) const;

 private:
  void* handle_;
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_ZEP_FILE_H_
