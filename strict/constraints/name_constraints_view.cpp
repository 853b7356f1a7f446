#include "strict/constraints/name_constraints_view.h"

#include <ortholan/strict/constraints.h>

namespace Ortholan::strict {
namespace {

constexpr uint8_t kPermitted = ContextConstructed(0);
constexpr uint8_t kExcluded = ContextConstructed(1);
constexpr uint8_t kMinimum = Context(0);
constexpr uint8_t kMaximum = Context(1);

// minimum [0] DEFAULT 0, which is written out in some certificates, and maximum [1].
bool ReadDistances(Reader* fields) {
  const uint8_t* const place = fields->rest().data;
  if (fields->Sees(kMinimum)) {
    ByteView minimum;
    if (!fields->Read(kMinimum, &minimum)) return false;
    if (minimum.size != 1 || minimum[0] != 0) {
      return fields->RefuseAt(ORTHOLAN_REASON_SUBTREE_DISTANCE, place);
    }
    if (fields->leniency() == Leniency::kDer) {
      return fields->RefuseAt(ORTHOLAN_REASON_DEFAULT, place);
    }
  }
  if (fields->Sees(kMaximum)) return fields->RefuseHere(ORTHOLAN_REASON_SUBTREE_DISTANCE);
  return fields->End();
}

bool CheckList(ByteView content, Leniency leniency, Refusal* refusal) {
  Reader list(content, leniency, refusal);
  if (list.AtEnd()) return list.RefuseHere(ORTHOLAN_REASON_EMPTY);
  while (!list.AtEnd()) {
    ByteView subtree;
    GeneralNameView base;
    if (!list.Read(kSequence, &subtree)) return false;
    Reader fields(subtree, leniency, refusal);
    if (!GeneralNameView::Read(&fields, &base) || !ReadDistances(&fields)) return false;
  }
  return true;
}

bool ReadList(Reader* lists, uint8_t identifier, ByteView* content) {
  if (!lists->Sees(identifier)) return true;
  return lists->Read(identifier, content) &&
         CheckList(*content, lists->leniency(), lists->refusal());
}

}  // namespace

bool NameConstraintsView::Read(ByteView der, Leniency leniency, NameConstraintsView* constraints,
                               Refusal* refusal) {
  ByteView content;
  if (!ReadWhole(der, kSequence, leniency, &content, refusal)) return false;
  Reader lists(content, leniency, refusal);
  if (lists.AtEnd()) return lists.RefuseHere(ORTHOLAN_REASON_EMPTY);
  NameConstraintsView read;
  if (!ReadList(&lists, kPermitted, &read.permitted_) ||
      !ReadList(&lists, kExcluded, &read.excluded_) || !lists.End()) {
    return false;
  }
  *constraints = read;
  return true;
}

bool SubtreeReader::Next(GeneralNameView* base) {
  if (list_.AtEnd()) return false;
  ByteView subtree;
  list_.Read(kSequence, &subtree);
  Reader fields(subtree, Leniency::kLenient, nullptr);
  return GeneralNameView::Read(&fields, base);
}

}  // namespace Ortholan::strict
