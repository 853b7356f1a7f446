#include "names/encoder/text_encoder.h"

#include <algorithm>
#include <cstdint>

#include "foundation/small_buffer.h"
#include "foundation/status_code.h"
#include "names/encoder/name_assembler.h"
#include "names/encoder/name_parser.h"
#include "names/encoder/trim.h"

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

template <typename Elems>
bool EncodeElements(const Elems& elems, DWORD options, IdentObj* der) {
  NameAssembler assembler(options);
  for (const auto& elem : elems) {
    if (!assembler.EncodeRdn(elem.row, elem.value, elem.classes)) return false;
  }
  return assembler.Write(der);
}

template <typename Char>
bool Encode(std::basic_string_view<Char> trimmed, DWORD options, bool sortByPriority,
            const AttributeRow** unfinished, IdentObj* der) {
  if (trimmed.empty()) return FailWith(Status::kBadArgument);
  NameParser<Char> parser(trimmed, options, *unfinished);
  const bool parsed = parser.Parse_NameElems();
  *unfinished = parser.unfinished();
  if (!parsed) return false;
  if (!sortByPriority) return EncodeElements(parser.elements(), options, der);
  NameElems<Char> sorted;
  SortByRank(parser.elements(), &sorted);
  return EncodeElements(sorted, options, der);
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

}  // namespace Ortholan
