#include "platform/ImageList.h"

#include <algorithm>

#include "platform/Painter.h"

namespace {

BITMAP DescriptionOf(HBITMAP bitmap) {
  BITMAP description{};
  GetBitmapDescription(bitmap, &description);
  return description;
}

// A part of a bitmap, in its depth.
UniqueBitmap Part(HBITMAP bitmap, int left, SIZE size) {
  const BITMAP whole = DescriptionOf(bitmap);
  UniqueBitmap part(CreateBitmap(size.cx, size.cy, whole.bmBitsPixel));
  auto to = BitmapPixels(part.get()).begin();
  auto row = BitmapPixels(bitmap).subspan(static_cast<std::size_t>(left));
  for (int y = 0; y < size.cy; ++y) {
    to = std::ranges::copy(row.first(static_cast<std::size_t>(size.cx)), to).out;
    if (y + 1 < size.cy) row = row.subspan(static_cast<std::size_t>(whole.bmWidth));
  }
  return part;
}

// The icon as one bitmap whose alpha tells what is seen.
UniqueBitmap PictureOf(HICON icon, SIZE size) {
  ICONINFO info{};
  if (!GetIconInfo(icon, &info)) return nullptr;
  const UniqueBitmap color(info.hbmColor);
  const UniqueBitmap mask(info.hbmMask);
  const UniqueBitmap masked(DescriptionOf(color.get()).bmBitsPixel == 32
                                ? CopyBitmap(color.get())
                                : WithAlphaOfMask(color.get(), mask.get()));
  return UniqueBitmap(StretchBitmap(masked.get(), size.cx, size.cy));
}

}  // namespace

BOOL CImageList::Create(int width, int height) {
  if (!UniqueBitmap(CreateBitmap(width, height, 32))) return FALSE;
  size_ = {width, height};
  pictures_.clear();
  return TRUE;
}

int CImageList::Add(HBITMAP pictures, HBITMAP mask) {
  const BITMAP whole = DescriptionOf(pictures);
  const BITMAP maskSize = DescriptionOf(mask);
  const bool fits = size_.cx > 0 && whole.bmWidth >= size_.cx && whole.bmHeight >= size_.cy;
  const bool masks = maskSize.bmWidth == whole.bmWidth && maskSize.bmHeight == whole.bmHeight;
  if (!fits || (mask && !masks)) return -1;
  const UniqueBitmap masked(mask ? WithAlphaOfMask(pictures, mask) : CopyBitmap(pictures));
  const int first = GetImageCount();
  for (int left = 0; left + size_.cx <= whole.bmWidth; left += size_.cx) {
    pictures_.push_back(Part(masked.get(), left, size_));
  }
  return first;
}

int CImageList::ReplaceIcon(int index, HICON icon) {
  UniqueBitmap picture = PictureOf(icon, size_);
  if (!picture || (index != -1 && !Has(index))) return -1;
  if (index == -1) {
    index = GetImageCount();
    pictures_.emplace_back();
  }
  pictures_[static_cast<std::size_t>(index)] = std::move(picture);
  return index;
}

BOOL CImageList::Remove(int index) {
  if (index == -1) {
    pictures_.clear();
    return TRUE;
  }
  if (!Has(index)) return FALSE;
  pictures_.erase(pictures_.begin() + index);
  return TRUE;
}

BOOL CImageList::Draw(Painter& painter, int index, POINT corner, BYTE opacity) const {
  if (!Has(index)) return FALSE;
  painter.Picture(pictures_[static_cast<std::size_t>(index)].get(),
                  {corner.x, corner.y, corner.x + size_.cx, corner.y + size_.cy}, opacity);
  return TRUE;
}
