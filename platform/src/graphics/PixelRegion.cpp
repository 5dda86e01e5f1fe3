#include "graphics/PixelRegion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

static_assert(sizeof(RECT) == sizeof(pixman_box32_t) && offsetof(RECT, top) == 4 &&
              offsetof(pixman_box32_t, y1) == 4 && offsetof(RECT, right) == 8 &&
              offsetof(pixman_box32_t, x2) == 8);

// pixman reads its operands through pointers to non-const.
pixman_region32_t* Operand(const pixman_region32_t& region) {
  return const_cast<pixman_region32_t*>(&region);
}

pixman_region_overlap_t Overlap(const pixman_region32_t& region, const RECT& rect) {
  pixman_box32_t box{rect.left, rect.top, rect.right, rect.bottom};
  return pixman_region32_contains_rectangle(Operand(region), &box);
}

// The pixels of one row whose centres lie inside the ellipse.
RECT EllipseRow(const CRect& bounds, int y) {
  double dy = (2 * (y + 0.5) - bounds.top - bounds.bottom) / bounds.Height();
  double half = bounds.Width() / 2.0 * std::sqrt(std::max(0.0, 1 - dy * dy));
  double centre = (bounds.left + bounds.right) / 2.0;
  int left = static_cast<int>(std::ceil(centre - half - 0.5));
  int right = static_cast<int>(std::floor(centre + half - 0.5)) + 1;
  return {left, y, right, y + 1};
}

}  // namespace

PixelRegion::PixelRegion(const RECT& rect) {
  pixman_box32_t box{rect.left, rect.top, rect.right, rect.bottom};
  if (CRect(rect).IsEmpty()) {
    pixman_region32_init(&region_);
  } else {
    pixman_region32_init_with_extents(&region_, &box);
  }
}

PixelRegion::PixelRegion(const PixelRegion& other) : PixelRegion() {
  *this = other;
}

PixelRegion::PixelRegion(PixelRegion&& other) noexcept : PixelRegion() {
  std::swap(region_, other.region_);
}

PixelRegion& PixelRegion::operator=(const PixelRegion& other) {
  if (this != &other) pixman_region32_copy(&region_, Operand(other.region_));
  return *this;
}

PixelRegion& PixelRegion::operator=(PixelRegion&& other) noexcept {
  std::swap(region_, other.region_);
  return *this;
}

PixelRegion PixelRegion::Ellipse(const RECT& bounds) {
  std::vector<pixman_box32_t> rows;
  CRect box(bounds);
  if (box.IsEmpty()) return {};
  for (int y = box.top; y < box.bottom; ++y) {
    RECT row = EllipseRow(box, y);
    if (row.left < row.right) rows.push_back({row.left, row.top, row.right, row.bottom});
  }
  PixelRegion result;
  pixman_region32_fini(&result.region_);
  pixman_region32_init_rects(&result.region_, rows.data(), static_cast<int>(rows.size()));
  return result;
}

bool PixelRegion::IsEmpty() const {
  return !pixman_region32_not_empty(Operand(region_));
}

bool PixelRegion::IsRect() const {
  return Rects().size() == 1;
}

CRect PixelRegion::Bounds() const {
  const pixman_box32_t& box = region_.extents;
  return IsEmpty() ? CRect{} : CRect{box.x1, box.y1, box.x2, box.y2};
}

bool PixelRegion::Contains(POINT p) const {
  return pixman_region32_contains_point(Operand(region_), p.x, p.y, nullptr);
}

bool PixelRegion::Contains(const RECT& rect) const {
  return CRect(rect).IsEmpty() || Overlap(region_, rect) == PIXMAN_REGION_IN;
}

bool PixelRegion::Intersects(const RECT& rect) const {
  return !CRect(rect).IsEmpty() && Overlap(region_, rect) != PIXMAN_REGION_OUT;
}

std::span<const RECT> PixelRegion::Rects() const {
  int count = 0;
  auto* boxes = pixman_region32_rectangles(Operand(region_), &count);
  return {reinterpret_cast<const RECT*>(boxes), static_cast<std::size_t>(count)};
}

bool PixelRegion::operator==(const PixelRegion& other) const {
  if (IsEmpty() || other.IsEmpty()) return IsEmpty() == other.IsEmpty();  // wherever they are empty
  return pixman_region32_equal(Operand(region_), Operand(other.region_));
}

PixelRegion& PixelRegion::Unite(const RECT& rect) {
  return Unite(PixelRegion(rect));
}

PixelRegion& PixelRegion::Unite(const PixelRegion& other) {
  pixman_region32_union(&region_, &region_, Operand(other.region_));
  return *this;
}

PixelRegion& PixelRegion::Intersect(const RECT& rect) {
  return Intersect(PixelRegion(rect));
}

PixelRegion& PixelRegion::Intersect(const PixelRegion& other) {
  pixman_region32_intersect(&region_, &region_, Operand(other.region_));
  return *this;
}

PixelRegion& PixelRegion::Subtract(const RECT& rect) {
  return Subtract(PixelRegion(rect));
}

PixelRegion& PixelRegion::Subtract(const PixelRegion& other) {
  pixman_region32_subtract(&region_, &region_, Operand(other.region_));
  return *this;
}

PixelRegion& PixelRegion::Xor(const PixelRegion& other) {
  PixelRegion both = *this;
  both.Intersect(other);
  return Unite(other).Subtract(both);
}

PixelRegion& PixelRegion::Move(int dx, int dy) {
  pixman_region32_translate(&region_, dx, dy);
  return *this;
}

void PixelRegion::Clear() {
  pixman_region32_clear(&region_);
}
