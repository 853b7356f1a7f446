#include "strict/names/name_writer.h"

#include <algorithm>

#include "bytes/der_length.h"
#include "strict/der/reader.h"
#include "strict/der/set_order.h"

namespace Ortholan::strict {
namespace {

// Reverses the order of elements: all octets, then those of each element back.
void ReverseElements(uint8_t* elements, size_t size) {
  uint8_t* const end = elements + size;
  Reader reader({elements, size}, Leniency::kLenient, nullptr);
  for (Element each; reader.Read(&each);) {
    uint8_t* const first = end - reader.rest().size - each.bytes.size;
    std::reverse(first, first + each.bytes.size);
  }
  std::reverse(elements, end);
}

// Those of X.520 have three octets, which take no call to be copied.
uint8_t* WriteType(uint8_t* out, ByteView type) {
  constexpr size_t kOfX520 = 3;
  return type.size == kOfX520 ? WriteBytes(out, type.First(kOfX520)) : WriteBytes(out, type);
}

}  // namespace

void NameWriter::BeginRdn() {
  EndRdn();
  in_rdn_ = true;
  rdn_end_ = out_->size();
}

void NameWriter::EndRdn() {
  if (!in_rdn_) return;
  in_rdn_ = false;
  const size_t size = out_->size() - rdn_end_;
  if (attributes_ > 1 && out_->fits()) SortSetOf(out_->front(), size);
  attributes_ = 0;
  out_->PutHeader(kSet, size);
}

void NameWriter::EndAttribute(uint8_t identifier, ByteView type) {
  const size_t content = out_->size() - attribute_end_;
  const size_t size = 4 + type.size + content;  // without the header of the SEQUENCE
  if (size >= kLongForm) {
    out_->PutHeader(identifier, content);
    return EndAttribute(type);
  }
  // Nearly always all lengths are short: the three headers are put at once.
  ++attributes_;
  uint8_t* place = out_->Take(2 + size - content);
  if (place == nullptr) return;
  place = WriteHeader(place, kSequence, size);
  place = WriteHeader(place, kOid, type.size);
  place = WriteType(place, type);
  WriteHeader(place, identifier, content);
}

void NameWriter::EndAttribute(ByteView type) {
  out_->Put(type);
  out_->PutHeader(kOid, type.size);
  out_->PutHeader(kSequence, out_->size() - attribute_end_);
  ++attributes_;
}

void NameWriter::PutAttribute(ByteView bytes) {
  out_->Put(bytes);
  ++attributes_;
}

void NameWriter::PutRdn(ByteView bytes) {
  EndRdn();
  out_->Put(bytes);
}

void NameWriter::End(TextOrder order) {
  EndRdn();
  const size_t size = out_->size();
  if (order == TextOrder::kAsEncoded && out_->fits()) ReverseElements(out_->front(), size);
  out_->PutHeader(kSequence, size);
}

}  // namespace Ortholan::strict
