// One subtree of name constraints, and one name of a certificate, both taken apart once, and how
// the two are held against each other (RFC 5280 4.2.1.10).
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

// A name of a certificate whose form is constrained.
struct ConstrainedName {
  NameForm form = NameForm::kOther;
  int32_t place = ORTHOLAN_NAME_NONE;            // an ORTHOLAN_NAME_ word
  ortholan_reason fault = ORTHOLAN_REASON_NONE;  // why it cannot be compared
  ByteView bytes;                                // for the finding
  NameView directory;
  ByteView address;       // of an address
  std::string_view host;  // behind "*." where it has a wildcard; empty for a mailbox at an address
  std::string_view local;
  std::string_view service;
  bool has_wildcard = false;
  bool is_beyond_ascii = false;  // SmtpUTF8Mailbox
  bool ignores_case = false;     // of the local part

  static ConstrainedName OfSubject(const NameView& subject);
  static ConstrainedName OfEmail(const AttributeView& attribute);
  static ConstrainedName Of(const GeneralNameView& name, NameForm form);
};

// What a subtree says of a name.
enum class Holding : uint8_t {
  kOutside,
  kOverlap,  // some hosts that a wildcard stands for are inside
  kInside,
  kUnknown,
};

// Holds a name without fault against a subtree of its form. `*reason` is set for kUnknown.
Holding Hold(const Subtree& subtree, const ConstrainedName& name, ortholan_reason* reason);

// The same for the hosts alone, of a tree, of what is below a host, or of one host.
Holding HoldHost(Subtree::Kind kind, std::string_view subtree, const ConstrainedName& name);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_H_
