// One name of a certificate, taken apart once to be held against subtrees (RFC 5280 4.2.1.10).
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_CONSTRAINED_NAME_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_CONSTRAINED_NAME_H_

#include <ortholan/strict/constraints.h>

#include <string_view>

#include "strict/constraints/name_form.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {

// A name of a certificate whose form is constrained.
struct ConstrainedName {
  NameForm form = NameForm::kOther;
  int32_t place = ORTHOLAN_NAME_NONE;            // an ORTHOLAN_NAME_ word
  ortholan_reason fault = ORTHOLAN_REASON_NONE;  // why it cannot be compared
  ByteView bytes;                                // for the finding
  NameView directory;
  ByteView address;       // of an address
  std::string_view host;  // behind "*." where it has a wildcard; empty for a mailbox at an address
  std::string_view local;
  std::string_view service;
  bool has_wildcard = false;
  bool is_beyond_ascii = false;  // SmtpUTF8Mailbox
  bool ignores_case = false;     // of the local part

  static ConstrainedName OfSubject(const NameView& subject);
  static ConstrainedName OfEmail(const AttributeView& attribute);
  static ConstrainedName Of(const GeneralNameView& name, NameForm form);
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_CONSTRAINED_NAME_H_
