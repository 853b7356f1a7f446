#include "names/decoder/hex_text.h"

#include <ortholan/name_decoder.h>

#include "bytes/hex.h"
#include "foundation/blob_view.h"

namespace Ortholan {

void AppendHex(ByteView bytes, std::wstring* text) {
  if (bytes.empty()) {
    text->append(L"\"\"");
    return;
  }
  const size_t before = text->size();
  text->resize(before + 3 * bytes.size - 1, L' ');
  wchar_t* out = text->data() + before;
  for (const BYTE octet : bytes) out = WriteHexOctet(octet, out) + 1;
}

std::wstring X500NameDecoder::ToHex(unsigned char byte) {
  wchar_t digits[2];
  WriteHexOctet(byte, digits);
  return {digits, 2};
}

bool X500NameDecoder::BlobToString(const IdentObj& blob, std::wstring& text) {
  text.clear();
  AppendHex(ViewOf(blob), &text);
  return true;
}

}  // namespace Ortholan
