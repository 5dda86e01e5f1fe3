#include "graphics/WordShaper.h"

#include <algorithm>

#include "graphics/Utf8.h"

namespace {

constexpr std::size_t kMaxWords = 4096;
constexpr std::size_t kMaxWordLength = 32;

// Latin letters with their accents, digits and the punctuation that goes with them.
bool IsSimple(wchar_t c) {
  bool latin = (c >= 0x20 && c <= 0x7E) || (c >= 0xA0 && c <= 0x17F && c != 0xAD);
  bool punctuation = c >= 0x2013 && c <= 0x2026;
  return latin || punctuation;
}

PangoAnalysis LatinAnalysis(PangoFont* font) {
  PangoAnalysis analysis{};
  analysis.font = font;
  analysis.script = static_cast<guint8>(PANGO_SCRIPT_LATIN);
  analysis.gravity = PANGO_GRAVITY_SOUTH;
  analysis.language = pango_language_get_default();
  return analysis;
}

int Pixels(int units) {
  return PANGO_PIXELS(units);
}

GlyphRun ToRun(const PangoGlyphString& glyphs) {
  GlyphRun run;
  run.glyphs.reserve(static_cast<std::size_t>(glyphs.num_glyphs));
  for (int i = 0; i < glyphs.num_glyphs; ++i) {
    const PangoGlyphInfo& info = glyphs.glyphs[i];
    if (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) run.complete = info.glyph == PANGO_GLYPH_EMPTY;
    const PangoGlyphGeometry& place = info.geometry;
    run.glyphs.push_back({info.glyph, run.width + Pixels(place.x_offset), Pixels(place.y_offset)});
    run.width += Pixels(place.width);
  }
  return run;
}

GlyphRun Shape(PangoFont* font, std::wstring_view word) {
  static PangoGlyphString* glyphs = pango_glyph_string_new();
  std::string bytes = ToUtf8(word);
  int length = static_cast<int>(bytes.size());
  PangoAnalysis analysis = LatinAnalysis(font);
  pango_shape_with_flags(bytes.data(), length, bytes.data(), length, &analysis, glyphs,
                         PANGO_SHAPE_ROUND_POSITIONS);
  return ToRun(*glyphs);
}

// Calls visit(piece) for every word and every space, until one returns false.
template <typename Visit>
bool ForEachWord(std::wstring_view text, Visit visit) {
  while (!text.empty()) {
    std::size_t length = text.front() == L' ' ? 1 : std::min(text.find(L' '), text.size());
    if (!visit(text.substr(0, length))) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace

bool IsSimpleText(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), IsSimple);
}

bool WordShaper::Append(std::wstring_view text, GlyphRun& line) {
  line.glyphs.reserve(line.glyphs.size() + text.size());
  return ForEachWord(text, [&](std::wstring_view piece) {
    const GlyphRun& word = Word(piece);
    for (PlacedGlyph glyph : word.glyphs) {
      line.glyphs.push_back({glyph.id, glyph.x + line.width, glyph.y});
    }
    line.width += word.width;
    return word.complete;
  });
}

bool WordShaper::AddWidth(std::wstring_view text, int& width) {
  return ForEachWord(text, [&](std::wstring_view piece) {
    const GlyphRun& word = Word(piece);
    width += word.width;
    return word.complete;
  });
}

const GlyphRun& WordShaper::Word(std::wstring_view word) {
  if (word.size() > kMaxWordLength) return longWord_ = Shape(font_, word);
  if (auto found = words_.find(word); found != words_.end()) return found->second;
  if (words_.size() >= kMaxWords) words_.clear();
  return words_.emplace(word, Shape(font_, word)).first->second;
}
