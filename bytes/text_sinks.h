// Where converted text goes: wide text, octets in UTF-16LE, UTF-8, or only a count. For utf8.h.
#ifndef ORTHOLAN_BYTES_TEXT_SINKS_H_
#define ORTHOLAN_BYTES_TEXT_SINKS_H_

#include <cstddef>
#include <cstdint>

#include "bytes/lanes.h"
#include "bytes/pair_run.h"
#include "bytes/triple_run.h"
#include "bytes/utf16.h"
#include "bytes/utf8_scalar.h"

namespace Ortholan {

inline constexpr size_t kRun = 8;  // ASCII is moved in runs of this many characters

// Sinks. Put and the runs return false, with nothing put, where the room ends. Sinks travel by
// value: their fields then live in registers, which stores through `out` could otherwise change.

struct UnitCounter {
  size_t size = 0;

  bool PutRun(const uint8_t*) {
    size += kRun;
    return true;
  }
  bool PutUnits(uint64_t) {
    size += kLanes;
    return true;
  }
  bool Put(uint32_t scalar) {
    size += scalar > 0xFFFF ? 2 : 1;
    return true;
  }
};

struct WideWriter {
  wchar_t* out;
  size_t room;

  bool PutRun(const uint8_t* text) {
    if (room < kRun) return false;
    for (size_t i = 0; i < kRun; ++i) out[i] = text[i];
    Advance(kRun);
    return true;
  }
  bool PutUnits(uint64_t lanes) {
    if (room < kLanes) return false;
    for (size_t i = 0; i < kLanes; ++i) {
      out[i] = static_cast<wchar_t>(lanes >> (16 * i) & 0xFFFF);
    }
    Advance(kLanes);
    return true;
  }
  bool Put(uint32_t scalar) {
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
  void Advance(size_t units) {
    out += units;
    room -= units;
  }
};

// For a room that was measured with UnitCounter.
struct LittleEndianWriter {
  uint8_t* out;

  bool PutRun(const uint8_t* text) {
    for (size_t i = 0; i < kRun; ++i) {
      out[2 * i] = text[i];
      out[2 * i + 1] = 0;
    }
    out += 2 * kRun;
    return true;
  }
  bool PutUnits(uint64_t lanes) {
    StoreLanes(lanes, out);
    out += 2 * kLanes;
    return true;
  }
  bool Put(uint32_t scalar) {
    if (scalar > 0xFFFF) {
      PutUnit(HighSurrogate(scalar));
      scalar = LowSurrogate(scalar);
    }
    PutUnit(scalar);
    return true;
  }
  void PutUnit(uint32_t unit) {
    out[0] = static_cast<uint8_t>(unit);
    out[1] = static_cast<uint8_t>(unit >> 8);
    out += 2;
  }
};

struct ByteWriter {
  uint8_t* out;
  size_t room;

  template <class Source>
  bool PutRun(Source text, size_t at) {
    if (room < kRun) return false;
    for (size_t i = 0; i < kRun; ++i) out[i] = static_cast<uint8_t>(text[at + i]);
    Advance(kRun);
    return true;
  }
  // Units of two or of three bytes each.
  bool PutPairs(uint64_t units) {
    if (room < kPairRunBytes) return false;
    WritePairRun(units, out);
    Advance(kPairRunBytes);
    return true;
  }
  bool PutTriples(uint64_t units) {
    if (room < kTripleRunBytes) return false;
    WriteTripleRun(units, out);
    Advance(kTripleRunBytes);
    return true;
  }
  bool Put(uint32_t scalar) {
    if (room < 4 && room < Utf8Octets(scalar)) return false;
    Advance(static_cast<size_t>(WriteUtf8Scalar(out, scalar) - out));
    return true;
  }
  void Advance(size_t bytes) {
    out += bytes;
    room -= bytes;
  }
};

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_TEXT_SINKS_H_
