#include "strict/constraints/constrained_name.h"

#include "strict/constraints/subtree.h"
#include "strict/general_names/general_name_view.h"
#include "strict/general_names/host.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/other_name_view.h"
#include "strict/general_names/service_name.h"
#include "strict/general_names/uri.h"

namespace Ortholan::strict {
namespace {

// Keeps the reason of what was refused.
void SetFault(const Refusal& refusal, ConstrainedName* name) { name->fault = refusal.reason; }

void ReadDns(std::string_view text, ConstrainedName* name) {
  name->host = text;
  name->has_wildcard = TakeWildcard(text, &name->host);
  Refusal refusal;
  if (!CheckDecidableHost(name->host, &refusal)) SetFault(refusal, name);
}

void ReadMail(std::string_view text, Mailbox::Alphabet alphabet, ConstrainedName* name) {
  Mailbox mailbox;
  Refusal refusal;
  if (!Mailbox::Read(text, alphabet, &mailbox, &refusal)) return SetFault(refusal, name);
  name->local = mailbox.local;
  name->host = mailbox.host;
  name->is_beyond_ascii = alphabet == Mailbox::kUtf8;
}

void ReadUri(std::string_view text, ConstrainedName* name) {
  Uri uri;
  Refusal refusal;
  if (!Uri::Read(text, &uri, &refusal)) return SetFault(refusal, name);
  name->host = uri.host;
  if (uri.host_kind != Uri::HostKind::kName || !CheckDecidableHost(uri.host, nullptr)) {
    name->fault = ORTHOLAN_REASON_URI_WITHOUT_HOST;
  }
}

void ReadService(const Element& value, ConstrainedName* name) {
  if (value.identifier != kIA5String ||
      !SplitService(AsText(value.content), &name->service, &name->host, nullptr)) {
    name->fault = ORTHOLAN_REASON_SERVICE;
  }
}

void ReadDirectory(ByteView der, ConstrainedName* name) {
  Refusal refusal;
  if (!NameView::Read(der, Leniency::kStructure, &name->directory, &refusal)) {
    SetFault(refusal, name);
  }
}

void ReadOther(ByteView content, ConstrainedName* name) {
  const OtherNameView other(content);
  if (name->form == NameForm::kService) return ReadService(other.value, name);
  if (name->form != NameForm::kMail) return;
  if (other.value.identifier != kUtf8String) {
    name->fault = ORTHOLAN_REASON_MAILBOX_LOCAL;
    return;
  }
  ReadMail(AsText(other.value.content), Mailbox::kUtf8, name);
}

void ReadOctets(const GeneralNameView& general, ConstrainedName* name) {
  Refusal refusal;
  if (!general.Check(Leniency::kStructure, false, &refusal)) return SetFault(refusal, name);
  name->address = general.content;
  if (general.kind == GeneralNameKind::kDirectory) ReadDirectory(general.content, name);
  if (general.kind == GeneralNameKind::kOther) ReadOther(general.content, name);
}

}  // namespace

ConstrainedName ConstrainedName::OfSubject(const NameView& subject) {
  ConstrainedName name;
  name.form = NameForm::kDirectory;
  name.place = ORTHOLAN_NAME_SUBJECT;
  name.bytes = subject.der();
  name.directory = subject;
  return name;
}

ConstrainedName ConstrainedName::OfEmail(const AttributeView& attribute) {
  ConstrainedName name;
  name.form = NameForm::kMail;
  name.place = ORTHOLAN_NAME_EMAIL;
  name.bytes = attribute.value.content;
  name.ignores_case = true;
  // RFC 5280 appendix A has no other type for it.
  if (attribute.value.identifier != kIA5String) {
    name.fault = ORTHOLAN_REASON_IDENTIFIER;
    return name;
  }
  ReadMail(AsText(attribute.value.content), Mailbox::kAscii, &name);
  return name;
}

ConstrainedName ConstrainedName::Of(const GeneralNameView& general, NameForm form) {
  ConstrainedName name;
  name.form = form;
  name.place = ORTHOLAN_NAME_ALTERNATIVE;
  name.bytes = general.bytes;
  switch (general.kind) {
    // Their own rules leave no control character and nothing beyond ASCII.
    case GeneralNameKind::kDns:
      ReadDns(AsText(general.content), &name);
      break;
    case GeneralNameKind::kMail:
      ReadMail(AsText(general.content), Mailbox::kAscii, &name);
      break;
    case GeneralNameKind::kUri:
      ReadUri(AsText(general.content), &name);
      break;
    default:
      ReadOctets(general, &name);
      break;
  }
  return name;
}

}  // namespace Ortholan::strict
