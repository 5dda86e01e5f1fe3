#include "controls/ButtonControl.h"

#include "controls/ButtonGeometry.h"
#include "controls/DialogFocus.h"
#include "platform/ControlConstants.h"
#include "platform/VirtualKeys.h"

namespace {

constexpr LPARAM kRepeatedKey = 1 << 30;

bool IsRadio(DWORD type) {
  return type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON;
}

bool IsAutomaticRadio(HWND window) {
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
  return (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) &&
         (style & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
}

POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace

LRESULT ButtonControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE: return DialogCode();
    case WM_NCHITTEST:
      return Type() == BS_GROUPBOX ? HTTRANSPARENT : Default(message, wParam, lParam);
    case BM_GETCHECK: return check_;
    case BM_SETCHECK: SetCheck(static_cast<int>(wParam)); return 0;
    case BM_GETSTATE: return StateBits();
    case BM_SETSTATE: SetPushed(wParam != 0); return 0;
    case BM_SETSTYLE: SetTypeStyle(static_cast<DWORD>(wParam), LOWORD(lParam) != 0); return 0;
    case BM_CLICK: ClickByProgram(); return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: return HandleFocus(message, wParam, lParam);
    default: break;
  }
  return Type() == BS_GROUPBOX ? Control::Handle(message, wParam, lParam)
                               : HandleInput(message, wParam, lParam);
}

LRESULT ButtonControl::HandleInput(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN: OnPress(PointOf(lParam), false); return 0;
    case WM_LBUTTONDBLCLK: OnPress(PointOf(lParam), true); return 0;
    case WM_MOUSEMOVE: OnDrag(PointOf(lParam)); break;
    case WM_LBUTTONUP: OnRelease(PointOf(lParam)); return 0;
    case WM_CANCELMODE:
    case WM_CAPTURECHANGED: CancelPress(); return 0;
    case WM_KEYDOWN: OnKeyDown(wParam, lParam); break;
    case WM_KEYUP: OnKeyUp(wParam); break;
    default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

LRESULT ButtonControl::HandleFocus(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool gained = message == WM_SETFOCUS;
  if (!gained) CancelPress();
  Default(message, wParam, lParam);
  Repaint();
  if (IsPushType()) MoveDefaultLook(Window(), gained, reinterpret_cast<HWND>(wParam));
  Notify(gained ? BN_SETFOCUS : BN_KILLFOCUS);
  return 0;
}

DWORD ButtonControl::Type() const {
  return Style() & BS_TYPEMASK;
}

bool ButtonControl::IsPushType() const {
  const DWORD type = Type();
  return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON || type == BS_OWNERDRAW;
}

LRESULT ButtonControl::DialogCode() const {
  switch (Type()) {
    case BS_PUSHBUTTON:
    case BS_OWNERDRAW: return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON: return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON: return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX: return DLGC_STATIC;
    default: return DLGC_BUTTON;
  }
}

LRESULT ButtonControl::StateBits() const {
  return check_ | (pushed_ ? BST_PUSHED : 0) | (HasFocus() ? BST_FOCUS : 0);
}

void ButtonControl::OnPress(POINT point, bool secondClick) {
  SetFocus(Window());
  if (!IsWindow(Window()) || !HasFocus()) return;
  mousePressed_ = true;
  SetCapture(Window());
  OnDrag(point);
  if (secondClick && (IsRadio(Type()) || Type() == BS_OWNERDRAW)) Notify(BN_DOUBLECLICKED);
}

void ButtonControl::OnDrag(POINT point) {
  if (mousePressed_) SetPushed(Client().Contains(point));
}

void ButtonControl::OnRelease(POINT point) {
  if (!mousePressed_) return;
  const bool inside = Client().Contains(point);
  ReleaseCapture();
  CancelPress();
  if (inside) Click();
}

void ButtonControl::OnKeyDown(WPARAM key, LPARAM flags) {
  if (key != VK_SPACE) return CancelPress();
  if (mousePressed_ || (flags & kRepeatedKey)) return;
  keyPressed_ = true;
  SetPushed(true);
}

void ButtonControl::OnKeyUp(WPARAM key) {
  if (key != VK_SPACE || !keyPressed_) return;
  CancelPress();
  Click();
}

void ButtonControl::CancelPress() {
  const bool held = mousePressed_;
  mousePressed_ = false;
  keyPressed_ = false;
  SetPushed(false);
  if (held && GetCapture() == Window()) ReleaseCapture();
}

// As the mouse does: the focus comes first.
void ButtonControl::ClickByProgram() {
  if (IsWindowEnabled(Window())) SetFocus(Window());
  if (IsWindow(Window())) Click();
}

void ButtonControl::Click() {
  if (!IsWindowEnabled(Window())) return;
  switch (Type()) {
    case BS_AUTOCHECKBOX: SetCheck(check_ == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED); break;
    case BS_AUTO3STATE: SetCheck((check_ + 1) % 3); break;
    case BS_AUTORADIOBUTTON:
      UncheckGroup();
      SetCheck(BST_CHECKED);
      break;
    default: break;
  }
  Notify(BN_CLICKED);
}

void ButtonControl::SetPushed(bool pushed) {
  if (pushed_ == pushed) return;
  pushed_ = pushed;
  Repaint();
}

// The checked radio button of a group is where Tab enters the group.
void ButtonControl::SetCheck(int check) {
  const DWORD type = Type();
  const bool threeStates = type == BS_3STATE || type == BS_AUTO3STATE;
  const int value =
      check < 0 || check > (threeStates ? BST_INDETERMINATE : BST_CHECKED) ? BST_CHECKED : check;
  if (IsRadio(type)) {
    const DWORD style = value ? Style() | WS_TABSTOP : Style() & ~WS_TABSTOP;
    if (style != Style()) SetWindowLongPtrW(Window(), GWL_STYLE, static_cast<LONG_PTR>(style));
  }
  if (check_ == value) return;
  check_ = value;
  Repaint();
}

void ButtonControl::SetTypeStyle(DWORD type, bool redraw) {
  const DWORD mask = BS_TYPEMASK | BS_PUSHLIKE;
  const DWORD style = (Style() & ~mask) | (type & mask);
  if (style == Style()) return;
  SetWindowLongPtrW(Window(), GWL_STYLE, static_cast<LONG_PTR>(style));
  if (redraw) Repaint();
}

void ButtonControl::UncheckGroup() const {
  for (HWND member : GroupOf(Window())) {
    if (member != Window() && IsAutomaticRadio(member)) {
      SendMessageW(member, BM_SETCHECK, BST_UNCHECKED, 0);
    }
  }
}
