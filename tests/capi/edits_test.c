// Names made and changed an attribute at a time.
#include <string.h>

#include "tests/capi/check.h"

// O=Org as TeletexString and a number of an unknown type: neither would be written like this.
#define ORG "310C300A060355040A14034F7267"
#define NUMBER "310A300806032A0305020105"
#define ALPHA "310E300C06035504031305416C706861"
#define BETA "310D300B0603550403130442657461"
#define COUNTRY "310B3009060355040613025255"

enum Action { kAdd, kSet, kRemove };

typedef struct EditRow {
  const char* label;
  const char* before;
  enum Action action;
  const char* type;
  const char* value;
  size_t size;
  uint32_t options;
  ortholan_result result;
  const char* after;  // NULL: as before
} EditRow;

#define SIZED(text) text, sizeof(text) - 1
#define NO_VALUE NULL, 0

static const EditRow kEdits[] = {
    {"add to nothing", "3000", kAdd, "CN", SIZED("Alpha"), 0, ORTHOLAN_OK, "3010" ALPHA},
    {"add a second one", "3010" ALPHA, kAdd, "CN", SIZED("Beta"), 0, ORTHOLAN_OK,
     "301F" ALPHA BETA},
    {"add by identifier", "3000", kAdd, "2.5.4.6", SIZED("RU"), 0, ORTHOLAN_OK, "300D" COUNTRY},
    {"add an unknown type", "3000", kAdd, "1.2.3.4", SIZED("A"), 0, ORTHOLAN_OK,
     "300C310A300806032A0304130141"},
    {"add separators and quotes", "3000", kAdd, "O", SIZED("\"A\", B"), ORTHOLAN_ENCODE_UTF8,
     ORTHOLAN_OK, "3011310F300D060355040A0C062241222C2042"},
    {"add a NUL", "3000", kAdd, "CN", SIZED("A\0B"), ORTHOLAN_ENCODE_UTF8, ORTHOLAN_OK,
     "300E310C300A06035504030C03410042"},
    {"add a domain component", "3000", kAdd, "0.9.2342.19200300.100.1.25", SIZED("example"), 0,
     ORTHOLAN_OK, "301931173015060A0992268993F22C64011916076578616D706C65"},
    {"set a domain component of letters that IA5String alone has",
     "30133111300F060A0992268993F22C640119160161", kSet, "0.9.2342.19200300.100.1.25", SIZED("a_b"),
     ORTHOLAN_ENCODE_UTF8 | ORTHOLAN_ENCODE_ALWAYS, ORTHOLAN_OK,
     "301531133011060A0992268993F22C6401191603615F62"},
    {"add a DN qualifier", "3000", kAdd, "2.5.4.46", SIZED("Q1"),
     ORTHOLAN_ENCODE_UTF8 | ORTHOLAN_ENCODE_ALWAYS, ORTHOLAN_OK, "300D310B3009060355042E13025131"},
    {"Cyrillic domain component", "3010" ALPHA, kAdd, "0.9.2342.19200300.100.1.25",
     SIZED("\xD0\x90"), 0, ORTHOLAN_ERROR_VALUE, NULL},
    {"add lines", "3000", kAdd, "postalAddress", SIZED("A\r\nB"), 0, ORTHOLAN_OK,
     "3011310F300D06035504103006130141130142"},
    {"set in the middle", "302A" ORG ALPHA NUMBER, kSet, "CN", SIZED("Beta"), 0, ORTHOLAN_OK,
     "3029" ORG BETA NUMBER},
    {"set the last one", "301A" ORG NUMBER, kSet, "CN", SIZED("Alpha"), 0, ORTHOLAN_OK,
     "302A" ORG NUMBER ALPHA},
    {"set the first of two", "3020" ALPHA ALPHA, kSet, "cn", SIZED("Beta"), 0, ORTHOLAN_OK,
     "301F" BETA ALPHA},
    {"set in indefinite length", "3080" ALPHA "0000", kSet, "CN", SIZED("Beta"), 0, ORTHOLAN_OK,
     "300F" BETA},
    {"remove the first", "301E" ALPHA ORG, kRemove, "CN", NO_VALUE, 0, ORTHOLAN_OK, "300E" ORG},
    {"remove the last", "301E" ALPHA ORG, kRemove, "2.5.4.10", NO_VALUE, 0, ORTHOLAN_OK,
     "3010" ALPHA},
    {"remove the only one", "3010" ALPHA, kRemove, "CN", NO_VALUE, 0, ORTHOLAN_OK, "3000"},
    {"remove a type that is not there", "3010" ALPHA, kRemove, "O", NO_VALUE, 0,
     ORTHOLAN_ERROR_NOT_FOUND, NULL},
    {"remove a malformed type", "3010" ALPHA, kRemove, "2.5.", NO_VALUE, 0, ORTHOLAN_ERROR_TYPE,
     NULL},
    {"empty value", "3010" ALPHA, kSet, "CN", SIZED(""), 0, ORTHOLAN_ERROR_VALUE, NULL},
    {"empty value added", "3010" ALPHA, kAdd, "CN", SIZED(""), 0, ORTHOLAN_ERROR_VALUE, NULL},
    {"value outside its alphabet", "3010" ALPHA, kAdd, "C", SIZED("R_"), 0, ORTHOLAN_ERROR_VALUE,
     NULL},
    {"Cyrillic e-mail", "3010" ALPHA, kAdd, "E", SIZED("\xD0\x90"), 0, ORTHOLAN_ERROR_VALUE, NULL},
    {"broken value", "3010" ALPHA, kSet, "CN", SIZED("a\xD0"), 0, ORTHOLAN_ERROR_UTF8, NULL},
    {"type that is read only", "3010" ALPHA, kAdd, "STREET", SIZED("a"), 0, ORTHOLAN_ERROR_TYPE,
     NULL},
    {"unknown key", "3010" ALPHA, kSet, "XYZ", SIZED("a"), 0, ORTHOLAN_ERROR_TYPE, NULL},
    {"identifier that cannot be held", "3010" ALPHA, kAdd, "2.999", SIZED("a"), 0,
     ORTHOLAN_ERROR_TYPE, NULL},
};

static ortholan_result Edit(ortholan_name* name, const EditRow* row, int sized) {
  if (row->action == kRemove) return ortholan_name_remove(name, row->type);
  if (row->action == kAdd) {
    return sized ? ortholan_name_add_n(name, row->type, row->value, row->size, row->options)
                 : ortholan_name_add(name, row->type, row->value, row->options);
  }
  return sized ? ortholan_name_set_n(name, row->type, row->value, row->size, row->options)
               : ortholan_name_set(name, row->type, row->value, row->options);
}

void TestEdits(void) {
  for (size_t i = 0; i < COUNT_OF(kEdits); ++i) {
    const EditRow* row = &kEdits[i];
    const int has_nul = row->value != NULL && strlen(row->value) != row->size;
    for (int sized = has_nul; sized < 2; ++sized) {
      ortholan_name* name = NameOf(row->before);
      const ortholan_result result = Edit(name, row, sized);
      EXPECT(row->label, result == row->result);
      EXPECT(row->label, result == ORTHOLAN_OK || ortholan_last_error() == result);
      EXPECT_TEXT(row->label, row->after != NULL ? row->after : row->before, HexOf(name));
      ortholan_name_free(name);
    }
  }
}
