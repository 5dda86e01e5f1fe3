#include "Splitter.h"

#include "MFC/ContainerImpl.h"
#include "layout/BoxLayout.h"
#include "layout/WidgetItem.h"

namespace Wexa {

namespace {

constexpr int kHandleWidth = 6;

}  // namespace

// The views stand in a box layout whose spacing is the handle.
class Splitter::impl : public ContainerImpl {
 public:
  using ContainerImpl::ContainerImpl;

  void AddView(BaseGUIObject* view) {
    EnsureLayout();
    Links().layout->AddItem(new WidgetItemV2(Links().layout, view));
    views.push_back(view);
    Children().push_back(view);
  }

  void SetHandleWidth(int width) {
    EnsureLayout();
    Links().layout->SetSpacing(Scale(width));
  }

  std::vector<BaseGUIObject*> views;
  bool isVertical = false;

 private:
  void EnsureLayout() {
    if (Links().layout) return;
    Layout* layout =
        isVertical ? static_cast<Layout*>(new VBoxLayout(Owner())) : new HBoxLayout(Owner());
    layout->SetContentsMargins(0, 0, 0, 0);
    layout->SetSpacing(Scale(kHandleWidth));
  }
};

Splitter::Splitter() : BaseGUIObject(GuiType::Splitter), impl_(std::make_shared<impl>(this)) {}
Splitter::~Splitter() {
  ReleaseImpl();
}

bool Splitter::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Splitter::GetBaseImpl() const {
  return impl_;
}
void Splitter::SetOrientation(bool vertical) {
  impl_->isVertical = vertical;
}
void Splitter::AddView(BaseGUIObject* view) {
  if (view) impl_->AddView(view);
}
std::vector<BaseGUIObject*> Splitter::GetViews() {
  return impl_->views;
}
void Splitter::SetHandleWidth(int width) {
  impl_->SetHandleWidth(width);
}

}  // namespace Wexa
