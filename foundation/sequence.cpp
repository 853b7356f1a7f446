// The owned-copy face of the scanner: children as blobs of their own.
#include <ortholan/asn1.h>
#include <ortholan/status.h>

#include <limits>
#include <utility>

#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/blob_view.h"
#include "foundation/element_header.h"
#include "foundation/element_reader.h"
#include "foundation/report.h"

namespace Ortholan {
namespace {

constexpr const char* kPutSequence = "ASNTPutSequence";

void AppendCopy(ByteView bytes, std::list<IdentObj>* out) {
  out->emplace_back(bytes.data, static_cast<DWORD>(bytes.size));
}

IdentObj WrapChildren(const std::list<IdentObj>& children, BYTE identifier) {
  uint64_t content = 0;
  for (const IdentObj& child : children) content += child.cbData;
  const uint64_t size = ElementSize(content);
  if (size > std::numeric_limits<DWORD>::max()) {
    Throw({Status::kNoMemory, kPutSequence});
  }
  IdentObj element;
  element.Allocate(static_cast<DWORD>(size));
  BYTE* out = WriteHeader(element.pbData, identifier, content);
  for (const IdentObj& child : children) out = WriteBlob(out, child);
  return element;
}

// Size of the element at the front of `rest`, which must lie within it.
Status MeasureElement(ByteView rest, const ElementHeader& header, size_t* size) {
  *size = static_cast<size_t>(header.content - rest.data);
  size_t content = header.length;
  if (header.length == kIndefiniteLength) {
    const Fault fault = MeasureIndefinite(rest.From(*size), true, &content);
    if (fault) return fault.status;
  }
  *size += content;
  return *size <= rest.size ? Status::kOk : Status::kCorrupt;
}

Status SplitElements(ByteView rest, std::list<IdentObj>* out) {
  while (!rest.empty()) {
    ElementHeader header;
    Status status = ReadHeader(rest, &header);
    if (status != Status::kOk) return status;
    if (header.length == 0) break;
    size_t size = 0;
    status = MeasureElement(rest, header, &size);
    if (status != Status::kOk) return status;
    AppendCopy(rest.First(size), out);
    rest = rest.From(size);
  }
  return Status::kOk;
}

}  // namespace

DWORD ASNTGetSequence(std::list<IdentObj>& out, const void* data, DWORD size, DWORD* status) {
  ElementReader reader(AsBytes(data, size));
  Fault fault;
  size_t consumed = reader.position();
  try {
    for (Element child; reader.Next(&child);) {
      AppendCopy(child.bytes, &out);
      consumed = reader.position();
    }
    consumed = reader.position();
    fault = reader.fault();
  } catch (const XZEPStatus& failure) {
    if (status == nullptr) throw;
    *status = failure.GetStatus();
    return static_cast<DWORD>(consumed);
  }
  ReportOrThrow(fault, status);
  return static_cast<DWORD>(consumed);
}

DWORD ASNTSplitElements(std::list<IdentObj>& out, const BYTE* data, DWORD size) {
  // `data` may lie in an element of `out`.
  std::list<IdentObj> found;
  const bool missing = data == nullptr && size != 0;
  const Status status = missing ? Status::kCorrupt : SplitElements(AsBytes(data, size), &found);
  if (status != Status::kOk) found.clear();
  out = std::move(found);
  return ToCode(status);
}

IdentObj ASNTPutSequence(const std::list<IdentObj>& children, DWORD tag, DWORD* status) {
  if (status != nullptr) *status = ToCode(Status::kOk);
  try {
    if (tag != kTagSequence && tag != kTagSet) Throw({Status::kBadArgument, kPutSequence});
    return WrapChildren(children, static_cast<BYTE>(kConstructed | tag));
  } catch (const XZEPStatus& failure) {
    if (status == nullptr) throw;
    *status = failure.GetStatus();
    return IdentObj();
  }
}

}  // namespace Ortholan
