#include "examples/console.h"

#include <fcntl.h>
#include <io.h>
#include <ortholan/der_helper.h>
#include <ortholan/platform.h>

#include <cstdio>
#include <cstdlib>

// shellapi.h needs windows.h before it.
#include <shellapi.h>

namespace Example {
namespace {

UINT outputCodePage = 0;

// A console shows octets in a code page of its own, which stays with it after the program's end.
void ShowUtf8() {
  DWORD mode = 0;
  if (GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) == FALSE) return;
  outputCodePage = GetConsoleOutputCP();
  if (outputCodePage == 0 || SetConsoleOutputCP(CP_UTF8) == FALSE) return;
  std::atexit([] { SetConsoleOutputCP(outputCodePage); });
}

}  // namespace

// The runtime's own `argv` is in the ANSI code page, which cannot hold every text.
std::vector<std::string> OpenConsole(int /*argc*/, char** /*argv*/) {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  ShowUtf8();

  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const texts = CommandLineToArgvW(GetCommandLineW(), &count);
  if (texts == nullptr) return arguments;
  for (int i = 1; i < count; ++i) {
    arguments.push_back(Ortholan::DerHelper::ToString(texts[i], CP_UTF8));
  }
  LocalFree(texts);
  return arguments;
}

}  // namespace Example
