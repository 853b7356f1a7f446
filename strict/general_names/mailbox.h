// Mailboxes taken apart (RFC 5321 4.1.2, RFC 6531 3.3): local part, and host or address literal.
//
//   Mailbox mailbox;
//   if (Mailbox::Read("joe@example.org", Mailbox::kAscii, &mailbox, &refusal)) use(mailbox.host);
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_MAILBOX_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_MAILBOX_H_

#include <string_view>

#include "strict/der/refusal.h"
#include "strict/general_names/ip_address.h"

namespace Ortholan::strict {

constexpr size_t kMaxLocalOctets = 64;  // RFC 5321 4.5.3.1.1

struct Mailbox {
  enum Alphabet { kAscii, kUtf8 };  // of the local part

  std::string_view local;  // as written, with its quotes
  std::string_view host;   // a checked host name; empty for an address literal
  IpAddress address;       // of an address literal; empty for a host
  bool is_ascii = true;    // of the local part

  // Reads a mailbox that is all of `text`. `*mailbox` changes only on success.
  static bool Read(std::string_view text, Alphabet alphabet, Mailbox* mailbox, Refusal* refusal);
};

// Whether a text is a mailbox whose local part has characters beyond ASCII (RFC 9598 3).
bool CheckUtf8Mailbox(std::string_view text, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_MAILBOX_H_
