// Lists of certificate extensions.
#include <ortholan/asn1.h>
#include <ortholan/zep_string.h>

#include <list>
#include <memory>

#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "capi/call.h"
#include "capi/extension_record.h"
#include "capi/handles.h"
#include "capi/text.h"
#include "foundation/blob_view.h"
#include "foundation/element_reader.h"
#include "foundation/required_text.h"

namespace Ortholan::capi {
namespace {

Outcome ReadAll(ByteView der, ortholan_extensions* extensions) {
  if (der.empty() || der[0] != kSequenceOctet) {
    return Refused(ORTHOLAN_ERROR_DER, Status::kBadTag, "the octets start with no SEQUENCE");
  }
  ElementReader reader(der);
  for (Element child; reader.Next(&child);) {
    CertExtension read;
    const Outcome outcome = ReadRecord(child.bytes, &read);
    if (!outcome) return outcome;
    extensions->list.push_back(std::move(read));
    extensions->order.push_back(&extensions->list.back());
  }
  if (reader.fault()) return Refused(ORTHOLAN_ERROR_DER, reader.fault().status);
  if (reader.position() == der.size) return Done();
  return Refused(ORTHOLAN_ERROR_DER, Status::kCorrupt, "more octets follow the extensions");
}

Outcome WriteAll(const ortholan_extensions& extensions, IdentObj* der) {
  std::list<IdentObj> records;
  for (CertExtension* extension : extensions.order) {
    records.emplace_back();
    const Outcome written = WriteRecord(extension, &records.back());
    if (!written) return written;
  }
  *der = ASNTPutSequence(records, kTagSequence);
  return Done();
}

// Room in the order comes first, so that both grow or neither does. Where the list grew, the new
// element is its last.
void Put(const CertExtension& extension, ortholan_extensions* extensions) {
  auto& order = extensions->order;
  if (order.size() == order.capacity()) order.reserve(2 * order.size() + 1);
  extensions->list.Update(extension);
  if (extensions->list.size() > order.size()) order.push_back(&extensions->list.back());
}

}  // namespace
}  // namespace Ortholan::capi

using namespace Ortholan::capi;
using Ortholan::ByteView;

ortholan_result ortholan_extensions_new(ortholan_extensions** extensions) {
  return Call(__func__, [&] {
    if (!Clear(extensions)) return NullArgument();
    *extensions = new ortholan_extensions;
    return Done();
  });
}

ortholan_result ortholan_extensions_from_der(const uint8_t* der, size_t size,
                                             ortholan_extensions** extensions) {
  return Call(__func__, [&] {
    ByteView octets;
    if (!Clear(extensions)) return NullArgument();
    Outcome outcome = ReadOctets(der, size, &octets);
    if (!outcome) return outcome;
    auto read = std::make_unique<ortholan_extensions>();
    outcome = ReadAll(octets, read.get());
    if (outcome) *extensions = read.release();
    return outcome;
  });
}

void ortholan_extensions_free(ortholan_extensions* extensions) { delete extensions; }

ortholan_result ortholan_extensions_count(const ortholan_extensions* extensions, size_t* count) {
  return Call(__func__, [&] {
    if (!Clear(count) || extensions == nullptr) return NullArgument();
    *count = extensions->order.size();
    return Done();
  });
}

ortholan_result ortholan_extensions_get(const ortholan_extensions* extensions, size_t index,
                                        ortholan_extension** extension) {
  return Call(__func__, [&] {
    if (!Clear(extension) || extensions == nullptr) return NullArgument();
    if (index >= extensions->order.size()) return NotFound();
    *extension = new ortholan_extension{*extensions->order[index]};
    return Done();
  });
}

ortholan_result ortholan_extensions_find(const ortholan_extensions* extensions, const char* oid,
                                         ortholan_extension** extension) {
  return Call(__func__, [&] {
    if (!Clear(extension) || extensions == nullptr || oid == nullptr) return NullArgument();
    auto found = std::make_unique<ortholan_extension>();
    if (!extensions->list.FindExtension(Ortholan::RequiredText(oid), found->extension)) {
      return NotFound();
    }
    *extension = found.release();
    return Done();
  });
}

ortholan_result ortholan_extensions_set(ortholan_extensions* extensions,
                                        const ortholan_extension* extension) {
  return Call(__func__, [&] {
    if (extensions == nullptr || extension == nullptr) return NullArgument();
    Put(extension->extension, extensions);
    return Done();
  });
}

ortholan_result ortholan_extensions_der(const ortholan_extensions* extensions, uint8_t** der,
                                        size_t* size) {
  return Call(__func__, [&] {
    if (!Clear(der, size) || extensions == nullptr) return NullArgument();
    Ortholan::IdentObj list;
    const Outcome written = WriteAll(*extensions, &list);
    if (written) GiveOctets(ViewOf(list), der, size);
    return written;
  });
}
