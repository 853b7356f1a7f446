#include "strict/general_names/ip_address.h"

#include <algorithm>

#include "bytes/hex.h"

namespace Ortholan::strict {
namespace {

constexpr size_t kGroups = kIPv6Octets / 2;

// Decimal digits at the front without leading zeros, at most `limit`; -1 for none.
int TakeDecimal(std::string_view* text, int limit) {
  size_t count = 0;
  int value = 0;
  while (count < text->size() && (*text)[count] >= '0' && (*text)[count] <= '9') {
    if (count == 1 && text->front() == '0') return -1;
    value = value * 10 + ((*text)[count++] - '0');
    if (value > limit) return -1;
  }
  text->remove_prefix(count);
  return count != 0 ? value : -1;
}

bool Take(std::string_view* text, std::string_view front) {
  if (text->substr(0, front.size()) != front) return false;
  text->remove_prefix(front.size());
  return true;
}

bool ReadIPv4(std::string_view text, uint8_t* octets) {
  for (size_t i = 0; i < kIPv4Octets; ++i) {
    if (i != 0 && !Take(&text, ".")) return false;
    const int value = TakeDecimal(&text, 0xFF);
    if (value < 0) return false;
    octets[i] = static_cast<uint8_t>(value);
  }
  return text.empty();
}

// One to four hexadecimal digits.
bool TakeGroup(std::string_view* text, uint8_t* octets) {
  size_t count = 0;
  unsigned value = 0;
  for (; count < 4 && count < text->size(); ++count) {
    const int digit = HexDigitValue((*text)[count]);
    if (digit < 0) break;
    value = value << 4 | static_cast<unsigned>(digit);
  }
  text->remove_prefix(count);
  octets[0] = static_cast<uint8_t>(value >> 8);
  octets[1] = static_cast<uint8_t>(value);
  return count != 0;
}

// Groups parted by ":" up to "::" or the end; the last two may be an IPv4 address. Moves `*text`
// behind them.
bool TakeGroups(std::string_view* text, uint8_t* octets, size_t* groups) {
  if (text->empty() || text->substr(0, 2) == "::") return true;
  for (;;) {
    if (*groups + 2 <= kGroups && ReadIPv4(*text, octets + 2 * *groups)) {
      *groups += 2;
      *text = {};
      return true;
    }
    if (*groups == kGroups || !TakeGroup(text, octets + 2 * *groups)) return false;
    ++*groups;
    if (text->empty() || text->substr(0, 2) == "::") return true;
    if (!Take(text, ":")) return false;
  }
}

bool ReadIPv6(std::string_view text, uint8_t* octets) {
  uint8_t behind[kIPv6Octets] = {};
  size_t front = 0;
  size_t back = 0;
  std::fill_n(octets, kIPv6Octets, uint8_t{0});
  if (!TakeGroups(&text, octets, &front)) return false;
  if (text.empty()) return front == kGroups;
  Take(&text, "::");
  // "::" stands for at least one group.
  if (!TakeGroups(&text, behind, &back) || !text.empty() || front + back >= kGroups) return false;
  std::copy_n(behind, 2 * back, octets + kIPv6Octets - 2 * back);
  return true;
}

void PutIPv4(ByteView octets, Output* out) {
  for (size_t i = 0; i < kIPv4Octets; ++i) {
    if (i != 0) out->Put('.');
    PutDecimal(octets[i], out);
  }
}

void PutGroup(unsigned value, Output* out) {
  constexpr char kDigits[] = "0123456789abcdef";
  int shift = 12;
  while (shift != 0 && value >> shift == 0) shift -= 4;
  for (; shift >= 0; shift -= 4) out->Put(kDigits[value >> shift & 0xF]);
}

struct ZeroRun {
  size_t start = 0;
  size_t count = 0;
};

// The longest run of two zero groups or more, the first of them (RFC 5952 4.2.3).
ZeroRun LongestZeros(const unsigned (&groups)[kGroups]) {
  ZeroRun longest;
  for (size_t start = 0; start < kGroups; ++start) {
    size_t end = start;
    while (end < kGroups && groups[end] == 0) ++end;
    if (end - start > std::max<size_t>(longest.count, 1)) longest = {start, end - start};
    start = end;
  }
  return longest;
}

void PutIPv6(ByteView octets, Output* out) {
  constexpr uint8_t kMapped[] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF};
  if (SameBytes(octets.First(sizeof kMapped), {kMapped, sizeof kMapped})) {
    out->Put("::ffff:");
    return PutIPv4(octets.From(sizeof kMapped), out);
  }
  unsigned groups[kGroups];
  for (size_t i = 0; i < kGroups; ++i) {
    groups[i] = static_cast<unsigned>(octets[2 * i]) << 8 | octets[2 * i + 1];
  }
  const ZeroRun zeros = LongestZeros(groups);
  for (size_t i = 0; i < kGroups; ++i) {
    if (zeros.count != 0 && i == zeros.start) {
      out->Put("::");
      i += zeros.count - 1;
      continue;
    }
    if (i != 0 && (zeros.count == 0 || i != zeros.start + zeros.count)) out->Put(':');
    PutGroup(groups[i], out);
  }
}

void PutAddress(ByteView octets, Output* out) {
  octets.size == kIPv4Octets ? PutIPv4(octets, out) : PutIPv6(octets, out);
}

void SetPrefix(size_t bits, uint8_t* mask, size_t size) {
  for (size_t i = 0; i < size; ++i) {
    const size_t ones = std::min<size_t>(bits - std::min(bits, 8 * i), 8);
    mask[i] = static_cast<uint8_t>(0xFF00u >> ones);
  }
}

bool ReadMask(std::string_view text, size_t size, uint8_t* mask) {
  IpAddress written;
  if (ReadIpAddress(text, &written)) {
    size_t bits;
    if (written.size != size || !IsPrefixMask(written.view(), &bits)) return false;
    std::copy_n(written.octets, size, mask);
    return true;
  }
  const int bits = TakeDecimal(&text, static_cast<int>(8 * size));
  if (bits < 0 || !text.empty()) return false;
  SetPrefix(static_cast<size_t>(bits), mask, size);
  return true;
}

}  // namespace

bool ReadIpAddress(std::string_view text, IpAddress* address) {
  IpAddress read;
  if (ReadIPv4(text, read.octets)) {
    read.size = kIPv4Octets;
  } else if (ReadIPv6(text, read.octets)) {
    read.size = kIPv6Octets;
  } else {
    return false;
  }
  *address = read;
  return true;
}

bool ReadIpRange(std::string_view text, IpAddress* range) {
  const size_t slash = text.find('/');
  IpAddress read;
  if (slash == std::string_view::npos || !ReadIpAddress(text.substr(0, slash), &read) ||
      !ReadMask(text.substr(slash + 1), read.size, read.octets + read.size)) {
    return false;
  }
  read.size *= 2;
  *range = read;
  return true;
}

bool IsPrefixMask(ByteView mask, size_t* bits) {
  size_t ones = 0;
  while (ones < 8 * mask.size && (mask[ones / 8] >> (7 - ones % 8) & 1) != 0) ++ones;
  *bits = ones;
  for (size_t bit = ones; bit < 8 * mask.size; ++bit) {
    if ((mask[bit / 8] >> (7 - bit % 8) & 1) != 0) return false;
  }
  return true;
}

bool IsInIpRange(ByteView address, ByteView range) {
  if (2 * address.size != range.size) return false;
  for (size_t i = 0; i < address.size; ++i) {
    if (((address[i] ^ range[i]) & range[address.size + i]) != 0) return false;
  }
  return true;
}

bool PutIpName(ByteView octets, Output* out) {
  if (IsIpAddressSize(octets.size)) {
    PutAddress(octets, out);
    return true;
  }
  if (!IsIpRangeSize(octets.size)) return false;
  const size_t half = octets.size / 2;
  size_t bits;
  PutAddress(octets.First(half), out);
  out->Put('/');
  if (IsPrefixMask(octets.From(half), &bits)) {
    PutDecimal(bits, out);
  } else {
    PutAddress(octets.From(half), out);
  }
  return true;
}

}  // namespace Ortholan::strict
