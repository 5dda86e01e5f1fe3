#include "layout/WidgetItem.h"

#include <algorithm>

#include "BaseGUIObject.h"
#include "MFC/BaseImpl.h"
#include "layout/Axis.h"
#include "layout/CellAlignment.h"
#include "layout/Layout.h"
#include "layout/SizeLimits.h"
#include "layout/WidgetSizes.h"
#include "layout/WidgetTree.h"

namespace Wexa {

namespace {

// A widget whose policy lets it grow expands where its own layout does.
Orientation InnerExpanding(const SizePolicy& policy, Layout& layout) {
  const auto inner = layout.ExpandingDirections();
  auto growing = Orientation::None;
  for (auto axis : {Orientation::Horizontal, Orientation::Vertical}) {
    if ((PolicyAlong(axis, policy) & SizePolicy::GrowBit) != 0) growing |= inner & axis;
  }
  return growing;
}

bool IsSizedComboBox(BaseGUIObject& widget) {
  return widget.Type() == BaseGUIObject::GuiType::ComboBox && widget.MinimumSize().Height() != 0;
}

// What lies above or left of the parent's corner is cut off.
Rect WithoutNegativePart(const Rect& place) {
  return RectFromEdges(std::max(place.Left(), 0), std::max(place.Top(), 0), place.Right(),
                       place.Bottom());
}

}  // namespace

bool WidgetItem::IsEmpty() {
  BaseGUIObject* widget = link_.Widget();
  return !widget || widget->Type() == BaseGUIObject::GuiType::Dialog || !widget->IsVisible();
}

WidgetItem::WantedSizes WidgetItem::Sizes() {
  const auto sizes = WidgetSizes::Of(*link_.Widget());
  return {sizes.Preferred(), sizes.SmartHint(), sizes.SmartMinimum(),
          sizes.SmartMaximum(Alignment())};
}

Orientation WidgetItem::ExpandingDirections() {
  if (IsEmpty()) return Orientation::None;
  const SizePolicy policy = link_.Widget()->GetSizePolicy();
  Layout* layout = link_.Impl()->Links().layout;
  const auto own = policy.ExpandingDirections();
  return layout ? own | InnerExpanding(policy, *layout) : own;
}

// Moving may destroy the widget, its layout and this item, or close its window.
void WidgetItem::SetGeometry(const Rect& rect) {
  if (IsEmpty()) return;
  const WidgetLink link = link_;
  const bool isSizedComboBox = IsSizedComboBox(*link.Widget());
  const WantedSizes sizes = Sizes();
  const Size size = SizeInCell(*this, rect.GetSize().GetDeflated(sizes.maximum), sizes.preferred);
  const Rect place = WithoutNegativePart(AlignedInCell(rect, size, Alignment()));
  const int scrolled = isSizedComboBox ? 0 : link.Impl()->ParentScrollOffset();
  const Rect before = link.Impl()->LayoutGeometry();

  link.Widget()->MoveWindow(place.Left(), SaturatedSum(place.Top(), -scrolled), place.Width(),
                            place.Height(), true);
  if (link && isSizedComboBox) link.Impl()->RefreshDropDownSelection();
  const bool moved = link && link.Impl()->LayoutGeometry() != before;
  if (moved && link.Impl()->GetHandle()) link.Widget()->Update();
}

Rect WidgetItem::Geometry() {
  return link_ ? link_.Impl()->LayoutGeometry() : Rect();
}

bool WidgetItem::HasHeightForWidth() {
  return !IsEmpty() && link_.Impl()->HasHeightForWidth();
}

int WidgetItem::HeightForWidth(int width) {
  if (IsEmpty()) return -1;
  Layout* layout = link_.Impl()->Links().layout;
  return WithinLimits(layout ? layout->TotalHeightForWidth(width)
                             : link_.Impl()->HeightForWidth(width));
}

int WidgetItem::MinimumHeightForWidth(int width) {
  Layout* layout = IsEmpty() ? nullptr : link_.Impl()->Links().layout;
  return layout ? WithinLimits(layout->TotalMinimumHeightForWidth(width)) : HeightForWidth(width);
}

int WidgetItem::WithinLimits(int height) const {
  BaseGUIObject& widget = *link_.Widget();
  return std::max(
      {std::min(height, widget.MaximumSize().Height()), widget.MinimumSize().Height(), 0});
}

// -- The cache ------------------------------------------------------------------------------------

std::optional<int> HeightForWidthCache::Find(int width) {
  for (int i = 0; i < count_; ++i) {
    const int index = (first_ + i) % kCapacity;
    const Entry& entry = entries_[static_cast<std::size_t>(index)];
    if (entry.width != width) continue;
    if (count_ == kCapacity) first_ = index;
    return entry.height;
  }
  return std::nullopt;
}

void HeightForWidthCache::Store(int width, int height) {
  count_ = std::min(count_ + 1, kCapacity);
  first_ = (first_ + kCapacity - 1) % kCapacity;
  entries_[static_cast<std::size_t>(first_)] = {width, height};
}

WidgetItemV2::WidgetItemV2(Layout* owner, BaseGUIObject* widget)
    : WidgetItem(widget), owner_(owner) {
  if (Link() && !Link().Impl()->Links().layoutItem) Link().Impl()->Links().layoutItem = this;
}

WidgetItemV2::~WidgetItemV2() {
  if (IsRegistered()) Link().Impl()->Links().layoutItem = nullptr;
}

bool WidgetItemV2::IsRegistered() const {
  return Link() && Link().Impl()->Links().layoutItem == this;
}

WidgetItem::WantedSizes WidgetItemV2::Sizes() {
  if (!sizes_ || !IsRegistered()) sizes_ = WidgetItem::Sizes();
  return *sizes_;
}

int WidgetItemV2::HeightForWidth(int width) {
  if (!IsRegistered()) return WidgetItem::HeightForWidth(width);
  if (IsEmpty()) return -1;
  if (const auto known = heights_.Find(width)) return *known;
  const int height = WidgetItem::HeightForWidth(width);
  heights_.Store(width, height);
  return height;
}

void WidgetItemV2::ForgetSizes() {
  sizes_.reset();
  heights_.Clear();
}

void WidgetItemV2::InvalidateSizeCache() {
  ForgetSizes();
  if (!owner_) return;
  owner_->MarkDirtyUpward();
  ForgetSizesFrom(owner_->ParentWidget());
}

}  // namespace Wexa
