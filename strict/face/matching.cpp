// Names compared, keys, and the preparation of text.
#include <ortholan/strict/matching.h>

#include <new>

#include "strict/der/oid.h"
#include "strict/der/string_value.h"
#include "strict/face/call.h"
#include "strict/matching/match_key.h"
#include "strict/matching/match_names.h"
#include "strict/matching/preparation.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

struct Rule {
  MatchRule rule;
  RdnOrder order;
};

bool ReadRule(int32_t number, Rule* rule) {
  const bool any_order = (number & ORTHOLAN_MATCH_ANY_ORDER) != 0;
  const int32_t word = any_order ? number - ORTHOLAN_MATCH_ANY_ORDER : number;
  if (word < ORTHOLAN_MATCH_RFC5280 || word > ORTHOLAN_MATCH_OCTETS) return false;
  *rule = {static_cast<MatchRule>(word), any_order ? RdnOrder::kAnyOrder : RdnOrder::kAsWritten};
  return true;
}

bool ReadName(ortholan_octets der, int32_t side, NameView* name, Match* match) {
  Refusal found;
  if (NameView::Read(View(der), Leniency::kStructure, name, &found)) return true;
  *match = MakeMatch(Verdict::kCannotTell, found.reason);
  match->side = side;
  match->refusal = found.From(der.data);
  return false;
}

// Reads both names and decides.
template <class Decide>
Match Compare(ortholan_octets first, ortholan_octets second, Decide decide) {
  if (!IsGiven(first) || !IsGiven(second)) {
    return MakeMatch(Verdict::kCannotTell, ORTHOLAN_REASON_ARGUMENT);
  }
  Match match = {};
  NameView a;
  NameView b;
  if (!ReadName(first, 1, &a, &match)) return match;
  if (SameBytes(View(first), View(second))) {
    b = a;
  } else if (!ReadName(second, 2, &b, &match)) {
    return match;
  }
  try {
    return decide(a, b);
  } catch (const std::bad_alloc&) {
    return MakeMatch(Verdict::kCannotTell, ORTHOLAN_REASON_MEMORY);
  }
}

ortholan_verdict Store(const Match& found, ortholan_match* match) {
  if (match != nullptr) *match = found;
  return found.verdict;
}

// "RDN 2 (2.5.4.10) of the first name: ", as far as it is known.
void PutPlace(const ortholan_match& match, Output* out) {
  const ortholan_match_place place = match.side == 2 ? match.second : match.first;
  const bool is_unread =
      match.refusal.reason == match.reason && match.reason != ORTHOLAN_REASON_VALUE_UNDEFINED;
  if (is_unread) {
    out->Put("at offset ");
    PutDecimal(match.refusal.offset, out);
  } else if (place.rdn != ORTHOLAN_NO_PLACE) {
    out->Put("RDN ");
    PutDecimal(place.rdn + 1, out);
  } else {
    return;
  }
  if (match.type.size != 0) {
    out->Put(" (");
    if (match.type.size > kMaxIdentifierOctets || !PutIdentifierText(View(match.type), out)) {
      out->Put("an attribute type too long to be shown");
    }
    out->Put(')');
  }
  if (match.side != 0) out->Put(match.side == 1 ? " of the first name" : " of the second name");
  out->Put(": ");
}

// Refuses what preparation found undefined.
ortholan_reason ReportUndefined(std::string_view text, size_t at, ortholan_refusal* refusal) {
  uint32_t scalar = static_cast<uint8_t>(text[at]);
  const bool is_text = ReadUtf8Scalar(AsBytes(text.data() + at, text.size() - at), &scalar) != 0;
  const ortholan_reason reason =
      is_text ? ORTHOLAN_REASON_VALUE_UNDEFINED : ORTHOLAN_REASON_VALUE_TEXT;
  if (refusal != nullptr) *refusal = {reason, scalar, 0, at};
  return reason;
}

void PutCodePoint(uint32_t scalar, Output* out) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  out->Put("U+");
  for (int shift = scalar > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4) {
    if (shift != 20 || scalar >> 20 != 0) out->Put(kDigits[scalar >> shift & 0xF]);
  }
}

}  // namespace

ortholan_verdict ortholan_match_names(ortholan_octets first, ortholan_octets second, int32_t rule,
                                      ortholan_match* match) {
  Rule read;
  if (!ReadRule(rule, &read)) {
    return Store(MakeMatch(Verdict::kCannotTell, ORTHOLAN_REASON_ARGUMENT), match);
  }
  const auto decide = [read](const NameView& a, const NameView& b) {
    return MatchNames(a, b, read.rule, read.order);
  };
  return Store(Compare(first, second, decide), match);
}

ortholan_verdict ortholan_name_within(ortholan_octets subtree, ortholan_octets name, int32_t rule,
                                      ortholan_match* match) {
  Rule read;
  if (!ReadRule(rule, &read) || read.order == RdnOrder::kAnyOrder) {
    return Store(MakeMatch(Verdict::kCannotTell, ORTHOLAN_REASON_ARGUMENT), match);
  }
  const auto decide = [read](const NameView& a, const NameView& b) {
    return MatchWithin(a, b, read.rule);
  };
  return Store(Compare(subtree, name, decide), match);
}

ortholan_reason ortholan_match_sentence(const ortholan_match* match, char* out, size_t room,
                                        size_t* size) {
  if (match == nullptr || (out == nullptr && room != 0)) return ORTHOLAN_REASON_ARGUMENT;
  Output text(out, room);
  if (match->reason == ORTHOLAN_REASON_NONE) {
    text.Put("the names match");
    return Finish(text, size);
  }
  PutPlace(*match, &text);
  text.Put(SentenceOf(match->reason));
  if (match->reason == ORTHOLAN_REASON_VALUE_UNDEFINED && match->refusal.met != 0) {
    text.Put(": ");
    PutCodePoint(match->refusal.met, &text);
  }
  return Finish(text, size);
}

ortholan_reason ortholan_match_key(ortholan_octets name, int32_t rule, uint8_t* out, size_t room,
                                   size_t* size, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (size != nullptr) *size = 0;
  Rule read;
  if (!IsGiven(name) || !ReadRule(rule, &read) || (out == nullptr && room != 0)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  NameView view;
  Refusal found;
  if (!NameView::Read(View(name), Leniency::kStructure, &view, &found)) {
    return Report(found, name.data, refusal);
  }
  try {
    PreparedText key;
    PutMatchKey(view, read.rule, read.order, &key);
    Output text(out, room);
    text.Put(ByteView{key.data(), key.size()});
    return Finish(text, size);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
}

uint64_t ortholan_match_hash(ortholan_octets key) { return HashOf(View(key)); }

ortholan_reason ortholan_prepare_text(ortholan_text text, char* out, size_t room, size_t* size,
                                      ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (size != nullptr) *size = 0;
  if (!IsGiven(text) || (out == nullptr && room != 0)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  try {
    PreparedText prepared;
    size_t at = 0;
    if (!Prepare(View(text), &prepared, &at)) return ReportUndefined(View(text), at, refusal);
    Output result(out, room);
    result.Put(ByteView{prepared.data(), prepared.size()});
    return Finish(result, size);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
}
