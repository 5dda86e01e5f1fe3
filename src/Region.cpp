#include "Region.h"

namespace Wexa {

namespace {

HRGN CreateShape(const CRect& r, RegionType type) {
  switch (type) {
    case RegionType::Rectangular: return CreateRectRgn(r.left, r.top, r.right, r.bottom);
    case RegionType::Elliptic: return CreateEllipticRgn(r.left, r.top, r.right, r.bottom);
  }
  return nullptr;
}

}  // namespace

Region::Region() : Region(Rect(), RegionType::Rectangular) {}

Region::Region(int x, int y, int width, int height, RegionType type)
    : Region(Rect(x, y, width, height), type) {}

Region::Region(Rect rect, RegionType type) : region_(CreateShape(rect.PlatformRect(), type)) {}

Region::Region(const CRgn& region) : region_(region) {}

bool Region::operator==(const Region& other) const {
  return EqualRgn(region_.GetSafeHandle(), other.region_.GetSafeHandle()) != FALSE;
}

Region Region::Interselected(const Region& other) const {
  return Combined(other, RGN_AND);
}
Region Region::United(const Region& other) const {
  return Combined(other, RGN_OR);
}
Region Region::Xored(const Region& other) const {
  return Combined(other, RGN_XOR);
}
Region Region::Substracted(const Region& other) const {
  return Combined(other, RGN_DIFF);
}

Region Region::Combined(const Region& other, int mode) const {
  Region result;
  CombineRgn(result.region_.GetSafeHandle(), region_.GetSafeHandle(), other.region_.GetSafeHandle(),
             mode);
  return result;
}

}  // namespace Wexa
