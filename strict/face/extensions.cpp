// Extensions by what they mean: which are known, and their values as JSON and words.
#include <ortholan/strict/extensions.h>

#include <new>

#include "strict/der/oid.h"
#include "strict/extensions/extensions_json.h"
#include "strict/extensions/extensions_of_json.h"
#include "strict/extensions/known_extensions.h"
#include "strict/extensions/value_json.h"
#include "strict/extensions/value_of_json.h"
#include "strict/extensions/value_text.h"
#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

constexpr size_t kMostIndent = 80;

ortholan_extension_type TypeOf(const KnownExtension& known) {
  return {Octets(known.oid.view()), known.name, known.title};
}

const Shape* ShapeOf(ByteView oid) {
  const KnownExtension* const known = FindExtension(oid);
  return known != nullptr ? known->shape : nullptr;
}

// Puts the identifier that a name or dotted digits stand for.
bool PutOidOf(std::string_view name, Output* out) {
  const KnownExtension* const known = FindExtension(name);
  if (known == nullptr) return PutIdentifier(name, out);
  out->Put(known->oid.view());
  return true;
}

// Runs `put`, which puts what octets are into the room.
template <class Put>
ortholan_reason Show(ortholan_octets value, int32_t mode, char* out, size_t room, size_t* size,
                     ortholan_refusal* refusal, Put put) {
  Clear(size, refusal);
  if (!IsGiven(value) || !IsMode(mode) || !IsRoom(out, room)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  Output text(out, room);
  Refusal found;
  try {
    if (!put(static_cast<Leniency>(mode), &text, &found)) return Report(found, value.data, refusal);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  return Finish(text, size, refusal);
}

// Runs `put`, which puts what JSON describes into the room.
template <class Put>
ortholan_reason Write(ortholan_text json, uint8_t* out, size_t room, size_t* size,
                      ortholan_refusal* refusal, Put put) {
  Clear(size, refusal);
  if (!IsGiven(json) || !IsRoom(out, room)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  BackwardOutput der(out, room);
  Refusal found;
  try {
    JsonValue value;
    if (!ReadJson(View(json), &value, &found) || !put(value, &der, &found)) {
      return Report(found, json.data, refusal);
    }
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  return Finish(&der, size, refusal);
}

}  // namespace

ortholan_reason ortholan_extension_type_at(size_t index, ortholan_extension_type* type) {
  if (type == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *type = {};
  const Rows<KnownExtension> known = KnownExtensions();
  if (index >= known.count) return ORTHOLAN_REASON_NOT_FOUND;
  *type = TypeOf(known.first[index]);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_extension_type_of(ortholan_octets oid, ortholan_extension_type* type) {
  if (type != nullptr) *type = {};
  if (type == nullptr || !IsGiven(oid)) return ORTHOLAN_REASON_ARGUMENT;
  const KnownExtension* const known = FindExtension(View(oid));
  if (known == nullptr) return ORTHOLAN_REASON_NOT_FOUND;
  *type = TypeOf(*known);
  return ORTHOLAN_REASON_NONE;
}

const char* ortholan_extension_name(ortholan_octets oid) {
  const KnownExtension* const known = FindExtension(View(oid));
  return known != nullptr ? known->name : nullptr;
}

ortholan_reason ortholan_extension_oid_from_name(ortholan_text name, uint8_t* out, size_t room,
                                                 size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(name) || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  Output octets(out, room);
  if (!PutOidOf(View(name), &octets)) return ORTHOLAN_REASON_EXTENSION_TYPE;
  return Finish(octets, size);
}

ortholan_reason ortholan_extension_json(ortholan_octets oid, ortholan_octets value, int32_t mode,
                                        char* out, size_t room, size_t* size,
                                        ortholan_refusal* refusal) {
  return Show(value, mode, out, room, size, refusal,
              [oid, value](Leniency leniency, Output* text, Refusal* found) {
                JsonOutput json(text);
                return PutValueJson(ShapeOf(View(oid)), View(value), leniency, &json, found);
              });
}

ortholan_reason ortholan_extension_text(ortholan_octets oid, ortholan_octets value, int32_t mode,
                                        size_t indent, char* out, size_t room, size_t* size,
                                        ortholan_refusal* refusal) {
  if (indent > kMostIndent) {
    Clear(size, refusal);
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  return Show(value, mode, out, room, size, refusal,
              [oid, value, indent](Leniency leniency, Output* text, Refusal* found) {
                return PutValueText(ShapeOf(View(oid)), View(value), leniency, indent, text, found);
              });
}

ortholan_reason ortholan_extensions_json(ortholan_octets der, int32_t mode, char* out, size_t room,
                                         size_t* size, ortholan_refusal* refusal) {
  return Show(der, mode, out, room, size, refusal,
              [der](Leniency leniency, Output* text, Refusal* found) {
                ExtensionsView extensions;
                if (!ReadExtensionsOf(View(der), leniency, &extensions, found)) return false;
                PutExtensionsJson(extensions, leniency, text);
                return true;
              });
}

ortholan_reason ortholan_extension_from_json(ortholan_text type, ortholan_text json, uint8_t* out,
                                             size_t room, size_t* size, ortholan_refusal* refusal) {
  if (!IsGiven(type)) {
    Clear(size, refusal);
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  uint8_t oid[kMaxIdentifierOctets];
  Output octets(oid, sizeof oid);
  if (!PutOidOf(View(type), &octets)) {
    Clear(size, refusal);
    return Report(ORTHOLAN_REASON_EXTENSION_TYPE, refusal);
  }
  const Shape* const shape = ShapeOf({oid, octets.size()});
  return Write(json, out, room, size, refusal,
               [shape](const JsonValue& value, BackwardOutput* der, Refusal* found) {
                 return PutValueOfJson(shape, value, der, found);
               });
}

ortholan_reason ortholan_extensions_from_json(ortholan_text json, uint8_t* out, size_t room,
                                              size_t* size, ortholan_refusal* refusal) {
  return Write(json, out, room, size, refusal, PutExtensionsOfJson);
}
