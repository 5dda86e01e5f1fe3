#include "Slider.h"

#include "MFC/PaintedImpl.h"
#include "MFC/ValueRange.h"
#include "MFC/WidgetColors.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

class Slider::impl : public PaintedImpl {
 public:
  using PaintedImpl::PaintedImpl;

  ValueRange range;

  Size IdealSize() override { return IsVertical() ? Scale(24, 100) : Scale(100, 24); }
  Size MinimumIdealSize() override { return IsVertical() ? Scale(24, 48) : Scale(48, 24); }

  void FillPalette(ControlPalette& palette) override {
    FillInputPalette(palette, GetSkinManager());
    palette.background = BackgroundColor();
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.background);
    ControlState state;
    state.enabled = GetCWnd()->IsWindowEnabled();
    Theme::DrawSlider(painter, client, range.Fraction(), IsVertical(), state, palette);
  }

 private:
  bool IsVertical() const { return (Creation().style & TBS_VERT) != 0; }
};

Slider::Slider() : BaseGUIObject(GuiType::Slider), impl_(std::make_shared<impl>(this)) {}
Slider::~Slider() {
  ReleaseImpl();
}

bool Slider::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Slider::GetBaseImpl() const {
  return impl_;
}
Size Slider::IdealSize() {
  return impl_->IdealSize();
}
void Slider::SetRange(int minimum, int maximum) {
  impl_->range.SetBounds(minimum, maximum);
  if (GetPlatformHandle()) Repaint();
}
void Slider::SetValue(int value) {
  impl_->range.SetValue(value);
  if (GetPlatformHandle()) Repaint();
}
int Slider::GetValue() const {
  return impl_->range.Value();
}

}  // namespace Wexa
