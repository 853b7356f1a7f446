// A name as the platform's CERT_NAME_INFO tree.
#include <ortholan/name_decoder.h>

#include <algorithm>

#include "foundation/status_code.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/structured_value.h"
#include "names/decoder/type_name.h"

namespace Ortholan {
namespace {

void FreeAttribute(CERT_RDN_ATTR* attr) {
  delete[] attr->pszObjId;
  delete[] attr->Value.pbData;
  attr->pszObjId = nullptr;
  attr->Value.pbData = nullptr;
  attr->Value.cbData = 0;
}

void FreeRdn(CERT_RDN* rdn) {
  if (rdn->cRDNAttr != 0 && rdn->rgRDNAttr != nullptr) {
    for (DWORD i = 0; i < rdn->cRDNAttr; ++i) FreeAttribute(&rdn->rgRDNAttr[i]);
    delete[] rdn->rgRDNAttr;
  }
  rdn->cRDNAttr = 0;
  rdn->rgRDNAttr = nullptr;
}

template <typename Identifier>
bool FillType(const Identifier& identifier, CERT_RDN_ATTR* attr) {
  TypeText type;
  if (!DecodeAttrOid(identifier, &type)) return false;
  attr->pszObjId = new char[type.dotted().size() + 1];
  *std::copy(type.dotted().begin(), type.dotted().end(), attr->pszObjId) = '\0';
  return true;
}

bool FillValue(const Element& child, StructuredValue* value, CERT_RDN_ATTR* attr) {
  if (!value->Read(child)) return false;
  BYTE* const bytes = new BYTE[value->size()];
  value->Write(bytes);
  attr->dwValueType = value->type();
  attr->Value = {value->size(), bytes};
  return true;
}

// What stands before the child that fails stays in the tree.
bool DecodeElem(ByteView rdn, StructuredValue* value, CERT_RDN_ATTR* attr) {
  PlainAttribute plain;
  if (SplitPlainRdn(rdn, &plain)) {
    return FillType(plain.type, attr) && FillValue(plain.value, value, attr);
  }
  Status status = Status::kOk;
  AttributeElements attribute;
  if (!SplitAnyRdn(rdn, &attribute, &status)) {
    return status != Status::kOk ? FailWith(status) : false;
  }
  for (const Element& child : attribute.child) {
    status = StandsAlone(child);
    if (status != Status::kOk) return FailWith(status);
    const bool filled = IsType(child) ? FillType(child, attr) : FillValue(child, value, attr);
    if (!filled) return false;
  }
  return true;
}

// An array of `count` zeroed RDNs, each with room for one attribute.
void AllocateTree(DWORD count, CERT_NAME_INFO* info) {
  if (count == 0) return;
  info->rgRDN = new CERT_RDN[count]();
  info->cRDN = count;
  for (DWORD i = 0; i < count; ++i) {
    info->rgRDN[i].rgRDNAttr = new CERT_RDN_ATTR[1]();
    info->rgRDN[i].cRDNAttr = 1;
  }
}

}  // namespace

CertNameInfoWrapper::CertNameInfoWrapper() noexcept : info_{} {}
CertNameInfoWrapper::~CertNameInfoWrapper() { Clean(); }
CertNameInfoWrapper::operator CERT_NAME_INFO*() noexcept { return &info_; }

void CertNameInfoWrapper::Clean() {
  if (info_.cRDN != 0 && info_.rgRDN != nullptr) {
    for (DWORD i = 0; i < info_.cRDN; ++i) FreeRdn(&info_.rgRDN[i]);
    delete[] info_.rgRDN;
  }
  info_.cRDN = 0;
  info_.rgRDN = nullptr;
}

bool X500NameDecoder::Decode(const IdentObj& name, CertNameInfoWrapper& info) {
  const ByteView bytes(name);
  size_t count = 0;
  if (bytes.empty() || CountChildren(bytes, &count) != Status::kOk) return false;
  info.Clean();
  CERT_NAME_INFO* tree = info;
  AllocateTree(static_cast<DWORD>(count), tree);
  StructuredValue value;
  ElementReader reader(bytes);
  Element rdn;
  for (DWORD i = 0; reader.Next(&rdn); ++i) {
    if (!DecodeElem(rdn.bytes, &value, &tree->rgRDN[i].rgRDNAttr[0])) return false;
  }
  return true;
}

}  // namespace Ortholan
