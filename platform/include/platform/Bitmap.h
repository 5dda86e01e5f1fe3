#pragma once

// Pictures and icons. Nothing here is larger than kMaxPictureSide pixels a side or
// kMaxPicturePixels in all: what would be is refused with null before memory is taken for it.

#include <cstdint>
#include <memory>
#include <span>

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

inline constexpr int kMaxPictureSide = 16384;
inline constexpr std::int64_t kMaxPicturePixels = std::int64_t{64} * 1024 * 1024;

struct BITMAP {
  LONG bmWidth;
  LONG bmHeight;
  WORD bmBitsPixel;  // 32 with an alpha channel, 24 without, 1 for the mask of an icon
};

// All pixels zero, or opaque black when there are fewer than 32 bits for each. Null for a size or a
// depth that is refused.
HBITMAP CreateBitmap(int width, int height, int bitsPerPixel);
HBITMAP CopyBitmap(HBITMAP bitmap);
BOOL DeleteBitmap(HBITMAP bitmap);
BOOL GetBitmapDescription(HBITMAP bitmap, BITMAP* description);
// The pixels, 0xAARRGGBB and not multiplied with their alpha, rows from top to bottom. Ask again
// after drawing the bitmap if they are to be changed. Empty for a stale handle.
std::span<std::uint32_t> BitmapPixels(HBITMAP bitmap);

// The first picture in the bytes of a BMP, GIF, JPEG, PNG, TIFF, icon or cursor file. Null when
// they are damaged, incomplete or none of these.
HBITMAP DecodeBitmap(std::span<const BYTE> bytes);
// A copy of 32 bits: opaque where the mask, of the same size, is black, and invisible elsewhere.
HBITMAP WithAlphaOfMask(HBITMAP color, HBITMAP mask);
// A smooth copy of another size, in the same depth.
HBITMAP StretchBitmap(HBITMAP bitmap, int width, int height);

struct BitmapDeleter {
  void operator()(HBITMAP bitmap) const { DeleteBitmap(bitmap); }
};
using UniqueBitmap = std::unique_ptr<HBITMAP__, BitmapDeleter>;

// -- Icons

inline constexpr DWORD kIconResourceVersion = 0x00030000;
inline constexpr UINT LR_DEFAULTCOLOR = 0x0;

struct ICONINFO {
  BOOL fIcon;  // FALSE: a cursor
  DWORD xHotspot;
  DWORD yHotspot;
  HBITMAP hbmMask;  // white where the icon is transparent, black elsewhere
  HBITMAP
  hbmColor;  // of 32 bits when the icon has an alpha channel, of 24 when only its mask counts
};

// Reads the image of an icon file: a device-independent bitmap of 1, 4, 8, 24 or 32 bits that is
// followed by its mask. A cursor's image comes after its hot spot. The icon has its image's size,
// for which `width` and `height` are 0. Null when the bytes hold no such image, or for another
// version, size or flags.
HICON CreateIconFromResourceEx(const BYTE* image, DWORD size, BOOL isIcon, DWORD version, int width,
                               int height, UINT flags);
// An icon or cursor of copies of these bitmaps; without a mask the colours' own alpha counts. Null
// without colours.
HICON CreateIconIndirect(const ICONINFO* info);
BOOL DestroyIcon(HICON icon);
// Both bitmaps are copies, which the caller deletes.
BOOL GetIconInfo(HICON icon, ICONINFO* info);
// Zero for a stale handle.
SIZE GetIconSize(HICON icon);

#pragma GCC visibility pop
