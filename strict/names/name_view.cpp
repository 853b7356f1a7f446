#include "strict/names/name_view.h"

#include "strict/der/any_value.h"
#include "strict/der/oid.h"
#include "strict/der/reader.h"
#include "strict/der/set_order.h"
#include "strict/names/plain_rdn.h"

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
  return CheckValue(value, rdn->leniency(), rdn->refusal());
}

// Passes the plain RDNs at the front that are in order.
ByteView SkipPlainRdns(ByteView rdns, Leniency leniency, size_t* count) {
  ByteView attribute;
  ByteView type;
  Element value;
  while (ReadPlainRdn(rdns, &attribute, &type, &value) && IsIdentifier(type) &&
         CheckValue(value, leniency, nullptr)) {
    rdns = rdns.From(static_cast<size_t>(attribute.end() - rdns.data));
    ++*count;
  }
  return rdns;
}

}  // namespace

bool CheckRdn(ByteView content, Leniency leniency, Refusal* refusal, size_t* count) {
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

bool NameView::Read(ByteView der, Leniency leniency, NameView* name, Refusal* refusal) {
  NameView read;
  read.der_ = der;
  if (!ReadWhole(der, kSequence, leniency, &read.rdns_, refusal)) return false;
  Reader rdns(SkipPlainRdns(read.rdns_, leniency, &read.rdn_count_), leniency, refusal);
  read.attribute_count_ = read.rdn_count_;
  while (!rdns.AtEnd()) {
    ByteView rdn;
    if (!rdns.Read(kSet, &rdn)) return false;
    if (!CheckRdn(rdn, leniency, refusal, &read.attribute_count_)) return false;
    ++read.rdn_count_;
  }
  *name = read;
  return true;
}

NameView NameView::OfChecked(ByteView der, size_t rdn_count, size_t attribute_count) {
  NameView name;
  if (!ReadWhole(der, kSequence, Leniency::kLenient, &name.rdns_, nullptr)) return name;
  name.der_ = der;
  name.rdn_count_ = rdn_count;
  name.attribute_count_ = attribute_count;
  return name;
}

// What was checked is read again without a look at the rules.

bool NextRdn(ByteView* rdns, Element* rdn) {
  if (rdns->empty()) return false;
  Reader reader(*rdns, Leniency::kLenient, nullptr);
  if (!reader.Read(rdn)) return false;
  *rdns = reader.rest();
  return true;
}

bool NextAttribute(ByteView* attributes, AttributeView* attribute) {
  if (attributes->empty()) return false;
  if (ReadPlainAttribute(*attributes, &attribute->bytes, &attribute->type, &attribute->value)) {
    *attributes = attributes->From(attribute->bytes.size);
    return true;
  }
  Reader reader(*attributes, Leniency::kLenient, nullptr);
  Element element;
  if (!reader.Read(&element)) return false;
  *attributes = reader.rest();
  attribute->bytes = element.bytes;
  Reader fields(element.content, Leniency::kLenient, nullptr);
  return fields.Read(kOid, &attribute->type) && fields.Read(&attribute->value);
}

void NameWalk::Step() {
  part.begins_rdn = attributes_.empty();
  if (attributes_.empty()) {
    Element rdn;
    if (!NextRdn(&rdns_, &rdn)) {
      part = {};
      return;
    }
    attributes_ = rdn.content;
    part.rdn = attributes_;
    part.rdn_index = next_rdn_++;
  }
  if (!NextAttribute(&attributes_, &part)) part = {};
}

BackwardRdns::BackwardRdns(const NameView& name) : count_(name.rdn_count()) {
  if (count_ > kFew) many_.resize(count_);
  rdns_ = count_ > kFew ? many_.data() : few_;
  ByteView rest = name.rdns();
  size_t found = 0;
  while (found < count_ && NextRdn(&rest, &rdns_[found])) ++found;
  count_ = found;
}

}  // namespace Ortholan::strict
