// Results, messages, and every pointer that may not be NULL.
#include <string.h>

#include "tests/capi/check.h"

// Any address that an output must not keep.
static char untouched;

static void TestFreshThread(void) {
  EXPECT_RESULT("fresh", ORTHOLAN_OK, ortholan_last_error());
  EXPECT("fresh", ortholan_last_status() == 0);
  EXPECT("fresh", ortholan_last_system_error() == 0);
  EXPECT_TEXT("fresh", "", ortholan_last_error_message());
}

static void TestLastErrorStays(void) {
  ortholan_name* name = NULL;
  EXPECT_RESULT("empty text", ORTHOLAN_ERROR_NAME_TEXT, ortholan_name_from_text("", 0, 0, &name));
  EXPECT("empty text", ortholan_last_status() == 28);
  EXPECT("empty text", ortholan_last_system_error() == 160);
  EXPECT_TEXT(
      "empty text",
      "ortholan_name_from_text: end of the text at character 1: expected a type such as CN, "
      "\"=\" and a value",
      ortholan_last_error_message());
  EXPECT_RESULT("after it", ORTHOLAN_OK, ortholan_name_new(&name));
  EXPECT("after it", ortholan_last_error() == ORTHOLAN_ERROR_NAME_TEXT);
  EXPECT("after it", strstr(ortholan_last_error_message(), "ortholan_name_from_text") != NULL);
  EXPECT_RESULT("then", ORTHOLAN_ERROR_NOT_FOUND, ortholan_name_remove(name, "CN"));
  EXPECT("then", ortholan_last_status() == 0);
  EXPECT("then", ortholan_last_system_error() == 0);
  ortholan_name_free(name);
}

static void TestMessageOfText(void) {
  static const char text[] = "CN=\xD0\x96, C=\xD0\x96";
  ortholan_name* name = NULL;
  EXPECT_RESULT("letters", ORTHOLAN_ERROR_NAME_TEXT,
                ortholan_name_from_text_n(text, sizeof(text) - 1, 0, 0, &name));
  EXPECT("letters", strstr(ortholan_last_error_message(),
                           ": \"\xD0\x96\" at character 9: expected letters") != NULL);
}

static void TestNothingToFree(void) {
  ortholan_free(NULL);
  ortholan_name_free(NULL);
  ortholan_general_name_free(NULL);
  ortholan_general_names_free(NULL);
  ortholan_extension_free(NULL);
  ortholan_extensions_free(NULL);
}

#define REFUSES(call) EXPECT_RESULT("NULL", ORTHOLAN_ERROR_ARGUMENT, call)

static void TestNullNames(ortholan_name* good) {
  ortholan_name* name = (ortholan_name*)&untouched;
  char* text = &untouched;
  uint8_t* octets = (uint8_t*)&untouched;
  ortholan_attribute* attributes = (ortholan_attribute*)&untouched;
  size_t size = 77;
  int equal = 77;
  REFUSES(ortholan_name_from_text(NULL, 0, 0, &name));
  EXPECT("from_text", name == NULL);
  name = (ortholan_name*)&untouched;
  REFUSES(ortholan_name_from_text_n(NULL, 1, 0, 0, &name));
  EXPECT("from_text_n", name == NULL);
  name = (ortholan_name*)&untouched;
  REFUSES(ortholan_name_from_der(NULL, 1, &name));
  EXPECT("from_der", name == NULL);
  name = (ortholan_name*)&untouched;
  REFUSES(ortholan_name_copy(NULL, &name));
  EXPECT("copy", name == NULL);
  REFUSES(ortholan_name_from_text("CN=a", 0, 0, NULL));
  REFUSES(ortholan_name_from_text_n("CN=a", 4, 0, 0, NULL));
  REFUSES(ortholan_name_from_der((const uint8_t*)"0", 1, NULL));
  REFUSES(ortholan_name_new(NULL));
  REFUSES(ortholan_name_copy(good, NULL));
  REFUSES(ortholan_name_text(NULL, ORTHOLAN_STYLE_KEYS, &text, &size));
  EXPECT("text", text == NULL && size == 0);
  REFUSES(ortholan_name_text(good, ORTHOLAN_STYLE_KEYS, NULL, NULL));
  size = 77;
  REFUSES(ortholan_name_der(NULL, &octets, &size));
  EXPECT("der", octets == NULL && size == 0);
  REFUSES(ortholan_name_der(good, NULL, &size));
  octets = (uint8_t*)&untouched;
  REFUSES(ortholan_name_der(good, &octets, NULL));
  EXPECT("der", octets == NULL);
  size = 77;
  REFUSES(ortholan_name_count(NULL, &size));
  EXPECT("count", size == 0);
  REFUSES(ortholan_name_count(good, NULL));
  size = 77;
  REFUSES(ortholan_name_attributes(NULL, &attributes, &size));
  EXPECT("attributes", attributes == NULL && size == 0);
  REFUSES(ortholan_name_attributes(good, NULL, &size));
  REFUSES(ortholan_name_attributes(good, &attributes, NULL));
  text = &untouched;
  size = 77;
  REFUSES(ortholan_name_get(NULL, "CN", &text, &size));
  EXPECT("get", text == NULL && size == 0);
  REFUSES(ortholan_name_get(good, NULL, &text, NULL));
  REFUSES(ortholan_name_get(good, "CN", NULL, NULL));
  REFUSES(ortholan_name_add(NULL, "CN", "a", 0));
  REFUSES(ortholan_name_add(good, NULL, "a", 0));
  REFUSES(ortholan_name_add(good, "CN", NULL, 0));
  REFUSES(ortholan_name_add_n(NULL, "CN", "a", 1, 0));
  REFUSES(ortholan_name_add_n(good, NULL, "a", 1, 0));
  REFUSES(ortholan_name_add_n(good, "CN", NULL, 1, 0));
  REFUSES(ortholan_name_set(NULL, "CN", "a", 0));
  REFUSES(ortholan_name_set(good, NULL, "a", 0));
  REFUSES(ortholan_name_set(good, "CN", NULL, 0));
  REFUSES(ortholan_name_set_n(NULL, "CN", "a", 1, 0));
  REFUSES(ortholan_name_set_n(good, NULL, "a", 1, 0));
  REFUSES(ortholan_name_set_n(good, "CN", NULL, 1, 0));
  REFUSES(ortholan_name_remove(NULL, "CN"));
  REFUSES(ortholan_name_remove(good, NULL));
  REFUSES(ortholan_name_equal(NULL, good, &equal));
  EXPECT("equal", equal == 0);
  REFUSES(ortholan_name_equal(good, NULL, &equal));
  REFUSES(ortholan_name_equal(good, good, NULL));
  EXPECT_TEXT("unchanged", "3000", HexOf(good));
}

static void TestNullTextErrors(void) {
  uint32_t fault = 77;
  size_t position = 77;
  size_t length = 77;
  char* message = &untouched;
  REFUSES(ortholan_name_text_error(NULL, 0, &fault, &position, &length, &message));
  EXPECT("text_error", fault == 0 && position == 0 && length == 0 && message == NULL);
  message = &untouched;
  REFUSES(ortholan_name_text_error("a", 0, NULL, &position, &length, &message));
  EXPECT("text_error", message == NULL);
  REFUSES(ortholan_name_text_error("a", 0, &fault, NULL, &length, NULL));
  REFUSES(ortholan_name_text_error("a", 0, &fault, &position, NULL, NULL));
  REFUSES(ortholan_name_text_error_n(NULL, 1, 0, &fault, &position, &length, NULL));
  EXPECT_RESULT("broken text", ORTHOLAN_ERROR_UTF8,
                ortholan_name_text_error("CN=\xFF", 0, &fault, &position, &length, NULL));
}

static void TestNullGeneralNames(void) {
  ortholan_general_name* name = (ortholan_general_name*)&untouched;
  ortholan_general_names* names = (ortholan_general_names*)&untouched;
  char* text = &untouched;
  uint8_t* octets = (uint8_t*)&untouched;
  size_t size = 77;
  uint32_t kind = 77;
  REFUSES(ortholan_general_name_from_der(NULL, 1, &name));
  EXPECT("general name", name == NULL);
  REFUSES(ortholan_general_name_from_der((const uint8_t*)"\x82", 1, NULL));
  REFUSES(ortholan_general_name_kind(NULL, &kind));
  EXPECT("kind", kind == 0);
  REFUSES(ortholan_general_name_text(NULL, &text, &size));
  EXPECT("text", text == NULL && size == 0);
  REFUSES(ortholan_general_name_value(NULL, &octets, &size));
  EXPECT("value", octets == NULL);
  octets = (uint8_t*)&untouched;
  REFUSES(ortholan_general_name_der(NULL, &octets, &size));
  EXPECT("der", octets == NULL);
  REFUSES(ortholan_general_names_from_der(NULL, 1, &names));
  EXPECT("general names", names == NULL);
  REFUSES(ortholan_general_names_from_der((const uint8_t*)"0", 1, NULL));
  size = 77;
  REFUSES(ortholan_general_names_count(NULL, &size));
  EXPECT("count", size == 0);
  name = (ortholan_general_name*)&untouched;
  REFUSES(ortholan_general_names_get(NULL, 0, &name));
  EXPECT("get", name == NULL);
}

static void TestNullExtensions(ortholan_extension* extension, ortholan_extensions* list) {
  ortholan_extension* made = (ortholan_extension*)&untouched;
  ortholan_extensions* lists = (ortholan_extensions*)&untouched;
  char* text = &untouched;
  uint8_t* octets = (uint8_t*)&untouched;
  size_t size = 77;
  int critical = 77;
  REFUSES(ortholan_extension_new(NULL, 0, NULL, 0, &made));
  EXPECT("new", made == NULL);
  made = (ortholan_extension*)&untouched;
  REFUSES(ortholan_extension_new("2.5.29.15", 0, NULL, 1, &made));
  EXPECT("new", made == NULL);
  REFUSES(ortholan_extension_new("2.5.29.15", 0, NULL, 0, NULL));
  made = (ortholan_extension*)&untouched;
  REFUSES(ortholan_extension_from_der(NULL, 1, &made));
  EXPECT("from_der", made == NULL);
  REFUSES(ortholan_extension_from_der((const uint8_t*)"0", 1, NULL));
  REFUSES(ortholan_extension_oid(NULL, &text));
  EXPECT("oid", text == NULL);
  REFUSES(ortholan_extension_oid(extension, NULL));
  REFUSES(ortholan_extension_critical(NULL, &critical));
  EXPECT("critical", critical == 0);
  REFUSES(ortholan_extension_critical(extension, NULL));
  REFUSES(ortholan_extension_value(NULL, &octets, &size));
  EXPECT("value", octets == NULL && size == 0);
  REFUSES(ortholan_extension_value(extension, NULL, &size));
  REFUSES(ortholan_extension_value(extension, &octets, NULL));
  REFUSES(ortholan_extension_der(NULL, &octets, &size));
  REFUSES(ortholan_extension_der(extension, NULL, &size));
  REFUSES(ortholan_extension_der(extension, &octets, NULL));
  REFUSES(ortholan_extensions_new(NULL));
  REFUSES(ortholan_extensions_from_der(NULL, 1, &lists));
  EXPECT("from_der", lists == NULL);
  REFUSES(ortholan_extensions_from_der((const uint8_t*)"0", 1, NULL));
  REFUSES(ortholan_extensions_count(NULL, &size));
  REFUSES(ortholan_extensions_count(list, NULL));
  made = (ortholan_extension*)&untouched;
  REFUSES(ortholan_extensions_get(NULL, 0, &made));
  EXPECT("get", made == NULL);
  REFUSES(ortholan_extensions_get(list, 0, NULL));
  made = (ortholan_extension*)&untouched;
  REFUSES(ortholan_extensions_find(NULL, "2.5.29.15", &made));
  EXPECT("find", made == NULL);
  REFUSES(ortholan_extensions_find(list, NULL, &made));
  REFUSES(ortholan_extensions_find(list, "2.5.29.15", NULL));
  REFUSES(ortholan_extensions_set(NULL, extension));
  REFUSES(ortholan_extensions_set(list, NULL));
  REFUSES(ortholan_extensions_der(NULL, &octets, &size));
  REFUSES(ortholan_extensions_der(list, NULL, &size));
  REFUSES(ortholan_extensions_der(list, &octets, NULL));
}

// Sizes above 32 bits are refused before an octet is read.
static void TestTooLarge(void) {
  ortholan_name* name = NULL;
  ortholan_extension* extension = NULL;
  const uint8_t octet = 0x30;
  const size_t size = (size_t)0x100000000;
  EXPECT_RESULT("4 GiB", ORTHOLAN_ERROR_ARGUMENT, ortholan_name_from_der(&octet, size, &name));
  EXPECT_RESULT("4 GiB", ORTHOLAN_ERROR_ARGUMENT,
                ortholan_extension_new("2.5.29.15", 0, &octet, size, &extension));
}

void TestErrors(void) {
  ortholan_name* name = NULL;
  ortholan_extension* extension = NULL;
  ortholan_extensions* list = NULL;
  TestFreshThread();
  TestLastErrorStays();
  TestMessageOfText();
  TestNothingToFree();
  EXPECT_RESULT("good", ORTHOLAN_OK, ortholan_name_new(&name));
  EXPECT_RESULT("good", ORTHOLAN_OK, ortholan_extensions_new(&list));
  EXPECT_RESULT("good", ORTHOLAN_OK, ortholan_extension_new("2.5.29.15", 0, NULL, 0, &extension));
  TestNullNames(name);
  TestNullTextErrors();
  TestNullGeneralNames();
  TestNullExtensions(extension, list);
  TestTooLarge();
  EXPECT("version", strchr(ortholan_version(), '.') != NULL);
  ortholan_name_free(name);
  ortholan_extension_free(extension);
  ortholan_extensions_free(list);
}
