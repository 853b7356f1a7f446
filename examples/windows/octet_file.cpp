#include "examples/octet_file.h"

#include <fcntl.h>
#include <io.h>
#include <ortholan/platform.h>

#include <cstdio>

#include "examples/failure.h"
#include "examples/input.h"

namespace Example {

OctetFile::OctetFile(const std::string& path)
    : path_(path),
      descriptor_(path == "-" ? _fileno(stdin)
                              : _wopen(RequireFile(path).c_str(), _O_RDONLY | _O_BINARY)) {
  if (descriptor_ < 0) Fail(ERROR_ACCESS_DENIED, "cannot open " + path);
}

OctetFile::~OctetFile() {
  if (descriptor_ != _fileno(stdin)) _close(descriptor_);
}

std::size_t OctetFile::Read(char* out, std::size_t room) {
  const int count = _read(descriptor_, out, static_cast<unsigned>(room));
  if (count < 0) Fail(ERROR_READ_FAULT, "cannot read " + path_);
  return static_cast<std::size_t>(count);
}

}  // namespace Example
