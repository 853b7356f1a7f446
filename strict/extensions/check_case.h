// What a rule is held against: the document, read once, and the part that the rule is about.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_CHECK_CASE_H_
#define ORTHOLAN_STRICT_EXTENSIONS_CHECK_CASE_H_

#include <algorithm>
#include <vector>

#include "strict/certificates/certificate_view.h"
#include "strict/certificates/extensions_view.h"
#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/extensions/check.h"
#include "strict/extensions/check_rules.h"

namespace Ortholan::strict {

// The order of octets.
inline bool AreOctetsBefore(ByteView a, ByteView b) { return AsText(a) < AsText(b); }

// A document and what several rules ask of its extensions.
struct CheckedDocument {
  // `is_readable` tells whether its parts can be told apart; `refusal` why it is no DER.
  explicit CheckedDocument(ByteView der);

  // The first extension of a type; without octets where there is none.
  ExtensionView Find(ByteView oid) const;
  bool Has(ByteView oid) const;
  bool HasUsage(int bit) const { return (key_usage >> bit & 1) != 0; }
  bool IsSelfIssued() const { return SameBytes(view.subject(), view.issuer()); }

  CertificateView view;
  bool is_readable = false;
  Refusal refusal;
  uint8_t kind = kCertificates;
  uint32_t version = 1;       // 0 for one that is none
  bool is_authority = false;  // cA of basic constraints
  bool has_key_usage = false;
  uint32_t key_usage = 0;  // bits by their number in RFC 5280 4.2.1.3
  // Of the issuing distribution point of a CRL.
  bool is_indirect = false;
  bool has_some_reasons = false;
  uint32_t some_reasons = 0;  // bits by their number in RFC 5280 4.2.1.13
  // Identifiers of all extensions by AreOctetsBefore, the same ones as they stand.
  std::vector<ByteView> sorted_oids;

 private:
  void ReadIssuingPoint();
};

// Bits of key_usage.
constexpr int kKeyCertSign = 5;
constexpr int kCrlSign = 6;

// One rule at one place.
struct CheckCase {
  const CheckedDocument& document;
  const CheckRule& rule;
  Faults* faults;
  uint8_t kind;                  // the document's, or kEntries
  ByteView name = {};            // of a name: the whole encoding
  ExtensionView extension = {};  // of an extension
  // Of an extension: identifiers of all that stand in one list with it, by AreOctetsBefore.
  const std::vector<ByteView>* oids = nullptr;

  // A fault of `part`; `refusal` tells why it cannot be read.
  void Fault(ByteView part, const Refusal& refusal = {}) const;
  // The fault that something is missing.
  void Fault() const { Fault({}); }
};

// Elements one behind the other as far as they can be read.
template <class Visit>
void ForEachElement(ByteView content, Visit visit) {
  Reader list(content, Leniency::kLenient, nullptr);
  for (Element element; !list.AtEnd() && list.Read(&element);) visit(element);
}

// The content of the element that `der` is as a whole; no octets where it is another one.
inline ByteView ContentOf(ByteView der, uint8_t identifier) {
  ByteView content;
  return ReadWhole(der, identifier, Leniency::kLenient, &content, nullptr) ? content : ByteView();
}

// The characters of a string before a place that is no text; none for another type.
inline size_t CountCharacters(const Element& value) {
  size_t count = 0;
  if (!IsString(value.identifier)) return count;
  ScalarReader scalars(value.identifier, value.content);
  for (uint32_t scalar; scalars.Next(&scalar);) ++count;
  return count;
}

// The first 16 bits of the content of a BIT STRING, the first one lowest.
inline uint32_t BitsOf(ByteView bit_string) {
  uint32_t bits = 0;
  for (size_t i = 1; i < bit_string.size && i <= 2; ++i) {
    for (size_t bit = 0; bit < 8; ++bit) {
      if ((bit_string[i] >> (7 - bit) & 1) != 0) bits |= 1u << ((i - 1) * 8 + bit);
    }
  }
  return bits;
}

// The elements of a value that is a SEQUENCE.
inline ByteView ListOf(const CheckCase& at) { return ContentOf(at.extension.value, kSequence); }

inline bool HasPart(ByteView content, uint8_t identifier) {
  bool has = false;
  ForEachElement(content, [&](const Element& part) { has |= part.identifier == identifier; });
  return has;
}

// A part's content; no octets where it is not there.
inline ByteView PartOf(ByteView content, uint8_t identifier) {
  ByteView found;
  ForEachElement(content, [&](const Element& part) {
    if (part.identifier == identifier) found = part.content;
  });
  return found;
}

// The identifier that a structure begins with, and what stands behind it.
struct Identified {
  ByteView oid;
  ByteView rest;

  bool Is(const OidConstant& known) const { return SameBytes(oid, known.view()); }
};
inline Identified IdentifiedOf(const Element& structure) {
  Identified parts;
  Reader fields(structure.content, Leniency::kLenient, nullptr);
  if (fields.Read(kOid, &parts.oid)) parts.rest = fields.rest();
  return parts;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_CHECK_CASE_H_
