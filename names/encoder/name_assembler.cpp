#include "names/encoder/name_assembler.h"

#include <ortholan/status.h>

#include <limits>

#include "foundation/element_writer.h"
#include "foundation/oid_text.h"
#include "foundation/status_code.h"
#include "names/encoder/value_type.h"

namespace Ortholan {

bool NameAssembler::EncodeElem(const AttributeRow* row, std::wstring_view value,
                               unsigned classes) {
  if (row == nullptr) return FailWith(Status::kNotEncodable);
  return AddPlan(row, row->der.size, value, classes);
}

bool NameAssembler::EncodeElem(std::string_view type, std::wstring_view value) {
  const unsigned classes = CommonClasses(value);
  if (const AttributeRow* row = FindAttribute(type)) return EncodeElem(row, value, classes);
  SmallBuffer<BYTE, kMaxOidContent> content;
  const Status status = ParseOid(type, &content);
  if (status != Status::kOk) return FailWith(status);
  const size_t size = static_cast<size_t>(ElementSize(content.size()));
  const size_t offset = oids_.size();
  WriteBytes(WriteHeader(oids_.Extend(size), kTagOid, content.size()),
             {content.data(), content.size()});
  if (!AddPlan(nullptr, size, value, classes)) return false;
  plans_.back().oid_offset = offset;
  return true;
}

bool NameAssembler::AddPlan(const AttributeRow* row, size_t oidSize, std::wstring_view value,
                            unsigned classes) {
  const ValueRule rule = row != nullptr ? row->rule : ValueRule::kFreeText;
  const bool lines = row != nullptr && row->lines;
  DWORD type = 0;
  if (value.empty() || !DetermineTargetType(rule, classes, options_, &type)) return false;
  const uint64_t size = MeasureValue(value, type, lines);
  *plans_.Extend(1) = {row, 0, oidSize, {value, type, lines, size}, false};
  return true;
}

void NameAssembler::EndRdn() {
  if (plans_.empty() || plans_.back().ends_rdn) plans_.push_back(Plan{});
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
  return values_.EncodeElemData(plan.value, out) ? out + plan.value.size : nullptr;
}

}  // namespace Ortholan
