#include "names/encoder/value_encoder.h"

#include <limits>

#include "foundation/element_writer.h"
#include "foundation/utf16.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

constexpr bool EndsLine(wchar_t c) { return c == L'\r' || c == L'\n'; }

bool IsEightBit(DWORD type) {
  return type == CERT_RDN_PRINTABLE_STRING || type == CERT_RDN_IA5_STRING;
}

// Sized here rather than by a query of the platform: the content is the text in the type's
// encoding, and the length field is definite and minimal.
uint64_t StringSize(std::wstring_view text, DWORD type) {
  if (IsEightBit(type)) return ElementSize(text.size());
  return ElementSize(type == CERT_RDN_UTF8_STRING ? CountUtf8(text) : 2 * CountUnits(text));
}

// Calls `use` with each line of `text`, in order, until it returns false; text without any line is
// one line itself. Returns what the last call returned.
template <typename Use>
bool ForEachLine(std::wstring_view text, Use use) {
  std::wstring_view rest = text;
  std::wstring_view line;
  if (!NextLine(&rest, &line)) return use(text);
  do {
    if (!use(line)) return false;
  } while (NextLine(&rest, &line));
  return true;
}

uint64_t LinesSize(std::wstring_view text, DWORD type) {
  uint64_t size = 0;
  ForEachLine(text, [&](std::wstring_view line) {
    size += StringSize(line, type);
    return true;
  });
  return size;
}

}  // namespace

bool NextLine(std::wstring_view* text, std::wstring_view* line) {
  size_t start = 0;
  while (start < text->size() && EndsLine((*text)[start])) ++start;
  if (start == text->size()) return false;
  size_t end = start;
  while (end < text->size() && !EndsLine((*text)[end])) ++end;
  *line = text->substr(start, end - start);
  text->remove_prefix(end);
  return true;
}

uint64_t MeasureValue(std::wstring_view text, DWORD type, bool lines) {
  return lines ? ElementSize(LinesSize(text, type)) : StringSize(text, type);
}

bool ValueEncoder::EncodeElemData(const ValuePlan& plan, BYTE* out) {
  if (plan.lines) return EncodeLines(plan, out);
  return EncodeString(plan.text, plan.type, plan.size, out);
}

bool ValueEncoder::EncodeLines(const ValuePlan& plan, BYTE* out) {
  out = WriteHeader(out, kSequenceOctet, LinesSize(plan.text, plan.type));
  return ForEachLine(plan.text, [&](std::wstring_view line) {
    const uint64_t size = StringSize(line, plan.type);
    if (!EncodeString(line, plan.type, size, out)) return false;
    out += size;
    return true;
  });
}

bool ValueEncoder::EncodeString(std::wstring_view text, DWORD type, uint64_t size, BYTE* out) {
  const bool eight_bit = IsEightBit(type);
  const uint64_t count = eight_bit ? text.size() : 2 * CountUnits(text);
  if (count > std::numeric_limits<DWORD>::max()) return false;
  BYTE* const bytes = bytes_.Take(count);
  if (eight_bit) {
    // The type's alphabet is ASCII, which is itself in every code page.
    const wchar_t* const from = text.data();
    for (size_t i = 0; i < text.size(); ++i) bytes[i] = static_cast<BYTE>(from[i]);
  } else {
    WriteUtf16Le(text, bytes);
  }
  const CERT_NAME_VALUE value = {type, {static_cast<DWORD>(count), bytes}};
  DWORD written = static_cast<DWORD>(size);
  return CryptEncodeObject(X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, X509_NAME_VALUE, &value, out,
                           &written) &&
         written == size;
}

}  // namespace Ortholan
