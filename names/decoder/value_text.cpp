#include "names/decoder/value_text.h"

#include "bytes/ascii.h"
#include "bytes/byte_view.h"
#include "bytes/nesting_limit.h"
#include "bytes/utf16.h"
#include "foundation/code_page.h"
#include "foundation/report.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/hex_text.h"

namespace Ortholan {
namespace {

bool AppendString(const Element& value, std::wstring* text) {
  StringValue decoded;
  if (!decoded.Decode(value.bytes.data, value.bytes.size)) return false;
  const ByteView bytes(decoded.data(), decoded.size());
  if (!decoded.is_utf16()) return AppendWidened(AsText(bytes), kCodePageThreadAnsi, text);
  AppendUtf16Le(bytes, text);
  return true;
}

bool AppendValue(const Element& value, size_t depth, std::wstring* text);

// Calls `use` with each child. All children are found before the first one is decoded.
template <typename Use>
bool ForEachChild(const Element& sequence, Use use) {
  ElementReader scan(sequence);
  for (Element child; scan.Next(&child);) continue;
  if (scan.fault()) return FailWith(scan.fault().status);
  ElementReader reader(sequence);
  for (Element child; reader.Next(&child);) {
    const Status alone = StandsAlone(child);
    if (alone != Status::kOk) return FailWith(alone);
    if (!use(child)) return false;
  }
  return true;
}

bool AppendLines(const Element& sequence, size_t depth, std::wstring* text) {
  if (depth > kMaxNesting) return FailWith(Status::kCorrupt);
  const size_t start = text->size();
  return ForEachChild(sequence, [&](const Element& child) {
    const size_t before = text->size();
    if (before != start) text->push_back(L'\n');
    const size_t line = text->size();
    const bool decoded = AppendValue(child, depth, text);
    if (text->size() == line) text->resize(before);
    return decoded;
  });
}

bool AppendValue(const Element& value, size_t depth, std::wstring* text) {
  if (IsDecodedString(value)) return AppendString(value, text);
  if (value.header.tag == kTagSequence) return AppendLines(value, depth + 1, text);
  AppendHex(value.bytes, text);
  return true;
}

}  // namespace

bool AsciiValue::Decode(const Element& value) {
  if (!IsDecodedString(value)) return false;
  if (!decoded_.Decode(value.bytes.data, value.bytes.size) || decoded_.is_utf16()) return false;
  text_ = AsText(ByteView(decoded_.data(), decoded_.size()));
  return IsAscii(text_);
}

bool DecodeAttrData(const Element& value, std::wstring* text) {
  return AppendValue(value, 0, text);
}

bool DecodeAttrData(const Element& value, std::list<std::wstring>* texts) {
  std::list<std::wstring> found;
  const auto append = [&found](const Element& element, size_t depth) {
    std::wstring text;
    if (!AppendValue(element, depth, &text)) return false;
    if (!text.empty()) found.push_back(std::move(text));
    return true;
  };
  const bool decoded =
      value.header.tag == kTagSequence
          ? ForEachChild(value, [&append](const Element& child) { return append(child, 1); })
          : append(value, 0);
  if (decoded) texts->swap(found);
  return decoded;
}

}  // namespace Ortholan
