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

bool IsConsole(DWORD handle, DWORD& mode) {
  return GetConsoleMode(GetStdHandle(handle), &mode) != FALSE;
}

UINT outputCodePage = 0;

// A console shows octets in a code page of its own, which stays with it after the program's end.
void ShowUtf8() {
  DWORD mode = 0;
  if (!IsConsole(STD_OUTPUT_HANDLE, mode) && !IsConsole(STD_ERROR_HANDLE, mode)) return;
  outputCodePage = GetConsoleOutputCP();
  if (outputCodePage == 0 || SetConsoleOutputCP(CP_UTF8) == FALSE) return;
  std::atexit([] { SetConsoleOutputCP(outputCodePage); });
}

// Whether a sequence leaves the cursor where it was; what is shown of one is wiped away.
bool Obeys(HANDLE console) {
  static constexpr char kReset[] = "\x1B[0m";
  constexpr DWORD kSize = sizeof kReset - 1;
  CONSOLE_SCREEN_BUFFER_INFO before = {};
  CONSOLE_SCREEN_BUFFER_INFO after = {};
  DWORD written = 0;
  if (GetConsoleScreenBufferInfo(console, &before) == FALSE) return false;
  if (WriteConsoleA(console, kReset, kSize, &written, nullptr) == FALSE) return false;
  if (GetConsoleScreenBufferInfo(console, &after) == FALSE) return false;
  const COORD place = before.dwCursorPosition;
  if (place.X == after.dwCursorPosition.X && place.Y == after.dwCursorPosition.Y) return true;
  SetConsoleCursorPosition(console, place);
  FillConsoleOutputCharacterA(console, ' ', kSize, place, &written);
  return false;
}

// Consoles before Windows 10 have no such mode, and Wine's takes it and shows the sequences. It
// belongs to the console's buffer and stays on, as the command interpreter sets it anew for each
// program.
bool TakesSequences(DWORD handle) {
  DWORD mode = 0;
  if (!IsConsole(handle, mode)) return false;
  HANDLE const console = GetStdHandle(handle);
  if (SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) == FALSE) return false;
  return Obeys(console);
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

bool IsTerminal(Stream stream) {
  static const bool output = TakesSequences(STD_OUTPUT_HANDLE);
  static const bool error = TakesSequences(STD_ERROR_HANDLE);
  return stream == Stream::kOutput ? output : error;
}

}  // namespace Example
