#include "strict/constraints/subtree_index.h"

#include <algorithm>
#include <tuple>

#include "strict/constraints/constrained_name.h"
#include "strict/constraints/subtree.h"
#include "strict/general_names/host.h"
#include "strict/general_names/ip_address.h"

namespace Ortholan::strict {
namespace {

// FNV-1a from the last character to the first, so that the hashes of all suffixes come in one pass.
constexpr uint64_t kHashStart = 0xCBF29CE484222325;
constexpr uint64_t HashStep(uint64_t hash, char c) {
  return (hash ^ static_cast<uint8_t>(ToAsciiLower(c))) * 0x100000001B3;
}

uint64_t HashOf(std::string_view host) {
  uint64_t hash = kHashStart;
  for (size_t i = host.size(); i-- != 0;) hash = HashStep(hash, host[i]);
  return hash;
}

// Hosts of another role or form stand elsewhere.
uint64_t KeyOf(uint64_t hash, NameForm form, unsigned role) {
  return hash + (static_cast<uint64_t>(form) * 8 + role) * 0x9E3779B97F4A7C15;
}

// The first address of a range.
struct FirstAddress {
  uint8_t octets[kIPv6Octets] = {};
  size_t size;

  explicit FirstAddress(ByteView range) : size(range.size / 2) {
    for (size_t i = 0; i < size; ++i) octets[i] = range[i] & range[size + i];
  }
  // By family and then by address.
  int Compare(ByteView address) const {
    if (size != address.size) return size < address.size ? -1 : 1;
    return std::memcmp(octets, address.data, size);
  }
  int Compare(const FirstAddress& other) const { return Compare({other.octets, other.size}); }
};

bool HoldsRange(const Subtree& wide, const Subtree& narrow) {
  const FirstAddress first(narrow.range);
  return IsInIpRange({first.octets, first.size}, wide.range);
}

}  // namespace

SubtreeIndex::SubtreeIndex(const Subtree* begin, const Subtree* end) {
  for (const Subtree* subtree = begin; subtree != end; ++subtree) {
    if (subtree->kind == Subtree::Kind::kRange) {
      ranges_.push_back(subtree);
    } else if (subtree->form == NameForm::kDns || subtree->form == NameForm::kUri ||
               subtree->form == NameForm::kMail) {
      AddHosts(*subtree);
    }
  }
  SortHosts();
  SortRanges();
}

void SubtreeIndex::AddHost(NameForm form, Role role, std::string_view host,
                           const Subtree* subtree) {
  hosts_.push_back(
      {KeyOf(HashOf(host), form, static_cast<unsigned>(role)), form, role, host, subtree});
}

void SubtreeIndex::AddHosts(const Subtree& subtree) {
  switch (subtree.kind) {
    case Subtree::Kind::kTree:
      AddHost(subtree.form, Role::kTree, subtree.host, &subtree);
      // What a wildcard may stand for.
      AddHost(subtree.form, Role::kParentOfTree, BehindFirstLabel(subtree.host), &subtree);
      break;
    case Subtree::Kind::kBelow:
      AddHost(subtree.form, Role::kBelow, subtree.host, &subtree);
      break;
    case Subtree::Kind::kHost:
      AddHost(subtree.form, Role::kHost, subtree.host, &subtree);
      break;
    case Subtree::Kind::kMailbox:
      AddHost(subtree.form, Role::kMailHost, subtree.host, &subtree);
      break;
    default:
      break;
  }
}

// Rows of one key stand in the order of the list.
void SubtreeIndex::SortHosts() {
  std::sort(hosts_.begin(), hosts_.end(), [](const HostRow& a, const HostRow& b) {
    return std::tie(a.key, a.subtree) < std::tie(b.key, b.subtree);
  });
}

// Ranges are nested or apart: those that another holds are left out.
void SubtreeIndex::SortRanges() {
  std::sort(ranges_.begin(), ranges_.end(), [](const Subtree* a, const Subtree* b) {
    const int order = FirstAddress(a->range).Compare(FirstAddress(b->range));
    if (order != 0) return order < 0;
    // The wider mask is the smaller number.
    const size_t half = a->range.size / 2;
    return std::memcmp(a->range.data + half, b->range.data + half, half) < 0;
  });
  size_t kept = 0;
  for (const Subtree* range : ranges_) {
    if (kept != 0 && HoldsRange(*ranges_[kept - 1], *range)) continue;
    ranges_[kept++] = range;
  }
  ranges_.resize(kept);
}

const Subtree* SubtreeIndex::FindRow(NameForm form, Role role, std::string_view host, uint64_t hash,
                                     Budget* budget) const {
  const uint64_t key = KeyOf(hash, form, static_cast<unsigned>(role));
  auto row = std::lower_bound(hosts_.begin(), hosts_.end(), key,
                              [](const HostRow& each, uint64_t value) { return each.key < value; });
  for (; row != hosts_.end() && row->key == key && budget->Take(); ++row) {
    if (row->form == form && row->role == role && SameWithoutCase(row->host, host)) {
      return row->subtree;
    }
  }
  return nullptr;
}

// The subtree of a suffix that holds the host, the shortest suffix first.
const Subtree* SubtreeIndex::FindSuffix(const ConstrainedName& name, Budget* budget) const {
  const std::string_view host = name.host;
  uint64_t hash = kHashStart;
  const Subtree* found = FindRow(name.form, Role::kTree, {}, hash, budget);
  for (size_t i = host.size(); found == nullptr && i-- != 0;) {
    hash = HashStep(hash, host[i]);
    if (i != 0 && host[i - 1] != '.') continue;
    const std::string_view suffix = host.substr(i);
    found = FindRow(name.form, Role::kTree, suffix, hash, budget);
    if (found == nullptr && (i != 0 || name.has_wildcard)) {
      found = FindRow(name.form, Role::kBelow, suffix, hash, budget);
    }
  }
  return found;
}

const Subtree* SubtreeIndex::FindRange(ByteView address, Budget* budget) const {
  if (!budget->Take()) return nullptr;
  const auto after = std::upper_bound(ranges_.begin(), ranges_.end(), address,
                                      [](ByteView key, const Subtree* range) {
                                        return FirstAddress(range->range).Compare(key) > 0;
                                      });
  if (after == ranges_.begin()) return nullptr;
  const Subtree* const range = *(after - 1);
  return IsInIpRange(address, range->range) ? range : nullptr;
}

bool SubtreeIndex::FindHost(const ConstrainedName& name, Budget* budget, Holding* holding,
                            const Subtree** subtree) const {
  const uint64_t hash = HashOf(name.host);
  // Which mailboxes at one host are the same is told one by one.
  if (name.form == NameForm::kMail &&
      (name.host.empty() || name.is_beyond_ascii ||
       FindRow(name.form, Role::kMailHost, name.host, hash, budget) != nullptr)) {
    return false;
  }
  *holding = Holding::kInside;
  *subtree = FindSuffix(name, budget);
  if (*subtree == nullptr) {
    const Role role = name.has_wildcard ? Role::kParentOfTree : Role::kHost;
    *subtree = FindRow(name.form, role, name.host, hash, budget);
    if (name.has_wildcard) *holding = Holding::kOverlap;
  }
  return true;
}

bool SubtreeIndex::Find(const ConstrainedName& name, Budget* budget, Holding* holding,
                        const Subtree** subtree) const {
  if (name.form == NameForm::kAddress) {
    *subtree = FindRange(name.address, budget);
    *holding = Holding::kInside;
  } else if (name.form != NameForm::kDns && name.form != NameForm::kUri &&
             name.form != NameForm::kMail) {
    return false;
  } else if (!FindHost(name, budget, holding, subtree)) {
    return false;
  }
  if (*subtree == nullptr) *holding = Holding::kOutside;
  return !budget->IsSpent();
}

}  // namespace Ortholan::strict
