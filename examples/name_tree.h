// A name taken apart into RDNs, attributes and values, also where the decoders refuse it.
#ifndef ORTHOLAN_EXAMPLES_NAME_TREE_H_
#define ORTHOLAN_EXAMPLES_NAME_TREE_H_

#include <ortholan/ident_obj.h>

#include <list>
#include <string>

namespace Example {

struct NameAttribute {
  Ortholan::IdentObj octets;  // its whole encoding
  // What follows is empty for octets that are no attribute.
  bool isAttribute = false;
  std::string oid;   // dotted; empty where the type cannot be read
  std::wstring key;  // empty where the type has none
  Ortholan::IdentObj type;
  std::string stringType;  // of the value, in ASN.1's words
  Ortholan::IdentObj value;
  bool isRead = false;  // whether the value has `lines`
  std::list<std::wstring> lines;
};

struct NameRdn {
  std::list<NameAttribute> attributes;  // those before the first fault
  Ortholan::IdentObj faulty;            // its whole encoding where there is a fault
};

struct NameTree {
  std::list<NameRdn> rdns;
  Ortholan::IdentObj faulty;
};

NameTree ReadNameTree(const Ortholan::IdentObj& name);

// The children of an element before its first fault; false where there is one.
bool Split(const Ortholan::IdentObj& element, std::list<Ortholan::IdentObj>& children);

bool IsTypeElement(const Ortholan::IdentObj& element);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_NAME_TREE_H_
