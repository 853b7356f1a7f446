// The RDNs of a name by their forms, sorted or as they stand: what names are by their keys, and
// what is compared where the order of RDNs does not matter.
#ifndef ORTHOLAN_STRICT_MATCHING_NAME_FORMS_H_
#define ORTHOLAN_STRICT_MATCHING_NAME_FORMS_H_

#include "bytes/byte_view.h"
#include "bytes/small_buffer.h"
#include "strict/matching/match_rule.h"
#include "strict/matching/preparation.h"

namespace Ortholan::strict {

class NameView;

class NameForms {
 public:
  struct Entry {
    size_t offset;
    size_t size;
    ortholan_reason doubt;  // why it may be the same as one with other octets
    size_t rdn;
    size_t attribute;  // the first of the RDN
  };

  // In ascending order of their octets.
  NameForms(const NameView& name, MatchRule rule);

  const Entry* begin() const { return entries_.begin(); }
  const Entry* end() const { return entries_.begin() + entries_.size(); }
  std::string_view OctetsOf(const Entry& entry) const {
    return AsText({octets_.data() + entry.offset, entry.size});
  }

 private:
  PreparedText octets_;
  SmallBuffer<Entry, 16> entries_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_NAME_FORMS_H_
