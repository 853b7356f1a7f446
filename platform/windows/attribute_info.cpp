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
#include <cwchar>
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

struct Key {
  DWORD type;
  std::uint32_t length;  // characters
  std::uint32_t hash;
  wchar_t text[kLongestKey];
};

struct Slot {
  std::atomic<std::uint32_t> state;
  Key key;
  const CRYPT_OID_INFO* info;
};

// Zero before any code runs, so that the order of start-up does not matter.
Slot slots[kSlots];
std::atomic<int> unknown_kept;

static_assert(std::atomic<std::uint32_t>::is_always_lock_free);

// False for a key that is too long to be kept. FNV-1a over the characters.
template <class Char>
bool MakeKey(DWORD type, const Char* text, Key* key) {
  std::uint32_t hash = 2166136261u ^ type;
  std::size_t length = 0;
  for (; text[length] != 0; ++length) {
    if (length == kLongestKey) return false;
    // An octet above 7F stays the number that it is, whatever the sign of char.
    const auto unit = static_cast<wchar_t>(static_cast<std::make_unsigned_t<Char>>(text[length]));
    key->text[length] = unit;
    hash = (hash ^ unit) * 16777619u;
  }
  key->type = type;
  key->length = static_cast<std::uint32_t>(length);
  key->hash = hash;
  return true;
}

bool AreEqual(const Key& a, const Key& b) {
  return a.hash == b.hash && a.type == b.type && a.length == b.length &&
         std::wmemcmp(a.text, b.text, a.length) == 0;
}

Slot& SlotAt(const Key& key, std::size_t probe) { return slots[(key.hash + probe) % kSlots]; }

// The slot that holds the key's answer; null where there is none.
const Slot* Recall(const Key& key) {
  for (std::size_t probe = 0; probe < kProbes; ++probe) {
    const Slot& slot = SlotAt(key, probe);
    const std::uint32_t state = slot.state.load(std::memory_order_acquire);
    if (state == kEmpty) return nullptr;
    if (state == kReady && AreEqual(slot.key, key)) return &slot;
  }
  return nullptr;
}

void Keep(const Key& key, const CRYPT_OID_INFO* info) {
  if (info == nullptr && unknown_kept.fetch_add(1, std::memory_order_relaxed) >= kMostUnknown) {
    unknown_kept.store(kMostUnknown, std::memory_order_relaxed);
    return;
  }
  for (std::size_t probe = 0; probe < kProbes; ++probe) {
    Slot& slot = SlotAt(key, probe);
    std::uint32_t expected = kEmpty;
    if (!slot.state.compare_exchange_strong(expected, kWriting, std::memory_order_relaxed)) {
      continue;
    }
    slot.key = key;
    slot.info = info;
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

}  // namespace

const CRYPT_OID_INFO* FindAttributeInfo(DWORD keyType, const void* key) noexcept {
  if (key == nullptr) return nullptr;
  Key wanted;
  bool fits = false;
  if (keyType == CRYPT_OID_INFO_OID_KEY) {
    fits = MakeKey(keyType, static_cast<const char*>(key), &wanted);
  } else if (keyType == CRYPT_OID_INFO_NAME_KEY) {
    fits = MakeKey(keyType, static_cast<const wchar_t*>(key), &wanted);
  }
  if (!fits) return Ask(keyType, key);
  if (const Slot* const slot = Recall(wanted)) return slot->info;
  const CRYPT_OID_INFO* const info = Ask(keyType, key);
  Keep(wanted, info);
  return info;
}

}  // namespace Ortholan
