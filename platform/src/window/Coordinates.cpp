#include "window/Coordinates.h"

namespace core {
namespace {

// Into the parent's pixels: from those of its client area, mirrored when it is, to `client`'s
// place.
CRect Placed(const CRect& rect, const Window& parent, const CRect& client) {
  const int left = parent.IsMirrored() ? client.right - rect.right : client.left + rect.left;
  const int top = client.top + rect.top;
  return {left, top, left + rect.Width(), top + rect.Height()};
}

const Window& RootOf(const Window& window) {
  const Window* root = &window;
  while (root->parent) root = root->parent;
  return *root;
}

CRect InRoot(const Window& window, const CRect& screen) {
  const CRect& root = RootOf(window).rect;
  return screen.Moved(-root.left, -root.top);
}

CPoint FromScreen(const Window* window, POINT p) {
  return window ? ToClient(*window, p) : CPoint(p);
}

CPoint IntoScreen(const Window* window, POINT p) {
  return window ? ToScreen(*window, p) : CPoint(p);
}

bool IsMirrored(const Window* window) {
  return window && window->IsMirrored();
}

// A rectangle's edges lie between pixels: mirrored, each moves by one more than a pixel would.
void MapRect(const Window* from, const Window* to, POINT* corners) {
  const int before = IsMirrored(from) ? 1 : 0;
  const int after = IsMirrored(to) ? 1 : 0;
  for (POINT* p = corners; p != corners + 2; ++p) {
    CPoint screen = IntoScreen(from, *p);
    screen.x += before;
    *p = FromScreen(to, screen);
    p->x += after;
  }
  if (corners[0].x > corners[1].x && before != after) std::swap(corners[0].x, corners[1].x);
}

}  // namespace

CRect ScreenRect(const Window& window) {
  if (!window.parent) return window.rect;
  return Placed(window.rect, *window.parent, ClientOnScreen(*window.parent));
}

CRect ClientOnScreen(const Window& window) {
  const CRect outer = ScreenRect(window);
  return window.client.Moved(outer.left, outer.top);
}

POINT ToClient(const Window& window, POINT screen) {
  const CRect client = ClientOnScreen(window);
  const int x = window.IsMirrored() ? client.right - 1 - screen.x : screen.x - client.left;
  return {x, screen.y - client.top};
}

POINT ToScreen(const Window& window, POINT point) {
  const CRect client = ClientOnScreen(window);
  const int x = window.IsMirrored() ? client.right - 1 - point.x : client.left + point.x;
  return {x, client.top + point.y};
}

CRect Mirrored(const Window& window, const CRect& rect) {
  if (!window.IsMirrored()) return rect;
  const int width = window.client.Width();
  return {width - rect.right, rect.top, width - rect.left, rect.bottom};
}

CRect OnSurface(const Window& window) {
  return InRoot(window, ScreenRect(window));
}

CRect ClientOnSurface(const Window& window) {
  return InRoot(window, ClientOnScreen(window));
}

CRect VisibleOnSurface(const Window& window) {
  CRect visible = OnSurface(window);
  for (const Window* w = window.parent; w; w = w->parent)
    visible = visible.Intersected(ClientOnSurface(*w));
  return visible;
}

}  // namespace core

using core::Find;
using core::Window;

BOOL GetWindowRect(HWND window, RECT* rect) {
  const Window* w = Find(window);
  if (!w || !rect) return FALSE;
  *rect = core::ScreenRect(*w);
  return TRUE;
}

BOOL GetClientRect(HWND window, RECT* rect) {
  const Window* w = Find(window);
  if (!w || !rect) return FALSE;
  *rect = {0, 0, w->client.Width(), w->client.Height()};
  return TRUE;
}

BOOL ScreenToClient(HWND window, POINT* point) {
  const Window* w = Find(window);
  if (!w || !point) return FALSE;
  *point = core::ToClient(*w, *point);
  return TRUE;
}

BOOL ClientToScreen(HWND window, POINT* point) {
  const Window* w = Find(window);
  if (!w || !point) return FALSE;
  *point = core::ToScreen(*w, *point);
  return TRUE;
}

int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count) {
  const Window* source = Find(from);
  const Window* target = Find(to);
  if (!points || (from && !source) || (to && !target)) return 0;
  const CPoint origin = core::FromScreen(target, core::IntoScreen(source, {0, 0}));
  if (count == 2) {
    core::MapRect(source, target, points);
  } else {
    for (UINT i = 0; i < count; ++i)
      points[i] = core::FromScreen(target, core::IntoScreen(source, points[i]));
  }
  return static_cast<int>(MAKELPARAM(origin.x, origin.y));
}
