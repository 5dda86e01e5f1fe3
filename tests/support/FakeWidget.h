#pragma once

#include <algorithm>
#include <functional>
#include <memory>

#include "BaseGUIObject.h"
#include "Event.h"
#include "layout/ChildArranger.h"
#include "layout/Layout.h"
#include "layout/SizeLimits.h"
#include "support/engine/StubImpl.h"

namespace Wexa {

// A widget without a window that says what it is told to say, and counts what is done to it.
class FakeImpl : public StubImpl, public ChildArranger {
 public:
  ~FakeImpl() override { delete Links().layout; }

  bool IsVisible() override { return visible; }
  Size IdealSize() override {
    ++reads;
    return Links().layout ? Links().layout->TotalSizeHint() : ideal;
  }
  Size MinimumIdealSize() override {
    return Links().layout ? Links().layout->TotalMinimumSize() : minimumIdeal;
  }
  Size MinimumSize() override { return minimum; }
  Size MaximumSize() override { return maximum; }
  void SetMinimumSize(Size size) override {
    minimum = size;
    Links().explicitMinimum = {true, true};
  }
  void SetMaximumSize(Size size) override {
    maximum = size;
    Links().explicitMaximum = {true, true};
  }
  void SetFixedSize(Size size) override {
    minimum = size;
    maximum = size;
  }
  void MoveWindow(int x, int y, int width, int height, bool) override;
  void Update() override { ++updates; }
  SizePolicy GetSizePolicy() override { return policy; }
  void SetSizePolicy(const SizePolicy& value) override { policy = value; }
  HWND GetHandle() override { return hasWindow ? reinterpret_cast<HWND>(this) : nullptr; }
  int HeightForWidth(int width) override { return height ? height(width) : -1; }
  bool HasHeightForWidth() override {
    return height || (Links().layout && Links().layout->HasHeightForWidth());
  }
  Rect GetLayoutRect() override { return {0, 0, place.Width(), place.Height()}; }
  Rect LayoutGeometry() override { return place; }
  bool PostLayoutRequest() override {
    posts += hasWindow ? 1 : 0;
    return hasWindow;
  }
  int ParentScrollOffset() override { return scrolled; }
  ChildArranger* AsArranger() override { return arranges ? this : nullptr; }
  void ForgetSizes() override { ++forgotten; }
  bool AgreesWith(BaseGUIObject&) override { return agrees; }
  void RequestArrangement() override { ++arrangements; }
  void RefreshDropDownSelection() override { ++dropDownRefreshes; }

  bool visible = true;
  bool hasWindow = true;
  bool arranges = false;  // its children itself
  bool agrees = true;     // with the sizes of a child
  Size ideal{50, 20};
  Size minimumIdeal{10, 10};
  Size minimum;
  Size maximum{WidgetSizeLimit(), WidgetSizeLimit()};
  SizePolicy policy{SizePolicy::Preferred, SizePolicy::Preferred};
  std::function<int(int)> height;
  std::function<void()> onMoved;
  int scrolled = 0;

  Rect place;
  int reads = 0;
  int moves = 0;
  int updates = 0;
  int posts = 0;
  int dropDownRefreshes = 0;
  int forgotten = 0;
  int arrangements = 0;
};

inline void FakeImpl::MoveWindow(int x, int y, int width, int height, bool) {
  const Size size = Size(width, height).GetDeflated(maximum).GetInflated(minimum);
  const Rect before = place;
  place = Rect(x, y, size.Width(), size.Height());
  if (place != before) ++moves;
  const auto handler = onMoved;  // it may replace itself
  if (place != before && handler) handler();
  if (place.GetSize() != before.GetSize() && Links().layout) {
    ResizeEvent event(before.GetSize(), place.GetSize());
    Links().layout->WidgetEvent(&event);
  }
  if (Links().layout) Links().layout->Fit(GetLayoutRect());
}

class FakeWidget : public BaseGUIObject {
 public:
  explicit FakeWidget(GuiType type = GuiType::Label, WexaObject* parent = nullptr)
      : BaseGUIObject(type), impl_(std::make_shared<FakeImpl>()) {
    SetParent(parent);
  }

  bool Create(HWND) override { return true; }
  std::shared_ptr<BaseImpl> GetBaseImpl() const override { return impl_; }

  FakeImpl* operator->() const { return impl_.get(); }

 private:
  std::shared_ptr<FakeImpl> impl_;
};

}  // namespace Wexa
