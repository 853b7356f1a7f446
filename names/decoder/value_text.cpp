#include "names/decoder/value_text.h"

#include <cstddef>
#include <limits>

#include "foundation/code_page.h"
#include "foundation/small_buffer.h"
#include "foundation/status_code.h"
#include "foundation/utf16.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/hex_text.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

constexpr unsigned kMaxNesting = 32;

// The platform's decoding of one string, in scratch space aligned for its structure.
class DecodedString {
 public:
  // False with the platform's last error for what it refuses.
  bool Decode(ByteView element) {
    // UTF-8 grows most: two bytes of UTF-16 an octet.
    if (TryDecode(element, sizeof(CERT_NAME_VALUE) + 2 * element.size)) return true;
    return GetLastError() == ERROR_MORE_DATA && TryDecode(element, needed_);
  }
  ByteView bytes() const { return ByteView(value()->Value); }

 private:
  using Block = std::max_align_t;

  const CERT_NAME_VALUE* value() const {
    return reinterpret_cast<const CERT_NAME_VALUE*>(blocks_.data());
  }

  bool TryDecode(ByteView element, uint64_t size) {
    if (size > std::numeric_limits<DWORD>::max()) return FailWith(Status::kNoMemory);
    Block* block = blocks_.Take((size + sizeof(Block) - 1) / sizeof(Block));
    std::memset(block, 0, sizeof(CERT_NAME_VALUE));
    needed_ = static_cast<DWORD>(size);
    return CryptDecodeObject(X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, X509_NAME_VALUE,
                             element.data, static_cast<DWORD>(element.size), 0, block,
                             &needed_) != 0;
  }

  SmallBuffer<Block, 32> blocks_;
  DWORD needed_ = 0;
};

bool AppendUtf16String(const Element& value, std::wstring* text) {
  DecodedString decoded;
  if (!decoded.Decode(value.bytes)) return false;
  AppendUtf16Le(decoded.bytes(), text);
  return true;
}

bool AppendEightBitString(const Element& value, std::wstring* text) {
  DecodedString decoded;
  if (!decoded.Decode(value.bytes)) return false;
  return AppendWidened(AsText(decoded.bytes()), kCodePageThreadAnsi, text);
}

bool AppendValue(const Element& value, unsigned depth, std::wstring* text);

// Calls `use` with each child. All children are found before the first one is decoded.
template <typename Use>
bool ForEachChild(const Element& sequence, Use use) {
  size_t count = 0;
  const Status status = CountChildren(sequence.bytes, &count);
  if (status != Status::kOk) return FailWith(status);
  ElementReader reader(sequence.bytes);
  for (Element child; reader.Next(&child);) {
    const Status alone = StandsAlone(child);
    if (alone != Status::kOk) return FailWith(alone);
    if (!use(child)) return false;
  }
  return true;
}

bool AppendLines(const Element& sequence, unsigned depth, std::wstring* text) {
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

bool AppendValue(const Element& value, unsigned depth, std::wstring* text) {
  switch (value.header.tag) {
    case kTagSequence:
      return AppendLines(value, depth + 1, text);
    case kTagUtf8String:
    case kTagBmpString:
      return AppendUtf16String(value, text);
    case kTagPrintableString:
    case kTagTeletexString:
    case kTagIA5String:
    case kTagVisibleString:
      return AppendEightBitString(value, text);
    default:
      AppendHex(value.bytes, text);
      return true;
  }
}

}  // namespace

bool DecodeAttrData(const Element& value, std::wstring* text) {
  return AppendValue(value, 0, text);
}

bool DecodeAttrData(const Element& value, std::list<std::wstring>* texts) {
  std::list<std::wstring> found;
  const auto append = [&found](const Element& element, unsigned depth) {
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
