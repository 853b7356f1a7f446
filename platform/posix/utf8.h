// UTF-8 to UTF-16 and back over whatever holds the units: wide text (one unit a wchar_t) or octets
// in UTF-16LE. Unicode 15, 3.9.

#ifndef ORTHOLAN_PLATFORM_POSIX_UTF8_H_
#define ORTHOLAN_PLATFORM_POSIX_UTF8_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/posix/lanes.h"
#include "platform/posix/pair_run.h"
#include "platform/posix/triple_run.h"

namespace Ortholan::posix {

inline constexpr std::uint32_t kReplacement = 0xFFFD;
inline constexpr std::uint32_t kLastScalar = 0x10FFFF;
inline constexpr std::size_t kRun = 8;  // ASCII is moved in runs of this many characters

inline bool IsHighSurrogate(std::uint32_t unit) { return (unit & 0xFFFFFC00) == 0xD800; }
inline bool IsLowSurrogate(std::uint32_t unit) { return (unit & 0xFFFFFC00) == 0xDC00; }
inline std::uint32_t HighSurrogate(std::uint32_t scalar) { return 0xD7C0 + (scalar >> 10); }
inline std::uint32_t LowSurrogate(std::uint32_t scalar) { return 0xDC00 + (scalar & 0x3FF); }

inline bool IsAsciiRun(const BYTE* text) {
  std::uint64_t run;
  std::memcpy(&run, text, kRun);
  return (run & 0x8080808080808080) == 0;
}

// Sources of UTF-16 units.

struct WideSource {
  const wchar_t* text;
  std::uint32_t operator[](std::size_t i) const { return static_cast<std::uint32_t>(text[i]); }
  // False where some character is above U+FFFF.
  bool ReadLanes(std::size_t at, std::uint64_t* lanes) const {
    std::uint32_t seen = 0;
    *lanes = 0;
    for (std::size_t i = 0; i < kLanes; ++i) {
      const std::uint32_t unit = (*this)[at + i];
      seen |= unit;
      *lanes |= static_cast<std::uint64_t>(unit) << (16 * i);
    }
    return seen <= 0xFFFF;
  }
};

struct LittleEndianSource {
  const BYTE* text;
  std::uint32_t operator[](std::size_t i) const {
    return text[2 * i] | static_cast<std::uint32_t>(text[2 * i + 1]) << 8;
  }
  bool ReadLanes(std::size_t at, std::uint64_t* lanes) const {
    *lanes = LoadLanes(text + 2 * at);
    return true;
  }
};

// Exchanges the octets of each whole UTF-16 unit: big-endian to little-endian and back.
inline void SwapUnits(const BYTE* from, std::size_t size, BYTE* to) {
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    to[i] = from[i + 1];
    to[i + 1] = from[i];
  }
}

template <class Source>
bool IsAsciiRun(Source text, std::size_t at) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kRun; ++i) bits |= text[at + i];
  return bits < 0x80;
}

// Sinks. Put and the runs return false, with nothing put, where the room ends. Sinks travel by
// value: their fields then live in registers, which stores through `out` could otherwise change.

struct UnitCounter {
  std::size_t size = 0;

  bool PutRun(const BYTE*) {
    size += kRun;
    return true;
  }
  bool PutUnits(std::uint64_t) {
    size += kLanes;
    return true;
  }
  bool Put(std::uint32_t scalar) {
    size += scalar > 0xFFFF ? 2 : 1;
    return true;
  }
};

struct WideWriter {
  wchar_t* out;
  std::size_t room;

  bool PutRun(const BYTE* text) {
    if (room < kRun) return false;
    for (std::size_t i = 0; i < kRun; ++i) out[i] = text[i];
    Advance(kRun);
    return true;
  }
  bool PutUnits(std::uint64_t lanes) {
    if (room < kLanes) return false;
    for (std::size_t i = 0; i < kLanes; ++i) {
      out[i] = static_cast<wchar_t>(lanes >> (16 * i) & 0xFFFF);
    }
    Advance(kLanes);
    return true;
  }
  bool Put(std::uint32_t scalar) {
    if (scalar > 0xFFFF) {
      if (room < 2) return false;
      out[0] = static_cast<wchar_t>(HighSurrogate(scalar));
      out[1] = static_cast<wchar_t>(LowSurrogate(scalar));
      Advance(2);
      return true;
    }
    if (room == 0) return false;
    out[0] = static_cast<wchar_t>(scalar);
    Advance(1);
    return true;
  }
  void Advance(std::size_t units) {
    out += units;
    room -= units;
  }
};

// For a room that was measured with UnitCounter.
struct LittleEndianWriter {
  BYTE* out;

  bool PutRun(const BYTE* text) {
    for (std::size_t i = 0; i < kRun; ++i) {
      out[2 * i] = text[i];
      out[2 * i + 1] = 0;
    }
    out += 2 * kRun;
    return true;
  }
  bool PutUnits(std::uint64_t lanes) {
    StoreLanes(lanes, out);
    out += 2 * kLanes;
    return true;
  }
  bool Put(std::uint32_t scalar) {
    if (scalar > 0xFFFF) {
      PutUnit(HighSurrogate(scalar));
      scalar = LowSurrogate(scalar);
    }
    PutUnit(scalar);
    return true;
  }
  void PutUnit(std::uint32_t unit) {
    out[0] = static_cast<BYTE>(unit);
    out[1] = static_cast<BYTE>(unit >> 8);
    out += 2;
  }
};

struct ByteWriter {
  BYTE* out;
  std::size_t room;

  template <class Source>
  bool PutRun(Source text, std::size_t at) {
    if (room < kRun) return false;
    for (std::size_t i = 0; i < kRun; ++i) out[i] = static_cast<BYTE>(text[at + i]);
    Advance(kRun);
    return true;
  }
  // Units of two or of three bytes each.
  bool PutPairs(std::uint64_t units) {
    if (room < kPairRunBytes) return false;
    WritePairRun(units, out);
    Advance(kPairRunBytes);
    return true;
  }
  bool PutTriples(std::uint64_t units) {
    if (room < kTripleRunBytes) return false;
    WriteTripleRun(units, out);
    Advance(kTripleRunBytes);
    return true;
  }
  bool Put(std::uint32_t scalar) {
    if (scalar < 0x80) {
      if (room < 1) return false;
      out[0] = static_cast<BYTE>(scalar);
      Advance(1);
    } else if (scalar < 0x800) {
      if (room < 2) return false;
      out[0] = static_cast<BYTE>(0xC0 | scalar >> 6);
      out[1] = Follower(scalar);
      Advance(2);
    } else if (scalar < 0x10000) {
      if (room < 3) return false;
      out[0] = static_cast<BYTE>(0xE0 | scalar >> 12);
      out[1] = Follower(scalar >> 6);
      out[2] = Follower(scalar);
      Advance(3);
    } else {
      if (room < 4) return false;
      out[0] = static_cast<BYTE>(0xF0 | scalar >> 18);
      out[1] = Follower(scalar >> 12);
      out[2] = Follower(scalar >> 6);
      out[3] = Follower(scalar);
      Advance(4);
    }
    return true;
  }
  static BYTE Follower(std::uint32_t bits) { return static_cast<BYTE>(0x80 | (bits & 0x3F)); }
  void Advance(std::size_t bytes) {
    out += bytes;
    room -= bytes;
  }
};

template <class Sink>
struct Converted {
  Sink sink;
  bool fits = true;     // false: the sink ran full
  bool broken = false;  // some part had no counterpart and was replaced
};

// The readers below return one character and the number of bytes or units that it was read from;
// kBroken stands for a part that is replaced. `left` is what is there, at least 1.
inline constexpr std::uint32_t kBroken = 0xFFFFFFFF;

// A character of three or four bytes, or one maximal broken part: a beginning that some character
// has, as far as it goes, or else one byte.
inline std::uint32_t ReadLongUtf8(const BYTE* text, std::size_t left, std::size_t* count) {
  const std::uint32_t lead = text[0];
  *count = 1;
  if (lead < 0xC2 || lead > 0xF4) return kBroken;
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  std::uint32_t scalar = lead & (0x7Fu >> size);
  // The first follower's range keeps out overlong forms, surrogates and what lies beyond U+10FFFF.
  BYTE low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  BYTE high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  for (; *count < size; ++*count) {
    if (*count == left || text[*count] < low || text[*count] > high) return kBroken;
    scalar = scalar << 6 | (text[*count] & 0x3Fu);
    low = 0x80;
    high = 0xBF;
  }
  return scalar;
}

inline std::uint32_t ReadUtf8(const BYTE* text, std::size_t left, std::size_t* count) {
  const std::uint32_t lead = text[0];
  if (lead < 0x80) {
    *count = 1;
    return lead;
  }
  if (lead - 0xC2 < 0xE0 - 0xC2 && left > 1 && (text[1] & 0xC0) == 0x80) {
    *count = 2;
    return (lead & 0x1F) << 6 | (text[1] & 0x3Fu);
  }
  return ReadLongUtf8(text, left, count);
}

// Broken are an unpaired surrogate and a wide character beyond U+10FFFF.
template <class Source>
std::uint32_t ReadUtf16(Source text, std::size_t at, std::size_t left, std::size_t* count) {
  const std::uint32_t unit = text[at];
  *count = 1;
  if ((unit & 0xFFFFF800) != 0xD800) return unit <= kLastScalar ? unit : kBroken;
  if (!IsHighSurrogate(unit) || left < 2 || !IsLowSurrogate(text[at + 1])) return kBroken;
  *count = 2;
  return 0x10000 + ((unit - 0xD800) << 10) + (text[at + 1] - 0xDC00);
}

// The first character tells which kind of run is worth a try.
template <class Sink>
Converted<Sink> FromUtf8(const BYTE* text, std::size_t size, Sink sink) {
  bool broken = false;
  std::size_t i = 0;
  while (i < size) {
    if (size - i >= kRun && text[i] < 0x80) {
      if (IsAsciiRun(text + i) && sink.PutRun(text + i)) {
        i += kRun;
        continue;
      }
    } else if (text[i] < 0xE0 && size - i >= kPairRunBytes) {
      std::uint64_t units;
      if (ReadPairRun(text + i, &units) && sink.PutUnits(units)) {
        i += kPairRunBytes;
        continue;
      }
    } else if (size - i >= kTripleRunBytes) {
      std::uint64_t units;
      if (ReadTripleRun(text + i, &units) && sink.PutUnits(units)) {
        i += kTripleRunBytes;
        continue;
      }
    }
    // Where there was no run the next few characters are taken one by one, at most to where ASCII
    // begins or ends: another kind of run may start there.
    const std::size_t stop = size - i < kRun ? size : i + kRun;
    const bool is_ascii = text[i] < 0x80;
    do {
      std::size_t count;
      const std::uint32_t scalar = ReadUtf8(text + i, size - i, &count);
      broken |= scalar == kBroken;
      if (!sink.Put(scalar != kBroken ? scalar : kReplacement)) return {sink, false, broken};
      i += count;
    } while (i < stop && (text[i] < 0x80) == is_ascii);
  }
  return {sink, true, broken};
}

template <class Source, class Sink>
Converted<Sink> ToUtf8(Source text, std::size_t size, Sink sink) {
  bool broken = false;
  std::size_t i = 0;
  while (i < size) {
    if (size - i >= kRun && text[i] < 0x80) {
      if (IsAsciiRun(text, i) && sink.PutRun(text, i)) {
        i += kRun;
        continue;
      }
    } else if (size - i >= kLanes) {
      std::uint64_t units;
      if (text.ReadLanes(i, &units) && ((ArePairUnits(units) && sink.PutPairs(units)) ||
                                        (AreTripleUnits(units) && sink.PutTriples(units)))) {
        i += kLanes;
        continue;
      }
    }
    const std::size_t stop = size - i < kRun ? size : i + kRun;
    while (i < stop) {
      std::size_t count;
      const std::uint32_t scalar = ReadUtf16(text, i, size - i, &count);
      broken |= scalar == kBroken;
      if (!sink.Put(scalar != kBroken ? scalar : kReplacement)) return {sink, false, broken};
      i += count;
    }
  }
  return {sink, true, broken};
}

// What the units from `first` to `end` take above two bytes each. A wide character beyond the units
// takes four, two surrogates that belong together four instead of twice three.
template <class Source>
std::size_t LongUtf8Size(Source text, std::size_t first, std::size_t end) {
  std::uint32_t more = 0;
  std::uint32_t lows = 0;
  for (std::size_t i = first; i < end; ++i) {
    const std::uint32_t unit = text[i];
    more += (unit >= 0x800 ? 1u : 0u) + (unit - 0x10000 <= kLastScalar - 0x10000 ? 1u : 0u);
    lows += IsLowSurrogate(unit) ? 1u : 0u;
  }
  std::size_t bytes = more;
  if (lows == 0) return bytes;
  for (std::size_t i = first != 0 ? first : 1; i < end; ++i) {
    bytes -= IsHighSurrogate(text[i - 1]) && IsLowSurrogate(text[i]) ? 2u : 0u;
  }
  return bytes;
}

// Bytes that ToUtf8 writes; whatever is replaced takes three, as U+FFFD does. No branch in the
// inner loops: the compiler takes many units at a time.
template <class Source>
std::size_t Utf8Size(Source text, std::size_t size) {
  constexpr std::size_t kBlock = 4096;
  std::size_t bytes = size;
  for (std::size_t i = 0; i < size; i += kBlock) {
    const std::size_t end = size - i < kBlock ? size : i + kBlock;
    std::uint32_t seen = 0;
    std::uint32_t more = 0;
    for (std::size_t k = i; k < end; ++k) {
      const std::uint32_t unit = text[k];
      seen |= unit;
      more += unit >= 0x80 ? 1u : 0u;
    }
    bytes += more;
    if (seen >= 0x800) bytes += LongUtf8Size(text, i, end);
  }
  return bytes;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_UTF8_H_
