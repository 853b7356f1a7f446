// The NameConstraints extension over borrowed octets (RFC 5280 4.2.1.10): lists of permitted and of
// excluded subtrees.
//
//   NameConstraintsView constraints;
//   if (!NameConstraintsView::Read(extension.value, Leniency::kDer, &constraints, &refusal)) ...
//   SubtreeReader subtrees(constraints.permitted());
//   for (GeneralNameView base; subtrees.Next(&base);) ...
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_NAME_CONSTRAINTS_VIEW_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_NAME_CONSTRAINTS_VIEW_H_

#include "bytes/byte_view.h"
#include "strict/der/reader.h"
#include "strict/general_names/general_name_view.h"

namespace Ortholan::strict {

class NameConstraintsView {
 public:
  // Reads what is the whole of `der`. One of the lists has to be there, neither may be empty, and
  // each subtree has the distances that RFC 5280 allows: minimum 0, no maximum.
  static bool Read(ByteView der, Leniency leniency, NameConstraintsView* constraints,
                   Refusal* refusal);

  // Content of the lists; without octets where there is none.
  ByteView permitted() const { return permitted_; }
  ByteView excluded() const { return excluded_; }

 private:
  ByteView permitted_;
  ByteView excluded_;
};

// The bases of one list that was read.
class SubtreeReader {
 public:
  explicit SubtreeReader(ByteView list) : list_(list, Leniency::kLenient, nullptr) {}
  bool Next(GeneralNameView* base);

 private:
  Reader list_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_NAME_CONSTRAINTS_VIEW_H_
