#include "Surfaces.h"

namespace display::x11 {

Surface& Surfaces::Create(SurfaceId id, SurfaceKind kind, const RECT& place) {
  auto surface = std::make_unique<Surface>(connection_, id, kind, place);
  byWindow_[surface->Window()] = surface.get();
  return *(byId_[id] = std::move(surface));
}

void Surfaces::Destroy(SurfaceId id) {
  const auto found = byId_.find(id);
  if (found == byId_.end()) return;
  byWindow_.erase(found->second->Window());
  byId_.erase(found);
}

Surface* Surfaces::Find(SurfaceId id) const {
  const auto found = byId_.find(id);
  return found == byId_.end() ? nullptr : found->second.get();
}

Surface* Surfaces::FindWindow(xcb_window_t window) const {
  const auto found = byWindow_.find(window);
  return found == byWindow_.end() ? nullptr : found->second;
}

}  // namespace display::x11
