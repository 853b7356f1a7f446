#include "strict/general_names/other_name_view.h"

#include "strict/der/oid.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {

OtherNameView::OtherNameView(ByteView content) {
  Reader fields(content, Leniency::kLenient, nullptr);
  ByteView tagged;
  if (!fields.Read(kOid, &type) || !fields.Read(ContextConstructed(0), &tagged)) return;
  Reader(tagged, Leniency::kLenient, nullptr).Read(&value);
}

bool OtherNameView::Read(ByteView content, Leniency leniency, OtherNameView* name,
                         Refusal* refusal) {
  Reader fields(content, leniency, refusal);
  ByteView tagged;
  if (!fields.Read(kOid, &name->type)) return false;
  if (!IsIdentifier(name->type)) {
    return fields.RefuseAt(ORTHOLAN_REASON_OID, name->type.data);
  }
  if (!fields.Read(ContextConstructed(0), &tagged) || !fields.End()) return false;
  Reader inside(tagged, leniency, refusal);
  return inside.Read(&name->value) && inside.End() && CheckNested(name->value, leniency, refusal);
}

}  // namespace Ortholan::strict
