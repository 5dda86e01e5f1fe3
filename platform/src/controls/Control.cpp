#include "controls/Control.h"

DWORD Control::Style() const {
  return static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE));
}

CRect Control::Client() const {
  CRect client;
  GetClientRect(window_, &client);
  return client;
}

LRESULT Control::Default(UINT message, WPARAM wParam, LPARAM lParam) const {
  return DefWindowProcW(window_, message, wParam, lParam);
}

bool Control::Notify(int code) const {
  SendMessageW(GetParent(window_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window_), code),
               reinterpret_cast<LPARAM>(window_));
  return IsWindow(window_);
}
