#include "platform/Painter.h"

#include <algorithm>
#include <utility>

#include "graphics/Canvas.h"

Painter::Painter(HDC dc) : dc_(dc), outerClips_(Context() ? Context()->savedClips.size() : 0) {
  if (DeviceContext* context = Context()) context->painted = true;
}

Painter::~Painter() {
  DeviceContext* context = Context();
  while (context && context->savedClips.size() > outerClips_) PopClip();
}

DeviceContext* Painter::Context() const {
  return GetDeviceContext(dc_);
}

void Painter::PushClip(const RECT& rect) {
  DeviceContext* context = Context();
  if (!context) return;
  context->savedClips.push_back(context->clip);
  context->clip.Intersect(ToSurface(*context, rect));
}

void Painter::PopClip() {
  DeviceContext* context = Context();
  if (!context || context->savedClips.size() <= outerClips_) return;
  context->clip = std::move(context->savedClips.back());
  context->savedClips.pop_back();
}

bool Painter::IsClippedOut(const RECT& rect) const {
  const DeviceContext* context = Context();
  return !context || !context->clip.Intersects(ToSurface(*context, rect));
}

void Painter::FillRect(const RECT& rect, COLORREF color) {
  if (const DeviceContext* context = Context()) {
    FillPixels(*context, ToSurface(*context, rect), color);
  }
}

void Painter::FrameRect(const RECT& rect, COLORREF color, int thickness) {
  CRect outer(rect);
  if (outer.IsEmpty() || thickness <= 0) return;
  if (thickness >= (std::min(outer.Width(), outer.Height()) + 1) / 2) return FillRect(rect, color);
  CRect inner = outer.Shrunk(thickness, thickness);
  FillRect(RECT{outer.left, outer.top, outer.right, inner.top}, color);
  FillRect(RECT{outer.left, inner.bottom, outer.right, outer.bottom}, color);
  FillRect(RECT{outer.left, inner.top, inner.left, inner.bottom}, color);
  FillRect(RECT{inner.right, inner.top, outer.right, inner.bottom}, color);
}

void Painter::FocusRect(const RECT& rect, COLORREF color) {
  int dot = ScaleUnits(1);
  CRect inner = CRect(rect).Shrunk(dot, dot);
  if (IsClippedOut(rect) || inner.IsEmpty()) return;
  for (int x = rect.left; x < rect.right; x += 2 * dot) {
    int end = std::min<int>(x + dot, rect.right);
    FillRect(RECT{x, rect.top, end, inner.top}, color);
    FillRect(RECT{x, inner.bottom, end, rect.bottom}, color);
  }
  for (int y = inner.top + dot; y < inner.bottom; y += 2 * dot) {
    int end = std::min<int>(y + dot, inner.bottom);
    FillRect(RECT{rect.left, y, inner.left, end}, color);
    FillRect(RECT{inner.right, y, rect.right, end}, color);
  }
}
