#include <algorithm>

#include "graphics/Canvas.h"
#include "platform/Painter.h"

namespace {

// The four quarters of a disc or ring, moved into the corners of a rectangle.
void FillCorners(const DeviceContext& context, const CRect& rect, const ShapeMask& mask, int corner,
                 COLORREF color) {
  CRect quarter(0, 0, corner, corner);
  int far = mask.width - corner;
  int right = rect.right - corner;
  int bottom = rect.bottom - corner;
  FillMask(context, mask, quarter, {rect.left, rect.top}, color);
  FillMask(context, mask, quarter.Moved(far, 0), {right, rect.top}, color);
  FillMask(context, mask, quarter.Moved(0, far), {rect.left, bottom}, color);
  FillMask(context, mask, quarter.Moved(far, far), {right, bottom}, color);
}

int Diameter(const CRect& rect, int radius) {
  int shortest = std::min(rect.Width(), rect.Height());
  return radius >= shortest / 2 ? shortest : 2 * radius;
}

void FillCentred(const DeviceContext* context, const RECT& rect, Shape shape, COLORREF color) {
  if (!context) return;
  CRect area = ToSurface(*context, rect);
  int size = std::min(area.Width(), area.Height());
  if (size <= 0 || !context->clip.Intersects(area)) return;
  POINT place{area.left + (area.Width() - size) / 2, area.top + (area.Height() - size) / 2};
  FillMask(*context, GetShapeMask(shape, size, size), CRect(0, 0, size, size), place, color);
}

void FillShape(const DeviceContext* context, const RECT& rect, Shape shape, int thickness,
               COLORREF color) {
  if (!context) return;
  CRect area = ToSurface(*context, rect);
  if (area.IsEmpty() || !context->clip.Intersects(area)) return;
  const ShapeMask& mask = GetShapeMask(shape, area.Width(), area.Height(), thickness);
  FillMask(*context, mask, CRect(0, 0, mask.width, mask.height), area.TopLeft(), color);
}

Shape ArrowShape(ArrowDirection direction, bool mirrored) {
  switch (direction) {
    case ArrowDirection::Up: return Shape::ArrowUp;
    case ArrowDirection::Down: return Shape::ArrowDown;
    case ArrowDirection::Left: return mirrored ? Shape::ArrowRight : Shape::ArrowLeft;
    default: return mirrored ? Shape::ArrowLeft : Shape::ArrowRight;
  }
}

}  // namespace

void Painter::FillRoundRect(const RECT& rect, int radius, COLORREF color) {
  if (radius <= 0) return FillRect(rect, color);
  if (IsClippedOut(rect)) return;
  const DeviceContext& context = *Context();
  CRect area = ToSurface(context, rect);
  int diameter = Diameter(area, radius);
  int corner = diameter / 2;
  const ShapeMask& disc = GetShapeMask(Shape::Ellipse, diameter, diameter);
  FillCorners(context, area, disc, corner, color);
  int top = area.top + corner;
  int bottom = area.bottom - corner;
  FillPixels(context, CRect(area.left + corner, area.top, area.right - corner, top), color);
  FillPixels(context, CRect(area.left, top, area.right, bottom), color);
  FillPixels(context, CRect(area.left + corner, bottom, area.right - corner, area.bottom), color);
}

void Painter::FrameRoundRect(const RECT& rect, int radius, COLORREF color, int thickness) {
  if (radius <= 0) return FrameRect(rect, color, thickness);
  if (IsClippedOut(rect) || thickness <= 0) return;
  const DeviceContext& context = *Context();
  CRect area = ToSurface(context, rect);
  int diameter = Diameter(area, radius);
  int corner = diameter / 2;
  int line = std::min({thickness, area.Width() / 2, area.Height() / 2});
  const ShapeMask& ring = GetShapeMask(Shape::Ring, diameter, diameter, line);
  FillCorners(context, area, ring, corner, color);
  CRect columns(area.left + corner, area.top, area.right - corner, area.bottom);
  CRect rows(area.left, area.top + corner, area.right, area.bottom - corner);
  FillPixels(context, CRect(columns.left, area.top, columns.right, area.top + line), color);
  FillPixels(context, CRect(columns.left, area.bottom - line, columns.right, area.bottom), color);
  FillPixels(context, CRect(area.left, rows.top, area.left + line, rows.bottom), color);
  FillPixels(context, CRect(area.right - line, rows.top, area.right, rows.bottom), color);
}

void Painter::FillEllipse(const RECT& rect, COLORREF color) {
  FillShape(Context(), rect, Shape::Ellipse, 0, color);
}

void Painter::FrameEllipse(const RECT& rect, COLORREF color, int thickness) {
  FillShape(Context(), rect, Shape::Ring, thickness, color);
}

void Painter::CheckMark(const RECT& rect, COLORREF color) {
  FillCentred(Context(), rect, Shape::CheckMark, color);
}

void Painter::Arrow(const RECT& rect, ArrowDirection direction, COLORREF color) {
  const DeviceContext* context = Context();
  bool mirrored = context && context->mirrorWidth >= 0;
  FillCentred(context, rect, ArrowShape(direction, mirrored), color);
}

void Painter::Cross(const RECT& rect, COLORREF color) {
  FillCentred(Context(), rect, Shape::Cross, color);
}
