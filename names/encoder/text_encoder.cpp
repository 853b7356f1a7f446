#include "names/encoder/text_encoder.h"

#include <cstdint>
#include <cstring>

#include "bytes/ascii.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/report.h"
#include "names/encoder/name_parser.h"
#include "names/encoder/rank_order.h"
#include "names/encoder/rdn_writer.h"
#include "names/encoder/string_type.h"
#include "names/encoder/trim.h"
#include "names/encoder/value_encoder.h"

namespace Ortholan {
namespace {

// Chooses the value's string type and tells the octets of its encoding, which are not kept:
// measuring twice costs less than the room.
template <typename Elem>
inline bool PlanElement(DWORD options, const AttributeRow& row, Elem* elem, uint64_t* size) {
  const auto value = elem->value();
  DWORD type = 0;
  if (!DetermineTargetType(row.rule, value.size(), elem->classes(), options, &type)) return false;
  elem->Plan(type);
  *size = ElementSize(ValueContent(value, type, row.lines));
  return true;
}

// Decides how each value is written. An element without a type is the first of the sorted ones, so
// that its failure counts before all others there.
template <typename Places, typename Elems>
bool PlanElements(DWORD options, Elems* elems, Places* places) {
  bool planned = true;
  const bool typed = elems->ForEach([&](auto& elem) {
    const AttributeRow* const row = elem.row();
    if (row == nullptr) return FailWith(Status::kNotEncodable);
    uint64_t size = 0;
    planned = planned && PlanElement(options, *row, &elem, &size);
    if (!planned) return Places::kSorted;
    places->Add(*row, RdnSize(AttributeSize(row->der.size + size)));
    return true;
  });
  return typed && planned;
}

// One attribute an RDN. Behind `*out` nothing was written yet, to `end`, or where that is null to
// the RDN's own end, which `*out` becomes. False where the platform refuses the value.
template <typename Elem>
inline bool WriteElement(const Elem& elem, const AttributeRow& row, const BYTE* end, BYTE** out) {
  const auto value = elem.value();
  const DWORD type = elem.type();
  const uint64_t octets = ValueContent(value, type, row.lines);
  const uint64_t content = row.der.size + ElementSize(octets);
  BYTE* at = WriteSingleHeaders(*out, content);
  *out = at + content;
  at = WriteType(at, row.der, end != nullptr ? end : *out);
  if (row.lines) return EncodeElemData({value, type, true, octets}, at);
  return EncodeStringValue(type, value.data(), value.size(), at, static_cast<size_t>(octets));
}

template <typename Places, typename Elems>
bool EncodeElements(DWORD options, Elems* elems, IdentObj* der) {
  Places places;
  if (!PlanElements(options, elems, &places)) return false;
  const uint64_t content = places.Total();
  IdentObj name;
  BYTE* rdns = nullptr;
  if (!AllocateName(content, &name, &rdns)) return false;
  places.Lay(rdns);
  const BYTE* const end = Places::kSorted ? nullptr : name.pbData + name.cbData;
  const bool written = elems->ForEach([&](const auto& elem) {
    const AttributeRow& row = *elem.row();
    return WriteElement(elem, row, end, &places.Next(row));
  });
  if (written) *der = std::move(name);
  return written;
}

template <typename Char>
bool Encode(std::basic_string_view<Char> trimmed, DWORD options, bool sortByPriority,
            const AttributeRow** unfinished, IdentObj* der) {
  if (trimmed.empty()) return FailWith(Status::kBadArgument);
  NameParser<Char> parser(trimmed, options, *unfinished);
  const bool parsed = parser.Parse_NameElems();
  *unfinished = parser.unfinished();
  if (!parsed) return false;
  return sortByPriority ? EncodeElements<RankPlaces>(options, &parser.elements(), der)
                        : EncodeElements<OnePlace>(options, &parser.elements(), der);
}

// Texts of at most this many characters are read as bytes where they are ASCII. A longer one is not
// worth the copy.
constexpr size_t kMostNarrowed = 512;

}  // namespace

bool EncodeNameText(std::wstring_view text, DWORD options, bool sortByPriority,
                    const AttributeRow** unfinished, IdentObj* der) {
  const std::wstring_view trimmed = Trimmed(text);
  char ascii[kMostNarrowed];
  if (trimmed.size() <= kMostNarrowed && NarrowAscii(trimmed.data(), trimmed.size(), ascii)) {
    const std::string_view narrow(ascii, trimmed.size());
    return Encode(narrow, options, sortByPriority, unfinished, der);
  }
  return Encode(trimmed, options, sortByPriority, unfinished, der);
}

bool EncodeNameText(std::string_view ascii, DWORD options, bool sortByPriority,
                    const AttributeRow** unfinished, IdentObj* der) {
  return Encode(Trimmed(ascii), options, sortByPriority, unfinished, der);
}

}  // namespace Ortholan
