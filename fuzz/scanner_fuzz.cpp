// Headers, indefinite lengths and sequences: the owned copies and the views agree, and what is put
// together comes apart again.
#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>

#include "bytes/byte_view.h"
#include "foundation/element_reader.h"
#include "foundation/oid_text.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

struct Children {
  std::list<IdentObj> items;
  bool all_alone = true;  // each is whole by itself
  DWORD status = 0;
  std::string outcome = kReturned;
  size_t position = 0;
};

Children ReadViews(ElementReader reader, ByteView bytes) {
  Children read;
  for (Element child; reader.Next(&child);) {
    LAW(child.bytes.data >= bytes.begin() && child.bytes.end() <= bytes.end());
    LAW(!child.bytes.empty());
    read.items.emplace_back(child.bytes.data, static_cast<DWORD>(child.bytes.size));
    read.all_alone &= !child.header.indefinite || child.header.constructed != 0;
  }
  Element more;
  LAW(!reader.Next(&more));
  read.status = ToCode(reader.fault().status);
  if (read.status != 0) read.outcome = std::to_string(read.status) + ' ' + reader.fault().where;
  read.position = reader.position();
  return read;
}

void CheckHeader(ByteView bytes) {
  const DWORD size = static_cast<DWORD>(bytes.size);
  ASNT_ASN_STRUCT_INFO info = {1, 1, 1, 1, bytes.data};
  const DWORD status = ASNTGetStructInfo(info, bytes.data, size);
  ElementHeader header;
  LAW(ToCode(ReadHeader(bytes, &header)) == status);
  LAW(ToCode(ReadAnyHeader(bytes, &header)) == status);
  LAW(header.cls == info.cls && header.constructed == info.constructed && header.tag == info.tag);
  LAW(header.length == info.length && header.content == info.content);
  CASNTBaseRecord record;
  DWORD reported = kUntouched;
  const DWORD header_size = record.ReadASNInfo(bytes.data, size, &reported);
  LAW(reported == status);
  LAW((header_size != 0) == (status == 0));
  LAW(status != 0 || info.content == bytes.data + header_size);
  LAW(status == 0 || info.content == nullptr);
}

void CheckIndefinite(ByteView bytes) {
  const DWORD size = static_cast<DWORD>(bytes.size);
  for (const bool constructed : {false, true}) {
    DWORD status = kUntouched;
    const DWORD length = ASNTGetIndefiniteLength(bytes.data, size, constructed, &status);
    LAW(length <= size);
    const std::string outcome =
        Outcome([&] { ASNTGetIndefiniteLength(bytes.data, size, constructed); });
    LAW((outcome == kReturned) == (status == 0));
  }
}

// What an element holds can be written and is then read as it was.
void CheckValue(ByteView bytes) {
  ASNT_ASN_STRUCT_INFO info;
  if (ASNTGetStructInfo(info, bytes.data, static_cast<DWORD>(bytes.size)) != 0) return;
  const IdentObj before("before", 6);
  IdentObj value(before);
  if (ASNTGetElement(info, bytes.end(), value) != 0) {
    LAW(value == before);
    return;
  }
  info.cls = kUniversal;
  IdentObj written;
  const std::string outcome =
      Outcome([&] { written = ASNTPutElement(info, value.pbData, value.cbData); });
  LAW(outcome == kReturned || outcome == "1 ASNTPutElement");
  if (outcome != kReturned) return;
  ASNT_ASN_STRUCT_INFO again;
  LAW(ASNTGetStructInfo(again, written.pbData, written.cbData) == 0);
  LAW(again.tag == info.tag && again.constructed == info.constructed && again.cls == kUniversal);
  IdentObj read;
  LAW(ASNTGetElement(again, written.pbData + written.cbData, read) == 0);
  LAW(ASNTPutElement(again, read.pbData, read.cbData) == written);
  const bool canonical =
      info.tag == kTagBoolean || info.tag == kTagInteger || info.tag == kTagEnumerated;
  LAW(canonical || read == value);
}

void CheckSequence(ByteView bytes) {
  const DWORD size = static_cast<DWORD>(bytes.size);
  const Children views = ReadViews(ElementReader(bytes), bytes);
  std::list<IdentObj> owned;
  DWORD status = kUntouched;
  const DWORD used = ASNTGetSequence(owned, bytes.data, size, &status);
  LAW(owned == views.items && status == views.status && used == views.position);
  std::list<IdentObj> thrown;
  LAW(Outcome([&] { ASNTGetSequence(thrown, bytes.data, size); }) == views.outcome);
  LAW(thrown == owned);
  if (status != 0) return;
  LAW(used <= size);
  uint64_t content = 0;
  for (const IdentObj& child : owned) content += child.cbData;
  LAW(content < used);
  if (!views.all_alone) return;
  const IdentObj wrapped = ASNTPutSequence(owned, kTagSequence);
  std::list<IdentObj> again;
  LAW(ASNTGetSequence(again, wrapped.pbData, wrapped.cbData) == wrapped.cbData);
  LAW(again == owned);
}

// A child that is read through the header found before reads as it does from its own bytes.
void CheckChildren(ByteView bytes) {
  ElementReader reader(bytes);
  for (Element child; reader.Next(&child);) {
    const Children known = ReadViews(ElementReader(child), child.bytes);
    const Children own = ReadViews(ElementReader(child.bytes), child.bytes);
    LAW(known.items == own.items && known.outcome == own.outcome);
    LAW(known.status != 0 || known.position == own.position);
  }
}

// The end of a primitive element in the indefinite form is no part of its octets.
DWORD ContentLength(const IdentObj& element) {
  IdentObj ended(element);
  ended.Resize(element.cbData + 2);
  ended.pbData[element.cbData] = ended.pbData[element.cbData + 1] = 0;
  ASNT_ASN_STRUCT_INFO info;
  LAW(ASNTGetStructInfo(info, ended.pbData, ended.cbData) == 0);
  return info.length;
}

// The split of a run agrees with the children of a sequence around it, up to the first element
// without content, where the split ends.
void CheckSplit(ByteView bytes) {
  std::list<IdentObj> split = {IdentObj("before", 6)};
  const DWORD status = ASNTSplitElements(split, bytes.data, static_cast<DWORD>(bytes.size));
  LAW(status == 0 || split.empty());
  if (status != 0) return;
  const std::list<IdentObj> run = {IdentObj(bytes.data, static_cast<DWORD>(bytes.size))};
  std::list<IdentObj> children;
  DWORD fault = 0;
  const IdentObj wrapped = ASNTPutSequence(run, kTagSequence);
  ASNTGetSequence(children, wrapped.pbData, wrapped.cbData, &fault);
  LAW(split.size() <= children.size());
  auto child = children.begin();
  for (const IdentObj& element : split) {
    LAW(ContentLength(element) != 0);
    LAW(element == *child++);
  }
  LAW(child == children.end() || ContentLength(*child) == 0);
}

void CheckDerHelper(const IdentObj& element) {
  std::string dotted;
  std::wstring text;
  Outcome([&] { text = DerHelper::DecodeUtf8String(element, false); });
  Outcome([&] { text = DerHelper::DecodeUtf8String(element, true); });
  Outcome([&] { dotted = DerHelper::DecodeOid(element, true); });
  if (Outcome([&] { dotted = DerHelper::DecodeOid(element, false); }) != kReturned) return;
  LAW(DerHelper::GetTag(element) == kTagOid);
  IdentObj again;
  const std::string outcome = Outcome([&] { again = DerHelper::EncodeOid(dotted); });
  LAW(outcome == kReturned || dotted.size() > kMaxOidContent);
  LAW(outcome != kReturned || DerHelper::DecodeOid(again, false) == dotted);
}

}  // namespace

void FuzzScanner(const uint8_t* data, size_t size) {
  const ByteView bytes(data, size);
  CheckHeader(bytes);
  CheckIndefinite(bytes);
  CheckValue(bytes);
  CheckSequence(bytes);
  CheckChildren(bytes);
  CheckSplit(bytes);
  CheckDerHelper(IdentObj(data, static_cast<DWORD>(size)));
}

}  // namespace Ortholan::fuzzing
