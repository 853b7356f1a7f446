#include "strict/der/refusal.h"

#include <ortholan/strict/certificates.h>
#include <ortholan/strict/constraints.h>
#include <ortholan/strict/extensions.h>
#include <ortholan/strict/general_names.h>
#include <ortholan/strict/identity.h>
#include <ortholan/strict/matching.h>
#include <ortholan/strict/names.h>

#include <algorithm>
#include <iterator>

namespace Ortholan::strict {
namespace {

struct Row {
  ortholan_reason reason;
  std::string_view name;  // without ORTHOLAN_REASON_
  std::string_view sentence;
};

// In ascending order. What was expected and met is added by whoever tells the place.
#define ROW(name, sentence) \
  { ORTHOLAN_REASON_##name, #name, sentence }
constexpr Row kReasons[] = {
    ROW(NONE, ""),
    ROW(ARGUMENT, "an argument is missing or is none of its list"),
    ROW(MEMORY, "out of memory"),
    ROW(ROOM, "the room for the result is too small"),
    ROW(NOT_FOUND, "there is no such part"),
    ROW(TRUNCATED, "the octets end inside an element"),
    ROW(LEFT_OVER, "octets are left over behind the element"),
    ROW(IDENTIFIER, "another element has to stand here"),
    ROW(INDEFINITE, "a length in the indefinite form is no DER"),
    ROW(LENGTH_FORM, "a length is not written in its shortest form"),
    ROW(TAG_FORM, "a tag number is not written in its shortest form"),
    ROW(OID, "an object identifier is malformed"),
    ROW(SET_ORDER, "the elements of a SET are not in ascending order"),
    ROW(ALPHABET, "a character is outside the alphabet of the string type"),
    ROW(ENCODING, "the octets are no text in the encoding of the string type"),
    ROW(EMPTY, "at least one element has to be inside"),
    ROW(DEPTH, "elements are nested too deep"),
    ROW(BOOLEAN, "a BOOLEAN is neither 00 nor FF"),
    ROW(INTEGER, "an INTEGER is malformed or out of range"),
    ROW(BIT_STRING, "a BIT STRING is malformed"),
    ROW(DEFAULT, "a default value is written out"),
    ROW(TIME, "a time is malformed"),
    ROW(NO_STRING, "the value is no string"),
    ROW(TOO_LONG, "an object identifier is too long to be shown"),
    ROW(FORM, "the type does not have this form in DER"),
    ROW(NULL, "a NULL has content"),
    ROW(TEXT_UTF8, "the text is not UTF-8"),
    ROW(TEXT_NO_TYPE, "the type of an attribute is missing"),
    ROW(TEXT_NO_EQUALS, "an attribute has no \"=\" behind its type"),
    ROW(TEXT_TYPE, "this cannot be a type of attribute"),
    ROW(TEXT_UNKNOWN_TYPE, "the type of the attribute is not known"),
    ROW(TEXT_OID, "the dotted digits are no object identifier"),
    ROW(TEXT_PAIR, "a backslash escapes nothing"),
    ROW(TEXT_UNESCAPED, "a character has to be escaped by a backslash"),
    ROW(TEXT_HEX, "behind \"#\" stand other characters than pairs of hexadecimal digits"),
    ROW(TEXT_ELEMENT, "the hexadecimal digits are no element in BER"),
    ROW(TEXT_VALUE_UTF8, "the escaped octets are not UTF-8"),
    ROW(TEXT_QUOTE, "a quoted value has no closing quote"),
    ROW(TEXT_BEHIND_QUOTE, "text stands behind the closing quote of a value"),
    ROW(TEXT_ALPHABET, "the attribute's string type does not have this character"),
    ROW(TEXT_NO_STRING, "values of this type are no strings"),
    ROW(TYPE_NAME, "no text could have this name for a type"),
    ROW(TEXT_LINE,
        "a line of a postal address is empty, or a backslash in it has neither 24 nor 5C behind "
        "it"),
    ROW(DUPLICATE_EXTENSION, "the same extension stands there twice"),
    ROW(PEM_END, "a PEM block has to end with its own line and holds base64 alone"),
    ROW(PEM_LABEL, "a PEM block ends with another label than it begins with"),
    ROW(BASE64, "the text of a PEM block is no base64"),
    ROW(HOST_EMPTY, "the host name is empty"),
    ROW(HOST_EMPTY_LABEL, "a label of the host name is empty"),
    ROW(HOST_LONG_LABEL, "a label of the host name is longer than 63 octets"),
    ROW(HOST_LONG, "the host name is longer than 253 octets"),
    ROW(HOST_CHARACTER, "a character stands there that no host name has"),
    ROW(HOST_UNDERSCORE, "the host name has an underscore"),
    ROW(HOST_HYPHEN, "a label of the host name begins or ends with a hyphen"),
    ROW(HOST_NUMERIC, "the last label of the host name is a number"),
    ROW(HOST_UNICODE, "letters beyond ASCII have to be written as A-labels (xn--)"),
    ROW(HOST_TRAILING_DOT, "the host name ends in a dot"),
    ROW(HOST_WILDCARD,
        "a \"*\" has to be the whole left-most label, with two labels or more behind it"),
    ROW(MAILBOX_AT, "the mailbox has no \"@\" behind its local part"),
    ROW(MAILBOX_LOCAL, "the local part of the mailbox is malformed"),
    ROW(MAILBOX_LITERAL, "the address in brackets of the mailbox is malformed"),
    ROW(URI_SCHEME, "the URI has no scheme in front"),
    ROW(URI_CHARACTER, "a character stands there that the part of the URI cannot have"),
    ROW(URI_LITERAL, "the address in brackets of the URI is malformed"),
    ROW(URI_PORT, "the port of the URI is no number"),
    ROW(SERVICE, "a service is written as \"_service.host\""),
    ROW(OTHER_NAME, "the value of an other name is not what its type prescribes"),
    ROW(ADDRESS_TEXT, "the text is no IP address"),
    ROW(ADDRESS_RANGE, "an address with a mask stands in name constraints alone"),
    ROW(NAME_KIND, "a name begins with its kind: DNS:, IP:, email:, URI:, dirName:, ..."),
    ROW(NAME_ESCAPE, "a backslash needs another or two hexadecimal digits behind it"),
    ROW(NAME_VALUE, "the text is not of the form that its kind of name has"),
    ROW(GENERAL_NAME, "this is none of the nine kinds of general names"),
    ROW(NAME_CHARACTER, "a control character, or one beyond ASCII where ASCII alone may stand"),
    ROW(ADDRESS_SIZE, "an address has a size that no address has"),
    ROW(RDN_COUNT, "the numbers of RDNs do not fit"),
    ROW(RDN_SIZE, "the RDNs have different numbers of attributes"),
    ROW(ATTRIBUTE_TYPE, "an attribute has no counterpart of its type"),
    ROW(VALUE, "the values are different"),
    ROW(RDN, "the RDN is nowhere in the other name"),
    ROW(VALUE_TYPE, "a value that is no string can be compared by its octets alone"),
    ROW(VALUE_TEXT, "the value is no text of its string type"),
    ROW(VALUE_UNDEFINED,
        "the value holds a code point that is prohibited or unassigned in Unicode 3.2"),
    ROW(VALUE_TELETEX, "nobody knows which characters a TeletexString stands for"),
    ROW(NO_MATCH, "no name of the certificate is the one that was asked for"),
    ROW(NO_ALTERNATIVE_NAMES, "the certificate has no subject alternative names"),
    ROW(NO_CERTIFICATE, "this is no certificate but a request or a CRL"),
    ROW(OTHER_KIND, "the name is of another kind"),
    ROW(OTHER_HOST, "the name is another host"),
    ROW(WILDCARD_LABELS, "\"*\" stands for exactly one label"),
    ROW(OTHER_ADDRESS, "the name is another address"),
    ROW(OTHER_FAMILY, "one address is IPv4 and the other IPv6"),
    ROW(OTHER_LOCAL_PART, "the mailbox has another local part"),
    ROW(OTHER_SCHEME, "the URI has another scheme"),
    ROW(OTHER_SERVICE_NAME, "the name is another service"),
    ROW(HOST_IS_ADDRESS, "this is an address, which has to be asked for as one"),
    ROW(URI_HOST, "the URI has no host that could be compared"),
    ROW(ASCII_LOCAL_PART, "a mailbox whose local part is ASCII stands in the wrong kind of name"),
    ROW(EXCLUDED, "the name is in an excluded subtree"),
    ROW(NOT_PERMITTED, "the name is in no permitted subtree"),
    ROW(UNDEFINED_FORM, "nothing says how names of this form are constrained"),
    ROW(SUBTREE_DISTANCE, "a subtree has a minimum other than 0, or a maximum"),
    ROW(SUBTREE_MASK, "the mask of an address range is not ones and then zeros"),
    ROW(SUBTREE_EMPTY, "a subtree of mailboxes or URIs names nothing"),
    ROW(URI_WITHOUT_HOST, "the URI has no host name"),
    ROW(MAILBOX_QUOTED, "a quoted local part may mean the same mailbox"),
    ROW(MAILBOX_CASE, "local parts that differ in letter case alone may mean the same mailbox"),
    ROW(MAILBOX_AT_ADDRESS, "the mailbox is at an address and not at a host"),
    ROW(MAILBOX_BEYOND_ASCII, "a mailbox beyond ASCII cannot be held against a single mailbox"),
    ROW(DIRECTORY_UNTOLD, "the directory names cannot be compared with certainty"),
    ROW(BUDGET, "the budget of comparisons is used up"),
    ROW(UNREADABLE_CERTIFICATE, "this is no certificate that can be read"),
    ROW(EXTENSION_TYPE, "no extension is known by this name"),
    ROW(TLS_SIZE, "a part of a TLS structure has another size than it says"),
    ROW(JSON, "the text is no JSON"),
    ROW(JSON_TWICE, "the object has this member already"),
    ROW(JSON_DEPTH, "the JSON is nested too deep"),
    ROW(JSON_FORM, "another form of JSON has to stand here"),
    ROW(JSON_MEMBER, "the structure has no such member"),
    ROW(JSON_LACKS, "the object lacks a member that the structure must have"),
    ROW(JSON_WORD, "this is no name that is known here"),
    ROW(JSON_NUMBER, "the number is not whole or out of range"),
    ROW(JSON_TEXT, "the text is not of the form that its field has"),
    ROW(JSON_DIFFERENT, "two members stand for different things"),
};
#undef ROW

constexpr bool AreAscending() {
  for (size_t i = 1; i < std::size(kReasons); ++i) {
    if (kReasons[i].reason <= kReasons[i - 1].reason) return false;
  }
  return true;
}
static_assert(AreAscending(), "rows are found by halving");

const Row* Find(ortholan_reason reason) {
  const Row* const row =
      std::lower_bound(std::begin(kReasons), std::end(kReasons), reason,
                       [](const Row& each, ortholan_reason key) { return each.reason < key; });
  return row != std::end(kReasons) && row->reason == reason ? row : nullptr;
}

}  // namespace

ortholan_refusal Refusal::From(const void* start) const {
  const auto* const place = static_cast<const uint8_t*>(at);
  const auto* const first = static_cast<const uint8_t*>(start);
  // No octets at all may be a null pointer, whose end is the place.
  const bool has_place = place != nullptr || start == nullptr;
  const size_t offset = has_place ? static_cast<size_t>(place - first) : ORTHOLAN_NO_PLACE;
  return {reason, met, expected, offset};
}

bool Refuse(Refusal* refusal, ortholan_reason reason, const uint8_t* at, size_t rest,
            uint32_t expected) {
  if (refusal != nullptr) *refusal = {reason, rest != 0 ? *at : ORTHOLAN_MET_END, expected, at};
  return false;
}

bool RefuseText(Refusal* refusal, ortholan_reason reason, std::string_view rest,
                uint32_t expected) {
  return Refuse(refusal, reason, reinterpret_cast<const uint8_t*>(rest.data()), rest.size(),
                expected);
}

std::string_view SentenceOf(ortholan_reason reason) {
  const Row* const row = Find(reason);
  return row != nullptr ? row->sentence : "a reason that this version does not know";
}

std::string_view NameOf(ortholan_reason reason) {
  const Row* const row = Find(reason);
  return row != nullptr ? row->name : "";
}

}  // namespace Ortholan::strict
