// The refusal of a text told further: what was met, and what is expected instead.
#ifndef ORTHOLAN_STRICT_NAMES_TEXT_ERROR_H_
#define ORTHOLAN_STRICT_NAMES_TEXT_ERROR_H_

#include <ortholan/strict/names.h>

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

// `refusal` is one of this text; its place is brought into the text where it is not.
ortholan_text_error ExplainTextError(std::string_view text, const ortholan_refusal& refusal);

// "Ltd" at character 9: expected "=" and a value behind the type; ...
void PutTextSentence(std::string_view text, const ortholan_refusal& refusal, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_TEXT_ERROR_H_
