#include "examples/extensions.h"

#include <ortholan/strict/extensions.h>

#include <algorithm>
#include <ortholan/strict.hpp>

#include "examples/der.h"

namespace Example {
namespace {

using ortholan::Octets;
using ortholan::Reading;
using ortholan::Refusal;

// What `call` puts for the value: first as DER, else as people must look at it, with the refusal.
template <class Call>
std::string Told(Call call, std::string* refusal) {
  std::string text;
  for (const Reading reading : {Reading::kDer, Reading::kLenient}) {
    Refusal refused;
    const auto put = [&](char* out, size_t room, size_t* size) {
      return call(static_cast<int32_t>(reading), out, room, size, &refused);
    };
    if (ortholan::WithRoom(&text, put) == ORTHOLAN_REASON_NONE) break;
    if (refusal->empty()) *refusal = refused.Sentence();
  }
  return text;
}

void ReadValue(Octets oid, ExtensionReading& reading) {
  const ortholan_octets value = Octets(reading.value);
  reading.json = Told(
      [&](int32_t mode, auto... out) { return ortholan_extension_json(oid, value, mode, out...); },
      &reading.refusal);
  reading.lines = Told(
      [&](int32_t mode, auto... out) {
        return ortholan_extension_text(oid, value, mode, kExtensionIndent, out...);
      },
      &reading.refusal);
}

// Extensions that are a list of general names, those of 1997 among them.
bool HoldsNames(const std::string& oid) {
  constexpr const char* kOids[] = {"2.5.29.7", "2.5.29.8", "2.5.29.17", "2.5.29.18"};
  return std::find(std::begin(kOids), std::end(kOids), oid) != std::end(kOids);
}

}  // namespace

// Extension ::= SEQUENCE { OBJECT IDENTIFIER, BOOLEAN DEFAULT FALSE, OCTET STRING }
ExtensionReading ReadExtension(std::string_view record) {
  ExtensionReading reading;
  reading.record = record;
  const std::vector<Der> fields = Elements(OnlyElement(record).content);
  const bool hasFlag = fields.size() == 3 && fields[1].tag == kBoolean;
  if (fields.size() != (hasFlag ? 3 : 2) || fields[0].tag != kOid ||
      fields.back().tag != kOctetString) {
    return reading;
  }
  const ortholan::Result<std::string> oid = ortholan::OidToText(fields[0].content);
  if (!oid) return reading;
  reading.isRead = true;
  reading.oid = *oid;
  reading.isCritical = hasFlag && fields[1].content != std::string_view("\0", 1);
  reading.value = fields.back().content;
  ortholan_extension_type type;
  if (ortholan_extension_type_of(Octets(fields[0].content), &type) != 0) return reading;
  reading.title = type.title;
  ReadValue(fields[0].content, reading);
  if (HoldsNames(reading.oid)) reading.names = ReadGeneralNames(reading.value);
  return reading;
}

std::string ExtensionTitle(const ExtensionReading& extension) {
  return extension.title != nullptr ? extension.title : extension.oid;
}

}  // namespace Example
