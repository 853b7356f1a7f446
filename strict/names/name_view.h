// A distinguished name over borrowed octets (RFC 5280 4.1.2.4): checked once, then walked without
// looking again. RDNs hold any number of attributes. Nothing is allocated.
//
//   NameView name;
//   if (!NameView::Read(der, Leniency::kDer, &name, &refusal)) ...
//   for (const AttributeView& attribute : name) ...
#ifndef ORTHOLAN_STRICT_NAMES_NAME_VIEW_H_
#define ORTHOLAN_STRICT_NAMES_NAME_VIEW_H_

#include <vector>

#include "bytes/byte_view.h"
#include "strict/der/element.h"
#include "strict/der/view_iterator.h"

namespace Ortholan::strict {

struct Refusal;

// One AttributeTypeAndValue.
struct AttributeView {
  ByteView type;            // content octets of the identifier
  Element value;            // of any type
  ByteView bytes;           // the whole SEQUENCE
  ByteView rdn;             // content of its RDN's SET
  size_t rdn_index = 0;     // of its RDN in the name
  bool begins_rdn = false;  // the first attribute of its RDN
};

// Takes the front of RDNs or of an RDN's attributes that were checked. False at the end; without
// octets read, too, where what follows is no such element.
bool NextRdn(ByteView* rdns, Element* rdn);
bool NextAttribute(ByteView* attributes, AttributeView* attribute);

// Checks the content of one RDN, and adds its attributes to the count.
bool CheckRdn(ByteView content, Leniency leniency, Refusal* refusal, size_t* count);

// The attributes of checked RDNs, one by one.
class NameWalk {
 public:
  NameWalk() = default;
  explicit NameWalk(ByteView rdns) : rdns_(rdns) {}
  void Step();

  AttributeView part;

 private:
  ByteView rdns_;        // those not entered yet
  ByteView attributes_;  // of the present RDN, those not read yet
  size_t next_rdn_ = 0;
};

class NameView {
 public:
  using Iterator = ViewIterator<NameWalk>;

  // The name without RDNs.
  NameView() = default;

  // Reads a Name that is the whole of `der`. `*name` changes only on success. With
  // Leniency::kStructure strings are not looked at and SETs stand in any order.
  static bool Read(ByteView der, Leniency leniency, NameView* name, Refusal* refusal);
  // A Name that was read before and found to have as many RDNs and attributes.
  static NameView OfChecked(ByteView der, size_t rdn_count, size_t attribute_count);

  Iterator begin() const { return Iterator(rdns_); }
  Iterator end() const { return {}; }

  // The whole encoding that was read.
  ByteView der() const { return der_; }
  // Its content: the RDNs, each the whole SET.
  ByteView rdns() const { return rdns_; }
  bool empty() const { return rdn_count_ == 0; }
  size_t rdn_count() const { return rdn_count_; }
  size_t attribute_count() const { return attribute_count_; }

 private:
  ByteView der_;
  ByteView rdns_;  // content of the Name's SEQUENCE
  size_t rdn_count_ = 0;
  size_t attribute_count_ = 0;
};

// The RDNs from the last to the first. Most names need no memory for it; throws std::bad_alloc for
// more than 12 RDNs.
class BackwardRdns {
 public:
  explicit BackwardRdns(const NameView& name);
  bool Next(Element* rdn) {
    if (count_ == 0) return false;
    *rdn = rdns_[--count_];
    return true;
  }

 private:
  static constexpr size_t kFew = 12;

  size_t count_;
  Element few_[kFew];
  std::vector<Element> many_;
  Element* rdns_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_NAME_VIEW_H_
