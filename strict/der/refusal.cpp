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
  std::string_view sentence;
};

// In ascending order. What was expected and met is added by whoever tells the place.
constexpr Row kSentences[] = {
    {ORTHOLAN_REASON_NONE, ""},
    {ORTHOLAN_REASON_ARGUMENT, "an argument is missing or is none of its list"},
    {ORTHOLAN_REASON_MEMORY, "out of memory"},
    {ORTHOLAN_REASON_ROOM, "the room for the result is too small"},
    {ORTHOLAN_REASON_NOT_FOUND, "there is no such part"},
    {ORTHOLAN_REASON_TRUNCATED, "the octets end inside an element"},
    {ORTHOLAN_REASON_LEFT_OVER, "octets are left over behind the element"},
    {ORTHOLAN_REASON_IDENTIFIER, "another element has to stand here"},
    {ORTHOLAN_REASON_INDEFINITE, "a length in the indefinite form is no DER"},
    {ORTHOLAN_REASON_LENGTH_FORM, "a length is not written in its shortest form"},
    {ORTHOLAN_REASON_TAG_FORM, "a tag number is not written in its shortest form"},
    {ORTHOLAN_REASON_OID, "an object identifier is malformed"},
    {ORTHOLAN_REASON_SET_ORDER, "the elements of a SET are not in ascending order"},
    {ORTHOLAN_REASON_ALPHABET, "a character is outside the alphabet of the string type"},
    {ORTHOLAN_REASON_ENCODING, "the octets are no text in the encoding of the string type"},
    {ORTHOLAN_REASON_EMPTY, "at least one element has to be inside"},
    {ORTHOLAN_REASON_DEPTH, "elements are nested too deep"},
    {ORTHOLAN_REASON_BOOLEAN, "a BOOLEAN is neither 00 nor FF"},
    {ORTHOLAN_REASON_INTEGER, "an INTEGER is malformed or out of range"},
    {ORTHOLAN_REASON_BIT_STRING, "a BIT STRING is malformed"},
    {ORTHOLAN_REASON_DEFAULT, "a default value is written out"},
    {ORTHOLAN_REASON_TIME, "a time is malformed"},
    {ORTHOLAN_REASON_NO_STRING, "the value is no string"},
    {ORTHOLAN_REASON_TOO_LONG, "an object identifier is too long to be shown"},
    {ORTHOLAN_REASON_FORM, "the type does not have this form in DER"},
    {ORTHOLAN_REASON_NULL, "a NULL has content"},
    {ORTHOLAN_REASON_TEXT_UTF8, "the text is not UTF-8"},
    {ORTHOLAN_REASON_TEXT_NO_TYPE, "the type of an attribute is missing"},
    {ORTHOLAN_REASON_TEXT_NO_EQUALS, "an attribute has no \"=\" behind its type"},
    {ORTHOLAN_REASON_TEXT_TYPE, "this cannot be a type of attribute"},
    {ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE, "the type of the attribute is not known"},
    {ORTHOLAN_REASON_TEXT_OID, "the dotted digits are no object identifier"},
    {ORTHOLAN_REASON_TEXT_PAIR, "a backslash escapes nothing"},
    {ORTHOLAN_REASON_TEXT_UNESCAPED, "a character has to be escaped by a backslash"},
    {ORTHOLAN_REASON_TEXT_HEX,
     "behind \"#\" stand other characters than pairs of hexadecimal digits"},
    {ORTHOLAN_REASON_TEXT_ELEMENT, "the hexadecimal digits are no element in DER"},
    {ORTHOLAN_REASON_TEXT_VALUE_UTF8, "the escaped octets are not UTF-8"},
    {ORTHOLAN_REASON_TEXT_QUOTE, "a quoted value has no closing quote"},
    {ORTHOLAN_REASON_TEXT_BEHIND_QUOTE, "text stands behind the closing quote of a value"},
    {ORTHOLAN_REASON_TEXT_ALPHABET, "the attribute's string type does not have this character"},
    {ORTHOLAN_REASON_TEXT_NO_STRING, "values of this type are no strings"},
    {ORTHOLAN_REASON_TYPE_NAME, "no text could have this name for a type"},
    {ORTHOLAN_REASON_DUPLICATE_EXTENSION, "the same extension stands there twice"},
    {ORTHOLAN_REASON_PEM_END, "a PEM block has to end with its own line and holds base64 alone"},
    {ORTHOLAN_REASON_PEM_LABEL, "a PEM block ends with another label than it begins with"},
    {ORTHOLAN_REASON_BASE64, "the text of a PEM block is no base64"},
    {ORTHOLAN_REASON_HOST_EMPTY, "the host name is empty"},
    {ORTHOLAN_REASON_HOST_EMPTY_LABEL, "a label of the host name is empty"},
    {ORTHOLAN_REASON_HOST_LONG_LABEL, "a label of the host name is longer than 63 octets"},
    {ORTHOLAN_REASON_HOST_LONG, "the host name is longer than 253 octets"},
    {ORTHOLAN_REASON_HOST_CHARACTER, "a character stands there that no host name has"},
    {ORTHOLAN_REASON_HOST_UNDERSCORE, "the host name has an underscore"},
    {ORTHOLAN_REASON_HOST_HYPHEN, "a label of the host name begins or ends with a hyphen"},
    {ORTHOLAN_REASON_HOST_NUMERIC, "the last label of the host name is a number"},
    {ORTHOLAN_REASON_HOST_UNICODE, "letters beyond ASCII have to be written as A-labels (xn--)"},
    {ORTHOLAN_REASON_HOST_TRAILING_DOT, "the host name ends in a dot"},
    {ORTHOLAN_REASON_HOST_WILDCARD,
     "a \"*\" has to be the whole left-most label, with two labels or more behind it"},
    {ORTHOLAN_REASON_MAILBOX_AT, "the mailbox has no \"@\" behind its local part"},
    {ORTHOLAN_REASON_MAILBOX_LOCAL, "the local part of the mailbox is malformed"},
    {ORTHOLAN_REASON_MAILBOX_LITERAL, "the address in brackets of the mailbox is malformed"},
    {ORTHOLAN_REASON_URI_SCHEME, "the URI has no scheme in front"},
    {ORTHOLAN_REASON_URI_CHARACTER,
     "a character stands there that the part of the URI cannot have"},
    {ORTHOLAN_REASON_URI_LITERAL, "the address in brackets of the URI is malformed"},
    {ORTHOLAN_REASON_URI_PORT, "the port of the URI is no number"},
    {ORTHOLAN_REASON_SERVICE, "a service is written as \"_service.host\""},
    {ORTHOLAN_REASON_OTHER_NAME, "the value of an other name is not what its type prescribes"},
    {ORTHOLAN_REASON_ADDRESS_TEXT, "the text is no IP address"},
    {ORTHOLAN_REASON_ADDRESS_RANGE, "an address with a mask stands in name constraints alone"},
    {ORTHOLAN_REASON_NAME_KIND,
     "a name begins with its kind: DNS:, IP:, email:, URI:, dirName:, ..."},
    {ORTHOLAN_REASON_NAME_ESCAPE, "a backslash needs another or two hexadecimal digits behind it"},
    {ORTHOLAN_REASON_NAME_VALUE, "the text is not of the form that its kind of name has"},
    {ORTHOLAN_REASON_GENERAL_NAME, "this is none of the nine kinds of general names"},
    {ORTHOLAN_REASON_NAME_CHARACTER,
     "a control character, or one beyond ASCII where ASCII alone may stand"},
    {ORTHOLAN_REASON_ADDRESS_SIZE, "an address has a size that no address has"},
    {ORTHOLAN_REASON_RDN_COUNT, "the numbers of RDNs do not fit"},
    {ORTHOLAN_REASON_RDN_SIZE, "the RDNs have different numbers of attributes"},
    {ORTHOLAN_REASON_ATTRIBUTE_TYPE, "an attribute has no counterpart of its type"},
    {ORTHOLAN_REASON_VALUE, "the values are different"},
    {ORTHOLAN_REASON_RDN, "the RDN is nowhere in the other name"},
    {ORTHOLAN_REASON_VALUE_TYPE, "a value that is no string can be compared by its octets alone"},
    {ORTHOLAN_REASON_VALUE_TEXT, "the value is no text of its string type"},
    {ORTHOLAN_REASON_VALUE_UNDEFINED,
     "the value holds a code point that is prohibited or unassigned in Unicode 3.2"},
    {ORTHOLAN_REASON_VALUE_TELETEX, "nobody knows which characters a TeletexString stands for"},
    {ORTHOLAN_REASON_NO_MATCH, "no name of the certificate is the one that was asked for"},
    {ORTHOLAN_REASON_NO_ALTERNATIVE_NAMES, "the certificate has no subject alternative names"},
    {ORTHOLAN_REASON_NO_CERTIFICATE, "this is no certificate but a request or a CRL"},
    {ORTHOLAN_REASON_OTHER_KIND, "the name is of another kind"},
    {ORTHOLAN_REASON_OTHER_HOST, "the name is another host"},
    {ORTHOLAN_REASON_WILDCARD_LABELS, "\"*\" stands for exactly one label"},
    {ORTHOLAN_REASON_OTHER_ADDRESS, "the name is another address"},
    {ORTHOLAN_REASON_OTHER_FAMILY, "one address is IPv4 and the other IPv6"},
    {ORTHOLAN_REASON_OTHER_LOCAL_PART, "the mailbox has another local part"},
    {ORTHOLAN_REASON_OTHER_SCHEME, "the URI has another scheme"},
    {ORTHOLAN_REASON_OTHER_SERVICE_NAME, "the name is another service"},
    {ORTHOLAN_REASON_HOST_IS_ADDRESS, "this is an address, which has to be asked for as one"},
    {ORTHOLAN_REASON_URI_HOST, "the URI has no host that could be compared"},
    {ORTHOLAN_REASON_ASCII_LOCAL_PART,
     "a mailbox whose local part is ASCII stands in the wrong kind of name"},
    {ORTHOLAN_REASON_EXCLUDED, "the name is in an excluded subtree"},
    {ORTHOLAN_REASON_NOT_PERMITTED, "the name is in no permitted subtree"},
    {ORTHOLAN_REASON_UNDEFINED_FORM, "nothing says how names of this form are constrained"},
    {ORTHOLAN_REASON_SUBTREE_DISTANCE, "a subtree has a minimum other than 0, or a maximum"},
    {ORTHOLAN_REASON_SUBTREE_MASK, "the mask of an address range is not ones and then zeros"},
    {ORTHOLAN_REASON_SUBTREE_EMPTY, "a subtree of mailboxes or URIs names nothing"},
    {ORTHOLAN_REASON_URI_WITHOUT_HOST, "the URI has no host name"},
    {ORTHOLAN_REASON_MAILBOX_QUOTED, "a quoted local part may mean the same mailbox"},
    {ORTHOLAN_REASON_MAILBOX_CASE,
     "local parts that differ in letter case alone may mean the same mailbox"},
    {ORTHOLAN_REASON_MAILBOX_AT_ADDRESS, "the mailbox is at an address and not at a host"},
    {ORTHOLAN_REASON_MAILBOX_BEYOND_ASCII,
     "a mailbox beyond ASCII cannot be held against a single mailbox"},
    {ORTHOLAN_REASON_DIRECTORY_UNTOLD, "the directory names cannot be compared with certainty"},
    {ORTHOLAN_REASON_BUDGET, "the budget of comparisons is used up"},
    {ORTHOLAN_REASON_UNREADABLE_CERTIFICATE, "this is no certificate that can be read"},
    {ORTHOLAN_REASON_EXTENSION_TYPE, "no extension is known by this name"},
    {ORTHOLAN_REASON_TLS_SIZE, "a part of a TLS structure has another size than it says"},
    {ORTHOLAN_REASON_JSON, "the text is no JSON"},
    {ORTHOLAN_REASON_JSON_TWICE, "the object has this member already"},
    {ORTHOLAN_REASON_JSON_DEPTH, "the JSON is nested too deep"},
    {ORTHOLAN_REASON_JSON_FORM, "another form of JSON has to stand here"},
    {ORTHOLAN_REASON_JSON_MEMBER, "the structure has no such member"},
    {ORTHOLAN_REASON_JSON_LACKS, "the object lacks a member that the structure must have"},
    {ORTHOLAN_REASON_JSON_WORD, "this is no name that is known here"},
    {ORTHOLAN_REASON_JSON_NUMBER, "the number is not whole or out of range"},
    {ORTHOLAN_REASON_JSON_TEXT, "the text is not of the form that its field has"},
    {ORTHOLAN_REASON_JSON_DIFFERENT, "two members stand for different things"},
};

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

std::string_view SentenceOf(ortholan_reason reason) {
  const Row* const row =
      std::lower_bound(std::begin(kSentences), std::end(kSentences), reason,
                       [](const Row& each, ortholan_reason key) { return each.reason < key; });
  return row != std::end(kSentences) && row->reason == reason
             ? row->sentence
             : std::string_view("a reason that this version does not know");
}

}  // namespace Ortholan::strict
