// Names from text and octets, and back.
#include <string.h>

#include "tests/capi/check.h"

// Encodings by X.690 and RFC 5280 4.1.2.4, as the README's table has some of them.
#define ALPHA "3010310E300C06035504031305416C706861"
#define SORTED \
  "302B310B3009060355040613025255310C300A060355040A13034F7267310E300C06035504031305416C706861"
#define AS_WRITTEN \
  "302B310E300C06035504031305416C706861310C300A060355040A13034F7267310B3009060355040613025255"
#define MULTI_VALUED "301C311A300A060355040A13034F7267300C06035504031305416C706861"

typedef struct TextRow {
  const char* label;
  const char* text;
  uint32_t options;
  int sort;
  const char* der;
  uint32_t style;
  const char* rendered;
} TextRow;

static const TextRow kTexts[] = {
    {"one element", "CN=Alpha", 0, 0, ALPHA, ORTHOLAN_STYLE_KEYS, "CN=Alpha"},
    {"by identifier", "2.5.4.3=Alpha", 0, 0, ALPHA, ORTHOLAN_STYLE_OIDS, "2.5.4.3=Alpha"},
    {"values alone", "CN=Alpha", 0, 0, ALPHA, ORTHOLAN_STYLE_VALUES, "Alpha"},
    {"as written", "CN=Alpha, O=Org, C=RU", 0, 0, AS_WRITTEN, ORTHOLAN_STYLE_KEYS,
     "CN=Alpha,O=Org,C=RU"},
    {"sorted", "CN=Alpha, O=Org, C=RU", 0, 1, SORTED, ORTHOLAN_STYLE_KEYS, "C=RU,O=Org,CN=Alpha"},
    {"semicolons out", "CN=Alpha, O=Org, C=RU", 0, 1, SORTED,
     ORTHOLAN_STYLE_KEYS | ORTHOLAN_SEPARATE_SEMICOLON, "C=RU;O=Org;CN=Alpha"},
    {"lines out", "CN=Alpha, O=Org, C=RU", 0, 1, SORTED,
     ORTHOLAN_STYLE_KEYS | ORTHOLAN_SEPARATE_CRLF, "C=RU\r\nO=Org\r\nCN=Alpha"},
    {"commas only", "CN=a;b", ORTHOLAN_ENCODE_COMMA, 0, "3011310F300D06035504031E060061003B0062",
     ORTHOLAN_STYLE_KEYS, "CN=\"a;b\""},
    {"semicolons only", "CN=Alpha;O=Org;C=RU", ORTHOLAN_ENCODE_SEMICOLON, 0, AS_WRITTEN,
     ORTHOLAN_STYLE_KEYS, "CN=Alpha,O=Org,C=RU"},
    {"lines only", "CN=Alpha\r\nO=Org\r\nC=RU", ORTHOLAN_ENCODE_CRLF, 0, AS_WRITTEN,
     ORTHOLAN_STYLE_KEYS, "CN=Alpha,O=Org,C=RU"},
    {"Cyrillic", "CN=\xD0\x90\xD0\xBB\xD1\x8C\xD1\x84\xD0\xB0", 0, 0,
     "30153113301106035504031E0A0410043B044C04440430", ORTHOLAN_STYLE_KEYS,
     "CN=\xD0\x90\xD0\xBB\xD1\x8C\xD1\x84\xD0\xB0"},
    {"Cyrillic as UTF8String", "CN=\xD0\x90\xD0\xBB\xD1\x8C\xD1\x84\xD0\xB0", ORTHOLAN_ENCODE_UTF8,
     0, "30153113301106035504030C0AD090D0BBD18CD184D0B0", ORTHOLAN_STYLE_KEYS,
     "CN=\xD0\x90\xD0\xBB\xD1\x8C\xD1\x84\xD0\xB0"},
    {"always UTF8String", "CN=Alpha", ORTHOLAN_ENCODE_UTF8 | ORTHOLAN_ENCODE_ALWAYS, 0,
     "3010310E300C06035504030C05416C706861", ORTHOLAN_STYLE_KEYS, "CN=Alpha"},
    {"beyond U+FFFF", "CN=\xF0\x9F\x98\x80", 0, 0, "300F310D300B06035504031E04D83DDE00",
     ORTHOLAN_STYLE_KEYS, "CN=\xF0\x9F\x98\x80"},
};

static void TestTexts(void) {
  for (size_t i = 0; i < COUNT_OF(kTexts); ++i) {
    const TextRow* row = &kTexts[i];
    ortholan_name* name = NULL;
    ortholan_name* sized = NULL;
    char* text = NULL;
    size_t size = 0;
    EXPECT_RESULT(row->label, ORTHOLAN_OK,
                  ortholan_name_from_text(row->text, row->options, row->sort, &name));
    EXPECT_TEXT(row->label, row->der, HexOf(name));
    EXPECT_RESULT(
        row->label, ORTHOLAN_OK,
        ortholan_name_from_text_n(row->text, strlen(row->text), row->options, row->sort, &sized));
    EXPECT_TEXT(row->label, row->der, HexOf(sized));
    EXPECT_RESULT(row->label, ORTHOLAN_OK, ortholan_name_text(name, row->style, &text, &size));
    EXPECT_TEXT(row->label, row->rendered, text);
    EXPECT(row->label, text != NULL && size == strlen(text));
    ortholan_free(text);
    ortholan_name_free(name);
    ortholan_name_free(sized);
  }
}

typedef struct RefusedTextRow {
  const char* label;
  const char* text;
  size_t size;
  ortholan_result result;
} RefusedTextRow;

#define SIZED(text) text, sizeof(text) - 1

static const RefusedTextRow kRefusedTexts[] = {
    {"empty", SIZED(""), ORTHOLAN_ERROR_NAME_TEXT},
    {"blank", SIZED("  \t"), ORTHOLAN_ERROR_NAME_TEXT},
    {"no equals sign", SIZED("Alpha"), ORTHOLAN_ERROR_NAME_TEXT},
    {"unknown key", SIZED("DC=example, CN=a"), ORTHOLAN_ERROR_NAME_TEXT},
    {"no value", SIZED("CN=, O=Org"), ORTHOLAN_ERROR_NAME_TEXT},
    {"underscore in a country", SIZED("C=R_"), ORTHOLAN_ERROR_NAME_TEXT},
    {"Cyrillic in a country", SIZED("C=\xD0\xA0\xD0\xA4"), ORTHOLAN_ERROR_NAME_TEXT},
    {"follower alone", SIZED("CN=a\x80"), ORTHOLAN_ERROR_UTF8},
    {"character cut short", SIZED("CN=a\xD0"), ORTHOLAN_ERROR_UTF8},
    {"overlong", SIZED("CN=a\xC0\x80"), ORTHOLAN_ERROR_UTF8},
    {"surrogate", SIZED("CN=a\xED\xA0\x80"), ORTHOLAN_ERROR_UTF8},
    {"beyond U+10FFFF", SIZED("CN=a\xF4\x90\x80\x80"), ORTHOLAN_ERROR_UTF8},
    {"broken in the middle", SIZED("CN=\xD0\x90\xFF\xD0\xBB"), ORTHOLAN_ERROR_UTF8},
};

static void TestRefusedTexts(void) {
  for (size_t i = 0; i < COUNT_OF(kRefusedTexts); ++i) {
    const RefusedTextRow* row = &kRefusedTexts[i];
    char untouched;
    ortholan_name* name = (ortholan_name*)(void*)&untouched;
    EXPECT_RESULT(row->label, row->result, ortholan_name_from_text(row->text, 0, 0, &name));
    EXPECT(row->label, name == NULL);
    name = (ortholan_name*)(void*)&untouched;
    EXPECT_RESULT(row->label, row->result,
                  ortholan_name_from_text_n(row->text, row->size, 0, 0, &name));
    EXPECT(row->label, name == NULL);
  }
}

typedef struct OctetsRow {
  const char* label;
  const char* der;
  ortholan_result result;
} OctetsRow;

static const OctetsRow kRefusedOctets[] = {
    {"none", "", ORTHOLAN_ERROR_DER},
    {"one octet", "30", ORTHOLAN_ERROR_DER},
    {"octets behind", ALPHA "00", ORTHOLAN_ERROR_DER},
    {"a SET", "3110310E300C06035504031305416C706861", ORTHOLAN_ERROR_DER},
    {"primitive", "1000", ORTHOLAN_ERROR_DER},
    {"RDN without an attribute", "30023100", ORTHOLAN_ERROR_DER},
    {"attribute without a value", "3009310730050603550403", ORTHOLAN_ERROR_DER},
    {"type cut short", "300B31093007060255830C0141", ORTHOLAN_ERROR_DER},
    {"two attributes in an RDN", MULTI_VALUED, ORTHOLAN_ERROR_MULTI_VALUED},
    {"no name", "30033001FF", ORTHOLAN_ERROR_DER},
};

static void ExpectRefusedOctets(const char* label, ortholan_result result, const char* hex) {
  char untouched;
  ortholan_name* name = (ortholan_name*)(void*)&untouched;
  const Octets der = FromHex(hex);
  EXPECT_RESULT(label, result, ortholan_name_from_der(der.data, der.size, &name));
  EXPECT(label, name == NULL);
  FreeOctets(der);
}

static void TestRefusedOctets(void) {
  for (size_t i = 0; i < COUNT_OF(kRefusedOctets); ++i) {
    const OctetsRow* row = &kRefusedOctets[i];
    ExpectRefusedOctets(row->label, row->result, row->der);
  }
  // Every name that is cut short.
  for (size_t digits = 0; digits < strlen(SORTED); digits += 2) {
    char cut[sizeof SORTED] = {0};
    memcpy(cut, SORTED, digits);
    ExpectRefusedOctets(cut, ORTHOLAN_ERROR_DER, cut);
  }
}

// Values without a UTF-8 form, and one that has none at all.
static const struct {
  const char* label;
  const char* der;
  const char* text;  // NULL: ORTHOLAN_ERROR_DER
} kOddValues[] = {
    {"no RDNs", "3000", ""},
    {"unpaired surrogate", "300D310B300906035504031E02D800", "CN=\xEF\xBF\xBD"},
    {"low one first", "300F310D300B06035504031E04DC00D800", "CN=\xEF\xBF\xBD\xEF\xBF\xBD"},
    {"broken UTF8String", "300D310B300906035504030C0241FF", "CN=A\xEF\xBF\xBD"},
    {"constructed UTF8String", "300C310A300806035504032C0141", NULL},
    {"indefinite lengths", "3080310E300C06035504031305416C7068610000", "CN=Alpha"},
};

static void TestOddValues(void) {
  for (size_t i = 0; i < COUNT_OF(kOddValues); ++i) {
    const char* label = kOddValues[i].label;
    ortholan_name* name = NameOf(kOddValues[i].der);
    char* text = NULL;
    size_t size = 77;
    const int refused = kOddValues[i].text == NULL;
    EXPECT_TEXT(label, kOddValues[i].der, HexOf(name));
    EXPECT_RESULT(label, refused ? ORTHOLAN_ERROR_DER : ORTHOLAN_OK,
                  ortholan_name_text(name, ORTHOLAN_STYLE_KEYS, &text, &size));
    if (refused) {
      EXPECT(label, text == NULL && size == 0);
    } else {
      EXPECT_TEXT(label, kOddValues[i].text, text);
      EXPECT(label, size == strlen(kOddValues[i].text));
    }
    ortholan_free(text);
    ortholan_name_free(name);
  }
}

static const struct {
  const char* label;
  const char* a;
  const char* b;
  int equal;
} kPairs[] = {
    {"same octets", ALPHA, ALPHA, 1},
    {"another order", SORTED, AS_WRITTEN, 1},
    {"another string type", ALPHA, "3010310E300C06035504030C05416C706861", 1},
    {"another letter case", ALPHA, "3010310E300C06035504031305616C706861", 0},
    {"more attributes", SORTED, ALPHA, 0},
    {"no RDNs", "3000", "3000", 1},
    {"none and one", "3000", ALPHA, 0},
    // Both read as U+FFFD; the units decide.
    {"different surrogates", "300D310B300906035504031E02D800", "300D310B300906035504031E02D801", 0},
};

static void TestEqual(void) {
  for (size_t i = 0; i < COUNT_OF(kPairs); ++i) {
    ortholan_name* a = NameOf(kPairs[i].a);
    ortholan_name* b = NameOf(kPairs[i].b);
    ortholan_name* copy = NULL;
    int equal = 77;
    EXPECT_RESULT(kPairs[i].label, ORTHOLAN_OK, ortholan_name_equal(a, b, &equal));
    EXPECT(kPairs[i].label, equal == kPairs[i].equal);
    EXPECT_RESULT(kPairs[i].label, ORTHOLAN_OK, ortholan_name_copy(a, &copy));
    ortholan_name_free(a);
    EXPECT_TEXT(kPairs[i].label, kPairs[i].a, HexOf(copy));
    ortholan_name_free(b);
    ortholan_name_free(copy);
  }
}

static const struct {
  const char* label;
  const char* text;
  uint32_t fault;
  size_t position;
  size_t length;
  const char* message;
} kFaults[] = {
    {"none", "CN=Alpha", ORTHOLAN_FAULT_NONE, 0, 0, ""},
    {"a missing value", "CN=", ORTHOLAN_FAULT_MISSING_VALUE, 3, 0,
     "end of the text at character 4: expected a value"},
    // Two letters of two octets and one of four, two UTF-16 units, stand before it.
    {"behind other letters", "O=\xD0\x90\xD0\x91\xF0\x9F\x98\x80,C=\xD0\x90",
     ORTHOLAN_FAULT_WRONG_CHARACTER, 13, 2,
     "\"\xD0\x90\" at character 10: expected letters, digits, blank and '()+,-./:? alone in the "
     "value of C"},
};

static void TestTextErrors(void) {
  for (size_t i = 0; i < COUNT_OF(kFaults); ++i) {
    uint32_t fault = 77;
    size_t position = 77;
    size_t length = 77;
    char* message = NULL;
    EXPECT_RESULT(
        kFaults[i].label, ORTHOLAN_OK,
        ortholan_name_text_error(kFaults[i].text, 0, &fault, &position, &length, &message));
    EXPECT(kFaults[i].label, fault == kFaults[i].fault);
    EXPECT(kFaults[i].label, position == kFaults[i].position && length == kFaults[i].length);
    EXPECT_TEXT(kFaults[i].label, kFaults[i].message, message);
    ortholan_free(message);
    EXPECT_RESULT(kFaults[i].label, ORTHOLAN_OK,
                  ortholan_name_text_error_n(kFaults[i].text, strlen(kFaults[i].text), 0, &fault,
                                             &position, &length, NULL));
    EXPECT(kFaults[i].label, fault == kFaults[i].fault);
  }
}

void TestNames(void) {
  TestTexts();
  TestRefusedTexts();
  TestTextErrors();
  TestRefusedOctets();
  TestOddValues();
  TestEqual();
}
