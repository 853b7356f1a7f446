// Text and structures to the DER encoding of an X.501 Name.
//
//   Ortholan::X500NameEncoder encoder;
//   encoder.SetEncoderOptions(Ortholan::kEncodeUtf8);
//   Ortholan::IdentObj der;
//   if (!encoder.Encode(L"CN=Alpha, O=Org, C=RU", der, true)) return GetLastError();
//
// Text is a list of `type = value` elements. A type is a keyword in any letter case (CN, OU, ...)
// or a dotted identifier; a value may stand in double quotes, a doubled quote being one quote.
// There is no backslash escape, no "#" hex form and no "+": each element is an RDN of its own.
//
// name_options.h has the option bits, by the names kEncode...
#ifndef ORTHOLAN_NAME_ENCODER_H_
#define ORTHOLAN_NAME_ENCODER_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/name_options.h>
#include <ortholan/platform.h>
#include <ortholan/rdn.h>

#include <list>
#include <string>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

struct AttributeRow;

// Writes names. One encoder serves one call at a time. After a text that failed between a type and
// its value the encoder, and a copy of it, refuses every further text: take a fresh one.
//
// All operations return false on refusal. The last-error code is then
//   160   text empty after trimming, or an empty SimpleRDN list
//   1326  a type that is no dotted identifier;  8  out of memory
//   the platform's, where it refuses a value; unchanged for every other refusal.
class ORTHOLAN_EXPORT X500NameEncoder {
 public:
  // One element of a text: the type as a dotted identifier, the value without its quotes. The type
  // is empty for a last element whose keyword is unknown.
  struct X500NAME_ELEM {
    std::wstring type;
    std::wstring value;
  };

  // The alphabet that decides a value's string type: letters, digits and "()+,-./:? '" with CR and
  // LF (no "=", unlike X.680's PrintableString).
  static const std::wstring PrintableString;
  // The alphabet of e-mail addresses: ASCII's printing characters with CR and LF.
  static const std::wstring IA5String;

  X500NameEncoder() noexcept;
  X500NameEncoder(const X500NameEncoder& other) noexcept;
  X500NameEncoder& operator=(const X500NameEncoder& other) noexcept;
  virtual ~X500NameEncoder();

  // Replaces the option bits.
  void SetEncoderOptions(unsigned long options);
  // The option bits; the argument is ignored.
  unsigned long GetEncoderOptions(unsigned long) const;
  // Sets these bits.
  void AddEncoderOption(unsigned long bits);
  // Clears these bits.
  void RemoveEncoderOption(unsigned long bits);

  // Splits `text` into its elements, in order. True with no elements for "". On failure `elements`
  // is empty.
  bool DevideIntoElements(const std::wstring& text, std::list<X500NAME_ELEM>& elements);

  // Encodes a name text. `sortByPriority` writes the attributes in canonical order: unknown types,
  // country, locality, state, ... common name last; else in the order given. `der` is emptied
  // first.
  bool Encode(const std::wstring& text, IdentObj& der, bool sortByPriority);
  // Encodes pairs of dotted identifier and value, one an RDN. `der` is unchanged on failure.
  bool Encode(const std::list<SimpleRDN>& rdns, IdentObj& der, bool sortByPriority);
  // Encodes multi-valued RDNs as they stand, one inner list a SET; the string type of each value
  // is chosen anew. `der` is unchanged on failure.
  bool Encode(const std::list<std::list<RDNAttr>>& rdns, IdentObj& der);
  bool Encode(const CERT_NAME_INFO& info, IdentObj& der);

 private:
  DWORD options_;
  // Type of the element that the last text broke off in.
  const AttributeRow* unfinished_;
};

// Place of an identifier in the canonical order, 0 (common name) to 11; 99 for any other text.
ORTHOLAN_EXPORT int GetAttrPriority(const CZEPString& oid);
ORTHOLAN_EXPORT int GetAttrPriority(const std::wstring& oid);

// Cuts CR, LF, tab and blank from both ends. A text of these alone becomes its first character.
ORTHOLAN_EXPORT void TrimLeftRight(std::wstring& s);

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_NAME_ENCODER_H_
