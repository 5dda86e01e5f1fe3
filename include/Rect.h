#pragma once

#include <algorithm>

#include "Point.h"
#include "Size.h"
#include "WexaExport.h"
#include "platform/Geometry.h"

namespace Wexa {

// A rectangle by its edges; right and bottom are outside. It need not be normalised: width and
// height may be negative. Edge arithmetic wraps around as 32-bit integers.
class WEXA_API Rect {
 public:
  constexpr Rect() = default;
  // The last two arguments are an extent, not a corner.
  constexpr Rect(int x, int y, int width, int height)
      : rect_(x, y, Sum(x, width), Sum(y, height)) {}
  constexpr Rect(const Point& topLeft, const Point& bottomRight)
      : rect_(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y) {}
  constexpr Rect(const POINT& topLeft, const POINT& bottomRight) : rect_(topLeft, bottomRight) {}
  constexpr Rect(const CRect& rect) : rect_(rect) {}

  // -- Edges and extent
  // ----------------------------------------------------------------------------

  constexpr int Left() const { return rect_.left; }
  constexpr int Top() const { return rect_.top; }
  constexpr int Right() const { return rect_.right; }
  constexpr int Bottom() const { return rect_.bottom; }
  // Each moves one edge and leaves the other three.
  constexpr void SetLeft(int left) { rect_.left = left; }
  constexpr void SetTop(int top) { rect_.top = top; }
  constexpr void SetRight(int right) { rect_.right = right; }
  constexpr void SetBottom(int bottom) { rect_.bottom = bottom; }

  constexpr int Width() const { return Difference(rect_.right, rect_.left); }
  constexpr int Height() const { return Difference(rect_.bottom, rect_.top); }
  constexpr Size GetSize() const { return {Width(), Height()}; }
  // Move the right or bottom edge.
  constexpr void SetWidth(int width) { rect_.right = Sum(rect_.left, width); }
  constexpr void SetHeight(int height) { rect_.bottom = Sum(rect_.top, height); }

  // -- Tests
  // ---------------------------------------------------------------------------------------

  constexpr bool IsEmpty() const { return rect_.IsEmpty(); }
  // All four edges are 0.
  constexpr bool IsNull() const { return *this == Rect(); }
  constexpr bool Contains(const Point& p) const {
    return p.x >= Left() && p.x < Right() && p.y >= Top() && p.y < Bottom();
  }
  constexpr bool Intersects(const Rect& other) const { return !Intersected(other).IsEmpty(); }
  constexpr bool operator==(const Rect& other) const { return rect_ == other.rect_; }

  // -- Changes in place
  // ----------------------------------------------------------------------------

  constexpr void SetNull() { rect_ = CRect(); }
  // Move the edges outwards.
  constexpr void Inflate(int dx, int dy) { Inflate(dx, dy, dx, dy); }
  constexpr void Inflate(int left, int top, int right, int bottom) {
    *this = MarginsAdded(left, top, right, bottom);
  }
  // Adds to each edge.
  constexpr void Adjust(int left, int top, int right, int bottom) {
    rect_ = {Sum(Left(), left), Sum(Top(), top), Sum(Right(), right), Sum(Bottom(), bottom)};
  }

  // -- Changed copies; this rectangle stays as it is
  // -----------------------------------------------

  constexpr Rect MarginsAdded(int left, int top, int right, int bottom) const {
    return CRect(Difference(Left(), left), Difference(Top(), top), Sum(Right(), right),
                 Sum(Bottom(), bottom));
  }
  constexpr Rect OffsetRect(int dx, int dy) const {
    return CRect(Sum(Left(), dx), Sum(Top(), dy), Sum(Right(), dx), Sum(Bottom(), dy));
  }
  // Halves are truncated toward zero.
  constexpr Point CenterPoint() const {
    return {Sum(Left(), Right()) / 2, Sum(Top(), Bottom()) / 2};
  }
  // With edges that lie the wrong way round swapped.
  constexpr Rect Normalize() const {
    return CRect(std::min(Left(), Right()), std::min(Top(), Bottom()), std::max(Left(), Right()),
                 std::max(Top(), Bottom()));
  }
  static constexpr Rect Normalize(const Rect& rect) { return rect.Normalize(); }

  // The all-zero rectangle when the two do not meet.
  constexpr Rect Intersected(const Rect& other) const { return rect_.Intersected(other.rect_); }
  // The smallest rectangle around both. Empty operands do not count; two of them give the all-zero
  // rectangle.
  constexpr Rect Union(const Rect& other) const {
    if (IsEmpty()) return other.IsEmpty() ? Rect() : other;
    if (other.IsEmpty()) return *this;
    return CRect(std::min(Left(), other.Left()), std::min(Top(), other.Top()),
                 std::max(Right(), other.Right()), std::max(Bottom(), other.Bottom()));
  }
  constexpr Rect operator|(const Rect& other) const { return Union(other); }
  static constexpr Rect Union(const Rect& a, const Rect& b) { return a.Union(b); }

  constexpr const CRect& PlatformRect() const { return rect_; }

 private:
  static constexpr int Sum(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
  }
  static constexpr int Difference(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
  }

  CRect rect_;
};

}  // namespace Wexa
