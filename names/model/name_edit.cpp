// A name as a flat list of pairs, one an RDN: read, changed and merged by identifier.
#include <ortholan/name_decoder.h>
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "bytes/ignore_case.h"
#include "bytes/utf16.h"
#include "foundation/blob_view.h"
#include "foundation/required_text.h"
#include "foundation/untyped_failure.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/attribute_walk.h"
#include "names/model/name_failure.h"

namespace Ortholan {
namespace {

// The decoded tree of a name, walked by the first attribute of each RDN.
class FirstAttributes {
 public:
  bool Decode(const X509Name& name) { return X500NameDecoder().Decode(name, wrapper_); }

  const CERT_NAME_INFO& info() { return *static_cast<CERT_NAME_INFO*>(wrapper_); }

  CERT_RDN_ATTR* Find(const char* oid) {
    if (oid == nullptr) oid = "";
    CERT_RDN_ATTR* found = nullptr;
    ForEach([&](CERT_RDN_ATTR& attr) {
      if (found == nullptr && std::strcmp(attr.pszObjId, oid) == 0) found = &attr;
    });
    return found;
  }

  template <typename Use>
  void ForEach(Use use) {
    for (DWORD i = 0; i < info().cRDN; ++i) {
      const CERT_RDN& rdn = info().rgRDN[i];
      if (rdn.cRDNAttr != 0) use(rdn.rgRDNAttr[0]);
    }
  }

 private:
  CertNameInfoWrapper wrapper_;
};

template <typename Text>
bool ReadSimpleRdn(const X509Name& name, const char* oid, Text* out) {
  FirstAttributes attributes;
  if (!attributes.Decode(name)) {
    *out = Text();
    ThrowUntyped(kNameFailure);
  }
  const CERT_RDN_ATTR* attr = attributes.Find(oid);
  Text text;
  if (attr != nullptr) X509Name::GetRDNAttrValueString(*attr, text);
  *out = std::move(text);
  return attr != nullptr;
}

// The value's text as the platform renders it from the tree's form. ASCII is itself in every code
// page and is not handed over.
void ReadPairValue(const DecodedAttribute& attribute, CZEPString* out) {
  if (attribute.is_ascii()) {
    const std::string_view text = attribute.ascii();
    SetRequiredText(text.substr(0, text.find('\0')), out);
    return;
  }
  std::wstring wide;
  CERT_RDN_ATTR attr = {};
  std::vector<BYTE> bytes;
  if (DecodeAttrData(attribute.value(), &wide)) {
    // A terminator, which the platform looks for.
    bytes.resize(2 * wide.size() + 2);
    WriteUtf16Le(wide, bytes.data());
    attr.dwValueType = CERT_RDN_UNICODE_STRING;
  } else {
    const ByteView encoding = attribute.value().bytes;
    bytes.assign(encoding.begin(), encoding.end());
    attr.dwValueType = CERT_RDN_ENCODED_BLOB;
  }
  attr.Value = {static_cast<DWORD>(bytes.size()), bytes.data()};
  X509Name::GetRDNAttrValueString(attr, *out);
}

// Replaces `pairs` by the name's; unchanged where the bytes are no name.
template <typename Pairs>
bool ReadPairs(const X509Name& name, Pairs* pairs) {
  Pairs found;
  const auto append = [&found](const DecodedAttribute& attribute) {
    SimpleRDN& rdn = found.emplace_back();
    SetRequiredText(attribute.type().dotted(), &rdn.key);
    ReadPairValue(attribute, &rdn.value);
    return true;
  };
  if constexpr (std::is_same_v<Pairs, std::vector<SimpleRDN>>) {
    size_t count = 0;
    if (CountChildren(ViewOf(name), &count) == Status::kOk) found.reserve(count);
  }
  if (name.cbData != 0 && !ForEachAttribute(ViewOf(name), append)) return false;
  pairs->swap(found);
  return true;
}

std::list<SimpleRDN>::iterator FindKey(std::list<SimpleRDN>* pairs, const char* key) {
  return std::find_if(pairs->begin(), pairs->end(), [key](const SimpleRDN& pair) {
    return CompareIgnoreCase(pair.key.c_str(), key) == 0;
  });
}

}  // namespace

bool X509Name::GetSimpleRDN(const char* oid, CZEPString& out) const {
  return ReadSimpleRdn(*this, oid, &out);
}

bool X509Name::GetSimpleRDN(const char* oid, std::wstring& out) const {
  return ReadSimpleRdn(*this, oid, &out);
}

bool X509Name::SetSimpleRDN(const char* oid, const char* value) {
  if (cbData == 0) return false;
  FirstAttributes attributes;
  if (!attributes.Decode(*this)) {
    SetLastError(kNameFailure);
    return false;
  }
  CERT_RDN_ATTR* attr = attributes.Find(oid);
  if (attr == nullptr) return false;
  RDNAttr made;
  MakeRDNAttr(oid, value, made);
  // The tree releases its arrays itself, so that it gets one of its own.
  std::unique_ptr<BYTE[]> bytes(new BYTE[made.value.cbData]);
  std::copy_n(made.value.pbData, made.value.cbData, bytes.get());
  delete[] attr->Value.pbData;
  attr->Value = {made.value.cbData, bytes.release()};
  attr->dwValueType = made.valueType;
  SetBy(attributes.info(), true);
  return true;
}

bool X509Name::SetSimpleRDN(const SimpleRDN& rdn) {
  return SetSimpleRDN(rdn.key.c_str(), rdn.value.c_str());
}

void X509Name::GetSimpleRDNList(std::list<SimpleRDN>& out, bool) const {
  out.clear();
  if (!TryGetSimpleRDNList(out)) ThrowUntyped(kNameFailure);
}

bool X509Name::TryGetSimpleRDNList(std::list<SimpleRDN>& out) const {
  return ReadPairs(*this, &out);
}

void X509Name::GetSimpleRDNVector(std::vector<SimpleRDN>& out) const {
  out.clear();
  if (!ReadPairs(*this, &out)) ThrowUntyped(kNameFailure);
}

void X509Name::MergeRDNAtributes(std::list<SimpleRDN>& target, std::list<SimpleRDN>& source,
                                 const char* key) {
  if (key == nullptr) key = "";
  const auto from = FindKey(&source, key);
  const auto to = FindKey(&target, key);
  const bool in_source = from != source.end();
  const bool in_target = to != target.end();
  if (in_source && in_target) {
    to->value = from->value;
  } else if (in_source) {
    target.push_back(*from);
  } else if (in_target) {
    target.erase(to);
  }
}

}  // namespace Ortholan
