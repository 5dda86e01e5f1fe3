#include "ChildDialog.h"

#include "MFC/ContainerImpl.h"
#include "MFC/base/WidgetColors.h"
#include "RGBColor.h"
#include "WexaUtils.h"

namespace Wexa {

class ChildDialog::impl : public ContainerImpl {
 public:
  using ContainerImpl::ContainerImpl;

  // Its parent's background, unless it was given one.
  COLORREF BackgroundColor() override {
    return hasBackground_ ? DialogBackground(GetSkinManager()) : ContainerImpl::BackgroundColor();
  }

  // Children that the form places stand one unit further in for each whole step of the scale.
  void TakeChild(BaseGUIObject& child, const FormReader&) override {
    const int offset = static_cast<int>(WexaUtils::GetScaleFactor());
    CRect& place = ImplOf(&child)->Creation().rect;
    place = Rect(place).OffsetRect(offset, offset).PlatformRect();  // places wrap around
  }

  void SetBackground(COLORREF color) {
    hasBackground_ = true;
    GetSkinManager().Slot(Slot::kDialogFace) = static_cast<unsigned long>(color);
    RefreshSkinColors();
  }

 private:
  bool hasBackground_ = false;
};

ChildDialog::ChildDialog()
    : BaseGUIObject(GuiType::ChildDialog), impl_(std::make_shared<impl>(this)) {}
ChildDialog::~ChildDialog() {
  ReleaseImpl();
}

bool ChildDialog::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ChildDialog::GetBaseImpl() const {
  return impl_;
}
void ChildDialog::SetVisible(bool visible) {
  Show(visible, true);
}
void ChildDialog::SetBackgroundColor(int color) {
  impl_->SetBackground(SwapRedAndBlue(color));
}
int ChildDialog::BackgroundColor() {
  return static_cast<int>(SwapRedAndBlue(static_cast<int>(impl_->BackgroundColor())));
}

}  // namespace Wexa
