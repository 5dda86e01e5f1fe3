#include <algorithm>
#include <utility>

#include "graphics/BitmapObject.h"
#include "graphics/HandleTable.h"
#include "graphics/IconReader.h"

namespace {

constexpr std::uint32_t kWhite = 0xFFFFFFFF;
constexpr std::uint32_t kBlack = 0xFF000000;
constexpr std::size_t kHotSpotBytes = 4;

struct IconObject {
  bool isIcon;
  POINT hotSpot;
  UniqueBitmap color;
  UniqueBitmap mask;
};

HandleTable<HICON, IconObject>& Icons() {
  static auto& table = *new HandleTable<HICON, IconObject>;
  return table;
}

// Two little-endian words.
POINT HotSpotOf(std::span<const BYTE> bytes) {
  return {bytes[0] | bytes[1] << 8, bytes[2] | bytes[3] << 8};
}

UniqueBitmap ColorOf(const IconImage& image) {
  UniqueBitmap color(CreateBitmap(image.width, image.height, image.hasAlpha ? 32 : 24));
  std::ranges::copy(image.pixels, BitmapPixels(color.get()).begin());
  return color;
}

UniqueBitmap MaskOf(const IconImage& image) {
  UniqueBitmap mask(CreateBitmap(image.width, image.height, 1));
  std::ranges::transform(image.transparent, BitmapPixels(mask.get()).begin(),
                         [](bool transparent) { return transparent ? kWhite : kBlack; });
  return mask;
}

}  // namespace

HICON CreateIconFromResourceEx(const BYTE* image, DWORD size, BOOL isIcon, DWORD version, int width,
                               int height, UINT flags) {
  const bool asStored = width == 0 && height == 0 && flags == LR_DEFAULTCOLOR;
  if (!image || version != kIconResourceVersion || !asStored) return nullptr;
  std::span<const BYTE> bytes(image, size);
  if (!isIcon && size < kHotSpotBytes) return nullptr;
  const auto read = ReadIconImage(isIcon ? bytes : bytes.subspan(kHotSpotBytes));
  if (!read) return nullptr;
  const POINT hotSpot = isIcon ? POINT{read->width / 2, read->height / 2} : HotSpotOf(bytes);
  return Icons().Add(std::make_unique<IconObject>(
      IconObject{isIcon != FALSE, hotSpot, ColorOf(*read), MaskOf(*read)}));
}

HICON CreateIconIndirect(const ICONINFO* info) {
  BITMAP size{};
  if (!info || !GetBitmapDescription(info->hbmColor, &size)) return nullptr;
  const HBITMAP mask =
      info->hbmMask ? CopyBitmap(info->hbmMask) : CreateBitmap(size.bmWidth, size.bmHeight, 1);
  const POINT hotSpot{static_cast<LONG>(info->xHotspot), static_cast<LONG>(info->yHotspot)};
  return Icons().Add(std::make_unique<IconObject>(
      IconObject{info->fIcon != FALSE, hotSpot, UniqueBitmap(CopyBitmap(info->hbmColor)),
                 UniqueBitmap(mask)}));
}

BOOL DestroyIcon(HICON icon) {
  return Icons().Remove(icon) != nullptr;
}

BOOL GetIconInfo(HICON icon, ICONINFO* info) {
  const IconObject* object = Icons().Find(icon);
  if (!object || !info) return FALSE;
  *info = {object->isIcon, static_cast<DWORD>(object->hotSpot.x),
           static_cast<DWORD>(object->hotSpot.y), CopyBitmap(object->mask.get()),
           CopyBitmap(object->color.get())};
  return TRUE;
}

SIZE GetIconSize(HICON icon) {
  const IconObject* object = Icons().Find(icon);
  BITMAP size{};
  if (object) GetBitmapDescription(object->color.get(), &size);
  return {size.bmWidth, size.bmHeight};
}
