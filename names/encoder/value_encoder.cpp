#include "names/encoder/value_encoder.h"

#include "bytes/der_tag.h"
#include "bytes/utf16.h"
#include "names/encoder/address_lines.h"

namespace Ortholan {
namespace {

template <typename Use>
bool ForEachLine(const Characters& text, Use use) {
  if (text.ascii != nullptr) return GetStrings(std::string_view(text.ascii, text.size), use);
  return GetStrings(std::wstring_view(text.wide, text.size), use);
}

}  // namespace

uint64_t StringContent(std::wstring_view text, DWORD type) {
  switch (type) {
    case CERT_RDN_BMP_STRING:
      return 2 * CountUnits(text);
    case CERT_RDN_UTF8_STRING:
      return CountUtf8(text);
    default:
      return text.size();
  }
}

uint64_t LinesContent(const Characters& text, DWORD type) {
  uint64_t size = 0;
  ForEachLine(text, [&](const Characters& line) {
    size += ElementSize(StringContent(line, type));
    return true;
  });
  return size;
}

bool EncodeLines(const ValuePlan& plan, BYTE* out) {
  out = WriteHeader(out, kSequenceOctet, plan.content);
  return ForEachLine(plan.text, [&](const Characters& line) {
    const uint64_t content = StringContent(line, plan.type);
    if (!EncodeString(line, plan.type, content, out)) return false;
    out += ElementSize(content);
    return true;
  });
}

}  // namespace Ortholan
