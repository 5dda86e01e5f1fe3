#include "graphics/Surface.h"

Surface::Surface(std::uint32_t* pixels, int width, int height, int strideBytes)
    : pixels_(pixels), width_(width), height_(height), stride_(strideBytes) {
  auto* bytes = reinterpret_cast<unsigned char*>(pixels);
  surface_ =
      cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_RGB24, width, height, strideBytes);
  context_ = cairo_create(surface_);
}

Surface::~Surface() {
  cairo_destroy(context_);
  cairo_surface_finish(surface_);
  cairo_surface_destroy(surface_);
}
