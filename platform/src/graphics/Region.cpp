#include "platform/Region.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "graphics/HandleTable.h"
#include "graphics/PixelRegion.h"
#include "graphics/RegionTable.h"

namespace {

constexpr int kEllipseLimit = 1 << 20;

using RegionTable = HandleTable<HRGN, PixelRegion>;

RegionTable& Regions() {
  static RegionTable& table = *new RegionTable;
  return table;
}

HRGN Add(PixelRegion region) {
  return Regions().Add(std::make_unique<PixelRegion>(std::move(region)));
}

int Kind(const PixelRegion& region) {
  if (region.IsEmpty()) return NULLREGION;
  return region.IsRect() ? SIMPLEREGION : COMPLEXREGION;
}

// A rectangle's corners may be given in any order.
CRect Ordered(int left, int top, int right, int bottom) {
  return {std::min(left, right), std::min(top, bottom), std::max(left, right),
          std::max(top, bottom)};
}

// Keeps the number of an ellipse's rows within bounds.
int Limited(int coordinate) {
  return std::clamp(coordinate, -kEllipseLimit, kEllipseLimit);
}

bool Combine(PixelRegion& area, const PixelRegion& other, int mode) {
  switch (mode) {
    case RGN_AND: area.Intersect(other); return true;
    case RGN_OR: area.Unite(other); return true;
    case RGN_XOR: area.Xor(other); return true;
    case RGN_DIFF: area.Subtract(other); return true;
    default: return false;
  }
}

}  // namespace

const PixelRegion* GetPixelRegion(HRGN region) {
  return Regions().Find(region);
}

HRGN CreateRectRgn(int left, int top, int right, int bottom) {
  return Add(PixelRegion(Ordered(left, top, right, bottom)));
}

HRGN CreateEllipticRgn(int left, int top, int right, int bottom) {
  return Add(
      PixelRegion::Ellipse(Ordered(Limited(left), Limited(top), Limited(right), Limited(bottom))));
}

int CombineRgn(HRGN result, HRGN a, HRGN b, int mode) {
  PixelRegion* target = Regions().Find(result);
  const PixelRegion* first = Regions().Find(a);
  const PixelRegion* second = Regions().Find(b);
  if (!target || !first || (!second && mode != RGN_COPY)) return RGN_ERROR;
  PixelRegion area = *first;
  if (mode != RGN_COPY && !Combine(area, *second, mode)) return RGN_ERROR;
  *target = std::move(area);
  return Kind(*target);
}

BOOL EqualRgn(HRGN a, HRGN b) {
  const PixelRegion* first = Regions().Find(a);
  const PixelRegion* second = Regions().Find(b);
  return first && second && *first == *second;
}

BOOL PtInRegion(HRGN region, int x, int y) {
  const PixelRegion* area = Regions().Find(region);
  return area && area->Contains(POINT{x, y});
}

int GetRgnBox(HRGN region, RECT* box) {
  const PixelRegion* area = Regions().Find(region);
  if (!area || !box) return RGN_ERROR;
  *box = area->Bounds();
  return Kind(*area);
}

BOOL DeleteRgn(HRGN region) {
  return Regions().Remove(region) != nullptr;
}

CRgn::CRgn(const CRgn& other) {
  if (const PixelRegion* area = Regions().Find(other.region_)) region_ = Add(*area);
}

CRgn& CRgn::operator=(const CRgn& other) {
  if (this != &other) *this = CRgn(other);
  return *this;
}

CRgn& CRgn::operator=(CRgn&& other) noexcept {
  if (this == &other) return *this;
  DeleteObject();
  region_ = other.Detach();
  return *this;
}

HRGN CRgn::Detach() {
  return std::exchange(region_, nullptr);
}

void CRgn::DeleteObject() {
  DeleteRgn(Detach());
}
