#include <ortholan/cert_extension.h>

#include <algorithm>

#include "bytes/byte_view.h"
#include "foundation/blob_view.h"

template class std::list<Ortholan::CertExtension>;

namespace Ortholan {
namespace {

constexpr DWORD kCountField = 4;

template <typename List, typename Matches>
auto FindOid(List* list, Matches matches) {
  return std::find_if(list->begin(), list->end(), [&matches](const CertExtension& extension) {
    return matches(extension.oid);
  });
}

}  // namespace

CertExtensionList::CertExtensionList() = default;
CertExtensionList::CertExtensionList(const CertExtensionList& other) = default;
CertExtensionList& CertExtensionList::operator=(const CertExtensionList& other) = default;
CertExtensionList::~CertExtensionList() = default;

bool CertExtensionList::FindExtension(CZEPString oid, CertExtension& out) const {
  const ByteView wanted = AsBytes(oid.c_str(), static_cast<size_t>(oid.GetLength()));
  const auto found = FindOid(this, [wanted](const IdentObj& each) {
    // A size without a pointer is no empty identifier.
    return each.cbData == wanted.size && SameBytes(ViewOf(each), wanted);
  });
  if (found == end()) {
    out.oid.Clear();
    return false;
  }
  out = *found;
  return true;
}

bool CertExtensionList::Update(const CertExtension& ext) {
  const auto found = FindOid(this, [&ext](const IdentObj& each) { return each == ext.oid; });
  if (found == end()) {
    push_back(ext);
    return true;
  }
  if (*found == ext) return false;
  *found = ext;
  return true;
}

void CertExtensionList::MergeLists(const CertExtensionList& other) {
  // Duplicates in a list would replace each other in itself.
  if (&other == this) return;
  for (const CertExtension& ext : other) Update(ext);
}

DWORD CertExtensionList::GetObjectSize() const {
  DWORD size = kCountField;
  for (const CertExtension& ext : *this) size += ext.GetObjectSize();
  return size;
}

}  // namespace Ortholan
