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
  const ControlPalette bar = PaletteOf(FillProgressPalette, skin);
  pairs.push_back({"progress", bar.text, bar.face});
  pairs.push_back({"progress on the fill", bar.accentText, bar.accent});
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
  const double least = IsHighContrast() ? 7.0 : 4.95;
  for (const Pair& pair : EnabledPairs(skin))
    EXPECT_GE(Contrast(pair.text, pair.face), least) << pair.what;
}

TEST_P(ContrastTest, DisabledTextsCanBeMadeOut) {
  const SkinManager skin(GetParam().mode);
  for (const Pair& pair : DisabledPairs(skin))
    EXPECT_GE(Contrast(pair.text, pair.face), IsHighContrast() ? 7.0 : 3.0) << pair.what;
}

TEST_P(ContrastTest, StatesLookDifferent) {
  const SkinManager skin(GetParam().mode);
  const double apart = IsHighContrast() ? 1.4 : 1.8;
  for (Fill fill : {FillCommonPalette, FillButtonPalette, FillCheckPalette, FillInputPalette}) {
    const ControlPalette p = PaletteOf(fill, skin);
    EXPECT_GE(Contrast(p.disabledText, p.text), apart);
  }
  const ControlPalette input = PaletteOf(FillInputPalette, skin);
  EXPECT_GE(Contrast(input.placeholder, input.text), apart);
  const ControlPalette button = PaletteOf(FillButtonPalette, skin);
  EXPECT_NE(button.pressedFace, button.face);
  EXPECT_NE(button.disabledBorder, button.hoverBorder);
  EXPECT_TRUE(IsHighContrast() || button.disabledFace != button.face);
  const ControlPalette link = PaletteOf(FillLinkPalette, skin);
  EXPECT_NE(link.hoverFace, link.text);
  const ControlPalette bar = PaletteOf(FillScrollPalette, skin);
  EXPECT_NE(bar.disabledBorder, bar.border);
}

TEST_P(ContrastTest, DisabledPartsAreNotInvisible) {
  const SkinManager skin(GetParam().mode);
  for (Fill fill : {FillButtonPalette, FillCheckPalette, FillInputPalette}) {
    const ControlPalette p = PaletteOf(fill, skin);
    EXPECT_GE(Contrast(p.disabledBorder, p.background), 1.5);
  }
}

TEST_P(ContrastTest, CheckBoxesGoWithLabelsAndGetNoDimmerUnderThePointer) {
  const SkinManager skin(GetParam().mode);
  const ControlPalette check = PaletteOf(FillCheckPalette, skin);
  const ControlPalette label = PaletteOf(FillCommonPalette, skin);
  EXPECT_GE(Contrast(check.accentText, check.accent), 3.0) << "the mark";
  EXPECT_EQ(check.text, label.text);
  EXPECT_EQ(check.disabledText, label.disabledText);
  EXPECT_NE(check.hoverBorder, check.border);
  if (IsHighContrast()) return;
  EXPECT_GE(Contrast(check.hoverBorder, check.face), Contrast(check.border, check.face));
}

INSTANTIATE_TEST_SUITE_P(Palettes, ContrastTest,
                         testing::Values(Look{"Light", SkinMode::Default, SystemScheme::Light},
                                         Look{"Dark", SkinMode::Dark, SystemScheme::Light},
                                         Look{"LightOnDark", SkinMode::Default, SystemScheme::Dark},
                                         Look{"DarkOnDark", SkinMode::Dark, SystemScheme::Dark},
                                         Look{"HighContrast", SkinMode::HCMDark,
                                              SystemScheme::HighContrast}),
                         [](const auto& look) { return look.param.name; });

TEST(ReadableColors, ASlotThatWasSetIsTakenAsItIs) {
  SkinManager skin(SkinMode::Dark);
  skin.Slot(Slot::kSelectionText) = static_cast<unsigned long>(SlotColor(skin, Slot::kSelection));
  skin.Slot(Slot::kPlaceholder) = static_cast<unsigned long>(SlotColor(skin, Slot::kInputText));
  const ControlPalette palette = PaletteOf(FillInputPalette, skin);
  EXPECT_EQ(palette.selectionText, SlotColor(skin, Slot::kSelection));
  EXPECT_EQ(palette.placeholder, palette.text);
}

}  // namespace
}  // namespace Wexa
