#include "window/HitTest.h"

#include "window/Coordinates.h"
#include "window/Dispatch.h"

namespace core {
namespace {

// All that lie under the point, the foremost first.
void Collect(Window& window, const CRect& place, POINT screen, std::vector<HWND>& found) {
  if (!window.IsVisible() || !window.IsEnabled() || !place.Contains(screen)) return;
  const CRect client = window.client.Moved(place.left, place.top);
  if (client.Contains(screen))
    for (Window* child : window.children)
      Collect(*child, Mirrored(window, child->rect).Moved(client.left, client.top), screen, found);
  found.push_back(window.handle);
}

}  // namespace

Hit HitTest(Window& root, POINT screen) {
  std::vector<HWND> candidates;
  Collect(root, root.rect, screen, candidates);
  for (const HWND handle : candidates) {
    Window* window = Find(handle);
    if (!window) continue;
    Hold hold(window);
    const auto part =
        static_cast<int>(Send(*window, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)));
    if (part != HTTRANSPARENT && hold.Alive()) return {window, part};
  }
  return {};
}

}  // namespace core

HWND WindowFromPoint(POINT screen) {
  for (const HWND root : GetTopLevelWindows()) {
    core::Window* w = core::Find(root);
    const core::Hit hit = w ? core::HitTest(*w, screen) : core::Hit{};
    if (hit.window) return hit.window->handle;
  }
  return nullptr;
}
