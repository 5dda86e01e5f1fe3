#include "graphics/FontCache.h"
#include "graphics/TextBlock.h"
#include "platform/Font.h"

FontMetrics GetFontMetrics(HFONT font) {
  return FontOf(font).Metrics();
}

SIZE GetTextExtent(HFONT font, std::wstring_view text) {
  RealizedFont& realized = FontOf(font);
  return {realized.Width(text, BaseDirection::FirstStrong), realized.Metrics().height};
}

SIZE GetTextExtent(HFONT font, std::wstring_view text, int width, UINT format) {
  return TextBlock(FontOf(font), text, width, format).Size();
}
