// The attributes of an RDN by their forms, in an order that does not depend on how they were
// written: as they stand in keys, and as multisets are compared.
//
//   type, with its length in front
//   kind of the form (ValueForm::Kind), one octet
//   octets of the form, with their length in front
//
// Lengths are written as X.690 10.1 has them, so that no attribute is the beginning of another.
#ifndef ORTHOLAN_STRICT_MATCHING_RDN_FORMS_H_
#define ORTHOLAN_STRICT_MATCHING_RDN_FORMS_H_

#include "bytes/small_buffer.h"
#include "strict/matching/value_form.h"
#include "strict/names/name_view.h"
#include "strict/names/plain_rdn.h"

namespace Ortholan::strict {

// An attribute of a name that was checked.
struct Attribute {
  ByteView type;
  Element value;
};

// The attributes of an RDN, one by one.
class AttributeWalk {
 public:
  explicit AttributeWalk(ByteView rdn) : rest_(rdn) {}
  // False at the end.
  bool Next(Attribute* attribute);

 private:
  ByteView rest_;
};

struct RdnView {
  ByteView content;            // of its SET
  Attribute first;             // of its attributes
  size_t size = 0;             // number of attributes
  size_t index = 0;            // of the RDN in the name
  size_t first_attribute = 0;  // its index in the name

  // The attribute number `at`, which there is.
  Attribute At(size_t at) const;
};

// The RDNs of a name, one by one.
class RdnWalk {
 public:
  explicit RdnWalk(const NameView& name) : rdns_(name.rdns()) {}
  // False at the end.
  bool Next(RdnView* rdn) {
    if (!ReadPlainRdn(rdns_, &rdn->content, &rdn->first.type, &rdn->first.value)) {
      return NextOther(rdn);
    }
    rdns_ = rdns_.From(static_cast<size_t>(rdn->content.end() - rdns_.data));
    rdn->size = 1;
    rdn->index = rdn_++;
    rdn->first_attribute = attribute_++;
    return true;
  }

 private:
  // Of one that is not plain.
  bool NextOther(RdnView* rdn);

  ByteView rdns_;
  size_t rdn_ = 0;
  size_t attribute_ = 0;
};

// Appends an attribute in the form above.
ValueForm PutAttribute(const Attribute& attribute, MatchRule rule, PreparedText* out);

class RdnForms {
 public:
  struct Entry {
    size_t offset;
    size_t size;
    size_t type_size;  // octets of the type with its length
    ValueForm form;
    size_t index;  // of the attribute in the RDN
  };

  RdnForms(const RdnView& rdn, MatchRule rule);

  // In ascending order.
  const Entry* begin() const { return entries_.begin(); }
  const Entry* end() const { return entries_.begin() + entries_.size(); }
  std::string_view OctetsOf(const Entry& entry) const {
    return AsText({octets_.data() + entry.offset, entry.size});
  }
  std::string_view TypeOf(const Entry& entry) const {
    return OctetsOf(entry).substr(0, entry.type_size);
  }

 private:
  PreparedText octets_;
  SmallBuffer<Entry, 8> entries_;
};

// Appends an RDN: the number of its attributes, as lengths are written, and their forms; by octets
// alone its content. No RDN is the beginning of another. Tells why it may be the same as one with
// other octets, or NONE where it is not.
ortholan_reason PutRdn(const RdnView& rdn, MatchRule rule, PreparedText* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_RDN_FORMS_H_
