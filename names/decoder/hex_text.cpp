#include "names/decoder/hex_text.h"

#include <ortholan/name_decoder.h>

namespace Ortholan {
namespace {

constexpr wchar_t kDigits[] = L"0123456789ABCDEF";

}  // namespace

void AppendHex(ByteView bytes, std::wstring* text) {
  if (bytes.empty()) {
    text->append(L"\"\"");
    return;
  }
  const size_t before = text->size();
  text->resize(before + 3 * bytes.size - 1, L' ');
  wchar_t* out = text->data() + before;
  for (const BYTE octet : bytes) {
    out[0] = kDigits[octet >> 4];
    out[1] = kDigits[octet & 0x0F];
    out += 3;
  }
}

std::wstring X500NameDecoder::ToHex(unsigned char byte) {
  return {kDigits[byte >> 4], kDigits[byte & 0x0F]};
}

bool X500NameDecoder::BlobToString(const IdentObj& blob, std::wstring& text) {
  text.clear();
  AppendHex(ByteView(blob), &text);
  return true;
}

}  // namespace Ortholan
