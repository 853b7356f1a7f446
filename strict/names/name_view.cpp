#include "strict/names/name_view.h"

#include "strict/der/identifier.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {
namespace {

bool ReadAttribute(Reader* rdn, ByteView* bytes) {
  Element attribute;
  if (!rdn->Read(kSequence, &attribute)) return false;
  Reader fields(attribute.content, rdn->leniency(), rdn->refusal());
  ByteView type;
  Element value;
  if (!fields.Read(kOid, &type)) return false;
  if (!IsIdentifier(type)) return fields.RefuseAt(ORTHOLAN_REASON_OID, type.data);
  if (!fields.Read(&value) || !fields.End()) return false;
  *bytes = attribute.bytes;
  return CheckNested(value, rdn->leniency(), rdn->refusal()) &&
         CheckString(value, rdn->leniency(), rdn->refusal());
}

// Ascending as octet strings, a shorter one padded with zeros behind (X.690 11.6).
bool IsAscending(ByteView before, ByteView after) {
  const size_t common = before.size < after.size ? before.size : after.size;
  return std::memcmp(before.data, after.data, common) <= 0;
}

bool ReadRdn(ByteView content, Leniency leniency, Refusal* refusal, size_t* count) {
  Reader attributes(content, leniency, refusal);
  if (attributes.AtEnd()) return attributes.RefuseHere(ORTHOLAN_REASON_EMPTY);
  ByteView before;
  do {
    ByteView attribute;
    if (!ReadAttribute(&attributes, &attribute)) return false;
    if (leniency == Leniency::kDer && !before.empty() && !IsAscending(before, attribute)) {
      return attributes.RefuseAt(ORTHOLAN_REASON_SET_ORDER, attribute.data);
    }
    before = attribute;
    ++*count;
  } while (!attributes.AtEnd());
  return true;
}

}  // namespace

bool NameView::Read(ByteView der, Leniency leniency, NameView* name, Refusal* refusal) {
  NameView read;
  read.der_ = der;
  if (!ReadWhole(der, kSequence, leniency, &read.rdns_, refusal)) return false;
  Reader rdns(read.rdns_, leniency, refusal);
  while (!rdns.AtEnd()) {
    ByteView rdn;
    if (!rdns.Read(kSet, &rdn)) return false;
    if (!ReadRdn(rdn, leniency, refusal, &read.attribute_count_)) return false;
    ++read.rdn_count_;
  }
  *name = read;
  return true;
}

// What was checked is read again without a look at the rules.
void NameView::Iterator::Step() {
  attribute_.begins_rdn = attributes_.empty();
  if (attributes_.empty()) {
    if (rdns_.empty()) {
      attribute_ = {};
      return;
    }
    Reader rdns(rdns_, Leniency::kLenient, nullptr);
    Element rdn;
    rdns.Read(&rdn);
    rdns_ = rdns.rest();
    attributes_ = rdn.content;
    attribute_.rdn = rdn.content;
    attribute_.rdn_index = next_rdn_++;
  }
  Reader attributes(attributes_, Leniency::kLenient, nullptr);
  Element attribute;
  attributes.Read(&attribute);
  attributes_ = attributes.rest();
  attribute_.bytes = attribute.bytes;
  Reader fields(attribute.content, Leniency::kLenient, nullptr);
  fields.Read(kOid, &attribute_.type);
  fields.Read(&attribute_.value);
}

}  // namespace Ortholan::strict
