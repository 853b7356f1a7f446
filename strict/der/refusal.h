// Why and where octets or text were refused, inside the layer: by pointer, because a reader of an
// inner part does not know where the whole begins. The face turns it into an offset.
//
//   Refusal refusal;
//   if (!NameView::Read(der, Leniency::kDer, &name, &refusal)) return refusal.From(der.data);
#ifndef ORTHOLAN_STRICT_DER_REFUSAL_H_
#define ORTHOLAN_STRICT_DER_REFUSAL_H_

#include <ortholan/strict/base.h>

#include <string_view>

#include "bytes/byte_view.h"

namespace Ortholan::strict {

struct Refusal {
  ortholan_reason reason = ORTHOLAN_REASON_NONE;
  uint32_t met = 0;
  uint32_t expected = 0;
  const void* at = nullptr;  // inside the input, or its end; null where there is no place

  explicit operator bool() const { return reason != ORTHOLAN_REASON_NONE; }
  // The public form, counted from the start of the whole input.
  ortholan_refusal From(const void* start) const;
};

// Notes the refusal of what stands at `at`, which is `rest` octets before the end of the input, and
// returns false.
bool Refuse(Refusal* refusal, ortholan_reason reason, const uint8_t* at, size_t rest,
            uint32_t expected = 0);

// The same of text, which goes on to its end with `rest`.
bool RefuseText(Refusal* refusal, ortholan_reason reason, std::string_view rest,
                uint32_t expected = 0);

// The sentence of a reason; "" for none.
std::string_view SentenceOf(ortholan_reason reason);
// The name of a reason without ORTHOLAN_REASON_; "" for a number of no list. Ends in NUL.
std::string_view NameOf(ortholan_reason reason);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_REFUSAL_H_
