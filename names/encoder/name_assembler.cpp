#include "names/encoder/name_assembler.h"

#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/oid_text.h"
#include "foundation/report.h"
#include "names/encoder/rdn_writer.h"
#include "names/encoder/string_type.h"

namespace Ortholan {

bool NameAssembler::EncodeElem(std::string_view type, const Characters& value, ValueRule rule) {
  SmallBuffer<BYTE, kMaxOidContent> content;
  const AttributeRow* row = FindAttribute(type);
  if (row == nullptr) {
    const Status status = ParseOid(type, &content);
    if (status != Status::kOk) return FailWith(status);
  }
  if (row != nullptr) rule = row->rule;
  const bool lines = row != nullptr && row->lines;
  DWORD value_type = 0;
  if (!DetermineTargetType(rule, value.size, CommonClasses(value), options_, &value_type)) {
    return false;
  }
  const uint64_t oid_size = row != nullptr ? row->der.size : ElementSize(content.size());
  Plan* const plan = plans_.Extend(1);
  plan->row = row;
  plan->oid_offset = oids_.size();
  plan->value = {value, value_type, lines, ValueContent(value, value_type, lines)};
  plan->content = oid_size + plan->value.size();
  plan->oid_size = static_cast<uint16_t>(oid_size);
  plan->ends_rdn = false;
  if (row != nullptr) return true;
  WriteBytes(WriteHeader(oids_.Extend(oid_size), kTagOid, content.size()),
             {content.data(), content.size()});
  return true;
}

void NameAssembler::EndRdn() {
  if (plans_.empty() || plans_.back().ends_rdn) {
    plans_.push_back({});
  }
  plans_.back().ends_rdn = true;
}

// Octets of the attributes of the RDN that starts at plan `first`; `*next` is the next RDN's.
uint64_t NameAssembler::RdnContent(const Plan* first, const Plan** next) const {
  uint64_t content = 0;
  const Plan* plan = first;
  do {
    if (plan->oid_size != 0) content += AttributeSize(plan->content);
  } while (!plan++->ends_rdn);
  *next = plan;
  return content;
}

bool NameAssembler::Write(IdentObj* der) {
  uint64_t content = 0;
  for (const Plan* plan = plans_.begin(); plan != plans_.end();) {
    content += RdnSize(RdnContent(plan, &plan));
  }
  IdentObj name;
  BYTE* out = nullptr;
  if (!AllocateName(content, &name, &out) || !WriteRdns(out)) return false;
  *der = std::move(name);
  return true;
}

bool NameAssembler::WriteRdns(BYTE* out) {
  for (const Plan* plan = plans_.begin(); plan != plans_.end();) {
    const Plan* next = plan;
    out = WriteRdnHeader(out, RdnContent(plan, &next));
    for (; plan != next; ++plan) {
      if (plan->oid_size == 0) continue;
      out = WriteAttribute(*plan, out);
      if (out == nullptr) return false;
    }
  }
  return true;
}

// Returns the end of what was written, null where the platform refused the value.
BYTE* NameAssembler::WriteAttribute(const Plan& plan, BYTE* out) {
  out = WriteAttributeHeader(out, plan.content);
  BYTE* const end = out + plan.content;
  const ByteView oid = plan.row != nullptr
                           ? plan.row->oid_der()
                           : ByteView(oids_.data() + plan.oid_offset, plan.oid_size);
  out = WriteBytes(out, oid);
  return EncodeElemData(plan.value, out) ? end : nullptr;
}

}  // namespace Ortholan
