#include "MFC/EmbeddedPages.h"

#include "MFC/BaseImpl.h"
#include "platform/Font.h"
#include "platform/Window.h"

namespace Wexa {

namespace {

constexpr DWORD kFrame = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;

void MakeFramelessChild(HWND window) {
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
  SetWindowLongPtrW(window, GWL_STYLE, static_cast<LONG_PTR>((style & ~kFrame) | WS_CHILD));
}

}  // namespace

bool EmbeddedPages::Embed(HWND window, bool show) {
  const HWND dialog = dialog_.GetHandle();
  if (!IsWindow(dialog) || !IsWindow(window) || window == dialog || IsChild(window, dialog))
    return false;
  ShowWindow(window, SW_HIDE);
  MakeFramelessChild(window);
  SetParent(window, dialog);
  std::erase(pages_, window);
  pages_.push_back(window);
  Fit();
  if (!show) return true;
  for (const HWND page : pages_) ShowWindow(page, page == window ? SW_SHOW : SW_HIDE);
  return true;
}

void EmbeddedPages::Fit() {
  const HWND dialog = dialog_.GetHandle();
  std::erase_if(pages_, [&](HWND page) { return GetParent(page) != dialog; });
  CRect client;
  GetClientRect(dialog, &client);
  for (const HWND page : std::vector(pages_))  // a handler may embed another one
    SetWindowPos(page, HWND_TOP, 0, 0, client.Width(), client.Height(),
                 SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void EmbeddedPages::TellResolution() {
  const auto dpi = static_cast<WORD>(GetScreenDpi());
  for (const HWND page : std::vector(pages_)) {
    CRect place;
    GetWindowRect(page, &place);
    SendMessageW(page, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
  }
}

}  // namespace Wexa
