// Taking BER/DER apart and putting it together (ITU-T X.690).
//
//   std::list<Ortholan::IdentObj> children;
//   DWORD status = 0;
//   DWORD used = Ortholan::ASNTGetSequence(children, data, size, &status);
//
// Where an operation takes `DWORD* status`, a pointer makes it report: the status code, 0 on
// success, is stored and nothing is thrown. Without one every failure is a thrown XZEPStatus with
// the code and the operation's name. No operation reads an octet outside the given bytes.
#ifndef ORTHOLAN_ASN1_H_
#define ORTHOLAN_ASN1_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <list>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// One scanned header. `content` points into the scanned bytes, just past the header, so the
// header's size is `content - start`.
struct ASNT_ASN_STRUCT_INFO {
  BYTE cls;             // 0x00 universal, 0x40 application, 0x80 context-specific, 0xC0 private
  BYTE constructed;     // 0x20 or 0
  DWORD tag;            // tag number
  DWORD length;         // content octets; 0xFFFFFFFF: constructed, indefinite form
  const BYTE* content;  // first content octet
};

// Holds the header of a record, the part that readers of records share.
class ORTHOLAN_EXPORT CASNTBaseRecord {
 public:
  CASNTBaseRecord() noexcept;
  CASNTBaseRecord(const CASNTBaseRecord&) noexcept;
  CASNTBaseRecord& operator=(const CASNTBaseRecord&) noexcept;
  virtual ~CASNTBaseRecord();

  // Reads the header at the front of `data` into the record, which is cleared first. Returns the
  // header's size in bytes, 0 on failure (205, 206).
  DWORD ReadASNInfo(const void* data, DWORD size, DWORD* status = nullptr);
  // The header that was read last; all zero before the first.
  const ASNT_ASN_STRUCT_INFO& GetASNInfo() const noexcept;

 private:
  ASNT_ASN_STRUCT_INFO info_;
};

// Reads the header at the front of `data` into `info`, which is cleared first. Returns 0, 205
// (tag number that never ends or passes 32 bits) or 206 (octets missing, length field of more
// than 8 octets). A primitive element in the indefinite form is accepted: its length is counted up
// to the first pair of zero octets. Whether the content lies within `data` is not checked.
ORTHOLAN_EXPORT DWORD ASNTGetStructInfo(ASNT_ASN_STRUCT_INFO& info, const void* data,
                                        DWORD size) noexcept;

// Measures content in the indefinite form that starts at `data`, its two end-of-contents octets
// included. Without them, all `size` bytes. Fails with 205 or 206.
ORTHOLAN_EXPORT DWORD ASNTGetIndefiniteLength(const void* data, DWORD size, bool constructed,
                                              DWORD* status = nullptr);

// Splits the constructed element at the front of `data` into its children, whole encodings, which
// are appended to `out`. Returns the bytes consumed. On failure (205 element not constructed or
// bad tag, 206 child outside its parent, octets missing) the children found before it stay in
// `out` and the result is the position reached.
ORTHOLAN_EXPORT DWORD ASNTGetSequence(std::list<IdentObj>& out, const void* data, DWORD size,
                                      DWORD* status = nullptr);

// Splits a run of elements without a wrapper. An element with empty content ends the run and is
// not added. Returns 0, 205 or 206; `out` is empty after a failure.
ORTHOLAN_EXPORT DWORD ASNTSplitElements(std::list<IdentObj>& out, const BYTE* data, DWORD size);

// Wraps `children`, in the order given, in a SEQUENCE (`tag` 16) or SET (17). Any other tag is 28;
// on failure with `status` the result is empty.
ORTHOLAN_EXPORT IdentObj ASNTPutSequence(const std::list<IdentObj>& children, DWORD tag,
                                         DWORD* status = nullptr);

// Writes one element: identifier from `info` (class, constructed, tag), content from the plain
// value of `size` bytes. For the universal class the value's form goes by tag:
//   1 BOOLEAN                 bytes; FF is written when any is not zero
//   2, 10 INTEGER, ENUMERATED little-endian two's complement, as the platform's integer blobs
//   6 OBJECT IDENTIFIER       dotted text
//   23, 24 times              FILETIME of 8 bytes
//   5 NULL                    nothing is read
//   3 4 12 16 17 18 19 20 22 26, and every other class: content octets as they stand
// Throws XZEPStatus(1, "ASNTPutElement") for what cannot be encoded.
ORTHOLAN_EXPORT IdentObj ASNTPutElement(const ASNT_ASN_STRUCT_INFO& info, const BYTE* value,
                                        DWORD size);

// The converse: the plain value of a scanned element, chosen by tag number alone (30, BMPString,
// is also copied). `end` is the end of the bytes that `info` was scanned from. Returns 0, 205 (no
// such tag) or 206 (content missing, malformed or passing `end`); `value` changes on success only.
ORTHOLAN_EXPORT DWORD ASNTGetElement(const ASNT_ASN_STRUCT_INFO& info, const BYTE* end,
                                     IdentObj& value);

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_ASN1_H_
