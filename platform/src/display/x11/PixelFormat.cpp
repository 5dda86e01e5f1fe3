#include "PixelFormat.h"

#include <algorithm>
#include <bit>

namespace display::x11 {
namespace {

constexpr std::uint32_t kDeepChannel = 0x3FF;
constexpr int kDeepGreenShift = 10;

std::uint32_t TenBits(std::uint32_t pixel, int shift) {
  const std::uint32_t eight = pixel >> shift & 0xFF;
  return eight << 2 | eight >> 6;
}

bool HasDeepMasks(const xcb_visualtype_t& visual) {
  return visual.green_mask == kDeepChannel << kDeepGreenShift &&
         (visual.red_mask | visual.blue_mask) == (kDeepChannel << 20 | kDeepChannel);
}

bool IsUsable(const xcb_visualtype_t& visual, std::uint8_t depth) {
  if (visual._class != XCB_VISUAL_CLASS_TRUE_COLOR) return false;
  if (depth == 30) return HasDeepMasks(visual);
  return depth == 24 && visual.red_mask == 0xFF0000 && visual.green_mask == 0xFF00 &&
         visual.blue_mask == 0xFF;
}

// Pixels go over as words of 32 bits in this machine's byte order.
bool TakesWords(const xcb_setup_t& setup, std::uint8_t depth) {
  constexpr auto kOrder = std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST
                                                                     : XCB_IMAGE_ORDER_MSB_FIRST;
  if (setup.image_byte_order != kOrder) return false;
  for (auto it = xcb_setup_pixmap_formats_iterator(&setup); it.rem; xcb_format_next(&it)) {
    if (it.data->depth == depth) return it.data->bits_per_pixel == 32;
  }
  return false;
}

std::optional<PixelFormat> FindAmong(const xcb_depth_t& depth, xcb_visualid_t rootVisual) {
  std::optional<PixelFormat> found;
  for (auto it = xcb_depth_visuals_iterator(&depth); it.rem; xcb_visualtype_next(&it)) {
    const xcb_visualtype_t& visual = *it.data;
    if (!IsUsable(visual, depth.depth)) continue;
    if (found && visual.visual_id != rootVisual) continue;
    const bool redFirst = visual.red_mask > visual.blue_mask;
    found = {visual.visual_id, depth.depth, redFirst ? 20 : 0, redFirst ? 0 : 20};
  }
  return found;
}

}  // namespace

void PixelFormat::Write(const std::uint32_t* pixels, LONG count, std::uint32_t* target) const {
  if (!IsDeep()) return static_cast<void>(std::copy_n(pixels, count, target));
  std::transform(pixels, pixels + count, target, [this](auto pixel) { return Deepened(pixel); });
}

std::uint32_t PixelFormat::Deepened(std::uint32_t pixel) const {
  return TenBits(pixel, 16) << redShift | TenBits(pixel, 8) << kDeepGreenShift |
         TenBits(pixel, 0) << blueShift;
}

std::optional<PixelFormat> FindPixelFormat(const xcb_setup_t& setup, const xcb_screen_t& screen) {
  std::optional<PixelFormat> best;
  for (auto it = xcb_screen_allowed_depths_iterator(&screen); it.rem; xcb_depth_next(&it)) {
    if (!TakesWords(setup, it.data->depth)) continue;
    const auto format = FindAmong(*it.data, screen.root_visual);
    if (format && (!best || format->depth < best->depth)) best = format;
  }
  return best;
}

}  // namespace display::x11
