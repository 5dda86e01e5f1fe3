#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "FileText.h"
#include "WexaUtils.h"
#include "platform/Bitmap.h"

// Pictures and icons.

namespace {

std::span<const BYTE> BytesOf(const unsigned char* data, int size) {
  return data && size > 0 ? std::span<const BYTE>(data, static_cast<std::size_t>(size))
                          : std::span<const BYTE>();
}

}  // namespace

unsigned char* WexaUtils::LoadImageBuffer(const std::wstring& path, int* size) {
  const auto bytes = Wexa::ReadFile(path);
  if (size) *size = bytes ? static_cast<int>(bytes->size()) : 0;
  if (!bytes) return nullptr;
  auto buffer = std::make_unique<unsigned char[]>(bytes->size());
  std::ranges::copy(*bytes, buffer.get());
  return buffer.release();
}

HBITMAP WexaUtils::CharPToHBitmap(const unsigned char* data, int size) {
  return DecodeBitmap(BytesOf(data, size));
}

HBITMAP WexaUtils::GetBitmap(const unsigned char* data, int size, ImageTypes type, int iconSize) {
  std::vector<HICON> icons;
  if (type == ICO) GetIcons(icons, data, size);
  if (icons.empty()) return CharPToHBitmap(data, size);
  bool hasAlpha = false;
  const HBITMAP bitmap = HIconToHBitmapAlpha(SelectIcon(icons, iconSize), hasAlpha);
  DeleteIcons(icons);
  return bitmap;
}

// -- Icons

namespace {

// The size field that every bitmap inside an icon file starts with.
constexpr std::array<BYTE, 4> kHeaderStart = {0x28, 0, 0, 0};
// A pixel takes a bit of the image and one of the mask.
constexpr std::int64_t kPixelsPerByte = 4;

HICON IconAt(std::span<const BYTE> bytes) {
  return CreateIconFromResourceEx(bytes.data(), static_cast<DWORD>(bytes.size()), TRUE,
                                  kIconResourceVersion, 0, 0, LR_DEFAULTCOLOR);
}

// Hands over the icons of the bytes until `take` returns false.
template <typename Take>
void ForEachIcon(std::span<const BYTE> bytes, Take take) {
  while (bytes.size() > kHeaderStart.size()) {
    const auto found =
        std::search(bytes.begin(), bytes.end() - 1, kHeaderStart.begin(), kHeaderStart.end());
    bytes = bytes.subspan(static_cast<std::size_t>(found - bytes.begin()));
    const HICON icon = IconAt(bytes);
    if (icon && !take(icon)) return;
    bytes = bytes.subspan(1);
  }
}

}  // namespace

// Made-up headers can claim the same bytes again and again: there are never more pixels than fit.
void WexaUtils::GetIcons(std::vector<HICON>& icons, const unsigned char* data, int size) {
  std::int64_t room = kPixelsPerByte * size;
  ForEachIcon(BytesOf(data, size), [&](HICON icon) {
    icons.push_back(icon);
    const SIZE pixels = GetIconSize(icon);
    room -= std::int64_t{pixels.cx} * pixels.cy;
    return room > 0;
  });
}

HICON WexaUtils::GetIconFromBuffer(const unsigned char* data, int size) {
  HICON first = nullptr;
  ForEachIcon(BytesOf(data, size), [&](HICON icon) {
    first = icon;
    return false;
  });
  return first;
}

HICON WexaUtils::SelectIcon(std::vector<HICON>& icons, int size) {
  HICON best = icons.empty() ? nullptr : icons.front();
  int widest = 0;
  for (HICON icon : icons) {
    const int width = GetIconSize(icon).cx;
    if (width == size) return icon;
    if (width > size || width < widest) continue;
    best = icon;
    widest = width;
  }
  return best;
}

void WexaUtils::DeleteIcons(std::vector<HICON>& icons) {
  for (HICON icon : icons) DestroyIcon(icon);
}

namespace {

constexpr std::uint32_t kAlpha = 0xFF000000;

struct IconBitmaps {
  explicit IconBitmaps(HICON icon) {
    ICONINFO info{};
    if (!::GetIconInfo(icon, &info)) return;
    isIcon = info.fIcon != FALSE;
    color.reset(info.hbmColor);
    mask.reset(info.hbmMask);
  }

  bool isIcon = false;
  UniqueBitmap color;
  UniqueBitmap mask;
};

}  // namespace

HBITMAP WexaUtils::HIconToHBitmap(HICON icon) {
  return IconBitmaps(icon).color.release();
}

HBITMAP WexaUtils::HIconToHBitmapAlpha(HICON icon, bool& hasAlpha) {
  IconBitmaps bitmaps(icon);
  if (!bitmaps.isIcon) return nullptr;
  BITMAP description{};
  GetBitmapDescription(bitmaps.color.get(), &description);
  hasAlpha = description.bmBitsPixel == 32;
  return hasAlpha ? bitmaps.color.release()
                  : WithAlphaOfMask(bitmaps.color.get(), bitmaps.mask.get());
}

// -- Recolouring

namespace {

template <typename Change>
HBITMAP ChangeColors(HBITMAP bitmap, Change change) {
  BITMAP description{};
  if (!GetBitmapDescription(bitmap, &description) || description.bmBitsPixel < 24) return nullptr;
  for (std::uint32_t& pixel : BitmapPixels(bitmap)) pixel = (pixel & kAlpha) | change(pixel);
  return bitmap;
}

std::uint32_t GrayOf(std::uint32_t pixel) {
  const double red = pixel >> 16 & 0xFF;
  const double green = pixel >> 8 & 0xFF;
  const double blue = pixel & 0xFF;
  const auto gray = static_cast<std::uint32_t>(0.1 * blue + 0.6 * green + 0.3 * red);
  return gray << 16 | gray << 8 | gray;
}

}  // namespace

HBITMAP WexaUtils::ReplaceColorToGray(CWnd*, HBITMAP bitmap) {
  return ChangeColors(bitmap, GrayOf);
}

HBITMAP WexaUtils::ReplaceColor(CWnd* window, HBITMAP bitmap, unsigned long color) {
  if (color == 0) return ReplaceColorToGray(window, bitmap);
  const auto word = static_cast<COLORREF>(color);
  const std::uint32_t pixel = static_cast<std::uint32_t>(GetRValue(word)) << 16 |
                              static_cast<std::uint32_t>(GetGValue(word)) << 8 | GetBValue(word);
  return ChangeColors(bitmap, [pixel](std::uint32_t) { return pixel; });
}
