#include "window/TopLevelSurface.h"

#include "window/DisplayFocus.h"
#include "window/Frame.h"
#include "window/Session.h"

namespace core {
namespace {

using display::Display;
using display::SurfaceKind;

SurfaceKind KindOf(const Window& root) {
  if (root.Is(WS_CAPTION)) return SurfaceKind::Dialog;
  if (root.exStyle & WS_EX_NOACTIVATE)
    return root.exStyle & WS_EX_TOPMOST ? SurfaceKind::ToolTip : SurfaceKind::PopUp;
  return root.exStyle & WS_EX_TOOLWINDOW ? SurfaceKind::PopUp : SurfaceKind::Dialog;
}

display::SurfaceId OwnerSurface(const Window& root) {
  Window* owner = Find(root.owner);
  return owner ? owner->top->surfaceId : 0;
}

bool HasDisabledOwner(const Window& root) {
  const Window* owner = Find(root.owner);
  return owner && !owner->IsEnabled();
}

}  // namespace

void EnsureSurface(Window& root) {
  TopLevel& top = *root.top;
  if (top.surfaceId != 0) return;
  Display& display = display::Current();
  top.surfaceId = ++CurrentSession().lastSurface;
  top.place = root.rect;
  display.CreateSurface(top.surfaceId, KindOf(root), OwnerSurface(root), root.rect);
  UpdateTitle(root);
  UpdateResizing(root);
  if (HasDisabledOwner(root)) display.SetModal(top.surfaceId, true);
}

Surface* EnsurePixels(Window& root) {
  EnsureSurface(root);
  TopLevel& top = *root.top;
  if (!top.pixels) {
    const display::Pixels pixels = display::Current().LockPixels(top.surfaceId);
    if (pixels.data)
      top.pixels =
          std::make_unique<Surface>(pixels.data, pixels.width, pixels.height, pixels.stride);
  }
  return top.pixels.get();
}

void DestroySurface(Window& root) {
  TopLevel& top = *root.top;
  top.pixels.reset();
  if (top.surfaceId != 0) {
    ForgetDisplayFocus(top.surfaceId);
    display::Current().DestroySurface(top.surfaceId);
  }
  top.surfaceId = 0;
}

void PlaceSurface(Window& root) {
  TopLevel& top = *root.top;
  if (top.surfaceId == 0 || top.place == root.rect) return;
  const bool resized =
      !(top.place.Size().cx == root.rect.Width() && top.place.Size().cy == root.rect.Height());
  if (resized) top.pixels.reset();
  top.place = root.rect;
  display::Current().MoveSurface(top.surfaceId, root.rect);
}

void ShowSurface(Window& root, bool show) {
  if (show) EnsureSurface(root);
  if (root.top->surfaceId != 0) display::Current().ShowSurface(root.top->surfaceId, show);
}

void UpdateResizing(Window& root) {
  if (root.top->surfaceId == 0) return;
  const SizeLimits limits = LimitsOf(root);
  display::Current().SetResizable(root.top->surfaceId, root.Is(WS_THICKFRAME), limits.minimum,
                                  limits.maximum);
}

void UpdateTitle(Window& root) {
  if (root.top->surfaceId != 0) display::Current().SetTitle(root.top->surfaceId, root.text);
}

void UpdateModality(const Window& owner) {
  for (const Window* w : TopLevels())
    if (w->owner == owner.handle && w->top->surfaceId != 0)
      display::Current().SetModal(w->top->surfaceId, !owner.IsEnabled());
}

}  // namespace core
