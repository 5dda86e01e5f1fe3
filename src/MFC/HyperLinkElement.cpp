#include "HyperLinkElement.h"

#include "MFC/PaintedImpl.h"
#include "MFC/WidgetColors.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

class HyperLinkElement::impl : public PaintedImpl {
 public:
  using PaintedImpl::PaintedImpl;
  using PaintedImpl::SetText;
  using PaintedImpl::Text;

  Size IdealSize() override {
    SIZE text = GetTextExtent(Font(), Text());
    return {text.cx, text.cy};
  }
  Size MinimumIdealSize() override { return IdealSize(); }

  void FillPalette(ControlPalette& palette) override {
    PaintedImpl::FillPalette(palette);
    palette.text = SlotColor(GetSkinManager(), Slot::kLinkText);
    palette.disabledText = SlotColor(GetSkinManager(), Slot::kLinkDisabled);
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    COLORREF color = GetCWnd()->IsWindowEnabled() ? palette.text : palette.disabledText;
    painter.FillRect(client, palette.background);
    painter.Text(Text(), client, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX, Font(), color);
  }
};

HyperLinkElement::HyperLinkElement()
    : BaseGUIObject(GuiType::HyperLinkElement), impl_(std::make_shared<impl>(this)) {}
HyperLinkElement::~HyperLinkElement() {
  ReleaseImpl();
}

bool HyperLinkElement::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> HyperLinkElement::GetBaseImpl() const {
  return impl_;
}
Size HyperLinkElement::IdealSize() {
  return impl_->IdealSize();
}
void HyperLinkElement::SetText(const std::wstring& text) {
  impl_->SetText(text);
  if (GetPlatformHandle()) Repaint();
}
std::wstring HyperLinkElement::GetText() {
  return impl_->Text();
}

}  // namespace Wexa
