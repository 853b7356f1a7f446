// The parts of an other name (RFC 5280 4.2.1.6): an identifier, and one value of the type that it
// tells.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_VIEW_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_VIEW_H_

#include "strict/der/element.h"

namespace Ortholan::strict {

struct Refusal;

struct OtherNameView {
  ByteView type;  // content octets of the identifier
  Element value;  // inside the explicit tag

  OtherNameView() = default;
  // Of the content of a name that was read; without octets where it is out of form.
  explicit OtherNameView(ByteView content);

  // Takes the content of a name apart. The value may be of any structure that is in order.
  static bool Read(ByteView content, Leniency leniency, OtherNameView* name, Refusal* refusal);
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_OTHER_NAME_VIEW_H_
