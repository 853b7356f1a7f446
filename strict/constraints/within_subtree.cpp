#include "strict/constraints/within_subtree.h"

#include "strict/constraints/constrained_name.h"
#include "strict/constraints/subtree.h"
#include "strict/general_names/host.h"
#include "strict/general_names/ip_address.h"
#include "strict/matching/match_names.h"

namespace Ortholan::strict {
namespace {

Holding Unknown(ortholan_reason why, ortholan_reason* reason) {
  *reason = why;
  return Holding::kUnknown;
}

constexpr Holding InsideIf(bool inside) { return inside ? Holding::kInside : Holding::kOutside; }

bool IsBelow(std::string_view host, std::string_view parent) {
  return host.size() > parent.size() && IsWithinHost(host, parent);
}

// "*" stands for one label: all of those hosts are inside, or the one that is the tree's root.
Holding HoldWildcard(const Subtree& subtree, std::string_view base) {
  if (IsWithinHost(base, subtree.host)) return Holding::kInside;
  const bool is_one_of_them =
      subtree.kind == Subtree::Kind::kTree && SameWithoutCase(BehindFirstLabel(subtree.host), base);
  return is_one_of_them ? Holding::kOverlap : Holding::kOutside;
}

bool IsQuoted(std::string_view local) { return !local.empty() && local.front() == '"'; }

Holding HoldMailbox(const Subtree& subtree, const ConstrainedName& name, ortholan_reason* reason) {
  if (!SameWithoutCase(subtree.host, name.host)) return Holding::kOutside;
  if (subtree.local == name.local) return Holding::kInside;
  if (name.is_beyond_ascii) return Unknown(ORTHOLAN_REASON_MAILBOX_BEYOND_ASCII, reason);
  if (IsQuoted(subtree.local) || IsQuoted(name.local)) {
    return Unknown(ORTHOLAN_REASON_MAILBOX_QUOTED, reason);
  }
  if (name.ignores_case && SameWithoutCase(subtree.local, name.local)) {
    return Unknown(ORTHOLAN_REASON_MAILBOX_CASE, reason);
  }
  return Holding::kOutside;
}

Holding HoldMail(const Subtree& subtree, const ConstrainedName& name, ortholan_reason* reason) {
  if (subtree.kind == Subtree::Kind::kUndefined) {
    return name.is_beyond_ascii ? Unknown(ORTHOLAN_REASON_UNDEFINED_FORM, reason)
                                : Holding::kOutside;
  }
  if (name.host.empty()) return Unknown(ORTHOLAN_REASON_MAILBOX_AT_ADDRESS, reason);
  if (subtree.kind == Subtree::Kind::kMailbox) return HoldMailbox(subtree, name, reason);
  return HoldHost(subtree, name);
}

Holding HoldDirectory(const Subtree& subtree, const ConstrainedName& name,
                      ortholan_reason* reason) {
  const ortholan_verdict verdict =
      MatchWithin(subtree.directory, name.directory, MatchRule::kRfc5280).verdict;
  if (verdict == ORTHOLAN_VERDICT_CANNOT_TELL) {
    return Unknown(ORTHOLAN_REASON_DIRECTORY_UNTOLD, reason);
  }
  return InsideIf(verdict == ORTHOLAN_VERDICT_YES);
}

Holding HoldService(const Subtree& subtree, const ConstrainedName& name) {
  if (!subtree.service.empty() && !SameWithoutCase(subtree.service, name.service)) {
    return Holding::kOutside;
  }
  return HoldHost(subtree, name);
}

}  // namespace

Holding HoldHost(const Subtree& subtree, const ConstrainedName& name) {
  if (name.has_wildcard) return HoldWildcard(subtree, name.host);
  switch (subtree.kind) {
    case Subtree::Kind::kTree:
      return InsideIf(IsWithinHost(name.host, subtree.host));
    case Subtree::Kind::kBelow:
      return InsideIf(IsBelow(name.host, subtree.host));
    default:
      return InsideIf(SameWithoutCase(name.host, subtree.host));
  }
}

Holding Hold(const Subtree& subtree, const ConstrainedName& name, ortholan_reason* reason) {
  switch (name.form) {
    case NameForm::kDirectory:
      return HoldDirectory(subtree, name, reason);
    case NameForm::kDns:
    case NameForm::kUri:
      return HoldHost(subtree, name);
    case NameForm::kMail:
      return HoldMail(subtree, name, reason);
    case NameForm::kAddress:
      return InsideIf(IsInIpRange(name.address, subtree.range));
    case NameForm::kService:
      return HoldService(subtree, name);
    default:
      return Unknown(ORTHOLAN_REASON_UNDEFINED_FORM, reason);
  }
}

}  // namespace Ortholan::strict
