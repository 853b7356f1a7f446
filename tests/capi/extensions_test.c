// Extensions, one and a list of them.
#include <string.h>

#include "tests/capi/check.h"

#define KEY_USAGE "300E0603551D0F0101FF0404030205A0"
#define CONSTRAINTS "30090603551D1304023000"

static const struct {
  const char* label;
  const char* oid;
  int critical;
  const char* value;
  const char* der;
} kExtensions[] = {
    {"critical", "2.5.29.15", 1, "030205A0", KEY_USAGE},
    {"not critical", "2.5.29.19", 0, "3000", CONSTRAINTS},
    {"no value", "1.2.3.4", 0, "", "300706032A03040400"},
};

static void ExpectExtension(const char* label, const ortholan_extension* extension, size_t row) {
  char* oid = NULL;
  uint8_t* octets = NULL;
  size_t size = 0;
  int critical = 77;
  EXPECT_RESULT(label, ORTHOLAN_OK, ortholan_extension_oid(extension, &oid));
  EXPECT_TEXT(label, kExtensions[row].oid, oid);
  ortholan_free(oid);
  EXPECT_RESULT(label, ORTHOLAN_OK, ortholan_extension_critical(extension, &critical));
  EXPECT(label, critical == kExtensions[row].critical);
  EXPECT_RESULT(label, ORTHOLAN_OK, ortholan_extension_value(extension, &octets, &size));
  EXPECT_TEXT(label, kExtensions[row].value, ToHex(octets, size));
  ortholan_free(octets);
  EXPECT_RESULT(label, ORTHOLAN_OK, ortholan_extension_der(extension, &octets, &size));
  EXPECT_TEXT(label, kExtensions[row].der, ToHex(octets, size));
  ortholan_free(octets);
}

static void TestOne(void) {
  for (size_t i = 0; i < COUNT_OF(kExtensions); ++i) {
    const char* label = kExtensions[i].label;
    ortholan_extension* made = NULL;
    ortholan_extension* read = NULL;
    const Octets value = FromHex(kExtensions[i].value);
    const Octets der = FromHex(kExtensions[i].der);
    EXPECT_RESULT(label, ORTHOLAN_OK,
                  ortholan_extension_new(kExtensions[i].oid, kExtensions[i].critical * 5,
                                         value.data, value.size, &made));
    EXPECT_RESULT(label, ORTHOLAN_OK, ortholan_extension_from_der(der.data, der.size, &read));
    FreeOctets(value);
    FreeOctets(der);
    ExpectExtension(label, made, i);
    ExpectExtension(label, read, i);
    ortholan_extension_free(made);
    ortholan_extension_free(read);
  }
}

static const struct {
  const char* label;
  const char* oid;
  ortholan_result result;
} kRefusedIdentifiers[] = {
    {"empty", "", ORTHOLAN_ERROR_TYPE},
    {"a key", "CN", ORTHOLAN_ERROR_TYPE},
    {"one arc", "2", ORTHOLAN_ERROR_TYPE},
    {"arc of 33 bits", "1.2.4294967296", ORTHOLAN_ERROR_TYPE},
    {"identifier that cannot be held", "2.999.1", ORTHOLAN_ERROR_TYPE},
    {"broken text", "2.5.29.\xFF", ORTHOLAN_ERROR_UTF8},
};

static const struct {
  const char* label;
  const char* der;
} kRefused[] = {
    {"none", ""},
    {"cut short", "300E0603551D0F0101FF0404030205"},
    {"octets behind", CONSTRAINTS "00"},
    {"no identifier", "300804040603551D0400"},
    {"four children", "300F0603551D0F0101FF0101FF04020302"},
};

static void TestRefused(void) {
  char untouched;
  for (size_t i = 0; i < COUNT_OF(kRefusedIdentifiers); ++i) {
    ortholan_extension* extension = (ortholan_extension*)(void*)&untouched;
    EXPECT_RESULT(kRefusedIdentifiers[i].label, kRefusedIdentifiers[i].result,
                  ortholan_extension_new(kRefusedIdentifiers[i].oid, 0, NULL, 0, &extension));
    EXPECT(kRefusedIdentifiers[i].label, extension == NULL);
  }
  for (size_t i = 0; i < COUNT_OF(kRefused); ++i) {
    ortholan_extension* extension = (ortholan_extension*)(void*)&untouched;
    const Octets der = FromHex(kRefused[i].der);
    EXPECT_RESULT(kRefused[i].label, ORTHOLAN_ERROR_DER,
                  ortholan_extension_from_der(der.data, der.size, &extension));
    EXPECT(kRefused[i].label, extension == NULL);
    EXPECT(kRefused[i].label, ortholan_last_status() == 206 || ortholan_last_status() == 205);
    FreeOctets(der);
  }
}

static ortholan_extensions* ListOf(const char* hex, ortholan_result expected) {
  char untouched;
  ortholan_extensions* list = (ortholan_extensions*)(void*)&untouched;
  const Octets der = FromHex(hex);
  EXPECT_RESULT(hex, expected, ortholan_extensions_from_der(der.data, der.size, &list));
  EXPECT(hex, (list == NULL) == (expected != ORTHOLAN_OK));
  FreeOctets(der);
  return list;
}

static void ExpectList(const char* label, const ortholan_extensions* list, const char* hex) {
  uint8_t* der = NULL;
  size_t size = 0;
  EXPECT_RESULT(label, ORTHOLAN_OK, ortholan_extensions_der(list, &der, &size));
  EXPECT_TEXT(label, hex, ToHex(der, size));
  ortholan_free(der);
}

static void TestReadList(void) {
  static const char* const kBad[] = {"", "310B" CONSTRAINTS, "300B" CONSTRAINTS "00",
                                     "300C" CONSTRAINTS, "30020500"};
  ortholan_extensions* list = ListOf("301B" KEY_USAGE CONSTRAINTS, ORTHOLAN_OK);
  ortholan_extension* found = NULL;
  size_t count = 0;
  EXPECT_RESULT("two", ORTHOLAN_OK, ortholan_extensions_count(list, &count));
  EXPECT("two", count == 2);
  for (size_t i = 0; i < count; ++i) {
    EXPECT_RESULT("index", ORTHOLAN_OK, ortholan_extensions_get(list, i, &found));
    ExpectExtension("index", found, i);
    ortholan_extension_free(found);
    EXPECT_RESULT("found", ORTHOLAN_OK, ortholan_extensions_find(list, kExtensions[i].oid, &found));
    ExpectExtension("found", found, i);
    ortholan_extension_free(found);
  }
  EXPECT_RESULT("beyond", ORTHOLAN_ERROR_NOT_FOUND, ortholan_extensions_get(list, 2, &found));
  EXPECT("beyond", found == NULL);
  EXPECT_RESULT("none", ORTHOLAN_ERROR_NOT_FOUND,
                ortholan_extensions_find(list, "2.5.29.1", &found));
  EXPECT_RESULT("none", ORTHOLAN_ERROR_NOT_FOUND, ortholan_extensions_find(list, "", &found));
  ExpectList("as it was", list, "301B" KEY_USAGE CONSTRAINTS);
  ortholan_extensions_free(list);
  for (size_t i = 0; i < COUNT_OF(kBad); ++i) ListOf(kBad[i], ORTHOLAN_ERROR_DER);
}

static void TestChangeList(void) {
  ortholan_extensions* list = NULL;
  ortholan_extension* usage = NULL;
  ortholan_extension* constraints = NULL;
  EXPECT_RESULT("new", ORTHOLAN_OK, ortholan_extensions_new(&list));
  ExpectList("new", list, "3000");
  EXPECT_RESULT("new", ORTHOLAN_OK, ortholan_extension_new("2.5.29.15", 0, NULL, 0, &usage));
  EXPECT_RESULT("new", ORTHOLAN_OK,
                ortholan_extension_new("2.5.29.19", 0, (const uint8_t*)"0", 2, &constraints));
  EXPECT_RESULT("append", ORTHOLAN_OK, ortholan_extensions_set(list, usage));
  EXPECT_RESULT("append", ORTHOLAN_OK, ortholan_extensions_set(list, constraints));
  ExpectList("append", list, "301430070603551D0F0400" CONSTRAINTS);
  ortholan_extension_free(usage);
  EXPECT_RESULT(
      "new", ORTHOLAN_OK,
      ortholan_extension_new("2.5.29.15", 1, (const uint8_t*)"\x03\x02\x05\xA0", 4, &usage));
  EXPECT_RESULT("replace", ORTHOLAN_OK, ortholan_extensions_set(list, usage));
  EXPECT_RESULT("again", ORTHOLAN_OK, ortholan_extensions_set(list, usage));
  ExpectList("replace", list, "301B" KEY_USAGE CONSTRAINTS);
  ortholan_extension_free(usage);
  ortholan_extension_free(constraints);
  ortholan_extensions_free(list);
}

void TestExtensions(void) {
  TestOne();
  TestRefused();
  TestReadList();
  TestChangeList();
}
