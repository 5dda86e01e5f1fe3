#pragma once

#include <cmath>

#include "Rect.h"
#include "Size.h"

namespace Wexa {

// Takes pixels of one resolution to those of another. At a scale of 1 or more, as all are, a metric
// in pixels comes of exactly one number of units: what was scaled before comes out as if it had
// been scaled for the other resolution at once.
class Rescaling {
 public:
  Rescaling(double from, double to) : from_(from), to_(to) {}

  bool IsNone() const { return from_ == to_; }

  // Negative lengths stand for defaults and stay.
  int Length(int pixels) const {
    constexpr double kNoise = 1e-6;
    if (pixels <= 0) return pixels;
    return static_cast<int>(std::ceil(pixels / from_ - kNoise) * to_ + kNoise);
  }
  int Place(int pixels) const { return pixels < 0 ? -Length(-pixels) : Length(pixels); }

  Size operator()(const Size& size) const { return {Length(size.Width()), Length(size.Height())}; }
  Rect operator()(const Rect& rect) const {
    return Rect(Point(Place(rect.Left()), Place(rect.Top())),
                Point(Place(rect.Right()), Place(rect.Bottom())));
  }

 private:
  double from_;
  double to_;
};

}  // namespace Wexa
