#include <algorithm>

#include "graphics/Canvas.h"
#include "graphics/FontCache.h"
#include "graphics/TextBlock.h"
#include "graphics/TextLineImpl.h"
#include "graphics/Utf8.h"
#include "platform/Painter.h"

namespace {

// Clips cairo to what may be painted of a rectangle, if that is not all of it anyway.
class ClipScope {
 public:
  ClipScope(const DeviceContext& context, const CRect& ink, const CRect& limit)
      : cairo_(context.surface->Context()),
        clips_(!limit.Contains(ink) || !context.clip.Contains(ink)) {
    if (!clips_) return;
    cairo_save(cairo_);
    for (const RECT& allowed : context.clip.Rects()) {
      CRect visible = limit.Intersected(ink).Intersected(allowed);
      if (visible.IsEmpty()) continue;
      cairo_rectangle(cairo_, visible.left, visible.top, visible.Width(), visible.Height());
    }
    cairo_clip(cairo_);
  }
  ~ClipScope() {
    if (clips_) cairo_restore(cairo_);
  }
  ClipScope(const ClipScope&) = delete;
  ClipScope& operator=(const ClipScope&) = delete;

 private:
  cairo_t* cairo_;
  bool clips_;
};

void SetColor(cairo_t* cairo, COLORREF color) {
  cairo_set_source_rgba(cairo, GetRValue(color) / 255.0, GetGValue(color) / 255.0,
                        GetBValue(color) / 255.0, AlphaOf(color) / 255.0);
}

void ShowLayout(cairo_t* cairo, PangoLayout* layout, POINT baseline) {
  cairo_move_to(cairo, baseline.x, baseline.y);
  pango_cairo_show_layout_line(cairo, pango_layout_get_line_readonly(layout, 0));
}

// The box with room for glyphs that reach beyond their advance.
CRect InkBounds(const CRect& box) {
  int overhang = box.Height() / 4 + 1;
  return box.Shrunk(-overhang, -overhang);
}

// Draws lines of a text block; everything is in surface pixels.
class LinePainter {
 public:
  LinePainter(const DeviceContext& context, RealizedFont& font, const CRect& limit, COLORREF color)
      : context_(context), font_(font), limit_(limit), color_(color) {}

  void Draw(const TextBlock::Line& line, BaseDirection direction, const CRect& box,
            bool underline) {
    CRect ink = InkBounds(box);
    if (!context_.clip.Intersects(limit_.Intersected(ink))) return;
    const ShapedLine& shaped = font_.Shape(line.text, direction);
    Show(shaped, ink, {box.left, box.top + font_.Metrics().ascent});
    if (underline && line.mnemonic >= 0) Underline(MnemonicSpan(line, shaped), box);
    if (font_.HasUnderline()) Underline({0, box.Width()}, box);
    if (font_.HasStrikeOut()) Rule({0, box.Width()}, box, font_.Metrics().ascent * 2 / 3);
  }

 private:
  using Span = std::pair<int, int>;

  void Show(const ShapedLine& shaped, const CRect& ink, POINT baseline) {
    if (!shaped.layout) return ShowGlyphs(shaped.run, ink, baseline);
    ClipScope clip(context_, ink, limit_);
    cairo_t* cairo = context_.surface->Context();
    SetColor(cairo, color_);
    ShowLayout(cairo, shaped.layout.get(), baseline);
  }

  void ShowGlyphs(const GlyphRun& run, const CRect& ink, POINT baseline) {
    CRect limit = ink.Intersected(limit_);
    PixelRegion visible(limit);
    if (!context_.clip.Contains(limit)) visible.Intersect(context_.clip);
    for (const PlacedGlyph& glyph : run.glyphs) {
      const GlyphMask& shape = font_.Glyph(glyph.id);
      POINT place{baseline.x + glyph.x + shape.offset.x, baseline.y + glyph.y + shape.offset.y};
      FillMask(*context_.surface, visible.Rects(), shape.mask, place, color_);
    }
  }

  void Underline(Span span, const CRect& box) {
    Rule(span, box, font_.Metrics().ascent + font_.LineThickness());
  }

  void Rule(Span span, const CRect& box, int y) {
    CRect rule(box.left + span.first, box.top + y, box.left + span.second,
               box.top + y + font_.LineThickness());
    FillPixels(context_, rule.Intersected(limit_), color_);
  }

  Span MnemonicSpan(const TextBlock::Line& line, const ShapedLine& shaped) {
    auto index = static_cast<std::size_t>(line.mnemonic);
    if (!shaped.layout) {
      int left = font_.Width(line.text.substr(0, index), BaseDirection::LeftToRight);
      return {left, left + font_.Width(line.text.substr(index, 1), BaseDirection::LeftToRight)};
    }
    PangoRectangle place;
    pango_layout_index_to_pos(shaped.layout.get(), Utf8Offsets(line.text)[index], &place);
    int edge = PANGO_PIXELS(place.x);
    return std::minmax(edge, edge + PANGO_PIXELS(place.width));
  }

  const DeviceContext& context_;
  RealizedFont& font_;
  CRect limit_;
  COLORREF color_;
};

int FirstLineTop(const RECT& rect, int height, UINT format) {
  int room = rect.bottom - rect.top - height;
  if (format & DT_BOTTOM) return rect.top + room;
  return format & DT_VCENTER ? rect.top + (room >> 1) : rect.top;
}

// A line too wide to be centred shows its start.
int LineLeft(const RECT& rect, int width, UINT format) {
  int room = rect.right - rect.left - width;
  if (format & DT_RIGHT) return rect.left + room;
  return format & DT_CENTER ? rect.left + std::max(room / 2, 0) : rect.left;
}

}  // namespace

void Painter::Text(std::wstring_view text, const RECT& rect, UINT format, HFONT font,
                   COLORREF color) {
  if (text.empty() || AlphaOf(color) == 0 || IsClippedOut(rect)) return;
  const DeviceContext& context = *Context();
  RealizedFont& realized = FontOf(font);
  TextBlock block(realized, text, CRect(rect).Width(), format);
  LinePainter painter(context, realized, ToSurface(context, rect), color);
  int height = realized.Metrics().height;
  int top = FirstLineTop(rect, block.Size().cy, format);
  for (const TextBlock::Line& line : block.Lines()) {
    int left = LineLeft(rect, line.width, format);
    CRect box = ToSurface(context, CRect(left, top, left + line.width, top + height));
    painter.Draw(line, block.Direction(), box, !(format & DT_HIDEPREFIX));
    top += height;
  }
}

void Painter::Text(const TextLine& line, int x, int y, COLORREF color) {
  const DeviceContext* context = Context();
  if (!context || !line.impl_ || AlphaOf(color) == 0) return;
  const TextLine::Impl& impl = *line.impl_;
  CRect box = ToSurface(*context, CRect(x, y, x + impl.width, y + impl.height));
  CRect ink = InkBounds(box);
  if (!context->clip.Intersects(ink)) return;
  ClipScope clip(*context, ink, ink);
  cairo_t* cairo = context->surface->Context();
  SetColor(cairo, color);
  ShowLayout(cairo, impl.layout.get(), {box.left, box.top + impl.ascent});
}
