// What a certificate is asked for: a reference identifier (RFC 9525 6.1), checked and taken apart
// once, then compared with any number of certificates. It keeps views into the caller's text.
//
//   Reference reference;
//   if (!Reference::Read(ReferenceKind::kHost, "www.example.org", 0, &reference, &refusal)) ...
#ifndef ORTHOLAN_STRICT_IDENTITY_REFERENCE_H_
#define ORTHOLAN_STRICT_IDENTITY_REFERENCE_H_

#include <ortholan/strict/identity.h>

#include <string_view>

#include "strict/der/refusal.h"
#include "strict/general_names/ip_address.h"

namespace Ortholan::strict {

enum class ReferenceKind : int32_t {
  kHost = ORTHOLAN_REFERENCE_HOST,
  kAddress = ORTHOLAN_REFERENCE_ADDRESS,
  kMailbox = ORTHOLAN_REFERENCE_MAILBOX,
  kUri = ORTHOLAN_REFERENCE_URI,
  kService = ORTHOLAN_REFERENCE_SERVICE,
};

// What is compared of a name, be it asked for or presented.
struct NameParts {
  std::string_view host;       // empty where an address stands
  std::string_view qualifier;  // local part, scheme, or service with its underscore
  IpAddress address;
};

// These take names apart and refuse those that cannot be compared. `choices` are what hosts may
// have.
bool ReadMailboxParts(std::string_view text, bool isUtf8, NameParts* parts, Refusal* refusal);
bool ReadUriParts(std::string_view text, uint32_t choices, NameParts* parts, Refusal* refusal);
bool ReadServiceParts(std::string_view text, NameParts* parts, Refusal* refusal);

struct Reference {
  ReferenceKind kind = ReferenceKind::kHost;
  uint32_t host_choices = 0;    // what presented hosts may have
  bool is_presentable = false;  // a host that needs no check where a name presents it
  NameParts parts;              // hosts without a dot at the end

  // `choices` is of the ORTHOLAN_IDENTIFY_ words. What is no reference of its kind is refused at
  // its place in `text`.
  static bool Read(ReferenceKind kind, std::string_view text, uint32_t choices,
                   Reference* reference, Refusal* refusal);
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_IDENTITY_REFERENCE_H_
