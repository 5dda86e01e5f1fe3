#include "graphics/TextEngine.h"

#include <string>

#include "graphics/Utf8.h"

namespace {

constexpr double kPixelsPerInch = 96;  // font sizes are given in pixels, so any value would do

GObjectPtr<PangoContext> MakeContext(PangoFontMap* map, PangoDirection direction) {
  GObjectPtr<PangoContext> context(pango_font_map_create_context(map));
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
  pango_cairo_context_set_font_options(context.get(), options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context.get(), TRUE);
  pango_context_set_base_dir(context.get(), direction);
  return context;
}

}  // namespace

TextEngine& TextEngine::Get() {
  static TextEngine& engine = *new TextEngine;
  return engine;
}

TextEngine::TextEngine() : map_(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT)) {
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map_.get()), kPixelsPerInch);
  leftToRight_ = MakeContext(map_.get(), PANGO_DIRECTION_LTR);
  rightToLeft_ = MakeContext(map_.get(), PANGO_DIRECTION_RTL);
}

GObjectPtr<PangoFont> TextEngine::LoadFont(const PangoFontDescription* description) const {
  return GObjectPtr<PangoFont>(pango_context_load_font(leftToRight_.get(), description));
}

GObjectPtr<PangoLayout> TextEngine::MakeLayout(std::wstring_view text,
                                               const PangoFontDescription* font,
                                               BaseDirection direction) const {
  bool rightToLeft = direction == BaseDirection::RightToLeft;
  PangoContext* context = rightToLeft ? rightToLeft_.get() : leftToRight_.get();
  GObjectPtr<PangoLayout> layout(pango_layout_new(context));
  pango_layout_set_font_description(layout.get(), font);
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  pango_layout_set_auto_dir(layout.get(), direction == BaseDirection::FirstStrong);
  std::string bytes = ToUtf8(text);
  pango_layout_set_text(layout.get(), bytes.data(), static_cast<int>(bytes.size()));
  return layout;
}
