// X.509 certificate extensions (RFC 5280 4.1): one, and a list of them.
//
//   Ortholan::CertExtension extension;
//   int error = 0;
//   DWORD used = extension.ReadData(record, size, &error);
#ifndef ORTHOLAN_CERT_EXTENSION_H_
#define ORTHOLAN_CERT_EXTENSION_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>
#include <ortholan/zep_file.h>
#include <ortholan/zep_string.h>

#include <list>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// One extension, which owns its data; copies are deep.
class ORTHOLAN_EXPORT CertExtension {
 public:
  CertExtension();
  CertExtension(const CertExtension& other);
  CertExtension(CertExtension&& other) noexcept;
  // The platform's structure, copied.
  CertExtension(const CERT_EXTENSION& extension);
  CertExtension& operator=(const CertExtension& other);
  CertExtension& operator=(CertExtension&& other) noexcept;
  // The platform's structure, copied.
  CertExtension& operator=(const CERT_EXTENSION& extension);
  virtual ~CertExtension();

  // All three fields equal.
  bool operator==(const CertExtension& other) const;
  // All three fields differ: not the negation of ==.
  bool operator!=(const CertExtension& other) const;
  // All three fields less, or greater. Blobs order by size, then by unsigned bytes.
  bool operator<(const CertExtension& other) const;
  bool operator>(const CertExtension& other) const;

  // Encodes the platform structure that `structType` names into the value. False with the
  // platform's last error; the value is unchanged where it cannot be sized.
  bool EncodeData(void* structInfo, const char* structType);
  // Decodes the value into a platform structure at the front of `out`, with pointers into `out`: a
  // copy of `out` is not to be read as a structure. `out` may be the value itself.
  bool DecodeData(IdentObj& out, const char* structType);

  // Bytes of identifier and value, each as a 32-bit length and its content, and of the flag. Not
  // the size of the record.
  DWORD GetObjectSize() const;

  // The record: DER of SEQUENCE { OBJECT IDENTIFIER, BOOLEAN TRUE only where critical, OCTET
  // STRING }. `*error` is 0 or the platform's error code; without a pointer it is the last error.
  //
  // Writing to memory returns the record, empty on failure. Writing to a file, at its position,
  // returns the bytes written, 0 on failure.
  IdentObj WriteData(int* error);
  DWORD WriteData(CZEPFile& file, int* error) const;
  // Reading returns the bytes consumed, 0 on failure, and changes the extension on success alone.
  // From a file at most `size` bytes are read at its position, which moves behind the record; a
  // record that is cut short is 0x80093103 and leaves the position where it was.
  DWORD ReadData(const void* data, DWORD size, int* error);
  DWORD ReadData(const CZEPFile& file, DWORD size, int* error);

  IdentObj oid;    // characters of the dotted identifier, without a terminator
  BOOL critical;   // 0, or anything else for a critical extension
  IdentObj value;  // content of the record's OCTET STRING
};

}  // namespace Ortholan

#if defined(ORTHOLAN_EXTERN_TEMPLATES)
extern template class ORTHOLAN_EXPORT std::list<Ortholan::CertExtension>;
#endif

namespace Ortholan {

// A standard list that can be searched and updated by identifier. Update keeps identifiers unique,
// plain insertion does not.
class ORTHOLAN_EXPORT CertExtensionList : public std::list<CertExtension> {
 public:
  CertExtensionList();
  CertExtensionList(const CertExtensionList& other);
  CertExtensionList& operator=(const CertExtensionList& other);
  virtual ~CertExtensionList();

  // Copies the first extension with that identifier, matched by bytes, into `out`. Where there is
  // none, `out` keeps its flag and value and loses its identifier.
  bool FindExtension(CZEPString oid, CertExtension& out) const;
  // Replaces the first extension with that identifier in place, or appends. True where the list
  // changed.
  bool Update(const CertExtension& ext);
  // Update with each of `other`.
  void MergeLists(const CertExtensionList& other);
  // 4 and the sizes of the elements.
  DWORD GetObjectSize() const;
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_CERT_EXTENSION_H_
