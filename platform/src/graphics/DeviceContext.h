#pragma once

// What an HDC stands for: a place on a surface that may be painted.

#include <vector>

#include "graphics/PixelRegion.h"
#include "graphics/Surface.h"
#include "platform/Types.h"

struct DeviceContext {
  Surface* surface = nullptr;
  POINT origin{};        // of the window's coordinates, on the surface
  PixelRegion clip;      // surface pixels that may be painted
  int mirrorWidth = -1;  // width of a right-to-left window, -1 when not mirrored
  HWND window = nullptr;
  bool painted = false;                   // a painter was at work
  std::vector<PixelRegion> savedClips{};  // of the painters at work, innermost last
};

// The handle lives until DeleteDeviceContext.
HDC CreateDeviceContext(DeviceContext context);
void DeleteDeviceContext(HDC dc);
DeviceContext* GetDeviceContext(HDC dc);
