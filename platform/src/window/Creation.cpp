#include "platform/Postponed.h"
#include "window/Coordinates.h"

#include <algorithm>

#include "window/CreationHook.h"
#include "window/Dispatch.h"
#include "window/Position.h"
#include "window/TopLevelSurface.h"
#include "window/WindowClass.h"

namespace core {
namespace {

constexpr DWORD kInheritedByChildren = WS_EX_LAYOUTRTL;

// A control's id travels in the menu argument.
LONG_PTR IdOf(HMENU idOrMenu) {
  return reinterpret_cast<LONG_PTR>(idOrMenu);
}

void Relate(Window& window, Window* relative) {
  if (window.style & WS_CHILD) {
    window.parent = relative;
    window.exStyle |= relative->exStyle & kInheritedByChildren;
    window.hiddenCues = relative->hiddenCues;
    return;
  }
  window.top = std::make_unique<TopLevel>();
  if (relative) window.owner = Root(*relative).handle;
}

// New children stand behind their elder siblings, so that the order of creation is that of Tab.
void Link(Window& window) {
  std::vector<Window*>& siblings = Siblings(window);
  siblings.insert(window.parent ? siblings.end() : siblings.begin(), &window);
  if (window.parent) window.parent->overlapsKnown = false;
}

Window& Make(const CREATESTRUCTW& create, const WindowClass& windowClass, Window* relative) {
  auto made = std::make_unique<Window>();
  made->windowClass = &windowClass;
  made->style = create.style & ~WS_VISIBLE;
  made->exStyle = create.dwExStyle;
  made->id = IdOf(create.hMenu);
  if (create.lpszName) made->text = create.lpszName;
  if (windowClass.extraBytes) made->extra = std::make_unique<std::byte[]>(windowClass.extraBytes);
  made->rect = {create.x, create.y, create.x + std::max(create.cx, 0),
                create.y + std::max(create.cy, 0)};
  made->client = made->Bounds();
  Relate(*made, relative);
  Window& window = AddWindow(std::move(made));
  Link(window);
  return window;
}

// The messages of creation; false when the window refused or died.
bool Introduce(Window& window, CREATESTRUCTW& create) {
  RunCreationHook(window.handle);
  if (!Send(window, WM_NCCREATE, 0, AsParam(&create)) || !window.alive) return false;
  UpdateClientArea(window);
  if (!window.alive) return false;
  return Send(window, WM_CREATE, 0, AsParam(&create)) != -1 && window.alive;
}

// Destroys a window whose creation ends with an exception or a refusal.
class Unfinished {
 public:
  explicit Unfinished(Window& window) : window_(window.handle) {}
  ~Unfinished() {
    if (window_) RunPostponing([this] { DestroyWindow(window_); });
  }
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  void Finish() { window_ = nullptr; }

 private:
  HWND window_;
};

}  // namespace
}  // namespace core

HWND CreateWindowExW(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU idOrMenu,
                     void* param) {
  const core::WindowClass* windowClass = core::FindClass(className);
  if (parent == GetDesktopWindow()) parent = nullptr;
  core::Window* relative = core::Find(parent);
  if (!windowClass || (parent && !relative) || ((style & WS_CHILD) && !relative)) return nullptr;
  if (relative && relative->destroying) return nullptr;
  CREATESTRUCTW create{param, idOrMenu, parent, height,    width,  y,
                       x,     style,    text,   className, exStyle};
  core::Window& window = core::Make(create, *windowClass, relative);
  core::Hold hold(&window);
  core::Unfinished unfinished(window);
  if (!core::Introduce(window, create)) return nullptr;
  core::SendSize(window);
  core::SendMove(window);
  if (style & WS_VISIBLE) ShowWindow(window.handle, SW_SHOW);
  unfinished.Finish();
  return hold.Alive() ? window.handle : nullptr;
}
