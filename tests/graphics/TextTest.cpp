#include <gtest/gtest.h>

#include <algorithm>

#include "TestCanvas.h"
#include "graphics/FontCache.h"
#include "graphics/TextEngine.h"
#include "platform/Painter.h"

namespace {

constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

const wchar_t* const kTexts[] = {L"Hello",
                                 L"Print settings for AV To, 100 %",
                                 L"Größe ÀÉ fi ffl «ß»",
                                 L"a",
                                 L"Полная ширина",
                                 L"שלום עולם",
                                 L"مرحبا بالعالم",
                                 L"e\u0301o\u0308 combining",
                                 L"mixed שלום text"};

int LineHeight() {
  return GetFontMetrics(nullptr).height;
}
int WidthOf(std::wstring_view text) {
  return GetTextExtent(nullptr, text).cx;
}

int LayoutWidth(std::wstring_view text) {
  auto layout =
      TextEngine::Get().MakeLayout(text, FontOf(nullptr).Description(), BaseDirection::FirstStrong);
  int width = 0;
  pango_layout_get_pixel_size(layout.get(), &width, nullptr);
  return width;
}

CRect InkOf(std::wstring_view text, const RECT& rect, UINT format, int mirrorWidth = -1) {
  TestCanvas canvas(300, 100);
  canvas.context.mirrorWidth = mirrorWidth;
  canvas.Paint([&](Painter& p) { p.Text(text, rect, format, nullptr, kBlack); });
  return canvas.Ink();
}

}  // namespace

TEST(TextExtent, ComposedWordsAreAsWideAsOneLayout) {
  for (const wchar_t* text : kTexts) EXPECT_NEAR(WidthOf(text), LayoutWidth(text), 1) << text;
}

TEST(TextExtent, WidthsOfWordsAddUp) {
  EXPECT_EQ(WidthOf(L"one two"), WidthOf(L"one") + WidthOf(L" ") + WidthOf(L"two"));
  EXPECT_EQ(WidthOf(L""), 0);
  EXPECT_EQ(GetTextExtent(nullptr, L"").cy, LineHeight());
}

TEST(TextExtent, LongTextsAreMeasuredWhole) {
  std::wstring word(1000, L'x');
  EXPECT_EQ(WidthOf(word + L" " + word), 2 * WidthOf(word) + WidthOf(L" "));
  EXPECT_GE(WidthOf(word), 1000 * WidthOf(L"x") - 1000);
}

// Measured whole, each of these would take seconds.
TEST(TextExtent, CountsOnlyWhatASurfaceHasRoomFor) {
  for (const wchar_t letter : {L'x', L'\u0416'}) {
    const std::wstring word(10000000, letter);
    EXPECT_EQ(WidthOf(word), WidthOf(word.substr(0, 16384)));
    EXPECT_GT(WidthOf(word), 16384);
    EXPECT_EQ(GetTextExtent(nullptr, word, 100, DT_WORDBREAK).cy, LineHeight());
    InkOf(word, CRect(0, 0, 200, 20), kCentred | DT_END_ELLIPSIS);
  }
  std::wstring words;
  for (int i = 0; i < 2000000; ++i) words += L"word ";
  EXPECT_GT(GetTextExtent(nullptr, words, 300, DT_WORDBREAK).cy, 16384);
}

TEST(TextExtent, AnyCharacterIsHarmless) {
  std::wstring odd{L'a', wchar_t{0}, wchar_t{0xD800}, wchar_t{0x7FFFFFFF}, wchar_t{0xFFFE}, L'\t'};
  EXPECT_GT(WidthOf(odd), WidthOf(L"a"));
  EXPECT_GT(TextLine(nullptr, odd, false).Width(), 0);
}

TEST(Text, InkLiesInTheMeasuredBox) {
  for (const wchar_t* text : kTexts) {
    SIZE size = GetTextExtent(nullptr, text);
    int deepest = 10 + size.cy + 1;  // Arabic tails may reach one pixel below the font box
    CRect box(20, 10, 20 + size.cx, deepest);
    CRect ink = InkOf(text, {20, 10, 290, 90}, DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_TRUE(box.Contains(ink)) << text;
    EXPECT_GE(ink.Width(), box.Width() - 5) << text;
  }
}

TEST(Text, NothingLeavesTheRectangle) {
  CRect narrow(20, 20, 60, 28);
  CRect ink = InkOf(L"MMMMMMMMMMMMMM", narrow, DT_SINGLELINE);
  EXPECT_TRUE(narrow.Contains(ink));
  EXPECT_EQ(ink.right, 60);
}

TEST(Text, AlignmentPlacesTheMeasuredBox) {
  RECT rect{10, 10, 210, 60};
  int width = WidthOf(L"HHH");
  int cap = InkOf(L"HHH", rect, 0).Height();
  EXPECT_NEAR(InkOf(L"HHH", rect, DT_LEFT).left, 10, 2);
  EXPECT_NEAR(InkOf(L"HHH", rect, DT_RIGHT).right, 210, 2);
  CRect centred = InkOf(L"HHH", rect, kCentred);
  EXPECT_NEAR(centred.left - 10, 210 - centred.right, 2);
  EXPECT_NEAR(centred.left, 10 + (200 - width) / 2, 2);
  EXPECT_NEAR(centred.top, 10 + (50 - cap) / 2, 3);
  EXPECT_GT(InkOf(L"HHH", rect, DT_BOTTOM).top, centred.top);
}

TEST(Text, BaselinesOfOneFontAgree) {
  RECT rect{0, 7, 100, 40};
  EXPECT_EQ(InkOf(L"H", rect, kCentred).bottom, InkOf(L"Hx", rect, kCentred).bottom);
  EXPECT_EQ(InkOf(L"E", rect, DT_LEFT | DT_VCENTER).bottom, InkOf(L"H", rect, kCentred).bottom);
}

TEST(Text, TooWideToCentreShowsItsStart) {
  EXPECT_EQ(InkOf(L"HMMMMMMMMMMMM", {50, 0, 80, 30}, kCentred).left,
            InkOf(L"H", {50, 0, 80, 30}, DT_LEFT).left);
}

TEST(Text, MirroredContextSwapsSidesButNotGlyphs) {
  RECT rect{10, 10, 110, 40};
  CRect plain = InkOf(L"Fla", {190, 10, 290, 40}, DT_RIGHT);
  EXPECT_EQ(InkOf(L"Fla", rect, DT_LEFT, 300), plain);
  EXPECT_EQ(InkOf(L"Fla", rect, DT_RIGHT, 300), InkOf(L"Fla", {190, 10, 290, 40}, DT_LEFT));
}

TEST(Text, ReadingDirectionMovesTrailingPunctuation) {
  RECT rect{10, 0, 90, 30};
  auto picture = [&](std::wstring_view text, UINT format) {
    TestCanvas canvas(100, 30);
    canvas.Paint([&](Painter& p) { p.Text(text, rect, format, nullptr, kBlack); });
    return canvas.Pixels();
  };
  EXPECT_EQ(picture(L"HH.", DT_RTLREADING), picture(L".HH", 0));
  EXPECT_EQ(picture(L"HH 1", DT_RTLREADING), picture(L"HH 1", 0));
  EXPECT_NE(picture(L"HH.", 0), picture(L".HH", 0));
}

TEST(TextWrap, LinesFitAndNoWordIsLost) {
  std::wstring_view text = L"The quick brown fox jumps over the lazy dog";
  for (int width : {60, 90, 150}) {
    SIZE size = GetTextExtent(nullptr, text, width, DT_WORDBREAK);
    EXPECT_LE(size.cx, width);
    EXPECT_GE(size.cy / LineHeight(), (WidthOf(text) + width - 1) / width);
    TestCanvas canvas(width, size.cy);
    canvas.Paint([&](Painter& p) {
      p.Text(text, {0, 0, width, size.cy}, DT_WORDBREAK, nullptr, kBlack);
    });
    EXPECT_GT(canvas.Ink().bottom, size.cy - LineHeight());
  }
}

TEST(TextWrap, BreaksOnlyWhereNeeded) {
  int pair = WidthOf(L"alpha beta");
  EXPECT_EQ(GetTextExtent(nullptr, L"alpha beta", pair, DT_WORDBREAK).cy, LineHeight());
  SIZE broken = GetTextExtent(nullptr, L"alpha beta", pair - 1, DT_WORDBREAK);
  EXPECT_EQ(broken.cy, 2 * LineHeight());
  EXPECT_EQ(broken.cx, std::max(WidthOf(L"alpha"), WidthOf(L"beta")));
}

TEST(TextWrap, LongWordStaysWhole) {
  SIZE size = GetTextExtent(nullptr, L"an incomprehensibilities", 30, DT_WORDBREAK);
  EXPECT_EQ(size.cx, WidthOf(L"incomprehensibilities"));
  EXPECT_EQ(size.cy, 2 * LineHeight());
}

TEST(TextWrap, TextsWithoutSpacesBreakByTheirScript) {
  SIZE size = GetTextExtent(nullptr, L"日本語日本語日本語", 40, DT_WORDBREAK);
  EXPECT_GT(size.cy, LineHeight());
  EXPECT_LE(size.cx, 40);
}

TEST(TextWrap, LineEndsBreakUnlessSingleLine) {
  EXPECT_EQ(GetTextExtent(nullptr, L"a\nb\r\nc\rd", 100, 0).cy, 4 * LineHeight());
  EXPECT_EQ(GetTextExtent(nullptr, L"a\nb", 100, DT_SINGLELINE).cy, LineHeight());
  EXPECT_EQ(GetTextExtent(nullptr, L"", 100, DT_WORDBREAK).cy, LineHeight());
}

TEST(TextWrap, SeveralLinesAreCentredTogether) {
  RECT rect{0, 0, 100, 90};
  CRect ink = InkOf(L"H\nH", rect, DT_CENTER | DT_VCENTER);
  EXPECT_NEAR(ink.top, 90 - ink.bottom, 3);
}

TEST(Ellipsis, LineTooLongEndsInsideTheRectangle) {
  std::wstring_view text = L"A rather long caption";
  UINT format = DT_SINGLELINE | DT_END_ELLIPSIS;
  int width = WidthOf(text) - 1;
  EXPECT_LE(GetTextExtent(nullptr, text, width, format).cx, width);
  EXPECT_GT(GetTextExtent(nullptr, text, width, format).cx, width - 20);
  EXPECT_EQ(GetTextExtent(nullptr, text, width + 1, format).cx, width + 1);
  EXPECT_GE(GetTextExtent(nullptr, text, 0, format).cx, 0);
}

TEST(Mnemonic, MarksAreTakenOut) {
  EXPECT_EQ(GetTextExtent(nullptr, L"&Open", 100, 0).cx, WidthOf(L"Open"));
  EXPECT_EQ(GetTextExtent(nullptr, L"A && B&", 100, 0).cx, WidthOf(L"A & B"));
  EXPECT_EQ(GetTextExtent(nullptr, L"&Open", 100, DT_NOPREFIX).cx, WidthOf(L"&Open"));
}

TEST(Mnemonic, UnderlineLiesBelowItsCharacter) {
  RECT rect{0, 0, 100, 20};
  TestCanvas with(100, 20);
  TestCanvas without(100, 20);
  with.Paint([&](Painter& p) { p.Text(L"Ho&He", rect, 0, nullptr, kBlack); });
  without.Paint([&](Painter& p) { p.Text(L"Ho&He", rect, DT_HIDEPREFIX, nullptr, kBlack); });
  int left = WidthOf(L"Ho");
  CRect underline(left, 0, left + WidthOf(L"H"), 20);
  int changed = 0;
  with.ForEachPixel([&](int x, int y, COLORREF color) {
    if (color == without.At(x, y)) return;
    ++changed;
    EXPECT_TRUE(underline.Contains(POINT{x, y})) << x << ", " << y;
  });
  EXPECT_EQ(changed, underline.Width());
}

TEST(Mnemonic, UnderlineFollowsTheCharacterInRightToLeftText) {
  RECT rect{0, 0, 100, 20};
  CRect last = InkOf(L"אב&ג", rect, 0);
  CRect plain = InkOf(L"אב&ג", rect, DT_HIDEPREFIX);
  EXPECT_GT(last.bottom, plain.bottom);
  EXPECT_EQ(last.left, 0);
}
