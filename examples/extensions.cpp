#include "examples/extensions.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "examples/extension_values.h"
#include "examples/fields.h"

namespace Example {
namespace {

using namespace ExtensionValues;

struct ExtensionRow {
  const char* oid;
  const char* name;
  Value (*read)(std::string_view value) = nullptr;  // null: shown as octets
};

constexpr ExtensionRow kExtensions[] = {
    {"2.5.29.7", "Subject Alternative Name (superseded)", Names},
    {"2.5.29.8", "Issuer Alternative Name (superseded)", Names},
    {"2.5.29.9", "Subject Directory Attributes", LeadingOids},
    {"2.5.29.14", "Subject Key Identifier", Octets},
    {"2.5.29.15", "Key Usage", KeyUsage},
    {"2.5.29.16", "Private Key Usage Period", KeyPeriod},
    {"2.5.29.17", "Subject Alternative Name", Names},
    {"2.5.29.18", "Issuer Alternative Name", Names},
    {"2.5.29.19", "Basic Constraints", BasicConstraints},
    {"2.5.29.20", "CRL Number", Number},
    {"2.5.29.27", "Delta CRL Indicator", Number},
    {"2.5.29.28", "Issuing Distribution Point", IssuingPoint},
    {"2.5.29.30", "Name Constraints", NameConstraints},
    {"2.5.29.31", "CRL Distribution Points", DistributionPoints},
    {"2.5.29.32", "Certificate Policies", Policies},
    {"2.5.29.33", "Policy Mappings", PolicyMappings},
    {"2.5.29.35", "Authority Key Identifier", AuthorityKey},
    {"2.5.29.36", "Policy Constraints", PolicyConstraints},
    {"2.5.29.37", "Extended Key Usage", Oids},
    {"2.5.29.46", "Freshest CRL", DistributionPoints},
    {"2.5.29.54", "Inhibit anyPolicy", Number},
    {"1.2.643.100.111", "Subject Sign Tool", String},
    {"1.2.643.100.112", "Issuer Sign Tool", Strings},
    {"1.2.840.113549.1.9.15", "S/MIME Capabilities", LeadingOids},
    {"1.3.6.1.4.1.311.20.2", "Certificate Template Name", String},
    {"1.3.6.1.4.1.311.21.1", "CA Version", Number},
    {"1.3.6.1.4.1.311.21.2", "Previous CA Certificate Hash", Octets},
    {"1.3.6.1.4.1.311.21.7", "Certificate Template", Template},
    {"1.3.6.1.4.1.311.21.10", "Application Policies", LeadingOids},
    {"1.3.6.1.4.1.11129.2.4.2", "Signed Certificate Timestamps"},
    {"1.3.6.1.4.1.11129.2.4.3", "Precertificate Poison", Nothing},
    {"1.3.6.1.5.5.7.1.1", "Authority Information Access", InformationAccess},
    {"1.3.6.1.5.5.7.1.3", "Qualified Certificate Statements", LeadingOids},
    {"1.3.6.1.5.5.7.1.11", "Subject Information Access", InformationAccess},
    {"1.3.6.1.5.5.7.1.24", "TLS Feature", TlsFeatures},
    {"1.3.6.1.5.5.7.48.1.5", "OCSP No Check", Nothing},
    {"2.16.840.1.113730.1.1", "Netscape Certificate Type", NetscapeType},
    {"2.16.840.1.113730.1.13", "Netscape Comment", String},
};

bool HasUnread(const Value& value) {
  const std::vector<Member>& members = value.members;
  return value.form == Value::Form::kList &&
         std::any_of(members.begin(), members.end(),
                     [](const Member& each) { return each.value.IsUnread(); });
}

void ReadContent(const ExtensionRow& row, ExtensionReading& reading) {
  try {
    reading.content = row.read(reading.value);
    reading.isFaulty = HasUnread(*reading.content);
  } catch (const Malformed&) {
    reading.isFaulty = true;
  }
}

}  // namespace

ExtensionReading ReadExtension(const Der& record) {
  ExtensionReading reading;
  reading.record = record.whole;
  try {
    Fields fields(ContentOf(record.whole, kSequence));
    reading.oid = OidText(fields.Need(kOid).content);
    const Der* const critical = fields.Take(kBoolean);
    reading.isCritical = critical != nullptr && critical->content != std::string_view("\0", 1);
    reading.value = fields.Need(kOctetString).content;
    fields.End();
    reading.isRead = !reading.oid.empty();
  } catch (const Malformed&) {
    return reading;
  }
  const auto* const row =
      std::find_if(std::begin(kExtensions), std::end(kExtensions),
                   [&reading](const ExtensionRow& each) { return reading.oid == each.oid; });
  if (row == std::end(kExtensions)) return reading;
  reading.name = row->name;
  reading.hasNames = row->read == Names;
  if (row->read != nullptr) ReadContent(*row, reading);
  return reading;
}

}  // namespace Example
