// The form of an attribute value that decides of sameness: under a rule two values of one attribute
// type are the same exactly where kind and octets of their forms are.
//
//   PreparedText octets;
//   const ValueForm form = PutForm(attribute.type, attribute.value, MatchRule::kRfc5280, &octets);
#ifndef ORTHOLAN_STRICT_MATCHING_VALUE_FORM_H_
#define ORTHOLAN_STRICT_MATCHING_VALUE_FORM_H_

#include "strict/der/element.h"
#include "strict/matching/match_rule.h"
#include "strict/matching/preparation.h"

namespace Ortholan::strict {

struct ValueForm {
  // The numbers stand in keys.
  enum Kind : uint8_t {
    kText = 1,     // of any string type but the next
    kTeletex = 2,  // text in an encoding that nobody agrees about
    kOpaque = 3,   // the whole element, of which nothing is known but its octets
  };
  Kind kind = kText;
  // Why the value cannot be told from others whose form is another one. With NONE it can be told
  // from those of its kind that have none either.
  ortholan_reason doubt = ORTHOLAN_REASON_NONE;
  size_t undefined_at = 0;  // for VALUE_UNDEFINED, in the text
  uint32_t undefined = 0;   // the code point
};

// Appends the octets of the form. `type` is the attribute's.
ValueForm PutForm(ByteView type, const Element& value, MatchRule rule, PreparedText* out);

// How two values of one attribute type compare.
struct Comparison {
  ortholan_reason reason = ORTHOLAN_REASON_NONE;  // NONE where they are the same
  int32_t side = 0;                               // 1 or 2: whose value the reason is about
  size_t undefined_at = 0;
  uint32_t undefined = 0;

  bool is_same() const { return reason == ORTHOLAN_REASON_NONE; }
  bool is_different() const { return !is_same() && reason < ORTHOLAN_REASON_VALUE_TYPE; }
};
Comparison CompareForms(const ValueForm& a, const ValueForm& b, bool same_octets);

// True for values with the same octets, and for nearly all that are the same text of ASCII; false
// tells nothing.
bool ArePlainlySame(ByteView type, const Element& a, const Element& b, MatchRule rule);

// Compares two values of the type, without an allocation where their text is not long.
Comparison CompareValues(ByteView type, const Element& a, const Element& b, MatchRule rule);

// Whether values of the type are compared by ASCII case alone: domain components and e-mail
// addresses (RFC 5280 7.3 and 4.1.2.6).
bool IsCaseOnly(ByteView type);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_VALUE_FORM_H_
