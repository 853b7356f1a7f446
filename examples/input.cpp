#include "examples/input.h"

#include <ortholan/platform.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <istream>
#include <optional>

#include "examples/failure.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

constexpr std::size_t kMaxInputBytes = std::size_t{256} << 20;

std::string ReadStream(std::istream& stream, const std::string& name) {
  std::string bytes;
  char block[1 << 16];
  while (stream.read(block, sizeof block), stream.gcount() > 0) {
    bytes.append(block, static_cast<std::size_t>(stream.gcount()));
    if (bytes.size() > kMaxInputBytes) {
      Fail(static_cast<DWORD>(CRYPT_E_ASN1_LARGE), name + " is longer than 256 MiB");
    }
  }
  if (stream.bad()) Fail(ERROR_READ_FAULT, "cannot read " + name);
  return bytes;
}

// A second reading would find it empty.
std::string ReadStandardInput() {
  static bool isRead = false;
  if (isRead) throw UsageError{"standard input can be named once"};
  isRead = true;
  return ReadStream(std::cin, "standard input");
}

}  // namespace

std::string ReadOctets(const std::string& path) {
  if (path == "-") return ReadStandardInput();

  // Streams report no cause of their own.
  const std::filesystem::path file = std::filesystem::u8path(path);
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) Fail(ERROR_FILE_NOT_FOUND, "cannot open " + path);
  if (std::filesystem::is_directory(status)) Fail(ERROR_ACCESS_DENIED, path + " is a directory");
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Fail(ERROR_ACCESS_DENIED, "cannot open " + path);
  return ReadStream(stream, path);
}

void WriteOctets(const std::string& path, const IdentObj& bytes) {
  std::ofstream stream(std::filesystem::u8path(path), std::ios::binary);
  if (!stream) Fail(ERROR_CANNOT_MAKE, "cannot create " + path);
  if (bytes.cbData != 0) {
    stream.write(reinterpret_cast<const char*>(bytes.pbData),
                 static_cast<std::streamsize>(bytes.cbData));
  }
  stream.close();
  if (!stream) Fail(ERROR_WRITE_FAULT, "cannot write " + path);
}

std::wstring ReadText(const std::string& argument) {
  if (argument != "-") return FromUtf8(argument);
  std::string text = ReadStandardInput();
  if (!text.empty() && text.back() == '\n') text.pop_back();
  if (!text.empty() && text.back() == '\r') text.pop_back();
  return FromUtf8(text);
}

IdentObj ReadElement(const std::string& argument) {
  const bool isHex = !argument.empty() && std::all_of(argument.begin(), argument.end(), IsHexDigit);
  const std::string content = isHex ? argument : ReadOctets(argument);
  const bool isText = std::any_of(content.begin(), content.end(), IsHexDigit) &&
                      std::all_of(content.begin(), content.end(), [](char character) {
                        return IsHexDigit(character) || IsBlank(character);
                      });
  if (!isText) return IdentObj(content.data(), static_cast<DWORD>(content.size()));

  const std::optional<std::string> bytes = FromHex(content);
  if (!bytes) Fail(ERROR_INVALID_DATA, "an odd number of hexadecimal digits");
  return IdentObj(bytes->data(), static_cast<DWORD>(bytes->size()));
}

void Print(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void FinishOutput() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    Fail(ERROR_WRITE_FAULT, "cannot write standard output");
  }
}

}  // namespace Example
