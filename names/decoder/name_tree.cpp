// A name as the platform's CERT_NAME_INFO tree.
#include <ortholan/name_decoder.h>

#include <algorithm>

#include "foundation/blob_view.h"
#include "names/decoder/attribute_chain.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/rdn_reader.h"
#include "names/decoder/structured_value.h"
#include "names/decoder/type_name.h"

namespace Ortholan {
namespace {

using Attribute = AttributeChain::Link;

bool FillType(ByteView content, TypeText* type, Attribute* attr) {
  if (!DecodeAttrOid(content, type)) return false;
  const std::string_view dotted = type->dotted();
  attr->identifier = new char[dotted.size() + 1];
  *std::copy(dotted.begin(), dotted.end(), attr->identifier) = '\0';
  return true;
}

bool FillValue(const Element& child, StructuredValue* value, Attribute* attr) {
  if (!value->Read(child)) return false;
  attr->value = new BYTE[value->size()];
  attr->value_size = value->size();
  attr->value_type = value->type();
  value->Write(attr->value);
  return true;
}

// What stands before the child that fails stays in the tree.
bool DecodeElem(ByteView rdn, TypeText* type, StructuredValue* value, Attribute* attr) {
  return ReadRdn(
      rdn, [type, attr](ByteView content) { return FillType(content, type, attr); },
      [value, attr](const Element& child) { return FillValue(child, value, attr); });
}

// Gives each of the chain's attributes an RDN.
void MakeRdns(DWORD count, AttributeChain* chain, CERT_NAME_INFO* info) {
  if (count == 0) return;
  info->rgRDN = new CERT_RDN[count];
  info->cRDN = count;
  for (DWORD i = 0; i < count; ++i) info->rgRDN[i] = {1, chain->Take()};
}

// Moves the RDN's first attribute to the chain and releases what the others hold.
void ReleaseRdn(const CERT_RDN& rdn, AttributeChain* chain) {
  if (rdn.cRDNAttr == 0 || rdn.rgRDNAttr == nullptr) return;
  for (DWORD i = 1; i < rdn.cRDNAttr; ++i) ReleaseContents(rdn.rgRDNAttr[i]);
  chain->Append(rdn.rgRDNAttr);
}

}  // namespace

CertNameInfoWrapper::CertNameInfoWrapper() noexcept : info_{} {}
CertNameInfoWrapper::~CertNameInfoWrapper() { Clean(); }
CertNameInfoWrapper::operator CERT_NAME_INFO*() noexcept { return &info_; }

void CertNameInfoWrapper::Clean() {
  AttributeChain chain;
  if (info_.cRDN != 0 && info_.rgRDN != nullptr) {
    for (DWORD i = 0; i < info_.cRDN; ++i) ReleaseRdn(info_.rgRDN[i], &chain);
    delete[] info_.rgRDN;
  }
  info_.cRDN = 0;
  info_.rgRDN = nullptr;
}

bool X500NameDecoder::Decode(const IdentObj& name, CertNameInfoWrapper& info) {
  const ByteView bytes = ViewOf(name);
  size_t count = 0;
  if (bytes.empty() || CountChildren(bytes, &count) != Status::kOk) return false;
  info.Clean();
  bool decoded = true;
  AttributeChain chain;
  TypeText type;
  StructuredValue value;
  ElementReader reader(bytes);
  for (Element rdn; reader.Next(&rdn);) {
    Attribute* const attr = chain.Add();
    decoded = decoded && DecodeElem(rdn.bytes, &type, &value, attr);
  }
  MakeRdns(static_cast<DWORD>(count), &chain, info);
  return decoded;
}

}  // namespace Ortholan
