// One general name, and a list of them, over borrowed octets (RFC 5280 4.2.1.6).
//
//   GeneralNamesView names;
//   if (!GeneralNamesView::Read(extension.value, Leniency::kDer, &names, &refusal)) ...
//   for (const GeneralNameView& name : names) {
//     if (name.kind == GeneralNameKind::kDns) ... name.content ...
//   }
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_GENERAL_NAME_VIEW_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_GENERAL_NAME_VIEW_H_

#include <ortholan/strict/general_names.h>

#include "bytes/byte_view.h"
#include "strict/der/element.h"
#include "strict/der/reader.h"
#include "strict/der/view_iterator.h"

namespace Ortholan::strict {

// The number of the choice's context tag.
enum class GeneralNameKind : uint8_t {
  kOther = 0,
  kMail = 1,  // rfc822Name
  kDns = 2,
  kX400 = 3,
  kDirectory = 4,
  kEdiParty = 5,
  kUri = 6,
  kAddress = 7,  // iPAddress
  kRegisteredId = 8,
};

// The identifier octet of each kind.
constexpr uint8_t kGeneralNameIdentifiers[] = {
    ContextConstructed(0),
    Context(1),
    Context(2),
    ContextConstructed(3),
    ContextConstructed(4),
    ContextConstructed(5),
    Context(6),
    Context(7),
    Context(8),
};

struct GeneralNameView {
  GeneralNameKind kind = GeneralNameKind::kOther;
  // What is inside the tag: characters, address octets, an identifier's content; for a directory
  // name the whole Name, for an other name the content of its SEQUENCE.
  ByteView content;
  ByteView bytes;  // the whole element

  // An element as the general name that its tag makes it, nothing inside looked at; false for a tag
  // that is none of the nine in its right form.
  static bool FromElement(const Element& element, GeneralNameView* name);
  // Reads the next element as a general name: one of the nine tags in its right form. What is
  // inside is not looked at.
  static bool Read(Reader* list, GeneralNameView* name);

  // Checks what Read leaves: names of characters are IA5String without NUL and other controls, an
  // address has 4 or 16 octets, or with a mask 8 or 32; a registered identifier is one; a directory
  // name is in order; an other name holds an identifier and one value, whose structure is its
  // type's affair.
  bool Check(Leniency leniency, bool hasMask, Refusal* refusal) const;
};

inline bool GeneralNameView::FromElement(const Element& element, GeneralNameView* name) {
  const uint8_t number = element.identifier & kLongTag;
  if (number >= sizeof kGeneralNameIdentifiers ||
      element.identifier != kGeneralNameIdentifiers[number]) {
    return false;
  }
  *name = {static_cast<GeneralNameKind>(number), element.content, element.bytes};
  return true;
}

inline bool GeneralNameView::Read(Reader* list, GeneralNameView* name) {
  Element element;
  const Reader before = *list;
  if (!list->Read(&element)) return false;
  return FromElement(element, name) || Reader(before).RefuseHere(ORTHOLAN_REASON_GENERAL_NAME);
}

// Checked general names, one by one.
struct GeneralNameWalk {
  GeneralNameWalk() = default;
  explicit GeneralNameWalk(ByteView content) : rest(content) {}
  void Step();

  GeneralNameView part;
  ByteView rest;  // behind the part
};

class GeneralNamesView {
 public:
  using Iterator = ViewIterator<GeneralNameWalk>;

  // No names.
  GeneralNamesView() = default;

  // Reads SEQUENCE SIZE (1..MAX) OF GeneralName that is the whole of `der`, the value of an
  // alternative-name extension. Each name is checked but for Leniency::kStructure.
  static bool Read(ByteView der, Leniency leniency, GeneralNamesView* names, Refusal* refusal);
  // The same for what stands inside an implicit tag in place of the SEQUENCE's.
  static bool ReadContent(ByteView content, Leniency leniency, GeneralNamesView* names,
                          Refusal* refusal);

  Iterator begin() const { return Iterator(content_); }
  Iterator end() const { return {}; }
  size_t size() const { return size_; }
  ByteView content() const { return content_; }

 private:
  ByteView content_;
  size_t size_ = 0;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_GENERAL_NAME_VIEW_H_
