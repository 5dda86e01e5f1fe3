#include "MFC/PaintedImpl.h"

#include "BaseGUIObject.h"

namespace Wexa {

namespace {

class PaintedWnd : public DrawnWnd {
 public:
  explicit PaintedWnd(PaintedImpl& impl) : impl_(impl) {}

  BOOL PreTranslateMessage(MSG* message) override {
    BaseGUIObject* owner = impl_.Owner();
    const auto held = owner ? owner->GetBaseImpl() : nullptr;  // a handler may destroy the widget
    return impl_.OnPreTranslate(*message);
  }

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override {
    LRESULT result = 0;
    if (impl_.OnMessage(message, wParam, lParam, result)) return result;
    return DrawnWnd::Handle(message, wParam, lParam);
  }

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    impl_.Paint(painter, client, palette);
  }
  bool ShowsHover() const override { return false; }

 private:
  PaintedImpl& impl_;
};

}  // namespace

PaintedImpl::PaintedImpl(BaseGUIObject* owner)
    : DrawnImpl(owner, std::make_shared<PaintedWnd>(*this)) {}

}  // namespace Wexa
