#include "window/ZOrder.h"

#include <algorithm>

namespace core {
namespace {

using Stack = std::vector<Window*>;

Stack::iterator PlaceFor(Stack& siblings, HWND after) {
  if (after == HWND_TOP) return siblings.begin();
  auto before = std::find(siblings.begin(), siblings.end(), Find(after));
  return before == siblings.end() ? before : before + 1;
}

bool IsOwnedBy(const Window& window, const Window& owner) {
  for (const Window* w = Find(window.owner); w; w = Find(w->owner))
    if (w == &owner) return true;
  return false;
}

void KeepOwnedInFront(Window& owner) {
  std::stable_partition(TopLevels().begin(), TopLevels().end(),
                        [&](Window* w) { return IsOwnedBy(*w, owner); });
}

void KeepTopmostInFront() {
  std::stable_partition(TopLevels().begin(), TopLevels().end(),
                        [](Window* w) { return (w->exStyle & WS_EX_TOPMOST) != 0; });
}

}  // namespace

bool StandsAfter(Window& window, HWND after) {
  const Stack& siblings = Siblings(window);
  if (after == window.handle) return true;
  if (after == HWND_TOP) return siblings.front() == &window;
  if (after == HWND_BOTTOM) return siblings.back() == &window;
  auto place = std::find(siblings.begin(), siblings.end(), &window);
  return place != siblings.begin() && (*(place - 1))->handle == after;
}

void PlaceAfter(Window& window, HWND after) {
  Stack& siblings = Siblings(window);
  std::erase(siblings, &window);
  siblings.insert(PlaceFor(siblings, after), &window);
  if (window.parent) {
    window.parent->overlapsKnown = false;
    return;
  }
  if (after == HWND_TOP) KeepOwnedInFront(window);
  KeepTopmostInFront();
}

}  // namespace core
