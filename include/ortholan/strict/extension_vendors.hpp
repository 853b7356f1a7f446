// Extensions of single vendors and communities in C++17.
//
//   const auto version = ortholan::EntrustVersion::Read(extension.value);
//   if (version && version->flags & ORTHOLAN_ENTRUST_WEB_CATEGORY) ...
#ifndef ORTHOLAN_STRICT_EXTENSION_VENDORS_HPP_
#define ORTHOLAN_STRICT_EXTENSION_VENDORS_HPP_

#include <ortholan/strict/extension_vendors.h>

#include <ortholan/strict/extension_values.hpp>

namespace ortholan {

namespace detail {

// Octets of ASCII.
inline std::string AsciiText(Octets octets) { return {octets.begin(), octets.end()}; }

}  // namespace detail

struct EntrustVersion {
  std::string version;
  uint32_t flags = 0;  // ORTHOLAN_ENTRUST_ flags

  explicit EntrustVersion(const ortholan_entrust_version& plain)
      : version(detail::AsciiText(plain.version)), flags(plain.flags.flags) {}
  static Result<EntrustVersion> Read(Octets value, Reading reading = Reading::kDer) {
    return detail::ReadValue<EntrustVersion, ortholan_entrust_version>(
        value, reading, ortholan_entrust_version_read);
  }
};

// proxyCertInfo.
struct ProxyInformation {
  std::optional<int64_t> path_length;
  Octets language;  // content octets of an identifier
  Octets policy;    // empty where it is not there

  explicit ProxyInformation(const ortholan_proxy_information& plain)
      : path_length(detail::ToNumber(plain.path_length)),
        language(plain.policy.language),
        policy(plain.policy.policy) {}
  static Result<ProxyInformation> Read(Octets value, Reading reading = Reading::kDer) {
    return detail::ReadValue<ProxyInformation, ortholan_proxy_information>(
        value, reading, ortholan_proxy_information_read);
  }
};

struct IssuerSignTool {
  std::string tool;
  std::string authority_tool;
  std::string tool_certificate;
  std::string authority_tool_certificate;

  explicit IssuerSignTool(const ortholan_issuer_sign_tool& plain)
      : tool(detail::StringText(plain.tool)),
        authority_tool(detail::StringText(plain.authority_tool)),
        tool_certificate(detail::StringText(plain.tool_certificate)),
        authority_tool_certificate(detail::StringText(plain.authority_tool_certificate)) {}
  static Result<IssuerSignTool> Read(Octets value, Reading reading = Reading::kDer) {
    return detail::ReadValue<IssuerSignTool, ortholan_issuer_sign_tool>(
        value, reading, ortholan_issuer_sign_tool_read);
  }
};

struct AdobeTimestamp {
  int64_t version = 0;
  Octets location;  // a whole GeneralName
  bool needs_authentication = false;

  explicit AdobeTimestamp(const ortholan_adobe_timestamp& plain)
      : version(plain.version.value),
        location(plain.location),
        needs_authentication(plain.needs_authentication != 0) {}
  static Result<AdobeTimestamp> Read(Octets value, Reading reading = Reading::kDer) {
    return detail::ReadValue<AdobeTimestamp, ortholan_adobe_timestamp>(
        value, reading, ortholan_adobe_timestamp_read);
  }
};

// adobeArchiveRevInfo: its version.
inline Result<int64_t> ReadAdobeArchive(Octets value, Reading reading = Reading::kDer) {
  const auto archive =
      detail::ReadPlain<ortholan_adobe_archive>(value, reading, ortholan_adobe_archive_read);
  if (!archive) return archive.refusal();
  return archive->version.value;
}

// ntdsCASecurity of Windows: "S-1-5-...".
inline Result<std::string> ReadSecurityIdentifier(Octets value, Reading reading = Reading::kDer) {
  const auto identifier = detail::ReadPlain<ortholan_security_identifier>(
      value, reading, ortholan_security_identifier_read);
  if (!identifier) return identifier.refusal();
  return detail::AsciiText(identifier->name.text);
}

// One of smimeCapabilities.
struct Capability {
  Octets oid;         // content octets
  Octets parameters;  // a whole element; empty where it is not there

  explicit Capability(const ortholan_capability& plain)
      : oid(plain.oid), parameters(plain.parameters) {}
};
using Capabilities = ValueList<Capability, ortholan_capability, ortholan_capability_next>;
// smimeCapabilities.
inline Result<Capabilities> ReadCapabilities(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<Capabilities, ortholan_list>(value, reading, ortholan_capabilities_read);
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_EXTENSION_VENDORS_HPP_
