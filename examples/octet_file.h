// A file or standard input read as its octets come, without a buffer between: a pipe that stays
// open gives what is in it. posix/ and windows/ hold one realisation each.
#ifndef ORTHOLAN_EXAMPLES_OCTET_FILE_H_
#define ORTHOLAN_EXAMPLES_OCTET_FILE_H_

#include <cstddef>
#include <string>

namespace Example {

class OctetFile {
 public:
  // "-" is standard input. Throws Failure.
  explicit OctetFile(const std::string& path);
  ~OctetFile();
  OctetFile(const OctetFile&) = delete;
  OctetFile& operator=(const OctetFile&) = delete;

  // Octets that were read, at most `room`; waits for the first. 0 at the end. Throws Failure.
  std::size_t Read(char* out, std::size_t room);

 private:
  std::string path_;
  int descriptor_;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_OCTET_FILE_H_
