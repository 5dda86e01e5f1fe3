#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "graphics/GlyphMasks.h"
#include "graphics/TextEngine.h"
#include "graphics/WordShaper.h"
#include "platform/Font.h"

// What makes two fonts the same.
struct FontKey {
  explicit FontKey(const LOGFONTW& description);
  bool operator==(const FontKey&) const = default;

  int size;  // of the em square, in pixels
  int weight;
  bool italic;
  bool underline;
  bool strikeOut;
  std::wstring face;
};

// One line ready to be drawn: placed glyphs for simple text, a layout for everything else.
struct ShapedLine {
  GlyphRun run;
  std::shared_ptr<PangoLayout> layout;

  int Width() const { return run.width; }
};

// A font that was looked up, with its measures and what was shaped in it.
class RealizedFont {
 public:
  // Throws std::runtime_error where there is no font at all.
  explicit RealizedFont(const FontKey& key);

  const FontMetrics& Metrics() const { return metrics_; }
  const PangoFontDescription* Description() const { return description_.get(); }
  const GlyphMask& Glyph(unsigned id) { return glyphs_.Get(id); }
  // Underline and strike-out lines.
  int LineThickness() const { return lineThickness_; }
  bool HasUnderline() const { return underline_; }
  bool HasStrikeOut() const { return strikeOut_; }

  // What lies beyond the first kMostSeen characters counts for nothing: no surface is that wide.
  static constexpr std::size_t kMostSeen = 16384;
  // Valid until the next call.
  const ShapedLine& Shape(std::wstring_view text, BaseDirection direction);
  int Width(std::wstring_view text, BaseDirection direction);

 private:
  bool CanComposeWords(std::wstring_view text, BaseDirection direction) const;
  ShapedLine MakeLine(std::wstring_view text, BaseDirection direction);
  FontMetrics Measure();

  FontDescriptionPtr description_;
  GObjectPtr<PangoFont> font_;
  cairo_scaled_font_t* scaled_;  // owned by the font
  bool underline_;
  bool strikeOut_;
  int lineThickness_;
  WordShaper words_;
  GlyphMasks glyphs_;
  std::array<TextMap<ShapedLine>, 3> lines_;  // by base direction
  ShapedLine longLine_;                       // too long to be worth remembering
  FontMetrics metrics_;
};
