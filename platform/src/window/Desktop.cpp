#include "window/Desktop.h"

#include "window/Session.h"
#include "window/WindowClass.h"

namespace core {
namespace {

// Whatever change is asked for, nothing changes.
LRESULT DesktopProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_WINDOWPOSCHANGING) return DefWindowProcW(window, message, wParam, lParam);
  if (auto* request = reinterpret_cast<WINDOWPOS*>(lParam))
    request->flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
  return 0;
}

Window& MakeDesktop() {
  static const auto& desktopClass =
      *new WindowClass{L"#32769", DesktopProcedure, 0, IDC_ARROW};  // outlives static objects
  auto made = std::make_unique<Window>();
  made->windowClass = &desktopClass;
  made->top = std::make_unique<TopLevel>();
  made->style = WS_POPUP | WS_DISABLED;
  made->destroying = true;
  return AddWindow(std::move(made));
}

}  // namespace

Window& Desktop() {
  Session& session = CurrentSession();
  Window* known = Find(session.desktop);
  Window& desktop = known ? *known : MakeDesktop();
  session.desktop = desktop.handle;
  desktop.rect = display::Current().WorkArea();
  desktop.client = desktop.Bounds();
  return desktop;
}

}  // namespace core

HWND GetDesktopWindow() {
  return core::Desktop().handle;
}
