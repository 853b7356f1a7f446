#include "strict/identity/reference.h"

#include "strict/general_names/host.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/service_name.h"
#include "strict/general_names/uri.h"

namespace Ortholan::strict {
namespace {

// The name asked for may be absolute, with a dot at its end (RFC 1034 3.1), and hosts with hyphens
// at the edges of labels are asked for below wildcards.
bool ReadHost(std::string_view text, uint32_t choices, NameParts* parts, Refusal* refusal) {
  if (!CheckHost(text, choices | kTrailingDot | kEdgeHyphens, refusal)) {
    IpAddress address;
    if (ReadIpAddress(text, &address)) RefuseText(refusal, ORTHOLAN_REASON_HOST_IS_ADDRESS, text);
    return false;
  }
  parts->host = WithoutTrailingDot(text);
  return true;
}

// SIP's URIs have their host without "//" (RFC 3261 19.1); with a user they name no domain (RFC
// 5922 7.1).
bool IsSip(std::string_view scheme) {
  return SameWithoutCase(scheme, "sip") || SameWithoutCase(scheme, "sips");
}

std::string_view SipHost(std::string_view rest) {
  return rest.substr(0, rest.find_first_of(":;?"));
}

}  // namespace

bool ReadMailboxParts(std::string_view text, bool isUtf8, NameParts* parts, Refusal* refusal) {
  Mailbox mailbox;
  if (!Mailbox::Read(text, isUtf8 ? Mailbox::kUtf8 : Mailbox::kAscii, &mailbox, refusal)) {
    return false;
  }
  *parts = {mailbox.host, mailbox.local, mailbox.address};
  return true;
}

bool ReadUriParts(std::string_view text, uint32_t choices, NameParts* parts, Refusal* refusal) {
  Uri uri;
  if (!Uri::Read(text, &uri, refusal)) return false;
  parts->qualifier = uri.scheme;
  if (uri.host_kind == Uri::HostKind::kAddress) {
    parts->address = uri.address;
    return true;
  }
  parts->host = uri.host;
  if (!uri.has_authority && IsSip(uri.scheme)) {
    parts->host = SipHost(uri.rest);
  } else if (uri.host_kind != Uri::HostKind::kName) {
    return RefuseText(refusal, ORTHOLAN_REASON_URI_HOST, text);
  }
  return CheckHost(parts->host, choices, refusal);
}

bool ReadServiceParts(std::string_view text, NameParts* parts, Refusal* refusal) {
  return SplitService(text, &parts->qualifier, &parts->host, refusal);
}

bool Reference::Read(ReferenceKind kind, std::string_view text, uint32_t choices,
                     Reference* reference, Refusal* refusal) {
  Reference read;
  read.kind = kind;
  read.host_choices = (choices & ORTHOLAN_IDENTIFY_NO_UNDERSCORE) != 0 ? kPlainHost : kUnderscores;
  const auto is_read = [&] {
    switch (kind) {
      case ReferenceKind::kHost:
        read.parts.host = text;
        read.is_presentable = IsPlainlyHost(text, read.host_choices);
        return read.is_presentable || ReadHost(text, read.host_choices, &read.parts, refusal);
      case ReferenceKind::kAddress:
        return ReadIpAddress(text, &read.parts.address) ||
               RefuseText(refusal, ORTHOLAN_REASON_ADDRESS_TEXT, text);
      case ReferenceKind::kMailbox:
        return ReadMailboxParts(text, true, &read.parts, refusal);
      case ReferenceKind::kUri:
        return ReadUriParts(text, read.host_choices, &read.parts, refusal);
      default:
        return ReadServiceParts(WithoutTrailingDot(text), &read.parts, refusal);
    }
  };
  if (!is_read()) return false;
  *reference = read;
  return true;
}

}  // namespace Ortholan::strict
