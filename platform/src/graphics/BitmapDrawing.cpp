// Drawing bitmaps, on windows and into other sizes.

#include "graphics/BitmapObject.h"

#include <algorithm>

#include "graphics/Canvas.h"
#include "platform/Painter.h"

namespace {

// Fills the rectangle with the whole picture.
void DrawPicture(cairo_t* cairo, cairo_surface_t* picture, const BitmapObject& size,
                 const CRect& rect, BYTE opacity = 255) {
  cairo_translate(cairo, rect.left, rect.top);
  const bool scaled = rect.Width() != size.Width() || rect.Height() != size.Height();
  cairo_rectangle(cairo, 0, 0, rect.Width(), rect.Height());
  cairo_clip(cairo);
  if (scaled) {
    cairo_scale(cairo, static_cast<double>(rect.Width()) / size.Width(),
                static_cast<double>(rect.Height()) / size.Height());
  }
  cairo_set_source_surface(cairo, picture, 0, 0);
  cairo_pattern_t* pattern = cairo_get_source(cairo);
  cairo_pattern_set_filter(pattern, scaled ? CAIRO_FILTER_GOOD : CAIRO_FILTER_NEAREST);
  cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);  // the edges stay as opaque as they are
  cairo_paint_with_alpha(cairo, opacity / 255.0);
}

std::uint32_t Straight(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  if (alpha == 0) return 0;
  const auto channel = [&](int shift) {
    return std::min<std::uint32_t>((((pixel >> shift) & 0xFF) * 255 + alpha / 2) / alpha, 255)
           << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

void CopyStraight(cairo_surface_t* surface, BitmapObject& bitmap) {
  cairo_surface_flush(surface);
  const auto* row = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface));
  const int stride = cairo_image_surface_get_stride(surface) / 4;
  const auto pixels = bitmap.Pixels();
  for (auto to = pixels.begin(); to != pixels.end(); row += stride) {
    to = std::transform(row, row + bitmap.Width(), to, Straight);
  }
}

}  // namespace

void Painter::Picture(HBITMAP bitmap, const RECT& rect, BYTE opacity) {
  const DeviceContext* context = Context();
  BitmapObject* object = FindBitmap(bitmap);
  if (!context || !context->surface || !object || CRect(rect).IsEmpty()) return;
  const CRect place = ToSurface(*context, rect);
  cairo_surface_t* picture = context->clip.Intersects(place) ? object->Drawable() : nullptr;
  if (!picture) return;
  cairo_t* cairo = context->surface->Context();
  cairo_save(cairo);
  for (const RECT& allowed : context->clip.Rects()) {
    const CRect part(allowed);
    cairo_rectangle(cairo, part.left, part.top, part.Width(), part.Height());
  }
  cairo_clip(cairo);
  DrawPicture(cairo, picture, *object, place, opacity);
  cairo_restore(cairo);
}

HBITMAP StretchBitmap(HBITMAP bitmap, int width, int height) {
  BitmapObject* original = FindBitmap(bitmap);
  if (!original || !IsPictureSize(width, height)) return nullptr;
  cairo_surface_t* picture = original->Drawable();
  const CairoSurfacePtr surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  if (!picture || !cairo_image_surface_get_data(surface.get())) return nullptr;
  cairo_t* cairo = cairo_create(surface.get());
  DrawPicture(cairo, picture, *original, CRect(0, 0, width, height));
  cairo_destroy(cairo);
  auto stretched = std::make_unique<BitmapObject>(width, height, original->Depth());
  CopyStraight(surface.get(), *stretched);
  return AddBitmap(std::move(stretched));
}
