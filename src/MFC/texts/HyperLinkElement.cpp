#include "HyperLinkElement.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "MFC/DrawnImpl.h"
#include "MFC/base/WidgetColors.h"
#include "MFC/drawn/InteractiveWnd.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr UINT kFormat = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr int kFocusGap = 2;  // around the text

class LinkWnd : public InteractiveWnd {
 public:
  std::function<void()> onUsed;

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.background);
    COLORREF color = Ink(palette);
    CRect text = TextRect(client);
    painter.Text(GetWindowText(), text, kFormat, Font(), color);
    int line = std::max(Scale(1), 1);
    painter.FillRect(CRect(text.left, text.bottom - line, text.right, text.bottom), color);
    int gap = Scale(kFocusGap);
    if (State().focusCue) painter.FocusRect(text.Shrunk(-gap, -gap), color);
  }

  void OnHover(POINT point) override { SetOver(TextRect(GetClientRect()).Contains(point)); }
  void OnDrag(POINT point) override { OnHover(point); }
  void OnLeave() override { isOver_ = false; }
  void OnPress(POINT point) override {
    OnHover(point);
    pressed_ = isOver_;
  }
  void OnRelease(POINT point) override {
    OnHover(point);
    if (std::exchange(pressed_, false) && isOver_) Use();
  }
  void OnDragCancelled() override { pressed_ = false; }

  bool OnKey(int key) override {
    if (key != VK_RETURN && key != VK_SPACE) return false;
    Use();
    return true;
  }
  LRESULT DialogCode(const MSG* message) const override {
    bool isReturn = message && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    return isReturn ? DLGC_WANTALLKEYS : 0;
  }
  const wchar_t* Cursor() const override {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(&point);
    return TextRect(GetClientRect()).Contains(point) ? IDC_HAND : nullptr;
  }

 private:
  CRect TextRect(const CRect& client) const {
    SIZE text = GetTextExtent(Font(), GetWindowText(), INT32_MAX, kFormat);
    int gap = Scale(kFocusGap);
    int top = client.top + std::max((client.Height() - static_cast<int>(text.cy)) / 2, 0);
    int left = client.left + gap;
    return {left, top, std::min(client.right - gap, left + text.cx),
            std::min(client.bottom, top + text.cy)};
  }

  COLORREF Ink(const ControlPalette& palette) const {
    if (!IsWindowEnabled()) return palette.disabledText;
    if (pressed_ && isOver_) return palette.pressedText;
    return isOver_ ? palette.hoverFace : palette.text;
  }

  void SetOver(bool over) {
    if (over == isOver_) return;
    isOver_ = over;
    Invalidate();
  }

  void Use() {
    const auto used = onUsed;  // the link may die in it
    if (used) used();
  }

  bool isOver_ = false;
  bool pressed_ = false;
};

}  // namespace

class HyperLinkElement::impl : public DrawnImpl {
 public:
  explicit impl(HyperLinkElement* owner) : DrawnImpl(owner, std::make_shared<LinkWnd>()) {
    Creation().style |= WS_TABSTOP;
    static_cast<LinkWnd&>(Shown()).onUsed = [this] {
      if (Owner()) static_cast<HyperLinkElement*>(Owner())->Clicked();
    };
  }
  using DrawnImpl::SetText;
  using DrawnImpl::Text;

  Size IdealSize() override {
    SIZE text = GetTextExtent(Font(), Text(), INT32_MAX, kFormat);
    int around = 2 * Scale(kFocusGap);
    return {text.cx + around, text.cy + around};
  }
  Size MinimumIdealSize() override { return IdealSize(); }

  void FillPalette(ControlPalette& palette) override { FillLinkPalette(palette, GetSkinManager()); }
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
}
std::wstring HyperLinkElement::GetText() {
  return impl_->Text();
}

}  // namespace Wexa
