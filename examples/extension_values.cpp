#include "examples/extension_values.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "examples/fields.h"
#include "examples/general_names.h"
#include "examples/name_text.h"
#include "examples/oid_names.h"
#include "examples/text.h"

namespace Example::ExtensionValues {

namespace {

// Calls `add` for each element of the SEQUENCE OF, which has to have the tag.
template <typename Add>
Value ListOf(std::string_view sequence, unsigned tag, Add add) {
  Value list = Value::List();
  for (Fields fields(sequence); !fields.AtEnd();) list.Add(add(fields.Need(tag)));
  return list;
}

Value NumberValue(std::string_view content) {
  if (content.empty()) throw Malformed();
  if (content.size() > 8 || (content[0] & 0x80) != 0) return Value::Octets(content);
  std::uint64_t number = 0;
  for (const char octet : content) number = number << 8 | static_cast<unsigned char>(octet);
  return Value::Number(number);
}

Value NamedOid(const Der& oid) {
  const std::string text = OidText(oid.content);
  if (text.empty()) throw Malformed();
  return Value::Text(OidName(text));
}

Value StringValue(const Der& string) { return Value::Text(StringText(string.tag, string.content)); }

}  // namespace

Value Names(std::string_view value) { return GeneralNamesValue(ContentOf(value, kSequence)); }

Value Number(std::string_view value) { return NumberValue(ContentOf(value, kInteger)); }

Value Oids(std::string_view value) { return ListOf(ContentOf(value, kSequence), kOid, NamedOid); }

Value Octets(std::string_view value) { return Value::Octets(ContentOf(value, kOctetString)); }

Value String(std::string_view value) {
  const Der string = OnlyElement(value);
  if (string.whole.empty()) throw Malformed();
  return StringValue(string);
}

// A list of structures that begin with an identifier.
Value LeadingOids(std::string_view value) {
  return ListOf(ContentOf(value, kSequence), kSequence,
                [](const Der& each) { return NamedOid(Fields(each.content).Need(kOid)); });
}

namespace {

// The first octet counts unused bits; a bit without a name is told by its number.
Value Bits(std::string_view content, const std::vector<const char*>& names) {
  if (content.empty()) throw Malformed();
  Value list = Value::List();
  for (std::size_t bit = 0; bit < (content.size() - 1) * 8; ++bit) {
    const auto octet = static_cast<unsigned char>(content[1 + bit / 8]);
    if ((octet >> (7 - bit % 8) & 1) == 0) continue;
    list.Add(Value::Text(bit < names.size() ? names[bit] : std::to_string(bit)));
  }
  return list;
}

}  // namespace

Value KeyUsage(std::string_view value) {
  return Bits(ContentOf(value, kBitString),
              {"digitalSignature", "nonRepudiation", "keyEncipherment", "dataEncipherment",
               "keyAgreement", "keyCertSign", "cRLSign", "encipherOnly", "decipherOnly"});
}

Value NetscapeType(std::string_view value) {
  return Bits(ContentOf(value, kBitString), {"sslClient", "sslServer", "smime", "objectSigning",
                                             "reserved", "sslCA", "smimeCA", "objectSigningCA"});
}

namespace {

Value Reasons(std::string_view content) {
  return Bits(content,
              {"unused", "keyCompromise", "cACompromise", "affiliationChanged", "superseded",
               "cessationOfOperation", "certificateHold", "privilegeWithdrawn", "aACompromise"});
}

bool IsTrue(const Der* boolean) {
  return boolean != nullptr && boolean->content != std::string_view("\0", 1);
}

}  // namespace

Value BasicConstraints(std::string_view value) {
  Fields fields(ContentOf(value, kSequence));
  Value object = Value::Object();
  object.Add("cA", Value::Bool(IsTrue(fields.Take(kBoolean))));
  if (const Der* const length = fields.Take(kInteger)) {
    object.Add("pathLenConstraint", NumberValue(length->content));
  }
  fields.End();
  return object;
}

namespace {

// Primitive members [0], [1], ... of a sequence, in order.
struct ContextMember {
  unsigned tag;
  const char* name;
  Value (*read)(std::string_view content);
};

Value Members(std::string_view value, const std::vector<ContextMember>& members) {
  Fields fields(ContentOf(value, kSequence));
  Value object = Value::Object();
  for (const ContextMember& member : members) {
    const Der* const element = fields.Take(member.tag);
    if (element != nullptr) object.Add(member.name, member.read(element->content));
  }
  fields.End();
  return object;
}

Value Time(std::string_view content) { return Value::Text(TimeText(kGeneralizedTime, content)); }

}  // namespace

Value AuthorityKey(std::string_view value) {
  return Members(value, {{kContext, "keyIdentifier", Value::Octets},
                         {kContextConstructed + 1, "authorityCertIssuer", GeneralNamesValue},
                         {kContext + 2, "authorityCertSerialNumber", Value::Octets}});
}

Value PolicyConstraints(std::string_view value) {
  return Members(value, {{kContext, "requireExplicitPolicy", NumberValue},
                         {kContext + 1, "inhibitPolicyMapping", NumberValue}});
}

Value KeyPeriod(std::string_view value) {
  return Members(value, {{kContext, "notBefore", Time}, {kContext + 1, "notAfter", Time}});
}

namespace {

// GeneralSubtrees; minimum and maximum, which RFC 5280 forbids to be other than the default, are
// shown where they are there.
Value Subtrees(std::string_view content) {
  return ListOf(content, kSequence, [](const Der& subtree) {
    Fields fields(subtree.content);
    Value base = GeneralNameValue(fields.Any());
    if (const Der* const least = fields.Take(kContext))
      base.Add("minimum", NumberValue(least->content));
    if (const Der* const most = fields.Take(kContext + 1))
      base.Add("maximum", NumberValue(most->content));
    fields.End();
    return base;
  });
}

}  // namespace

Value NameConstraints(std::string_view value) {
  return Members(value, {{kContextConstructed, "permittedSubtrees", Subtrees},
                         {kContextConstructed + 1, "excludedSubtrees", Subtrees}});
}

namespace {

// fullName, or a single RDN whose first attributes are the issuer's.
Value PointName(std::string_view content) {
  const Der name = OnlyElement(content);
  if (name.tag == kContextConstructed) return GeneralNamesValue(name.content);
  if (name.tag != kContextConstructed + 1) throw Malformed();
  return Value::Line("kind", "nameRelativeToCRLIssuer", RdnLine(name.content));
}

}  // namespace

Value DistributionPoints(std::string_view value) {
  return ListOf(ContentOf(value, kSequence), kSequence, [](const Der& point) {
    return Members(point.whole, {{kContextConstructed, "distributionPoint", PointName},
                                 {kContext + 1, "reasons", Reasons},
                                 {kContextConstructed + 2, "cRLIssuer", GeneralNamesValue}});
  });
}

namespace {

Value Flag(std::string_view content) { return Value::Bool(content != std::string_view("\0", 1)); }

}  // namespace

Value IssuingPoint(std::string_view value) {
  return Members(value, {{kContextConstructed, "distributionPoint", PointName},
                         {kContext + 1, "onlyContainsUserCerts", Flag},
                         {kContext + 2, "onlyContainsCACerts", Flag},
                         {kContext + 3, "onlySomeReasons", Reasons},
                         {kContext + 4, "indirectCRL", Flag},
                         {kContext + 5, "onlyContainsAttributeCerts", Flag}});
}

Value InformationAccess(std::string_view value) {
  return ListOf(ContentOf(value, kSequence), kSequence, [](const Der& description) {
    Fields fields(description.content);
    Value access = Value::Object();
    access.Add("accessMethod", NamedOid(fields.Need(kOid)));
    access.Add("accessLocation", GeneralNameValue(fields.Any()));
    fields.End();
    return access;
  });
}

namespace {

// cPSuri is a string, userNotice a sequence with an explicit text at its end.
Value Qualifier(const Der& qualifier) {
  Fields fields(qualifier.content);
  const Value method = NamedOid(fields.Need(kOid));
  const Der value = fields.Any();
  if (value.tag != kSequence) return Value::Line("qualifier", method.text, StringValue(value).text);
  const std::vector<Der> parts = Elements(value.content);
  const bool hasText = !parts.empty() && parts.back().tag != kSequence;
  return Value::Line("qualifier", method.text,
                     hasText ? StringValue(parts.back()).text : Hex(value.content));
}

}  // namespace

Value Policies(std::string_view value) {
  return ListOf(ContentOf(value, kSequence), kSequence, [](const Der& policy) {
    Fields fields(policy.content);
    Value object = Value::Object();
    object.Add("policyIdentifier", NamedOid(fields.Need(kOid)));
    if (const Der* const qualifiers = fields.Take(kSequence)) {
      object.Add("policyQualifiers", ListOf(qualifiers->content, kSequence, Qualifier));
    }
    return object;
  });
}

Value PolicyMappings(std::string_view value) {
  return ListOf(ContentOf(value, kSequence), kSequence, [](const Der& mapping) {
    Fields fields(mapping.content);
    Value object = Value::Object();
    object.Add("issuerDomainPolicy", NamedOid(fields.Need(kOid)));
    return object.Add("subjectDomainPolicy", NamedOid(fields.Need(kOid)));
  });
}

// RFC 7633: the numbers of TLS extensions.
Value TlsFeatures(std::string_view value) {
  return ListOf(ContentOf(value, kSequence), kInteger,
                [](const Der& number) { return NumberValue(number.content); });
}

Value Template(std::string_view value) {
  Fields fields(ContentOf(value, kSequence));
  Value object = Value::Object();
  object.Add("templateID", NamedOid(fields.Need(kOid)));
  for (const char* const name : {"templateMajorVersion", "templateMinorVersion"}) {
    if (const Der* const number = fields.Take(kInteger))
      object.Add(name, NumberValue(number->content));
  }
  return object;
}

Value Strings(std::string_view value) {
  Value list = Value::List();
  for (Fields fields(ContentOf(value, kSequence)); !fields.AtEnd();)
    list.Add(StringValue(fields.Any()));
  return list;
}

Value Nothing(std::string_view value) {
  ContentOf(value, kNull);
  return Value::Text("");
}

}  // namespace Example::ExtensionValues
