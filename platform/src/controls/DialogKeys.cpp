// The keys of dialogs: Tab, arrows, Return, Escape and mnemonics.

#include <algorithm>

#include "controls/DialogFocus.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"
#include "platform/VirtualKeys.h"

namespace {

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

LRESULT CodeOf(HWND control, const MSG* message = nullptr) {
  return SendMessageW(control, WM_GETDLGCODE, message ? message->wParam : 0,
                      reinterpret_cast<LPARAM>(message));
}

void SendCommand(HWND target, int id, HWND control) {
  SendMessageW(target, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(control));
}

// As if the button was clicked, but the focus stays.
void CommandOf(HWND button) {
  if (IsWindowEnabled(button)) SendCommand(GetParent(button), GetDlgCtrlID(button), button);
}

bool MoveByTab(HWND dialog, HWND from) {
  ShowKeyboardCues(dialog);
  if (const HWND next = GetNextDlgTabItem(dialog, from, IsDown(VK_SHIFT))) FocusControl(next);
  return true;
}

// An automatic radio button is chosen by going to it.
bool MoveInGroup(HWND dialog, HWND from, bool previous) {
  if (from == dialog) return false;
  ShowKeyboardCues(dialog);
  const HWND next = GetNextDlgGroupItem(dialog, from, previous);
  if (next == from) return true;
  FocusControl(next);
  const bool isRadio = (CodeOf(next) & DLGC_RADIOBUTTON) != 0;
  if (isRadio && (StyleOf(next) & BS_TYPEMASK) == BS_AUTORADIOBUTTON) {
    SendMessageW(next, BM_CLICK, 0, 0);
  }
  return true;
}

bool Accept(HWND dialog, HWND focus) {
  if (focus != dialog && IsPushButton(focus)) {
    CommandOf(focus);
  } else if (const HWND button = DefaultButtonOf(dialog)) {
    CommandOf(button);
  } else {
    const LRESULT answer = SendMessageW(dialog, DM_GETDEFID, 0, 0);
    SendCommand(dialog, HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : IDOK, nullptr);
  }
  return true;
}

bool Cancel(HWND dialog) {
  const HWND button = FindControl(dialog, IDCANCEL);
  if (!button || IsWindowEnabled(button)) SendCommand(dialog, IDCANCEL, button);
  return true;
}

bool OnKeyDown(HWND dialog, const MSG& message) {
  const LRESULT code = CodeOf(message.hwnd, &message);
  if (code & DLGC_WANTALLKEYS) return false;
  switch (static_cast<int>(message.wParam)) {
    case VK_TAB:
      return !(code & DLGC_WANTTAB) && !IsDown(VK_CONTROL) && MoveByTab(dialog, message.hwnd);
    case VK_LEFT:
    case VK_UP: return !(code & DLGC_WANTARROWS) && MoveInGroup(dialog, message.hwnd, true);
    case VK_RIGHT:
    case VK_DOWN: return !(code & DLGC_WANTARROWS) && MoveInGroup(dialog, message.hwnd, false);
    case VK_RETURN: return Accept(dialog, message.hwnd);
    case VK_ESCAPE: return Cancel(dialog);
    default: return false;
  }
}

bool HasMnemonic(HWND control, wchar_t letter) {
  const LRESULT code = CodeOf(control);
  if (!(code & (DLGC_BUTTON | DLGC_STATIC)) || !IsWindowVisible(control)) return false;
  const bool isText = (code & DLGC_STATIC) && !(code & DLGC_BUTTON);
  if (isText && (StyleOf(control) & SS_NOPREFIX)) return false;
  return IsMnemonic(GetWindowTextString(control), letter);
}

// The controls with this letter, the next after the focus first.
std::vector<HWND> ControlsWithMnemonic(HWND dialog, HWND focus, wchar_t letter) {
  std::vector<HWND> controls = ControlsOf(dialog);
  const auto place = std::find(controls.begin(), controls.end(), focus);
  if (place != controls.end()) std::rotate(controls.begin(), place + 1, controls.end());
  std::erase_if(controls, [letter](HWND c) { return !HasMnemonic(c, letter); });
  return controls;
}

// Where the letter of a control leads: a text's to the control after it.
HWND MnemonicTarget(HWND dialog, HWND control) {
  if (!(CodeOf(control) & DLGC_STATIC)) return CanTakeFocus(control) ? control : nullptr;
  return GetNextDlgTabItem(dialog, control, FALSE);
}

void Choose(HWND target, bool isButton, bool isOnly) {
  FocusControl(target);
  if (isButton && isOnly) SendMessageW(target, BM_CLICK, 0, 0);
}

// One control with the letter is chosen; several take turns with the focus.
bool OnMnemonic(HWND dialog, HWND focus, wchar_t character) {
  if (character <= L' ') return false;
  const std::vector<HWND> controls = ControlsWithMnemonic(dialog, focus, character);
  for (HWND control : controls) {
    const HWND target = MnemonicTarget(dialog, control);
    if (!target) continue;
    ShowKeyboardCues(dialog);
    Choose(target, target == control, controls.size() == 1);
    return true;
  }
  return false;
}

bool OnCharacter(HWND dialog, const MSG& message) {
  if (CodeOf(message.hwnd, &message) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) return false;
  return OnMnemonic(dialog, message.hwnd, static_cast<wchar_t>(message.wParam));
}

bool OnSystemKey(HWND dialog, const MSG& message) {
  if (message.wParam == VK_MENU) ShowKeyboardCues(dialog);
  return false;
}

}  // namespace

BOOL IsDialogMessageW(HWND dialog, MSG* message) {
  if (!message || !IsWindow(dialog)) return FALSE;
  if (message->hwnd != dialog && !IsChild(dialog, message->hwnd)) return FALSE;
  switch (message->message) {
    case WM_KEYDOWN: return OnKeyDown(dialog, *message);
    case WM_CHAR: return OnCharacter(dialog, *message);
    case WM_SYSKEYDOWN: return OnSystemKey(dialog, *message);
    case WM_SYSCHAR:
      return OnMnemonic(dialog, message->hwnd, static_cast<wchar_t>(message->wParam));
    default: return FALSE;
  }
}
