// What RFC 5280 forbids in the names and extensions of a certificate, a request or a CRL, and RFC
// 3779 in those that delegate addresses, one finding for each fault. Keys, signatures, times and
// what other profiles want are not looked at.
//
//   ortholan_fault faults[64];
//   size_t count = 0;
//   if (ortholan_check(der, faults, 64, &count, &refusal) == 0 && count == 0) ...
//   printf("%s (%s)\n", faults[0].sentence, faults[0].section);
#ifndef ORTHOLAN_STRICT_CHECK_H_
#define ORTHOLAN_STRICT_CHECK_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// A rule. Texts are static and terminated.
typedef struct ortholan_check_rule {
  const char* name;     // "path-length-without-ca": stays the same
  const char* section;  // of RFC 5280, "4.2.1.9", of others "RFC 3779 2.2.3.6"; "" where it is that
                        // of the extension at fault
  const char* sentence;  // what is wrong, without a full stop; may change
} ortholan_check_rule;

// One fault.
typedef struct ortholan_fault {
  const char* rule;           // its name
  const char* section;        // of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6"
  const char* sentence;       // what is wrong, without a full stop
  ortholan_octets extension;  // content octets of the identifier of the extension that the fault is
                              // about, be it missing; no octets where it is about none
  ortholan_octets part;       // where in the input: a name, an attribute, an extension, a general
                              // name, ...; no octets where something is missing
  ortholan_refusal refusal;   // why a part cannot be read, counted from the start of the part; else
                              // zero
} ortholan_fault;

// Looks for everything that the rules forbid: first in the document as a whole, then in its names,
// then in each extension, those of the entries of a CRL among them, in the order of the encoding.
// An encoding that is no DER is a fault among others as long as the parts can be told apart.
//   der    a certificate, a request or a CRL, the whole encoding
//   faults room for `room` of them; may be NULL
//   count  how many there are, be it more than the room
// Refuses what is none of the three, and MEMORY.
ORTHOLAN_EXPORT ortholan_reason ortholan_check(ortholan_octets der, ortholan_fault* faults,
                                               size_t room, size_t* count,
                                               ortholan_refusal* refusal);

// The rule number `index`, from 0; the order may change. Refuses NOT_FOUND behind the last.
ORTHOLAN_EXPORT ortholan_reason ortholan_check_rule_at(size_t index, ortholan_check_rule* rule);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_CHECK_H_
