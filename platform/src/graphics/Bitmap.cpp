#include "platform/Bitmap.h"

#include <algorithm>
#include <utility>

#include "graphics/BitmapObject.h"
#include "graphics/HandleTable.h"

namespace {

constexpr std::uint32_t kOpaqueBlack = 0xFF000000;

HandleTable<HBITMAP, BitmapObject>& Bitmaps() {
  static auto& table = *new HandleTable<HBITMAP, BitmapObject>;
  return table;
}

bool IsDepth(int bitsPerPixel) {
  return bitsPerPixel == 1 || bitsPerPixel == 24 || bitsPerPixel == 32;
}

std::uint32_t Premultiplied(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  const auto channel = [&](int shift) {
    return (((pixel >> shift) & 0xFF) * alpha + 127) / 255 << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

}  // namespace

BitmapObject::BitmapObject(int width, int height, int depth)
    : width_(width),
      height_(height),
      depth_(depth),
      pixels_(std::make_unique_for_overwrite<std::uint32_t[]>(Count())) {}

std::span<std::uint32_t> BitmapObject::Pixels() {
  drawable_.reset();
  return {pixels_.get(), Count()};
}

cairo_surface_t* BitmapObject::Drawable() {
  if (drawable_) return drawable_.get();
  CairoSurfacePtr surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width_, height_));
  auto* row = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
  if (!row) return nullptr;
  const int stride = cairo_image_surface_get_stride(surface.get()) / 4;
  const std::uint32_t* const end = pixels_.get() + Count();
  for (const std::uint32_t* from = pixels_.get(); from != end; from += width_, row += stride) {
    std::transform(from, from + width_, row, Premultiplied);
  }
  cairo_surface_mark_dirty(surface.get());
  drawable_ = std::move(surface);
  return drawable_.get();
}

bool IsPictureSize(std::int64_t width, std::int64_t height) {
  return width > 0 && height > 0 && width <= kMaxPictureSide && height <= kMaxPictureSide &&
         width * height <= kMaxPicturePixels;
}

HBITMAP AddBitmap(std::unique_ptr<BitmapObject> bitmap) {
  return Bitmaps().Add(std::move(bitmap));
}

BitmapObject* FindBitmap(HBITMAP bitmap) {
  return Bitmaps().Find(bitmap);
}

HBITMAP CreateBitmap(int width, int height, int bitsPerPixel) {
  if (!IsPictureSize(width, height) || !IsDepth(bitsPerPixel)) return nullptr;
  auto bitmap = std::make_unique<BitmapObject>(width, height, bitsPerPixel);
  std::ranges::fill(bitmap->Pixels(), bitsPerPixel == 32 ? 0 : kOpaqueBlack);
  return AddBitmap(std::move(bitmap));
}

HBITMAP CopyBitmap(HBITMAP bitmap) {
  const BitmapObject* original = FindBitmap(bitmap);
  if (!original) return nullptr;
  auto copy =
      std::make_unique<BitmapObject>(original->Width(), original->Height(), original->Depth());
  std::ranges::copy(original->Pixels(), copy->Pixels().begin());
  return AddBitmap(std::move(copy));
}

HBITMAP WithAlphaOfMask(HBITMAP color, HBITMAP mask) {
  constexpr std::uint32_t kAlpha = 0xFF000000;
  BITMAP size{};
  GetBitmapDescription(color, &size);
  const HBITMAP result = CreateBitmap(size.bmWidth, size.bmHeight, 32);
  std::ranges::transform(BitmapPixels(color), BitmapPixels(mask), BitmapPixels(result).begin(),
                         [](std::uint32_t pixel, std::uint32_t transparent) {
                           return (pixel & ~kAlpha) | ((transparent & ~kAlpha) ? 0 : kAlpha);
                         });
  return result;
}

BOOL DeleteBitmap(HBITMAP bitmap) {
  return Bitmaps().Remove(bitmap) != nullptr;
}

BOOL GetBitmapDescription(HBITMAP bitmap, BITMAP* description) {
  const BitmapObject* object = FindBitmap(bitmap);
  if (!object || !description) return FALSE;
  *description = {object->Width(), object->Height(), static_cast<WORD>(object->Depth())};
  return TRUE;
}

std::span<std::uint32_t> BitmapPixels(HBITMAP bitmap) {
  BitmapObject* object = FindBitmap(bitmap);
  return object ? object->Pixels() : std::span<std::uint32_t>();
}
