#include "names/decoder/short_key.h"

#include <atomic>
#include <iterator>

#include "platform/calls.h"

namespace Ortholan {
namespace {

std::atomic<uint64_t> remembered[std::size(kAttributes)];

// The key with its size, 0 where it is too long or not ASCII.
uint64_t Pack(std::wstring_view key) {
  if (key.size() > ShortKey::kLongest) return 0;
  uint64_t word = static_cast<uint64_t>(key.size()) << ShortKey::kSizeShift;
  for (size_t i = 0; i < key.size(); ++i) {
    const auto c = static_cast<uint32_t>(key[i]);
    if (c >= 0x80) return 0;
    word |= static_cast<uint64_t>(c) << (ShortKey::kTextShift + 8 * i);
  }
  return word;
}

}  // namespace

ShortKey GetShortKey(const TypeText& type) {
  if (type.row() == nullptr) return ShortKey();
  std::atomic<uint64_t>& slot = remembered[type.row() - kAttributes];
  const uint16_t version = AttributeInfoVersion();
  const uint64_t word = slot.load(std::memory_order_relaxed);
  if ((word & 0xFFFF) == version && word >> ShortKey::kSizeShift != 0) return ShortKey(word);
  const uint64_t fresh = Pack(GetX500KeyFromOid(type));
  if (fresh != 0) slot.store(fresh | version, std::memory_order_relaxed);
  return ShortKey(fresh);
}

}  // namespace Ortholan
