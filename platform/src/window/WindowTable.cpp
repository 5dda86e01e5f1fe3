#include "window/Session.h"

namespace core {
namespace {

thread_local bool makesWindows = false;

}  // namespace

Hold::~Hold() {
  if (window_ && --window_->holds == 0 && !window_->alive) delete window_;
}

Window* Find(HWND window) {
  return CurrentSession().windows.Find(window);
}

bool OnWindowThread() {
  return makesWindows;
}

Window& AddWindow(std::unique_ptr<Window> window) {
  makesWindows = true;
  Window& added = *window;
  added.handle = CurrentSession().windows.Add(std::move(window));
  return added;
}

void RemoveWindow(Window& window) {
  std::erase(Siblings(window), &window);
  if (window.parent) window.parent->overlapsKnown = false;
  std::unique_ptr<Window> owned = CurrentSession().windows.Remove(window.handle);
  window.alive = false;
  if (window.holds > 0) static_cast<void>(owned.release());
}

std::vector<Window*>& TopLevels() {
  return CurrentSession().topLevels;
}

std::vector<Window*>& Siblings(Window& window) {
  return window.parent ? window.parent->children : TopLevels();
}

Window& Root(Window& window) {
  Window* root = &window;
  while (root->parent) root = root->parent;
  return *root;
}

bool IsInside(const Window& ancestor, const Window* window) {
  while (window && window != &ancestor) window = window->parent;
  return window != nullptr;
}

bool IsShown(const Window& window) {
  for (const Window* w = &window; w; w = w->parent)
    if (!w->IsVisible()) return false;
  return true;
}

bool CanTakeInput(const Window& window) {
  for (const Window* w = &window; w; w = w->parent)
    if (!w->IsEnabled()) return false;
  return true;
}

Window* FindBySurface(display::SurfaceId id) {
  for (Window* w : TopLevels())
    if (id != 0 && w->top->surfaceId == id) return w;
  return nullptr;
}

}  // namespace core
