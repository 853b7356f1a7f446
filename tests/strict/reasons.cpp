#include "tests/strict/reasons.h"

#include <algorithm>
#include <iterator>

namespace Ortholan::testing {
namespace {

struct Row {
  ortholan_reason reason;
  const char* name;
};

#define ROW(name) \
  { ORTHOLAN_REASON_##name, #name }
constexpr Row kRows[] = {
    ROW(ARGUMENT),
    ROW(MEMORY),
    ROW(ROOM),
    ROW(NOT_FOUND),
    ROW(TRUNCATED),
    ROW(LEFT_OVER),
    ROW(IDENTIFIER),
    ROW(INDEFINITE),
    ROW(LENGTH_FORM),
    ROW(TAG_FORM),
    ROW(OID),
    ROW(SET_ORDER),
    ROW(ALPHABET),
    ROW(ENCODING),
    ROW(EMPTY),
    ROW(DEPTH),
    ROW(BOOLEAN),
    ROW(INTEGER),
    ROW(BIT_STRING),
    ROW(DEFAULT),
    ROW(TIME),
    ROW(NO_STRING),
    ROW(TOO_LONG),
    ROW(FORM),
    ROW(NULL),
    ROW(DUPLICATE_EXTENSION),
    ROW(PEM_END),
    ROW(PEM_LABEL),
    ROW(BASE64),
    ROW(HOST_EMPTY),
    ROW(HOST_EMPTY_LABEL),
    ROW(HOST_LONG_LABEL),
    ROW(HOST_LONG),
    ROW(HOST_CHARACTER),
    ROW(HOST_UNDERSCORE),
    ROW(HOST_HYPHEN),
    ROW(HOST_NUMERIC),
    ROW(HOST_UNICODE),
    ROW(HOST_TRAILING_DOT),
    ROW(HOST_WILDCARD),
    ROW(MAILBOX_AT),
    ROW(MAILBOX_LOCAL),
    ROW(MAILBOX_LITERAL),
    ROW(URI_SCHEME),
    ROW(URI_CHARACTER),
    ROW(URI_LITERAL),
    ROW(URI_PORT),
    ROW(SERVICE),
    ROW(OTHER_NAME),
    ROW(ADDRESS_TEXT),
    ROW(ADDRESS_RANGE),
    ROW(NAME_KIND),
    ROW(NAME_ESCAPE),
    ROW(NAME_VALUE),
    ROW(GENERAL_NAME),
    ROW(NAME_CHARACTER),
    ROW(ADDRESS_SIZE),
    ROW(NO_MATCH),
    ROW(NO_ALTERNATIVE_NAMES),
    ROW(NO_CERTIFICATE),
    ROW(OTHER_KIND),
    ROW(OTHER_HOST),
    ROW(WILDCARD_LABELS),
    ROW(OTHER_ADDRESS),
    ROW(OTHER_FAMILY),
    ROW(OTHER_LOCAL_PART),
    ROW(OTHER_SCHEME),
    ROW(OTHER_SERVICE_NAME),
    ROW(HOST_IS_ADDRESS),
    ROW(URI_HOST),
    ROW(ASCII_LOCAL_PART),
    ROW(TEXT_UTF8),
    ROW(TEXT_NO_TYPE),
    ROW(TEXT_NO_EQUALS),
    ROW(TEXT_TYPE),
    ROW(TEXT_UNKNOWN_TYPE),
    ROW(TEXT_OID),
    ROW(TEXT_PAIR),
    ROW(TEXT_UNESCAPED),
    ROW(TEXT_HEX),
    ROW(TEXT_ELEMENT),
    ROW(TEXT_VALUE_UTF8),
    ROW(TEXT_QUOTE),
    ROW(TEXT_BEHIND_QUOTE),
    ROW(TEXT_ALPHABET),
    ROW(TEXT_NO_STRING),
    ROW(TYPE_NAME),
    ROW(EXTENSION_TYPE),
    ROW(TLS_SIZE),
    ROW(JSON),
    ROW(JSON_TWICE),
    ROW(JSON_DEPTH),
    ROW(JSON_FORM),
    ROW(JSON_MEMBER),
    ROW(JSON_LACKS),
    ROW(JSON_WORD),
    ROW(JSON_NUMBER),
    ROW(JSON_TEXT),
    ROW(JSON_DIFFERENT),
};
#undef ROW

}  // namespace

std::string ReasonName(ortholan_reason reason) {
  if (reason == ORTHOLAN_REASON_NONE) return "";
  const auto* const row = std::find_if(std::begin(kRows), std::end(kRows),
                                       [reason](const Row& each) { return each.reason == reason; });
  return row != std::end(kRows) ? row->name : std::to_string(reason);
}

}  // namespace Ortholan::testing
