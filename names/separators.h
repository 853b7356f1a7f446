// What stands between the RDNs of a name text, by option: read by the encoder, written by the
// decoder. The first row whose option is set counts.
#ifndef ORTHOLAN_NAMES_SEPARATORS_H_
#define ORTHOLAN_NAMES_SEPARATORS_H_

#include <ortholan/name_options.h>
#include <ortholan/platform.h>

#include <string_view>

namespace Ortholan {

struct Separator {
  DWORD option;
  std::string_view text;
};

// Each character separates, and so do several in a row. The last row is for none of the options.
inline constexpr Separator kReadSeparators[] = {
    {kEncodeComma, ","},
    {kEncodeSemicolon, ";"},
    {kEncodeCrLf, "\r\n"},
    {0, ",;\r\n"},
};

inline constexpr Separator kWrittenSeparators[] = {
    {kSeparateCrLf, "\r\n"},
    {kSeparateSemicolon, ";"},
};
inline constexpr std::string_view kUsualSeparator = ",";

// What is written between RDNs; values alone stand in one line whatever the options say.
constexpr std::string_view WrittenSeparator(DWORD options, DWORD style) {
  if (style == kStyleValues) return kUsualSeparator;
  for (const Separator& row : kWrittenSeparators) {
    if ((options & row.option) != 0) return row.text;
  }
  return kUsualSeparator;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_SEPARATORS_H_
