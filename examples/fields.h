// The fields of a SEQUENCE in order, of which some may be missing.
//
//   Fields fields(content);
//   const Der* const version = fields.Take(kContextConstructed);
//   const Der& serialNumber = fields.Need(kInteger);
#ifndef ORTHOLAN_EXAMPLES_FIELDS_H_
#define ORTHOLAN_EXAMPLES_FIELDS_H_

#include <cstddef>
#include <string_view>
#include <vector>

#include "examples/der.h"

namespace Example {

// Thrown where an encoding is not of the form that its reader expects.
struct Malformed {};

class Fields {
 public:
  explicit Fields(std::string_view content);

  // The next field if it has the tag, else null; it stays with this object.
  const Der* Take(unsigned tag);
  const Der& Need(unsigned tag);
  // The next field, whatever it is.
  const Der& Any();
  bool AtEnd() const { return next_ == elements_.size(); }
  // Throws where fields are left.
  void End() const;

 private:
  std::vector<Der> elements_;
  std::size_t next_ = 0;
};

// The content of the one element that `octets` are, which has to have the tag.
std::string_view ContentOf(std::string_view octets, unsigned tag);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_FIELDS_H_
