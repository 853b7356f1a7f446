#include "examples/octet_file.h"

#include <fcntl.h>
#include <ortholan/platform.h>
#include <unistd.h>

#include <cerrno>

#include "examples/failure.h"
#include "examples/input.h"

namespace Example {

OctetFile::OctetFile(const std::string& path)
    : path_(path),
      descriptor_(path == "-" ? STDIN_FILENO
                              : ::open(RequireFile(path).c_str(), O_RDONLY | O_CLOEXEC)) {
  if (descriptor_ < 0) Fail(Ortholan::ERROR_ACCESS_DENIED, "cannot open " + path);
}

OctetFile::~OctetFile() {
  if (descriptor_ != STDIN_FILENO) ::close(descriptor_);
}

std::size_t OctetFile::Read(char* out, std::size_t room) {
  for (;;) {
    const ssize_t count = ::read(descriptor_, out, room);
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) Fail(Ortholan::ERROR_READ_FAULT, "cannot read " + path_);
  }
}

}  // namespace Example
