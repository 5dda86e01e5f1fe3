#include "window/Dispatch.h"

#include <utility>

#include "window/TopLevelSurface.h"
#include "window/WindowClass.h"

using core::Find;
using core::Window;

namespace {

// Documented parameters of WM_STYLECHANGED.
struct StyleChange {
  DWORD before;
  DWORD now;
};

LONG_PTR ChangeStyle(Window& window, int index, DWORD& style, DWORD value) {
  core::Hold hold(&window);
  StyleChange change{style, value};
  style = value;
  if (window.parent) window.parent->overlapsKnown = false;
  if (window.top) core::UpdateResizing(window);
  core::Send(window, WM_STYLECHANGED, static_cast<WPARAM>(index), core::AsParam(&change));
  return static_cast<LONG_PTR>(change.before);
}

}  // namespace

LONG_PTR GetWindowLongPtrW(HWND window, int index) {
  const Window* w = Find(window);
  if (!w) return 0;
  switch (index) {
    case GWL_STYLE: return static_cast<LONG_PTR>(w->style);
    case GWL_EXSTYLE: return static_cast<LONG_PTR>(w->exStyle);
    case GWLP_ID: return w->id;
    case GWLP_USERDATA: return w->userData;
    default: return 0;
  }
}

LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value) {
  Window* w = Find(window);
  if (!w) return 0;
  switch (index) {
    case GWL_STYLE: return ChangeStyle(*w, index, w->style, static_cast<DWORD>(value));
    case GWL_EXSTYLE: return ChangeStyle(*w, index, w->exStyle, static_cast<DWORD>(value));
    case GWLP_ID: return std::exchange(w->id, value);
    case GWLP_USERDATA: return std::exchange(w->userData, value);
    default: return 0;
  }
}

int GetScrollPos(HWND window, int bar) {
  const Window* w = Find(window);
  return w ? w->scrollPositions[bar != SB_HORZ] : 0;
}

void SetScrollPos(HWND window, int bar, int position) {
  if (Window* w = Find(window)) w->scrollPositions[bar != SB_HORZ] = position;
}

void* GetWindowExtra(HWND window) {
  const Window* w = Find(window);
  return w ? w->extra.get() : nullptr;
}
