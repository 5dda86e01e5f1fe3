#include "ScrollBar.h"

#include "MFC/PaintedImpl.h"
#include "MFC/ValueRange.h"
#include "MFC/WidgetColors.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

class ScrollBar::impl : public PaintedImpl {
 public:
  using PaintedImpl::PaintedImpl;

  ValueRange range;

  Size IdealSize() override {
    return IsVertical() ? Size(Theme::ScrollBarWidth(), Scale(100))
                        : Size(Scale(100), Theme::ScrollBarWidth());
  }
  Size MinimumIdealSize() override {
    return IsVertical() ? Size(Theme::ScrollBarWidth(), Scale(40))
                        : Size(Scale(40), Theme::ScrollBarWidth());
  }

  void FillPalette(ControlPalette& palette) override {
    FillInputPalette(palette, GetSkinManager());
    palette.background = BackgroundColor();
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.background);
    constexpr double kThumb = 0.1;
    double from = range.Fraction() * (1 - kThumb);
    ControlState state;
    state.enabled = GetCWnd()->IsWindowEnabled();
    Theme::DrawScrollBar(painter, client, from, from + kThumb, IsVertical(), state, palette);
  }

 private:
  bool IsVertical() const { return (Creation().style & SBS_VERT) != 0; }
};

ScrollBar::ScrollBar() : BaseGUIObject(GuiType::ScrollBar), impl_(std::make_shared<impl>(this)) {}
ScrollBar::~ScrollBar() {
  ReleaseImpl();
}

bool ScrollBar::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ScrollBar::GetBaseImpl() const {
  return impl_;
}
Size ScrollBar::IdealSize() {
  return impl_->IdealSize();
}
void ScrollBar::SetRange(int minimum, int maximum) {
  impl_->range.SetBounds(minimum, maximum);
  if (GetPlatformHandle()) Repaint();
}
void ScrollBar::SetValue(int value) {
  impl_->range.SetValue(value);
  if (GetPlatformHandle()) Repaint();
}
int ScrollBar::GetValue() const {
  return impl_->range.Value();
}

}  // namespace Wexa
