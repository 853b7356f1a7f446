// Rules about delegated addresses and autonomous systems (RFC 3779): what its canonical form asks
// for, so that equal resources have equal octets.
#include <algorithm>

#include "strict/der/bit_string.h"
#include "strict/der/known_oids.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"
#include "strict/extensions/resource_text.h"

namespace Ortholan::strict::looks {
namespace {

// The first and the last of some addresses, or of some numbers of autonomous systems, as octets of
// one size, most significant first.
struct Span {
  IpAddress first;
  IpAddress last;
  ByteView bytes;  // the element
  bool is_range = false;
};

bool IsBelow(const IpAddress& a, const IpAddress& b) {
  return std::memcmp(a.octets, b.octets, a.size) < 0;
}

// The one behind; false behind the greatest.
bool Increment(IpAddress* address) {
  size_t i = address->size;
  while (i != 0 && ++address->octets[i - 1] == 0) --i;
  return i != 0;
}

// Both ends of a range, or the element itself twice.
bool TakeEnds(const Element& element, uint8_t identifier, ByteView* first, ByteView* last) {
  *first = *last = element.content;
  if (element.identifier == identifier) return true;
  Reader ends(element.content, Leniency::kLenient, nullptr);
  return element.identifier == kSequence && ends.Read(identifier, first) &&
         ends.Read(identifier, last) && ends.AtEnd();
}

bool TakeBits(const Element& element, ByteView* first, ByteView* last) {
  return TakeEnds(element, kBitString, first, last) && IsBitString(*first) && IsBitString(*last);
}

bool AddressSpanOf(ByteView family, const Element& element, Span* span) {
  ByteView first, last;
  return TakeBits(element, &first, &last) && ExpandAddress(family, first, false, &span->first) &&
         ExpandAddress(family, last, true, &span->last);
}

// A number from 0 to 2^64 - 1, as eight octets.
bool NumberOf(ByteView content, IpAddress* number) {
  if (content.empty() || (content[0] & 0x80) != 0) return false;
  if (content.size > 1 && content[0] == 0) content = content.From(1);
  if (content.size > sizeof(uint64_t)) return false;
  number->size = sizeof(uint64_t);
  std::copy(content.begin(), content.end(), number->octets + number->size - content.size);
  return true;
}

bool SystemSpanOf(const Element& element, Span* span) {
  ByteView first, last;
  return TakeEnds(element, kInteger, &first, &last) && NumberOf(first, &span->first) &&
         NumberOf(last, &span->last);
}

// Calls `visit` with the structure and the octets of each family of addresses.
template <class Visit>
void ForEachFamily(const CheckCase& at, Visit visit) {
  ForEachElement(ListOf(at), [&visit](const Element& structure) {
    visit(structure, PartOf(structure.content, kOctetString));
  });
}

template <class SpanOf>
std::vector<Span> SpansOf(ByteView list, SpanOf span_of) {
  std::vector<Span> spans;
  ForEachElement(list, [&](const Element& element) {
    Span span;
    span.bytes = element.bytes;
    span.is_range = element.identifier == kSequence;
    if (span_of(element, &span)) spans.push_back(span);
  });
  return spans;
}

// Calls `visit` with what can be told of each list of addresses or numbers.
template <class Visit>
void ForEachSpans(const CheckCase& at, Visit visit) {
  if (!SameBytes(at.extension.oid, oids::kAddressBlocks.view())) {
    for (const uint8_t kind : {ContextConstructed(0), ContextConstructed(1)}) {
      visit(SpansOf(PartOf(PartOf(ListOf(at), kind), kSequence), SystemSpanOf));
    }
    return;
  }
  ForEachFamily(at, [&visit](const Element& structure, ByteView family) {
    visit(SpansOf(PartOf(structure.content, kSequence), [family](const Element& each, Span* span) {
      return AddressSpanOf(family, each, span);
    }));
  });
}

// Calls `visit` with each pair of neighbours.
template <class Visit>
void ForEachNeighbours(const CheckCase& at, Visit visit) {
  ForEachSpans(at, [&visit](const std::vector<Span>& spans) {
    for (size_t i = 1; i < spans.size(); ++i) visit(spans[i - 1], spans[i]);
  });
}

// Calls `visit` with each prefix and range of the families that are known.
template <class Visit>
void ForEachAddresses(const CheckCase& at, Visit visit) {
  ForEachFamily(at, [&visit](const Element& structure, ByteView family) {
    if (AddressSizeOf(family) == 0) return;
    ForEachElement(PartOf(structure.content, kSequence),
                   [&](const Element& each) { visit(family, each); });
  });
}

// Whether a range has all addresses of one prefix.
bool IsPrefix(const Span& span) {
  size_t same = 0;
  IpAddress differences = span.first;
  for (size_t i = 0; i < differences.size; ++i) {
    const int ends = span.first.octets[i] ^ span.last.octets[i];
    if ((ends & span.first.octets[i]) != 0) return false;
    differences.octets[i] = static_cast<uint8_t>(~ends);
  }
  return IsPrefixMask(differences.view(), &same);
}

}  // namespace

void FamilySizes(const CheckCase& at) {
  ForEachFamily(at, [&at](const Element& structure, ByteView family) {
    if (family.size < 2 || family.size > 3) at.Fault(structure.bytes);
  });
}

void FamilyOrder(const CheckCase& at) {
  ByteView before;
  ForEachFamily(at, [&](const Element& structure, ByteView family) {
    if (before.data != nullptr && !AreOctetsBefore(before, family)) at.Fault(structure.bytes);
    before = family;
  });
}

void AddressBits(const CheckCase& at) {
  ForEachAddresses(at, [&at](ByteView family, const Element& each) {
    ByteView first, last;
    Span span;
    if (TakeBits(each, &first, &last) && !AddressSpanOf(family, each, &span)) at.Fault(each.bytes);
  });
}

void EndsOfRanges(const CheckCase& at) {
  ForEachAddresses(at, [&at](ByteView family, const Element& each) {
    ByteView first, last;
    Span span;
    if (each.identifier != kSequence || !AddressSpanOf(family, each, &span)) return;
    TakeBits(each, &first, &last);
    if (!AddressComesBack(kFirstAddress, family, first) ||
        !AddressComesBack(kLastAddress, family, last)) {
      at.Fault(each.bytes);
    }
  });
}

void RangeEnds(const CheckCase& at) {
  ForEachSpans(at, [&at](const std::vector<Span>& spans) {
    for (const Span& span : spans) {
      if (IsBelow(span.last, span.first)) at.Fault(span.bytes);
    }
  });
}

void SpanOrder(const CheckCase& at) {
  ForEachNeighbours(at, [&at](const Span& before, const Span& span) {
    if (IsBelow(span.first, before.first)) at.Fault(span.bytes);
  });
}

void SpanOverlap(const CheckCase& at) {
  ForEachNeighbours(at, [&at](const Span& before, const Span& span) {
    if (!IsBelow(before.last, span.first) && !IsBelow(span.last, before.first)) {
      at.Fault(span.bytes);
    }
  });
}

void SpansAdjacent(const CheckCase& at) {
  ForEachNeighbours(at, [&at](const Span& before, const Span& span) {
    IpAddress behind = before.last;
    if (Increment(&behind) && SameBytes(behind.view(), span.first.view())) at.Fault(span.bytes);
  });
}

void RangesOfPrefixes(const CheckCase& at) {
  ForEachSpans(at, [&at](const std::vector<Span>& spans) {
    for (const Span& span : spans) {
      if (span.is_range && IsPrefix(span)) at.Fault(span.bytes);
    }
  });
}

}  // namespace Ortholan::strict::looks
