#include "controls/DialogFocus.h"

#include <algorithm>

#include "controls/DialogState.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"

namespace {

// The window's own state, whatever its ancestors are.
bool IsShownAndEnabled(HWND window) {
  return (StyleOf(window) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

bool IsControlParent(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

bool HoldsControls(HWND window) {
  return IsControlParent(window) && GetWindow(window, GW_CHILD) != nullptr;
}

void AppendControls(HWND parent, std::vector<HWND>& controls) {
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    if (HoldsControls(child) && IsShownAndEnabled(child)) {
      AppendControls(child, controls);
    } else {
      controls.push_back(child);
    }
  }
}

std::vector<HWND> ChildrenOf(HWND parent) {
  std::vector<HWND> children;
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    children.push_back(child);
  }
  return children;
}

bool IsTabStop(HWND window) {
  return (StyleOf(window) & WS_TABSTOP) && CanTakeFocus(window);
}

bool IsGroupStop(HWND window) {
  return CanTakeFocus(window) && !(SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC);
}

// The place of a control in a list, or of the ancestor that stands there for it.
std::ptrdiff_t PlaceOf(HWND control, const std::vector<HWND>& list) {
  for (HWND window = control; window; window = GetParent(window)) {
    const auto found = std::find(list.begin(), list.end(), window);
    if (found != list.end()) return found - list.begin();
  }
  return -1;
}

// The nearest fitting control after or before `control`, going round; null when none fits.
HWND NextFitting(const std::vector<HWND>& list, HWND control, bool previous, bool (*fits)(HWND)) {
  const auto count = static_cast<std::ptrdiff_t>(list.size());
  std::ptrdiff_t place = PlaceOf(control, list);
  if (place < 0 && previous) place = count;
  for (std::ptrdiff_t step = 1; step <= count; ++step) {
    const std::ptrdiff_t at = ((previous ? place - step : place + step) + 2 * count) % count;
    const HWND candidate = list[static_cast<std::size_t>(at)];
    if (fits(candidate)) return candidate;
  }
  return nullptr;
}

bool IsDialog(HWND window) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  return std::wstring_view(name) == WC_DIALOG;
}

}  // namespace

DWORD StyleOf(HWND window) {
  return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
}

bool CanTakeFocus(HWND control) {
  return IsShownAndEnabled(control);
}

bool IsPushButton(HWND control) {
  constexpr LRESULT kPushCodes = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
  return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & kPushCodes) != 0;
}

std::vector<HWND> ControlsOf(HWND dialog) {
  std::vector<HWND> controls;
  AppendControls(dialog, controls);
  return controls;
}

std::vector<HWND> GroupOf(HWND control) {
  const std::vector<HWND> siblings = ChildrenOf(GetParent(control));
  const auto self = std::find(siblings.begin(), siblings.end(), control);
  if (self == siblings.end()) return {};
  const auto startsGroup = [](HWND window) { return (StyleOf(window) & WS_GROUP) != 0; };
  auto first = self;
  while (first != siblings.begin() && !startsGroup(*first)) --first;
  return {first, std::find_if(self + 1, siblings.end(), startsGroup)};
}

HWND FindControl(HWND dialog, int id) {
  for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    if (GetDlgCtrlID(child) == id) return child;
    if (!IsControlParent(child)) continue;
    if (const HWND nested = FindControl(child, id)) return nested;
  }
  return nullptr;
}

void FocusControl(HWND control) {
  if (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) {
    SendMessageW(control, EM_SETSEL, 0, -1);
  }
  SetFocus(control);
}

void ShowKeyboardCues(HWND dialog) {
  SendMessageW(dialog, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
}

HWND DialogOf(HWND control) {
  const HWND root = GetAncestor(control, GA_ROOT);
  return IsDialog(root) ? root : nullptr;
}

HWND DefaultButtonOf(HWND dialog) {
  const LRESULT answer = SendMessageW(dialog, DM_GETDEFID, 0, 0);
  return HIWORD(answer) == DC_HASDEFID ? FindControl(dialog, LOWORD(answer)) : nullptr;
}

void MoveDefaultLook(HWND button, bool gained, HWND other) {
  const HWND dialog = DialogOf(button);
  if (!dialog) return;
  if (gained) {
    ShowDefaultLook(dialog, button);
  } else if (IsChild(dialog, other) && !IsPushButton(other)) {
    ShowDefaultLook(dialog, DefaultButtonOf(dialog));
  }
}

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
  return NextFitting(ControlsOf(dialog), control, previous, IsTabStop);
}

HWND GetNextDlgGroupItem(HWND, HWND control, BOOL previous) {
  const HWND next = NextFitting(GroupOf(control), control, previous, IsGroupStop);
  return next ? next : control;
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int check) {
  if (!IsWindow(dialog)) return FALSE;
  for (HWND child : ChildrenOf(dialog)) {
    const int id = GetDlgCtrlID(child);
    const bool isRadio = SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON;
    if (id < first || id > last || !isRadio) continue;
    SendMessageW(child, BM_SETCHECK, id == check ? BST_CHECKED : BST_UNCHECKED, 0);
  }
  return TRUE;
}
