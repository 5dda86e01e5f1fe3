#pragma once

#include <algorithm>

namespace Wexa {

// A value within bounds.
class ValueRange {
 public:
  void SetBounds(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    SetValue(value_);
  }
  void SetValue(int value) { value_ = std::clamp(value, minimum_, maximum_); }
  int Value() const { return value_; }
  // 0 at the minimum, 1 at the maximum.
  double Fraction() const {
    double span = static_cast<double>(maximum_) - minimum_;
    return span > 0 ? (static_cast<double>(value_) - minimum_) / span : 0;
  }

 private:
  int minimum_ = 0;
  int maximum_ = 100;
  int value_ = 0;
};

}  // namespace Wexa
