#include "DrawElement.h"

#include "MFC/DrawnImpl.h"
#include "MFC/drawn/InteractiveWnd.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

class CanvasWnd : public InteractiveWnd {
 public:
  DrawElement::PaintProcedure procedure;

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.background);
    const auto paint = procedure;  // it may replace itself
    if (paint) paint(painter, Rect(client));
    if (!IsGone() && State().focusCue) painter.FocusRect(client, palette.text);
  }

  LRESULT DialogCode(const MSG*) const override {
    return (GetStyle() & WS_TABSTOP) ? DLGC_WANTARROWS : 0;
  }
};

}  // namespace

class DrawElement::impl : public DrawnImpl {
 public:
  explicit impl(DrawElement* owner) : DrawnImpl(owner, std::make_shared<CanvasWnd>()) {}

  SizePolicy DefaultPolicy() const override {
    return {SizePolicy::Expanding, SizePolicy::Expanding};
  }

  void SetProcedure(const PaintProcedure& procedure) {
    static_cast<CanvasWnd&>(Shown()).procedure = procedure;
    RefreshSkinColors();
  }

  void SetFocusable(bool focusable) {
    DWORD change = focusable ? WS_TABSTOP : 0;
    Creation().style = (Creation().style & ~WS_TABSTOP) | change;
    if (GetHandle()) Shown().ModifyStyle(WS_TABSTOP, change);
  }
};

DrawElement::DrawElement()
    : BaseGUIObject(GuiType::DrawElement), impl_(std::make_shared<impl>(this)) {}
DrawElement::~DrawElement() {
  ReleaseImpl();
}

bool DrawElement::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> DrawElement::GetBaseImpl() const {
  return impl_;
}
Size DrawElement::IdealSize() {
  return impl_->IdealSize();
}
void DrawElement::SetPaintProcedure(const PaintProcedure& procedure) {
  impl_->SetProcedure(procedure);
}
void DrawElement::SetFocusable(bool focusable) {
  impl_->SetFocusable(focusable);
}
bool DrawElement::IsFocusable() const {
  return (impl_->Creation().style & WS_TABSTOP) != 0;
}

}  // namespace Wexa
