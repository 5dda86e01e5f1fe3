#include "window/CursorPicture.h"

#include <algorithm>

namespace core {
namespace {

constexpr std::uint32_t kOpaque = 0xFF;

std::uint32_t Multiplied(std::uint32_t color, std::uint32_t alpha) {
  const auto channel = [&](int shift) {
    return ((((color >> shift) & 0xFF) * alpha + 127) / 255) << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

}  // namespace

display::CursorPicture PictureOf(HCURSOR cursor) {
  ICONINFO info{};
  BITMAP bitmap{};
  GetIconInfo(cursor, &info);
  const UniqueBitmap color(info.hbmColor);
  const UniqueBitmap mask(info.hbmMask);
  GetBitmapDescription(info.hbmColor, &bitmap);
  const bool hasAlpha = bitmap.bmBitsPixel == 32;

  display::CursorPicture picture;
  picture.size = {bitmap.bmWidth, bitmap.bmHeight};
  picture.hotSpot = {std::min(static_cast<LONG>(info.xHotspot), bitmap.bmWidth - 1),
                     std::min(static_cast<LONG>(info.yHotspot), bitmap.bmHeight - 1)};
  std::ranges::transform(
      BitmapPixels(info.hbmColor), BitmapPixels(info.hbmMask), std::back_inserter(picture.pixels),
      [&](auto pixel, auto masked) {
        const bool transparent = (masked & 0xFFFFFF) != 0;
        return Multiplied(pixel, hasAlpha ? pixel >> 24 : transparent ? 0 : kOpaque);
      });
  return picture;
}

}  // namespace core
