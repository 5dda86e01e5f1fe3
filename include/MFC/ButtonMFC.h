#pragma once

#include "MFC/EventDispatch.h"
#include "platform/Classes.h"
#include "platform/ControlConstants.h"

namespace Wexa {

// The native button of a widget: clicks, keys and owner drawing go to the widget's implementation.
template <typename Widget>
class ButtonMFC : public CButton {
 public:
  explicit ButtonMFC(typename Widget::impl& impl) : impl_(impl) {}

  BOOL PreTranslateMessage(MSG* message) override {
    return impl_.OnPreTranslate(*message) || CButton::PreTranslateMessage(message);
  }

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
    bool clicked = message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED;
    if (!clicked) return CButton::OnChildNotify(message, wParam, lParam, result);
    impl_.OnClicked();  // may destroy the widget, and this with it
    return TRUE;
  }

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    bool drawsItself = message == WM_PAINT && lParam != kPostPaint && impl_.IsOwnerDrawn();
    if (!drawsItself) return CButton::WindowProc(message, wParam, lParam);
    impl_.PaintOwnerDrawn();
    return 0;
  }

 private:
  typename Widget::impl& impl_;
};

}  // namespace Wexa
