// The DER record of an extension (RFC 5280 4.1), in memory and in files.
#include <ortholan/cert_extension.h>
#include <ortholan/status.h>

#include <algorithm>
#include <limits>

#include "bytes/byte_view.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/element_reader.h"
#include "foundation/oid_text.h"
#include "foundation/status_code.h"

namespace Ortholan {
namespace {

constexpr BYTE kCriticalElement[] = {kTagBoolean, 1, 0xFF};
constexpr size_t kMaxChildren = 3;
// Enough for the header of any record but one with a padded tag number.
constexpr DWORD kHeaderRead = 64;
constexpr DWORD kReadOn = 8;  // times as much where it was not enough

// Tells the caller how it went: where it asked, or in the last error.
void ReportCode(DWORD code, int* error) {
  if (error != nullptr) {
    *error = static_cast<int>(code);
  } else {
    SetLastError(code);
  }
}

DWORD WinErrorOf(Status status) {
  return status == Status::kOk ? ERROR_SUCCESS : ASNTStatusToWinError(ToCode(status));
}

// The text ends at its first NUL, which is looked for only where the whole is no identifier.
Status ReadIdentifier(std::string_view text, SmallBuffer<BYTE, kMaxOidContent>* content) {
  const Status status = ParseOid(text, content);
  if (status == Status::kOk) return status;
  const size_t end = text.find('\0');
  return end != text.npos ? ParseOid(text.substr(0, end), content) : status;
}

// Leaves `record` as it is on failure.
Status WriteRecord(const CertExtension& extension, IdentObj* record) {
  SmallBuffer<BYTE, kMaxOidContent> oid;
  const Status status = ReadIdentifier(AsText(ViewOf(extension.oid)), &oid);
  if (status != Status::kOk) return status;
  const ByteView critical(kCriticalElement,
                          extension.critical != 0 ? std::size(kCriticalElement) : 0);
  const IdentObj& value = extension.value;
  const uint64_t content = ElementSize(oid.size()) + critical.size + ElementSize(value.cbData);
  const uint64_t size = ElementSize(content);
  if (size > std::numeric_limits<DWORD>::max()) return Status::kNoMemory;
  record->Allocate(static_cast<DWORD>(size));
  BYTE* out = WriteHeader(record->pbData, kSequenceOctet, content);
  out = WriteBytes(WriteHeader(out, kTagOid, oid.size()), {oid.data(), oid.size()});
  out = WriteBytes(out, critical);
  WriteBlob(WriteHeader(out, kTagOctetString, value.cbData), value);
  return Status::kOk;
}

DWORD Encode(const CertExtension& extension, IdentObj* record) {
  try {
    return WinErrorOf(WriteRecord(extension, record));
  } catch (const XZEPStatus& failure) {
    return ASNTStatusToWinError(failure.GetStatus());
  }
}

// Content of a child, read from the child's own bytes.
Status ContentOf(const Element& child, ByteView* content) {
  ElementHeader header;
  const Status status = ReadHeader(child.bytes, &header);
  if (status != Status::kOk) return Status::kCorrupt;
  return BoundedContent(header, child.bytes.end(), content);
}

Status ReadOid(const Element& child, IdentObj* oid) {
  ByteView content;
  OidText text;
  if (child.bytes[0] != kTagOid) return Status::kCorrupt;
  if (ContentOf(child, &content) != Status::kOk) return Status::kCorrupt;
  if (FormatOid(content, &text) != Status::kOk) return Status::kCorrupt;
  oid->Assign(text.data(), static_cast<DWORD>(text.size()));
  return Status::kOk;
}

// Any octet that is not zero makes the flag 1.
Status ReadFlag(const Element& child, BOOL* flag) {
  ByteView content;
  if (child.bytes[0] != kTagBoolean) return Status::kCorrupt;
  if (ContentOf(child, &content) != Status::kOk || content.empty()) return Status::kCorrupt;
  *flag = std::any_of(content.begin(), content.end(), [](BYTE b) { return b != 0; });
  return Status::kOk;
}

Status ReadRecord(ByteView bytes, CertExtension* extension, size_t* consumed) {
  Element children[kMaxChildren];
  size_t count = 0;
  ElementReader reader(bytes);
  for (Element child; reader.Next(&child); ++count) {
    if (count < kMaxChildren) children[count] = child;
  }
  if (reader.fault()) return reader.fault().status;
  if (count < kMaxChildren - 1 || count > kMaxChildren) return Status::kCorrupt;
  Status status = ReadOid(children[0], &extension->oid);
  if (status != Status::kOk) return status;
  if (count == kMaxChildren) {
    status = ReadFlag(children[1], &extension->critical);
    if (status != Status::kOk) return status;
  }
  ByteView content;
  status = ContentOf(children[count - 1], &content);
  if (status != Status::kOk) return status;
  extension->value.Assign(content.data, static_cast<DWORD>(content.size));
  *consumed = reader.position();
  return Status::kOk;
}

DWORD Decode(ByteView bytes, CertExtension* extension, size_t* consumed) {
  if (bytes.empty()) return WinErrorOf(Status::kCorrupt);
  try {
    return WinErrorOf(ReadRecord(bytes, extension, consumed));
  } catch (const XZEPStatus& failure) {
    return ASNTStatusToWinError(failure.GetStatus());
  }
}

// Whether the bytes at the front of a record tell how many it has: its header does, or, in the
// indefinite form, the record is whole.
bool TellSize(ByteView front, uint64_t* size) {
  ElementHeader header;
  if (ReadHeader(front, &header) != Status::kOk) return false;
  *size = static_cast<uint64_t>(header.content - front.data) + header.length;
  if (!header.indefinite) return true;
  ElementReader reader(front);
  for (Element child; reader.Next(&child);) continue;
  *size = reader.position();
  return !reader.fault();
}

// Reads on until `record` holds `size` bytes. The platform's error code, 0 on success.
DWORD ReadUpTo(const CZEPFile& file, DWORD size, IdentObj* record) {
  const DWORD before = record->cbData;
  DWORD read = 0;
  record->Resize(size);
  if (!file.Read(record->pbData + before, size - before, &read)) return GetLastError();
  return read == size - before ? ERROR_SUCCESS : WinErrorOf(Status::kCorrupt);
}

// Reads the bytes of the record at the file's position, and no more than a few times as many where
// its header does not tell. The platform's error code, 0 on success.
DWORD ReadRecordBytes(const CZEPFile& file, uint64_t position, DWORD limit, IdentObj* record) {
  uint64_t end = 0;
  if (!file.GetSize(&end)) return GetLastError();
  const uint64_t available = end > position ? std::min<uint64_t>(limit, end - position) : 0;
  uint64_t size = 0;
  for (uint64_t tried = kHeaderRead;; tried *= kReadOn) {
    const uint64_t wanted = std::min(tried, available);
    const DWORD code = ReadUpTo(file, static_cast<DWORD>(wanted), record);
    if (code != ERROR_SUCCESS) return code;
    if (TellSize(ViewOf(*record), &size)) break;
    // What cannot be read is told by whoever decodes it.
    if (wanted == available) return ERROR_SUCCESS;
  }
  if (size > available) return WinErrorOf(Status::kCorrupt);
  return size > record->cbData ? ReadUpTo(file, static_cast<DWORD>(size), record) : ERROR_SUCCESS;
}

DWORD DecodeFrom(const CZEPFile& file, uint64_t position, DWORD limit, CertExtension* extension,
                 size_t* consumed) {
  IdentObj record;
  try {
    const DWORD code = ReadRecordBytes(file, position, limit, &record);
    if (code != ERROR_SUCCESS) return code;
  } catch (const XZEPStatus& failure) {
    return ASNTStatusToWinError(failure.GetStatus());
  }
  const DWORD code = Decode(ViewOf(record), extension, consumed);
  if (code != ERROR_SUCCESS) return code;
  return file.Seek(position + *consumed) ? ERROR_SUCCESS : GetLastError();
}

}  // namespace

IdentObj CertExtension::WriteData(int* error) {
  IdentObj record;
  ReportCode(Encode(*this, &record), error);
  return record;
}

DWORD CertExtension::WriteData(CZEPFile& file, int* error) const {
  IdentObj record;
  DWORD code = Encode(*this, &record);
  uint64_t position = 0;
  if (code == ERROR_SUCCESS && !file.GetPosition(&position)) code = GetLastError();
  if (code == ERROR_SUCCESS && !file.Write(record.pbData, record.cbData)) {
    code = GetLastError();
    // Half a record is written over by the next one.
    file.Seek(position);
  }
  ReportCode(code, error);
  return code == ERROR_SUCCESS ? record.cbData : 0;
}

DWORD CertExtension::ReadData(const void* data, DWORD size, int* error) {
  CertExtension read;
  size_t consumed = 0;
  const DWORD code = Decode(AsBytes(data, size), &read, &consumed);
  if (code == ERROR_SUCCESS) *this = std::move(read);
  ReportCode(code, error);
  return code == ERROR_SUCCESS ? static_cast<DWORD>(consumed) : 0;
}

DWORD CertExtension::ReadData(const CZEPFile& file, DWORD size, int* error) {
  CertExtension read;
  size_t consumed = 0;
  uint64_t position = 0;
  DWORD code = ERROR_SUCCESS;
  if (!file.GetPosition(&position)) {
    code = GetLastError();
  } else {
    code = DecodeFrom(file, position, size, &read, &consumed);
    if (code == ERROR_SUCCESS) {
      *this = std::move(read);
    } else {
      file.Seek(position);
    }
  }
  ReportCode(code, error);
  return code == ERROR_SUCCESS ? static_cast<DWORD>(consumed) : 0;
}

}  // namespace Ortholan
