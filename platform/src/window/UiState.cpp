#include "window/UiState.h"

#include "window/Dispatch.h"
#include "window/Keyboard.h"

namespace core {
namespace {

constexpr int kAllCues = UISF_HIDEFOCUS | UISF_HIDEACCEL;

// Initialising follows the device that was used last.
WPARAM Resolved(WPARAM wParam) {
  if (LOWORD(wParam) != UIS_INITIALIZE) return wParam;
  return MAKEWPARAM(WasKeyboardUsedLast() ? UIS_CLEAR : UIS_SET, kAllCues);
}

int Changed(int hidden, WPARAM wParam) {
  const int flags = HIWORD(wParam);
  if (LOWORD(wParam) == UIS_SET) return hidden | flags;
  return LOWORD(wParam) == UIS_CLEAR ? hidden & ~flags : hidden;
}

}  // namespace

LRESULT ChangeUiState(Window& window, WPARAM wParam) {
  const WPARAM change = Resolved(wParam);
  if (window.parent) return Send(*window.parent, WM_CHANGEUISTATE, change);
  if (Changed(window.hiddenCues, change) == window.hiddenCues) return 0;
  return Send(window, WM_UPDATEUISTATE, change);
}

LRESULT UpdateUiState(Window& window, WPARAM wParam) {
  const WPARAM change = Resolved(wParam);
  window.hiddenCues = Changed(window.hiddenCues, change);
  std::vector<HWND> children;
  for (const Window* child : window.children) children.push_back(child->handle);
  for (const HWND child : children) SendMessageW(child, WM_UPDATEUISTATE, change, 0);
  return 0;
}

void ShowKeyboardCues(Window& window) {
  Send(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, kAllCues));
}

}  // namespace core
