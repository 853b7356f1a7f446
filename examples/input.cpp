#include "examples/input.h"

#include <ortholan/platform.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <istream>
#include <optional>

#include "examples/der.h"
#include "examples/failure.h"
#include "examples/pasted.h"
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
  // The mark that editors put in front of UTF-8; no encoding begins like it.
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.compare(0, kMark.size(), kMark) == 0) bytes.erase(0, kMark.size());
  return bytes;
}

// A second reading would find it empty.
std::string ReadStandardInput() {
  static bool isRead = false;
  if (isRead) throw UsageError{"standard input can be named once"};
  isRead = true;
  return ReadStream(std::cin, "standard input");
}

bool Exists(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::u8path(path), error);
}

}  // namespace

std::filesystem::path RequireFile(const std::string& path) {
  const std::filesystem::path file = std::filesystem::u8path(path);
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) Fail(ERROR_FILE_NOT_FOUND, "cannot open " + path);
  if (std::filesystem::is_directory(status)) Fail(ERROR_ACCESS_DENIED, path + " is a directory");
  return file;
}

std::string ReadOctets(const std::string& path) {
  if (path == "-") return ReadStandardInput();

  // Streams report no cause of their own.
  const std::filesystem::path file = RequireFile(path);
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

std::wstring ReadText(const std::string& argument, bool takesLines) {
  if (argument != "-") return FromUtf8(argument);
  std::string text = ReadStandardInput();
  if (!text.empty() && text.back() == '\n') text.pop_back();
  if (!text.empty() && text.back() == '\r') text.pop_back();
  const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
  if (lines > 1 && !takesLines) {
    Refuse("standard input has " + std::to_string(lines) +
           " lines: --lines takes a name a line, --separator crlf all of them as one name");
  }
  return FromUtf8(text);
}

namespace {

// A name of a file, "-", or the octets as text. Digits alone are always octets; what might be both
// is a file where there is one.
std::string ReadArgument(const std::string& argument) {
  const bool isDigits = std::all_of(argument.begin(), argument.end(),
                                    [](char character) { return DigitValue(character) >= 0; });
  if (!argument.empty() && isDigits && argument.size() % 2 == 0) return *FromHex(argument);
  if (argument != "-" && !Exists(argument)) {
    // A word may well be base64 by chance.
    const std::optional<std::string> octets = FromPastedText(argument);
    if (octets && (FromHex(argument) || !OnlyElement(*octets).whole.empty())) return *octets;
  }
  return FromPasted(ReadOctets(argument));
}

IdentObj Checked(const std::string& octets, Kind kind) {
  RequireOne(octets);
  RefuseOther(octets, kind);
  return Copy(octets);
}

}  // namespace

IdentObj ReadElement(const std::string& argument, Kind kind) {
  return Checked(ReadArgument(argument), kind);
}

IdentObj ReadElementText(const std::string& text, Kind kind) {
  return Checked(FromPasted(text), kind);
}

void Print(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void FinishOutput() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    Fail(ERROR_WRITE_FAULT, "cannot write standard output");
  }
}

}  // namespace Example
