// The forms of names that constraints speak of (RFC 5280 4.2.1.10; RFC 4985 4; RFC 9598 6).
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_NAME_FORM_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_NAME_FORM_H_

#include <cstdint>

namespace Ortholan::strict {

struct GeneralNameView;

enum class NameForm : uint8_t {
  kDirectory,
  kDns,
  kMail,  // rfc822Name, and other names that are mailboxes beyond ASCII
  kUri,
  kAddress,
  kService,  // other names of RFC 4985
  // Nothing says how these are constrained.
  kOther,
  kX400,
  kEdiParty,
  kRegisteredId,
};

// A set of forms.
class FormSet {
 public:
  void Add(NameForm form) { bits_ |= 1u << static_cast<unsigned>(form); }
  bool Has(NameForm form) const { return (bits_ >> static_cast<unsigned>(form) & 1) != 0; }
  FormSet With(FormSet other) const {
    other.bits_ |= bits_;
    return other;
  }

 private:
  uint32_t bits_ = 0;
};

NameForm FormOf(const GeneralNameView& name);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_NAME_FORM_H_
