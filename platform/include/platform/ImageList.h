#pragma once

// Pictures of one size that are drawn by their numbers: the signs of lists, trees and tool bars.

#include <vector>

#include "Bitmap.h"
#include "Geometry.h"

class Painter;

#pragma GCC visibility push(default)  // hosts may use all of this

class PLATFORM_API CImageList {
 public:
  CImageList() = default;
  CImageList(const CImageList&) = delete;
  CImageList& operator=(const CImageList&) = delete;

  // An empty list for pictures of this size in pixels. FALSE, and nothing changes, for a size that
  // bitmaps cannot have.
  BOOL Create(int width, int height);
  // Appends copies of what stands side by side in the bitmap, as often as the size fits. White of
  // the mask makes them invisible; without a mask their own alpha counts. The number of the first,
  // or -1 when the bitmap is too small, and when the mask is not of its size.
  int Add(HBITMAP pictures, HBITMAP mask = nullptr);
  // Puts the icon, scaled to the list's size, in the place of a picture, or appends it for -1. The
  // picture's number, or -1 when there is none such.
  int ReplaceIcon(int index, HICON icon);
  // Those behind move up; -1 removes all. FALSE for an unknown number.
  BOOL Remove(int index);
  int GetImageCount() const { return static_cast<int>(pictures_.size()); }
  SIZE GetImageSize() const { return size_; }
  // Its top left corner there, blended as Painter::Picture says. FALSE for an unknown number.
  BOOL Draw(Painter& painter, int index, POINT corner, BYTE opacity = 255) const;

 private:
  bool Has(int index) const { return index >= 0 && index < GetImageCount(); }

  SIZE size_{};
  std::vector<UniqueBitmap> pictures_;
};

#pragma GCC visibility pop
