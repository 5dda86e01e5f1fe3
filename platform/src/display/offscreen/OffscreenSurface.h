#pragma once

#include "display/offscreen/OffscreenDisplay.h"

namespace display {

struct OffscreenDisplay::Surface {
  SurfaceKind kind;
  SurfaceId owner;
  CRect place;
  // Room for the pixels, which are arbitrary until painted: kept while a resized surface fits.
  std::unique_ptr<std::uint32_t[]> pixels{};
  std::size_t room = 0;
  std::vector<RECT> presented{};
  std::wstring title{};
  CursorShape cursor = CursorShape::Arrow;
  std::optional<CursorPicture> cursorPicture{};  // instead of the shape
  bool modal = false;
  bool resizable = false;

  void Allocate() {
    const auto count =
        static_cast<std::size_t>(place.Width()) * static_cast<std::size_t>(place.Height());
    if (count <= room) return;
    pixels = std::make_unique_for_overwrite<std::uint32_t[]>(count);
    room = count;
  }
};

}  // namespace display
