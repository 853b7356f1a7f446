#include "examples/certificate_reading.h"

#include <ortholan/cert_extension.h>
#include <ortholan/platform.h>

#include <algorithm>
#include <iterator>

#include "examples/certificate.h"

namespace Example {

using namespace Ortholan;

namespace {

struct ExtensionName {
  const char* oid;
  const char* name;
  bool isGeneralNames = false;
};

constexpr ExtensionName kExtensionNames[] = {
    {"2.5.29.7", "Subject Alternative Name (superseded)", true},
    {"2.5.29.8", "Issuer Alternative Name (superseded)", true},
    {"2.5.29.9", "Subject Directory Attributes"},
    {"2.5.29.14", "Subject Key Identifier"},
    {"2.5.29.15", "Key Usage"},
    {"2.5.29.16", "Private Key Usage Period"},
    {"2.5.29.17", "Subject Alternative Name", true},
    {"2.5.29.18", "Issuer Alternative Name", true},
    {"2.5.29.19", "Basic Constraints"},
    {"2.5.29.30", "Name Constraints"},
    {"2.5.29.31", "CRL Distribution Points"},
    {"2.5.29.32", "Certificate Policies"},
    {"2.5.29.33", "Policy Mappings"},
    {"2.5.29.35", "Authority Key Identifier"},
    {"2.5.29.36", "Policy Constraints"},
    {"2.5.29.37", "Extended Key Usage"},
    {"2.5.29.46", "Freshest CRL"},
    {"2.5.29.54", "Inhibit anyPolicy"},
    {"1.2.643.100.111", "Subject Sign Tool"},
    {"1.2.643.100.112", "Issuer Sign Tool"},
    {"1.2.840.113549.1.9.15", "S/MIME Capabilities"},
    {"1.3.6.1.4.1.311.20.2", "Certificate Template Name"},
    {"1.3.6.1.4.1.311.21.1", "CA Version"},
    {"1.3.6.1.4.1.311.21.2", "Previous CA Certificate Hash"},
    {"1.3.6.1.4.1.311.21.7", "Certificate Template"},
    {"1.3.6.1.4.1.311.21.10", "Application Policies"},
    {"1.3.6.1.4.1.11129.2.4.2", "Signed Certificate Timestamps"},
    {"1.3.6.1.4.1.11129.2.4.3", "Precertificate Poison"},
    {"1.3.6.1.5.5.7.1.1", "Authority Information Access"},
    {"1.3.6.1.5.5.7.1.3", "Qualified Certificate Statements"},
    {"1.3.6.1.5.5.7.1.11", "Subject Information Access"},
    {"1.3.6.1.5.5.7.1.24", "TLS Feature"},
    {"1.3.6.1.5.5.7.48.1.5", "OCSP No Check"},
    {"2.16.840.1.113730.1.1", "Netscape Certificate Type"},
    {"2.16.840.1.113730.1.13", "Netscape Comment"},
};

NameReading ReadName(const char* role, const IdentObj& name, std::list<Failure>& faults) {
  NameReading reading{ReadNameText(name), ReadNameTree(name)};
  const NameText& text = reading.text;
  if (!text.accepted && !text.isMultiValued) {
    std::string what = std::string(role) + " cannot be decoded";
    if (text.code == ERROR_SUCCESS) what += " (" + text.reason + ")";
    faults.push_back({text.code, what});
  }
  return reading;
}

ExtensionReading ReadExtension(const IdentObj& record, std::list<Failure>& faults) {
  ExtensionReading reading;
  reading.record = record;
  CertExtension extension;
  int error = 0;
  if (extension.ReadData(record.pbData, record.cbData, &error) == 0) {
    faults.push_back({static_cast<DWORD>(error), "an extension cannot be read"});
    return reading;
  }
  reading.isRead = true;
  reading.oid.assign(reinterpret_cast<const char*>(extension.oid.pbData), extension.oid.cbData);
  reading.isCritical = extension.critical != FALSE;
  reading.value = extension.value;

  const auto* const row =
      std::find_if(std::begin(kExtensionNames), std::end(kExtensionNames),
                   [&reading](const ExtensionName& entry) { return entry.oid == reading.oid; });
  if (row == std::end(kExtensionNames)) return reading;
  reading.name = row->name;
  if (!row->isGeneralNames) return reading;
  reading.generalNames = ReadGeneralNames(extension.value);
  if (!reading.generalNames->isWhole) {
    faults.push_back({static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT), "a general name cannot be read"});
  }
  return reading;
}

}  // namespace

CertificateReading ReadWholeCertificate(const std::string& der) {
  const Certificate certificate = ReadCertificate(der);
  CertificateReading reading;
  reading.subject = ReadName("subject", certificate.subject, reading.faults);
  reading.issuer = ReadName("issuer", certificate.issuer, reading.faults);
  for (const IdentObj& record : certificate.extensions) {
    reading.extensions.push_back(ReadExtension(record, reading.faults));
  }
  return reading;
}

}  // namespace Example
