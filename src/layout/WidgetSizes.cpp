#include "layout/WidgetSizes.h"

#include <algorithm>

#include "BaseGUIObject.h"
#include "layout/Axis.h"
#include "layout/LayoutItem.h"
#include "layout/SizeLimits.h"

namespace Wexa {

namespace {

int SmartMinimumAlong(Orientation axis, const WidgetSizes& sizes) {
  const auto policy = PolicyAlong(axis, sizes.policy);
  const int minimumHint = Along(axis, sizes.minimumHint);
  const int minimum = Along(axis, sizes.minimum);
  int value = 0;
  if (policy != SizePolicy::Ignored) {
    const bool shrinks = (policy & SizePolicy::ShrinkBit) != 0;
    value = shrinks ? minimumHint : std::max(Along(axis, sizes.hint), minimumHint);
  }
  value = std::min(value, Along(axis, sizes.maximum));
  if (minimum > 0) value = minimum;
  return std::max(value, 0);
}

int SmartMaximumAlong(Orientation axis, const WidgetSizes& sizes, bool aligned) {
  if (aligned) return LayoutSizeLimit();
  const int maximum = Along(axis, sizes.maximum);
  const bool grows = (PolicyAlong(axis, sizes.policy) & SizePolicy::GrowBit) != 0;
  if (maximum != WidgetSizeLimit() || grows) return maximum;
  return std::max(
      {Along(axis, sizes.hint), Along(axis, sizes.minimumHint), Along(axis, sizes.minimum)});
}

}  // namespace

WidgetSizes WidgetSizes::Of(BaseGUIObject& widget) {
  return {widget.IdealSize(), widget.MinimumIdealSize(), widget.MinimumSize(), widget.MaximumSize(),
          widget.GetSizePolicy()};
}

Size WidgetSizes::Preferred() const {
  return hint.GetInflated(minimumHint).GetDeflated(maximum).GetInflated(minimum);
}

Size WidgetSizes::SmartHint() const {
  Size size = Preferred();
  if (policy.GetHorizontalPolicy() == SizePolicy::Ignored) size.SetWidth(0);
  if (policy.GetVerticalPolicy() == SizePolicy::Ignored) size.SetHeight(0);
  return size;
}

Size WidgetSizes::SmartMinimum() const {
  return {SmartMinimumAlong(Orientation::Horizontal, *this),
          SmartMinimumAlong(Orientation::Vertical, *this)};
}

Size WidgetSizes::SmartMaximum(std::uint32_t alignment) const {
  const bool alignedX = (alignment & LayoutItem::kHorizontalAlignment) != 0;
  const bool alignedY = (alignment & LayoutItem::kVerticalAlignment) != 0;
  return {SmartMaximumAlong(Orientation::Horizontal, *this, alignedX),
          SmartMaximumAlong(Orientation::Vertical, *this, alignedY)};
}

}  // namespace Wexa
