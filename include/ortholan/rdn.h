// Single attributes of a name: as the platform's structures hold them, and as a person sees them.
#ifndef ORTHOLAN_RDN_H_
#define ORTHOLAN_RDN_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>
#include <ortholan/zep_string.h>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// One attribute as in the platform's CERT_RDN_ATTR. Bytes of a type-12 value are UTF-16LE, two a
// character; of types 4 and 7 8-bit text; of type 13 UTF-8.
struct ORTHOLAN_EXPORT RDNAttr {
  CZEPString oid;       // dotted identifier
  DWORD valueType = 0;  // CERT_RDN_*
  IdentObj value;       // its bytes, as above

  RDNAttr();
  RDNAttr(const RDNAttr&);
  RDNAttr(RDNAttr&&) noexcept;
  RDNAttr& operator=(const RDNAttr&);
  RDNAttr& operator=(RDNAttr&&) noexcept;
  ~RDNAttr();

  // The platform's structure, copied; a null identifier is "".
  RDNAttr(const CERT_RDN_ATTR& attr);
  // The three fields as they stand; null is "".
  RDNAttr(const char* oid, unsigned long valueType, const IdentObj& value);
  // As SetBy(key, value).
  RDNAttr(const char* key, const char* value);

  // As SetBy(attr).
  RDNAttr& operator=(const CERT_RDN_ATTR& attr);
  // Becomes a copy of the platform's structure.
  void SetBy(const CERT_RDN_ATTR& attr);
  // From a keyword or dotted identifier and text, as X509Name::MakeRDNAttr does and fails.
  void SetBy(const char* key, const char* value);
  // The value as 8-bit text, as X509Name::GetRDNAttrValueString does.
  void GetValueString(CZEPString& out) const;
};

// One attribute as a person sees it: key text (a dotted identifier wherever the library makes it)
// and value text, both 8-bit in the thread's code page.
struct ORTHOLAN_EXPORT SimpleRDN {
  CZEPString key;    // "2.5.4.3"
  CZEPString value;  // "Alpha", without quotes

  SimpleRDN();
  // Both texts as they stand; null is "".
  SimpleRDN(const char* key, const char* value);
  SimpleRDN(const SimpleRDN&);
  SimpleRDN(SimpleRDN&&) noexcept;
  SimpleRDN& operator=(const SimpleRDN&);
  SimpleRDN& operator=(SimpleRDN&&) noexcept;
  ~SimpleRDN();

  // By GetAttrPriority of the keys alone; values play no part.
  bool operator<(const SimpleRDN& other) const;
  bool operator>(const SimpleRDN& other) const;

  // By key, then by value, as CZEPString compares: an empty text is neither less nor greater than
  // any other, so this is no order to sort by where texts may be empty.
  struct ORTHOLAN_EXPORT CompareSimpleRDN {
    // Whether `a` comes before `b`.
    bool operator()(const SimpleRDN& a, const SimpleRDN& b) const;
  };
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_RDN_H_
