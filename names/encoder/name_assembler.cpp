#include "names/encoder/name_assembler.h"

#include <ortholan/status.h>

#include <limits>

#include "foundation/element_writer.h"
#include "foundation/status_code.h"
#include "names/encoder/value_type.h"

namespace Ortholan {

bool NameAssembler::EncodeElem(const AttributeRow* row, std::wstring_view value) {
  if (row == nullptr) return FailWith(Status::kNotEncodable);
  return AddPlan(row, row->rule, row->oid_der().size, value);
}

bool NameAssembler::EncodeElem(std::string_view type, std::wstring_view value) {
  if (const AttributeRow* row = FindAttribute(type)) return EncodeElem(row, value);
  SmallBuffer<BYTE, kMaxOidContent> content;
  const Status status = ParseOid(type, &content);
  if (status != Status::kOk) return FailWith(status);
  const size_t size = static_cast<size_t>(ElementSize(content.size()));
  const size_t offset = oids_.size();
  WriteBytes(WriteHeader(oids_.Extend(size), kTagOid, content.size()),
             {content.data(), content.size()});
  if (!AddPlan(nullptr, ValueRule::kFreeText, size, value)) return false;
  plans_.back().oid_offset = offset;
  return true;
}

bool NameAssembler::AddPlan(const AttributeRow* row, ValueRule rule, size_t oidSize,
                            std::wstring_view value) {
  Plan plan = {};
  plan.row = row;
  plan.oid_size = oidSize;
  plan.value.text = value;
  plan.value.lines = row != nullptr && row->lines;
  if (!DetermineTargetType(rule, value, options_, &plan.value.type)) return false;
  MeasureValue(&plan.value);
  plans_.push_back(plan);
  return true;
}

void NameAssembler::EndRdn() {
  if (plans_.empty() || plans_.back().ends_rdn) plans_.push_back(Plan{});
  plans_.back().ends_rdn = true;
}

// Octets of the attributes of the RDN that starts at plan `first`; `*next` is the next RDN's.
uint64_t NameAssembler::RdnContent(size_t first, size_t* next) const {
  uint64_t content = 0;
  size_t i = first;
  do {
    if (plans_[i].oid_size != 0) content += ElementSize(plans_[i].content());
  } while (!plans_[i++].ends_rdn);
  *next = i;
  return content;
}

bool NameAssembler::Write(IdentObj* der) {
  uint64_t content = 0;
  for (size_t i = 0; i < plans_.size();) content += ElementSize(RdnContent(i, &i));
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
  for (size_t i = 0; i < plans_.size();) {
    size_t next = i;
    out = WriteHeader(out, kSetOctet, RdnContent(i, &next));
    for (; i < next; ++i) {
      if (plans_[i].oid_size == 0) continue;
      out = WriteAttribute(plans_[i], out);
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
