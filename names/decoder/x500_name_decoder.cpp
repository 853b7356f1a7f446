#include <ortholan/name_decoder.h>
#include <ortholan/name_options.h>

#include "foundation/blob_view.h"
#include "names/decoder/name_renderer.h"
#include "names/decoder/type_name.h"

namespace Ortholan {
X500NameDecoder::X500NameDecoder() noexcept : nameStyle_(kStyleKeys), decoderOptions_(0) {}
X500NameDecoder::X500NameDecoder(const X500NameDecoder&) noexcept = default;
X500NameDecoder& X500NameDecoder::operator=(const X500NameDecoder&) noexcept = default;
X500NameDecoder::~X500NameDecoder() = default;

void X500NameDecoder::SetDecoderOptions(DWORD options) { decoderOptions_ = options & ~kStyleMask; }

DWORD X500NameDecoder::GetDecoderOptions() const { return decoderOptions_; }

bool X500NameDecoder::Decode(const IdentObj& name, std::wstring& text, DWORD options) {
  const ByteView bytes = ViewOf(name);
  if (bytes.empty()) return false;
  nameStyle_ = options & kStyleMask;
  NameRenderer renderer(nameStyle_, decoderOptions_);
  const bool rendered = renderer.Render(bytes);
  renderer.MoveTo(&text);
  return rendered;
}

}  // namespace Ortholan
