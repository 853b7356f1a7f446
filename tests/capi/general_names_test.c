// General names, and the values of subjectAltName extensions.
#include <string.h>

#include "tests/capi/check.h"

#define DNS "820B6578616D706C652E6F7267"
#define DIRECTORY "A4123010310E300C06035504031305416C706861"
#define ADDRESS "8704C0000201"

typedef struct NameRow {
  const char* label;
  const char* der;
  uint32_t kind;
  const char* value;
  const char* text;  // NULL: not looked at, its characters being a rendering of octets
} NameRow;

static const NameRow kNames[] = {
    {"e-mail", "8103614062", ORTHOLAN_RFC822_NAME, "614062", "a@b"},
    {"DNS", DNS, ORTHOLAN_DNS_NAME, "6578616D706C652E6F7267", "example.org"},
    {"URI", "8603613A62", ORTHOLAN_URI, "613A62", "a:b"},
    {"URI outside ASCII", "8602D090", ORTHOLAN_URI, "D090", "\xD0\x90"},
    {"directory", DIRECTORY, ORTHOLAN_DIRECTORY_NAME, "3010310E300C06035504031305416C706861",
     "A4 12 30 10 31 0E 30 0C 06 03 55 04 03 13 05 41 6C 70 68 61"},
    {"address", ADDRESS, ORTHOLAN_IP_ADDRESS, "C0000201", NULL},
    {"registered", "8803550403", ORTHOLAN_REGISTERED_ID, "550403", "2.5.4.3"},
    {"other", "A00706022A03A0010C", ORTHOLAN_OTHER_NAME, "06022A03A0010C", NULL},
    {"X.400", "A300", ORTHOLAN_X400_ADDRESS, "", "[X400Address]"},
    {"tag of no kind", "8900", 9, "", NULL},
};

static void TestOne(const NameRow* row, const ortholan_general_name* name) {
  uint32_t kind = 77;
  uint8_t* octets = NULL;
  char* text = NULL;
  size_t size = 0;
  EXPECT_RESULT(row->label, ORTHOLAN_OK, ortholan_general_name_kind(name, &kind));
  EXPECT(row->label, kind == row->kind);
  EXPECT_RESULT(row->label, ORTHOLAN_OK, ortholan_general_name_der(name, &octets, &size));
  EXPECT_TEXT(row->label, row->der, ToHex(octets, size));
  ortholan_free(octets);
  EXPECT_RESULT(row->label, ORTHOLAN_OK, ortholan_general_name_value(name, &octets, &size));
  EXPECT_TEXT(row->label, row->value, ToHex(octets, size));
  ortholan_free(octets);
  EXPECT_RESULT(row->label, ORTHOLAN_OK, ortholan_general_name_text(name, &text, &size));
  if (row->text != NULL) EXPECT_TEXT(row->label, row->text, text);
  EXPECT(row->label, text != NULL && size >= strlen(text));
  ortholan_free(text);
}

static void TestSingleNames(void) {
  for (size_t i = 0; i < COUNT_OF(kNames); ++i) {
    ortholan_general_name* name = NULL;
    const Octets der = FromHex(kNames[i].der);
    EXPECT_RESULT(kNames[i].label, ORTHOLAN_OK,
                  ortholan_general_name_from_der(der.data, der.size, &name));
    FreeOctets(der);
    TestOne(&kNames[i], name);
    ortholan_general_name_free(name);
  }
}

// The text of a kind whose content is not of its form.
static void TestUnreadableText(void) {
  const Octets der = FromHex("A503820541");
  const Octets parties = FromHex("A5028205");
  ortholan_general_name* name = NULL;
  char untouched;
  char* text = &untouched;
  EXPECT_RESULT("cut short", ORTHOLAN_ERROR_DER,
                ortholan_general_name_from_der(der.data, der.size - 1, &name));
  EXPECT_RESULT("party", ORTHOLAN_OK,
                ortholan_general_name_from_der(parties.data, parties.size, &name));
  EXPECT_RESULT("party", ORTHOLAN_ERROR_DER, ortholan_general_name_text(name, &text, NULL));
  EXPECT("party", text == NULL);
  EXPECT("party", ortholan_last_status() == 206);
  ortholan_general_name_free(name);
  FreeOctets(der);
  FreeOctets(parties);
}

static const struct {
  const char* label;
  const char* der;
} kRefused[] = {
    {"none", ""},
    {"no length", "82"},
    {"content missing", "82056578"},
    {"octets behind", "82016100"},
    {"indefinite length", "A48030000000"},
    {"tag that never ends", "9F8181"},
};

static const struct {
  const char* label;
  const char* der;
  size_t count;
  ortholan_result result;
} kLists[] = {
    {"none in it", "3000", 0, ORTHOLAN_OK},
    {"three", "3027" DNS ADDRESS DIRECTORY, 3, ORTHOLAN_OK},
    {"no octets", "", 0, ORTHOLAN_ERROR_DER},
    {"a SET", "310D" DNS, 0, ORTHOLAN_ERROR_DER},
    {"octets behind", "300D" DNS "00", 0, ORTHOLAN_ERROR_DER},
    {"cut short", "300E" DNS, 0, ORTHOLAN_ERROR_DER},
    {"one without a definite length", "3006A48030000000", 0, ORTHOLAN_ERROR_DER},
};

static void TestRefused(void) {
  for (size_t i = 0; i < COUNT_OF(kRefused); ++i) {
    char untouched;
    ortholan_general_name* name = (ortholan_general_name*)(void*)&untouched;
    const Octets der = FromHex(kRefused[i].der);
    EXPECT_RESULT(kRefused[i].label, ORTHOLAN_ERROR_DER,
                  ortholan_general_name_from_der(der.data, der.size, &name));
    EXPECT(kRefused[i].label, name == NULL);
    FreeOctets(der);
  }
}

static void TestLists(void) {
  for (size_t i = 0; i < COUNT_OF(kLists); ++i) {
    char untouched;
    ortholan_general_names* names = (ortholan_general_names*)(void*)&untouched;
    ortholan_general_name* name = (ortholan_general_name*)(void*)&untouched;
    size_t count = 77;
    const Octets der = FromHex(kLists[i].der);
    EXPECT_RESULT(kLists[i].label, kLists[i].result,
                  ortholan_general_names_from_der(der.data, der.size, &names));
    FreeOctets(der);
    EXPECT(kLists[i].label, (names == NULL) == (kLists[i].result != ORTHOLAN_OK));
    if (names == NULL) continue;
    EXPECT_RESULT(kLists[i].label, ORTHOLAN_OK, ortholan_general_names_count(names, &count));
    EXPECT(kLists[i].label, count == kLists[i].count);
    EXPECT_RESULT(kLists[i].label, ORTHOLAN_ERROR_NOT_FOUND,
                  ortholan_general_names_get(names, count, &name));
    EXPECT(kLists[i].label, name == NULL);
    if (count == 3) {
      EXPECT_RESULT("second", ORTHOLAN_OK, ortholan_general_names_get(names, 1, &name));
      TestOne(&kNames[5], name);
    }
    // The name is a copy.
    ortholan_general_names_free(names);
    if (name != NULL) TestOne(&kNames[5], name);
    ortholan_general_name_free(name);
  }
}

void TestGeneralNames(void) {
  TestSingleNames();
  TestUnreadableText();
  TestRefused();
  TestLists();
}
