#include "strict/general_names/other_name.h"

#include "bytes/oid_constant.h"
#include "strict/der/integer.h"
#include "strict/der/oid.h"
#include "strict/der/reader.h"
#include "strict/general_names/guid.h"
#include "strict/general_names/host.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/name_characters.h"
#include "strict/general_names/service_name.h"

namespace Ortholan::strict {
namespace {

bool RefuseIn(Reader* reader, ByteView whole, size_t at, ortholan_reason reason) {
  return Refuse(reader->refusal(), reason, whole.data + at, whole.size - at);
}

// Characters of a string type, none of them a control.
bool ReadText(Reader* reader, uint8_t identifier, std::string_view* text) {
  Element element;
  if (!reader->Read(identifier, &element)) return false;
  const uint8_t type = identifier == kGeneralString ? uint8_t{kIA5String} : identifier;
  const StringFault fault = FindNameFault(type, element.content);
  if (fault.reason != ORTHOLAN_REASON_NONE) {
    return RefuseIn(reader, element.content, fault.offset, fault.reason);
  }
  *text = AsText(element.content);
  return true;
}

template <uint8_t kIdentifier>
bool ReadString(Reader* value, OtherName* name) {
  return ReadText(value, kIdentifier, &name->text);
}

bool ReadOid(Reader* fields, ByteView* oid) {
  if (!fields->Read(kOid, oid)) return false;
  return IsIdentifier(*oid) || fields->RefuseAt(ORTHOLAN_REASON_OID, oid->data);
}

// An element inside an explicit tag.
bool ReadTagged(Reader* fields, uint8_t number, uint8_t identifier, ByteView* content) {
  ByteView tagged;
  if (!fields->Read(ContextConstructed(number), &tagged)) return false;
  Reader inside(tagged, fields->leniency(), fields->refusal());
  return inside.Read(identifier, content) && inside.End();
}

// An Int32 of RFC 4120 5.2.4.
bool CheckInt32(ByteView content, Reader* reader) {
  return (IsMinimalInteger(content) && content.size <= sizeof(int32_t)) ||
         RefuseIn(reader, content, 0, ORTHOLAN_REASON_INTEGER);
}

bool ReadPrincipal(ByteView content, Reader* outer, OtherName* name) {
  Reader fields(content, outer->leniency(), outer->refusal());
  if (!ReadTagged(&fields, 0, kInteger, &name->name_type) || !CheckInt32(name->name_type, outer) ||
      !ReadTagged(&fields, 1, kSequence, &name->components) || !fields.End()) {
    return false;
  }
  Reader strings(name->components, outer->leniency(), outer->refusal());
  if (strings.AtEnd()) return strings.RefuseHere(ORTHOLAN_REASON_EMPTY);
  std::string_view component;
  while (!strings.AtEnd()) {
    if (!ReadText(&strings, kGeneralString, &component)) return false;
  }
  return true;
}

// RFC 4556 3.2.2.
bool ReadKerberos(Reader* value, OtherName* name) {
  ByteView content, tagged, principal;
  if (!value->Read(kSequence, &content)) return false;
  Reader fields(content, value->leniency(), value->refusal());
  if (!fields.Read(ContextConstructed(0), &tagged)) return false;
  Reader realm(tagged, value->leniency(), value->refusal());
  return ReadText(&realm, kGeneralString, &name->text) && realm.End() &&
         ReadTagged(&fields, 1, kSequence, &principal) && fields.End() &&
         ReadPrincipal(principal, value, name);
}

// RFC 4043 2.
bool ReadPermanentId(Reader* value, OtherName* name) {
  ByteView content;
  if (!value->Read(kSequence, &content)) return false;
  Reader fields(content, value->leniency(), value->refusal());
  if (fields.Sees(kUtf8String) && !ReadText(&fields, kUtf8String, &name->text)) return false;
  return (fields.AtEnd() || ReadOid(&fields, &name->oid)) && fields.End();
}

// RFC 4108 5.
bool ReadHardwareModule(Reader* value, OtherName* name) {
  ByteView content;
  if (!value->Read(kSequence, &content)) return false;
  Reader fields(content, value->leniency(), value->refusal());
  return ReadOid(&fields, &name->oid) && fields.Read(kOctetString, &name->octets) && fields.End();
}

bool ReadGuid(Reader* value, OtherName* name) {
  if (!value->Read(kOctetString, &name->octets)) return false;
  return name->octets.size == kGuidOctets ||
         RefuseIn(value, name->octets, 0, ORTHOLAN_REASON_OTHER_NAME);
}

bool ReadService(Reader* value, OtherName* name) {
  std::string_view service, host;
  return ReadText(value, kIA5String, &name->text) &&
         SplitService(name->text, &service, &host, value->refusal());
}

bool ReadUtf8Mailbox(Reader* value, OtherName* name) {
  return ReadText(value, kUtf8String, &name->text) &&
         CheckUtf8Mailbox(name->text, value->refusal());
}

struct Row {
  OtherNameKind kind;
  OidConstant type;
  bool (*read)(Reader* value, OtherName* name);
};

constexpr Row kRows[] = {
    {OtherNameKind::kUpn, "1.3.6.1.4.1.311.20.2.3", ReadString<kUtf8String>},
    // id-on
    {OtherNameKind::kService, "1.3.6.1.5.5.7.8.7", ReadService},
    {OtherNameKind::kUtf8Mailbox, "1.3.6.1.5.5.7.8.9", ReadUtf8Mailbox},
    {OtherNameKind::kXmpp, "1.3.6.1.5.5.7.8.5", ReadString<kUtf8String>},
    {OtherNameKind::kPermanentId, "1.3.6.1.5.5.7.8.3", ReadPermanentId},
    {OtherNameKind::kHardwareModule, "1.3.6.1.5.5.7.8.4", ReadHardwareModule},
    // id-pkinit-san
    {OtherNameKind::kKerberos, "1.3.6.1.5.2.2", ReadKerberos},
    {OtherNameKind::kGuid, "1.3.6.1.4.1.311.25.1", ReadGuid},
};

const Row* FindRow(ByteView type) {
  for (const Row& row : kRows) {
    if (SameBytes(type, row.type.view())) return &row;
  }
  return nullptr;
}

}  // namespace

OtherNameKind KindOfOtherName(ByteView type) {
  const Row* const row = FindRow(type);
  return row != nullptr ? row->kind : OtherNameKind::kUnknown;
}

ByteView TypeOfOtherName(OtherNameKind kind) {
  for (const Row& row : kRows) {
    if (row.kind == kind) return row.type.view();
  }
  return {};
}

bool OtherName::Read(ByteView content, Leniency leniency, OtherName* name, Refusal* refusal) {
  OtherName read;
  if (!OtherNameView::Read(content, leniency, &read, refusal)) return false;
  if (const Row* const row = FindRow(read.type)) {
    read.kind = row->kind;
    Reader value(read.value.bytes, leniency, refusal);
    if (!row->read(&value, &read)) return false;
  }
  *name = read;
  return true;
}

}  // namespace Ortholan::strict
