// Rules about the entries of a CRL and their extensions.
#include "strict/certificates/revoked_entry.h"
#include "strict/der/known_oids.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"

namespace Ortholan::strict::looks {
namespace {

// CRLReason (RFC 5280 5.3.1).
constexpr int kUnused = 7;
constexpr int kRemoveFromCrl = 8;
constexpr int kLastReason = 10;
constexpr int kNoReason = -1;

// The reason of an entry; kUnused for a number that is none, kNoReason where it cannot be read.
int ReasonOf(const CheckCase& at) {
  const ByteView number = ContentOf(at.extension.value, kEnumerated);
  if (number.empty()) return kNoReason;
  return number.size == 1 && number[0] <= kLastReason ? number[0] : kUnused;
}

// The bit of ReasonFlags (4.2.1.13) that stands for a reason, which count on without those two.
int FlagOf(int reason) { return reason > kRemoveFromCrl ? reason - 2 : reason; }

constexpr uint8_t kDirectoryName = ContextConstructed(4);

}  // namespace

void EmptyRevoked(const CheckCase& at) {
  const ByteView revoked = at.document.view.revoked();
  if (!revoked.empty() && ContentOf(revoked, kSequence).empty()) at.Fault(revoked);
}

void EntryEncoding(const CheckCase& at) {
  ForEachElement(ContentOf(at.document.view.revoked(), kSequence), [&at](const Element& element) {
    Refusal refusal;
    Reader list(element.bytes, Leniency::kDer, &refusal);
    RevokedEntry entry;
    if (!RevokedEntry::Take(&list, &entry)) at.Fault(element.bytes, refusal);
  });
}

void ReasonsUnused(const CheckCase& at) {
  if (ReasonOf(at) == kUnused) at.Fault(at.extension.value);
}

void RemovedOutsideDelta(const CheckCase& at) {
  if (ReasonOf(at) == kRemoveFromCrl && !at.document.Has(oids::kDeltaIndicator.view())) {
    at.Fault(at.extension.value);
  }
}

// What has no reason, the first bit, is in no list of some reasons (5.2.5).
void ReasonsOutsideList(const CheckCase& at) {
  const int reason = ReasonOf(at);
  const bool is_told = reason != kNoReason && reason != kUnused && reason != kRemoveFromCrl;
  if (!at.document.has_some_reasons || !is_told) return;
  const bool is_listed = reason != 0 && (at.document.some_reasons >> FlagOf(reason) & 1) != 0;
  if (!is_listed) at.Fault(at.extension.value);
}

void IssuerOutsideIndirect(const CheckCase& at) {
  if (!at.document.is_indirect) at.Fault(at.extension.bytes);
}

void IssuerWithoutName(const CheckCase& at) {
  const ByteView names = ListOf(at);
  if (!names.empty() && !HasPart(names, kDirectoryName)) at.Fault(at.extension.value);
}

}  // namespace Ortholan::strict::looks
