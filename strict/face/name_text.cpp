// Names to text and back.
#include <ortholan/strict/names.h>

#include <new>

#include "strict/der/backward_output.h"
#include "strict/face/call.h"
#include "strict/face/name_options.h"
#include "strict/names/name_to_text.h"
#include "strict/names/name_view.h"
#include "strict/names/text_error.h"
#include "strict/names/text_to_name.h"

using namespace Ortholan;
using namespace Ortholan::strict;

ortholan_reason ortholan_rfc4514_write(const ortholan_name_view* name,
                                       const ortholan_rfc4514_options* options, char* out,
                                       size_t room, size_t* size, ortholan_refusal* refusal) {
  Clear(size, refusal);
  if (name == nullptr || !IsRoom(out, room)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  TextOptions read;
  const ortholan_reason wrong = ReadOptions(options, &read);
  if (wrong != ORTHOLAN_REASON_NONE) return Report(wrong, refusal);
  Output text(out, room);
  Refusal found;
  const NameView view =
      NameView::OfChecked(View(name->der), name->rdn_count, name->attribute_count);
  try {
    if (!PutTextOfName(view, read, &text, &found)) return Report(found, name->der.data, refusal);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  return Finish(text, size, refusal);
}

ortholan_reason ortholan_rfc4514_read(ortholan_text text, const ortholan_rfc4514_options* options,
                                      uint8_t* out, size_t room, size_t* size,
                                      ortholan_refusal* refusal) {
  Clear(size, refusal);
  if (!IsGiven(text) || !IsRoom(out, room)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  TextOptions read;
  const ortholan_reason wrong = ReadOptions(options, &read);
  if (wrong != ORTHOLAN_REASON_NONE) return Report(wrong, refusal);
  BackwardOutput der(out, room);
  Refusal found;
  try {
    if (!PutNameOfText(View(text), read, &der, &found)) return Report(found, text.data, refusal);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  return Finish(&der, size, refusal);
}

ortholan_reason ortholan_rfc4514_explain(ortholan_text text, const ortholan_refusal* refusal,
                                         ortholan_text_error* error) {
  if (error == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *error = {ORTHOLAN_REASON_NONE, 0, 0, 0, ""};
  if (!IsGiven(text) || refusal == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *error = ExplainTextError(View(text), *refusal);
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_rfc4514_sentence(ortholan_text text, const ortholan_refusal* refusal,
                                          char* out, size_t room, size_t* size) {
  Clear(size, nullptr);
  if (!IsGiven(text) || refusal == nullptr || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  Output sentence(out, room);
  PutTextSentence(View(text), *refusal, &sentence);
  return Finish(sentence, size);
}
