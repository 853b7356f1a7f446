#include "strict/matching/value_form.h"

#include "strict/der/known_oids.h"
#include "strict/der/string_value.h"
#include "strict/matching/folding.h"

namespace Ortholan::strict {
namespace {

void Put(ByteView octets, PreparedText* out) { WriteBytes(out->Extend(octets.size), octets); }

ValueForm Opaque(const Element& value, ortholan_reason doubt, PreparedText* out) {
  Put(value.bytes, out);
  return {ValueForm::kOpaque, doubt};
}

// Octets of ASCII's letters mean themselves in every use of the type. Control characters may switch
// to other sets, and what those beyond ASCII stand for is anybody's guess (RFC 4518 2.1).
ValueForm PutTeletex(const Element& value, PreparedText* out) {
  bool beyond = false;
  for (const uint8_t octet : value.content) {
    if ((octet & 0x7F) < ' ' || octet == 0x7F) {
      return Opaque(value, ORTHOLAN_REASON_VALUE_TELETEX, out);
    }
    beyond |= octet >= 0x80;
  }
  PutFolded(value.content, kCaseAndBlanks, out);
  if (beyond) return {ValueForm::kTeletex, ORTHOLAN_REASON_VALUE_TELETEX};
  return {ValueForm::kTeletex};
}

void PutLowerCase(ByteView text, PreparedText* out) {
  uint8_t* end = out->Extend(text.size);
  for (const uint8_t octet : text) *end++ = ToAsciiLower(octet);
}

ValueForm PutPrepared(const Element& value, ByteView text, PreparedText* out) {
  size_t at = 0;
  if (Prepare(AsText(text), out, &at)) return {};
  uint32_t scalar;
  if (ReadUtf8Scalar(text.From(at), &scalar) == 0) {
    return Opaque(value, ORTHOLAN_REASON_VALUE_TEXT, out);
  }
  ValueForm form = Opaque(value, ORTHOLAN_REASON_VALUE_UNDEFINED, out);
  form.undefined_at = at;
  form.undefined = scalar;
  return form;
}

ValueForm PutText(ByteView type, const Element& value, ByteView text, MatchRule rule,
                  PreparedText* out) {
  if (rule == MatchRule::kAsciiCase) {
    PutFolded(text, kCaseAndBlanks, out);
    return {};
  }
  if (!IsCaseOnly(type)) return PutPrepared(value, text, out);
  PutLowerCase(text, out);
  return {};
}

// Whether two values are the same text of ASCII. False where they are not, or not all of that.
bool MatchAscii(const Element& a, const Element& b, const AsciiFoldings& foldings) {
  const auto folding_of = [&foldings](uint8_t identifier) -> const Folding* {
    if (identifier == kPrintableString) return &foldings.printable;
    return identifier == kUtf8String || identifier == kIA5String ? &foldings.any : nullptr;
  };
  const Folding* const folding_a = folding_of(a.identifier);
  const Folding* const folding_b = folding_of(b.identifier);
  return folding_a != nullptr && folding_b != nullptr &&
         MatchFolded(a.content, *folding_a, b.content, *folding_b);
}

// Checked text in units of two or four octets.
void PutUtf8(const Element& value, PreparedText* out) {
  ScalarReader scalars(value.identifier, value.content);
  for (uint32_t scalar; scalars.Next(&scalar);) {
    WriteUtf8Scalar(out->Extend(Utf8Octets(scalar)), scalar);
  }
}

}  // namespace

bool IsCaseOnly(ByteView type) {
  return SameBytes(type, kDomainComponentOid.view()) || SameBytes(type, kEmailAddressOid.view());
}

ValueForm PutForm(ByteView type, const Element& value, MatchRule rule, PreparedText* out) {
  if (rule == MatchRule::kOctets) return Opaque(value, ORTHOLAN_REASON_NONE, out);
  if (!IsString(value.identifier)) return Opaque(value, ORTHOLAN_REASON_VALUE_TYPE, out);
  const bool is_prepared = rule == MatchRule::kRfc5280 && !IsCaseOnly(type);
  // Preparation finds what is no UTF-8 itself.
  if (!(is_prepared && value.identifier == kUtf8String) &&
      FindStringFault(value.identifier, value.content, true).reason != ORTHOLAN_REASON_NONE) {
    return Opaque(value, ORTHOLAN_REASON_VALUE_TEXT, out);
  }
  if (value.identifier == kTeletexString) return PutTeletex(value, out);
  if (value.identifier == kUtf8String || IsAsciiString(value.identifier)) {
    return PutText(type, value, value.content, rule, out);
  }
  PreparedText text;
  PutUtf8(value, &text);
  return PutText(type, value, {text.data(), text.size()}, rule, out);
}

Comparison CompareForms(const ValueForm& a, const ValueForm& b, bool same_octets) {
  if (a.kind == b.kind && same_octets) return {};
  if (a.doubt != ORTHOLAN_REASON_NONE) return {a.doubt, 1, a.undefined_at, a.undefined};
  if (b.doubt != ORTHOLAN_REASON_NONE) return {b.doubt, 2, b.undefined_at, b.undefined};
  if (a.kind == b.kind) return {ORTHOLAN_REASON_VALUE, 0};
  return {ORTHOLAN_REASON_VALUE_TELETEX, a.kind == ValueForm::kTeletex ? 1 : 2};
}

bool ArePlainlySame(ByteView type, const Element& a, const Element& b, MatchRule rule) {
  if (SameBytes(a.bytes, b.bytes)) return true;
  if (rule == MatchRule::kAsciiCase) return MatchAscii(a, b, kPlainAscii);
  return rule == MatchRule::kRfc5280 && !IsCaseOnly(type) && MatchAscii(a, b, kPreparedAscii);
}

Comparison CompareValues(ByteView type, const Element& a, const Element& b, MatchRule rule) {
  if (ArePlainlySame(type, a, b, rule)) return {};
  if (rule == MatchRule::kOctets) return {ORTHOLAN_REASON_VALUE, 0};
  PreparedText x;
  PreparedText y;
  const ValueForm form_a = PutForm(type, a, rule, &x);
  const ValueForm form_b = PutForm(type, b, rule, &y);
  return CompareForms(form_a, form_b, SameBytes({x.data(), x.size()}, {y.data(), y.size()}));
}

}  // namespace Ortholan::strict
