#include "window/Updates.h"

#include "graphics/RegionTable.h"
#include "window/Coordinates.h"
#include "window/PaintPass.h"

namespace core {
namespace {

bool IsPaintable(const Window& window) {
  for (const Window* w = &window; w; w = w->parent)
    if (!w->IsVisible() || !w->redraw) return false;
  return true;
}

// A rectangle of client coordinates from the window's corner.
CRect InWindow(const Window& window, const CRect& rect) {
  return Mirrored(window, rect).Moved(window.client.left, window.client.top);
}

PixelRegion ClientArea(const Window& window, const RECT* rect) {
  if (!rect) return PixelRegion(window.client);
  return PixelRegion(InWindow(window, *rect).Intersected(window.client));
}

PixelRegion ClientArea(const Window& window, HRGN region) {
  PixelRegion area;
  const PixelRegion* source = GetPixelRegion(region);
  if (!source) return area;
  for (const RECT& rect : source->Rects()) area.Unite(InWindow(window, rect));
  return area.Intersect(window.client);
}

// Whether the next pass comes by; one that went by while the window was not to be painted has left
// it out.
bool IsAwaited(const Window& window) {
  for (const Window* w = &window; w; w = w->parent)
    if (!w->subtreeDirty) return false;
  return true;
}

// Whether the pass will paint all of the window anyway, because all of it is due, or all of an
// ancestor that paints over its children.
bool IsDue(const Window& window, UpdateOptions options) {
  if (window.allDue && (!options.deep || !window.ClipsChildren())) {
    return (!options.erase || window.eraseDue) && IsAwaited(window);
  }
  for (const Window* w = window.parent; w && !w->ClipsChildren(); w = w->parent)
    if (w->allDue) return IsAwaited(*w);
  return false;
}

}  // namespace

void MarkDirty(Window& window) {
  for (Window* w = &window; w; w = w->parent) w->subtreeDirty = true;
}

void Invalidate(Window& window, const PixelRegion& area, UpdateOptions options) {
  if (IsDue(window, options) || !IsPaintable(window)) return;
  PixelRegion inside = area;
  inside.Intersect(window.Bounds());
  if (inside.IsEmpty()) return;
  window.update.Unite(inside);
  window.allDue = window.update.Contains(window.Bounds());
  if (options.deep && window.ClipsChildren()) window.deepUpdate.Unite(inside);
  window.eraseDue |= options.erase;
  MarkDirty(window);
}

void InvalidateAll(Window& window) {
  constexpr UpdateOptions kAll{.deep = true};
  if (!IsDue(window, kAll)) Invalidate(window, PixelRegion(window.Bounds()), kAll);
}

void InvalidateFrame(Window& window) {
  if (window.client == window.Bounds()) return;
  PixelRegion frame(window.Bounds());
  Invalidate(window, frame.Subtract(window.client), {});
}

void InvalidateBehind(Window& child) {
  Window* parent = child.parent;
  constexpr UpdateOptions kBehind{.deep = true};
  if (!parent || IsDue(*parent, kBehind)) return;
  const CRect place = InWindow(*parent, child.rect).Intersected(parent->client);
  Invalidate(*parent, PixelRegion(place), kBehind);
}

}  // namespace core

using core::Find;
using core::Window;

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase) {
  Window* w = Find(window);
  if (!w) return FALSE;
  core::Invalidate(*w, core::ClientArea(*w, rect), {.erase = erase != FALSE});
  return TRUE;
}

BOOL InvalidateRgn(HWND window, HRGN region, BOOL erase) {
  if (!region) return InvalidateRect(window, nullptr, erase);
  Window* w = Find(window);
  if (!w) return FALSE;
  core::Invalidate(*w, core::ClientArea(*w, region), {.erase = erase != FALSE});
  return TRUE;
}

BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags) {
  Window* w = Find(window);
  if (!w) return FALSE;
  const core::UpdateOptions options{.erase = (flags & RDW_ERASE) != 0,
                                    .deep = (flags & RDW_ALLCHILDREN) != 0};
  if ((flags & RDW_INVALIDATE) && !core::IsDue(*w, options)) {
    core::Invalidate(*w, region ? core::ClientArea(*w, region) : core::ClientArea(*w, rect),
                     options);
    if (flags & RDW_FRAME) core::InvalidateFrame(*w);
  }
  if (flags & RDW_UPDATENOW) UpdateWindow(window);
  return TRUE;
}

BOOL GetUpdateRect(HWND window, RECT* rect) {
  const Window* w = Find(window);
  if (!w) return FALSE;
  PixelRegion due = w->update;
  due.Unite(w->painting).Intersect(w->client);
  const CRect bounds = due.Bounds().Moved(-w->client.left, -w->client.top);
  if (rect) *rect = due.IsEmpty() ? CRect{} : core::Mirrored(*w, bounds);
  return !due.IsEmpty();
}
