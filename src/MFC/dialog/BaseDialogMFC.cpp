#include "MFC/dialog/BaseDialogMFC.h"

#include "MFC/DialogImplMFC.h"
#include "MFC/dialog/BackgroundMove.h"
#include "MFC/tips/BalloonTip.h"
#include "MFC/tips/ToolTips.h"

namespace Wexa {

BOOL BaseDialogMFC::PreTranslateMessage(MSG* message) {
  return impl_.OnPreTranslate(*message) || CDialogEx::PreTranslateMessage(message);
}

// The pointer alone moves tool tips only; all other input ends balloons too.
void BaseDialogMFC::OnInputWithin(BaseGUIObject&, HWND window, UINT message) {
  if (message != WM_MOUSEMOVE && message != WM_MOUSELEAVE) BalloonTip::OnInput();
  impl_.Tips().OnInput(window, message);
}

void BaseDialogMFC::OnUntakenInputWithin(BaseGUIObject& widget, HWND window, UINT message) {
  MoveByBackground(widget, window, message);
}

LRESULT BaseDialogMFC::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETCURSOR:
      if (LOWORD(lParam) == HTCLIENT && impl_.Cursor().Show()) return TRUE;
      break;
    case WM_SIZE: impl_.Pages().Fit(); break;
    case WM_GETMINMAXINFO:
      if (lParam) impl_.OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam));
      return 0;
    case WM_WINDOWPOSCHANGING: {
      const LRESULT result = CDialogEx::WindowProc(message, wParam, lParam);
      if (lParam) impl_.OnPositionChanging(*reinterpret_cast<WINDOWPOS*>(lParam));
      return result;
    }
    default: break;
  }
  return CDialogEx::WindowProc(message, wParam, lParam);
}

BOOL BaseDialogMFC::OnInitDialog() {
  CDialogEx::OnInitDialog();
  return impl_.Life().OnInitDialog();
}

void BaseDialogMFC::OnCancel() {
  impl_.Life().OnCloseRequest();
}

int BaseDialogMFC::ClosedResult() const {
  return Dialog::Rejected;
}

}  // namespace Wexa
