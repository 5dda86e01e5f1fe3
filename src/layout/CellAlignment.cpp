#include "layout/CellAlignment.h"

#include <algorithm>

#include "layout/LayoutItem.h"
#include "layout/SizeLimits.h"

namespace Wexa {

namespace {

enum class Side { Near, Middle, Far };

int Offset(int room, int size, Side side) {
  const std::int64_t free = std::int64_t{room} - size;
  if (side == Side::Near) return 0;
  return Saturated(side == Side::Far ? free : free / 2);
}

Side AcrossSide(std::uint32_t alignment) {
  if ((alignment & LayoutItem::kAlignRight) != 0) return Side::Far;
  return (alignment & LayoutItem::kAlignHCenter) != 0 ? Side::Middle : Side::Near;
}

Side DownSide(std::uint32_t alignment) {
  if ((alignment & LayoutItem::kAlignTop) != 0) return Side::Near;
  return (alignment & LayoutItem::kAlignBottom) != 0 ? Side::Far : Side::Middle;
}

}  // namespace

Size SizeInCell(LayoutItem& item, Size cell, const Size& preferred) {
  if (item.IsAligned(Orientation::Horizontal))
    cell.SetWidth(std::min(cell.Width(), preferred.Width()));
  if (!item.IsAligned(Orientation::Vertical)) return cell;
  const bool adapts = item.HasHeightForWidth();
  const int height = adapts ? item.HeightForWidth(cell.Width()) : preferred.Height();
  cell.SetHeight(std::min(cell.Height(), height));
  return cell;
}

Rect AlignedInCell(const Rect& cell, const Size& size, std::uint32_t alignment) {
  const int x = Offset(cell.Width(), size.Width(), AcrossSide(alignment));
  const int y = Offset(cell.Height(), size.Height(), DownSide(alignment));
  return {SaturatedSum(cell.Left(), x), SaturatedSum(cell.Top(), y), size.Width(), size.Height()};
}

}  // namespace Wexa
