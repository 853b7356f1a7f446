// Names between 8-bit text of the calling thread's code page and their encoding: the steps that
// several operations of X509Name share.
#ifndef ORTHOLAN_NAMES_MODEL_THREAD_TEXT_H_
#define ORTHOLAN_NAMES_MODEL_THREAD_TEXT_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <string>
#include <string_view>

#include "foundation/code_page.h"

namespace Ortholan {

// The 8-bit text of `wide` up to its first NUL; "" where it is too long or cannot be converted.
std::string ToThreadText(std::wstring_view wide);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_MODEL_THREAD_TEXT_H_
