#include <algorithm>

#include "x11/X11Test.h"

namespace display {
namespace {

// Runs against servers with and without shared memory.
class X11PresentTest : public X11Test {};

void Fill(const Pixels& pixels, const RECT& area, std::uint32_t color) {
  for (LONG y = area.top; y < area.bottom; ++y) {
    std::fill_n(pixels.data + y * (pixels.stride / 4) + area.left, area.right - area.left, color);
  }
}

TEST_F(X11PresentTest, PixelsReachTheScreen) {
  const xcb_window_t window = OpenDialog();
  const Pixels pixels = display_->LockPixels(kDialog);
  ASSERT_EQ(pixels.width, 300);
  ASSERT_EQ(pixels.height, 200);
  std::vector<std::uint32_t> expected;
  for (LONG y = 0; y < 200; ++y) {
    for (LONG x = 0; x < 300; ++x) {
      const auto color = static_cast<std::uint32_t>(y << 16 | (x & 0xFF) << 8 | (x ^ y) % 256);
      pixels.data[y * (pixels.stride / 4) + x] = 0xFF000000 | color;
      expected.push_back(color);
    }
  }
  const RECT all{0, 0, 300, 200};
  display_->Present(kDialog, &all, 1);
  All();
  EXPECT_EQ(person_.Screenshot(window, all), expected);
}

TEST_F(X11PresentTest, OnlyDamagedPartsAreShown) {
  const xcb_window_t window = OpenDialog();
  const Pixels pixels = display_->LockPixels(kDialog);
  Fill(pixels, {0, 0, 300, 200}, 0xFF0000FF);
  const RECT damaged[] = {{10, 20, 30, 40}, {250, 150, 400, 400}, {5, 5, 5, 9}};
  display_->Present(kDialog, damaged, 3);
  All();
  const auto seen = person_.Screenshot(window, {0, 0, 300, 200});
  const auto at = [&seen](std::size_t x, std::size_t y) { return seen.at(y * 300 + x); };
  EXPECT_EQ(at(10, 20), 0x0000FFu);
  EXPECT_EQ(at(29, 39), 0x0000FFu);
  EXPECT_EQ(at(30, 39), 0x808080u);
  EXPECT_EQ(at(299, 199), 0x0000FFu);
  EXPECT_EQ(at(249, 199), 0x808080u);
}

TEST_F(X11PresentTest, LargePictureGoesOverWhole) {
  const xcb_window_t window = OpenDialog(3, {0, 0, 1200, 1000});
  Paint(3, 0xFF336699);
  All();
  const auto seen = person_.Screenshot(window, {0, 0, 1200, 1000});
  EXPECT_EQ(std::ranges::count(seen, 0x336699u), 1200 * 1000);
}

TEST_F(X11PresentTest, UncoveredPartsComeBackWithoutPainting) {
  OpenDialog();
  Paint(kDialog, 0xFF00AA00);
  OpenDialog(2, {0, 0, 600, 600});
  display_->DestroySurface(2);
  EXPECT_TRUE(All(Input::Kind::Exposed).empty());
  All();
  EXPECT_EQ(person_.PixelAt({200, 200}), 0x00AA00u);
}

TEST_F(X11PresentTest, PaintingMayRaceWithResizing) {
  const xcb_window_t window = OpenDialog();
  for (LONG step = 0; step < 50; ++step) {
    person_.Resize(window, {100 + step * 9, 90 + (step * 37) % 300});
    while (display_->Poll()) {
    }
    Paint(kDialog, 0xFF000000u | static_cast<std::uint32_t>(step));
  }
  All();
  Paint(kDialog, 0xFFABCDEF);
  All();
  const RECT corner{540, 102, 541, 103};
  EXPECT_EQ(person_.Screenshot(window, corner), std::vector<std::uint32_t>{0xABCDEF});
}

}  // namespace
}  // namespace display
