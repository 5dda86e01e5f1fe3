// Texts have to be read on what they are drawn on, in every palette.

#include <gtest/gtest.h>

#include "MFC/base/WidgetColors.h"
#include "MFC/ranges/ScrollBarWnd.h"
#include "SkinManager.h"
#include "platform/SystemColors.h"
#include "platform/Theme.h"

namespace Wexa {
namespace {

struct Pair {
  std::string what;
  COLORREF text;
  COLORREF face;
};

using Fill = void (*)(ControlPalette&, const SkinManager&);

ControlPalette PaletteOf(Fill fill, const SkinManager& skin) {
  ControlPalette palette{};
  palette.background = DialogBackground(skin);
  fill(palette, skin);
  return palette;
}

void AddPairs(std::vector<Pair>& pairs, const std::string& family, Fill fill,
              const SkinManager& skin) {
  const ControlPalette p = PaletteOf(fill, skin);
  pairs.push_back({family + " text on face", p.text, p.face});
  pairs.push_back({family + " text on hovered face", p.text, p.hoverFace});
  pairs.push_back({family + " text on pressed face", p.pressedText, p.pressedFace});
  pairs.push_back({family + " selected text", p.selectionText, p.selection});
}

std::vector<Pair> EnabledPairs(const SkinManager& skin) {
  std::vector<Pair> pairs;
  AddPairs(pairs, "dialog", FillCommonPalette, skin);
  AddPairs(pairs, "button", FillButtonPalette, skin);
  AddPairs(pairs, "input", FillInputPalette, skin);
  const ControlPalette input = PaletteOf(FillInputPalette, skin);
  pairs.push_back({"placeholder", input.placeholder, input.face});
  const ControlPalette link = PaletteOf(FillLinkPalette, skin);
  for (COLORREF text : {link.text, link.hoverFace, link.pressedText})
    pairs.push_back({"link", text, link.background});
  pairs.push_back({"tip", SlotColor(skin, Slot::kTipText), SlotColor(skin, Slot::kTipFace)});
  const ControlPalette check = PaletteOf(FillCheckPalette, skin);
  pairs.push_back({"check text", check.text, check.background});
  return pairs;
}

std::vector<Pair> DisabledPairs(const SkinManager& skin) {
  std::vector<Pair> pairs;
  for (Fill fill : {FillCommonPalette, FillButtonPalette, FillCheckPalette, FillInputPalette}) {
    const ControlPalette p = PaletteOf(fill, skin);
    pairs.push_back({"disabled text", p.disabledText, p.disabledFace});
    pairs.push_back({"disabled text on dialog", p.disabledText, p.background});
  }
  const ControlPalette link = PaletteOf(FillLinkPalette, skin);
  pairs.push_back({"disabled link", link.disabledText, link.background});
  return pairs;
}

// A skin over the colours of a desktop.
struct Look {
  const char* name;
  SkinMode mode;
  SystemScheme scheme;
};

class ContrastTest : public testing::TestWithParam<Look> {
 protected:
  ContrastTest() { SetSystemScheme(GetParam().scheme); }
  ~ContrastTest() override { SetSystemScheme(SystemScheme::Light); }
  static bool IsHighContrast() { return GetParam().scheme == SystemScheme::HighContrast; }
};

TEST_P(ContrastTest, EnabledTextsAreReadable) {
  const SkinManager skin(GetParam().mode);
  const double least = IsHighContrast() ? 7.0 : 4.5;
  for (const Pair& pair : EnabledPairs(skin))
    EXPECT_GE(Contrast(pair.text, pair.face), least) << pair.what;
}

TEST_P(ContrastTest, DisabledTextsCanBeMadeOut) {
  const SkinManager skin(GetParam().mode);
  for (const Pair& pair : DisabledPairs(skin))
    EXPECT_GE(Contrast(pair.text, pair.face), IsHighContrast() ? 7.0 : 3.0) << pair.what;
}

TEST_P(ContrastTest, WhatIsNotEnteredDoesNotLookSo) {
  const ControlPalette p = PaletteOf(FillInputPalette, SkinManager(GetParam().mode));
  EXPECT_GE(Contrast(p.placeholder, p.text), 1.4);
  EXPECT_GE(Contrast(p.disabledText, p.text), 1.4);
}

TEST_P(ContrastTest, StatesLookDifferent) {
  const SkinManager skin(GetParam().mode);
  const ControlPalette button = PaletteOf(FillButtonPalette, skin);
  EXPECT_NE(button.pressedFace, button.face);
  const ControlPalette link = PaletteOf(FillLinkPalette, skin);
  EXPECT_NE(link.hoverFace, link.text);
  const ControlPalette bar = PaletteOf(FillScrollPalette, skin);
  EXPECT_NE(bar.disabledBorder, bar.border);
}

TEST_P(ContrastTest, MarksStandOutFromTheAccent) {
  const ControlPalette p = PaletteOf(FillCheckPalette, SkinManager(GetParam().mode));
  EXPECT_GE(Contrast(p.accentText, p.accent), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Palettes, ContrastTest,
                         testing::Values(Look{"Light", SkinMode::Default, SystemScheme::Light},
                                         Look{"Dark", SkinMode::Dark, SystemScheme::Light},
                                         Look{"LightOnDark", SkinMode::Default, SystemScheme::Dark},
                                         Look{"DarkOnDark", SkinMode::Dark, SystemScheme::Dark},
                                         Look{"HighContrast", SkinMode::HCMDark,
                                              SystemScheme::HighContrast}),
                         [](const auto& look) { return look.param.name; });

TEST(ContrastOfColors, IsKnownForBlackAndWhite) {
  EXPECT_NEAR(Contrast(RGB(0, 0, 0), RGB(255, 255, 255)), 21.0, 0.01);
  EXPECT_NEAR(Contrast(RGB(119, 119, 119), RGB(255, 255, 255)), 4.48, 0.01);
  EXPECT_EQ(Contrast(RGB(1, 2, 3), RGB(1, 2, 3)), 1.0);
}

TEST(ReadableColors, ASlotThatWasSetIsTakenAsItIs) {
  SkinManager skin(SkinMode::Dark);
  skin.Slot(Slot::kSelectionText) = static_cast<unsigned long>(SlotColor(skin, Slot::kSelection));
  skin.Slot(Slot::kPlaceholder) = static_cast<unsigned long>(SlotColor(skin, Slot::kInputText));
  const ControlPalette palette = PaletteOf(FillInputPalette, skin);
  EXPECT_EQ(palette.selectionText, palette.selection);
  EXPECT_EQ(palette.placeholder, palette.text);
}

}  // namespace
}  // namespace Wexa
