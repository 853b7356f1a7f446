#include "strict/extensions/tls_reader.h"

#include <ortholan/strict/extensions.h>

#include "strict/extensions/moment.h"

namespace Ortholan::strict {
namespace {

class TlsWalk {
 public:
  TlsWalk(ShapeVisitor* visitor, Refusal* refusal) : visitor_(visitor), refusal_(refusal) {}

  // Takes one value from the front.
  bool Read(const Shape& shape, ByteView* in) {
    const bool has_parts = shape.kind == ShapeKind::kTlsRecord || shape.kind == ShapeKind::kTlsList;
    return has_parts ? ReadParts(shape, in) : ReadLeaf(shape, in);
  }
  // An element of a list, behind its size.
  bool ReadSized(const Shape& shape, ByteView* in, ByteView* bytes) {
    return TakeVector(in, bytes) && ReadElement(shape, *bytes);
  }
  bool End(ByteView rest) { return rest.empty() || Fail(ORTHOLAN_REASON_TLS_SIZE, rest); }

 private:
  bool Fail(ortholan_reason reason, ByteView at) {
    return Refuse(refusal_, reason, at.data, at.size);
  }

  bool Take(ByteView* in, size_t count, ByteView* part) {
    if (in->size < count) return Fail(ORTHOLAN_REASON_TLS_SIZE, *in);
    *part = in->First(count);
    *in = in->From(count);
    return true;
  }
  bool TakeVector(ByteView* in, ByteView* part) {
    return Take(in, kTlsSizeOctets, part) && Take(in, static_cast<size_t>(TlsNumber(*part)), part);
  }

  // Most values are leaves, which need no frame of their own.
  [[gnu::noinline]] bool ReadParts(const Shape& shape, ByteView* in) {
    if (shape.kind == ShapeKind::kTlsRecord) return ReadRecord(shape, in);
    ByteView part;
    return TakeVector(in, &part) && ReadList(shape, part);
  }

  bool ReadLeaf(const Shape& shape, ByteView* in) {
    ByteView part;
    const bool is_taken =
        shape.kind == ShapeKind::kTlsVector ? TakeVector(in, &part) : Take(in, shape.number, &part);
    if (!is_taken) return false;
    if (shape.kind == ShapeKind::kTlsTime && TlsNumber(part) > kLastMillisecond) {
      return Fail(ORTHOLAN_REASON_TIME, part);
    }
    return Tell(shape, part);
  }

  bool Tell(const Shape& shape, ByteView part) {
    if (visitor_ != nullptr) visitor_->Leaf(shape, {0, part, part});
    return true;
  }

  bool ReadList(const Shape& shape, ByteView content) {
    size_t count = 0;
    ShapeVisitor* const listener = visitor_;
    if (listener != nullptr && !listener->BeginList(shape)) visitor_ = nullptr;
    for (ByteView rest = content, element; !rest.empty(); ++count) {
      if (!ReadSized(*shape.element, &rest, &element)) return false;
    }
    visitor_ = listener;
    if (listener != nullptr) listener->EndList(shape, content, count);
    return true;
  }

  // A structure of another version is not known (RFC 6962 3.2): its octets stay what they are.
  bool ReadElement(const Shape& shape, ByteView element) {
    if (!element.empty() && element[0] != 0) return Tell(kAnyShape, element);
    return Read(shape, &element) && End(element);
  }

  bool ReadRecord(const Shape& shape, ByteView* in) {
    if (visitor_ != nullptr) visitor_->BeginFields(shape);
    for (const Field& field : shape.fields) {
      if (visitor_ != nullptr) visitor_->BeginField(field, {});
      if (!Read(*field.shape, in)) return false;
    }
    if (visitor_ != nullptr) visitor_->EndFields(shape);
    return true;
  }

  ShapeVisitor* visitor_;
  Refusal* refusal_;
};

}  // namespace

bool ReadTls(const Shape& shape, ByteView in, ShapeVisitor* visitor, Refusal* refusal) {
  TlsWalk walk(visitor, refusal);
  return walk.Read(shape, &in) && walk.End(in);
}

bool ReadTlsElement(const Shape& shape, ByteView* list, ByteView* bytes, ShapeVisitor* visitor) {
  return TlsWalk(visitor, nullptr).ReadSized(shape, list, bytes);
}

}  // namespace Ortholan::strict
