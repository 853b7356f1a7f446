// Content octets and the plain values that applications hold.
#include <ortholan/asn1.h>

#include <algorithm>
#include <limits>
#include <string_view>

#include "bytes/der_identifier.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/element_header.h"
#include "foundation/oid_text.h"
#include "foundation/report.h"
#include "foundation/time_text.h"

namespace Ortholan {
namespace {

constexpr const char* kPutElement = "ASNTPutElement";
constexpr BYTE kTrue = 0xFF;
constexpr BYTE kSignBit = 0x80;

enum class Form {
  kNone,
  kBoolean,
  kInteger,
  kAsItStands,
  kEmpty,
  kOid,
  kUtcTime,
  kGeneralizedTime
};

struct FormRow {
  DWORD tag;
  Form form;
  bool writable;
};

constexpr FormRow kForms[] = {
    {kTagBoolean, Form::kBoolean, true},
    {kTagInteger, Form::kInteger, true},
    {kTagBitString, Form::kAsItStands, true},
    {kTagOctetString, Form::kAsItStands, true},
    {kTagNull, Form::kEmpty, true},
    {kTagOid, Form::kOid, true},
    {kTagEnumerated, Form::kInteger, true},
    {kTagUtf8String, Form::kAsItStands, true},
    {kTagSequence, Form::kAsItStands, true},
    {kTagSet, Form::kAsItStands, true},
    {kTagNumericString, Form::kAsItStands, true},
    {kTagPrintableString, Form::kAsItStands, true},
    {kTagTeletexString, Form::kAsItStands, true},
    {kTagIA5String, Form::kAsItStands, true},
    {kTagUtcTime, Form::kUtcTime, true},
    {kTagGeneralizedTime, Form::kGeneralizedTime, true},
    {kTagVisibleString, Form::kAsItStands, true},
    {kTagBmpString, Form::kAsItStands, false},
};

const FormRow* FindForm(DWORD tag) {
  for (const FormRow& row : kForms) {
    if (row.tag == tag) return &row;
  }
  return nullptr;
}

Form WritableForm(const ASNT_ASN_STRUCT_INFO& info) {
  if (info.cls != kUniversal) return Form::kAsItStands;
  const FormRow* row = FindForm(info.tag);
  return row != nullptr && row->writable ? row->form : Form::kNone;
}

IdentObj Wrap(const ASNT_ASN_STRUCT_INFO& info, ByteView content, bool reversed = false) {
  const uint64_t size = IdentifierSize(info.tag) + LengthSize(content.size) + content.size;
  if (size > std::numeric_limits<DWORD>::max()) ThrowNoMemory();
  IdentObj element;
  element.Allocate(static_cast<DWORD>(size));
  const BYTE class_and_form = (info.cls & kClassMask) | (info.constructed & kConstructed);
  BYTE* out = WriteIdentifier(element.pbData, class_and_form, info.tag);
  out = WriteLength(out, content.size);
  if (reversed) {
    std::reverse_copy(content.begin(), content.end(), out);
  } else {
    WriteBytes(out, content);
  }
  return element;
}

// Drops the sign octets that two's complement does not need; the last one stays.
ByteView MinimalInteger(ByteView little_endian) {
  while (little_endian.size > 1) {
    const BYTE top = little_endian[little_endian.size - 1];
    const bool next_negative = (little_endian[little_endian.size - 2] & kSignBit) != 0;
    const bool redundant = (top == 0x00 && !next_negative) || (top == 0xFF && next_negative);
    if (!redundant) break;
    --little_endian.size;
  }
  return little_endian;
}

IdentObj PutBoolean(const ASNT_ASN_STRUCT_INFO& info, ByteView value) {
  const bool set = std::any_of(value.begin(), value.end(), [](BYTE b) { return b != 0; });
  const BYTE content = set ? kTrue : 0;
  return Wrap(info, {&content, 1});
}

IdentObj PutOid(const ASNT_ASN_STRUCT_INFO& info, ByteView value) {
  const BYTE* terminator = std::find(value.begin(), value.end(), BYTE{0});
  const std::string_view dotted(reinterpret_cast<const char*>(value.data),
                                static_cast<size_t>(terminator - value.begin()));
  SmallBuffer<BYTE, kMaxOidContent> content;
  const Status status = ParseOid(dotted, &content);
  if (status != Status::kOk) Throw({status, kPutElement});
  return Wrap(info, {content.data(), content.size()});
}

IdentObj PutTime(const ASNT_ASN_STRUCT_INFO& info, ByteView value, TimeForm form) {
  char text[kMaxTimeText + 1];
  size_t length = 0;
  const Status status = FormatTime(value, form, text, &length);
  if (status != Status::kOk) Throw({status, kPutElement});
  return Wrap(info, AsBytes(text, length));
}

Status GetOid(ByteView content, IdentObj* value) {
  OidText text;
  const Status status = FormatOid(content, &text);
  if (status != Status::kOk) return status;
  if (text.size() > std::numeric_limits<DWORD>::max()) ThrowNoMemory();
  value->Assign(text.data(), static_cast<DWORD>(text.size()));
  return Status::kOk;
}

Status GetTime(ByteView content, TimeForm form, IdentObj* value) {
  FILETIME time;
  const Status status = ParseTime(content, form, &time);
  if (status != Status::kOk) return status;
  value->Assign(&time, sizeof(time));
  return Status::kOk;
}

Status GetPlainValue(Form form, ByteView content, IdentObj* value) {
  switch (form) {
    case Form::kOid:
      return GetOid(content, value);
    case Form::kUtcTime:
      return GetTime(content, TimeForm::kUtc, value);
    case Form::kGeneralizedTime:
      return GetTime(content, TimeForm::kGeneralized, value);
    case Form::kEmpty:
      value->Clear();
      return Status::kOk;
    default:
      value->Assign(content.data, static_cast<DWORD>(content.size));
      if (form == Form::kBoolean || form == Form::kInteger) {
        std::reverse(value->pbData, value->pbData + value->cbData);
      }
      return Status::kOk;
  }
}

}  // namespace

IdentObj ASNTPutElement(const ASNT_ASN_STRUCT_INFO& info, const BYTE* value, DWORD size) {
  if (value == nullptr && size != 0) {
    const IdentObj zeros(nullptr, size);
    return ASNTPutElement(info, zeros.pbData, size);
  }
  const ByteView plain = AsBytes(value, size);
  switch (WritableForm(info)) {
    case Form::kBoolean:
      return PutBoolean(info, plain);
    case Form::kInteger:
      return Wrap(info, MinimalInteger(plain), true);
    case Form::kAsItStands:
      return Wrap(info, plain);
    case Form::kEmpty:
      return Wrap(info, {});
    case Form::kOid:
      return PutOid(info, plain);
    case Form::kUtcTime:
      return PutTime(info, plain, TimeForm::kUtc);
    case Form::kGeneralizedTime:
      return PutTime(info, plain, TimeForm::kGeneralized);
    case Form::kNone:
      break;
  }
  Throw({Status::kNotEncodable, kPutElement});
}

DWORD ASNTGetElement(const ASNT_ASN_STRUCT_INFO& info, const BYTE* end, IdentObj& value) {
  const FormRow* row = FindForm(info.tag);
  if (row == nullptr) return ToCode(Status::kBadTag);
  ByteView content;
  Status status = BoundedContent(info, end, &content);
  if (status == Status::kOk) status = GetPlainValue(row->form, content, &value);
  return ToCode(status);
}

}  // namespace Ortholan
