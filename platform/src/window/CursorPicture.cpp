#include "window/CursorPicture.h"

#include <algorithm>

namespace core {
namespace {

std::uint32_t MultipliedWithAlpha(std::uint32_t color) {
  const std::uint32_t alpha = color >> 24;
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
  UniqueBitmap picture(info.hbmColor);
  const UniqueBitmap mask(info.hbmMask);
  GetBitmapDescription(picture.get(), &bitmap);
  if (bitmap.bmBitsPixel != 32) picture.reset(WithAlphaOfMask(picture.get(), mask.get()));

  display::CursorPicture shown;
  shown.size = {bitmap.bmWidth, bitmap.bmHeight};
  shown.hotSpot = {std::min(static_cast<LONG>(info.xHotspot), bitmap.bmWidth - 1),
                   std::min(static_cast<LONG>(info.yHotspot), bitmap.bmHeight - 1)};
  std::ranges::transform(BitmapPixels(picture.get()), std::back_inserter(shown.pixels),
                         MultipliedWithAlpha);
  return shown;
}

}  // namespace core
