#include "names/encoder/trim.h"

#include <ortholan/name_encoder.h>

#include <string>

namespace Ortholan {

void TrimLeftRight(std::wstring& s) {
  const std::wstring_view kept = Trimmed(std::wstring_view(s));
  const size_t offset = static_cast<size_t>(kept.data() - s.data());
  s.erase(offset + kept.size());
  s.erase(0, offset);
}

}  // namespace Ortholan
