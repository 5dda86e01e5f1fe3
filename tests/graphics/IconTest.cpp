#include <gtest/gtest.h>

#include "platform/Bitmap.h"
#include "support/PictureFiles.h"

namespace {

using pictures::Always;
using pictures::Bytes;
using pictures::IconImageBytes;

HICON Create(const Bytes& bytes, BOOL isIcon = TRUE) {
  return CreateIconFromResourceEx(bytes.data(), static_cast<DWORD>(bytes.size()), isIcon,
                                  kIconResourceVersion, 0, 0, LR_DEFAULTCOLOR);
}

struct Opened {
  explicit Opened(const Bytes& bytes, BOOL isIcon = TRUE) {
    const HICON icon = Create(bytes, isIcon);
    exists = GetIconInfo(icon, &info);
    size = GetIconSize(icon);
    color.reset(info.hbmColor);
    mask.reset(info.hbmMask);
    DestroyIcon(icon);
  }
  std::uint32_t ColorAt(int x, int y) const { return At(color, x, y); }
  bool IsTransparentAt(int x, int y) const { return At(mask, x, y) == 0xFFFFFFFF; }
  std::uint32_t At(const UniqueBitmap& bitmap, int x, int y) const {
    return BitmapPixels(bitmap.get())[static_cast<std::size_t>(y * size.cx + x)];
  }

  bool exists = false;
  ICONINFO info{};
  SIZE size{};
  UniqueBitmap color;
  UniqueBitmap mask;
};

TEST(Icon, IndexedImagesTakeTheirColorsFromThePalette) {
  const std::vector<std::uint32_t> palette = {0x00102030, 0x00405060};
  for (const int depth : {1, 4, 8}) {
    SCOPED_TRACE(depth);
    const Opened icon(IconImageBytes(
        11, 3, depth, [](int x, int y) { return x == 9 && y == 1 ? 1 : 0; }, Always(0), palette));
    ASSERT_TRUE(icon.exists);
    EXPECT_EQ(icon.ColorAt(9, 1), 0xFF405060u);
    EXPECT_EQ(icon.ColorAt(8, 1), 0xFF102030u);
    EXPECT_EQ(icon.ColorAt(9, 0), 0xFF102030u);
  }
}

TEST(Icon, SixteenBitsHoldFiveOfEachColor) {
  const Opened icon(
      IconImageBytes(3, 2, 16, [](int x, int y) { return x == 2 && y == 1 ? 0xFC10u : 0u; }));
  ASSERT_TRUE(icon.exists);
  EXPECT_EQ(icon.ColorAt(2, 1), 0xFFFF0084u);
  EXPECT_EQ(icon.ColorAt(0, 0), 0xFF000000u);
}

TEST(Icon, AnIndexBeyondThePaletteIsBlack) {
  EXPECT_EQ(Opened(IconImageBytes(2, 2, 8, Always(200), Always(0), {1, 2})).ColorAt(0, 0),
            0xFF000000u);
}

TEST(Icon, TheMaskTellsWhatIsTransparent) {
  const Opened icon(IconImageBytes(9, 2, 24, Always(0x0A0B0C),
                                   [](int x, int y) { return x == 8 && y == 0 ? 1u : 0u; }));
  EXPECT_EQ(icon.ColorAt(0, 0), 0xFF0A0B0Cu);
  EXPECT_TRUE(icon.IsTransparentAt(8, 0));
  EXPECT_FALSE(icon.IsTransparentAt(8, 1));
  EXPECT_FALSE(icon.IsTransparentAt(0, 0));
}

TEST(Icon, AlphaCountsWhenAnyPixelHasIt) {
  BITMAP description{};
  const Opened with(IconImageBytes(2, 1, 32, [](int x, int) { return x ? 0x40112233u : 0u; }));
  GetBitmapDescription(with.color.get(), &description);
  EXPECT_EQ(description.bmBitsPixel, 32);
  EXPECT_EQ(with.ColorAt(0, 0), 0u);
  EXPECT_EQ(with.ColorAt(1, 0), 0x40112233u);
  const Opened without(IconImageBytes(2, 1, 32, Always(0x00112233)));
  GetBitmapDescription(without.color.get(), &description);
  EXPECT_EQ(description.bmBitsPixel, 24);
  EXPECT_EQ(without.ColorAt(0, 0), 0xFF112233u);
}

TEST(Icon, ACursorHasItsHotSpot) {
  Bytes bytes = {3, 0, 5, 0};
  pictures::Append(bytes, IconImageBytes(16, 16, 24, Always(0)));
  const Opened cursor(bytes, FALSE);
  ASSERT_TRUE(cursor.exists);
  EXPECT_FALSE(cursor.info.fIcon);
  EXPECT_EQ(cursor.info.xHotspot, 3u);
  EXPECT_EQ(cursor.info.yHotspot, 5u);
  EXPECT_EQ(cursor.size.cx, 16);
}

TEST(Icon, ImagesThatEndTooEarlyAreNone) {
  const Bytes whole = IconImageBytes(5, 5, 4, Always(1), Always(0), {1, 2, 3});
  EXPECT_TRUE(Opened(whole).exists);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(Create(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))),
              nullptr);
  }
}

TEST(Icon, DamagedHeadersAreRefused) {
  const Bytes whole = IconImageBytes(4, 4, 8, Always(0), Always(0), {0});
  for (const std::size_t at : {0, 4, 7, 8, 11, 12, 13, 14, 16, 35}) {
    Bytes damaged = whole;
    damaged[at] = 0x9F;
    EXPECT_EQ(Create(damaged), nullptr) << "byte " << at;
  }
}

TEST(Icon, OtherVersionsSizesAndFlagsAreRefused) {
  const Bytes image = IconImageBytes(4, 4, 24, Always(0));
  const auto size = static_cast<DWORD>(image.size());
  EXPECT_EQ(CreateIconFromResourceEx(image.data(), size, TRUE, 0x20000, 0, 0, 0), nullptr);
  EXPECT_EQ(CreateIconFromResourceEx(image.data(), size, TRUE, 0x30000, 8, 8, 0), nullptr);
  EXPECT_EQ(CreateIconFromResourceEx(image.data(), size, TRUE, 0x30000, 0, 0, 1), nullptr);
  EXPECT_EQ(CreateIconFromResourceEx(nullptr, size, TRUE, 0x30000, 0, 0, 0), nullptr);
}

TEST(Icon, StaleHandlesDoNothing) {
  const HICON icon = Create(IconImageBytes(4, 4, 24, Always(0)));
  EXPECT_TRUE(DestroyIcon(icon));
  EXPECT_FALSE(DestroyIcon(icon));
  ICONINFO info{};
  EXPECT_FALSE(GetIconInfo(icon, &info));
  EXPECT_EQ(GetIconSize(icon).cx, 0);
}

}  // namespace
