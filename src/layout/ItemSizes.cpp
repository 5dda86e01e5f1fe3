#include "layout/ItemSizes.h"

#include "BaseGUIObject.h"
#include "layout/LayoutItem.h"
#include "layout/SizeLimits.h"

namespace Wexa {

namespace {

// A nested layout that stands aligned in its cell bears any size of the cell.
Size MaximumOf(LayoutItem& item) {
  Size maximum = item.MaximumSize();
  if (!item.AsLayout()) return maximum;
  if (item.IsAligned(Orientation::Horizontal)) maximum.SetWidth(LayoutSizeLimit());
  if (item.IsAligned(Orientation::Vertical)) maximum.SetHeight(LayoutSizeLimit());
  return maximum;
}

}  // namespace

ItemSizes ItemSizes::Of(LayoutItem& item) {
  BaseGUIObject* widget = item.Widget();
  const bool empty = item.IsEmpty();
  const bool isOther = item.AsLayout() || item.AsSpacerItem();
  ItemSizes sizes;
  sizes.minimum = item.MinimumSize();
  sizes.hint = item.SizeHint();
  sizes.maximum = MaximumOf(item);
  sizes.expanding = item.ExpandingDirections();
  if (widget) sizes.policy = widget->GetSizePolicy();
  sizes.empty = empty;
  sizes.ignored = empty && !isOther;
  sizes.hasHeightForWidth = item.HasHeightForWidth();
  return sizes;
}

}  // namespace Wexa
