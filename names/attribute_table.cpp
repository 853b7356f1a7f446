#include "names/attribute_table.h"

#include <ortholan/name_encoder.h>

#include <cstdint>
#include <string>

#include "foundation/code_page.h"

namespace Ortholan {

namespace {

constexpr std::string_view TextKey(const AttributeRow& row) { return row.oid; }
constexpr ByteView DerKey(const AttributeRow& row) { return row.oid_content(); }

constexpr size_t Length(std::string_view key) { return key.size(); }
constexpr size_t Length(ByteView key) { return key.size; }

bool Same(std::string_view a, std::string_view b) { return a == b; }
// A few octets each: less work than a call of memcmp.
bool Same(ByteView a, ByteView b) {
  if (a.size != b.size) return false;
  size_t i = 0;
  while (i < a.size && a[i] == b[i]) ++i;
  return i == a.size;
}

// A slot for each row by the size and the last item of its key, which no two rows share; the
// factor that keeps the slots apart is found by the compiler.
template <auto KeyOf>
struct RowIndex {
  static constexpr size_t kSlots = 32;
  const AttributeRow* rows[kSlots] = {};
  size_t factor = 0;

  constexpr RowIndex() {
    while (!Fill(++factor)) continue;
  }
  template <typename Key>
  static constexpr size_t Slot(const Key& key, size_t factor) {
    const size_t length = Length(key);
    return (length * factor + static_cast<BYTE>(key[length - 1])) % kSlots;
  }
  constexpr bool Fill(size_t candidate) {
    for (const AttributeRow*& slot : rows) slot = nullptr;
    for (const AttributeRow& row : kAttributes) {
      const AttributeRow*& slot = rows[Slot(KeyOf(row), candidate)];
      if (slot != nullptr) return false;
      slot = &row;
    }
    return true;
  }
  template <typename Key>
  const AttributeRow* Find(const Key& key) const {
    if (key.empty()) return nullptr;
    const AttributeRow* row = rows[Slot(key, factor)];
    return row != nullptr && Same(KeyOf(*row), key) ? row : nullptr;
  }
};

constexpr RowIndex<TextKey> kByText;
constexpr RowIndex<DerKey> kByDer;

}  // namespace

const AttributeRow* FindAttribute(std::string_view oid) { return kByText.Find(oid); }

const AttributeRow* FindAttributeByDer(ByteView content) { return kByDer.Find(content); }

int AttributePriority(std::string_view oid) {
  const AttributeRow* row = FindAttribute(oid);
  return row != nullptr ? row->rank : kUnrankedAttribute;
}

int AttributePriority(std::wstring_view oid) {
  if (oid.size() + 1 > kMaxConvertedText) return kUnrankedAttribute;
  // The 8-bit text ends at the first NUL; characters above 0x7F are in no identifier.
  std::string narrow;
  for (const wchar_t c : oid) {
    if (c == L'\0') break;
    if (static_cast<uint32_t>(c) > 0x7F) return kUnrankedAttribute;
    narrow.push_back(static_cast<char>(c));
  }
  return AttributePriority(std::string_view(narrow));
}

int GetAttrPriority(const CZEPString& oid) {
  return AttributePriority(std::string_view(oid.c_str(), static_cast<size_t>(oid.GetLength())));
}

int GetAttrPriority(const std::wstring& oid) { return AttributePriority(std::wstring_view(oid)); }

}  // namespace Ortholan
