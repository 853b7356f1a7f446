#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>

#include <list>
#include <new>

#include "foundation/code_page.h"
#include "foundation/element_header.h"
#include "generalname/implicit_tag.h"

namespace Ortholan {
namespace {

IdentObj Sequence(std::initializer_list<IdentObj> elements) {
  return ASNTPutSequence(std::list<IdentObj>(elements), kTagSequence, nullptr);
}

IdentObj TaggedUtf8(const std::wstring& text, DWORD tag) {
  return WithContextTag(DerHelper::EncodeUtf8String(text), tag);
}

}  // namespace

GeneralName::GeneralName() : tag_(otherName) {}
GeneralName::GeneralName(GeneralNameTag tag, const IdentObj& content)
    : tag_(tag), content_(content) {}
GeneralName::GeneralName(const GeneralName&) = default;
GeneralName::GeneralName(GeneralName&&) noexcept = default;
GeneralName& GeneralName::operator=(const GeneralName&) = default;
GeneralName& GeneralName::operator=(GeneralName&&) noexcept = default;
GeneralName::~GeneralName() = default;

const IdentObj& GeneralName::GetContent() const noexcept { return content_; }
GeneralNameTag GeneralName::GetTag() const noexcept { return tag_; }

GeneralName GeneralName::CreateRfc822Name(const std::wstring& text) {
  return {rfc822Name, DerHelper::EncodeIA5String(text)};
}

GeneralName GeneralName::CreateDnsName(const std::wstring& text) {
  return {dNSName, DerHelper::EncodeIA5String(text)};
}

// Stored like a DNS name: what reads these names goes by the stored tag.
GeneralName GeneralName::CreateUri(const std::wstring& text) { return CreateDnsName(text); }

GeneralName GeneralName::CreateX400Address(const IdentObj& der) { return {x400Address, der}; }

GeneralName GeneralName::CreateDirectoryName(const IdentObj& der) { return {directoryName, der}; }

GeneralName GeneralName::CreateEdiPartyName(const EdiPartyName& name) {
  return {directoryName,
          Sequence({TaggedUtf8(name.nameAssigner, 0), TaggedUtf8(name.partyName, 1)})};
}

// Reading the address never comes to an end; what an application sees of that is the failure that
// it ends in.
GeneralName GeneralName::CreateIpAddress(const std::wstring& text) {
  static_cast<void>(DerHelper::ToString(text, kCodePageAnsi));
  throw std::bad_alloc();
}

GeneralName GeneralName::CreateRegisteredId(const std::string& oid) {
  return {dNSName, DerHelper::EncodeOid(oid)};
}

GeneralName GeneralName::CreateOther(const std::string& oid, const IdentObj& value) {
  return {otherName, Sequence({DerHelper::EncodeOid(oid), value})};
}

IdentObj GeneralName::DerEncode() { return WithContextTag(content_, tag_); }

GeneralName GeneralName::DerDecode(const IdentObj& der) {
  return {static_cast<GeneralNameTag>(DerHelper::GetTag(der)), der};
}

}  // namespace Ortholan
