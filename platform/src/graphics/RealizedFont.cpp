#include "graphics/RealizedFont.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <stdexcept>

#include "graphics/Utf8.h"

namespace {

constexpr std::size_t kMaxLines = 4096;
constexpr std::size_t kMaxLineLength = 256;
constexpr int kDefaultSize = 12;
constexpr int kMaxSize = 4096;
constexpr int kLinesPerEm = 14;  // an underline's share of the em square
constexpr std::wstring_view kAlphabet = L"abcdefghijklmnopqrstuvwxyz";

FontDescriptionPtr Describe(const FontKey& key) {
  FontDescriptionPtr description(pango_font_description_new());
  pango_font_description_set_family(description.get(), ToUtf8(key.face).c_str());
  pango_font_description_set_absolute_size(description.get(), double{PANGO_SCALE} * key.size);
  pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(key.weight));
  if (key.italic) pango_font_description_set_style(description.get(), PANGO_STYLE_ITALIC);
  return description;
}

cairo_scaled_font_t* ScaledFont(PangoFont* font) {
  cairo_scaled_font_t* scaled =
      font ? pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font)) : nullptr;
  if (!scaled || cairo_scaled_font_status(scaled) != CAIRO_STATUS_SUCCESS)
    throw std::runtime_error("no font can be loaded: fontconfig finds none on this machine");
  return scaled;
}

// Left to right whatever the base direction: digits and marks inside follow the letters around.
bool ReadsLeftToRight(std::wstring_view text) {
  auto isLetter = [](wchar_t c) { return g_unichar_isalpha(static_cast<gunichar>(c)); };
  auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
  return text.empty() ||
         (isLetter(text.front()) && (isLetter(text.back()) || isDigit(text.back())));
}

}  // namespace

FontKey::FontKey(const LOGFONTW& description)
    : size(std::min(std::abs(std::max(description.lfHeight, -kMaxSize)), kMaxSize)),
      weight(description.lfWeight > 0 ? std::clamp(description.lfWeight, 100, 1000) : FW_NORMAL),
      italic(description.lfItalic != 0),
      underline(description.lfUnderline != 0),
      strikeOut(description.lfStrikeOut != 0),
      face(description.lfFaceName, wcsnlen(description.lfFaceName, LF_FACESIZE)) {
  if (size == 0) size = kDefaultSize;
}

RealizedFont::RealizedFont(const FontKey& key)
    : description_(Describe(key)),
      font_(TextEngine::Get().LoadFont(description_.get())),
      scaled_(ScaledFont(font_.get())),
      underline_(key.underline),
      strikeOut_(key.strikeOut),
      lineThickness_(std::max(1, key.size / kLinesPerEm)),
      words_(font_.get()),
      glyphs_(scaled_),
      metrics_(Measure()) {}

FontMetrics RealizedFont::Measure() {
  cairo_font_extents_t extents;
  cairo_scaled_font_extents(scaled_, &extents);
  int ascent = static_cast<int>(std::ceil(extents.ascent));
  int descent = static_cast<int>(std::ceil(extents.descent));
  int alphabet = Width(kAlphabet, BaseDirection::LeftToRight);
  int average =
      (alphabet + static_cast<int>(kAlphabet.size()) / 2) / static_cast<int>(kAlphabet.size());
  return {ascent + descent, ascent, descent, average};
}

bool RealizedFont::CanComposeWords(std::wstring_view text, BaseDirection direction) const {
  return IsSimpleText(text) && (direction != BaseDirection::RightToLeft || ReadsLeftToRight(text));
}

int RealizedFont::Width(std::wstring_view text, BaseDirection direction) {
  text = text.substr(0, kMostSeen);
  int width = 0;
  if (CanComposeWords(text, direction) && words_.AddWidth(text, width)) return width;
  return Shape(text, direction).Width();
}

const ShapedLine& RealizedFont::Shape(std::wstring_view text, BaseDirection direction) {
  text = text.substr(0, kMostSeen);
  if (text.size() > kMaxLineLength) return longLine_ = MakeLine(text, direction);
  TextMap<ShapedLine>& lines = lines_[static_cast<std::size_t>(direction)];
  if (auto found = lines.find(text); found != lines.end()) return found->second;
  if (lines.size() >= kMaxLines) lines.clear();
  return lines.emplace(text, MakeLine(text, direction)).first->second;
}

ShapedLine RealizedFont::MakeLine(std::wstring_view text, BaseDirection direction) {
  ShapedLine line;
  if (CanComposeWords(text, direction) && words_.Append(text, line.run)) return line;
  auto layout = TextEngine::Get().MakeLayout(text, description_.get(), direction);
  PangoRectangle logical;
  pango_layout_get_extents(layout.get(), nullptr, &logical);
  line.run = {PANGO_PIXELS_CEIL(logical.width), {}};
  line.layout = std::move(layout);
  return line;
}
