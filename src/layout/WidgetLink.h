#pragma once

#include <memory>

namespace Wexa {

class BaseGUIObject;
class BaseImpl;

// A link to a widget that is owned elsewhere. It becomes empty when the widget dies.
class WidgetLink {
 public:
  WidgetLink() = default;
  explicit WidgetLink(BaseGUIObject* widget);

  explicit operator bool() const;
  // Null when the widget is gone.
  BaseGUIObject* Widget() const { return *this ? widget_ : nullptr; }
  BaseImpl* Impl() const { return *this ? impl_ : nullptr; }

 private:
  BaseGUIObject* widget_ = nullptr;
  BaseImpl* impl_ = nullptr;
  std::weak_ptr<BaseImpl> life_;
};

}  // namespace Wexa
