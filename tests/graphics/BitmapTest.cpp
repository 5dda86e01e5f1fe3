#include "platform/Bitmap.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>

// These macros of glib would stand in the way of the constants in platform/Types.h.
#undef TRUE
#undef FALSE

#include <algorithm>
#include <functional>

#include "graphics/TestCanvas.h"
#include "support/PictureFiles.h"

namespace {

using pictures::Bytes;

constexpr std::uint32_t kTopLeft = 0xFFC83214;
constexpr std::uint32_t kOther = 0xFF1464F0;

BITMAP DescriptionOf(const UniqueBitmap& bitmap) {
  BITMAP description{};
  GetBitmapDescription(bitmap.get(), &description);
  return description;
}

UniqueBitmap Decode(const Bytes& bytes) {
  return UniqueBitmap(DecodeBitmap(bytes));
}

UniqueBitmap Filled(int width, int height, std::uint32_t color) {
  UniqueBitmap bitmap(CreateBitmap(width, height, 32));
  std::ranges::fill(BitmapPixels(bitmap.get()), color);
  return bitmap;
}

// A picture of two colours, the first in the top left quarter.
Bytes Encode(const char* type, int width, int height, bool hasAlpha) {
  GdkPixbuf* picture = gdk_pixbuf_new(GDK_COLORSPACE_RGB, hasAlpha, 8, width, height);
  gdk_pixbuf_fill(picture, kOther << 8 | (hasAlpha ? 0x80 : 0xFF));
  GdkPixbuf* corner = gdk_pixbuf_new_subpixbuf(picture, 0, 0, width / 2, height / 2);
  gdk_pixbuf_fill(corner, kTopLeft << 8 | 0xFF);
  gchar* data = nullptr;
  gsize size = 0;
  gdk_pixbuf_save_to_buffer(picture, &data, &size, type, nullptr, nullptr);
  const Bytes bytes(data, data + size);
  g_free(data);
  g_object_unref(corner);
  g_object_unref(picture);
  return bytes;
}

// One pixel of the second of two colours.
const Bytes kGif = {'G', 'I',  'F',  '8',  '9',  'a',  1,    0,    1,    0, 0x80, 0,
                    0,   0xC8, 0x32, 0x14, 0x14, 0x64, 0xF0, 0x2C, 0,    0, 0,    0,
                    1,   0,    1,    0,    0,    2,    2,    0x4C, 0x01, 0, 0x3B};

TEST(BitmapDecoding, ReadsTheCommonFormats) {
  for (const char* type : {"png", "bmp", "tiff"}) {
    SCOPED_TRACE(type);
    const UniqueBitmap bitmap = Decode(Encode(type, 8, 6, false));
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(DescriptionOf(bitmap).bmWidth, 8);
    EXPECT_EQ(DescriptionOf(bitmap).bmHeight, 6);
    EXPECT_EQ(BitmapPixels(bitmap.get())[0], kTopLeft);
    EXPECT_EQ(BitmapPixels(bitmap.get())[4], kOther);
    EXPECT_EQ(BitmapPixels(bitmap.get())[47], kOther);
  }
}

TEST(BitmapDecoding, ReadsJpegAndGif) {
  const UniqueBitmap jpeg = Decode(Encode("jpeg", 64, 64, false));
  ASSERT_TRUE(jpeg);
  EXPECT_EQ(DescriptionOf(jpeg).bmBitsPixel, 24);
  EXPECT_NEAR(BitmapPixels(jpeg.get())[64 * 8 + 8] >> 16 & 0xFF, 0xC8, 12);
  const UniqueBitmap gif = Decode(kGif);
  ASSERT_TRUE(gif);
  EXPECT_EQ(BitmapPixels(gif.get())[0], kOther);
}

TEST(BitmapDecoding, KeepsAlphaApartFromColor) {
  const UniqueBitmap bitmap = Decode(Encode("png", 4, 4, true));
  EXPECT_EQ(DescriptionOf(bitmap).bmBitsPixel, 32);
  EXPECT_EQ(BitmapPixels(bitmap.get())[0], kTopLeft);
  EXPECT_EQ(BitmapPixels(bitmap.get())[15], 0x801464F0u);
}

TEST(BitmapDecoding, RefusesWhatIsNoPicture) {
  EXPECT_FALSE(Decode({}));
  EXPECT_FALSE(Decode({0x89}));
  EXPECT_FALSE(Decode(Bytes(5000, 'x')));
  for (const std::string file : {"P3 1 1 255 9 9 9\n", "<svg width='9' height='9'></svg>",
                                 "/* XPM */ static char *a[] = {\"1 1 1 1\", \"a c red\", \"a\"};"})
    EXPECT_FALSE(Decode(Bytes(file.begin(), file.end()))) << file;
}

TEST(BitmapDecoding, ReadsIconsAndCursors) {
  Bytes file =
      pictures::IconFile({pictures::IconImageBytes(16, 16, 32, pictures::Always(kTopLeft))});
  for (const Bytes::value_type kind : Bytes{1, 2}) {
    file[2] = kind;
    const UniqueBitmap bitmap = Decode(file);
    ASSERT_TRUE(bitmap) << int{kind};
    EXPECT_EQ(BitmapPixels(bitmap.get())[0], kTopLeft);
  }
}

// The last bytes of a file are no pixels any more.
TEST(BitmapDecoding, RefusesWhatEndsTooEarly) {
  for (const char* type : {"png", "bmp", "jpeg", "tiff"}) {
    const Bytes whole = Encode(type, 40, 40, false);
    for (std::size_t size = 0; size + 30 < whole.size(); size += 7) {
      EXPECT_FALSE(Decode(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))))
          << type << " of " << size << " bytes";
    }
  }
  EXPECT_FALSE(Decode(Bytes(kGif.begin(), kGif.end() - 4)));
}

TEST(BitmapDecoding, SurvivesDamagedBytes) {
  std::uint32_t random = 1;
  for (const char* type : {"png", "bmp", "jpeg", "tiff"}) {
    const Bytes whole = Encode(type, 16, 16, *type == 'p');
    for (int round = 0; round < 200; ++round) {
      Bytes damaged = whole;
      for (int i = 0; i < 3; ++i) {
        random = random * 1664525 + 1013904223;
        damaged[(random >> 8) % damaged.size()] = static_cast<unsigned char>(random >> 24);
      }
      Decode(damaged);
    }
  }
}

// The files are a few bytes long: their headers alone claim the size.
TEST(BitmapDecoding, RefusesHugeSizesFromTheHeader) {
  Bytes wide = pictures::BmpFile(2, 2, pictures::Always(kOther));
  wide[18 + 2] = 1;  // 65538 pixels
  EXPECT_FALSE(Decode(wide));
  Bytes large = Encode("png", 4, 4, false);
  large[16 + 2] = large[20 + 2] = 0x3F;  // 16 thousand a side
  EXPECT_FALSE(Decode(large));
  Bytes gif = kGif;
  gif[7] = gif[9] = 0xFF;
  EXPECT_FALSE(Decode(gif));
  Bytes credible = Encode("png", 2000, 2000, false);
  EXPECT_TRUE(Decode(credible));
  credible = Encode("png", 4, 4, false);
  credible[16 + 2] = credible[20 + 2] = 0x1F;  // 8 thousand a side, of some bytes
  EXPECT_FALSE(Decode(credible));
  Bytes jpeg = Encode("jpeg", 16, 16, false);
  const auto frame = std::ranges::search(jpeg, Bytes{0xFF, 0xC0}).begin();
  frame[5] = frame[7] = 0xFF;
  EXPECT_FALSE(Decode(jpeg));
}

TEST(Bitmap, SizesAndDepthsAreChecked) {
  EXPECT_EQ(CreateBitmap(0, 1, 32), nullptr);
  EXPECT_EQ(CreateBitmap(1, -1, 32), nullptr);
  EXPECT_EQ(CreateBitmap(kMaxPictureSide + 1, 1, 32), nullptr);
  EXPECT_EQ(CreateBitmap(kMaxPictureSide, kMaxPictureSide, 32), nullptr);
  EXPECT_EQ(CreateBitmap(1, 1, 16), nullptr);
}

TEST(Bitmap, StaleHandlesDoNothing) {
  const HBITMAP bitmap = CreateBitmap(2, 2, 32);
  EXPECT_TRUE(DeleteBitmap(bitmap));
  EXPECT_FALSE(DeleteBitmap(bitmap));
  EXPECT_EQ(CopyBitmap(bitmap), nullptr);
  EXPECT_EQ(StretchBitmap(bitmap, 1, 1), nullptr);
  EXPECT_TRUE(BitmapPixels(bitmap).empty());
  BITMAP description{};
  EXPECT_FALSE(GetBitmapDescription(bitmap, &description));
  TestCanvas canvas(4, 4);
  canvas.Paint([&](Painter& painter) { painter.Picture(bitmap, RECT{0, 0, 4, 4}); });
  EXPECT_TRUE(canvas.Ink().IsEmpty());
}

TEST(Bitmap, ACopyIsItsOwn) {
  const UniqueBitmap original = Filled(2, 1, kOther);
  const UniqueBitmap copy(CopyBitmap(original.get()));
  BitmapPixels(copy.get())[0] = kTopLeft;
  EXPECT_EQ(BitmapPixels(original.get())[0], kOther);
  EXPECT_EQ(BitmapPixels(copy.get())[1], kOther);
}

TEST(Bitmap, StretchingKeepsPlainColorsAndAlpha) {
  for (const std::uint32_t color : {0xFF1464F0u, 0x80FF0000u}) {
    const UniqueBitmap original = Filled(7, 5, color);
    for (const CSize size : {CSize(3, 2), CSize(20, 31), CSize(7, 1)}) {
      const UniqueBitmap stretched(StretchBitmap(original.get(), size.cx, size.cy));
      EXPECT_EQ(DescriptionOf(stretched).bmWidth, size.cx);
      EXPECT_EQ(DescriptionOf(stretched).bmHeight, size.cy);
      for (const std::uint32_t pixel : BitmapPixels(stretched.get())) ASSERT_EQ(pixel, color);
    }
  }
  EXPECT_EQ(StretchBitmap(Filled(1, 1, 0).get(), 0, 4), nullptr);
}

TEST(Bitmap, ShrinkingMixesAllPixels) {
  UniqueBitmap stripes = Filled(32, 32, 0xFF000000);
  const auto pixels = BitmapPixels(stripes.get());
  for (std::size_t i = 0; i < pixels.size(); i += 2) pixels[i] = 0xFFFFFFFF;
  const UniqueBitmap small(StretchBitmap(stripes.get(), 8, 8));
  for (const std::uint32_t pixel : BitmapPixels(small.get())) {
    EXPECT_NEAR(pixel & 0xFF, 0x80, 0x20);
  }
}

TEST(PainterPicture, FillsItsRectangleAndNothingElse) {
  const UniqueBitmap bitmap = Filled(4, 4, 0xFFFF0000);
  for (const RECT place : {RECT{2, 3, 6, 7}, RECT{1, 1, 11, 4}}) {
    TestCanvas canvas(12, 12);
    canvas.Paint([&](Painter& painter) { painter.Picture(bitmap.get(), place); });
    EXPECT_TRUE(canvas.Ink() == CRect(place));
    EXPECT_EQ(canvas.Count(kRed), CRect(place).Width() * CRect(place).Height());
  }
}

TEST(PainterPicture, MixesByAlphaAndStaysInTheClip) {
  const UniqueBitmap bitmap = Filled(4, 4, 0x80FF0000);
  TestCanvas canvas(8, 8);
  canvas.Paint([&](Painter& painter) {
    painter.PushClip(RECT{0, 0, 2, 8});
    painter.Picture(bitmap.get(), RECT{0, 0, 4, 4});
  });
  EXPECT_EQ(canvas.At(1, 1), RGB(255, 127, 127));
  EXPECT_EQ(canvas.At(2, 1), kWhite);
}

TEST(PainterPicture, ShowsWhatTheBitmapIsNow) {
  const UniqueBitmap bitmap = Filled(2, 2, 0xFFFF0000);
  TestCanvas canvas(2, 2);
  const auto show = [&](Painter& painter) { painter.Picture(bitmap.get(), RECT{0, 0, 2, 2}); };
  canvas.Paint(show);
  std::ranges::fill(BitmapPixels(bitmap.get()), 0xFF000000);
  canvas.Paint(show);
  EXPECT_EQ(canvas.Count(kBlack), 4);
}

TEST(PainterPicture, IsPlacedButNotTurnedInAMirroredWindow) {
  UniqueBitmap bitmap = Filled(2, 1, 0xFF000000);
  BitmapPixels(bitmap.get())[0] = 0xFFFF0000;
  TestCanvas canvas(8, 1);
  canvas.context.mirrorWidth = 8;
  canvas.Paint([&](Painter& painter) { painter.Picture(bitmap.get(), RECT{0, 0, 2, 1}); });
  EXPECT_EQ(canvas.At(6, 0), kRed);
  EXPECT_EQ(canvas.At(7, 0), kBlack);
}

}  // namespace
