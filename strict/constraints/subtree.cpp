#include "strict/constraints/subtree.h"

#include "strict/der/string_value.h"
#include "strict/general_names/general_name_view.h"
#include "strict/general_names/host.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/other_name_view.h"

namespace Ortholan::strict {
namespace {

bool RefuseBase(ByteView content, ortholan_reason reason, Refusal* refusal) {
  return Refuse(refusal, reason, content.data, content.size);
}

// A host, or with a dot in front what is below it.
bool ReadHost(std::string_view text, Subtree::Kind kind, Subtree* subtree, Refusal* refusal) {
  const bool is_below = !text.empty() && text.front() == '.';
  subtree->kind = is_below ? Subtree::Kind::kBelow : kind;
  subtree->host = is_below ? text.substr(1) : text;
  return CheckDecidableHost(subtree->host, refusal);
}

// Adding zero or more labels to nothing gives every host.
bool ReadDns(std::string_view text, Subtree* subtree, Refusal* refusal) {
  subtree->kind = Subtree::Kind::kTree;
  return text.empty() || ReadHost(text, Subtree::Kind::kTree, subtree, refusal);
}

bool ReadUri(std::string_view text, ByteView content, Subtree* subtree, Refusal* refusal) {
  if (text.empty()) return RefuseBase(content, ORTHOLAN_REASON_SUBTREE_EMPTY, refusal);
  return ReadHost(text, Subtree::Kind::kHost, subtree, refusal);
}

bool ReadMail(std::string_view text, ByteView content, Subtree* subtree, Refusal* refusal) {
  if (text.find('@') == std::string_view::npos) return ReadUri(text, content, subtree, refusal);
  Mailbox mailbox;
  if (!Mailbox::Read(text, Mailbox::kAscii, &mailbox, refusal)) return false;
  if (mailbox.host.empty()) {
    return RefuseBase(content, ORTHOLAN_REASON_MAILBOX_AT_ADDRESS, refusal);
  }
  subtree->kind = Subtree::Kind::kMailbox;
  subtree->local = mailbox.local;
  subtree->host = mailbox.host;
  return true;
}

bool ReadRange(ByteView content, Subtree* subtree, Refusal* refusal) {
  size_t bits;
  if (!IsIpRangeSize(content.size)) {
    return RefuseBase(content, ORTHOLAN_REASON_ADDRESS_SIZE, refusal);
  }
  const size_t half = content.size / 2;
  if (!IsPrefixMask(content.From(half), &bits)) {
    return RefuseBase(content.From(half), ORTHOLAN_REASON_SUBTREE_MASK, refusal);
  }
  subtree->kind = Subtree::Kind::kRange;
  subtree->range = content;
  return true;
}

// "_service.host", "host" for every service of it and below it (RFC 4985 4).
bool ReadService(ByteView content, Subtree* subtree, Refusal* refusal) {
  const Element value = OtherNameView(content).value;
  if (value.identifier != kIA5String) {
    return RefuseBase(content, ORTHOLAN_REASON_SERVICE, refusal);
  }
  std::string_view text = AsText(value.content);
  if (!text.empty() && text.front() == '_') {
    const size_t dot = text.find('.');
    subtree->service = text.substr(0, dot);
    text = dot != std::string_view::npos ? text.substr(dot + 1) : std::string_view();
  }
  return ReadDns(text, subtree, refusal);
}

// What nearly every host name passes tells that nothing else is wrong with a base either.
bool IsPlainTree(const GeneralNameView& base) {
  return base.kind == GeneralNameKind::kDns && IsPlainlyHost(AsText(base.content), kPlainHost);
}

}  // namespace

bool CheckDecidableHost(std::string_view host, Refusal* refusal) {
  return CheckHost(host, kUnderscores | kEdgeHyphens, refusal);
}

bool Subtree::Read(const GeneralNameView& base, Subtree* subtree, Refusal* refusal) {
  *subtree = {};
  subtree->form = FormOf(base);
  subtree->base = base.bytes;
  const std::string_view text = AsText(base.content);
  if (IsPlainTree(base)) {
    subtree->kind = Kind::kTree;
    subtree->host = text;
    return true;
  }
  if (!base.Check(Leniency::kStructure, true, refusal)) return false;
  switch (subtree->form) {
    case NameForm::kDirectory:
      subtree->kind = Kind::kDirectory;
      return NameView::Read(base.content, Leniency::kStructure, &subtree->directory, refusal);
    case NameForm::kDns:
      return ReadDns(text, subtree, refusal);
    case NameForm::kUri:
      return ReadUri(text, base.content, subtree, refusal);
    case NameForm::kAddress:
      return ReadRange(base.content, subtree, refusal);
    case NameForm::kService:
      return ReadService(base.content, subtree, refusal);
    case NameForm::kMail:
      // RFC 9598 6: mailboxes are constrained by rfc822Name alone.
      return base.kind != GeneralNameKind::kMail || ReadMail(text, base.content, subtree, refusal);
    default:
      return true;
  }
}

}  // namespace Ortholan::strict
