#include "platform/posix/codecs.h"
#include "platform/posix/identifier.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kIdentifierTag = 0x06;
constexpr BYTE kSequence = 0x30;
constexpr BYTE kOtherNameValue = 0xA0;
constexpr DWORD kInvalidArgument = 0x80070057;
constexpr unsigned kEntryShift = 16;

enum class Form { kOtherName, kText, kOctets, kIdentifier };

struct ChoiceRow {
  DWORD choice;
  BYTE tag;
  Form form;
};

constexpr ChoiceRow kChoices[] = {
    {CERT_ALT_NAME_OTHER_NAME, 0xA0, Form::kOtherName},
    {CERT_ALT_NAME_RFC822_NAME, 0x81, Form::kText},
    {CERT_ALT_NAME_DNS_NAME, 0x82, Form::kText},
    {CERT_ALT_NAME_DIRECTORY_NAME, 0xA4, Form::kOctets},
    {CERT_ALT_NAME_URL, 0x86, Form::kText},
    {CERT_ALT_NAME_IP_ADDRESS, 0x87, Form::kOctets},
    {CERT_ALT_NAME_REGISTERED_ID, 0x88, Form::kIdentifier},
};

const ChoiceRow* RowOfChoice(DWORD choice) {
  for (const ChoiceRow& row : kChoices) {
    if (row.choice == choice) return &row;
  }
  return nullptr;
}

const ChoiceRow* RowOfTag(BYTE tag) {
  for (const ChoiceRow& row : kChoices) {
    if (row.tag == tag) return &row;
  }
  return nullptr;
}

// A null text is an empty one.
DWORD WriteText(BYTE tag, LPCWSTR text, DerWriter* out) {
  std::size_t size = 0;
  for (; text != nullptr && text[size] != 0; ++size) {
    if (static_cast<std::uint32_t>(text[size]) < 0x80) continue;
    out->SetFault(static_cast<DWORD>(size));
    return CRYPT_E_INVALID_IA5_STRING;
  }
  const std::size_t mark = out->size();
  for (std::size_t i = size; i-- > 0;) out->PutOctet(static_cast<BYTE>(text[i]));
  out->PutHeader(tag, mark);
  return ERROR_SUCCESS;
}

DWORD WriteOctets(BYTE tag, const CRYPT_DATA_BLOB& octets, DerWriter* out) {
  if (!IsThere(octets)) return ERROR_INVALID_PARAMETER;
  const std::size_t mark = out->size();
  out->PutOctets(ToBytes(octets));
  out->PutHeader(tag, mark);
  return ERROR_SUCCESS;
}

DWORD WriteOtherName(BYTE tag, const CERT_OTHER_NAME* name, DerWriter* out) {
  if (name == nullptr) return ERROR_INVALID_PARAMETER;
  const std::size_t mark = out->size();
  if (const DWORD error = WriteOctets(kOtherNameValue, name->Value, out)) return error;
  if (const DWORD error = WriteIdentifier(kIdentifierTag, name->pszObjId, out)) return error;
  out->PutHeader(tag, mark);
  return ERROR_SUCCESS;
}

DWORD WriteEntry(const CERT_ALT_NAME_ENTRY& entry, DerWriter* out) {
  const ChoiceRow* const row = RowOfChoice(entry.dwAltNameChoice);
  if (row == nullptr) return kInvalidArgument;
  switch (row->form) {
    case Form::kOtherName:
      return WriteOtherName(row->tag, entry.pOtherName, out);
    case Form::kText:
      return WriteText(row->tag, entry.pwszDNSName, out);
    case Form::kOctets:
      return WriteOctets(row->tag, entry.IPAddress, out);
    case Form::kIdentifier:
      return WriteIdentifier(row->tag, entry.pszRegisteredID, out);
  }
  return kInvalidArgument;
}

// The first entry that cannot be written is the one to report, although writing begins at the end.
DWORD CheckEntries(const CERT_ALT_NAME_INFO& info, DerWriter* out) {
  for (DWORD i = 0; i < info.cAltEntry; ++i) {
    DerWriter counter;
    if (const DWORD error = WriteEntry(info.rgAltEntry[i], &counter)) {
      if (error == CRYPT_E_INVALID_IA5_STRING) out->SetFault(i << kEntryShift | counter.fault());
      return error;
    }
  }
  return ERROR_SUCCESS;
}

DWORD ReadText(ByteView content, StructRoom* room, LPWSTR* text) {
  *text = room->Take<wchar_t>(content.size + 1);
  for (std::size_t i = 0; i < content.size; ++i) {
    if (content.data[i] == 0) return CRYPT_E_ASN1_RULE;
    room->Store(*text, i, static_cast<wchar_t>(content.data[i]));
  }
  room->Store(*text, content.size, L'\0');
  return ERROR_SUCCESS;
}

DWORD ReadOtherName(ByteView content, StructRoom* room, PCERT_OTHER_NAME* name) {
  Element type;
  Element value;
  if (const DWORD error = TakeElement(&content, &type)) return error;
  if (type.tag != kIdentifierTag) return CRYPT_E_ASN1_BADTAG;
  if (const DWORD error = TakeElement(&content, &value)) return error;
  if (value.tag != kOtherNameValue) return CRYPT_E_ASN1_BADTAG;
  if (content.size != 0) return CRYPT_E_ASN1_CORRUPT;

  *name = room->Take<CERT_OTHER_NAME>(1);
  CERT_OTHER_NAME fields = {};
  if (const DWORD error = ReadIdentifier(type.content, room, &fields.pszObjId)) return error;
  fields.Value = room->Copy(value.content);
  room->Store(*name, 0, fields);
  return ERROR_SUCCESS;
}

DWORD ReadEntry(const Element& element, StructRoom* room, CERT_ALT_NAME_ENTRY* entry) {
  const ChoiceRow* const row = RowOfTag(element.tag);
  if (row == nullptr) return CRYPT_E_ASN1_BADTAG;
  entry->dwAltNameChoice = row->choice;
  switch (row->form) {
    case Form::kOtherName:
      return ReadOtherName(element.content, room, &entry->pOtherName);
    case Form::kText:
      return ReadText(element.content, room, &entry->pwszDNSName);
    case Form::kOctets:
      entry->IPAddress = room->Copy(element.content);
      return ERROR_SUCCESS;
    case Form::kIdentifier:
      return ReadIdentifier(element.content, room, &entry->pszRegisteredID);
  }
  return CRYPT_E_ASN1_BADTAG;
}

}  // namespace

DWORD WriteAlternateNameAs(BYTE tag, const CERT_ALT_NAME_INFO& info, DerWriter* out) {
  if (info.cAltEntry != 0 && info.rgAltEntry == nullptr) return ERROR_INVALID_PARAMETER;
  if (const DWORD error = CheckEntries(info, out)) return error;
  const std::size_t mark = out->size();
  for (DWORD i = info.cAltEntry; i-- > 0;) WriteEntry(info.rgAltEntry[i], out);
  out->PutHeader(tag, mark);
  return ERROR_SUCCESS;
}

DWORD WriteAlternateName(const CERT_ALT_NAME_INFO& info, DerWriter* out) {
  return WriteAlternateNameAs(kSequence, info, out);
}

DWORD ReadAlternateNameContent(ByteView content, StructRoom* room, CERT_ALT_NAME_INFO* info) {
  std::size_t count = 0;
  Element element;
  for (ByteView rest = content; rest.size != 0; ++count) {
    if (const DWORD error = TakeElement(&rest, &element)) return error;
  }
  auto* const entries = room->Take<CERT_ALT_NAME_ENTRY>(count);
  for (std::size_t i = 0; i < count; ++i) {
    TakeElement(&content, &element);
    CERT_ALT_NAME_ENTRY entry = {};
    if (const DWORD error = ReadEntry(element, room, &entry)) return error;
    room->Store(entries, i, entry);
  }
  *info = {static_cast<DWORD>(count), entries};
  return ERROR_SUCCESS;
}

DWORD ReadAlternateName(ByteView der, StructRoom* room, CERT_ALT_NAME_INFO* info) {
  ByteView content;
  if (const DWORD error = ReadTagged(der, kSequence, &content)) return error;
  return ReadAlternateNameContent(content, room, info);
}

}  // namespace Ortholan::posix
