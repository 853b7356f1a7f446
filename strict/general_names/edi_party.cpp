#include "strict/general_names/edi_party.h"

#include "strict/der/reader.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {
namespace {

// A DirectoryString, which is a choice, so that its tag is explicit (X.680 31.2.7).
bool ReadString(Reader* fields, uint8_t number, Element* string) {
  ByteView tagged;
  if (!fields->Read(ContextConstructed(number), &tagged)) return false;
  Reader inside(tagged, fields->leniency(), fields->refusal());
  const ByteView place = inside.rest();
  if (!inside.Read(string) || !inside.End()) return false;
  if (!IsString(string->identifier)) {
    return Refuse(fields->refusal(), ORTHOLAN_REASON_NO_STRING, place.data, place.size);
  }
  return CheckString(*string, fields->leniency(), fields->refusal());
}

}  // namespace

bool EdiParty::Read(ByteView content, Leniency leniency, EdiParty* name, Refusal* refusal) {
  EdiParty read;
  Reader fields(content, leniency, refusal);
  if (fields.Sees(ContextConstructed(0)) && !ReadString(&fields, 0, &read.assigner)) return false;
  if (!ReadString(&fields, 1, &read.party) || !fields.End()) return false;
  *name = read;
  return true;
}

}  // namespace Ortholan::strict
