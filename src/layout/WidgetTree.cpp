#include "layout/WidgetTree.h"

#include "BaseGUIObject.h"
#include "MFC/BaseImpl.h"
#include "layout/ChildArranger.h"
#include "layout/Layout.h"
#include "layout/WidgetItem.h"

namespace Wexa {

namespace {

WidgetItemV2* ItemOf(const BaseGUIObject& widget) {
  const auto impl = widget.GetBaseImpl();
  return impl ? impl->Links().layoutItem : nullptr;
}

}  // namespace

BaseGUIObject* ParentWidgetOf(const BaseGUIObject& widget) {
  return dynamic_cast<BaseGUIObject*>(widget.GetParent());
}

Layout* LayoutOf(const BaseGUIObject* widget) {
  const auto impl = widget ? widget->GetBaseImpl() : nullptr;
  return impl ? impl->Links().layout : nullptr;
}

ChildArranger* ArrangerOf(const BaseGUIObject* widget) {
  const auto impl = widget ? widget->GetBaseImpl() : nullptr;
  return impl ? impl->AsArranger() : nullptr;
}

WidgetItemV2* NearestItemOf(const BaseGUIObject* widget) {
  for (; widget; widget = ParentWidgetOf(*widget)) {
    if (WidgetItemV2* item = ItemOf(*widget)) return item;
  }
  return nullptr;
}

Holders Holders::Of(const BaseGUIObject& widget) {
  Holders holders;
  BaseGUIObject* around = ParentWidgetOf(widget);
  for (; ArrangerOf(around); around = ParentWidgetOf(*around)) holders.outermost = around;
  holders.layout = LayoutOf(around);
  return holders;
}

void ForgetSizesFrom(const BaseGUIObject* widget) {
  while (widget) {
    if (ChildArranger* arranger = ArrangerOf(widget)) arranger->ForgetSizes();
    WidgetItemV2* item = ItemOf(*widget);
    if (item) item->ForgetSizes();
    Layout* owner = item ? item->Owner() : nullptr;
    if (owner) owner->MarkDirtyUpward();
    widget = owner ? owner->ParentWidget() : ParentWidgetOf(*widget);
  }
}

void InvalidateSizesFrom(const BaseGUIObject* widget) {
  if (!widget) return;
  ForgetSizesFrom(widget);
  const BaseGUIObject* placed = widget;
  if (const BaseGUIObject* outermost = Holders::Of(*widget).outermost) placed = outermost;
  WidgetItemV2* item = NearestItemOf(placed);
  if (placed != widget && !ItemOf(*placed)) {
    ArrangerOf(placed)->RequestArrangement();
  } else if (item && item->Owner()) {
    item->Owner()->Invalidate(true);
  }
}

}  // namespace Wexa
