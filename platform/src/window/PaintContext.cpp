#include "window/PaintContext.h"

#include <utility>

#include "graphics/DeviceContext.h"
#include "window/Coordinates.h"
#include "window/Dispatch.h"
#include "window/TopLevelSurface.h"

namespace core {
namespace {

PixelRegion VisiblePart(const Window& window, PixelRegion area) {
  const CRect place = OnSurface(window);
  return std::move(area.Move(place.left, place.top).Intersect(VisibleOnSurface(window)));
}

void ExcludeChildren(const Window& window, PixelRegion& clip) {
  if (!window.ClipsChildren() || clip.IsEmpty()) return;
  for (const Window* child : window.children)
    if (child->IsVisible()) clip.Subtract(OnSurface(*child));
}

HDC ClientContext(Window& window, PixelRegion clip) {
  const CRect client = ClientOnSurface(window);
  ExcludeChildren(window, clip);
  return CreateDeviceContext({.surface = EnsurePixels(Root(window)),
                              .origin = client.TopLeft(),
                              .clip = std::move(clip),
                              .mirrorWidth = window.IsMirrored() ? client.Width() : -1,
                              .window = window.handle});
}

// Takes what is due of the client area: it counts as painted from now on.
PixelRegion TakeUpdate(Window& window) {
  PixelRegion due = window.update;
  due.Unite(window.painting).Intersect(window.client);
  window.update.Subtract(window.client);
  window.allDue = false;
  window.painting.Subtract(window.client);
  window.deepUpdate.Intersect(window.update);
  return due;
}

CRect InClient(const Window& window, const CRect& onSurface) {
  const CRect client = ClientOnSurface(window);
  return onSurface.IsEmpty() ? CRect{}
                             : Mirrored(window, onSurface.Moved(-client.left, -client.top));
}

}  // namespace

HDC FrameContext(Window& window) {
  const CRect place = OnSurface(window);
  PixelRegion clip = VisiblePart(window, window.painting);
  clip.Subtract(ClientOnSurface(window));
  return CreateDeviceContext({.surface = EnsurePixels(Root(window)),
                              .origin = place.TopLeft(),
                              .clip = std::move(clip),
                              .mirrorWidth = window.IsMirrored() ? place.Width() : -1,
                              .window = window.handle});
}

void Finish(HDC dc) {
  const DeviceContext* context = GetDeviceContext(dc);
  if (!context) return;
  Window* window = Find(context->window);
  if (window && context->painted) Root(*window).top->damage.Unite(context->clip);
  DeleteDeviceContext(dc);
}

}  // namespace core

using core::Find;
using core::Window;

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
  Window* w = Find(window);
  if (!w || !paint) return nullptr;
  core::Hold hold(w);
  PixelRegion area = core::VisiblePart(*w, core::TakeUpdate(*w));
  const CRect bounds = core::InClient(*w, area.Bounds());
  *paint = {core::ClientContext(*w, std::move(area)), bounds};
  if (std::exchange(w->eraseDue, false) && !bounds.IsEmpty())
    core::Send(*w, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc));
  return paint->hdc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* paint) {
  if (!paint || !GetDeviceContext(paint->hdc)) return FALSE;
  core::Finish(paint->hdc);
  return TRUE;
}

HDC GetDC(HWND window) {
  if (!window) return CreateDeviceContext(DeviceContext{});
  Window* w = Find(window);
  if (!w) return nullptr;
  if (!core::IsShown(*w)) return CreateDeviceContext(DeviceContext{});
  return core::ClientContext(*w, core::VisiblePart(*w, PixelRegion(w->client)));
}

int ReleaseDC(HWND, HDC dc) {
  if (!GetDeviceContext(dc)) return 0;
  core::Finish(dc);
  return 1;
}
