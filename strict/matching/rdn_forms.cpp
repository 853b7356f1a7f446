#include "strict/matching/rdn_forms.h"

#include <algorithm>

#include "bytes/der_length.h"

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

bool RdnWalk::Next(RdnView* rdn) {
  if (at_ == end_) return false;
  *rdn = {at_, 0, rdn_, attribute_};
  do {
    ++rdn->size;
    ++at_;
  } while (at_ != end_ && !at_->begins_rdn);
  ++rdn_;
  attribute_ += rdn->size;
  return true;
}

ValueForm PutAttribute(const AttributeView& attribute, MatchRule rule, PreparedText* out) {
  PreparedText octets;
  const ValueForm form = PutForm(attribute.type, attribute.value, rule, &octets);
  PutWithLength(attribute.type, out);
  out->push_back(form.kind);
  PutWithLength({octets.data(), octets.size()}, out);
  return form;
}

RdnForms::RdnForms(const RdnView& rdn, MatchRule rule) {
  NameView::Iterator at = rdn.first;
  for (size_t index = 0; index < rdn.size; ++index, ++at) {
    const size_t offset = octets_.size();
    const ValueForm form = PutAttribute(*at, rule, &octets_);
    const size_t type_size = LengthSize(at->type.size) + at->type.size;
    entries_.push_back({offset, octets_.size() - offset, type_size, form, index});
  }
  std::sort(entries_.begin(), entries_.end(),
            [this](const Entry& a, const Entry& b) { return OctetsOf(a) < OctetsOf(b); });
}

ortholan_reason PutRdn(const RdnView& rdn, MatchRule rule, PreparedText* out) {
  if (rule == MatchRule::kOctets) {
    PutWithLength(rdn.first->rdn, out);
    return ORTHOLAN_REASON_NONE;
  }
  WriteLength(out->Extend(LengthSize(rdn.size)), rdn.size);
  return rdn.size == 1 ? DoubtOf(PutAttribute(*rdn.first, rule, out)) : PutSorted(rdn, rule, out);
}

}  // namespace Ortholan::strict
