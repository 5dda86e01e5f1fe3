#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "graphics/DeviceContext.h"
#include "platform/Painter.h"

inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kRed = RGB(255, 0, 0);

// A white surface to draw on and to look at. The device context is the whole surface's until
// changed.
class TestCanvas {
 public:
  TestCanvas(int width, int height)
      : pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0xFFFFFFFF),
        surface(pixels_.data(), width, height, width * 4) {
    context.surface = &surface;
    context.clip = PixelRegion(RECT{0, 0, width, height});
  }

  void Paint(const std::function<void(Painter&)>& paint) {
    HDC dc = CreateDeviceContext(context);
    {
      Painter painter(dc);
      paint(painter);
    }
    DeleteDeviceContext(dc);
  }

  COLORREF At(int x, int y) const {
    std::uint32_t pixel =
        pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(surface.Width()) +
                static_cast<std::size_t>(x)];
    return RGB(static_cast<int>(pixel >> 16), static_cast<int>(pixel >> 8),
               static_cast<int>(pixel));
  }

  // The smallest rectangle around all pixels that are not white.
  CRect Ink() const {
    CRect ink(surface.Width(), surface.Height(), 0, 0);
    ForEachPixel([&](int x, int y, COLORREF color) {
      if (color == kWhite) return;
      ink = CRect(std::min<int>(ink.left, x), std::min<int>(ink.top, y),
                  std::max<int>(ink.right, x + 1), std::max<int>(ink.bottom, y + 1));
    });
    return ink.IsEmpty() ? CRect{} : ink;
  }

  int Count(COLORREF color) const {
    int count = 0;
    ForEachPixel([&](int, int, COLORREF found) { count += found == color; });
    return count;
  }

  template <typename Visit>
  void ForEachPixel(Visit visit) const {
    for (int y = 0; y < surface.Height(); ++y) {
      for (int x = 0; x < surface.Width(); ++x) visit(x, y, At(x, y));
    }
  }

  const std::vector<std::uint32_t>& Pixels() const { return pixels_; }

 private:
  std::vector<std::uint32_t> pixels_;

 public:
  Surface surface;
  DeviceContext context;
};
