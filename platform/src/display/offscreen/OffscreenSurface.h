#pragma once

#include "display/offscreen/OffscreenDisplay.h"

namespace display {

struct OffscreenDisplay::Surface {
  SurfaceKind kind;
  SurfaceId owner;
  CRect place;
  std::vector<std::uint32_t> pixels{};
  std::vector<RECT> presented{};
  std::wstring title{};
  CursorShape cursor = CursorShape::Arrow;
  bool modal = false;
  bool resizable = false;

  void Allocate() {
    const auto count =
        static_cast<std::size_t>(place.Width()) * static_cast<std::size_t>(place.Height());
    pixels.assign(count, 0);
  }
};

}  // namespace display
