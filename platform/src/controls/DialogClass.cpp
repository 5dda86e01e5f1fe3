// The window procedure of dialogs: default button, focus across activation, closing, background.

#include "controls/DialogFocus.h"
#include "controls/DialogState.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"
#include "platform/Geometry.h"
#include "platform/Painter.h"
#include "platform/SelfDrawn.h"

namespace {

DWORD ButtonType(HWND button) {
  return static_cast<DWORD>(GetWindowLongPtrW(button, GWL_STYLE)) & BS_TYPEMASK;
}

// Restyles what is a plain push button; an owner-drawn one looks as its owner likes.
void SetLook(HWND button, DWORD from, DWORD to) {
  if (button && IsPushButton(button) && ButtonType(button) == from) {
    SendMessageW(button, BM_SETSTYLE, to, TRUE);
  }
}

// A button that was created as the default one becomes it when none was set.
void AdoptDefault(HWND dialog, DialogState& state) {
  if (state.defaultId >= 0 || state.defaultLook) return;
  for (HWND control : ControlsOf(dialog)) {
    if (!(SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)) continue;
    state.defaultId = GetDlgCtrlID(control);
    state.defaultLook = control;
    return;
  }
}

LRESULT GetDefaultId(HWND dialog, DialogState& state) {
  AdoptDefault(dialog, state);
  return state.defaultId < 0 ? 0 : MAKELPARAM(state.defaultId, DC_HASDEFID);
}

void SetDefaultId(HWND dialog, DialogState& state, int id) {
  AdoptDefault(dialog, state);
  state.defaultId = id;
  const HWND focus = GetFocus();
  if (!IsChild(dialog, focus) || !IsPushButton(focus)) {
    ShowDefaultLook(dialog, FindControl(dialog, id));
  }
}

bool CanGetFocusBack(HWND dialog, HWND control) {
  return IsChild(dialog, control) && IsWindowVisible(control) && IsWindowEnabled(control);
}

void SaveFocus(HWND dialog, DialogState& state) {
  const HWND focus = GetFocus();
  if (IsChild(dialog, focus)) state.savedFocus = focus;
}

void RestoreFocus(HWND dialog, const DialogState& state) {
  if (CanGetFocusBack(dialog, state.savedFocus)) {
    SetFocus(state.savedFocus);
  } else if (const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE)) {
    FocusControl(first);
  } else if (GetFocus() != dialog) {
    SetFocus(dialog);
  }
}

void OnActivate(HWND dialog, DialogState& state, bool active) {
  if (active) {
    RestoreFocus(dialog, state);
  } else {
    SaveFocus(dialog, state);
  }
}

void GoToControl(HWND dialog, WPARAM wParam, bool isHandle) {
  const HWND control = isHandle ? reinterpret_cast<HWND>(wParam)
                                : GetNextDlgTabItem(dialog, GetFocus(), wParam != 0);
  if (control) FocusControl(control);
}

void FillBackground(HWND dialog, HDC dc) {
  CRect client;
  GetClientRect(dialog, &client);
  Painter(dc).FillRect(client, GetControlPalette(dialog).background);
}

void RequestCancel(HWND dialog) {
  const HWND button = FindControl(dialog, IDCANCEL);
  if (button && !IsWindowEnabled(button)) return;
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
}

void SetDialogFont(HWND dialog, DialogState& state, HFONT font, bool redraw) {
  state.font = font;
  if (redraw) InvalidateRect(dialog, nullptr, TRUE);
}

// Whoever pumps for the dialog looks again whether it is there.
void Forget(HWND dialog) {
  auto** slot = static_cast<DialogState**>(GetWindowExtra(dialog));
  if ((*slot)->ownFont) DeleteFont((*slot)->ownFont);
  delete *slot;
  *slot = nullptr;
  PostMessageW(nullptr, WM_NULL, 0, 0);
}

LRESULT HandleInDialog(HWND dialog, DialogState& state, UINT message, WPARAM wParam,
                       LPARAM lParam) {
  switch (message) {
    case DM_GETDEFID: return GetDefaultId(dialog, state);
    case DM_SETDEFID: SetDefaultId(dialog, state, LOWORD(wParam)); return TRUE;
    case WM_NEXTDLGCTL: GoToControl(dialog, wParam, LOWORD(lParam) != 0); return 0;
    case WM_ACTIVATE: OnActivate(dialog, state, LOWORD(wParam) != WA_INACTIVE); return 0;
    case WM_CANCELMODE: SaveFocus(dialog, state); break;  // disabling it takes the focus away
    case WM_SETFOCUS: RestoreFocus(dialog, state); return 0;
    case WM_CLOSE: RequestCancel(dialog); return 0;
    case WM_ERASEBKGND: FillBackground(dialog, reinterpret_cast<HDC>(wParam)); return TRUE;
    case WM_SETFONT:
      SetDialogFont(dialog, state, reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0);
      return 0;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(state.font);
    case WM_NCDESTROY: Forget(dialog); break;
    default: break;
  }
  return DefWindowProcW(dialog, message, wParam, lParam);
}

}  // namespace

DialogState* StateOfDialog(HWND dialog) {
  auto** slot = static_cast<DialogState**>(GetWindowExtra(dialog));
  return slot ? *slot : nullptr;
}

void ShowDefaultLook(HWND dialog, HWND button) {
  DialogState* state = StateOfDialog(dialog);
  if (!state) return;
  AdoptDefault(dialog, *state);
  const HWND old = state->defaultLook;
  state->defaultLook = button;
  if (old != button) SetLook(old, BS_DEFPUSHBUTTON, BS_PUSHBUTTON);
  SetLook(button, BS_PUSHBUTTON, BS_DEFPUSHBUTTON);
}

LRESULT DefDlgProcW(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    if (void* slot = GetWindowExtra(dialog)) *static_cast<DialogState**>(slot) = new DialogState;
  }
  DialogState* state = StateOfDialog(dialog);
  if (state && state->procedure) {
    const LRESULT answer = state->procedure(dialog, message, wParam, lParam);
    if (answer) return answer;
    state = StateOfDialog(dialog);
  }
  return state ? HandleInDialog(dialog, *state, message, wParam, lParam)
               : DefWindowProcW(dialog, message, wParam, lParam);
}
