#include "names/decoder/short_key.h"

#include <atomic>
#include <iterator>

#include "platform/calls.h"

namespace Ortholan {
namespace {

std::atomic<uint64_t> remembered_keys[std::size(kAttributes)];

}  // namespace

ShortKey GetShortKey(const TypeText& type) {
  if (type.row() == nullptr) return ShortKey();
  std::atomic<uint64_t>& slot = remembered_keys[type.row() - kAttributes];
  const uint16_t version = AttributeInfoVersion();
  const RememberedText kept(slot.load(std::memory_order_relaxed));
  if (kept.version() == version && kept.has_text()) return ShortKey(kept);
  const std::wstring_view key = GetX500KeyFromOid(type);
  const RememberedText fresh =
      RememberedText::Of(key, version).With(static_cast<uint8_t>(key.size()));
  if (!fresh.has_text()) return ShortKey();
  slot.store(fresh.word(), std::memory_order_relaxed);
  return ShortKey(fresh);
}

}  // namespace Ortholan
