#include "names/encoder/name_assembler.h"

#include <ortholan/status.h>

#include <limits>

#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/oid_text.h"
#include "foundation/status_code.h"
#include "names/encoder/value_type.h"

namespace Ortholan {

bool AllocateName(uint64_t content, IdentObj* name) {
  const uint64_t size = ElementSize(content);
  if (size > std::numeric_limits<DWORD>::max()) return FailWith(Status::kNoMemory);
  try {
    name->Allocate(static_cast<DWORD>(size));
  } catch (const XZEPStatus&) {
    return FailWith(Status::kNoMemory);
  }
  return true;
}

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
  if (value.size == 0 || !DetermineTargetType(rule, CommonClasses(value), options_, &value_type)) {
    return false;
  }
  const uint64_t size = MeasureValue(value, value_type, lines);
  const uint64_t oid_size = row != nullptr ? row->der.size : ElementSize(content.size());
  Plan* const plan = plans_.Extend(1);
  plan->row = row;
  plan->oid_offset = oids_.size();
  plan->value = {value, value_type, lines, size};
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
    if (plan->oid_size != 0) content += ElementSize(plan->content());
  } while (!plan++->ends_rdn);
  *next = plan;
  return content;
}

bool NameAssembler::Write(IdentObj* der) {
  uint64_t content = 0;
  for (const Plan* plan = plans_.begin(); plan != plans_.end();) {
    content += ElementSize(RdnContent(plan, &plan));
  }
  IdentObj name;
  if (!AllocateName(content, &name)) return false;
  if (!WriteRdns(WriteHeader(name.pbData, kSequenceOctet, content))) return false;
  *der = std::move(name);
  return true;
}

bool NameAssembler::WriteRdns(BYTE* out) {
  for (const Plan* plan = plans_.begin(); plan != plans_.end();) {
    const Plan* next = plan;
    out = WriteHeader(out, kSetOctet, RdnContent(plan, &next));
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
  out = WriteHeader(out, kSequenceOctet, plan.content());
  const ByteView oid = plan.row != nullptr
                           ? plan.row->oid_der()
                           : ByteView(oids_.data() + plan.oid_offset, plan.oid_size);
  out = WriteBytes(out, oid);
  return EncodeElemData(plan.value, out) ? out + plan.value.size : nullptr;
}

}  // namespace Ortholan
