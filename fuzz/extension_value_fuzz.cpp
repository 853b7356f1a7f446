// Values of extensions: what is read in DER comes back from its JSON octet for octet, words for
// people hide nothing, JSON is refused or becomes a value that is read, and structures hold nothing
// outside the octets.
#include <ortholan/strict.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/hidden.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

using ortholan::ExtensionFromJson;
using ortholan::ExtensionJson;
using ortholan::ExtensionText;
using ortholan::ExtensionType;
using ortholan::Octets;
using ortholan::Reading;

// An extension by both of its names.
struct Named {
  std::vector<uint8_t> oid;
  std::string name;
};

std::string_view AsText(const std::vector<uint8_t>& octets) {
  return {reinterpret_cast<const char*>(octets.data()), octets.size()};
}

// The lines of a text, each of which ends in a line feed.
bool HasHiddenLines(std::string_view text) {
  while (!text.empty()) {
    const size_t end = text.find('\n');
    if (end == std::string_view::npos || HasHidden(text.substr(0, end))) return true;
    text.remove_prefix(end + 1);
  }
  return false;
}

void CheckValue(const Named& type, Octets value) {
  const auto json = ExtensionJson(type.oid, value);
  const auto text = ExtensionText(type.oid, value);
  LAW(json.has_value() == text.has_value());
  if (!json) {
    LAW(json.refusal().reason == text.refusal().reason);
    LAW(json.refusal().offset <= value.size());
    return;
  }
  LAW(!HasHidden(*json));
  LAW(!HasHiddenLines(*text) && !text->empty());
  const auto back = ExtensionFromJson(type.name, *json);
  LAW(back.has_value());
  LAW(Octets(*back) == value);
  // The wider rules take all that DER is.
  LAW(ExtensionJson(type.oid, value, Reading::kLenient).value() == *json);
}

void CheckJson(const Named& type, std::string_view json) {
  const auto der = ExtensionFromJson(type.name, json);
  if (!der) {
    LAW(der.refusal().offset <= json.size());
    return;
  }
  const auto read = ExtensionJson(type.oid, *der);
  LAW(read.has_value());
  LAW(AsText(ExtensionFromJson(type.name, *read).value()) == AsText(*der));
}

bool IsInside(Octets part, Octets whole) {
  return part.data() == nullptr || (part.begin() >= whole.begin() && part.end() <= whole.end());
}

void CheckStructures(Octets value) {
  for (const Reading reading : {Reading::kDer, Reading::kLenient}) {
    if (const auto policies = ortholan::ReadPolicies(value, reading)) {
      size_t count = 0;
      for (const ortholan::Policy& policy : *policies) {
        for (const auto& qualifier : policy.qualifiers) LAW(IsInside(qualifier.value, value));
        ++count;
      }
      LAW(count == policies->size());
    }
    if (const auto points = ortholan::ReadDistributionPoints(value, reading)) {
      for (const auto& point : *points) {
        LAW(IsInside(point.relative_name, value));
        for (const auto& name : point.full_name) LAW(IsInside(name.der(), value));
      }
    }
    if (const auto timestamps = ortholan::ReadSignedTimestamps(value, reading)) {
      for (const auto& timestamp : *timestamps) LAW(IsInside(timestamp.signature, value));
    }
  }
}

// The octets as one Extension, whose SEQUENCE of one is written with a length of four octets.
std::vector<uint8_t> AsList(const std::vector<uint8_t>& extension) {
  std::vector<uint8_t> list = {0x30, 0x84};
  for (unsigned shift = 32; shift != 0; shift -= 8) {
    list.push_back(static_cast<uint8_t>(extension.size() >> (shift - 8)));
  }
  list.insert(list.end(), extension.begin(), extension.end());
  return list;
}

void CheckAll(const Named& type, const std::vector<uint8_t>& value) {
  CheckValue(type, value);
  CheckJson(type, AsText(value));
  CheckStructures(value);
}

}  // namespace

// A whole Extension, or a value behind an octet that chooses its extension.
void FuzzExtensionValue(const uint8_t* data, size_t size) {
  static const std::vector<ExtensionType> kKnown = ortholan::KnownExtensions();
  if (size == 0) return;
  const std::vector<uint8_t> block(data, data + size);
  const std::vector<uint8_t> list = AsList(block);
  const auto extensions = ortholan::ReadExtensions(list, Reading::kLenient);
  if (extensions && extensions->size() == 1) {
    const ortholan::Extension& extension = extensions->front();
    const auto oid = ortholan::OidToText(extension.oid);
    if (!oid) return;
    CheckAll({{extension.oid.begin(), extension.oid.end()}, *oid},
             {extension.value.begin(), extension.value.end()});
    LAW(!HasHidden(ortholan::ExtensionsJson(list, Reading::kLenient).value()));
    return;
  }
  const ExtensionType& type = kKnown[data[0] % kKnown.size()];
  CheckAll({{type.oid.begin(), type.oid.end()}, std::string(type.name)},
           {block.begin() + 1, block.end()});
}

}  // namespace Ortholan::fuzzing
