#include "names/encoder/text_encoder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "foundation/element_writer.h"
#include "foundation/small_buffer.h"
#include "foundation/status_code.h"
#include "names/encoder/name_assembler.h"
#include "names/encoder/name_parser.h"
#include "names/encoder/trim.h"
#include "names/encoder/value_encoder.h"
#include "names/encoder/value_type.h"

namespace Ortholan {
namespace {

constexpr int kHighestRank = 11;
// A place for each rank and one for what has none, which goes first.
constexpr size_t kRankPlaces = kHighestRank + 2;

template <typename Elem>
size_t PlaceOf(const Elem& elem) {
  const int rank = elem.row != nullptr ? elem.row->rank : kUnrankedAttribute;
  return static_cast<size_t>(kHighestRank + 1 - std::min(rank, kHighestRank + 1));
}

// By falling rank, equal ranks in their order: a counting sort, because ranks are few.
template <typename Elems>
void SortByRank(const Elems& elems, Elems* sorted) {
  size_t starts[kRankPlaces + 1] = {};
  for (const auto& elem : elems) ++starts[PlaceOf(elem) + 1];
  for (size_t place = 1; place <= kRankPlaces; ++place) starts[place] += starts[place - 1];
  auto* const out = sorted->Take(elems.size());
  for (const auto& elem : elems) out[starts[PlaceOf(elem)]++] = elem;
}

// Octets of the attribute behind its header.
template <typename Elem>
uint64_t AttributeContent(const Elem& elem) {
  return elem.row->der.size + elem.size;
}

// Decides how each value is written. `*content` is the octets of all RDNs.
template <typename Elems>
bool PlanElements(DWORD options, Elems* elems, uint64_t* content) {
  uint64_t sum = 0;
  for (auto& elem : *elems) {
    if (elem.row == nullptr) return FailWith(Status::kNotEncodable);
    if (elem.value.empty()) return false;
    if (!DetermineTargetType(elem.row->rule, elem.classes, options, &elem.type)) return false;
    elem.size = MeasureValue(Characters(elem.value), elem.type, elem.row->lines);
    sum += ElementSize(ElementSize(AttributeContent(elem)));
  }
  *content = sum;
  return true;
}

// A copy of fixed size where there is room for it: what is too much is written over.
BYTE* WriteOid(const OidDer& der, BYTE* out, const BYTE* end) {
  const size_t room = static_cast<size_t>(end - out);
  std::memcpy(out, der.bytes, room >= sizeof(der.bytes) ? sizeof(der.bytes) : der.size);
  return out + der.size;
}

// One attribute an RDN. False where the platform refuses a value.
template <typename Elems>
bool WriteElements(const Elems& elems, BYTE* out, const BYTE* end) {
  for (const auto& elem : elems) {
    const uint64_t content = AttributeContent(elem);
    out = WriteHeader(out, kSetOctet, ElementSize(content));
    out = WriteHeader(out, kSequenceOctet, content);
    out = WriteOid(elem.row->der, out, end);
    const ValuePlan value = {Characters(elem.value), elem.type, elem.row->lines, elem.size};
    if (!EncodeElemData(value, out)) return false;
    out += elem.size;
  }
  return true;
}

template <typename Elems>
bool EncodeElements(DWORD options, Elems* elems, IdentObj* der) {
  uint64_t content = 0;
  IdentObj name;
  if (!PlanElements(options, elems, &content) || !AllocateName(content, &name)) return false;
  BYTE* const out = WriteHeader(name.pbData, kSequenceOctet, content);
  if (!WriteElements(*elems, out, name.pbData + name.cbData)) return false;
  *der = std::move(name);
  return true;
}

template <typename Char>
bool Encode(std::basic_string_view<Char> trimmed, DWORD options, bool sortByPriority,
            const AttributeRow** unfinished, IdentObj* der) {
  if (trimmed.empty()) return FailWith(Status::kBadArgument);
  NameParser<Char> parser(trimmed, options, *unfinished);
  const bool parsed = parser.Parse_NameElems();
  *unfinished = parser.unfinished();
  if (!parsed) return false;
  if (!sortByPriority) return EncodeElements(options, &parser.elements(), der);
  NameElems<Char> sorted;
  SortByRank(parser.elements(), &sorted);
  return EncodeElements(options, &sorted, der);
}

// Copies `text` to `out` and tells whether all of it is ASCII. No branch in the loop: the compiler
// takes many characters at a time.
bool NarrowAscii(std::wstring_view text, char* out) {
  const wchar_t* const from = text.data();
  uint32_t seen = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    seen |= static_cast<uint32_t>(from[i]);
    out[i] = static_cast<char>(from[i]);
  }
  return seen < 0x80;
}

}  // namespace

bool EncodeNameText(std::wstring_view text, DWORD options, bool sortByPriority,
                    const AttributeRow** unfinished, IdentObj* der) {
  const std::wstring_view trimmed = Trimmed(text);
  SmallBuffer<char, 512> ascii;
  if (NarrowAscii(trimmed, ascii.Take(trimmed.size()))) {
    const std::string_view narrow(ascii.data(), ascii.size());
    return Encode(narrow, options, sortByPriority, unfinished, der);
  }
  return Encode(trimmed, options, sortByPriority, unfinished, der);
}

bool EncodeNameText(std::string_view ascii, DWORD options, bool sortByPriority,
                    const AttributeRow** unfinished, IdentObj* der) {
  return Encode(Trimmed(ascii), options, sortByPriority, unfinished, der);
}

bool EncodeWideNameText(std::wstring_view text, DWORD options, bool sortByPriority,
                        const AttributeRow** unfinished, IdentObj* der) {
  return Encode(Trimmed(text), options, sortByPriority, unfinished, der);
}

}  // namespace Ortholan
