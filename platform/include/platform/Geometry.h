#pragma once

// Points, sizes and rectangles of the class layer: the records of Types.h with operations.

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

BOOL SetRect(RECT* rect, int left, int top, int right, int bottom);
BOOL SetRectEmpty(RECT* rect);
BOOL IsRectEmpty(const RECT* rect);
BOOL EqualRect(const RECT* a, const RECT* b);
BOOL PtInRect(const RECT* rect, POINT point);
BOOL InflateRect(RECT* rect, int dx, int dy);
BOOL OffsetRect(RECT* rect, int dx, int dy);
// An empty intersection gives FALSE and the all-zero rectangle.
BOOL IntersectRect(RECT* result, const RECT* a, const RECT* b);
// Empty operands are ignored; two of them give FALSE and the all-zero rectangle.
BOOL UnionRect(RECT* result, const RECT* a, const RECT* b);

class CPoint : public POINT {
 public:
  constexpr CPoint() : POINT{0, 0} {}
  constexpr CPoint(int x_, int y_) : POINT{x_, y_} {}
  constexpr CPoint(const POINT& p) : POINT(p) {}
};

class CSize : public SIZE {
 public:
  constexpr CSize() : SIZE{0, 0} {}
  constexpr CSize(int width, int height) : SIZE{width, height} {}
  constexpr CSize(const SIZE& s) : SIZE(s) {}
};

class CRect : public RECT {
 public:
  constexpr CRect() : RECT{0, 0, 0, 0} {}
  constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
  constexpr CRect(const RECT& r) : RECT(r) {}
  constexpr CRect(const POINT& topLeft, const POINT& bottomRight)
      : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

  constexpr int Width() const { return right - left; }
  constexpr int Height() const { return bottom - top; }
  constexpr CSize Size() const { return {Width(), Height()}; }
  constexpr CPoint TopLeft() const { return {left, top}; }
  constexpr bool IsEmpty() const { return right <= left || bottom <= top; }
  constexpr bool Contains(const POINT& p) const {
    return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
  }
  constexpr bool Contains(const RECT& r) const {
    return r.left >= left && r.right <= right && r.top >= top && r.bottom <= bottom;
  }
  constexpr CRect Moved(int dx, int dy) const {
    return {left + dx, top + dy, right + dx, bottom + dy};
  }
  constexpr CRect Shrunk(int dx, int dy) const {
    return {left + dx, top + dy, right - dx, bottom - dy};
  }
  constexpr CRect Intersected(const RECT& r) const {
    CRect both{left > r.left ? left : r.left, top > r.top ? top : r.top,
               right < r.right ? right : r.right, bottom < r.bottom ? bottom : r.bottom};
    return both.IsEmpty() ? CRect{} : both;
  }
  constexpr bool operator==(const CRect& r) const {
    return left == r.left && top == r.top && right == r.right && bottom == r.bottom;
  }
};

#pragma GCC visibility pop
