#pragma once

#include <array>
#include <optional>

#include "layout/LayoutItem.h"
#include "layout/WidgetLink.h"

namespace Wexa {

// Places one widget. A widget that is hidden, is a dialog or has died makes the item empty.
class WidgetItem : public LayoutItem {
 public:
  // The widget is not owned.
  explicit WidgetItem(BaseGUIObject* widget) : link_(widget) {}

  Size SizeHint() override { return IsEmpty() ? Size() : Sizes().hint; }
  Size MinimumSize() override { return IsEmpty() ? Size() : Sizes().minimum; }
  Size MaximumSize() override { return IsEmpty() ? Size() : Sizes().maximum; }
  Orientation ExpandingDirections() override;
  // Keeps the widget within its maximum and, where it is aligned, within its hint; that decides
  // where in the rectangle it stands.
  void SetGeometry(const Rect& rect) override;
  Rect Geometry() override;
  bool IsEmpty() override;
  BaseGUIObject* Widget() override { return link_.Widget(); }
  bool HasHeightForWidth() override;
  int HeightForWidth(int width) override;
  int MinimumHeightForWidth(int width) override;

 protected:
  struct WantedSizes {
    Size preferred;
    Size hint;
    Size minimum;
    Size maximum;
  };

  const WidgetLink& Link() const { return link_; }
  // What the widget, which is not empty, asks for.
  virtual WantedSizes Sizes();

 private:
  int WithinLimits(int height) const;

  WidgetLink link_;
};

// The heights for the three widths asked for last.
class HeightForWidthCache {
 public:
  std::optional<int> Find(int width);
  void Store(int width, int height);
  void Clear() { count_ = 0; }

 private:
  static constexpr int kCapacity = 3;
  struct Entry {
    int width = 0;
    int height = 0;
  };

  std::array<Entry, kCapacity> entries_;
  int first_ = 0;
  int count_ = 0;
};

// Places a widget and remembers its sizes until they are invalidated. It is known to the widget,
// unless the widget already has such an item.
class WidgetItemV2 : public WidgetItem {
 public:
  WidgetItemV2(Layout* owner, BaseGUIObject* widget);
  ~WidgetItemV2() override;

  int HeightForWidth(int width) override;

  // Forgets the sizes of this item.
  void ForgetSizes();
  // Forgets the sizes, and those of all that holds the widget, up to the top.
  void InvalidateSizeCache();

  // The layout that holds the item; null once it was taken out.
  Layout* Owner() const { return owner_; }
  void SetOwner(Layout* owner) { owner_ = owner; }

 protected:
  WantedSizes Sizes() override;

 private:
  bool IsRegistered() const;

  Layout* owner_;
  std::optional<WantedSizes> sizes_;
  HeightForWidthCache heights_;
};

}  // namespace Wexa
