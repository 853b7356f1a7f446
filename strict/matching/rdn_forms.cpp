#include "strict/matching/rdn_forms.h"

#include <algorithm>

#include "bytes/der_length.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {
namespace {

void PutWithLength(ByteView octets, PreparedText* out) {
  uint8_t* const end = out->Extend(LengthSize(octets.size) + octets.size);
  WriteBytes(WriteLength(end, octets.size), octets);
}

// A clear TeletexString is told from others of its type alone.
ortholan_reason DoubtOf(const ValueForm& form) {
  return form.kind == ValueForm::kTeletex ? ORTHOLAN_REASON_VALUE_TELETEX : form.doubt;
}

ortholan_reason PutSorted(const RdnView& rdn, MatchRule rule, PreparedText* out) {
  ortholan_reason doubt = ORTHOLAN_REASON_NONE;
  const RdnForms forms(rdn, rule);
  for (const RdnForms::Entry& entry : forms) {
    const std::string_view octets = forms.OctetsOf(entry);
    WriteBytes(out->Extend(octets.size()), AsBytes(octets.data(), octets.size()));
    if (doubt == ORTHOLAN_REASON_NONE) doubt = DoubtOf(entry.form);
  }
  return doubt;
}

}  // namespace

bool AttributeWalk::Next(Attribute* attribute) {
  AttributeView next;
  if (!NextAttribute(&rest_, &next)) return false;
  *attribute = {next.type, next.value};
  return true;
}

Attribute RdnView::At(size_t at) const {
  AttributeWalk walk(content);
  Attribute attribute;
  for (size_t i = 0; i <= at; ++i) walk.Next(&attribute);
  return attribute;
}

bool RdnWalk::NextOther(RdnView* rdn) {
  Reader rdns(rdns_, Leniency::kLenient, nullptr);
  Element element;
  if (rdns.AtEnd() || !rdns.Read(&element)) return false;
  rdns_ = rdns.rest();
  *rdn = {element.content, {}, 1, rdn_++, attribute_};
  AttributeWalk walk(element.content);
  walk.Next(&rdn->first);
  for (Attribute other; walk.Next(&other);) ++rdn->size;
  attribute_ += rdn->size;
  return true;
}

ValueForm PutAttribute(const Attribute& attribute, MatchRule rule, PreparedText* out) {
  PutWithLength(attribute.type, out);
  const size_t kind = out->size();
  out->Extend(2);
  const ValueForm form = PutForm(attribute.type, attribute.value, rule, out);
  (*out)[kind] = form.kind;
  const size_t size = out->size() - kind - 2;
  const size_t more = LengthSize(size) - 1;
  if (more != 0) {
    out->Extend(more);
    std::memmove(out->data() + kind + 2 + more, out->data() + kind + 2, size);
  }
  WriteLength(out->data() + kind + 1, size);
  return form;
}

RdnForms::RdnForms(const RdnView& rdn, MatchRule rule) {
  AttributeWalk walk(rdn.content);
  size_t index = 0;
  for (Attribute attribute; walk.Next(&attribute); ++index) {
    const size_t offset = octets_.size();
    const ValueForm form = PutAttribute(attribute, rule, &octets_);
    const size_t type_size = LengthSize(attribute.type.size) + attribute.type.size;
    entries_.push_back({offset, octets_.size() - offset, type_size, form, index});
  }
  std::sort(entries_.begin(), entries_.end(),
            [this](const Entry& a, const Entry& b) { return OctetsOf(a) < OctetsOf(b); });
}

ortholan_reason PutRdn(const RdnView& rdn, MatchRule rule, PreparedText* out) {
  if (rule == MatchRule::kOctets) {
    PutWithLength(rdn.content, out);
    return ORTHOLAN_REASON_NONE;
  }
  WriteLength(out->Extend(LengthSize(rdn.size)), rdn.size);
  return rdn.size == 1 ? DoubtOf(PutAttribute(rdn.first, rule, out)) : PutSorted(rdn, rule, out);
}

}  // namespace Ortholan::strict
