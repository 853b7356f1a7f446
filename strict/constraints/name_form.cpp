#include "strict/constraints/name_form.h"

#include "strict/general_names/general_name_view.h"
#include "strict/general_names/other_name.h"

namespace Ortholan::strict {

NameForm FormOf(const GeneralNameView& name) {
  constexpr NameForm kForms[] = {
      NameForm::kOther, NameForm::kMail,      NameForm::kDns,
      NameForm::kX400,  NameForm::kDirectory, NameForm::kEdiParty,
      NameForm::kUri,   NameForm::kAddress,   NameForm::kRegisteredId,
  };
  if (name.kind != GeneralNameKind::kOther) return kForms[static_cast<size_t>(name.kind)];
  const OtherNameKind kind = KindOfOtherName(OtherNameView(name.content).type);
  if (kind == OtherNameKind::kService) return NameForm::kService;
  return kind == OtherNameKind::kUtf8Mailbox ? NameForm::kMail : NameForm::kOther;
}

}  // namespace Ortholan::strict
