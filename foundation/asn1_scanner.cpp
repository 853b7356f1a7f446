// The exported face of header reading and measuring.
#include <ortholan/asn1.h>

#include "foundation/element_header.h"
#include "foundation/report.h"

namespace Ortholan {

CASNTBaseRecord::CASNTBaseRecord() noexcept : info_{} {}
CASNTBaseRecord::CASNTBaseRecord(const CASNTBaseRecord&) noexcept = default;
CASNTBaseRecord& CASNTBaseRecord::operator=(const CASNTBaseRecord&) noexcept = default;
CASNTBaseRecord::~CASNTBaseRecord() = default;

const ASNT_ASN_STRUCT_INFO& CASNTBaseRecord::GetASNInfo() const noexcept { return info_; }

DWORD CASNTBaseRecord::ReadASNInfo(const void* data, DWORD size, DWORD* status) {
  const DWORD code = ASNTGetStructInfo(info_, data, size);
  ReportOrThrow({static_cast<Status>(code), kHeaderFault}, status);
  if (code != ToCode(Status::kOk)) return 0;
  return static_cast<DWORD>(info_.content - static_cast<const BYTE*>(data));
}

DWORD ASNTGetStructInfo(ASNT_ASN_STRUCT_INFO& info, const void* data, DWORD size) noexcept {
  ElementHeader header = {};
  const Status status = ReadHeader(AsBytes(data, size), &header);
  info = {header.cls, header.constructed, header.tag, header.length, header.content};
  return ToCode(status);
}

DWORD ASNTGetIndefiniteLength(const void* data, DWORD size, bool constructed, DWORD* status) {
  size_t length = 0;
  Fault fault = MeasureIndefinite(AsBytes(data, size), constructed, &length);
  if (data == nullptr && size != 0) fault = {Status::kCorrupt, kMeasureFault};
  ReportOrThrow(fault, status);
  return static_cast<DWORD>(length);
}

}  // namespace Ortholan
