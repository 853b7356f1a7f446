// One certificate extension.
#include "bytes/byte_view.h"
#include "capi/call.h"
#include "capi/extension_record.h"
#include "capi/handles.h"
#include "capi/text.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"

namespace Ortholan::capi {

Outcome ReadRecord(ByteView der, CertExtension* extension) {
  int error = 0;
  const DWORD used = extension->ReadData(der.data, static_cast<DWORD>(der.size), &error);
  if (error != 0) {
    SetLastError(static_cast<DWORD>(error));
    return RefusedByLastError(ORTHOLAN_ERROR_DER, Status::kCorrupt);
  }
  if (used == der.size) return Done();
  return Refused(ORTHOLAN_ERROR_DER, Status::kCorrupt, "more octets follow the extension");
}

Outcome WriteRecord(CertExtension* extension, IdentObj* der) {
  int error = 0;
  *der = extension->WriteData(&error);
  if (error == 0) return Done();
  SetLastError(static_cast<DWORD>(error));
  return RefusedByLastError(ORTHOLAN_ERROR_TYPE, Status::kNotEncodable);
}

}  // namespace Ortholan::capi

using namespace Ortholan::capi;
using Ortholan::AsText;
using Ortholan::ByteView;

ortholan_result ortholan_extension_new(const char* oid, int critical, const uint8_t* value,
                                       size_t size, ortholan_extension** extension) {
  return Call(__func__, [&] {
    ByteView octets;
    if (!Clear(extension) || oid == nullptr) return NullArgument();
    Outcome outcome = ReadOctets(value, size, &octets);
    if (outcome) outcome = CheckIdentifier(oid);
    if (!outcome) return outcome;
    Ortholan::CertExtension made;
    made.oid = oid;
    made.critical = critical != 0 ? 1 : 0;
    made.value = ToBlob(octets);
    *extension = new ortholan_extension{std::move(made)};
    return outcome;
  });
}

ortholan_result ortholan_extension_from_der(const uint8_t* der, size_t size,
                                            ortholan_extension** extension) {
  return Call(__func__, [&] {
    ByteView octets;
    Ortholan::CertExtension read;
    if (!Clear(extension)) return NullArgument();
    Outcome outcome = ReadOctets(der, size, &octets);
    if (outcome) outcome = ReadRecord(octets, &read);
    if (outcome) *extension = new ortholan_extension{std::move(read)};
    return outcome;
  });
}

void ortholan_extension_free(ortholan_extension* extension) { delete extension; }

ortholan_result ortholan_extension_oid(const ortholan_extension* extension, char** oid) {
  return Call(__func__, [&] {
    if (!Clear(oid) || extension == nullptr) return NullArgument();
    GiveText(AsText(ViewOf(extension->extension.oid)), oid, nullptr);
    return Done();
  });
}

ortholan_result ortholan_extension_critical(const ortholan_extension* extension, int* critical) {
  return Call(__func__, [&] {
    if (!Clear(critical) || extension == nullptr) return NullArgument();
    *critical = extension->extension.critical != 0 ? 1 : 0;
    return Done();
  });
}

ortholan_result ortholan_extension_value(const ortholan_extension* extension, uint8_t** value,
                                         size_t* size) {
  return Call(__func__, [&] {
    if (!Clear(value, size) || extension == nullptr) return NullArgument();
    GiveOctets(ViewOf(extension->extension.value), value, size);
    return Done();
  });
}

ortholan_result ortholan_extension_der(const ortholan_extension* extension, uint8_t** der,
                                       size_t* size) {
  return Call(__func__, [&] {
    if (!Clear(der, size) || extension == nullptr) return NullArgument();
    Ortholan::IdentObj record;
    const Outcome written = WriteRecord(&extension->extension, &record);
    if (written) GiveOctets(ViewOf(record), der, size);
    return written;
  });
}
