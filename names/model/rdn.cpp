#include <ortholan/name_encoder.h>
#include <ortholan/rdn.h>

#include "foundation/required_text.h"

namespace Ortholan {

RDNAttr::RDNAttr() = default;
RDNAttr::RDNAttr(const RDNAttr&) = default;
RDNAttr::RDNAttr(RDNAttr&&) noexcept = default;
RDNAttr& RDNAttr::operator=(const RDNAttr&) = default;
RDNAttr& RDNAttr::operator=(RDNAttr&&) noexcept = default;
RDNAttr::~RDNAttr() = default;

RDNAttr::RDNAttr(const CERT_RDN_ATTR& attr)
    : oid(RequiredText(attr.pszObjId != nullptr ? attr.pszObjId : "")),
      valueType(attr.dwValueType),
      value(attr.Value) {}

RDNAttr::RDNAttr(const char* attrOid, unsigned long attrValueType, const IdentObj& attrValue)
    : oid(RequiredText(attrOid != nullptr ? attrOid : "")),
      valueType(static_cast<DWORD>(attrValueType)),
      value(attrValue) {}

RDNAttr& RDNAttr::operator=(const CERT_RDN_ATTR& attr) {
  SetBy(attr);
  return *this;
}

void RDNAttr::SetBy(const CERT_RDN_ATTR& attr) { *this = RDNAttr(attr); }

SimpleRDN::SimpleRDN() = default;
SimpleRDN::SimpleRDN(const char* keyText, const char* valueText)
    : key(RequiredText(keyText != nullptr ? keyText : "")),
      value(RequiredText(valueText != nullptr ? valueText : "")) {}
SimpleRDN::SimpleRDN(const SimpleRDN&) = default;
SimpleRDN::SimpleRDN(SimpleRDN&&) noexcept = default;
SimpleRDN& SimpleRDN::operator=(const SimpleRDN&) = default;
SimpleRDN& SimpleRDN::operator=(SimpleRDN&&) noexcept = default;
SimpleRDN::~SimpleRDN() = default;

bool SimpleRDN::operator<(const SimpleRDN& other) const {
  return GetAttrPriority(key) < GetAttrPriority(other.key);
}

bool SimpleRDN::operator>(const SimpleRDN& other) const { return other < *this; }

bool SimpleRDN::CompareSimpleRDN::operator()(const SimpleRDN& a, const SimpleRDN& b) const {
  if (a.key < b.key) return true;
  if (a.key > b.key) return false;
  return a.value < b.value;
}

}  // namespace Ortholan
