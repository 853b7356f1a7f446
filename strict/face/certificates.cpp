// Certificates read, their extensions, lists of extensions, and PEM text.
#include <ortholan/strict/certificates.h>

#include <algorithm>

#include "strict/certificates/base64.h"
#include "strict/certificates/certificate_view.h"
#include "strict/certificates/extensions_writer.h"
#include "strict/certificates/pem.h"
#include "strict/certificates/time_text.h"
#include "strict/der/known_oids.h"
#include "strict/der/oid.h"
#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

ortholan_extension_view PublicExtension(const ExtensionView& extension) {
  return {Octets(extension.oid), Octets(extension.value), Octets(extension.bytes),
          extension.critical ? 1 : 0};
}

// Why the extension number `index` cannot be written behind those before it.
ortholan_reason FaultOf(const ortholan_extension_view* extensions, size_t index) {
  const ByteView oid = View(extensions[index].oid);
  if (!IsIdentifier(oid)) return ORTHOLAN_REASON_OID;
  const auto is_same = [oid](const ortholan_extension_view& before) {
    return SameBytes(View(before.oid), oid);
  };
  if (std::none_of(extensions, extensions + index, is_same)) return ORTHOLAN_REASON_NONE;
  return ORTHOLAN_REASON_DUPLICATE_EXTENSION;
}

}  // namespace

ortholan_reason ortholan_certificate_view_read(ortholan_octets der, int32_t mode,
                                               ortholan_certificate_view* certificate,
                                               ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (certificate == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *certificate = {};
  if (!IsGiven(der) || !IsMode(mode)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  CertificateView view;
  Refusal found;
  if (!CertificateView::Read(View(der), static_cast<Leniency>(mode), &view, &found)) {
    return Report(found, der.data, refusal);
  }
  *certificate = {static_cast<int32_t>(view.kind()),
                  der,
                  Octets(view.subject()),
                  Octets(view.issuer()),
                  Octets(view.serial()),
                  Octets(view.not_before()),
                  Octets(view.not_after()),
                  Octets(view.extensions().content()),
                  view.extensions().size()};
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_certificate_view_next_extension(
    const ortholan_certificate_view* certificate, size_t* offset,
    ortholan_extension_view* extension) {
  if (extension != nullptr) *extension = {};
  if (certificate == nullptr || offset == nullptr || extension == nullptr ||
      !IsGiven(certificate->extensions) || *offset > certificate->extensions.size) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  const ByteView rest = View(certificate->extensions).From(*offset);
  if (rest.empty()) return ORTHOLAN_REASON_NOT_FOUND;
  const ExtensionView view = ExtensionView::First(rest);
  if (view.bytes.empty()) return ORTHOLAN_REASON_ARGUMENT;
  *offset += view.bytes.size;
  *extension = PublicExtension(view);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_certificate_view_extension(const ortholan_certificate_view* certificate,
                                                    ortholan_octets oid,
                                                    ortholan_extension_view* extension,
                                                    ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (extension != nullptr) *extension = {};
  if (certificate == nullptr || extension == nullptr || !IsGiven(oid) ||
      !IsGiven(certificate->extensions)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  ExtensionView view;
  Refusal found;
  if (!ExtensionsView::FindIn(View(certificate->extensions), View(oid), &view, &found)) {
    return Report(found, certificate->der.data, refusal);
  }
  if (view.bytes.empty()) return Report(ORTHOLAN_REASON_NOT_FOUND, refusal);
  *extension = PublicExtension(view);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_extensions_view_read(ortholan_octets der, int32_t mode,
                                              ortholan_certificate_view* extensions,
                                              ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (extensions == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *extensions = {};
  if (!IsGiven(der) || !IsMode(mode)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  ExtensionsView view;
  Refusal found;
  if (!ExtensionsView::Read(View(der), static_cast<Leniency>(mode), &view, &found)) {
    return Report(found, der.data, refusal);
  }
  extensions->der = der;
  extensions->extensions = Octets(view.content());
  extensions->extension_count = view.size();
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_extensions_write(const ortholan_extension_view* extensions, size_t count,
                                          uint8_t* out, size_t room, size_t* size,
                                          ortholan_refusal* refusal) {
  Clear(size, refusal);
  if ((extensions == nullptr && count != 0) || !IsRoom(out, room)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  if (count == 0) return Report(ORTHOLAN_REASON_EMPTY, refusal);
  for (size_t i = 0; i < count; ++i) {
    if (!IsGiven(extensions[i].oid) || !IsGiven(extensions[i].value)) {
      return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
    }
    const ortholan_reason fault = FaultOf(extensions, i);
    if (fault == ORTHOLAN_REASON_NONE) continue;
    Report(fault, refusal);
    if (refusal != nullptr) refusal->met = static_cast<uint32_t>(i);
    return fault;
  }
  BackwardOutput der(out, room);
  for (size_t i = count; i-- != 0;) {
    const ortholan_extension_view& each = extensions[i];
    PutExtension({View(each.oid), View(each.value), {}, each.critical != 0}, &der);
  }
  der.PutHeader(kSequence, der.size());
  return Finish(&der, size, refusal);
}

ortholan_reason ortholan_extension_request_write(ortholan_octets extensions, uint8_t* out,
                                                 size_t room, size_t* size,
                                                 ortholan_refusal* refusal) {
  Clear(size, refusal);
  if (!IsGiven(extensions) || !IsRoom(out, room)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  ExtensionsView list;
  Refusal found;
  if (!ExtensionsView::Read(View(extensions), Leniency::kDer, &list, &found)) {
    return Report(found, extensions.data, refusal);
  }
  BackwardOutput der(out, room);
  der.Put(View(extensions));
  der.PutHeader(kSet, der.size());
  der.Put(oids::kExtensionRequest.view());
  der.PutHeader(kOid, oids::kExtensionRequest.view().size);
  der.PutHeader(kSequence, der.size());
  return Finish(&der, size, refusal);
}

ortholan_reason ortholan_time_to_text(ortholan_octets time, char* out, size_t room, size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(time) || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  Output text(out, room);
  if (!PutTimeText(View(time), &text)) return ORTHOLAN_REASON_TIME;
  return Finish(text, size);
}

ortholan_reason ortholan_pem_next(ortholan_text text, size_t* offset, ortholan_pem_block* block,
                                  ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (block != nullptr) *block = {};
  if (offset == nullptr || block == nullptr || !IsGiven(text) || *offset > text.size) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  Refusal found;
  PemReader blocks(View(text), *offset, &found);
  PemBlock next;
  if (!blocks.Next(&next)) {
    return found ? Report(found, text.data, refusal) : Report(ORTHOLAN_REASON_NOT_FOUND, refusal);
  }
  *offset = blocks.offset();
  *block = {{next.label.data(), next.label.size()}, {next.base64.data(), next.base64.size()}};
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_pem_octets(const ortholan_pem_block* block, uint8_t* out, size_t room,
                                    size_t* size) {
  Clear(size, nullptr);
  if (block == nullptr || !IsGiven(block->base64) || !IsRoom(out, room)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  Output octets(out, room);
  PutBase64Octets(View(block->base64), &octets);
  return Finish(octets, size);
}
