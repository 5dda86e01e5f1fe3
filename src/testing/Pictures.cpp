#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Bitmap.h"
#include "platform/Picture.h"
#include "testing/Robot.h"

namespace Wexa::Testing {

namespace {

// Null where there is no such file.
UniqueBitmap ReadPicture(const std::string& file) {
  if (!std::filesystem::exists(file)) return nullptr;
  std::ifstream in(file, std::ios::binary);
  const std::vector<BYTE> bytes(std::istreambuf_iterator<char>(in), {});
  UniqueBitmap picture(DecodeBitmap(bytes));
  if (!picture) throw std::runtime_error(file + " is no picture.");
  return picture;
}

std::string Beside(const std::string& file, const char* what) {
  std::filesystem::path path(file);
  path.replace_filename(path.stem().string() + "-" + what + ".png");
  return path.string();
}

bool AreSizesEqual(HBITMAP a, HBITMAP b) {
  BITMAP first{}, second{};
  return GetBitmapDescription(a, &first) && GetBitmapDescription(b, &second) &&
         first.bmWidth == second.bmWidth && first.bmHeight == second.bmHeight;
}

bool IsOff(std::uint32_t a, std::uint32_t b, int tolerance) {
  for (const int shift : {0, 8, 16}) {
    const auto channel = [shift](std::uint32_t color) {
      return static_cast<int>(color >> shift & 0xFF);
    };
    if (std::abs(channel(a) - channel(b)) > tolerance) return true;
  }
  return false;
}

// Paints the pixels of `shown` that are off in red; returns how many they are.
std::size_t MarkDifferences(HBITMAP shown, HBITMAP expected, int tolerance) {
  constexpr std::uint32_t kRed = 0xFFFF0000;
  const auto pixels = BitmapPixels(shown);
  const auto wanted = BitmapPixels(expected);
  std::size_t count = 0;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    if (!IsOff(pixels[i], wanted[i], tolerance)) continue;
    pixels[i] = kRed;
    ++count;
  }
  return count;
}

}  // namespace

bool LooksLike(HWND window, const std::string& file, PictureTolerance tolerance) {
  const UniqueBitmap shown(PictureOfWindow(window));
  if (!shown) throw std::runtime_error(file + ": no top-level window to compare with.");
  const UniqueBitmap expected = ReadPicture(file);
  UniqueBitmap difference;
  if (AreSizesEqual(shown.get(), expected.get())) {
    difference.reset(CopyBitmap(shown.get()));
    const auto off = MarkDifferences(difference.get(), expected.get(), tolerance.channel);
    const auto all = static_cast<double>(BitmapPixels(shown.get()).size());
    if (static_cast<double>(off) <= tolerance.share * all) return true;
  }
  SavePicture(shown.get(), Beside(file, "shown"));
  if (difference) SavePicture(difference.get(), Beside(file, "difference"));
  return false;
}

}  // namespace Wexa::Testing
