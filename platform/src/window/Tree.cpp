#include "window/TopLevelSurface.h"

#include <algorithm>

#include "window/Updates.h"

using core::Find;
using core::Window;

namespace {

HWND HandleOf(const Window* window) {
  return window ? window->handle : nullptr;
}

HWND Neighbour(Window& window, int step) {
  const std::vector<Window*>& siblings = core::Siblings(window);
  auto place = std::find(siblings.begin(), siblings.end(), &window) - siblings.begin() + step;
  const bool exists = place >= 0 && place < static_cast<std::ptrdiff_t>(siblings.size());
  return exists ? siblings[static_cast<std::size_t>(place)]->handle : nullptr;
}

void Leave(Window& window) {
  core::InvalidateBehind(window);
  std::erase(core::Siblings(window), &window);
  if (window.parent) window.parent->overlapsKnown = false;
}

void Enter(Window& window, Window* parent) {
  window.parent = parent;
  std::vector<Window*>& siblings = core::Siblings(window);
  siblings.insert(siblings.begin(), &window);
  if (parent) parent->overlapsKnown = false;
  if (parent && window.top) {
    core::DestroySurface(window);
    window.top.reset();
  } else if (!parent && !window.top) {
    window.top = std::make_unique<core::TopLevel>();
  }
}

}  // namespace

HWND GetParent(HWND window) {
  const Window* w = Find(window);
  if (!w) return nullptr;
  return w->parent ? w->parent->handle : HandleOf(Find(w->owner));
}

HWND SetParent(HWND window, HWND parent) {
  Window* w = Find(window);
  Window* target = parent == GetDesktopWindow() ? nullptr : Find(parent);
  if (!w || (parent && !Find(parent)) || core::IsInside(*w, target)) return nullptr;
  const HWND before = GetParent(window);
  if (w->parent == target) return before;
  core::Hold hold(w);
  const bool visible = w->IsVisible();
  if (visible) ShowWindow(window, SW_HIDE);
  if (!hold.Alive()) return before;
  Leave(*w);
  Enter(*w, target);
  if (visible) ShowWindow(window, target ? SW_SHOW : SW_SHOWNA);
  return before;
}

HWND GetWindow(HWND window, UINT relation) {
  Window* w = Find(window);
  if (!w) return nullptr;
  switch (relation) {
    case GW_HWNDFIRST: return core::Siblings(*w).front()->handle;
    case GW_HWNDNEXT: return Neighbour(*w, 1);
    case GW_HWNDPREV: return Neighbour(*w, -1);
    case GW_OWNER: return HandleOf(Find(w->owner));
    case GW_CHILD: return w->children.empty() ? nullptr : w->children.front()->handle;
    default: return nullptr;
  }
}

HWND GetAncestor(HWND window, UINT flags) {
  Window* w = Find(window);
  return w && flags == GA_ROOT ? core::Root(*w).handle : nullptr;
}

BOOL IsChild(HWND parent, HWND window) {
  const Window* ancestor = Find(parent);
  const Window* w = Find(window);
  return ancestor && w && w != ancestor && core::IsInside(*ancestor, w);
}

HWND GetDlgItem(HWND dialog, int id) {
  const Window* w = Find(dialog);
  if (!w) return nullptr;
  for (const Window* child : w->children)
    if (static_cast<int>(child->id) == id) return child->handle;
  return nullptr;
}

int GetDlgCtrlID(HWND window) {
  const Window* w = Find(window);
  return w ? static_cast<int>(w->id) : 0;
}

std::vector<HWND> GetTopLevelWindows() {
  std::vector<HWND> handles;
  for (const Window* w : core::TopLevels()) handles.push_back(w->handle);
  return handles;
}
