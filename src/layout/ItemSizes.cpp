#include "layout/ItemSizes.h"

#include "BaseGUIObject.h"
#include "layout/LayoutItem.h"

namespace Wexa {

ItemSizes ItemSizes::Of(LayoutItem& item) {
  BaseGUIObject* widget = item.Widget();
  const bool empty = item.IsEmpty();
  const bool isOther = item.AsLayout() || item.AsSpacerItem();
  ItemSizes sizes;
  sizes.minimum = item.MinimumSize();
  sizes.hint = item.SizeHint();
  sizes.maximum = item.MaximumSize();
  sizes.expanding = item.ExpandingDirections();
  if (widget) sizes.policy = widget->GetSizePolicy();
  sizes.empty = empty;
  sizes.ignored = empty && !isOther;
  sizes.hasHeightForWidth = item.HasHeightForWidth();
  return sizes;
}

}  // namespace Wexa
