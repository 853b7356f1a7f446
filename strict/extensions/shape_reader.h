// Reads octets by a shape: everything that DER and the shape ask for is checked, in one walk, and
// told to a visitor in the order of the encoding. Nothing is allocated; the depth is that of the
// shape, and of values of any type 32.
//
//   struct Count : ShapeVisitor {
//     void Leaf(const Shape&, const Element&) override { ++leaves; }
//   };
//   if (!ReadByShape(shape, value, Leniency::kDer, &count, &refusal)) ...
#ifndef ORTHOLAN_STRICT_EXTENSIONS_SHAPE_READER_H_
#define ORTHOLAN_STRICT_EXTENSIONS_SHAPE_READER_H_

#include "strict/der/refusal.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// What a walk meets. What it was told before a refusal is void.
class ShapeVisitor {
 public:
  virtual void BeginFields(const Shape&) {}  // SEQUENCE, CHOICE, TLS record
  virtual void EndFields(const Shape&) {}
  // Whether the elements are to be told.
  virtual bool BeginList(const Shape&) { return true; }
  // `content` holds `count` elements one behind the other.
  virtual void EndList(const Shape&, ByteView content, size_t count) {
    static_cast<void>(content), static_cast<void>(count);
  }
  // What comes next is the value of the field, which stands there with its tag as `bytes`; a field
  // of a TLS record has none. Whether the value is to be told.
  virtual bool BeginField(const Field&, ByteView bytes) {
    static_cast<void>(bytes);
    return true;
  }
  // The field has its default, which DefaultOf tells.
  virtual void Default(const Field&) {}
  // A value without parts. Of a type that nobody knows the shape is kAny.
  virtual void Leaf(const Shape&, const Element&) {}

 protected:
  ~ShapeVisitor() = default;
};

// The default of a field as the value that it stands for.
inline Element DefaultOf(const Field& field) {
  return {IdentifierOf(*field.shape), {&field.fallback, 1}, {}};
}

// Reads one value that is the whole of `der`. The visitor may be null.
bool ReadByShape(const Shape& shape, ByteView der, Leniency leniency, ShapeVisitor* visitor,
                 Refusal* refusal);

// The same where nobody listens.
inline bool CheckByShape(const Shape& shape, ByteView der, Leniency leniency, Refusal* refusal) {
  return ReadByShape(shape, der, leniency, nullptr, refusal);
}

// A value of any type.
extern const Shape kAnyShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_SHAPE_READER_H_
