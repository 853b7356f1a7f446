// The attributes of a CERT_NAME_INFO tree while no array of RDNs holds them.
//
// Whenever the C library hands out or takes back a large block it first joins all small ones that
// lie free, and small ones are slow to get then. So the array of RDNs, the one large block of a
// tree, is made after all others and released before them; until then, and from then on, the
// attributes are linked through their own room.
#ifndef ORTHOLAN_NAMES_DECODER_ATTRIBUTE_CHAIN_H_
#define ORTHOLAN_NAMES_DECODER_ATTRIBUTE_CHAIN_H_

#include <ortholan/platform.h>

#include <new>
#include <type_traits>

namespace Ortholan {

// Frees the identifier and the value.
inline void ReleaseContents(const CERT_RDN_ATTR& attr) {
  delete[] attr.pszObjId;
  delete[] attr.Value.pbData;
}

// Owns its attributes, each an array of its own, with their identifiers and values.
class AttributeChain {
 public:
  // The fields of a CERT_RDN_ATTR and the link, in its room.
  struct Link {
    Link* next;
    char* identifier;
    BYTE* value;
    DWORD value_size;
    DWORD value_type;
  };

  AttributeChain() = default;
  AttributeChain(const AttributeChain&) = delete;
  AttributeChain& operator=(const AttributeChain&) = delete;
  ~AttributeChain() {
    while (first_ != nullptr) {
      CERT_RDN_ATTR* const attr = Take();
      ReleaseContents(*attr);
      delete[] attr;
    }
  }

  // An empty attribute at the end. Throws std::bad_alloc.
  Link* Add() { return Append(new CERT_RDN_ATTR[1]()); }

  // Makes the array's first attribute the last of the chain.
  Link* Append(CERT_RDN_ATTR* array) {
    const CERT_RDN_ATTR attr = *array;
    *end_ = new (array)
        Link{nullptr, attr.pszObjId, attr.Value.pbData, attr.Value.cbData, attr.dwValueType};
    Link* const link = *end_;
    end_ = &link->next;
    return link;
  }

  // The first attribute, from now on the caller's. There has to be one.
  CERT_RDN_ATTR* Take() {
    const Link link = *first_;
    void* const room = first_;
    first_ = link.next;
    if (first_ == nullptr) end_ = &first_;
    return new (room)
        CERT_RDN_ATTR{link.identifier, link.value_type, {link.value_size, link.value}};
  }

 private:
  static_assert(sizeof(Link) <= sizeof(CERT_RDN_ATTR) && alignof(Link) <= alignof(CERT_RDN_ATTR));
  static_assert(std::is_trivial_v<CERT_RDN_ATTR>);

  Link* first_ = nullptr;
  Link** end_ = &first_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_ATTRIBUTE_CHAIN_H_
