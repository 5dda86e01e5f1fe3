// Texts of many scripts have a font behind the default one that knows their characters.

#include <gtest/gtest.h>

#include "TestCanvas.h"
#include "graphics/FontCache.h"
#include "graphics/TextEngine.h"
#include "platform/Painter.h"

namespace {

struct Script {
  const char* name;
  const wchar_t* text;
};

constexpr Script kScripts[] = {{"Latin", L"Größe, ação"},    {"Cyrillic", L"Полная ширина"},
                               {"Greek", L"Ρυθμίσεις"},      {"Arabic", L"الإعدادات"},
                               {"Hebrew", L"הגדרות"},        {"Devanagari", L"सेटिंग्स हिन्दी"},
                               {"Chinese", L"设置窗口"},     {"Japanese", L"複数のアドレスを生成"},
                               {"Korean", L"설정"},          {"Emoji", L"\U0001F600 \U0001F30D"},
                               {"Mixed", L"Qt שלום 设置 हि"}};

// Characters that no font has; they are drawn as boxes.
int CountUnknownGlyphs(PangoLayout* layout) {
  int count = 0;
  PangoLayoutLine* line = pango_layout_get_line_readonly(layout, 0);
  for (GSList* item = line->runs; item; item = item->next) {
    const PangoGlyphString* glyphs = static_cast<PangoLayoutRun*>(item->data)->glyphs;
    for (int i = 0; i < glyphs->num_glyphs; ++i) {
      const PangoGlyph glyph = glyphs->glyphs[i].glyph;
      if (glyph != PANGO_GLYPH_EMPTY && (glyph & PANGO_GLYPH_UNKNOWN_FLAG)) ++count;
    }
  }
  return count;
}

TEST(Scripts, HaveTheirGlyphsInsideTheExtentTheyAreMeasuredWith) {
  for (const auto& [name, text] : kScripts) {
    SCOPED_TRACE(name);
    const auto layout = TextEngine::Get().MakeLayout(text, FontOf(nullptr).Description(),
                                                     BaseDirection::FirstStrong);
    EXPECT_EQ(CountUnknownGlyphs(layout.get()), 0);
    const SIZE extent = GetTextExtent(nullptr, text);
    TestCanvas canvas(300, 100);
    canvas.Paint([&](Painter& p) {
      p.Text(text, RECT{20, 20, 300, 100}, DT_SINGLELINE, nullptr, kBlack);
    });
    const CRect ink = canvas.Ink();
    EXPECT_GT(ink.Width(), extent.cx / 2);
    EXPECT_GE(ink.left, 20 - 2);
    EXPECT_LE(ink.right, 20 + extent.cx + 2);
  }
}

}  // namespace
