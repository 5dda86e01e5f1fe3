// When a layout places its items: what asks for a pass, and what the pass does.

#include "BaseGUIObject.h"
#include "Event.h"
#include "MFC/BaseImpl.h"
#include "layout/ChildArranger.h"
#include "layout/Layout.h"
#include "layout/SizeLimits.h"
#include "layout/WidgetItem.h"
#include "layout/WidgetTree.h"

namespace Wexa {

namespace {

bool IsA(const BaseGUIObject& widget, BaseGUIObject::GuiType type) {
  return widget.Type() == type;
}

// The layout that one pass places together with the item's own: a nested one, or that of a child
// dialog.
Layout* LayoutInside(LayoutItem& item) {
  if (Layout* nested = item.AsLayout()) return nested;
  BaseGUIObject* widget = item.Widget();
  return widget && IsA(*widget, BaseGUIObject::GuiType::ChildDialog) ? LayoutOf(widget) : nullptr;
}

// Sizes that a layout sets do not count as set by the host.
class ExplicitAxesKeeper {
 public:
  explicit ExplicitAxesKeeper(const WidgetLink& link)
      : link_(link),
        minimum_(link.Impl()->Links().explicitMinimum),
        maximum_(link.Impl()->Links().explicitMaximum) {}
  ~ExplicitAxesKeeper() {
    if (!link_) return;
    link_.Impl()->Links().explicitMinimum = minimum_;
    link_.Impl()->Links().explicitMaximum = maximum_;
  }
  ExplicitAxesKeeper(const ExplicitAxesKeeper&) = delete;
  ExplicitAxesKeeper& operator=(const ExplicitAxesKeeper&) = delete;

 private:
  WidgetLink link_;
  ExplicitAxes minimum_;
  ExplicitAxes maximum_;
};

}  // namespace

// -- Asking for a pass ----------------------------------------------------------------------------

void Layout::RequestUpdate(bool force) {
  for (Layout* layout = this; layout; layout = layout->NextToRequest()) {
    if (!force && layout->IsRequestUnderWay()) return;
    layout->activated_ = false;
    layout->PostRequest();
  }
}

// A request that could not be posted, or whose message has gone by, is not waited for; a widget
// without its window gets a pass when it is first placed.
bool Layout::IsRequestUnderWay() const {
  if (activated_) return false;
  return !isTopLevel_ || requestPosted_ || !parentWidget_ || !parentWidget_.Impl()->GetHandle();
}

bool Layout::BelongsToChildDialog() const {
  BaseGUIObject* widget = isTopLevel_ ? parentWidget_.Widget() : nullptr;
  return widget && IsA(*widget, BaseGUIObject::GuiType::ChildDialog);
}

// A child dialog is placed in the pass of what holds it. What holds the widget without any layout
// around is asked itself.
void Layout::PostRequest() {
  if (!isTopLevel_ || !parentWidget_) return;
  const BaseGUIObject& widget = *parentWidget_.Widget();
  ForgetSizesFrom(&widget);
  if (!BelongsToChildDialog() && !requestPosted_)
    requestPosted_ = parentWidget_.Impl()->PostLayoutRequest();
  const Holders holders = Holders::Of(widget);
  if (holders.outermost && !holders.layout) ArrangerOf(holders.outermost)->RequestArrangement();
}

Layout* Layout::NextToRequest() const {
  if (!isTopLevel_) return parentLayout_;
  return parentWidget_ ? Holders::Of(*parentWidget_.Widget()).layout : nullptr;
}

void Layout::MarkDirtyUpward() {
  for (Layout* layout = this; layout; layout = layout->parentLayout_) {
    layout->MarkDirty();
    if (layout->isTopLevel_) return;
  }
}

void Layout::WidgetEvent(Event* event) {
  BaseGUIObject* widget = isTopLevel_ ? parentWidget_.Widget() : nullptr;
  if (!event || !widget) return;
  if (event->GetType() == Event::Resize && activated_) {
    Arrange(parentWidget_.Impl()->GetLayoutRect(),
            static_cast<ResizeEvent*>(event)->NewSize().Width());
  } else if (event->GetType() == Event::Resize) {
    Activate();
  } else if (event->GetType() == Event::LayoutRequest && widget->IsVisible()) {
    Activate();
  }
}

// -- The pass -------------------------------------------------------------------------------------

void Layout::Fit(const Rect& area) {
  if (!activated_ && BelongsToChildDialog()) PrepareTree();
  Arrange(area, area.Width());
}

void Layout::Arrange(Rect area, int width) {
  const Size size = area.GetSize().GetInflated(MinimumSize());
  const int top = area.Top();
  const int menuHeight = MenuBarHeight(width);
  area.SetRight(SaturatedSum(area.Left(), size.Width()));
  area.SetBottom(SaturatedSum(top, size.Height()));
  area.SetTop(SaturatedSum(top, menuHeight));

  Watch watch(*this);
  SetGeometry(area);
  if (watch.IsGone() || !menuBar_) return;
  menuBar_.Widget()->MoveWindow(area.Left(), top, width, menuHeight, true);
}

void Layout::Activate() {
  Layout* top = this;
  while (!top->isTopLevel_ && top->parentLayout_) top = top->parentLayout_;
  if (top->isTopLevel_ && top->parentWidget_ && !top->activated_) top->ActivateTopLevel();
}

// Moving the widgets may run a host's code, and that may destroy the widget with this layout.
void Layout::ActivateTopLevel() {
  PrepareTree();
  const WidgetLink widget = parentWidget_;
  Watch watch(*this);
  {
    ExplicitAxesKeeper keeper(widget);
    ApplyConstraint();
    if (watch.IsGone() || !widget) return;
    const Rect area = widget.Impl()->GetLayoutRect();
    Arrange(area, area.Width());
    if (watch.IsGone() || !widget) return;
  }
  UpdateWidgetGeometry();
  if (IsA(*widget.Widget(), BaseGUIObject::GuiType::Dialog)) ClearRequestsInTree();
}

void Layout::PrepareTree() {
  Invalidate(false);
  for (int i = 0; LayoutItem* item = ItemAt(i); ++i) {
    if (Layout* inside = LayoutInside(*item)) {
      inside->PrepareTree();
    } else {
      item->Invalidate(false);
    }
  }
  activated_ = true;
}

void Layout::StartAgain() {
  PrepareTree();
  activated_ = false;
  requestPosted_ = false;
}

void Layout::ClearRequestsInTree() {
  requestPosted_ = false;
  for (int i = 0; LayoutItem* item = ItemAt(i); ++i) {
    if (Layout* inside = LayoutInside(*item)) inside->ClearRequestsInTree();
  }
}

void Layout::ApplyConstraint() {
  BaseImpl& impl = *parentWidget_.Impl();
  switch (constraint_) {
    case SizeConstraint::Default: ApplyDefaultConstraint(); break;
    case SizeConstraint::NoConstraint: break;
    case SizeConstraint::Minimum: impl.SetMinimumSize(TotalMinimumSize()); break;
    case SizeConstraint::Fixed: impl.SetFixedSize(TotalSizeHint()); break;
    case SizeConstraint::Maximum: impl.SetMaximumSize(TotalMaximumSize()); break;
    case SizeConstraint::MinAndMax:
      impl.SetMinimumSize(TotalMinimumSize());
      impl.SetMaximumSize(TotalMaximumSize());
      break;
  }
}

void Layout::ApplyDefaultConstraint() {
  BaseImpl& impl = *parentWidget_.Impl();
  const bool isDialog = IsA(*parentWidget_.Widget(), BaseGUIObject::GuiType::Dialog);
  const ExplicitAxes fixed = impl.Links().explicitMinimum;
  if (!isDialog && fixed.width && fixed.height) return;
  const Size current = impl.MinimumSize();
  const Size other = isDialog ? TotalMinimumSize() : Size();
  impl.SetMinimumSize({fixed.width ? current.Width() : other.Width(),
                       fixed.height ? current.Height() : other.Height()});
}

// The widget may ask for other sizes than before: what holds it takes that into account. What knows
// them already is not asked again, or two passes would call each other for ever.
void Layout::UpdateWidgetGeometry() {
  BaseGUIObject& widget = *parentWidget_.Widget();
  if (WidgetItemV2* item = parentWidget_.Impl()->Links().layoutItem) item->InvalidateSizeCache();
  if (IsA(widget, BaseGUIObject::GuiType::Dialog) || !widget.IsVisible()) return;
  BaseGUIObject* parent = ParentWidgetOf(widget);
  ChildArranger* arranger = ArrangerOf(parent);
  if (Layout* holder = LayoutOf(parent)) {
    holder->Invalidate(true);
  } else if (arranger && !arranger->AgreesWith(widget)) {
    InvalidateSizesFrom(&widget);
  }
}

}  // namespace Wexa
