#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "graphics/TextEngine.h"

// Lets a cache be asked with a view, without making a key.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::wstring_view text) const {
    return std::hash<std::wstring_view>{}(text);
  }
};
template <typename Value>
using TextMap = std::unordered_map<std::wstring, Value, TextHash, std::equal_to<>>;

// A glyph at its place in a line, in pixels from the line's start.
struct PlacedGlyph {
  unsigned id;
  int x;
  int y;
};

struct GlyphRun {
  int width = 0;
  std::vector<PlacedGlyph> glyphs;
  bool complete = true;  // the font has every glyph
};

// Whether each word of the text can be shaped on its own, from left to right.
bool IsSimpleText(std::wstring_view text);

// Shapes words of simple text in one font and remembers them.
class WordShaper {
 public:
  explicit WordShaper(PangoFont* font) : font_(font) {}

  // Appends the text's glyphs, or only adds up its width. False when the font misses a glyph.
  bool Append(std::wstring_view text, GlyphRun& line);
  bool AddWidth(std::wstring_view text, int& width);

 private:
  const GlyphRun& Word(std::wstring_view word);

  PangoFont* font_;
  TextMap<GlyphRun> words_;
  GlyphRun longWord_;  // too long to be worth remembering
};
