#include "tests/capi/check.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int failures = 0;

void Expect(int holds, const char* label, const char* what, const char* file, int line) {
  if (holds) return;
  ++failures;
  printf("%s:%d: %s: not so: %s\n", file, line, label, what);
}

void ExpectResult(ortholan_result expected, ortholan_result actual, const char* label,
                  const char* call, const char* file, int line) {
  if (actual != expected) {
    ++failures;
    printf("%s:%d: %s: %s: expected %d, got %d: %s\n", file, line, label, call, (int)expected,
           (int)actual, actual != ORTHOLAN_OK ? ortholan_last_error_message() : "");
    return;
  }
  if (actual == ORTHOLAN_OK) return;
  const char* open = strchr(call, '(');
  const size_t length = open != NULL ? (size_t)(open - call) : 0;
  const char* message = ortholan_last_error_message();
  Expect(ortholan_last_error() == actual, label, "last error is the result", file, line);
  Expect(strncmp(message, call, length) == 0 && strncmp(message + length, ": ", 2) == 0 &&
             strlen(message) > length + 2,
         label, message, file, line);
}

void ExpectText(const char* expected, const char* actual, const char* label, const char* file,
                int line) {
  if (actual != NULL && strcmp(expected, actual) == 0) return;
  ++failures;
  printf("%s:%d: %s: expected \"%s\", got \"%s\"\n", file, line, label, expected,
         actual != NULL ? actual : "(null)");
}

int Failures(void) { return failures; }

static unsigned Digit(char c) { return (unsigned)(c >= 'A' ? c - 'A' + 10 : c - '0'); }

Octets FromHex(const char* hex) {
  Octets octets;
  octets.size = strlen(hex) / 2;
  octets.data = malloc(octets.size != 0 ? octets.size : 1);
  if (octets.data == NULL) abort();
  for (size_t i = 0; i < octets.size; ++i) {
    octets.data[i] = (unsigned char)(Digit(hex[2 * i]) << 4 | Digit(hex[2 * i + 1]));
  }
  return octets;
}

void FreeOctets(Octets octets) { free(octets.data); }

const char* ToHex(const unsigned char* data, size_t size) {
  static char text[4096];
  if (data == NULL || 2 * size >= sizeof text) return "(none)";
  for (size_t i = 0; i < size; ++i) sprintf(text + 2 * i, "%02X", data[i]);
  text[2 * size] = '\0';
  return text;
}

ortholan_name* NameOf(const char* hex) {
  ortholan_name* name = NULL;
  const Octets der = FromHex(hex);
  EXPECT_RESULT(hex, ORTHOLAN_OK, ortholan_name_from_der(der.data, der.size, &name));
  FreeOctets(der);
  return name;
}

const char* HexOf(const ortholan_name* name) {
  uint8_t* der = NULL;
  size_t size = 0;
  const char* hex = "(refused)";
  if (ortholan_name_der(name, &der, &size) == ORTHOLAN_OK) hex = ToHex(der, size);
  ortholan_free(der);
  return hex;
}

int main(void) {
  TestErrors();
  TestNames();
  TestAttributes();
  TestEdits();
  TestGeneralNames();
  TestExtensions();
  if (failures != 0) printf("%d failure(s)\n", failures);
  return failures != 0;
}
