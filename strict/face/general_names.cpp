// General names read, taken apart, and as text.
#include <ortholan/strict/general_names.h>

#include <algorithm>
#include <new>

#include "strict/certificates/extensions_writer.h"
#include "strict/der/known_oids.h"
#include "strict/face/call.h"
#include "strict/general_names/edi_party.h"
#include "strict/general_names/general_name_to_text.h"
#include "strict/general_names/general_name_view.h"
#include "strict/general_names/host.h"
#include "strict/general_names/ip_address.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/other_name.h"
#include "strict/general_names/text_to_general_name.h"
#include "strict/general_names/uri.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

ortholan_text Text(std::string_view text) { return {text.data(), text.size()}; }

// Begins a call that reads `in` into `*out`: outputs are cleared, arguments checked.
template <class Input, class Value>
ortholan_reason BeginRead(Input in, Value* out, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (out != nullptr) *out = {};
  if (out != nullptr && IsGiven(in)) return ORTHOLAN_REASON_NONE;
  return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
}

ortholan_general_name_view PublicName(const GeneralNameView& name) {
  const bool is_other = name.kind == GeneralNameKind::kOther;
  const OtherNameKind other =
      is_other ? KindOfOtherName(OtherNameView(name.content).type) : OtherNameKind::kUnknown;
  return {static_cast<int32_t>(name.kind), static_cast<int32_t>(other), Octets(name.bytes),
          Octets(name.content)};
}

// The content of a name of one kind, where it is one.
ortholan_reason ContentOf(const ortholan_general_name_view* name, int32_t kind, ByteView* content) {
  if (name == nullptr || name->kind != kind || !IsGiven(name->content)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  *content = View(name->content);
  return ORTHOLAN_REASON_NONE;
}

bool IsForm(int32_t form) {
  return form >= ORTHOLAN_ALTERNATIVE_NAMES_VALUE && form <= ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION;
}

}  // namespace

ortholan_reason ortholan_general_names_view_read(ortholan_octets der, int32_t mode,
                                                 ortholan_general_names_view* names,
                                                 ortholan_refusal* refusal) {
  const ortholan_reason fault = BeginRead(der, names, refusal);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  if (!IsMode(mode)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  GeneralNamesView view;
  Refusal found;
  if (!GeneralNamesView::Read(View(der), static_cast<Leniency>(mode), &view, &found)) {
    return Report(found, der.data, refusal);
  }
  *names = {der, Octets(view.content()), view.size()};
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_general_names_view_next(const ortholan_general_names_view* names,
                                                 size_t* offset, ortholan_general_name_view* name) {
  if (name != nullptr) *name = {};
  if (names == nullptr || offset == nullptr || name == nullptr || !IsGiven(names->names) ||
      *offset > names->names.size) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  if (*offset == names->names.size) return ORTHOLAN_REASON_NOT_FOUND;
  Reader list(View(names->names).From(*offset), Leniency::kLenient, nullptr);
  Element element;
  GeneralNameView view;
  if (!list.Read(&element)) return ORTHOLAN_REASON_ARGUMENT;
  *offset += element.bytes.size;
  if (!GeneralNameView::FromElement(element, &view)) return ORTHOLAN_REASON_GENERAL_NAME;
  *name = PublicName(view);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_general_name_view_read(ortholan_octets der, int32_t mode,
                                                ortholan_general_name_view* name,
                                                ortholan_refusal* refusal) {
  const ortholan_reason fault = BeginRead(der, name, refusal);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  if (!IsMode(mode)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  const auto leniency = static_cast<Leniency>(mode);
  GeneralNameView view;
  Refusal found;
  Reader list(View(der), leniency, &found);
  if (!GeneralNameView::Read(&list, &view) || !list.End() ||
      (leniency != Leniency::kStructure && !view.Check(leniency, false, &found))) {
    return Report(found, der.data, refusal);
  }
  *name = PublicName(view);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_mailbox_read(ortholan_text text, int32_t has_utf8,
                                      ortholan_mailbox* mailbox, ortholan_refusal* refusal) {
  const ortholan_reason fault = BeginRead(text, mailbox, refusal);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  Mailbox read;
  Refusal found;
  if (!Mailbox::Read(View(text), has_utf8 != 0 ? Mailbox::kUtf8 : Mailbox::kAscii, &read, &found)) {
    return Report(found, text.data, refusal);
  }
  *mailbox = {Text(read.local), Text(read.host), {}, read.address.size, read.is_ascii ? 1 : 0};
  std::copy_n(read.address.octets, read.address.size, mailbox->address);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_uri_read(ortholan_text text, ortholan_uri* uri,
                                  ortholan_refusal* refusal) {
  const ortholan_reason fault = BeginRead(text, uri, refusal);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  Uri read;
  Refusal found;
  if (!Uri::Read(View(text), &read, &found)) return Report(found, text.data, refusal);
  *uri = {Text(read.scheme), Text(read.userinfo),       Text(read.host),
          Text(read.port),   Text(read.rest),           {},
          read.address.size, read.has_authority ? 1 : 0};
  std::copy_n(read.address.octets, read.address.size, uri->address);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_other_name_read(const ortholan_general_name_view* name,
                                         ortholan_other_name* other, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (other == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *other = {};
  ByteView content;
  const ortholan_reason fault = ContentOf(name, ORTHOLAN_NAME_OTHER, &content);
  if (fault != ORTHOLAN_REASON_NONE) return Report(fault, refusal);
  OtherName read;
  Refusal found;
  if (!OtherName::Read(content, Leniency::kDer, &read, &found)) {
    return Report(found, name->bytes.data, refusal);
  }
  *other = {static_cast<int32_t>(read.kind),
            read.value.identifier,
            Octets(read.type),
            Octets(read.value.bytes),
            Text(read.text),
            Octets(read.oid),
            Octets(read.octets),
            Octets(read.components)};
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_edi_party_read(const ortholan_general_name_view* name,
                                        ortholan_edi_party* party, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (party == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *party = {};
  ByteView content;
  const ortholan_reason fault = ContentOf(name, ORTHOLAN_NAME_EDI_PARTY, &content);
  if (fault != ORTHOLAN_REASON_NONE) return Report(fault, refusal);
  EdiParty read;
  Refusal found;
  if (!EdiParty::Read(content, Leniency::kDer, &read, &found)) {
    return Report(found, name->bytes.data, refusal);
  }
  *party = {Octets(read.assigner.bytes), Octets(read.party.bytes)};
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_host_check(ortholan_text host, uint32_t choices,
                                    ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (!IsGiven(host)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  Refusal found;
  const bool is_host = (choices & ORTHOLAN_HOST_WILDCARD) != 0
                           ? CheckHostPattern(View(host), choices, &found)
                           : CheckHost(View(host), choices, &found);
  return is_host ? ORTHOLAN_REASON_NONE : Report(found, host.data, refusal);
}

ortholan_reason ortholan_address_to_text(ortholan_octets address, char* out, size_t room,
                                         size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(address) || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  Output text(out, room);
  if (!PutIpName(View(address), &text)) return ORTHOLAN_REASON_ADDRESS_SIZE;
  return Finish(text, size);
}

ortholan_reason ortholan_address_from_text(ortholan_text text, uint8_t* out, size_t room,
                                           size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(text) || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  IpAddress address;
  if (!ReadIpAddress(View(text), &address) && !ReadIpRange(View(text), &address)) {
    return ORTHOLAN_REASON_ADDRESS_TEXT;
  }
  Output octets(out, room);
  octets.Put(address.view());
  return Finish(octets, size);
}

ortholan_reason ortholan_general_name_to_text(ortholan_octets name, char* out, size_t room,
                                              size_t* size, ortholan_refusal* refusal) {
  Clear(size, refusal);
  if (!IsGiven(name) || !IsRoom(out, room)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  Refusal found;
  Reader list(View(name), Leniency::kLenient, &found);
  Element element;
  GeneralNameView view;
  if (!list.Read(&element) || !list.End()) return Report(found, name.data, refusal);
  if (!GeneralNameView::FromElement(element, &view)) {
    Refuse(&found, ORTHOLAN_REASON_GENERAL_NAME, name.data, name.size);
    return Report(found, name.data, refusal);
  }
  Output text(out, room);
  try {
    PutTextOfGeneralName(view, &text);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  return Finish(text, size, refusal);
}

ortholan_reason ortholan_general_name_from_text(ortholan_text text, int32_t allows_range,
                                                uint8_t* out, size_t room, size_t* size,
                                                ortholan_refusal* refusal) {
  Clear(size, refusal);
  if (!IsGiven(text) || !IsRoom(out, room)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  BackwardOutput der(out, room);
  Refusal found;
  try {
    if (!PutGeneralNameOfText(View(text), allows_range != 0, &der, &found)) {
      return Report(found, text.data, refusal);
    }
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  return Finish(&der, size, refusal);
}

ortholan_reason ortholan_alternative_names_from_text(const ortholan_text* texts, size_t count,
                                                     int32_t form, uint8_t* out, size_t room,
                                                     size_t* size, size_t* wrong,
                                                     ortholan_refusal* refusal) {
  Clear(size, refusal);
  size_t number = 0;
  if (wrong != nullptr) *wrong = 0;
  if ((texts == nullptr && count != 0) || !IsRoom(out, room) || !IsForm(form) ||
      !std::all_of(texts, texts + count, [](const ortholan_text& text) { return IsGiven(text); })) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  BackwardOutput der(out, room);
  Refusal found;
  try {
    if (!PutGeneralNamesOfTexts(texts, count, &der, &number, &found)) {
      if (wrong != nullptr) *wrong = number;
      return Report(found, number < count ? texts[number].data : nullptr, refusal);
    }
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  if (form != ORTHOLAN_ALTERNATIVE_NAMES_VALUE) {
    PutExtensionAround(kAlternativeNamesOid.view(), form == ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL,
                       der.size(), &der);
  }
  return Finish(&der, size, refusal);
}
