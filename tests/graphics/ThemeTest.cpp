#include "platform/Theme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "TestCanvas.h"
#include "platform/SystemColors.h"

namespace {

constexpr ControlState kPlain;

ControlState With(bool ControlState::*flag, bool value = true) {
  ControlState state;
  state.*flag = value;
  return state;
}

ControlPalette Round(ControlPalette palette, int radius) {
  palette.radius = radius;
  return palette;
}

// How each part is drawn into a rectangle.
struct Part {
  const char* name;
  std::function<void(Painter&, const RECT&, const ControlState&)> draw;
};

std::vector<Part> AllParts() {
  static const ControlPalette palette = SystemPalette();
  return {
      {"button", [](auto& p, auto& r, auto& s) { Theme::DrawPushButton(p, r, s, palette); }},
      {"round",
       [](auto& p, auto& r, auto& s) { Theme::DrawPushButton(p, r, s, Round(palette, 5)); }},
      {"check", [](auto& p, auto& r, auto& s) { Theme::DrawCheckBox(p, r, s, palette); }},
      {"radio", [](auto& p, auto& r, auto& s) { Theme::DrawRadioButton(p, r, s, palette); }},
      {"field", [](auto& p, auto& r, auto& s) { Theme::DrawField(p, r, s, Round(palette, 3)); }},
      {"drop", [](auto& p, auto& r, auto& s) { Theme::DrawDropDownArrow(p, r, s, palette); }},
      {"spin", [](auto& p, auto& r, auto& s) { Theme::DrawSpinArrows(p, r, s, palette); }},
      {"group",
       [](auto& p, auto& r, auto& s) { Theme::DrawGroupBox(p, r, L"Title", nullptr, s, palette); }},
      {"tab",
       [](auto& p, auto& r, auto& s) {
         Theme::DrawTab(p, r, L"Tab", nullptr, true, Theme::TabEdge::Top, s, palette);
       }},
      {"line", [](auto& p, auto& r, auto&) { Theme::DrawLine(p, r, true, palette); }},
      {"bar", [](auto& p, auto& r, auto&) { Theme::DrawProgress(p, r, 0, 0.4, false, palette); }},
      {"slider", [](auto& p, auto& r, auto& s) { Theme::DrawSlider(p, r, 2, true, s, palette); }},
      {"scroll", [](auto& p, auto& r, auto& s) { Theme::DrawScrollThumb(p, r, true, s, palette); }},
      {"caption",
       [](auto& p, auto& r, auto&) {
         Theme::DrawCaption(p, r, L"T", true, true, FramePart::Close, FramePart::None);
       }},
      {"frame", [](auto& p, auto& r, auto&) { Theme::DrawWindowFrame(p, r, 4, false); }},
  };
}

std::vector<std::uint32_t> Picture(const Part& part, const ControlState& state) {
  TestCanvas canvas(60, 60);
  canvas.Paint([&](Painter& p) { part.draw(p, {10, 12, 50, 47}, state); });
  return canvas.Pixels();
}

const Part& Find(const std::vector<Part>& parts, std::string_view name) {
  return *std::find_if(parts.begin(), parts.end(), [&](auto& part) { return name == part.name; });
}

class Scheme : public testing::Test {
 protected:
  ~Scheme() override { SetSystemScheme(SystemScheme::Light); }
};

}  // namespace

TEST(Theme, PartsStayInsideTheirRectangle) {
  ControlState busy{.hovered = true, .focused = true, .focusCue = true, .isDefault = true};
  busy.check = 1;
  for (const Part& part : AllParts()) {
    for (CRect rect :
         {CRect(10, 12, 50, 47), CRect(5, 5, 5, 5), CRect(5, 5, 6, 7), CRect(9, 9, 4, 4)}) {
      TestCanvas canvas(60, 60);
      canvas.Paint([&](Painter& p) { part.draw(p, rect, busy); });
      if (rect.Width() < 10) continue;  // too small for most parts: they do no harm
      EXPECT_TRUE(rect.Contains(canvas.Ink())) << part.name;
      EXPECT_FALSE(canvas.Ink().IsEmpty()) << part.name;
    }
  }
}

TEST(Theme, ButtonStatesLookDifferent) {
  const auto parts = AllParts();
  for (const char* name : {"button", "round", "check", "radio"}) {
    std::set<std::vector<std::uint32_t>> looks;
    for (auto state : {kPlain, With(&ControlState::hovered), With(&ControlState::pressed),
                       With(&ControlState::enabled, false), ControlState{.check = 1}})
      looks.insert(Picture(Find(parts, name), state));
    const bool hasCheck = name == std::string_view("check") || name == std::string_view("radio");
    EXPECT_EQ(looks.size(), hasCheck ? 5u : 4u) << name;
  }
  const Part& button = Find(parts, "button");
  EXPECT_NE(Picture(button, kPlain), Picture(button, With(&ControlState::isDefault)));
  const Part& check = Find(parts, "check");
  EXPECT_NE(Picture(check, {.check = 1}), Picture(check, {.check = 2}));
}

TEST(Theme, RadioDotIsCentredAtEveryScale) {
  ControlState on;
  on.check = 1;
  for (int dpi : {96, 120, 144, 192}) {
    SetScreenDpi(dpi);
    int size = Theme::CheckSize();
    TestCanvas canvas(size, size);
    canvas.Paint([&](Painter& p) {
      Theme::DrawRadioButton(p, {0, 0, size, size}, on, SystemPalette());
    });
    canvas.ForEachPixel([&](int x, int y, COLORREF color) {
      EXPECT_NEAR(GetRValue(color), GetRValue(canvas.At(size - 1 - x, size - 1 - y)), 24);
    });
  }
  SetScreenDpi(96);
}

TEST(Theme, GroupFrameIsOpenBehindItsTitle) {
  TestCanvas canvas(120, 60);
  ControlPalette palette = SystemPalette();
  canvas.Paint([&](Painter& p) {
    Theme::DrawGroupBox(p, {0, 0, 120, 60}, L"iiii", nullptr, kPlain, palette);
  });
  int y = GetFontMetrics(nullptr).height / 2;
  EXPECT_EQ(canvas.At(2, y), palette.border);
  EXPECT_EQ(canvas.At(9, y), kWhite);
  EXPECT_EQ(canvas.At(110, y), palette.border);
  EXPECT_EQ(canvas.At(0, 0), kWhite);
}

TEST(Theme, ProgressFillsItsShare) {
  ControlPalette palette = SystemPalette();
  for (auto [fraction, pixels] : {std::pair{0.0, 0}, {0.5, 50}, {1.0, 100}, {9.0, 100}}) {
    TestCanvas canvas(102, 3);
    canvas.Paint([&](Painter& p) {
      Theme::DrawProgress(p, {0, 0, 102, 3}, 0, fraction, false, palette);
    });
    EXPECT_EQ(canvas.Count(palette.accent), pixels);
  }
}

TEST(Theme, CloseButtonEndsTheCaption) {
  CRect close(Theme::CloseButtonRect({3, 4, 203, 34}));
  EXPECT_EQ(close.right, 203);
  EXPECT_EQ(close.top, 4);
  EXPECT_EQ(close.bottom, 34);
  EXPECT_GT(close.Width(), 20);
}

TEST_F(Scheme, TextIsReadableInEachOfThem) {
  for (auto scheme : {SystemScheme::Light, SystemScheme::Dark, SystemScheme::HighContrast}) {
    SetSystemScheme(scheme);
    const bool high = scheme == SystemScheme::HighContrast;
    const ControlPalette p = SystemPalette();
    for (auto [text, back] : {std::pair{p.text, p.face},
                              {p.text, p.background},
                              {p.text, p.hoverFace},
                              {p.pressedText, p.pressedFace}})
      EXPECT_GE(Contrast(text, back), 7);
    for (auto [text, back] : {std::pair{p.disabledText, p.disabledFace},
                              {p.accentText, p.accent},
                              {p.selectionText, p.selection}})
      EXPECT_GE(Contrast(text, back), high ? 7 : 4);
    for (auto [text, back] : {std::pair{COLOR_BTNTEXT, COLOR_BTNFACE},
                              {COLOR_WINDOWTEXT, COLOR_WINDOW},
                              {COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT},
                              {COLOR_GRAYTEXT, COLOR_BTNFACE},
                              {COLOR_CAPTIONTEXT, COLOR_ACTIVECAPTION},
                              {COLOR_INACTIVECAPTIONTEXT, COLOR_INACTIVECAPTION}})
      EXPECT_GE(Contrast(GetSysColor(text), GetSysColor(back)), high ? 7 : 4);
  }
}

TEST_F(Scheme, UnknownColorIsBlack) {
  EXPECT_EQ(GetSysColor(-1), 0u);
  EXPECT_EQ(GetSysColor(1000), 0u);
  EXPECT_EQ(GetSysColor(COLOR_BTNFACE), RGB(240, 240, 240));
}

TEST(Contrast, IsKnownForBlackAndWhite) {
  EXPECT_NEAR(Contrast(RGB(0, 0, 0), RGB(255, 255, 255)), 21.0, 0.01);
  EXPECT_NEAR(Contrast(RGB(119, 119, 119), RGB(255, 255, 255)), 4.48, 0.01);
  EXPECT_EQ(Contrast(RGB(1, 2, 3), RGB(1, 2, 3)), 1.0);
}
