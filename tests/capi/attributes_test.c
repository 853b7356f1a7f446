// The attributes of a name: listed, and one by its type.
#include <string.h>

#include "tests/capi/check.h"

// C=RU, OU=<Cyrillic I>, STREET=1 Main, 1.2.3.4=A<NUL>B, E=a@b, a number, a string that cannot be
// read.
static const char kName[] =
    "3065"
    "310B3009060355040613025255"
    "310B3009060355040B1E020418"
    "310F300D0603550409130631204D61696E"
    "310C300A06032A03040C03410042"
    "3112301006092A864886F70D0109011603614062"
    "310A300806032A0305020105"
    "310A300806035504032C0141";

typedef struct AttributeRow {
  const char* label;
  const char* type;
  const char* key;
  const char* value;
  size_t value_size;
  const char* der;
} AttributeRow;

#define SIZED(text) text, sizeof(text) - 1

static const AttributeRow kAttributes[] = {
    {"country", "2.5.4.6", "C", SIZED("RU"), "13025255"},
    {"unit", "2.5.4.11", "OU", SIZED("\xD0\x98"), "1E020418"},
    {"type that is read only", "2.5.4.9", "STREET", SIZED("1 Main"), "130631204D61696E"},
    {"unknown type, NUL in the value", "1.2.3.4", "1.2.3.4", SIZED("A\0B"), "0C03410042"},
    {"e-mail", "1.2.840.113549.1.9.1", "E", SIZED("a@b"), "1603614062"},
    {"no string", "1.2.3.5", "1.2.3.5", SIZED("02 01 05"), "020105"},
    {"constructed string", "2.5.4.3", "CN", SIZED("#2C0141"), "2C0141"},
};

static void TestList(void) {
  ortholan_name* name = NameOf(kName);
  ortholan_attribute* attributes = NULL;
  size_t count = 0;
  EXPECT_RESULT("count", ORTHOLAN_OK, ortholan_name_count(name, &count));
  EXPECT("count", count == COUNT_OF(kAttributes));
  count = 0;
  EXPECT_RESULT("list", ORTHOLAN_OK, ortholan_name_attributes(name, &attributes, &count));
  EXPECT("list", count == COUNT_OF(kAttributes));
  ortholan_name_free(name);
  for (size_t i = 0; i < count && i < COUNT_OF(kAttributes); ++i) {
    const AttributeRow* row = &kAttributes[i];
    const ortholan_attribute* attribute = &attributes[i];
    EXPECT_TEXT(row->label, row->type, attribute->type);
    EXPECT_TEXT(row->label, row->key, attribute->key);
    EXPECT_TEXT(row->label, row->value, attribute->value);
    EXPECT(row->label, attribute->value_size == row->value_size &&
                           memcmp(attribute->value, row->value, row->value_size + 1) == 0);
    EXPECT_TEXT(row->label, row->der, ToHex(attribute->der, attribute->der_size));
  }
  ortholan_free(attributes);
}

static void TestNoAttributes(void) {
  char untouched;
  ortholan_name* name = NameOf("3000");
  ortholan_attribute* attributes = (ortholan_attribute*)(void*)&untouched;
  size_t count = 77;
  EXPECT_RESULT("none", ORTHOLAN_OK, ortholan_name_attributes(name, &attributes, &count));
  EXPECT("none", attributes == NULL && count == 0);
  ortholan_name_free(name);
}

typedef struct GetRow {
  const char* label;
  const char* type;
  ortholan_result result;
  const char* value;
  size_t size;
} GetRow;

static const GetRow kGets[] = {
    {"identifier", "2.5.4.6", ORTHOLAN_OK, SIZED("RU")},
    {"key", "C", ORTHOLAN_OK, SIZED("RU")},
    {"small letters", "ou", ORTHOLAN_OK, SIZED("\xD0\x98")},
    {"another key of the type", "EMAIL", ORTHOLAN_OK, SIZED("a@b")},
    {"key of a type that is read only", "street", ORTHOLAN_OK, SIZED("1 Main")},
    {"NUL in the value", "1.2.3.4", ORTHOLAN_OK, SIZED("A\0B")},
    {"type that is not there", "2.5.4.10", ORTHOLAN_ERROR_NOT_FOUND, NULL, 0},
    {"key that is not there", "O", ORTHOLAN_ERROR_NOT_FOUND, NULL, 0},
    {"key that no type has", "Nonsense", ORTHOLAN_ERROR_NOT_FOUND, NULL, 0},
    {"key with another's front", "STREETS", ORTHOLAN_ERROR_NOT_FOUND, NULL, 0},
    {"empty type", "", ORTHOLAN_ERROR_TYPE, NULL, 0},
    {"one arc", "2", ORTHOLAN_ERROR_TYPE, NULL, 0},
    {"letter in an identifier", "2.5.x", ORTHOLAN_ERROR_TYPE, NULL, 0},
    {"leading zero", "2.5.04.6", ORTHOLAN_ERROR_TYPE, NULL, 0},
    {"identifier that cannot be held", "2.999", ORTHOLAN_ERROR_TYPE, NULL, 0},
    {"Cyrillic", "\xD0\xA1", ORTHOLAN_ERROR_TYPE, NULL, 0},
    {"broken text", "C\xFF", ORTHOLAN_ERROR_UTF8, NULL, 0},
};

static void TestGet(void) {
  ortholan_name* name = NameOf(kName);
  for (size_t i = 0; i < COUNT_OF(kGets); ++i) {
    const GetRow* row = &kGets[i];
    char untouched;
    char* value = &untouched;
    size_t size = 77;
    EXPECT_RESULT(row->label, row->result, ortholan_name_get(name, row->type, &value, &size));
    EXPECT(row->label, size == row->size);
    if (row->value == NULL) {
      EXPECT(row->label, value == NULL);
    } else {
      EXPECT_TEXT(row->label, row->value, value);
      EXPECT(row->label, value != NULL && memcmp(value, row->value, row->size + 1) == 0);
    }
    ortholan_free(value);
  }
  ortholan_name_free(name);
}

void TestAttributes(void) {
  TestList();
  TestNoAttributes();
  TestGet();
}
