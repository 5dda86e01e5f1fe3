#include "graphics/ShapeMask.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <numbers>
#include <tuple>
#include <utility>

namespace {

constexpr std::size_t kMaxMasks = 256;
constexpr int kMaxCachedSize = 64;

using Points = std::initializer_list<std::pair<double, double>>;

void AddEllipse(cairo_t* context, double width, double height, double inset) {
  if (width <= 2 * inset || height <= 2 * inset) return;
  cairo_save(context);
  cairo_translate(context, width / 2, height / 2);
  cairo_scale(context, width / 2 - inset, height / 2 - inset);
  cairo_new_sub_path(context);
  cairo_arc(context, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(context);
}

void FillRing(cairo_t* context, int width, int height, int thickness) {
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
  AddEllipse(context, width, height, 0);
  AddEllipse(context, width, height, thickness);
  cairo_fill(context);
}

// Points of a box with edges of 1; the thickness is a share of the edge, and at least one pixel.
void StrokeLine(cairo_t* context, int size, double thickness, Points points) {
  for (auto [x, y] : points) cairo_line_to(context, x * size, y * size);
  cairo_set_line_width(context, std::max(1.0, thickness * size));
  cairo_stroke(context);
}

void StrokeGlyph(cairo_t* context, Shape shape, int size) {
  constexpr double kArrowLine = 0.085;
  switch (shape) {
    case Shape::CheckMark:
      return StrokeLine(context, size, 0.115, {{0.18, 0.5}, {0.41, 0.73}, {0.83, 0.27}});
    case Shape::ArrowUp:
      return StrokeLine(context, size, kArrowLine, {{0.25, 0.625}, {0.5, 0.375}, {0.75, 0.625}});
    case Shape::ArrowDown:
      return StrokeLine(context, size, kArrowLine, {{0.25, 0.375}, {0.5, 0.625}, {0.75, 0.375}});
    case Shape::ArrowLeft:
      return StrokeLine(context, size, kArrowLine, {{0.625, 0.25}, {0.375, 0.5}, {0.625, 0.75}});
    case Shape::ArrowRight:
      return StrokeLine(context, size, kArrowLine, {{0.375, 0.25}, {0.625, 0.5}, {0.375, 0.75}});
    case Shape::Cross:
      StrokeLine(context, size, 0.035, {{0.33, 0.33}, {0.67, 0.67}});
      return StrokeLine(context, size, 0.035, {{0.67, 0.33}, {0.33, 0.67}});
    default: return;
  }
}

void Draw(cairo_t* context, Shape shape, int width, int height, int thickness) {
  if (shape == Shape::Ring) return FillRing(context, width, height, thickness);
  if (shape != Shape::Ellipse) return StrokeGlyph(context, shape, width);
  AddEllipse(context, width, height, 0);
  cairo_fill(context);
}

ShapeMask Rasterise(Shape shape, int width, int height, int thickness) {
  return RasteriseMask(width, height,
                       [&](cairo_t* context) { Draw(context, shape, width, height, thickness); });
}

}  // namespace

ShapeMask RasteriseMask(int width, int height, const std::function<void(cairo_t*)>& draw) {
  ShapeMask mask{width, height, {}};
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, width, height);
  cairo_t* context = cairo_create(surface);
  draw(context);
  cairo_destroy(context);
  cairo_surface_flush(surface);
  const unsigned char* row = cairo_image_surface_get_data(surface);
  mask.coverage.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; row && y < height; ++y, row += cairo_image_surface_get_stride(surface)) {
    mask.coverage.insert(mask.coverage.end(), row, row + width);
  }
  cairo_surface_destroy(surface);
  mask.coverage.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  return mask;
}

const ShapeMask& GetShapeMask(Shape shape, int width, int height, int thickness) {
  static auto& masks = *new std::map<std::tuple<Shape, int, int, int>, ShapeMask>;
  static ShapeMask& large = *new ShapeMask;
  if (std::max(width, height) > kMaxCachedSize) {
    return large = Rasterise(shape, width, height, thickness);
  }
  std::tuple key(shape, width, height, thickness);
  if (auto found = masks.find(key); found != masks.end()) return found->second;
  if (masks.size() >= kMaxMasks) masks.clear();
  return masks.emplace(key, Rasterise(shape, width, height, thickness)).first->second;
}
