// Whose certificate.
#include <ortholan/strict/identity.h>

#include "strict/face/call.h"
#include "strict/identity/identify.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

// The question, which is the caller's; NONE where it can be asked.
ortholan_reason ReadReference(const ortholan_reference* asked, Reference* reference,
                              ortholan_refusal* refusal) {
  if (asked == nullptr || !IsGiven(asked->text) || asked->kind < ORTHOLAN_REFERENCE_HOST ||
      asked->kind > ORTHOLAN_REFERENCE_SERVICE) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  Refusal found;
  if (Reference::Read(static_cast<ReferenceKind>(asked->kind), View(asked->text), asked->choices,
                      reference, &found)) {
    return ORTHOLAN_REASON_NONE;
  }
  return Report(found, asked->text.data, refusal);
}

// Asks `identify` about the octets.
template <class Identifier>
ortholan_reason Ask(ortholan_octets octets, const ortholan_reference* asked, Identifier identify,
                    ortholan_identity* identity, ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (identity == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *identity = {};
  if (!IsGiven(octets)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  Reference reference;
  const ortholan_reason fault = ReadReference(asked, &reference, refusal);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  Refusal found;
  const Identity answer = identify(View(octets), reference, &found);
  if (found) Report(found, octets.data, refusal);
  *identity = {static_cast<ortholan_verdict>(answer.verdict),
               answer.reason,
               Octets(answer.match.bytes),
               answer.index,
               Octets(answer.names),
               answer.name_count};
  return ORTHOLAN_REASON_NONE;
}

}  // namespace

ortholan_reason ortholan_identify(ortholan_octets certificate, const ortholan_reference* reference,
                                  ortholan_identity* identity, ortholan_refusal* refusal) {
  return Ask(certificate, reference, Identify, identity, refusal);
}

ortholan_reason ortholan_identify_by_names(ortholan_octets names,
                                           const ortholan_reference* reference,
                                           ortholan_identity* identity, ortholan_refusal* refusal) {
  return Ask(names, reference, IdentifyByNames, identity, refusal);
}

ortholan_reason ortholan_identity_explain(const ortholan_identity* identity,
                                          const ortholan_reference* asked, size_t* offset,
                                          ortholan_presented_name* presented) {
  if (presented != nullptr) *presented = {};
  if (identity == nullptr || offset == nullptr || presented == nullptr ||
      !IsGiven(identity->names) || *offset > identity->names.size) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  Reference reference;
  const ortholan_reason fault = ReadReference(asked, &reference, nullptr);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  if (*offset == identity->names.size) return ORTHOLAN_REASON_NOT_FOUND;
  Reader list(View(identity->names).From(*offset), Leniency::kStructure, nullptr);
  Element element;
  if (!list.Read(&element)) return ORTHOLAN_REASON_ARGUMENT;
  *offset += element.bytes.size;
  *presented = {Octets(element.bytes), Explain(element, reference)};
  return ORTHOLAN_REASON_NONE;
}
