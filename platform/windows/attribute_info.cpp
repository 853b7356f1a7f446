// Attribute look-ups with a memory. A look-up walks the platform's whole registry and can take tens
// of microseconds, while the names of a process use few attribute types: so each answer, that there
// is none included, is kept in a table of fixed size for the life of the process. The platform
// allows that: its records stay where they are, and what is registered later reaches only processes
// that start later.
//
// A slot is claimed and published by its state; nothing waits for another thread. Whoever finds no
// slot, or one that is being written, asks the platform; two threads may then keep the same answer
// twice, which costs a slot and nothing else.

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "platform/calls.h"

namespace Ortholan {
namespace {

constexpr std::size_t kSlots = 256;
constexpr std::size_t kProbes = 16;
constexpr std::size_t kLongestKey = 64;
// Unknown names come from foreign text and know no limit; known ones keep room beside them.
constexpr int kMostUnknown = 128;

enum SlotState : std::uint32_t { kEmpty, kWriting, kReady };

struct Slot {
  std::atomic<std::uint32_t> state;
  std::uint32_t hash;
  DWORD keyType;
  std::uint32_t length;  // characters
  const CRYPT_OID_INFO* info;
  wchar_t text[kLongestKey];
};

// Zero before any code runs, so that the order of start-up does not matter.
Slot slots[kSlots];
std::atomic<int> unknown_kept;

static_assert(std::atomic<std::uint32_t>::is_always_lock_free);

// An octet above 7F is the number that it is, whatever the sign of char.
template <class Char>
wchar_t UnitOf(Char c) {
  return static_cast<wchar_t>(static_cast<std::make_unsigned_t<Char>>(c));
}

// A key as the caller holds it.
template <class Char>
struct Key {
  DWORD type;
  const Char* text;
  std::uint32_t length = 0;
  std::uint32_t hash = 2166136261;

  // False for a key that is too long to be kept. The hash is FNV-1a over the characters.
  bool Measure() {
    hash ^= type;
    for (; text[length] != 0; ++length) {
      if (length == kLongestKey) return false;
      hash = (hash ^ UnitOf(text[length])) * 16777619;
    }
    return true;
  }
  bool IsIn(const Slot& slot) const {
    if (slot.hash != hash || slot.keyType != type || slot.length != length) return false;
    std::uint32_t i = 0;
    while (i < length && slot.text[i] == UnitOf(text[i])) ++i;
    return i == length;
  }
  Slot& SlotAt(std::size_t probe) const { return slots[(hash + probe) % kSlots]; }
};

// The slot that holds the key's answer; null where there is none.
template <class Char>
const Slot* Recall(const Key<Char>& key) {
  for (std::size_t probe = 0; probe < kProbes; ++probe) {
    const Slot& slot = key.SlotAt(probe);
    const std::uint32_t state = slot.state.load(std::memory_order_acquire);
    if (state == kEmpty) return nullptr;
    if (state == kReady && key.IsIn(slot)) return &slot;
  }
  return nullptr;
}

bool MayKeepUnknown() {
  if (unknown_kept.load(std::memory_order_relaxed) >= kMostUnknown) return false;
  unknown_kept.fetch_add(1, std::memory_order_relaxed);
  return true;
}

template <class Char>
void Keep(const Key<Char>& key, const CRYPT_OID_INFO* info) {
  if (info == nullptr && !MayKeepUnknown()) return;
  for (std::size_t probe = 0; probe < kProbes; ++probe) {
    Slot& slot = key.SlotAt(probe);
    std::uint32_t expected = kEmpty;
    if (!slot.state.compare_exchange_strong(expected, kWriting, std::memory_order_relaxed)) {
      continue;
    }
    slot.hash = key.hash;
    slot.keyType = key.type;
    slot.length = key.length;
    slot.info = info;
    for (std::uint32_t i = 0; i < key.length; ++i) slot.text[i] = UnitOf(key.text[i]);
    slot.state.store(kReady, std::memory_order_release);
    return;
  }
}

// The platform takes a pointer to what it only reads.
const CRYPT_OID_INFO* Ask(DWORD keyType, const void* key) {
  const DWORD error = GetLastError();
  const CRYPT_OID_INFO* const info =
      CryptFindOIDInfo(keyType, const_cast<void*>(key), CRYPT_RDN_ATTR_OID_GROUP_ID);
  SetLastError(error);
  return info;
}

template <class Char>
const CRYPT_OID_INFO* RecallOrAsk(DWORD keyType, const void* text) {
  Key<Char> key{keyType, static_cast<const Char*>(text)};
  if (!key.Measure()) return Ask(keyType, text);
  if (const Slot* const slot = Recall(key)) return slot->info;
  const CRYPT_OID_INFO* const info = Ask(keyType, text);
  Keep(key, info);
  return info;
}

}  // namespace

const CRYPT_OID_INFO* FindAttributeInfo(DWORD keyType, const void* key) noexcept {
  if (key == nullptr) return nullptr;
  if (keyType == CRYPT_OID_INFO_OID_KEY) return RecallOrAsk<char>(keyType, key);
  if (keyType == CRYPT_OID_INFO_NAME_KEY) return RecallOrAsk<wchar_t>(keyType, key);
  return Ask(keyType, key);
}

}  // namespace Ortholan
