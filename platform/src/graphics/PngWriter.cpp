#include "graphics/PngWriter.h"

#include <cairo.h>

#include <stdexcept>

#include "graphics/Surface.h"

void WritePng(const Surface& surface, const std::string& path) {
  cairo_surface_t* pixels = cairo_get_target(surface.Context());
  cairo_status_t status = cairo_surface_write_to_png(pixels, path.c_str());
  if (status == CAIRO_STATUS_SUCCESS) return;
  throw std::runtime_error("Cannot write " + path + ": " + cairo_status_to_string(status));
}
