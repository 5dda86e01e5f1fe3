// A layout's sizes as its widget asks for them: with the widget's own margins and the menu bar.

#include <algorithm>

#include "BaseGUIObject.h"
#include "MFC/BaseImpl.h"
#include "layout/Layout.h"
#include "layout/SizeLimits.h"
#include "layout/WidgetSizes.h"

namespace Wexa {

// What the widget's own margins add.
Size Layout::WidgetMargins() const {
  if (!isTopLevel_ || !parentWidget_) return {};
  const auto& margins = parentWidget_.Impl()->Links().contentsMargins;
  return {margins[0] + margins[2], margins[1] + margins[3]};
}

Size Layout::TotalSizeHint() {
  const Size margins = WidgetMargins();
  Size size = SizeHint();
  const int width = SaturatedSum(size.Width(), margins.Width());
  if (HasHeightForWidth()) size.SetHeight(HeightForWidth(width));
  const Size extra(margins.Width(), SaturatedSum(margins.Height(), MenuBarHeight(size.Width())));
  return SaturatedSum(size, extra);
}

Size Layout::TotalMinimumSize() {
  const Size margins = WidgetMargins();
  const Size size = MinimumSize();
  const int width = SaturatedSum(size.Width(), margins.Width());
  return SaturatedSum(size,
                      {margins.Width(), SaturatedSum(margins.Height(), MenuBarHeight(width))});
}

Size Layout::TotalMaximumSize() {
  const Size size = MaximumSize();
  if (!isTopLevel_) return size;
  const Size margins = WidgetMargins();
  const Size extra(margins.Width(), SaturatedSum(margins.Height(), MenuBarHeight(size.Width())));
  return BoundedByLayoutLimit(SaturatedSum(size, extra));
}

int Layout::TotalHeightForWidth(int width) {
  const int inner = SaturatedSum(width, -WidgetMargins().Width());
  return WithWidgetMargins(HeightForWidth(inner), width);
}

int Layout::TotalMinimumHeightForWidth(int width) {
  const int inner = SaturatedSum(width, -WidgetMargins().Width());
  return WithWidgetMargins(MinimumHeightForWidth(inner), width);
}

int Layout::WithWidgetMargins(int height, int width) {
  return SaturatedSum(height, SaturatedSum(WidgetMargins().Height(), MenuBarHeight(width)));
}

int Layout::MenuBarHeight(int width) {
  BaseGUIObject* menuBar = menuBar_.Widget();
  if (!menuBar || !menuBar->IsVisible()) return 0;
  const WidgetSizes sizes = WidgetSizes::Of(*menuBar);
  int height = menuBar_.Impl()->HeightForWidth(std::max(width, sizes.minimum.Width()));
  if (height == -1) height = sizes.hint.Height();
  height = std::max(std::min(height, sizes.maximum.Height()), sizes.SmartMinimum().Height());
  return height == -1 ? 0 : height;
}

}  // namespace Wexa
