#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "WexaUtils.h"
#include "platform/Bitmap.h"
#include "support/PictureFiles.h"

namespace Wexa {
namespace {

using pictures::Always;
using pictures::BmpFile;
using pictures::Bytes;
using pictures::IconFile;
using pictures::IconImageBytes;

constexpr std::uint32_t kRed = 0xFFFF0000;

UniqueBitmap Get(const Bytes& bytes, WexaUtils::ImageTypes type, int iconSize = 0) {
  return UniqueBitmap(
      WexaUtils::GetBitmap(bytes.data(), static_cast<int>(bytes.size()), type, iconSize));
}

HICON FirstIcon(const Bytes& bytes) {
  return WexaUtils::GetIconFromBuffer(bytes.data(), static_cast<int>(bytes.size()));
}

BITMAP DescriptionOf(HBITMAP bitmap) {
  BITMAP description{};
  GetBitmapDescription(bitmap, &description);
  return description;
}

// The width of the icon chosen of an icon file with images of these widths.
int ChosenWidth(const std::vector<int>& widths, int iconSize) {
  std::vector<Bytes> images;
  for (int width : widths) images.push_back(IconImageBytes(width, 4, 24, Always(1)));
  return DescriptionOf(Get(IconFile(images), WexaUtils::ICO, iconSize).get()).bmWidth;
}

TEST(Pictures, TheIconOfTheWidthOrTheNextNarrowerIsChosen) {
  EXPECT_EQ(ChosenWidth({16, 32, 48}, 32), 32);
  EXPECT_EQ(ChosenWidth({16, 32, 48}, 24), 16);
  EXPECT_EQ(ChosenWidth({48, 32, 16}, 40), 32);
  EXPECT_EQ(ChosenWidth({32, 16, 48}, 8), 32) << "none is narrower: the first";
  EXPECT_EQ(ChosenWidth({16, 32, 48}, 1000), 48);
  const Bytes equal =
      IconFile({IconImageBytes(16, 4, 24, Always(1)), IconImageBytes(16, 8, 24, Always(1))});
  EXPECT_EQ(DescriptionOf(Get(equal, WexaUtils::ICO, 20).get()).bmHeight, 8) << "the last";
  EXPECT_EQ(DescriptionOf(Get(equal, WexaUtils::ICO, 16).get()).bmHeight, 4) << "the first exact";
}

TEST(Pictures, OtherTypesAndFilesWithoutIconsAreDecoded) {
  const Bytes bmp = BmpFile(3, 2, Always(kRed));
  const UniqueBitmap bitmap = Get(bmp, WexaUtils::BMP);
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(BitmapPixels(bitmap.get())[5], kRed);
  EXPECT_TRUE(Get(bmp, WexaUtils::Unknown)) << "the bytes tell their format";
  EXPECT_FALSE(Get(Bytes(100, 0), WexaUtils::ICO));
  EXPECT_EQ(WexaUtils::GetBitmap(nullptr, 10, WexaUtils::PNG, 0), nullptr);
  EXPECT_EQ(WexaUtils::GetBitmap(bmp.data(), -1, WexaUtils::ICO, 0), nullptr);
}

TEST(Pictures, IconsAreFoundWhereverTheyStart) {
  Bytes bytes(13, 0x28);
  pictures::Append(bytes, {0, 0, 0});
  pictures::Append(bytes, IconImageBytes(4, 4, 24, Always(0)));
  const HICON icon = FirstIcon(bytes);
  EXPECT_EQ(GetIconSize(icon).cx, 4);
  DestroyIcon(icon);
  EXPECT_EQ(FirstIcon(Bytes(100, 0x28)), nullptr);
  EXPECT_EQ(FirstIcon({0x28, 0, 0, 0}), nullptr);
}

// Headers one after the other, each claiming what follows as its pixels.
TEST(Pictures, OverlappingIconsDoNotMultiply) {
  Bytes bytes;
  for (int i = 0; i < 20000; ++i) pictures::PutHeader(bytes, 256, 512, 1, 0);
  bytes.resize(bytes.size() + 100000);
  EXPECT_TRUE(Get(bytes, WexaUtils::ICO, 16));
}

TEST(Pictures, AnIconWithoutAlphaGetsItFromItsMask) {
  const HICON icon =
      FirstIcon(IconImageBytes(2, 1, 24, Always(0x102030), [](int x, int) { return x ? 1u : 0u; }));
  bool hasAlpha = true;
  const UniqueBitmap bitmap(WexaUtils::HIconToHBitmapAlpha(icon, hasAlpha));
  EXPECT_FALSE(hasAlpha);
  EXPECT_EQ(DescriptionOf(bitmap.get()).bmBitsPixel, 32);
  EXPECT_EQ(BitmapPixels(bitmap.get())[0], 0xFF102030u);
  EXPECT_EQ(BitmapPixels(bitmap.get())[1], 0x00102030u);
  const UniqueBitmap plain(WexaUtils::HIconToHBitmap(icon));
  EXPECT_EQ(BitmapPixels(plain.get())[1], 0xFF102030u);
  DestroyIcon(icon);
}

TEST(Pictures, AnIconsOwnAlphaIsKept) {
  const HICON icon =
      FirstIcon(IconImageBytes(2, 1, 32, [](int x, int) { return x ? 0x80102030u : 0u; }));
  bool hasAlpha = false;
  const UniqueBitmap bitmap(WexaUtils::HIconToHBitmapAlpha(icon, hasAlpha));
  EXPECT_TRUE(hasAlpha);
  EXPECT_EQ(BitmapPixels(bitmap.get())[0], 0u);
  EXPECT_EQ(BitmapPixels(bitmap.get())[1], 0x80102030u);
  DestroyIcon(icon);
}

TEST(Pictures, NoIconGivesNoBitmap) {
  bool hasAlpha = false;
  EXPECT_EQ(WexaUtils::HIconToHBitmap(nullptr), nullptr);
  EXPECT_EQ(WexaUtils::HIconToHBitmapAlpha(nullptr, hasAlpha), nullptr);
  Bytes bytes(4);
  pictures::Append(bytes, IconImageBytes(2, 2, 24, Always(0)));
  const HICON cursor = CreateIconFromResourceEx(bytes.data(), static_cast<DWORD>(bytes.size()),
                                                FALSE, kIconResourceVersion, 0, 0, 0);
  EXPECT_EQ(WexaUtils::HIconToHBitmapAlpha(cursor, hasAlpha), nullptr);
  DestroyIcon(cursor);
}

// -- Recolouring

UniqueBitmap Pixels(const std::vector<std::uint32_t>& pixels, int depth = 32) {
  UniqueBitmap bitmap(CreateBitmap(static_cast<int>(pixels.size()), 1, depth));
  std::ranges::copy(pixels, BitmapPixels(bitmap.get()).begin());
  return bitmap;
}

TEST(Pictures, RecoloringLeavesTheShape) {
  const UniqueBitmap grey = Pixels({0x80FF0000, 0x0000FF00, 0xFF0000FF, 0xFF646464, 0xFFFFFFFF});
  ASSERT_EQ(WexaUtils::ReplaceColorToGray(nullptr, grey.get()), grey.get());
  EXPECT_THAT(BitmapPixels(grey.get()),
              testing::ElementsAre(0x804C4C4C, 0x00999999, 0xFF191919, 0xFF646464, 0xFFFFFFFF));
  const UniqueBitmap colored = Pixels({0x80FF0000, 0x00123456, 0xFF0000FF});
  ASSERT_EQ(WexaUtils::ReplaceColor(nullptr, colored.get(), 0x00332211), colored.get());
  EXPECT_THAT(BitmapPixels(colored.get()),
              testing::ElementsAre(0x80112233, 0x00112233, 0xFF112233));
  const UniqueBitmap zero = Pixels({0xFFFF0000}, 24);
  WexaUtils::ReplaceColor(nullptr, zero.get(), 0);
  EXPECT_EQ(BitmapPixels(zero.get())[0], 0xFF4C4C4Cu) << "grey, too";
  EXPECT_EQ(WexaUtils::ReplaceColor(nullptr, Pixels({0}, 1).get(), 1), nullptr) << "a mask";
  EXPECT_EQ(WexaUtils::ReplaceColorToGray(nullptr, nullptr), nullptr);
}

// -- Files

TEST(Pictures, AFileIsReadWhole) {
  const std::string path = testing::TempDir() + "wexa-picture";
  std::ofstream(path, std::ios::binary) << std::string("a\0b\xFF", 4);
  int size = -1;
  const std::unique_ptr<unsigned char[]> bytes(
      WexaUtils::LoadImageBuffer(std::wstring(path.begin(), path.end()), &size));
  ASSERT_EQ(size, 4);
  EXPECT_EQ(bytes[1], 0);
  EXPECT_EQ(bytes[3], 0xFF);
  std::filesystem::remove(path);
}

TEST(Pictures, AFileThatIsMissingOrTooBigGivesNothing) {
  const std::string path = testing::TempDir() + "wexa-picture";
  std::ofstream(path) << "GIF8";
  std::filesystem::resize_file(path, std::uintmax_t{1} << 31);  // all but the start takes no room
  for (const auto& file :
       {std::wstring(L"no\\such\\file.png"), std::wstring(path.begin(), path.end())}) {
    int size = -1;
    EXPECT_EQ(WexaUtils::LoadImageBuffer(file, &size), nullptr);
    EXPECT_EQ(size, 0);
  }
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace Wexa
