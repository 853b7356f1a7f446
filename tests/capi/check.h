// What the C tests share: checks that name their row, and octets from hexadecimal text.
#ifndef ORTHOLAN_TESTS_CAPI_CHECK_H_
#define ORTHOLAN_TESTS_CAPI_CHECK_H_

#include <ortholan/ortholan_c.h>
#include <stddef.h>

// `label` is the row's; the condition or the call itself is printed with it.
#define EXPECT(label, condition) Expect((condition) != 0, label, #condition, __FILE__, __LINE__)
#define EXPECT_RESULT(label, expected, call) \
  ExpectResult(expected, call, label, #call, __FILE__, __LINE__)
#define EXPECT_TEXT(label, expected, actual) ExpectText(expected, actual, label, __FILE__, __LINE__)
#define COUNT_OF(array) (sizeof(array) / sizeof((array)[0]))

void Expect(int holds, const char* label, const char* what, const char* file, int line);
// A failure must also be the thread's last error, and its message must begin with the function.
void ExpectResult(ortholan_result expected, ortholan_result actual, const char* label,
                  const char* call, const char* file, int line);
void ExpectText(const char* expected, const char* actual, const char* label, const char* file,
                int line);
int Failures(void);

// Octets in a heap block of exactly their size, so that a read past its end is seen.
typedef struct Octets {
  unsigned char* data;
  size_t size;
} Octets;

Octets FromHex(const char* hex);
void FreeOctets(Octets octets);
// Upper-case digits without blanks, valid until the next call.
const char* ToHex(const unsigned char* data, size_t size);

// The name of an encoding that is known to be one.
ortholan_name* NameOf(const char* hex);
// Its encoding as ToHex gives it.
const char* HexOf(const ortholan_name* name);

void TestErrors(void);
void TestNames(void);
void TestAttributes(void);
void TestEdits(void);
void TestGeneralNames(void);
void TestExtensions(void);

#endif  // ORTHOLAN_TESTS_CAPI_CHECK_H_
