#include "examples/extensions.h"

#include <algorithm>
#include <ortholan/strict.hpp>

#include "examples/der.h"

namespace Example {
namespace {

// What `call` makes of the value: as DER, else as people must look at it, with the refusal.
template <class Call>
std::string Told(Call call, std::string* refusal) {
  const ortholan::Result<std::string> der = call(ortholan::Reading::kDer);
  if (der) return *der;
  *refusal = der.refusal().Sentence();
  const ortholan::Result<std::string> lenient = call(ortholan::Reading::kLenient);
  return lenient ? *lenient : std::string();
}

void ReadValue(ortholan::Octets oid, ExtensionReading& reading) {
  const ortholan::Octets value = reading.value;
  reading.json =
      Told([&](ortholan::Reading mode) { return ortholan::ExtensionJson(oid, value, mode); },
           &reading.refusal);
  reading.lines = Told(
      [&](ortholan::Reading mode) {
        return ortholan::ExtensionText(oid, value, mode, kExtensionIndent);
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
  const auto type = ortholan::FindExtensionType(fields[0].content);
  if (!type) return reading;
  reading.title = type->title;
  ReadValue(fields[0].content, reading);
  if (HoldsNames(reading.oid)) reading.names = ReadGeneralNames(reading.value);
  return reading;
}

std::string ExtensionTitle(const ExtensionReading& extension) {
  return !extension.title.empty() ? extension.title : extension.oid;
}

}  // namespace Example
