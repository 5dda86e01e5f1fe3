#include "platform/Geometry.h"

#include <algorithm>

namespace {

// Coordinates wrap around instead of overflowing.
LONG Sum(LONG a, LONG b) {
  return static_cast<LONG>(static_cast<UINT>(a) + static_cast<UINT>(b));
}
LONG Difference(LONG a, LONG b) {
  return static_cast<LONG>(static_cast<UINT>(a) - static_cast<UINT>(b));
}

}  // namespace

BOOL SetRect(RECT* rect, int left, int top, int right, int bottom) {
  if (!rect) return FALSE;
  *rect = {left, top, right, bottom};
  return TRUE;
}

BOOL SetRectEmpty(RECT* rect) {
  return SetRect(rect, 0, 0, 0, 0);
}

BOOL IsRectEmpty(const RECT* rect) {
  return !rect || CRect(*rect).IsEmpty();
}

BOOL EqualRect(const RECT* a, const RECT* b) {
  return a && b && CRect(*a) == CRect(*b);
}

BOOL PtInRect(const RECT* rect, POINT point) {
  return rect && CRect(*rect).Contains(point);
}

BOOL InflateRect(RECT* rect, int dx, int dy) {
  if (!rect) return FALSE;
  *rect = {Difference(rect->left, dx), Difference(rect->top, dy), Sum(rect->right, dx),
           Sum(rect->bottom, dy)};
  return TRUE;
}

BOOL OffsetRect(RECT* rect, int dx, int dy) {
  if (!rect) return FALSE;
  *rect = {Sum(rect->left, dx), Sum(rect->top, dy), Sum(rect->right, dx), Sum(rect->bottom, dy)};
  return TRUE;
}

BOOL IntersectRect(RECT* result, const RECT* a, const RECT* b) {
  if (!result) return FALSE;
  bool operands = a && b && !CRect(*a).IsEmpty() && !CRect(*b).IsEmpty();
  CRect both = operands ? CRect(*a).Intersected(*b) : CRect{};
  *result = both;
  return !both.IsEmpty();
}

BOOL UnionRect(RECT* result, const RECT* a, const RECT* b) {
  if (!result) return FALSE;
  if (IsRectEmpty(a) && IsRectEmpty(b)) return SetRectEmpty(result), FALSE;
  RECT first = IsRectEmpty(a) ? *b : *a;
  RECT second = IsRectEmpty(b) ? *a : *b;
  *result = {std::min(first.left, second.left), std::min(first.top, second.top),
             std::max(first.right, second.right), std::max(first.bottom, second.bottom)};
  return TRUE;
}
