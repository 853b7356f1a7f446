// A finding as one English sentence.
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_FINDING_TEXT_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_FINDING_TEXT_H_

#include <ortholan/strict/constraints.h>

#include "strict/der/output.h"

namespace Ortholan::strict {

// "certificate 1: DNS name a.example.com is in no permitted subtree of certificate 2
// (example.org)". Certificates are counted from 1.
void PutFinding(const ortholan_finding& finding, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_FINDING_TEXT_H_
