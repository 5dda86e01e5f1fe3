#include "window/WindowText.h"

#include "window/Dispatch.h"
#include "window/Frame.h"
#include "window/TopLevelSurface.h"

namespace core {

LRESULT StoreText(Window& window, LPARAM text) {
  const auto* value = reinterpret_cast<const wchar_t*>(text);
  window.text = value ? value : L"";
  if (window.top) {
    UpdateTitle(window);
    InvalidateCaption(window);
  }
  return TRUE;
}

LRESULT CopyText(const Window& window, WPARAM count, LPARAM buffer) {
  auto* target = reinterpret_cast<wchar_t*>(buffer);
  if (!target || count == 0) return 0;
  const std::size_t length = window.text.copy(target, count - 1);
  target[length] = 0;
  return static_cast<LRESULT>(length);
}

}  // namespace core

BOOL SetWindowTextW(HWND window, const wchar_t* text) {
  core::Window* w = core::Find(window);
  return w && core::Send(*w, WM_SETTEXT, 0, core::AsParam(text)) != FALSE;
}

std::wstring GetWindowTextString(HWND window) {
  core::Window* w = core::Find(window);
  if (!w) return {};
  core::Hold hold(w);
  const LRESULT length = core::Send(*w, WM_GETTEXTLENGTH);
  if (length <= 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const LRESULT copied = core::Send(*w, WM_GETTEXT, text.size(), core::AsParam(text.data()));
  text.resize(static_cast<std::size_t>(std::clamp<LRESULT>(copied, 0, length)));
  return text;
}
