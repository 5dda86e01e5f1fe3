#pragma once

// How a screen wants its pixels: our own words with 8 bits a colour (depth 24), or words with 10
// bits a colour (depth 30) that ours are converted to.

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

#include "platform/Types.h"

namespace display::x11 {

struct PixelFormat {
  xcb_visualid_t visual = 0;
  std::uint8_t depth = 24;
  // Where a colour of 10 bits begins.
  int redShift = 20;
  int blueShift = 0;

  bool IsDeep() const { return depth == 30; }
  // Writes `count` pixels of ours as the screen wants them.
  void Write(const std::uint32_t* pixels, LONG count, std::uint32_t* target) const;

 private:
  std::uint32_t Deepened(std::uint32_t pixel) const;
};

// The best of what the screen offers: depth 24 before depth 30, the root's own visual before
// others. None where the screen has neither.
std::optional<PixelFormat> FindPixelFormat(const xcb_setup_t& setup, const xcb_screen_t& screen);

}  // namespace display::x11
