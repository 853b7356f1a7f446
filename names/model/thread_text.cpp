#include "names/model/thread_text.h"

#include "foundation/code_page.h"

namespace Ortholan {

std::string ToThreadText(std::wstring_view wide) {
  std::string text;
  wide = wide.substr(0, wide.find(L'\0'));
  if (wide.size() + 1 > kMaxConvertedText) return text;
  if (Narrow(wide, kCodePageThreadAnsi, &text) != Conversion::kDone) text.clear();
  return text;
}

}  // namespace Ortholan
