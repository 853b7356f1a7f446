#include "strict/general_names/general_name_view.h"

#include <algorithm>

#include "strict/der/oid.h"
#include "strict/der/reader.h"
#include "strict/general_names/other_name_view.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {
namespace {

constexpr uint8_t kFirstControl = 0x20;  // below it, and DEL, are the controls of ASCII
constexpr uint8_t kDelete = 0x7F;

constexpr bool IsControlOrBeyond(uint8_t octet) {
  return static_cast<uint8_t>(octet - kFirstControl) >= kDelete - kFirstControl;
}

// The same of any of eight octets.
bool HasControlOrBeyond(const uint8_t* octets) {
  constexpr uint64_t kEach = 0x0101010101010101;
  constexpr uint64_t kTops = 0x80 * kEach;
  uint64_t word;
  std::memcpy(&word, octets, sizeof word);
  // Adding 1 to DEL sets its top bit; taking 20 from a control clears the one lent to it.
  return ((word | (word + kEach) | ~((word | kTops) - kFirstControl * kEach)) & kTops) != 0;
}

// Eight octets at a time, the last of them those at the end.
bool AllInOrder(ByteView content) {
  constexpr size_t kWord = sizeof(uint64_t);
  if (content.size < kWord) return std::none_of(content.begin(), content.end(), IsControlOrBeyond);
  const uint8_t* const last = content.end() - kWord;
  bool is_bad = HasControlOrBeyond(last);
  for (const uint8_t* at = content.data; at < last; at += kWord) is_bad |= HasControlOrBeyond(at);
  return !is_bad;
}

bool CheckCharacters(ByteView content, Refusal* refusal) {
  if (AllInOrder(content)) return true;
  const uint8_t* const at = std::find_if(content.begin(), content.end(), IsControlOrBeyond);
  return Refuse(refusal, ORTHOLAN_REASON_NAME_CHARACTER, at,
                static_cast<size_t>(content.end() - at));
}

bool CheckAddress(ByteView content, bool hasMask, Refusal* refusal) {
  const size_t short_size = hasMask ? 8 : 4;
  if (content.size == short_size || content.size == 4 * short_size) return true;
  return Refuse(refusal, ORTHOLAN_REASON_ADDRESS_SIZE, content.data, content.size);
}

}  // namespace

bool GeneralNameView::Check(Leniency leniency, bool hasMask, Refusal* refusal) const {
  switch (kind) {
    case GeneralNameKind::kMail:
    case GeneralNameKind::kDns:
    case GeneralNameKind::kUri:
      return CheckCharacters(content, refusal);
    case GeneralNameKind::kAddress:
      return CheckAddress(content, hasMask, refusal);
    case GeneralNameKind::kRegisteredId:
      return IsIdentifier(content) ||
             Refuse(refusal, ORTHOLAN_REASON_OID, content.data, content.size);
    case GeneralNameKind::kDirectory: {
      NameView name;
      return NameView::Read(content, leniency, &name, refusal);
    }
    case GeneralNameKind::kOther: {
      OtherNameView other;
      return OtherNameView::Read(content, leniency, &other, refusal);
    }
    default:
      return CheckNested({kSequence, content, bytes}, leniency, refusal);
  }
}

bool GeneralNamesView::Read(ByteView der, Leniency leniency, GeneralNamesView* names,
                            Refusal* refusal) {
  ByteView content;
  return ReadWhole(der, kSequence, leniency, &content, refusal) &&
         ReadContent(content, leniency, names, refusal);
}

bool GeneralNamesView::ReadContent(ByteView content, Leniency leniency, GeneralNamesView* names,
                                   Refusal* refusal) {
  GeneralNamesView read;
  read.content_ = content;
  Reader list(content, leniency, refusal);
  if (list.AtEnd()) return list.RefuseHere(ORTHOLAN_REASON_EMPTY);
  for (GeneralNameView name; !list.AtEnd(); ++read.size_) {
    if (!GeneralNameView::Read(&list, &name)) return false;
    if (leniency != Leniency::kStructure && !name.Check(leniency, false, refusal)) return false;
  }
  *names = read;
  return true;
}

// What was checked is read again without a look at the rules.
void GeneralNameWalk::Step() {
  Element element;
  Reader list(rest, Leniency::kLenient, nullptr);
  if (!list.AtEnd()) list.Read(&element);
  part = {static_cast<GeneralNameKind>(element.identifier & kLongTag), element.content,
          element.bytes};
  rest = list.rest();
}

}  // namespace Ortholan::strict
