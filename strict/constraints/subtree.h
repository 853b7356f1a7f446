// One subtree of name constraints, taken apart once (RFC 5280 4.2.1.10): which names it holds.
//
//   Subtree subtree;
//   if (!Subtree::Read(base, &subtree, &refusal)) ...   // "example.org": that host and all below
//   it
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_H_

#include <ortholan/strict/constraints.h>

#include <string_view>

#include "strict/constraints/name_form.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {

struct Refusal;

struct Subtree {
  // Which names it holds.
  enum class Kind : uint8_t {
    kUndefined,  // that of no defined form
    kDirectory,  // names that begin with these RDNs
    kTree,       // the host and all below it; all hosts where it is empty
    kBelow,      // what is below the host, without itself
    kHost,       // the host alone
    kMailbox,    // one mailbox
    kRange,      // addresses
  };

  NameForm form = NameForm::kOther;
  Kind kind = Kind::kUndefined;
  ByteView base;  // the GeneralName
  NameView directory;
  ByteView range;            // address and mask
  std::string_view host;     // without a dot in front
  std::string_view local;    // of a mailbox, as written
  std::string_view service;  // with its underscore; empty for every service

  // Takes the base of a subtree apart. Refuses what RFC 5280 does not allow as one.
  static bool Read(const GeneralNameView& base, Subtree* subtree, Refusal* refusal);
};

// CheckHost for hosts of names and subtrees: what is decidable counts, also where it is no
// preferred name syntax.
bool CheckDecidableHost(std::string_view host, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_H_
