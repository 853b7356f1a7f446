// General names as text for display: a row a tag.
#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>
#include <ortholan/name_decoder.h>

#include <cstdio>
#include <list>
#include <string_view>

#include "bytes/ascii.h"
#include "bytes/byte_view.h"
#include "bytes/utf16.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"

namespace Ortholan {
namespace {

constexpr const wchar_t* kX400AddressText = L"[X400Address]";
constexpr const wchar_t* kWrongAddressLength = L"[Неверная длина IP адреса]";
constexpr const wchar_t* kUnknownTag = L"Неизвестный тип имени ";
constexpr const wchar_t* kParty = L"Имя партии: ";
constexpr const wchar_t* kAssigner = L"Имя назначено: ";

constexpr DWORD kAssignerTag = 0;
constexpr DWORD kPartyTag = 1;

std::wstring FromAscii(std::string_view text) { return std::wstring(text.begin(), text.end()); }

// As many units as there are bytes: the bytes as UTF-16LE, an odd last one a unit of its own, then
// NULs.
std::wstring OtherNameText(const IdentObj& content) {
  const ByteView bytes = ViewOf(content);
  std::wstring text;
  AppendUtf16Le(bytes, &text);
  if (bytes.size % 2 != 0) text.push_back(static_cast<wchar_t>(bytes[bytes.size - 1]));
  text.resize(bytes.size, L'\0');
  return text;
}

std::wstring StringText(const IdentObj& content) {
  return DerHelper::DecodeUtf8String(content, true);
}

std::wstring X400AddressText(const IdentObj&) { return kX400AddressText; }

std::wstring DirectoryNameText(const IdentObj& content) {
  std::wstring text;
  X500NameDecoder::BlobToString(content, text);
  return text;
}

EdiPartyName DecodeEdiPartyName(const IdentObj& content) {
  EdiPartyName name;
  std::list<IdentObj> elements;
  ASNTGetSequence(elements, content.pbData, content.cbData, nullptr);
  for (const IdentObj& element : elements) {
    if (DerHelper::IsUniversal(element)) continue;
    const DWORD tag = DerHelper::GetTag(element);
    if (tag == kAssignerTag) name.nameAssigner = DerHelper::DecodeUtf8String(element, true);
    if (tag == kPartyTag) name.partyName = DerHelper::DecodeUtf8String(element, true);
  }
  return name;
}

// One line: the assigner's takes the place of the party's.
std::wstring EdiPartyNameText(const IdentObj& content) {
  const EdiPartyName name = DecodeEdiPartyName(content);
  if (!name.nameAssigner.empty()) return kAssigner + name.nameAssigner + L"\n";
  if (!name.partyName.empty()) return kParty + name.partyName + L"\n";
  return std::wstring();
}

std::wstring IpAddressText(const IdentObj& content) {
  char text[32];
  const ByteView b = ViewOf(content);
  if (b.size == 4) {
    std::snprintf(text, sizeof(text), "%d.%d.%d.%d", b[0], b[1], b[2], b[3]);
  } else if (b.size == 6) {
    std::snprintf(text, sizeof(text), "%d:%d:%d:%d:%d:%d", b[0], b[1], b[2], b[3], b[4], b[5]);
  } else {
    return kWrongAddressLength;
  }
  return FromAscii(text);
}

std::wstring RegisteredIdText(const IdentObj& content) {
  const std::string text = DerHelper::DecodeOid(content, true);
  // ASCII is itself in every code page; a text that is too long is left to the conversion.
  const bool plain = text.size() <= kMaxConvertedText && IsAscii(text);
  return plain ? FromAscii(text) : DerHelper::ToWString(text, kCodePageAnsi);
}

struct TextRow {
  GeneralNameTag tag;
  std::wstring (*render)(const IdentObj& content);
};

constexpr TextRow kTexts[] = {
    {otherName, OtherNameText},
    {rfc822Name, StringText},
    {dNSName, StringText},
    {x400Address, X400AddressText},
    {directoryName, DirectoryNameText},
    {ediPartyName, EdiPartyNameText},
    {uniformResourceIdentifier, StringText},
    {iPAddress, IpAddressText},
    {registeredID, RegisteredIdText},
};

}  // namespace

std::wstring GeneralName::ToString(size_t, size_t) {
  for (const TextRow& row : kTexts) {
    if (row.tag == tag_) return row.render(content_);
  }
  return kUnknownTag;
}

}  // namespace Ortholan
