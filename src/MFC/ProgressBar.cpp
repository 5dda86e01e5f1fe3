#include "ProgressBar.h"

#include "MFC/PaintedImpl.h"
#include "MFC/ValueRange.h"
#include "MFC/WidgetColors.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

class ProgressBar::impl : public PaintedImpl {
 public:
  using PaintedImpl::PaintedImpl;

  ValueRange range;

  Size IdealSize() override { return IsVertical() ? Scale(20, 120) : Scale(120, 20); }
  Size MinimumIdealSize() override { return IsVertical() ? Scale(16, 40) : Scale(40, 16); }

  void FillPalette(ControlPalette& palette) override {
    FillInputPalette(palette, GetSkinManager());
    palette.background = BackgroundColor();
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.background);
    Theme::DrawProgress(painter, client, range.Fraction(), IsVertical(), palette);
  }

 private:
  bool IsVertical() const { return (Creation().style & PBS_VERTICAL) != 0; }
};

ProgressBar::ProgressBar()
    : BaseGUIObject(GuiType::ProgressBar), impl_(std::make_shared<impl>(this)) {}
ProgressBar::~ProgressBar() {
  ReleaseImpl();
}

bool ProgressBar::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ProgressBar::GetBaseImpl() const {
  return impl_;
}
Size ProgressBar::IdealSize() {
  return impl_->IdealSize();
}
void ProgressBar::SetRange(int minimum, int maximum) {
  impl_->range.SetBounds(minimum, maximum);
  if (GetPlatformHandle()) Repaint();
}
void ProgressBar::SetValue(int value) {
  impl_->range.SetValue(value);
  if (GetPlatformHandle()) Repaint();
}
int ProgressBar::GetValue() const {
  return impl_->range.Value();
}

}  // namespace Wexa
