#include "strict/names/escaped_value.h"

#include "bytes/octet_run.h"
#include "strict/der/string_value.h"
#include "strict/names/shown_characters.h"

namespace Ortholan::strict {
namespace {

// How an octet of UTF-8 is written.
enum Manner : uint8_t { kPlain, kBackslash, kDigits, kCharacter };

struct MannerTable {
  uint8_t manners[256];
};

constexpr MannerTable MakeManners() {
  MannerTable table = {};
  for (int c = 0; c < 0x20; ++c) table.manners[c] = kDigits;
  table.manners[0x7F] = kDigits;
  for (const char c : {'"', '+', ',', ';', '<', '>', '\\'}) {
    table.manners[static_cast<int>(c)] = kBackslash;
  }
  for (int c = 0x80; c < 0x100; ++c) table.manners[c] = kCharacter;
  return table;
}

constexpr MannerTable kManners = MakeManners();

Manner MannerOf(uint8_t octet) { return static_cast<Manner>(kManners.manners[octet]); }

void PutDigits(uint8_t octet, Output* out) {
  out->Put('\\');
  PutHex({&octet, 1}, out);
}

void PutHidden(uint32_t scalar, Output* out) {
  uint8_t octets[4];
  const uint8_t* const end = WriteUtf8Scalar(octets, scalar);
  for (const uint8_t* at = octets; at != end; ++at) PutDigits(*at, out);
}

void PutScalar(uint32_t scalar, Output* out) {
  const Manner manner = scalar < 0x80 ? MannerOf(static_cast<uint8_t>(scalar)) : kCharacter;
  if (manner == kDigits || (manner == kCharacter && !IsShown(scalar))) {
    PutHidden(scalar, out);
    return;
  }
  if (manner == kBackslash) out->Put('\\');
  PutUtf8(scalar, out);
}

size_t PlainRun(ByteView utf8) { return OrdinaryRun(utf8, kManners.manners); }

// Whether UTF-8 is written as it stands, as nearly every value is.
bool IsPlain(ByteView utf8) {
  if (utf8.empty()) return true;
  const uint8_t first = utf8[0];
  return first != ' ' && first != '#' && utf8[utf8.size - 1] != ' ' && PlainRun(utf8) == utf8.size;
}

bool PutMiddle(uint8_t identifier, ByteView content, Output* out) {
  ScalarReader scalars(identifier, content);
  for (uint32_t scalar; scalars.Next(&scalar);) PutScalar(scalar, out);
  return !scalars.broken();
}

// UTF-8, and what of ASCII is the same.
bool PutUtf8Middle(ByteView utf8, Output* out) {
  while (!utf8.empty()) {
    const size_t run = PlainRun(utf8);
    out->Put(utf8.First(run));
    utf8 = utf8.From(run);
    if (utf8.empty()) break;
    uint32_t scalar;
    const size_t size = ReadUtf8Scalar(utf8, &scalar);
    if (size == 0) return false;
    PutScalar(scalar, out);
    utf8 = utf8.From(size);
  }
  return true;
}

// Octets of a character of the type.
size_t UnitOf(uint8_t identifier) {
  return identifier == kBmpString ? 2 : identifier == kUniversalString ? 4 : 1;
}

// Whether the character of `unit` octets at `at` is `character`, of ASCII.
bool IsAt(const uint8_t* at, size_t unit, char character) {
  for (size_t i = 0; i + 1 < unit; ++i) {
    if (at[i] != 0) return false;
  }
  return at[unit - 1] == static_cast<uint8_t>(character);
}

}  // namespace

bool PutEscaped(uint8_t identifier, ByteView content, Output* out) {
  const bool is_utf8 = identifier == kUtf8String || IsAsciiString(identifier);
  if (is_utf8 && IsPlain(content)) {
    out->Put(content);
    return true;
  }
  const size_t unit = UnitOf(identifier);
  const size_t before = out->size();
  // A blank or "#" in front, a blank at the end.
  if (content.size > unit && IsAt(content.data, unit, ' ')) {
    out->Put("\\ ");
    content = content.From(unit);
  } else if (content.size >= unit && IsAt(content.data, unit, '#')) {
    out->Put("\\#");
    content = content.From(unit);
  }
  const bool blank_end = content.size >= unit && IsAt(content.end() - unit, unit, ' ');
  if (blank_end) content.size -= unit;
  const bool done = is_utf8 ? PutUtf8Middle(content, out) : PutMiddle(identifier, content, out);
  // As digits, because a blank at the end of a text is easily lost.
  if (blank_end) out->Put("\\20");
  if (!done) out->Rewind(before);
  return done;
}

bool PutVisible(ByteView text, Output* out) {
  const size_t before = out->size();
  while (!text.empty()) {
    uint32_t scalar;
    const size_t size = ReadUtf8Scalar(text, &scalar);
    if (size == 0) {
      out->Rewind(before);
      return false;
    }
    if (IsShown(scalar)) {
      out->Put(text.First(size));
    } else {
      PutHidden(scalar, out);
    }
    text = text.From(size);
  }
  return true;
}

}  // namespace Ortholan::strict
