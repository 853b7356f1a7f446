// Rules about extensions that are there.
#include <algorithm>
#include <vector>

#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"
#include "strict/extensions/known_extensions.h"
#include "strict/extensions/shape_reader.h"

namespace Ortholan::strict::looks {

// A binary search among all, as a list may be of any length.
void Twice(const CheckCase& at) {
  const std::vector<ByteView>& oids = *at.oids;
  const auto same = std::equal_range(oids.begin(), oids.end(), at.extension.oid, AreOctetsBefore);
  const bool is_first = same.first->data == at.extension.oid.data;
  if (same.second - same.first > 1 && !is_first) at.Fault(at.extension.bytes);
}

namespace {

struct Nobody final : ShapeVisitor {};

// Lists without elements.
class EmptyListFinder final : public ShapeVisitor {
 public:
  explicit EmptyListFinder(const CheckCase& at) : at_(at) {}
  void EndList(const Shape&, ByteView content, size_t count) override {
    if (count == 0) at_.Fault({content.data, 0});
  }

 private:
  const CheckCase& at_;
};

bool ReadValue(const CheckCase& at, Leniency leniency, ShapeVisitor* visitor, Refusal* refusal) {
  const KnownExtension* const known = FindExtension(at.extension.oid);
  return known == nullptr ||
         ReadByShape(*known->shape, at.extension.value, leniency, visitor, refusal);
}

}  // namespace

void ValueEncoding(const CheckCase& at) {
  Nobody nobody;
  Refusal refusal;
  if (!ReadValue(at, Leniency::kDer, &nobody, &refusal)) at.Fault(at.extension.value, refusal);
}

void EmptyLists(const CheckCase& at) {
  Nobody nobody;
  EmptyListFinder finder(at);
  if (ReadValue(at, Leniency::kLenient, &nobody, nullptr)) {
    ReadValue(at, Leniency::kLenient, &finder, nullptr);
  }
}

void EmptySubjectNotCritical(const CheckCase& at) {
  const ByteView subject = at.document.view.subject();
  if (!at.extension.critical && ContentOf(subject, kSequence).empty()) {
    at.Fault(at.extension.bytes);
  }
}

// A value that is no BIT STRING says nothing of bits.
void NoUsage(const CheckCase& at) {
  const bool is_read = !ContentOf(at.extension.value, kBitString).empty();
  if (is_read && at.document.key_usage == 0) at.Fault(at.extension.bytes);
}

void CertSignWithoutAuthority(const CheckCase& at) {
  if (at.document.HasUsage(kKeyCertSign) && !at.document.is_authority) {
    at.Fault(at.extension.bytes);
  }
}

// The key is for certificates unless a key usage says otherwise.
void AuthorityNotCritical(const CheckCase& at) {
  const CheckedDocument& document = at.document;
  const bool signs = !document.has_key_usage || document.HasUsage(kKeyCertSign);
  if (document.is_authority && signs && !at.extension.critical) at.Fault(at.extension.bytes);
}

namespace {

// The value's element itself, or those of a SEQUENCE, with the identifier.
template <class Visit>
void ForEachPart(const CheckCase& at, uint8_t identifier, Visit visit) {
  const auto see = [&](const Element& element) {
    if (element.identifier == identifier) visit(element);
  };
  ForEachElement(at.extension.value, [&](const Element& whole) {
    see(whole);
    if (whole.identifier == kSequence) ForEachElement(whole.content, see);
  });
}

bool HasPathLength(const CheckCase& at) { return HasPart(ListOf(at), kInteger); }

}  // namespace

void PathLengthWithoutAuthority(const CheckCase& at) {
  if (HasPathLength(at) && !at.document.is_authority) at.Fault(at.extension.bytes);
}

void PathLengthWithoutCertSign(const CheckCase& at) {
  if (HasPathLength(at) && !at.document.HasUsage(kKeyCertSign)) at.Fault(at.extension.bytes);
}

void NegativeNumbers(const CheckCase& at) {
  for (const uint8_t identifier : {uint8_t{kInteger}, Context(0), Context(1)}) {
    ForEachPart(at, identifier, [&at](const Element& number) {
      if (!number.content.empty() && (number.content[0] & 0x80) != 0) at.Fault(number.bytes);
    });
  }
}

void NumberSize(const CheckCase& at) {
  constexpr size_t kMaxOctets = 20;
  const ByteView number = ContentOf(at.extension.value, kInteger);
  if (number.size > kMaxOctets) at.Fault(at.extension.value);
}

void OutsideAuthority(const CheckCase& at) {
  if (!at.document.is_authority) at.Fault(at.extension.bytes);
}

void EmptyStructure(const CheckCase& at) {
  const ByteView value = at.extension.value;
  if (value.size == 2 && value[0] == kSequence && value[1] == 0) at.Fault(value);
}

void NoKeyId(const CheckCase& at) {
  if (!HasPart(ListOf(at), Context(0))) at.Fault(at.extension.value);
}

void KeyIdHalves(const CheckCase& at) {
  const ByteView parts = ListOf(at);
  if (HasPart(parts, ContextConstructed(1)) != HasPart(parts, Context(2))) {
    at.Fault(at.extension.value);
  }
}

}  // namespace Ortholan::strict::looks
