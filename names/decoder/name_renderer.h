// A whole name as one line of text.
//
//   NameRenderer renderer(kStyleKeys, 0);
//   if (renderer.Render(name)) renderer.MoveTo(&text);   // "CN=Alpha,O=Org"
#ifndef ORTHOLAN_NAMES_DECODER_NAME_RENDERER_H_
#define ORTHOLAN_NAMES_DECODER_NAME_RENDERER_H_

#include <ortholan/platform.h>

#include <string>
#include <string_view>

#include "bytes/byte_view.h"
#include "bytes/small_buffer.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/type_name.h"

namespace Ortholan {

// Renders one name. Text is kept in bytes as long as it is ASCII, which most names are to their
// end and which goes faster, and in wide characters from the first RDN on that is not. Both ways
// give the same text, results and last-error codes.
class NameRenderer {
 public:
  // `style` is what is shown of a type, `options` chooses the separator.
  NameRenderer(DWORD style, DWORD options);

  // False with the last error set for bytes that are no sequence, and where an RDN cannot be
  // rendered: the text then holds the RDNs before it.
  bool Render(ByteView name);

  // Replaces `out` by the text.
  void MoveTo(std::wstring* out);
  // The text where all of it is ASCII, valid as long as this object; null data where it is not.
  std::string_view ascii() const;
  const std::wstring& wide() const { return wide_; }

 private:
  bool RenderRdn(ByteView rdn);
  bool RenderWide(ByteView rdn);
  bool RenderAscii(ByteView rdn);
  bool AppendAsciiType(ByteView content);
  bool AppendLongType(const TypeText& type);
  bool AppendAsciiValue(const Element& child);
  bool AppendWideType(ByteView content);
  bool AppendWideValue(const Element& child, std::wstring* text);
  void SwitchToWide();

  DWORD style_;
  std::string_view separator_;
  bool is_wide_ = false;
  size_t left_ = 0;  // octets of the name behind the RDN that is rendered
  SmallBuffer<char, 1024> ascii_;
  std::wstring wide_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_NAME_RENDERER_H_
