// A name as the platform's CERT_NAME_INFO tree.
#include <ortholan/name_decoder.h>

#include <algorithm>
#include <limits>

#include "foundation/status_code.h"
#include "foundation/utf16.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"

namespace Ortholan {
namespace {

// Zero bytes behind a text, which `cbData` counts: a reader that wants a terminator finds one.
constexpr uint64_t kPaddingBytes = 4;

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

bool FillType(const Element& child, CERT_RDN_ATTR* attr) {
  TypeText type;
  if (!DecodeAttrOid(child, &type)) return false;
  attr->pszObjId = new char[type.dotted().size() + 1];
  *std::copy(type.dotted().begin(), type.dotted().end(), attr->pszObjId) = '\0';
  return true;
}

// Room for `units` and the padding behind them, which is zeroed; null, with the last error set,
// where that passes 32 bits.
BYTE* NewText(size_t units, CERT_RDN_ATTR* attr) {
  const uint64_t size = 2 * static_cast<uint64_t>(units) + kPaddingBytes;
  if (size > std::numeric_limits<DWORD>::max()) {
    FailWith(Status::kNoMemory);
    return nullptr;
  }
  BYTE* const bytes = new BYTE[size];
  std::fill_n(bytes + 2 * units, kPaddingBytes, BYTE{0});
  attr->dwValueType = CERT_RDN_UNICODE_STRING;
  attr->Value = {static_cast<DWORD>(size), bytes};
  return bytes;
}

bool FillText(std::wstring_view text, CERT_RDN_ATTR* attr) {
  BYTE* const bytes = NewText(text.size(), attr);
  if (bytes != nullptr) WriteUtf16Le(text, bytes);
  return bytes != nullptr;
}

bool FillAscii(std::string_view text, CERT_RDN_ATTR* attr) {
  BYTE* const bytes = NewText(text.size(), attr);
  if (bytes == nullptr) return false;
  for (size_t i = 0; i < text.size(); ++i) {
    bytes[2 * i] = static_cast<BYTE>(text[i]);
    bytes[2 * i + 1] = 0;
  }
  return true;
}

void FillEncoding(ByteView element, CERT_RDN_ATTR* attr) {
  attr->dwValueType = CERT_RDN_ENCODED_BLOB;
  BYTE* bytes = new BYTE[element.size];
  std::copy(element.begin(), element.end(), bytes);
  attr->Value = {static_cast<DWORD>(element.size), bytes};
}

// Most values are ASCII and need no wide text between.
bool FillValue(const Element& child, std::wstring* scratch, CERT_RDN_ATTR* attr) {
  AsciiValue ascii;
  if (ascii.Decode(child)) return FillAscii(ascii.text(), attr);
  scratch->clear();
  if (DecodeAttrData(child, scratch)) return FillText(*scratch, attr);
  FillEncoding(child.bytes, attr);
  return true;
}

bool DecodeElem(ByteView rdn, std::wstring* scratch, CERT_RDN_ATTR* attr) {
  Status status = Status::kOk;
  AttributeElements attribute;
  if (!SplitRdn(rdn, &attribute, &status)) {
    return status != Status::kOk ? FailWith(status) : false;
  }
  for (const Element& child : attribute.child) {
    status = StandsAlone(child);
    if (status != Status::kOk) return FailWith(status);
    const bool filled = IsType(child) ? FillType(child, attr) : FillValue(child, scratch, attr);
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
  std::wstring scratch;
  ElementReader reader(bytes);
  Element rdn;
  for (DWORD i = 0; reader.Next(&rdn); ++i) {
    if (!DecodeElem(rdn.bytes, &scratch, &tree->rgRDN[i].rgRDNAttr[0])) return false;
  }
  return true;
}

}  // namespace Ortholan
