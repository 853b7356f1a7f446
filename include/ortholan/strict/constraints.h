// Name constraints with a verdict and its reasons (RFC 5280 4.2.1.10 and 6.1): may the authorities
// of a chain name what its certificates name? Signatures, times, usages and chain building are
// somebody else's.
//
//   ortholan_octets chain[] = {leaf, intermediate, root};
//   ortholan_finding finding;
//   size_t count = 0;
//   ortholan_verdict verdict;
//   if (ortholan_permits(chain, 3, NULL, &verdict, &finding, 1, &count) != 0) ...
//   if (verdict != ORTHOLAN_VERDICT_YES) ... ortholan_finding_sentence(&finding, ...)
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// Name constraints, 300 to 339.
enum {
  // The name is in an excluded subtree.
  ORTHOLAN_REASON_EXCLUDED = 300,
  // There are permitted subtrees of the name's form, and the name is in none of them.
  ORTHOLAN_REASON_NOT_PERMITTED = 301,
  // Names of this form are constrained, and nothing says how they are held against a subtree:
  // x400Address, ediPartyName, registeredID, other names of unknown types.
  ORTHOLAN_REASON_UNDEFINED_FORM = 302,
  // A subtree with a minimum other than 0, or with a maximum.
  ORTHOLAN_REASON_SUBTREE_DISTANCE = 303,
  // The mask of an address range is not ones and then zeros (RFC 4632).
  ORTHOLAN_REASON_SUBTREE_MASK = 304,
  // A subtree of mailboxes or URIs that names nothing.
  ORTHOLAN_REASON_SUBTREE_EMPTY = 305,
  // A URI without a host name: none, an address, or one that is no host name.
  ORTHOLAN_REASON_URI_WITHOUT_HOST = 306,
  // One local part is quoted, the other is not or is quoted otherwise: the same mailbox may be
  // meant
  // (RFC 5321 4.1.2).
  ORTHOLAN_REASON_MAILBOX_QUOTED = 307,
  // An e-mail attribute of the subject whose local part differs in letter case alone: 4.1.2.6
  // ignores
  // case, 7.5 does not.
  ORTHOLAN_REASON_MAILBOX_CASE = 308,
  // A mailbox at an address in brackets, against a subtree of hosts.
  ORTHOLAN_REASON_MAILBOX_AT_ADDRESS = 309,
  // A mailbox with characters beyond ASCII against a subtree of one mailbox (RFC 9598 6).
  ORTHOLAN_REASON_MAILBOX_BEYOND_ASCII = 310,
  // A service's name that is not "_service.host" (RFC 4985 2).
  ORTHOLAN_REASON_SERVICE_NAME = 311,
  // A directory name and a subtree whose comparison cannot be decided.
  ORTHOLAN_REASON_DIRECTORY_UNTOLD = 312,
  // The budget of comparisons is used up.
  ORTHOLAN_REASON_BUDGET = 313,
  // A certificate cannot be read.
  ORTHOLAN_REASON_NO_CERTIFICATE = 314
};

// Where a name of a finding stands in its certificate.
enum {
  ORTHOLAN_NAME_NONE = 0,        // the finding is about the constraints themselves
  ORTHOLAN_NAME_SUBJECT = 1,     // `name` is the encoding of the subject
  ORTHOLAN_NAME_EMAIL = 2,       // `name` is the value of an e-mail attribute of the subject
  ORTHOLAN_NAME_ALTERNATIVE = 3  // `name` is a GeneralName of the alternative names
};

// One reason why a chain is not permitted, or why that cannot be told.
typedef struct ortholan_finding {
  ortholan_reason reason;
  ortholan_verdict verdict;  // ORTHOLAN_VERDICT_NO or ORTHOLAN_VERDICT_CANNOT_TELL
  size_t certificate;        // index of the certificate whose name it is, 0 for the leaf
  size_t authority;          // index of the certificate whose constraints decide
  int32_t place;             // an ORTHOLAN_NAME_ word
  ortholan_octets name;
  ortholan_octets
      subtree;           // GeneralName that is the base of the subtree; of the first permitted one
                         // where none of several holds the name; no octets where none decides
  size_t subtree_count;  // how many subtrees of the name's form were looked at
} ortholan_finding;

// What may be chosen; NULL stands for zeros.
typedef struct ortholan_permit_options {
  // Comparisons of a name with a subtree, at most; 0 for ORTHOLAN_DEFAULT_BUDGET.
  uint64_t budget;
} ortholan_permit_options;

#define ORTHOLAN_DEFAULT_BUDGET UINT64_C(16777216)

// Holds the names of each certificate of a chain against the constraints of those above it.
//   chain    certificates in DER, from the leaf up to the authority whose constraints count first
//   verdict  ORTHOLAN_VERDICT_NO as soon as one name is excluded or not permitted, CANNOT_TELL
//   where
//            something cannot be decided, else YES
//   findings room for `room` reasons, those of the verdict's kind before others, each kind in the
//            order of authorities, certificates and names; may be NULL
//   count    how many were stored. With room for 0 or 1 the search ends at the first refusal.
// Refuses ARGUMENT and MEMORY alone: what cannot be read is a finding.
ORTHOLAN_EXPORT ortholan_reason ortholan_permits(const ortholan_octets* chain, size_t chain_size,
                                                 const ortholan_permit_options* options,
                                                 ortholan_verdict* verdict,
                                                 ortholan_finding* findings, size_t room,
                                                 size_t* count);
// The same for loose parts: the value of one NameConstraints extension against one certificate's
// subject (a Name) and the value of its SubjectAltName extension. Subject and alternative names may
// be without octets. In findings the certificate is 0 and the authority 1.
ORTHOLAN_EXPORT ortholan_reason ortholan_permits_names(
    ortholan_octets constraints, ortholan_octets subject, ortholan_octets alternative_names,
    const ortholan_permit_options* options, ortholan_verdict* verdict, ortholan_finding* findings,
    size_t room, size_t* count);
// One English sentence without a full stop; certificates are counted from 1, the leaf.
ORTHOLAN_EXPORT ortholan_reason ortholan_finding_sentence(const ortholan_finding* finding,
                                                          char* out, size_t room, size_t* size);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_H_
