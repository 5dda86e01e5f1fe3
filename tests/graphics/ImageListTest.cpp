#include "platform/ImageList.h"

#include <gtest/gtest.h>

#include "graphics/TestCanvas.h"
#include "support/PictureFiles.h"

namespace {

constexpr std::uint32_t kOpaqueRed = 0xFFFF0000;
constexpr std::uint32_t kOpaqueBlack = 0xFF000000;

// Columns of these colours, each four pixels wide.
UniqueBitmap Strip(const std::vector<std::uint32_t>& colors, int depth = 32, int height = 4) {
  const int width = 4 * static_cast<int>(colors.size());
  UniqueBitmap bitmap(CreateBitmap(width, height, depth));
  const auto pixels = BitmapPixels(bitmap.get());
  for (std::size_t i = 0; i < pixels.size(); ++i)
    pixels[i] = colors[i % static_cast<std::size_t>(width) / 4];
  return bitmap;
}

COLORREF Drawn(const CImageList& list, int index, BYTE opacity = 255) {
  TestCanvas canvas(8, 8);
  canvas.Paint([&](Painter& painter) { list.Draw(painter, index, {2, 2}, opacity); });
  EXPECT_EQ(canvas.At(1, 1), kWhite);
  EXPECT_EQ(canvas.At(6, 6), kWhite);
  return canvas.At(5, 5);
}

class ImageListTest : public testing::Test {
 protected:
  ImageListTest() { list_.Create(4, 4); }
  CImageList list_;
};

TEST_F(ImageListTest, CutsAStripAndDrawsItsParts) {
  EXPECT_EQ(list_.Add(Strip({kOpaqueRed, kOpaqueBlack, 0}).get()), 0);
  EXPECT_EQ(list_.Add(Strip({kOpaqueBlack}).get()), 3);
  EXPECT_EQ(list_.GetImageCount(), 4);
  EXPECT_EQ(Drawn(list_, 0), kRed);
  EXPECT_EQ(Drawn(list_, 1), kBlack);
  EXPECT_EQ(Drawn(list_, 2), kWhite) << "its alpha is 0";
  EXPECT_EQ(Drawn(list_, 1, 0), kWhite);
  EXPECT_EQ(Drawn(list_, 1, 128), RGB(127, 127, 127));
  EXPECT_TRUE(list_.Remove(0));
  EXPECT_EQ(Drawn(list_, 0), kBlack);
  EXPECT_TRUE(list_.Remove(-1));
  EXPECT_EQ(list_.GetImageCount(), 0);
}

TEST_F(ImageListTest, AMaskAndIconsTellWhatIsSeen) {
  const auto colors = Strip({0xFF0000, 0xFF0000}, 24);
  const auto mask = Strip({0xFFFFFFFF, kOpaqueBlack}, 1);
  EXPECT_EQ(list_.Add(colors.get(), mask.get()), 0);
  EXPECT_EQ(Drawn(list_, 0), kWhite);
  EXPECT_EQ(Drawn(list_, 1), kRed);

  const auto bytes = pictures::IconImageBytes(8, 8, 24, pictures::Always(0xFF0000));
  const HICON icon = CreateIconFromResourceEx(bytes.data(), static_cast<DWORD>(bytes.size()), TRUE,
                                              kIconResourceVersion, 0, 0, LR_DEFAULTCOLOR);
  EXPECT_EQ(list_.ReplaceIcon(0, icon), 0);
  EXPECT_EQ(list_.ReplaceIcon(-1, icon), 2);
  DestroyIcon(icon);
  EXPECT_EQ(Drawn(list_, 0), kRed) << "scaled, and the list's own";
}

TEST_F(ImageListTest, WhatDoesNotFitIsRefused) {
  const auto low = Strip({kOpaqueRed}, 32, 3);
  const auto picture = Strip({kOpaqueRed, kOpaqueRed});
  EXPECT_EQ(list_.Add(nullptr), -1);
  EXPECT_EQ(list_.Add(low.get()), -1);
  EXPECT_EQ(list_.Add(picture.get(), low.get()), -1);
  EXPECT_EQ(list_.ReplaceIcon(-1, nullptr), -1);
  EXPECT_FALSE(list_.Remove(0));
  EXPECT_EQ(Drawn(list_, 0), kWhite);
  EXPECT_EQ(Drawn(list_, -1), kWhite);
  EXPECT_FALSE(list_.Create(0, 4));
  EXPECT_EQ(list_.GetImageSize().cx, 4);
  EXPECT_EQ(CImageList().Add(picture.get()), -1) << "of no size yet";
}

}  // namespace
