#include "layout/WidgetLink.h"

#include "BaseGUIObject.h"
#include "MFC/BaseImpl.h"

namespace Wexa {

WidgetLink::WidgetLink(BaseGUIObject* widget) : widget_(widget) {
  if (!widget) return;
  const auto impl = widget->GetBaseImpl();
  impl_ = impl.get();
  life_ = impl;
}

BaseGUIObject* ParentWidgetOf(const BaseGUIObject& widget) {
  return dynamic_cast<BaseGUIObject*>(widget.GetParent());
}

WidgetItemV2* NearestItemOf(const BaseGUIObject* widget) {
  for (; widget; widget = ParentWidgetOf(*widget)) {
    const auto impl = widget->GetBaseImpl();
    if (impl && impl->Links().layoutItem) return impl->Links().layoutItem;
  }
  return nullptr;
}

Layout* LayoutOf(const BaseGUIObject* widget) {
  if (!widget) return nullptr;
  const auto impl = widget->GetBaseImpl();
  return impl ? impl->Links().layout : nullptr;
}

}  // namespace Wexa
