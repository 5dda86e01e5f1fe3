#pragma once

#include <memory>

namespace Wexa {

class BaseGUIObject;
class BaseImpl;
class Layout;
class WidgetItemV2;

// A link to a widget that is owned elsewhere. It becomes empty when the widget dies.
class WidgetLink {
 public:
  WidgetLink() = default;
  explicit WidgetLink(BaseGUIObject* widget);

  explicit operator bool() const { return !life_.expired(); }
  // Null when the widget is gone.
  BaseGUIObject* Widget() const { return life_.expired() ? nullptr : widget_; }
  BaseImpl* Impl() const { return life_.expired() ? nullptr : impl_; }

 private:
  BaseGUIObject* widget_ = nullptr;
  BaseImpl* impl_ = nullptr;
  std::weak_ptr<BaseImpl> life_;
};

// The widget's parent widget in the object tree; null for none.
BaseGUIObject* ParentWidgetOf(const BaseGUIObject& widget);

// The item that places the widget or, failing that, the nearest of the widgets around it; null for
// none, and for a null widget.
WidgetItemV2* NearestItemOf(const BaseGUIObject* widget);

// The layout that the widget itself owns; null for none, and for a null widget.
Layout* LayoutOf(const BaseGUIObject* widget);

}  // namespace Wexa
