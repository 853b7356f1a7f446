// General names, one and a sequence of them.
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "capi/call.h"
#include "capi/handles.h"
#include "capi/text.h"
#include "foundation/blob_view.h"
#include "foundation/element_reader.h"

namespace Ortholan::capi {
namespace {

static_assert(uint32_t{otherName} == ORTHOLAN_OTHER_NAME);
static_assert(uint32_t{rfc822Name} == ORTHOLAN_RFC822_NAME);
static_assert(uint32_t{dNSName} == ORTHOLAN_DNS_NAME);
static_assert(uint32_t{x400Address} == ORTHOLAN_X400_ADDRESS);
static_assert(uint32_t{directoryName} == ORTHOLAN_DIRECTORY_NAME);
static_assert(uint32_t{ediPartyName} == ORTHOLAN_EDI_PARTY_NAME);
static_assert(uint32_t{uniformResourceIdentifier} == ORTHOLAN_URI);
static_assert(uint32_t{iPAddress} == ORTHOLAN_IP_ADDRESS);
static_assert(uint32_t{registeredID} == ORTHOLAN_REGISTERED_ID);

// The content of the one element that the octets have to be.
Status ContentOf(ByteView der, ByteView* content) {
  ElementHeader header;
  const Status status = ReadHeader(der, &header);
  if (status != Status::kOk) return status;
  const Status bounded = BoundedContent(header, der.end(), content);
  if (bounded != Status::kOk) return bounded;
  return content->end() == der.end() ? Status::kOk : Status::kCorrupt;
}

Outcome Read(ByteView der, GeneralName* name) {
  ByteView content;
  const Status status = ContentOf(der, &content);
  if (status != Status::kOk) return Refused(ORTHOLAN_ERROR_DER, status);
  *name = GeneralName::DerDecode(ToBlob(der));
  return Done();
}

Outcome ReadAll(ByteView der, std::vector<GeneralName>* names) {
  if (der.empty() || der[0] != kSequenceOctet) {
    return Refused(ORTHOLAN_ERROR_DER, Status::kBadTag, "the octets start with no SEQUENCE");
  }
  ElementReader reader(der);
  for (Element child; reader.Next(&child);) {
    names->emplace_back();
    const Outcome read = Read(child.bytes, &names->back());
    if (!read) return read;
  }
  if (reader.fault()) return Refused(ORTHOLAN_ERROR_DER, reader.fault().status);
  if (reader.position() == der.size) return Done();
  return Refused(ORTHOLAN_ERROR_DER, Status::kCorrupt, "more octets follow the names");
}

}  // namespace
}  // namespace Ortholan::capi

using namespace Ortholan::capi;
using Ortholan::ByteView;
using Ortholan::GeneralName;
using Ortholan::Status;

ortholan_result ortholan_general_name_from_der(const uint8_t* der, size_t size,
                                               ortholan_general_name** name) {
  return Call(__func__, [&] {
    ByteView octets;
    GeneralName read;
    if (!Clear(name)) return NullArgument();
    Outcome outcome = ReadOctets(der, size, &octets);
    if (outcome) outcome = Read(octets, &read);
    if (outcome) *name = new ortholan_general_name{std::move(read)};
    return outcome;
  });
}

void ortholan_general_name_free(ortholan_general_name* name) { delete name; }

ortholan_result ortholan_general_name_kind(const ortholan_general_name* name, uint32_t* kind) {
  return Call(__func__, [&] {
    if (!Clear(kind) || name == nullptr) return NullArgument();
    *kind = name->name.GetTag();
    return Done();
  });
}

ortholan_result ortholan_general_name_text(const ortholan_general_name* name, char** text,
                                           size_t* size) {
  return Call(__func__, [&] {
    Clear(size);
    if (!Clear(text) || name == nullptr) return NullArgument();
    return GiveWideText(name->name.ToString(0, 0), text, size);
  });
}

ortholan_result ortholan_general_name_value(const ortholan_general_name* name, uint8_t** value,
                                            size_t* size) {
  return Call(__func__, [&] {
    if (!Clear(value, size) || name == nullptr) return NullArgument();
    ByteView content;
    const Status status = ContentOf(ViewOf(name->name.GetContent()), &content);
    if (status != Status::kOk) return Refused(ORTHOLAN_ERROR_DER, status);
    GiveOctets(content, value, size);
    return Done();
  });
}

ortholan_result ortholan_general_name_der(const ortholan_general_name* name, uint8_t** der,
                                          size_t* size) {
  return Call(__func__, [&] {
    if (!Clear(der, size) || name == nullptr) return NullArgument();
    GiveOctets(ViewOf(name->name.GetContent()), der, size);
    return Done();
  });
}

ortholan_result ortholan_general_names_from_der(const uint8_t* der, size_t size,
                                                ortholan_general_names** names) {
  return Call(__func__, [&] {
    ByteView octets;
    std::vector<GeneralName> read;
    if (!Clear(names)) return NullArgument();
    Outcome outcome = ReadOctets(der, size, &octets);
    if (outcome) outcome = ReadAll(octets, &read);
    if (outcome) *names = new ortholan_general_names{std::move(read)};
    return outcome;
  });
}

void ortholan_general_names_free(ortholan_general_names* names) { delete names; }

ortholan_result ortholan_general_names_count(const ortholan_general_names* names, size_t* count) {
  return Call(__func__, [&] {
    if (!Clear(count) || names == nullptr) return NullArgument();
    *count = names->names.size();
    return Done();
  });
}

ortholan_result ortholan_general_names_get(const ortholan_general_names* names, size_t index,
                                           ortholan_general_name** name) {
  return Call(__func__, [&] {
    if (!Clear(name) || names == nullptr) return NullArgument();
    if (index >= names->names.size()) return NotFound();
    *name = new ortholan_general_name{names->names[index]};
    return Done();
  });
}
