// UTF-8 to UTF-16 and back over whatever holds the units: wide text (one unit a wchar_t) or octets
// in UTF-16LE. Unicode 15, 3.9.
//
//   const auto counted = FromUtf8(text, size, UnitCounter{});
//   out->resize(counted.sink.size);
//   FromUtf8(text, size, WideWriter{out->data(), out->size()});
#ifndef ORTHOLAN_BYTES_UTF8_H_
#define ORTHOLAN_BYTES_UTF8_H_

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "bytes/pair_run.h"
#include "bytes/text_sinks.h"
#include "bytes/triple_run.h"
#include "bytes/utf16.h"
#include "bytes/utf8_scalar.h"

namespace Ortholan {

inline bool IsAsciiRun(const uint8_t* text) {
  uint64_t run;
  std::memcpy(&run, text, kRun);
  return (run & 0x8080808080808080) == 0;
}

template <class Source>
bool IsAsciiRun(Source text, size_t at) {
  uint32_t bits = 0;
  for (size_t i = 0; i < kRun; ++i) bits |= text[at + i];
  return bits < 0x80;
}

template <class Sink>
struct Converted {
  Sink sink;
  bool fits = true;     // false: the sink ran full
  bool broken = false;  // some part had no counterpart and was replaced
};

// The readers below return one character and the number of bytes or units that it was read from;
// kBroken stands for a part that is replaced. `left` is what is there, at least 1.
inline constexpr uint32_t kBroken = 0xFFFFFFFF;

// A character of three or four bytes, or one maximal broken part: a beginning that some character
// has, as far as it goes, or else one byte.
inline uint32_t ReadLongUtf8(const uint8_t* text, size_t left, size_t* count) {
  Utf8Lead lead = ReadUtf8Lead(text[0]);
  *count = 1;
  if (lead.size == 0) return kBroken;
  uint32_t scalar = Utf8LeadBits(text[0], lead.size);
  for (; *count < lead.size; ++*count) {
    if (*count == left || text[*count] < lead.low || text[*count] > lead.high) return kBroken;
    scalar = scalar << 6 | (text[*count] & 0x3Fu);
    lead.low = 0x80;
    lead.high = 0xBF;
  }
  return scalar;
}

inline uint32_t ReadUtf8(const uint8_t* text, size_t left, size_t* count) {
  const uint32_t lead = text[0];
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
uint32_t ReadUtf16(Source text, size_t at, size_t left, size_t* count) {
  const uint32_t unit = text[at];
  *count = 1;
  if (!IsSurrogate(unit)) return unit <= kLastScalar ? unit : kBroken;
  if (!IsHighSurrogate(unit) || left < 2 || !IsLowSurrogate(text[at + 1])) return kBroken;
  *count = 2;
  return 0x10000 + ((unit - 0xD800) << 10) + (text[at + 1] - 0xDC00);
}

// The first character tells which kind of run is worth a try.
template <class Sink>
Converted<Sink> FromUtf8(const uint8_t* text, size_t size, Sink sink) {
  bool broken = false;
  size_t i = 0;
  while (i < size) {
    if (size - i >= kRun && text[i] < 0x80) {
      if (IsAsciiRun(text + i) && sink.PutRun(text + i)) {
        i += kRun;
        continue;
      }
    } else if (text[i] < 0xE0 && size - i >= kPairRunBytes) {
      uint64_t units;
      if (ReadPairRun(text + i, &units) && sink.PutUnits(units)) {
        i += kPairRunBytes;
        continue;
      }
    } else if (size - i >= kTripleRunBytes) {
      uint64_t units;
      if (ReadTripleRun(text + i, &units) && sink.PutUnits(units)) {
        i += kTripleRunBytes;
        continue;
      }
    }
    // Where there was no run the next few characters are taken one by one, at most to where ASCII
    // begins or ends: another kind of run may start there.
    const size_t stop = size - i < kRun ? size : i + kRun;
    const bool is_ascii = text[i] < 0x80;
    do {
      size_t count;
      const uint32_t scalar = ReadUtf8(text + i, size - i, &count);
      broken |= scalar == kBroken;
      if (!sink.Put(scalar != kBroken ? scalar : kReplacement)) return {sink, false, broken};
      i += count;
    } while (i < stop && (text[i] < 0x80) == is_ascii);
  }
  return {sink, true, broken};
}

template <class Source, class Sink>
Converted<Sink> ToUtf8(Source text, size_t size, Sink sink) {
  bool broken = false;
  size_t i = 0;
  while (i < size) {
    if (size - i >= kRun && text[i] < 0x80) {
      if (IsAsciiRun(text, i) && sink.PutRun(text, i)) {
        i += kRun;
        continue;
      }
    } else if (size - i >= kLanes) {
      uint64_t units;
      if (text.ReadLanes(i, &units) && ((ArePairUnits(units) && sink.PutPairs(units)) ||
                                        (AreTripleUnits(units) && sink.PutTriples(units)))) {
        i += kLanes;
        continue;
      }
    }
    const size_t stop = size - i < kRun ? size : i + kRun;
    while (i < stop) {
      size_t count;
      const uint32_t scalar = ReadUtf16(text, i, size - i, &count);
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
size_t LongUtf8Size(Source text, size_t first, size_t end) {
  uint32_t more = 0;
  uint32_t lows = 0;
  for (size_t i = first; i < end; ++i) {
    const uint32_t unit = text[i];
    more += (unit >= 0x800 ? 1u : 0u) + (IsPair(unit) ? 1u : 0u);
    lows += IsLowSurrogate(unit) ? 1u : 0u;
  }
  size_t bytes = more;
  if (lows == 0) return bytes;
  for (size_t i = first != 0 ? first : 1; i < end; ++i) {
    bytes -= IsHighSurrogate(text[i - 1]) && IsLowSurrogate(text[i]) ? 2u : 0u;
  }
  return bytes;
}

// Bytes that ToUtf8 writes; whatever is replaced takes three, as U+FFFD does. No branch in the
// inner loops: the compiler takes many units at a time.
template <class Source>
size_t Utf8Size(Source text, size_t size) {
  constexpr size_t kBlock = 4096;
  size_t bytes = size;
  for (size_t i = 0; i < size; i += kBlock) {
    const size_t end = size - i < kBlock ? size : i + kBlock;
    uint32_t seen = 0;
    uint32_t more = 0;
    for (size_t k = i; k < end; ++k) {
      const uint32_t unit = text[k];
      seen |= unit;
      more += unit >= 0x80 ? 1u : 0u;
    }
    bytes += more;
    if (seen >= 0x800) bytes += LongUtf8Size(text, i, end);
  }
  return bytes;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_UTF8_H_
