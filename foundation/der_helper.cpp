#include <ortholan/der_helper.h>
#include <ortholan/status.h>

#include <algorithm>
#include <limits>

#include "bytes/ascii.h"
#include "bytes/byte_view.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/element_header.h"
#include "foundation/oid_text.h"
#include "foundation/report.h"

namespace Ortholan {
namespace {

// "DerHelper::...: Неверный тип" with the Russian words in code page 1251.
constexpr const char* kOidOfWrongType =
    "DerHelper::DecodeOid: \xCD\xE5\xE2\xE5\xF0\xED\xFB\xE9 \xF2\xE8\xEF";
constexpr const char* kStringOfWrongType =
    "DerHelper::DecodeUtf8String: \xCD\xE5\xE2\xE5\xF0\xED\xFB\xE9 \xF2\xE8\xEF";

constexpr DWORD kStringTags[] = {kTagUtf8String,    kTagNumericString, kTagPrintableString,
                                 kTagTeletexString, kTagIA5String,     kTagVisibleString};

bool IsString(DWORD tag) {
  return std::find(std::begin(kStringTags), std::end(kStringTags), tag) != std::end(kStringTags);
}

ElementHeader HeaderOf(const IdentObj& element, const char* where) {
  ElementHeader header;
  const Status status = ReadHeader(ViewOf(element), &header);
  if (status != Status::kOk) Throw({status, where});
  return header;
}

void Check(DWORD code, const char* where) {
  if (code != ToCode(Status::kOk)) Throw({static_cast<Status>(code), where});
}

IdentObj PutPrimitive(Tag tag, const void* value, size_t size) {
  if (size > std::numeric_limits<DWORD>::max()) ThrowNoMemory();
  ASNT_ASN_STRUCT_INFO info = {};
  info.tag = tag;
  return ASNTPutElement(info, static_cast<const BYTE*>(value), static_cast<DWORD>(size));
}

[[noreturn]] void ThrowLastError(const char* where) {
  const DWORD error = GetLastError();
  throw XZEPStatus(WinErrorToStatus(error), where);
}

// Longer texts are an argument fault of a conversion's first call.
constexpr size_t kMaxConverted = static_cast<size_t>(std::numeric_limits<int>::max());

template <typename From, typename To>
To Convert(std::basic_string_view<From> text, UINT codePage, const char* sizeFault,
           const char* fillFault, Conversion (*convert)(std::basic_string_view<From>, UINT, To*)) {
  To out;
  if (text.size() > kMaxConverted) {
    Throw({Status::kBadArgument, sizeFault});
  }
  const Conversion done = convert(text, codePage, &out);
  if (done == Conversion::kSizeFailed) ThrowLastError(sizeFault);
  if (done == Conversion::kFillFailed) ThrowLastError(fillFault);
  return out;
}

std::wstring WidenText(std::string_view text, UINT codePage) {
  return Convert(text, codePage, "DerHelper::ToWString MultiByteToWideChar(1)",
                 "DerHelper::ToWString MultiByteToWideChar(2)", &Widen);
}

}  // namespace

namespace DerHelper {

DWORD GetTag(const IdentObj& element) { return HeaderOf(element, "DerHelper::GetTag").tag; }

bool IsUniversal(const IdentObj& element) {
  return HeaderOf(element, "DerHelper::GetTag").cls == kUniversal;
}

bool IsStringTag(const ASNT_ASN_STRUCT_INFO& info) noexcept { return IsString(info.tag); }

std::string DecodeOid(const IdentObj& oid, bool anyTag) {
  constexpr const char* kWhere = "DerHelper::DecodeOid";
  const ElementHeader header = HeaderOf(oid, kWhere);
  if (!anyTag && header.tag != kTagOid) Throw({Status::kWrongType, kOidOfWrongType});
  // An implicit tag hides the type; what stands here is an identifier.
  const DWORD tag = anyTag && header.cls != kUniversal ? DWORD{kTagOid} : header.tag;
  const ASNT_ASN_STRUCT_INFO info = {header.cls, header.constructed, tag, header.length,
                                     header.content};
  IdentObj value;
  Check(ASNTGetElement(info, ViewOf(oid).end(), value), kWhere);
  return std::string(AsText(ViewOf(value)));
}

IdentObj EncodeOid(const std::string& dotted) {
  return PutPrimitive(kTagOid, dotted.data(), dotted.size());
}

IdentObj EncodeOctetString(const IdentObj& bytes) {
  return PutPrimitive(kTagOctetString, bytes.pbData, bytes.cbData);
}

IdentObj EncodeUtf8String(const std::wstring& text) {
  const std::string bytes = ToString(text, kCodePageUtf8);
  return PutPrimitive(kTagUtf8String, bytes.data(), bytes.size());
}

IdentObj EncodeIA5String(const std::string& text, size_t maxLength) {
  std::string taken = text.substr(0, maxLength);
  std::transform(taken.begin(), taken.end(), taken.begin(), ToPrintableChar);
  return PutPrimitive(kTagIA5String, taken.data(), taken.size());
}

IdentObj EncodeIA5String(const std::wstring& text, size_t maxLength) {
  return EncodeIA5String(ToString(text, kCodePageUsAscii), maxLength);
}

std::wstring DecodeUtf8String(const IdentObj& value, bool anyTag) {
  constexpr const char* kWhere = "DerHelper::DecodeUtf8String";
  const ElementHeader header = HeaderOf(value, kWhere);
  if (!anyTag && !IsString(header.tag)) Throw({Status::kWrongType, kStringOfWrongType});
  ByteView content;
  const Status status = BoundedContent(header, ViewOf(value).end(), &content);
  if (status != Status::kOk) Throw({status, kWhere});
  const std::string_view text = AsText(content);
  if (text.size() <= kMaxConverted && IsAscii(text)) {
    return std::wstring(text.begin(), text.end());
  }
  return WidenText(text, kCodePageUtf8);
}

std::string ToString(const std::wstring& text, UINT codePage) {
  return Convert(std::wstring_view(text), codePage, "DerHelper::ToString WideCharToMultiByte(1)",
                 "DerHelper::ToString WideCharToMultiByte(2)", &Narrow);
}

std::wstring ToWString(const std::string& text, UINT codePage) { return WidenText(text, codePage); }

char ToPrintableChar(char character) noexcept {
  return static_cast<unsigned char>(character) >= 0x80 ? '.' : character;
}

}  // namespace DerHelper

char* WideToNarrow(char* out, const wchar_t* in, int outSize, UINT codePage) {
  if (out == nullptr || in == nullptr || outSize <= 0) return nullptr;
  out[0] = '\0';
  if (WideCharToMultiByte(codePage, 0, in, -1, out, outSize, nullptr, nullptr) != 0) return out;
  out[0] = '\0';
  return nullptr;
}

wchar_t* NarrowToWide(wchar_t* out, const char* in, int outSize, UINT codePage) {
  if (out == nullptr || in == nullptr || outSize <= 0) return nullptr;
  out[0] = L'\0';
  if (MultiByteToWideChar(codePage, 0, in, -1, out, outSize) != 0) return out;
  out[0] = L'\0';
  return nullptr;
}

}  // namespace Ortholan
