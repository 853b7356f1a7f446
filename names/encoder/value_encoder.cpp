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

void MeasureValue(ValuePlan* plan) {
  if (!plan->lines) {
    plan->size = StringSize(plan->text, plan->type);
    return;
  }
  plan->content = 0;
  ForEachLine(plan->text, [plan](std::wstring_view line) {
    plan->content += StringSize(line, plan->type);
    return true;
  });
  plan->size = ElementSize(plan->content);
}

bool ValueEncoder::EncodeElemData(const ValuePlan& plan, BYTE* out) {
  if (!plan.lines) return EncodeString(plan.text, plan.type, plan.size, out);
  out = WriteHeader(out, kSequenceOctet, plan.content);
  return ForEachLine(plan.text, [&](std::wstring_view line) {
    const uint64_t size = StringSize(line, plan.type);
    if (!EncodeString(line, plan.type, size, out)) return false;
    out += size;
    return true;
  });
}

bool ValueEncoder::EncodeString(std::wstring_view text, DWORD type, uint64_t size, BYTE* out) {
  const uint64_t bytes = IsEightBit(type) ? text.size() : 2 * CountUnits(text);
  if (bytes > std::numeric_limits<DWORD>::max()) return false;
  CERT_NAME_VALUE value = {};
  value.dwValueType = type;
  value.Value.cbData = static_cast<DWORD>(bytes);
  value.Value.pbData = bytes_.Take(bytes);
  if (IsEightBit(type)) {
    // The type's alphabet is ASCII, which is itself in every code page.
    for (size_t i = 0; i < text.size(); ++i) value.Value.pbData[i] = static_cast<BYTE>(text[i]);
  } else {
    WriteUtf16Le(text, value.Value.pbData);
  }
  DWORD written = static_cast<DWORD>(size);
  return CryptEncodeObject(X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, X509_NAME_VALUE, &value, out,
                           &written) &&
         written == size;
}

}  // namespace Ortholan
