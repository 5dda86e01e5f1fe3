#pragma once

// The windows of this display, by the window core's number and by the server's.

#include <xcb/xcb.h>

#include <memory>
#include <unordered_map>

#include "Surface.h"

namespace display::x11 {

class Surfaces {
 public:
  explicit Surfaces(Connection& connection) : connection_(connection) {}

  Surface& Create(SurfaceId id, SurfaceKind kind, const RECT& place);
  void Destroy(SurfaceId id);
  // Null when there is none, or none any more.
  Surface* Find(SurfaceId id) const;
  Surface* FindWindow(xcb_window_t window) const;

 private:
  Connection& connection_;
  std::unordered_map<SurfaceId, std::unique_ptr<Surface>> byId_;
  std::unordered_map<xcb_window_t, Surface*> byWindow_;
};

}  // namespace display::x11
