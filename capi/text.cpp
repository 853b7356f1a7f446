#include "capi/text.h"

#include <cstring>
#include <limits>
#include <new>

#include "bytes/ascii.h"
#include "bytes/utf16.h"
#include "foundation/code_page.h"
#include "foundation/oid_text.h"

namespace Ortholan::capi {

Outcome ReadOctets(const uint8_t* data, size_t size, ByteView* octets) {
  if (data == nullptr && size != 0) return NullArgument();
  if (size > std::numeric_limits<DWORD>::max()) return NullArgument();
  *octets = {data, size};
  return Done();
}

Outcome ReadUtf8(std::string_view text, std::wstring* wide) {
  if (IsAscii(text)) {
    wide->clear();
    AppendAscii(text, wide);
    return Done();
  }
  if (WidenUtf8(text, wide) == Conversion::kDone) return Done();
  if (GetLastError() == ERROR_INVALID_PARAMETER) return NullArgument();
  return RefusedByLastError(ORTHOLAN_ERROR_UTF8, Status::kNotEncodable);
}

char* NewBlock(size_t size) {
  auto* block = static_cast<char*>(::operator new(size + 1));
  block[size] = '\0';
  return block;
}

void GiveText(std::string_view text, char** out, size_t* size) {
  char* const block = NewBlock(text.size());
  text.copy(block, text.size());
  *out = block;
  if (size != nullptr) *size = text.size();
}

void GiveOctets(ByteView octets, uint8_t** out, size_t* size) {
  char* const block = NewBlock(octets.size);
  if (!octets.empty()) std::memcpy(block, octets.data, octets.size);
  *out = reinterpret_cast<uint8_t*>(block);
  *size = octets.size;
}

Outcome GiveWideText(std::wstring_view text, char** out, size_t* size) {
  constexpr uint64_t kMost = static_cast<uint64_t>(std::numeric_limits<int>::max());
  const uint64_t octets = CountUtf8(text);
  if (octets > kMost) return Refused(ORTHOLAN_ERROR_MEMORY, Status::kNoMemory);
  const int room = static_cast<int>(octets);
  char* const block = NewBlock(octets);
  if (room != 0 && WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                       block, room, nullptr, nullptr) != room) {
    ::operator delete(block);
    return RefusedByLastError(ORTHOLAN_ERROR_SYSTEM, Status::kOk);
  }
  *out = block;
  if (size != nullptr) *size = octets;
  return Done();
}

Outcome CheckIdentifier(std::string_view dotted) {
  SmallBuffer<BYTE, kMaxOidContent> content;
  OidText back;
  if (ParseOid(dotted, &content) == Status::kOk &&
      FormatOid({content.data(), content.size()}, &back) == Status::kOk && View(back) == dotted) {
    return Done();
  }
  std::wstring wide;
  const Outcome readable = ReadUtf8(dotted, &wide);
  return readable ? Refused(ORTHOLAN_ERROR_TYPE, Status::kNotEncodable) : readable;
}

}  // namespace Ortholan::capi
