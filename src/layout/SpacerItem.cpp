#include "layout/SpacerItem.h"

#include "layout/Rescaling.h"
#include "layout/SizeLimits.h"

namespace Wexa {

Size SpacerItem::MinimumSize() {
  const bool shrinksX = (policy_.GetHorizontalPolicy() & SizePolicy::ShrinkBit) != 0;
  const bool shrinksY = (policy_.GetVerticalPolicy() & SizePolicy::ShrinkBit) != 0;
  return {shrinksX ? 0 : size_.Width(), shrinksY ? 0 : size_.Height()};
}

Size SpacerItem::MaximumSize() {
  const bool growsX = (policy_.GetHorizontalPolicy() & SizePolicy::GrowBit) != 0;
  const bool growsY = (policy_.GetVerticalPolicy() & SizePolicy::GrowBit) != 0;
  return {growsX ? LayoutSizeLimit() : size_.Width(), growsY ? LayoutSizeLimit() : size_.Height()};
}

void SpacerItem::Rescale(const Rescaling& rescale) {
  size_ = rescale(size_);
}

}  // namespace Wexa
