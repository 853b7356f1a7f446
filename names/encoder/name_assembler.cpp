#include "names/encoder/name_assembler.h"

#include <ortholan/status.h>

#include <limits>

#include "foundation/element_writer.h"
#include "foundation/oid_text.h"
#include "foundation/status_code.h"
#include "names/encoder/value_type.h"

namespace Ortholan {

bool NameAssembler::EncodeElem(std::string_view type, std::wstring_view value) {
  const AttributeRow* row = FindAttribute(type);
  if (row != nullptr) {
    return AddPlan(row, nullptr, value.data(), value.size(), CommonClasses(value), false);
  }
  SmallBuffer<BYTE, kMaxOidContent> content;
  const Status status = ParseOid(type, &content);
  if (status != Status::kOk) return FailWith(status);
  DWORD value_type = 0;
  if (value.empty() ||
      !DetermineTargetType(ValueRule::kFreeText, CommonClasses(value), options_, &value_type)) {
    return false;
  }
  const size_t size = static_cast<size_t>(ElementSize(content.size()));
  Plan* const plan = plans_.Extend(1);
  *plan = {nullptr, oids_.size(), size, {value, value_type, false, 0}, false};
  plan->value.size = MeasureValue(plan->value.text, value_type, false);
  WriteBytes(WriteHeader(oids_.Extend(size), kTagOid, content.size()),
             {content.data(), content.size()});
  return true;
}

// Stored member by member: what was just stored singly is slow to read back as a whole.
bool NameAssembler::AddPlan(const AttributeRow* row, const char* ascii, const wchar_t* wide,
                            size_t size, unsigned classes, bool endsRdn) {
  if (row == nullptr) return FailWith(Status::kNotEncodable);
  DWORD type = 0;
  if (size == 0 || !DetermineTargetType(row->rule, classes, options_, &type)) return false;
  Plan* const plan = plans_.Extend(1);
  plan->row = row;
  plan->oid_size = row->der.size;
  plan->ends_rdn = endsRdn;
  plan->value.text.ascii = ascii;
  plan->value.text.wide = wide;
  plan->value.text.size = size;
  plan->value.type = type;
  plan->value.lines = row->lines;
  plan->value.size = MeasureValue(plan->value.text, type, row->lines);
  return true;
}

void NameAssembler::EndRdn() {
  if (plans_.empty() || plans_.back().ends_rdn) {
    plans_.push_back({nullptr, 0, 0, {{}, 0, false, 0}, false});
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
  const uint64_t size = ElementSize(content);
  if (size > std::numeric_limits<DWORD>::max()) return FailWith(Status::kNoMemory);
  IdentObj name;
  try {
    name.Allocate(static_cast<DWORD>(size));
  } catch (const XZEPStatus&) {
    return FailWith(Status::kNoMemory);
  }
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
