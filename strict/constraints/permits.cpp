#include "strict/constraints/permits.h"

#include "strict/certificates/certificate_view.h"
#include "strict/constraints/constrained_name.h"
#include "strict/constraints/name_constraints_view.h"
#include "strict/constraints/subtree_set.h"
#include "strict/der/known_oids.h"
#include "strict/matching/match_names.h"

namespace Ortholan::strict {
namespace {

// What a certificate names.
struct NamesOfCertificate {
  ByteView subject;
  GeneralNamesView alternatives;
  bool has_alternatives = false;  // the extension is there, in order or not
};

// A list of names with a kind that none of them has, or without names, says nothing of what it
// names.
bool ReadAlternatives(ByteView value, NamesOfCertificate* names, Refusal* refusal) {
  names->has_alternatives = true;
  return GeneralNamesView::Read(value, Leniency::kStructure, &names->alternatives, refusal);
}

// Holds certificates against the constraints of one authority.
class Authority {
 public:
  Authority(size_t index, Budget* budget, Findings* findings)
      : index_(index), budget_(budget), findings_(findings) {}

  // Reads the value of the extension. What is malformed decides nothing about anybody: one finding.
  bool Read(ByteView constraints);
  void Judge(size_t certificate, const NamesOfCertificate& names);

 private:
  bool IsConstrained(NameForm form) const { return forms_.Has(form); }
  void JudgeSubject(const NamesOfCertificate& names);
  void JudgeAlternatives(const NamesOfCertificate& names);
  void JudgeName(const ConstrainedName& name);
  void JudgePermitted(const ConstrainedName& name);
  void Note(ortholan_verdict verdict, ortholan_reason reason, const ConstrainedName& name,
            const Subtree* subtree, size_t count);
  void NoteUntold(ortholan_reason reason, int32_t place, ByteView name);

  size_t index_;
  Budget* budget_;
  Findings* findings_;
  SubtreeSet permitted_;
  SubtreeSet excluded_;
  FormSet forms_;
  size_t certificate_ = 0;
};

bool Authority::Read(ByteView constraints) {
  NameConstraintsView view;
  Refusal refusal;
  certificate_ = index_;
  if (!NameConstraintsView::Read(constraints, Leniency::kStructure, &view, &refusal) ||
      !permitted_.Read(view.permitted(), &refusal) || !excluded_.Read(view.excluded(), &refusal)) {
    NoteUntold(refusal.reason, ORTHOLAN_NAME_CONSTRAINTS, constraints);
    return false;
  }
  forms_ = permitted_.forms().With(excluded_.forms());
  return true;
}

void Authority::Judge(size_t certificate, const NamesOfCertificate& names) {
  certificate_ = certificate;
  JudgeSubject(names);
  JudgeAlternatives(names);
}

// The subject is a directory name; without alternative names its e-mail attributes are mailboxes.
void Authority::JudgeSubject(const NamesOfCertificate& names) {
  const bool has_mail = IsConstrained(NameForm::kMail) && !names.has_alternatives;
  if (names.subject.empty() || (!IsConstrained(NameForm::kDirectory) && !has_mail)) return;
  NameView subject;
  Refusal refusal;
  if (!NameView::Read(names.subject, Leniency::kStructure, &subject, &refusal)) {
    NoteUntold(refusal.reason, ORTHOLAN_NAME_SUBJECT, names.subject);
    return;
  }
  if (!subject.empty() && IsConstrained(NameForm::kDirectory)) {
    JudgeName(ConstrainedName::OfSubject(subject));
  }
  if (!has_mail) return;
  for (const AttributeView& attribute : subject) {
    if (!SameBytes(attribute.type, kEmailAddressOid.view())) continue;
    JudgeName(ConstrainedName::OfEmail(attribute));
  }
}

void Authority::JudgeAlternatives(const NamesOfCertificate& names) {
  for (const GeneralNameView& name : names.alternatives) {
    const NameForm form = FormOf(name);
    if (!IsConstrained(form)) continue;
    JudgeName(ConstrainedName::Of(name, form));
    if (findings_->IsSettled()) return;
  }
}

// Excluded before permitted: what is excluded is invalid whatever is permitted.
void Authority::JudgeName(const ConstrainedName& name) {
  if (name.fault != ORTHOLAN_REASON_NONE) {
    return Note(ORTHOLAN_VERDICT_CANNOT_TELL, name.fault, name, nullptr, 0);
  }
  if (excluded_.forms().Has(name.form)) {
    const HoldingOfList found = excluded_.Find(name, budget_);
    if (found.holding == Holding::kInside || found.holding == Holding::kOverlap) {
      return Note(ORTHOLAN_VERDICT_NO, ORTHOLAN_REASON_EXCLUDED, name, found.subtree, 1);
    }
    if (found.holding == Holding::kUnknown) {
      Note(ORTHOLAN_VERDICT_CANNOT_TELL, found.reason, name, found.subtree, 1);
    }
  }
  JudgePermitted(name);
}

void Authority::JudgePermitted(const ConstrainedName& name) {
  if (!permitted_.forms().Has(name.form)) return;
  const HoldingOfList found = permitted_.Find(name, budget_);
  if (found.holding == Holding::kInside) return;
  if (found.holding == Holding::kUnknown) {
    return Note(ORTHOLAN_VERDICT_CANNOT_TELL, found.reason, name, found.subtree, 1);
  }
  const Subtree* first = nullptr;
  const size_t count = permitted_.Count(name.form, &first);
  Note(ORTHOLAN_VERDICT_NO, ORTHOLAN_REASON_NOT_PERMITTED, name, first, count);
}

void Authority::Note(ortholan_verdict verdict, ortholan_reason reason, const ConstrainedName& name,
                     const Subtree* subtree, size_t count) {
  const ByteView base = subtree != nullptr ? subtree->base : ByteView();
  findings_->Add({reason,
                  verdict,
                  certificate_,
                  index_,
                  name.place,
                  {name.bytes.data, name.bytes.size},
                  {base.data, base.size},
                  count});
}

void Authority::NoteUntold(ortholan_reason reason, int32_t place, ByteView name) {
  findings_->Add({reason,
                  ORTHOLAN_VERDICT_CANNOT_TELL,
                  certificate_,
                  index_,
                  place,
                  {name.data, name.size},
                  {},
                  0});
}

// One certificate of a chain, read once.
struct Link {
  CertificateView certificate;
  NamesOfCertificate names;
  bool is_readable;
  bool is_self_issued;  // asked of those between leaf and top
};

// False for a certificate whose names cannot be read.
bool ReadLink(ortholan_octets der, Link* link, Refusal* refusal) {
  *link = {};
  link->is_readable = CertificateView::Read({der.data, der.size}, Leniency::kStructure,
                                            &link->certificate, nullptr) &&
                      link->certificate.kind() == CertificateKind::kCertificate;
  if (!link->is_readable) {
    refusal->reason = ORTHOLAN_REASON_UNREADABLE_CERTIFICATE;
    return false;
  }
  link->names.subject = link->certificate.subject();
  ExtensionView found;
  const bool is_one =
      link->certificate.extensions().Find(kAlternativeNamesOid.view(), &found, refusal);
  link->names.has_alternatives = !is_one;
  if (!is_one) return false;
  return found.bytes.empty() || ReadAlternatives(found.value, &link->names, refusal);
}

// Key rollover: such a certificate is no subject of constraints but as the leaf (6.1.3).
bool IsSelfIssued(const CertificateView& certificate) {
  NameView subject, issuer;
  return NameView::Read(certificate.subject(), Leniency::kStructure, &subject, nullptr) &&
         NameView::Read(certificate.issuer(), Leniency::kStructure, &issuer, nullptr) &&
         MatchNames(subject, issuer, MatchRule::kRfc5280).verdict == ORTHOLAN_VERDICT_YES;
}

class Chain {
 public:
  Chain(Budget* budget, Findings* findings) : budget_(budget), findings_(findings) {}

  void Judge(const ortholan_octets* chain, size_t size) {
    for (size_t i = 0; i < size; ++i) {
      Refusal refusal;
      Link* const link = links_.Extend(1);
      const bool is_read = ReadLink(chain[i], link, &refusal);
      link->is_self_issued =
          i != 0 && i + 1 < size && link->is_readable && IsSelfIssued(link->certificate);
      if (is_read) continue;
      Note(i, i, link->is_readable ? ORTHOLAN_NAME_LIST : ORTHOLAN_NAME_NONE, refusal.reason);
    }
    for (size_t i = 1; i < size && !findings_->IsSettled(); ++i) JudgeBelow(i);
  }

 private:
  void JudgeBelow(size_t authority) {
    ExtensionView found;
    Refusal refusal;
    if (!links_[authority].certificate.extensions().Find(kNameConstraintsOid.view(), &found,
                                                         &refusal)) {
      return Note(authority, authority, ORTHOLAN_NAME_CONSTRAINTS, refusal.reason);
    }
    if (found.bytes.empty()) return;
    Authority constraints(authority, budget_, findings_);
    if (!constraints.Read(found.value)) return;
    for (size_t i = 0; i < authority && !findings_->IsSettled(); ++i) {
      if (!links_[i].is_readable || links_[i].is_self_issued) continue;
      if (!budget_->Take()) return Note(i, authority, ORTHOLAN_NAME_NONE, ORTHOLAN_REASON_BUDGET);
      constraints.Judge(i, links_[i].names);
    }
  }
  // What cannot be told of a certificate, whatever it names.
  void Note(size_t certificate, size_t authority, int32_t place, ortholan_reason reason) {
    findings_->Add(
        {reason, ORTHOLAN_VERDICT_CANNOT_TELL, certificate, authority, place, {}, {}, 0});
  }

  Budget* budget_;
  Findings* findings_;
  SmallBuffer<Link, 6> links_;
};

}  // namespace

void JudgeChain(const ortholan_octets* chain, size_t chain_size, Budget* budget,
                Findings* findings) {
  Chain(budget, findings).Judge(chain, chain_size);
}

void JudgeNames(ByteView constraints, ByteView subject, ByteView alternatives, Budget* budget,
                Findings* findings) {
  NamesOfCertificate names;
  names.subject = subject;
  Refusal refusal;
  if (!alternatives.empty() && !ReadAlternatives(alternatives, &names, &refusal)) {
    findings->Add(
        {refusal.reason, ORTHOLAN_VERDICT_CANNOT_TELL, 0, 0, ORTHOLAN_NAME_LIST, {}, {}, 0});
  }
  Authority authority(1, budget, findings);
  if (authority.Read(constraints)) authority.Judge(0, names);
}

}  // namespace Ortholan::strict
