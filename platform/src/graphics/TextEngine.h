#pragma once

#include <pango/pangocairo.h>

#include <memory>
#include <string_view>

#include "graphics/GObjectPtr.h"
#include "platform/Types.h"

struct FontDescriptionRelease {
  void operator()(PangoFontDescription* description) const {
    pango_font_description_free(description);
  }
};
using FontDescriptionPtr = std::unique_ptr<PangoFontDescription, FontDescriptionRelease>;

// How a text's base direction is found.
enum class BaseDirection { FirstStrong, LeftToRight, RightToLeft };

// The process's fonts and shaping contexts; glyphs are grey-scale and advance by whole pixels.
class TextEngine {
 public:
  // Made at the first call, for the life of the process.
  static TextEngine& Get();

  GObjectPtr<PangoFont> LoadFont(const PangoFontDescription* description) const;
  // One paragraph, never wrapped.
  GObjectPtr<PangoLayout> MakeLayout(std::wstring_view text, const PangoFontDescription* font,
                                     BaseDirection direction) const;

 private:
  TextEngine();

  GObjectPtr<PangoFontMap> map_;
  GObjectPtr<PangoContext> leftToRight_;
  GObjectPtr<PangoContext> rightToLeft_;
};
