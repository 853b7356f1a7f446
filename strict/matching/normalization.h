// Canonical normalisation of a short stretch of text: a character with the marks behind it, which
// are put in order and joined to it where there is a precomposed character (UAX #15, Form C).
//
//   Segment segment;
//   segment.Add('e');
//   segment.Add(0x301);
//   segment.Compose();  // U+00E9
#ifndef ORTHOLAN_STRICT_MATCHING_NORMALIZATION_H_
#define ORTHOLAN_STRICT_MATCHING_NORMALIZATION_H_

#include "bytes/small_buffer.h"

namespace Ortholan::strict {

class Segment {
 public:
  struct Point {
    uint32_t scalar;
    uint8_t combining_class;
    bool is_mark;
  };

  // Marks in a row that are sorted where they stand.
  static constexpr size_t kShortRun = 32;

  void Clear() { points_.clear(); }
  // Adds a character, taken apart as far as it goes. It is one that compatibility normalisation
  // leaves alone.
  void Add(uint32_t scalar);
  void Compose();

  size_t size() const { return points_.size(); }
  const Point* begin() const { return points_.begin(); }
  const Point* end() const { return points_.begin() + points_.size(); }

 private:
  void Reorder();

  SmallBuffer<Point, kShortRun> points_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_NORMALIZATION_H_
