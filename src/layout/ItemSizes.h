#pragma once

#include "Orientation.h"
#include "Size.h"
#include "SizePolicy.h"

namespace Wexa {

class LayoutItem;

// What box and grid read of an item before they share out space.
struct ItemSizes {
  Size minimum;
  Size hint;
  Size maximum;
  Orientation expanding = Orientation::None;
  SizePolicy policy;  // the widget's; without stretch for other items
  bool empty = true;
  bool ignored = false;  // a widget that is not there
  bool hasHeightForWidth = false;

  static ItemSizes Of(LayoutItem& item);
};

}  // namespace Wexa
