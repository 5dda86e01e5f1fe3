#pragma once

#include <algorithm>
#include <cstdint>

namespace Wexa {

// A value within bounds, with the steps by which it is moved.
class ValueRange {
 public:
  // A maximum below the minimum counts as the minimum. True when the value had to change.
  bool SetBounds(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    return SetValue(value_);
  }
  // True when the value changed.
  bool SetValue(std::int64_t value) {
    int kept = static_cast<int>(std::clamp<std::int64_t>(value, minimum_, maximum_));
    bool changed = kept != value_;
    value_ = kept;
    return changed;
  }
  // At least 1 each.
  void SetSteps(int single, int page) {
    singleStep_ = std::max(single, 1);
    pageStep_ = std::max(page, 1);
  }

  int Value() const { return value_; }
  int Minimum() const { return minimum_; }
  int Maximum() const { return maximum_; }
  int SingleStep() const { return singleStep_; }
  int PageStep() const { return pageStep_; }
  std::int64_t Span() const { return static_cast<std::int64_t>(maximum_) - minimum_; }
  std::int64_t After(int steps, int step) const {
    return value_ + static_cast<std::int64_t>(steps) * step;
  }

  // 0 at the minimum, 1 at the maximum.
  double Fraction() const {
    return Span() > 0 ? static_cast<double>(static_cast<std::int64_t>(value_) - minimum_) /
                            static_cast<double>(Span())
                      : 0;
  }
  // Where the value lies on a way of this many pixels, and the value that lies nearest to a place.
  int PlaceOn(int pixels) const { return static_cast<int>(Fraction() * pixels + 0.5); }
  std::int64_t ValueAt(int place, int pixels) const {
    if (pixels <= 0) return minimum_;
    double part = std::clamp(static_cast<double>(place) / pixels, 0.0, 1.0);
    return minimum_ + static_cast<std::int64_t>(part * static_cast<double>(Span()) + 0.5);
  }

 private:
  int minimum_ = 0;
  int maximum_ = 100;
  int value_ = 0;
  int singleStep_ = 1;
  int pageStep_ = 10;
};

}  // namespace Wexa
