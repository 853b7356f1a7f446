// Values of extensions from plain parts: each becomes the JSON that the one writer takes.
#include <ortholan/strict/extension_builders.h>
#include <ortholan/strict/general_names.h>

#include <new>

#include "strict/der/oid.h"
#include "strict/extensions/common_shapes.h"
#include "strict/extensions/json_maker.h"
#include "strict/extensions/oid_names.h"
#include "strict/extensions/rfc5280_shapes.h"
#include "strict/extensions/tls_shapes.h"
#include "strict/extensions/value_of_json.h"
#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

// Makes JSON of arguments, and keeps the first reason why one cannot be what it stands for. What is
// made after that does not count.
class Maker {
 public:
  ortholan_reason fault() const { return fault_; }

  JsonValue Text(ortholan_text text) {
    if (!Needs(IsGiven(text))) return {};
    return JsonOf(std::string(View(text)));
  }
  JsonValue Octets(ortholan_octets octets) {
    if (!Needs(IsGiven(octets))) return {};
    return JsonOfOctets(View(octets));
  }
  JsonValue Oid(ortholan_octets oid) {
    if (!Needs(IsGiven(oid)) || !Needs(IsIdentifier(View(oid)), ORTHOLAN_REASON_OID)) return {};
    return JsonOf(TextOf([oid](Output* out) { PutDotted(View(oid), out); }));
  }
  JsonValue Name(ortholan_text name);
  JsonValue Names(const ortholan_text* names, size_t count) {
    return List(names, count, [this](ortholan_text name) { return Name(name); });
  }
  JsonValue Bits(uint32_t flags);
  JsonValue Subtrees(const ortholan_text* bases, size_t count);
  JsonValue Point(const ortholan_new_distribution_point& point);
  JsonValue Access(const ortholan_new_access_description& description);
  JsonValue Policy(const ortholan_new_policy& policy);

  template <class Part, class Make>
  JsonValue List(const Part* parts, size_t count, Make make) {
    JsonValue list = JsonList();
    if (!Needs(parts != nullptr || count == 0)) return list;
    for (size_t i = 0; i < count; ++i) AddElement(make(parts[i]), &list);
    return list;
  }

 private:
  bool Needs(bool holds, ortholan_reason reason = ORTHOLAN_REASON_ARGUMENT) {
    if (!holds && fault_ == ORTHOLAN_REASON_NONE) fault_ = reason;
    return holds;
  }

  ortholan_reason fault_ = ORTHOLAN_REASON_NONE;
};

JsonValue Maker::Name(ortholan_text name) {
  if (!Needs(IsGiven(name))) return {};
  const std::string_view text = View(name);
  const size_t colon = text.find(':');
  if (!Needs(colon != std::string_view::npos, ORTHOLAN_REASON_NAME_KIND)) return {};
  JsonValue object = JsonObject();
  AddMember("kind", JsonOf(std::string(text.substr(0, colon))), &object);
  AddMember("text", JsonOf(std::string(text.substr(colon + 1))), &object);
  return object;
}

JsonValue Maker::Bits(uint32_t flags) {
  JsonValue list = JsonList();
  for (int64_t bit = 0; bit < 32; ++bit) {
    if ((flags >> bit & 1) != 0) AddElement(JsonOf(bit), &list);
  }
  return list;
}

JsonValue Maker::Subtrees(const ortholan_text* bases, size_t count) {
  return List(bases, count, [this](ortholan_text base) {
    JsonValue subtree = JsonObject();
    AddMember("base", Name(base), &subtree);
    return subtree;
  });
}

JsonValue Maker::Point(const ortholan_new_distribution_point& point) {
  JsonValue object = JsonObject();
  if (point.full_name_count != 0) {
    JsonValue name = JsonObject();
    AddMember("fullName", Names(point.full_name, point.full_name_count), &name);
    AddMember("distributionPoint", std::move(name), &object);
  }
  if (point.reasons != 0) AddMember("reasons", Bits(point.reasons), &object);
  if (point.crl_issuer_count != 0) {
    AddMember("cRLIssuer", Names(point.crl_issuer, point.crl_issuer_count), &object);
  }
  return object;
}

JsonValue Maker::Access(const ortholan_new_access_description& description) {
  JsonValue object = JsonObject();
  AddMember("accessMethod", Oid(description.method), &object);
  AddMember("accessLocation", Name(description.location), &object);
  return object;
}

JsonValue QualifierOf(const char* oid, JsonValue value) {
  JsonValue object = JsonObject();
  AddMember("policyQualifierId", JsonOf(std::string(oid)), &object);
  AddMember("qualifier", std::move(value), &object);
  return object;
}

JsonValue Maker::Policy(const ortholan_new_policy& policy) {
  JsonValue object = JsonObject();
  JsonValue qualifiers = JsonList();
  AddMember("policyIdentifier", Oid(policy.oid), &object);
  if (policy.cps.size != 0) AddElement(QualifierOf("cps", Text(policy.cps)), &qualifiers);
  if (policy.notice.size != 0) {
    JsonValue notice = JsonObject();
    AddMember("explicitText", Text(policy.notice), &notice);
    AddElement(QualifierOf("userNotice", std::move(notice)), &qualifiers);
  }
  if (!qualifiers.members.empty()) AddMember("policyQualifiers", std::move(qualifiers), &object);
  return object;
}

// Writes what `make` makes.
template <class Make>
ortholan_reason Write(const Shape& shape, uint8_t* out, size_t room, size_t* size, Make make) {
  Clear(size, nullptr);
  if (!IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  BackwardOutput der(out, room);
  Refusal found;
  try {
    Maker maker;
    const JsonValue value = make(maker);
    if (maker.fault() != ORTHOLAN_REASON_NONE) return maker.fault();
    if (!PutValueOfJson(&shape, value, &der, &found)) return found.reason;
  } catch (const std::bad_alloc&) {
    return ORTHOLAN_REASON_MEMORY;
  }
  return Finish(&der, size, nullptr);
}

}  // namespace

ortholan_reason ortholan_basic_constraints_write(int32_t is_authority, int64_t path_length,
                                                 uint8_t* out, size_t room, size_t* size) {
  return Write(kBasicConstraintsShape, out, room, size, [=](Maker&) {
    JsonValue object = JsonObject();
    AddMember("cA", JsonOf(is_authority != 0), &object);
    if (path_length >= 0) AddMember("pathLenConstraint", JsonOf(path_length), &object);
    return object;
  });
}

ortholan_reason ortholan_bits_write(uint32_t flags, uint8_t* out, size_t room, size_t* size) {
  return Write(kKeyUsageShape, out, room, size,
               [flags](Maker& maker) { return maker.Bits(flags); });
}

ortholan_reason ortholan_oids_write(const ortholan_octets* oids, size_t count, uint8_t* out,
                                    size_t room, size_t* size) {
  return Write(kOidsShape, out, room, size, [=](Maker& maker) {
    return maker.List(oids, count,
                      [&maker](const ortholan_octets& each) { return maker.Oid(each); });
  });
}

ortholan_reason ortholan_octet_string_write(ortholan_octets octets, uint8_t* out, size_t room,
                                            size_t* size) {
  return Write(kOctetsShape, out, room, size,
               [octets](Maker& maker) { return maker.Octets(octets); });
}

ortholan_reason ortholan_authority_key_identifier_write(ortholan_octets key_identifier,
                                                        const ortholan_text* issuer,
                                                        size_t issuer_count,
                                                        ortholan_octets serial_number, uint8_t* out,
                                                        size_t room, size_t* size) {
  return Write(kAuthorityKeyIdentifierShape, out, room, size, [=](Maker& maker) {
    JsonValue object = JsonObject();
    if (key_identifier.size != 0) AddMember("keyIdentifier", maker.Octets(key_identifier), &object);
    if (issuer_count != 0) {
      AddMember("authorityCertIssuer", maker.Names(issuer, issuer_count), &object);
    }
    if (serial_number.size != 0) {
      AddMember("authorityCertSerialNumber", maker.Octets(serial_number), &object);
    }
    return object;
  });
}

ortholan_reason ortholan_integer_write(int64_t number, uint8_t* out, size_t room, size_t* size) {
  return Write(kNumberShape, out, room, size, [number](Maker&) { return JsonOf(number); });
}

ortholan_reason ortholan_tls_features_write(const uint16_t* features, size_t count, uint8_t* out,
                                            size_t room, size_t* size) {
  return Write(kTlsFeaturesShape, out, room, size, [=](Maker& maker) {
    return maker.List(features, count, [](uint16_t feature) { return JsonOf(int64_t{feature}); });
  });
}

ortholan_reason ortholan_distribution_points_write(const ortholan_new_distribution_point* points,
                                                   size_t count, uint8_t* out, size_t room,
                                                   size_t* size) {
  return Write(kDistributionPointsShape, out, room, size, [=](Maker& maker) {
    return maker.List(points, count, [&maker](const ortholan_new_distribution_point& each) {
      return maker.Point(each);
    });
  });
}

ortholan_reason ortholan_information_access_write(
    const ortholan_new_access_description* descriptions, size_t count, uint8_t* out, size_t room,
    size_t* size) {
  return Write(kInformationAccessShape, out, room, size, [=](Maker& maker) {
    return maker.List(descriptions, count, [&maker](const ortholan_new_access_description& each) {
      return maker.Access(each);
    });
  });
}

ortholan_reason ortholan_policies_write(const ortholan_new_policy* policies, size_t count,
                                        uint8_t* out, size_t room, size_t* size) {
  return Write(kPoliciesShape, out, room, size, [=](Maker& maker) {
    return maker.List(policies, count,
                      [&maker](const ortholan_new_policy& each) { return maker.Policy(each); });
  });
}

ortholan_reason ortholan_name_subtrees_write(const ortholan_text* permitted, size_t permitted_count,
                                             const ortholan_text* excluded, size_t excluded_count,
                                             uint8_t* out, size_t room, size_t* size) {
  return Write(kNameConstraintsShape, out, room, size, [=](Maker& maker) {
    JsonValue object = JsonObject();
    if (permitted_count != 0) {
      AddMember("permittedSubtrees", maker.Subtrees(permitted, permitted_count), &object);
    }
    if (excluded_count != 0) {
      AddMember("excludedSubtrees", maker.Subtrees(excluded, excluded_count), &object);
    }
    return object;
  });
}
