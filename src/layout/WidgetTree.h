#pragma once

namespace Wexa {

class BaseGUIObject;
class ChildArranger;
class Layout;
class WidgetItemV2;

// Where a widget stands among others. Null stands for none, and is taken everywhere.

// The parent in the object tree.
BaseGUIObject* ParentWidgetOf(const BaseGUIObject& widget);

// The layout that the widget itself owns.
Layout* LayoutOf(const BaseGUIObject* widget);

// The widget as what places its children itself.
ChildArranger* ArrangerOf(const BaseGUIObject* widget);

// The item that places the widget or, failing that, the nearest of the widgets around it.
WidgetItemV2* NearestItemOf(const BaseGUIObject* widget);

// The widgets around a widget that, one in the other, place their children themselves.
struct Holders {
  BaseGUIObject* outermost = nullptr;
  // The layout of the widget around them.
  Layout* layout = nullptr;

  static Holders Of(const BaseGUIObject& widget);
};

// The widget may ask for other sizes than before: nothing around it remembers them, up to the top.
void ForgetSizesFrom(const BaseGUIObject* widget);

// The same, and what places the widget, with what that stands in, is asked to do so again.
void InvalidateSizesFrom(const BaseGUIObject* widget);

}  // namespace Wexa
