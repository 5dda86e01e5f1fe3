#include "MFC/dialog/BackgroundMove.h"

#include <utility>

#include "MFC/DialogImplMFC.h"
#include "MFC/dialog/BaseDialogMFC.h"

namespace Wexa {

namespace {

// Where the pointer was when the dialog was moved last.
CPoint g_grip;

bool IsBackground(const BaseGUIObject& widget) {
  using enum BaseGUIObject::GuiType;
  return widget.Type() == Dialog || widget.Type() == ChildDialog || widget.Type() == Label;
}

// Null unless the widget's dialog has no border and stands by itself.
HWND BorderlessDialogOf(BaseGUIObject& widget) {
  auto* dialog = dynamic_cast<BaseDialogMFC*>(widget.GetTopLevelDlg());
  if (!dialog || (dialog->GetStyle() & WS_CHILD)) return nullptr;
  return dialog->Impl().Creation().style & WS_BORDER ? nullptr : dialog->GetSafeHwnd();
}

void Take(HWND window) {
  SetCapture(window);
  GetCursorPos(&g_grip);
}

void Follow(HWND dialog) {
  CPoint pointer;
  GetCursorPos(&pointer);
  const CPoint from = std::exchange(g_grip, pointer);
  CRect place;
  if (!GetWindowRect(dialog, &place)) return;
  place = place.Moved(pointer.x - from.x, pointer.y - from.y);
  SendMessageW(dialog, WM_MOVING, 0, reinterpret_cast<LPARAM>(&place));
  SetWindowPos(dialog, nullptr, place.left, place.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void MoveByBackground(BaseGUIObject& widget, HWND window, UINT message) {
  HWND dialog = IsBackground(widget) ? BorderlessDialogOf(widget) : nullptr;
  if (!dialog) return;
  if (message == WM_LBUTTONDOWN) return Take(window);
  if (GetCapture() != window) return;
  message == WM_MOUSEMOVE ? Follow(dialog) : static_cast<void>(ReleaseCapture());
}

}  // namespace Wexa
