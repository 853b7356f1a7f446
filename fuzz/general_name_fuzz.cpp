// General names: read, shown, written, and made from texts and bytes.
#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>

#include <list>
#include <new>
#include <string>

#include "foundation/blob_view.h"
#include "foundation/element_header.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

// The octets behind the identifier.
ByteView BehindIdentifier(ByteView element) {
  size_t octets = 1;
  if ((element[0] & kTagMask) == kHighTagNumber) {
    while ((element[octets++] & kLongForm) != 0) continue;
  }
  return element.From(octets);
}

// Writing replaces the identifier octets and nothing else, and twice is as once.
void CheckWritten(GeneralName name) {
  const IdentObj content = name.GetContent();
  const IdentObj der = name.DerEncode();
  const ByteView before = ViewOf(content);
  const ByteView after = ViewOf(der);
  ElementHeader header;
  if (ReadHeader(before, &header) != Status::kOk) {
    LAW(der == content);
    return;
  }
  ElementHeader tagged;
  LAW(ReadHeader(after, &tagged) == Status::kOk || header.indefinite);
  LAW((after[0] & kClassMask) == kContextSpecific && (after[0] & kConstructed) != 0);
  LAW(SameBytes(BehindIdentifier(before), BehindIdentifier(after)));
  if (tagged.content == nullptr) return;
  LAW(tagged.tag == static_cast<DWORD>(name.GetTag()));
  GeneralName read = GeneralName::DerDecode(der);
  LAW(read.GetTag() == name.GetTag() && read.GetContent() == der);
  LAW(read.DerEncode() == der);
}

void CheckRead(const IdentObj& der) {
  GeneralName name;
  const std::string tag = Outcome([&] { DerHelper::GetTag(der); });
  LAW(Outcome([&] { name = GeneralName::DerDecode(der); }) == tag);
  if (tag != kReturned) {
    LAW(tag == "205 DerHelper::GetTag" || tag == "206 DerHelper::GetTag");
    return;
  }
  LAW(name.GetContent() == der && name.GetTag() == DerHelper::GetTag(der));
  std::wstring text;
  std::wstring again;
  const std::string outcome = Outcome([&] { text = name.ToString(0, 0); });
  LAW(Outcome([&] { again = name.ToString(7, 9); }) == outcome && again == text);
  if (name.GetTag() == otherName) LAW(outcome == kReturned && text.size() == der.cbData);
  if (name.GetTag() > registeredID) LAW(outcome == kReturned && !text.empty());
  CheckWritten(name);
}

// Every tag with these bytes as its content, which may be no element at all.
void CheckContent(const IdentObj& content) {
  for (uint32_t tag = otherName; tag <= registeredID + 1; ++tag) {
    GeneralName name(static_cast<GeneralNameTag>(tag), content);
    LAW(name.GetContent() == content && name.GetTag() == tag);
    Outcome([&] { name.ToString(0, 0); });
    CheckWritten(name);
  }
}

void CheckMadeText(const std::wstring& text) {
  const IdentObj ia5 = DerHelper::EncodeIA5String(text);
  for (GeneralName name : {GeneralName::CreateRfc822Name(text), GeneralName::CreateDnsName(text),
                           GeneralName::CreateUri(text)}) {
    LAW(name.GetContent() == ia5);
    const std::string ascii = DerHelper::ToString(text, 20127);
    LAW(name.ToString(0, 0) == DerHelper::ToWString(ascii, 65001));
    CheckWritten(name);
  }
  bool refused = false;
  try {
    GeneralName::CreateIpAddress(text);
  } catch (const std::bad_alloc&) {
    refused = true;
  }
  LAW(refused);
}

void CheckParty(const std::wstring& assigner, const std::wstring& party) {
  const GeneralName made = GeneralName::CreateEdiPartyName({assigner, party});
  LAW(made.GetTag() == directoryName);
  CheckWritten(made);
  std::list<IdentObj> parts;
  const IdentObj& content = made.GetContent();
  LAW(ASNTGetSequence(parts, content.pbData, content.cbData) == content.cbData);
  LAW(parts.size() == 2);
  const std::wstring texts[] = {assigner, party};
  DWORD tag = 0;
  for (const IdentObj& part : parts) {
    LAW(DerHelper::GetTag(part) == tag && !DerHelper::IsUniversal(part));
    const std::string utf8 = DerHelper::ToString(texts[tag], 65001);
    LAW(DerHelper::DecodeUtf8String(part, true) == DerHelper::ToWString(utf8, 65001));
    ++tag;
  }
  GeneralName shown(ediPartyName, content);
  const std::wstring& first = assigner.empty() ? party : assigner;
  const std::wstring text = shown.ToString(0, 0);
  LAW(text.empty() == first.empty());
}

void CheckIdentified(const std::string& dotted, const IdentObj& value) {
  IdentObj oid;
  const std::string outcome = Outcome([&] { oid = DerHelper::EncodeOid(dotted); });
  GeneralName id;
  GeneralName other;
  LAW(Outcome([&] { id = GeneralName::CreateRegisteredId(dotted); }) == outcome);
  LAW(Outcome([&] { other = GeneralName::CreateOther(dotted, value); }) == outcome);
  if (outcome != kReturned) return;
  LAW(id.GetContent() == oid && id.GetTag() == dNSName);
  LAW(other.GetContent() == ASNTPutSequence({oid, value}, 16) && other.GetTag() == otherName);
  GeneralName shown(registeredID, id.DerEncode());
  LAW(DerHelper::EncodeOid(DerHelper::ToString(shown.ToString(0, 0), 0)) == oid);
  CheckWritten(id);
  CheckWritten(other);
}

}  // namespace

void FuzzGeneralName(const uint8_t* data, size_t size) {
  const IdentObj der(data, static_cast<DWORD>(size));
  CheckRead(der);
  CheckContent(der);
  Input input(data, size);
  const std::wstring first = WideOf(input.ShortText());
  const std::string rest = input.Rest();
  CheckMadeText(first);
  CheckMadeText(DerHelper::ToWString(rest, 65001));
  CheckParty(first, WideOf(rest));
  CheckIdentified(rest, der);
}

}  // namespace Ortholan::fuzzing
