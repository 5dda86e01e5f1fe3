#include <gmock/gmock.h>

#include <sstream>

#include "SkinManager.h"
#include "platform/SystemColors.h"

namespace Wexa {
namespace {

constexpr unsigned long kNoColor = 0xFFFFFFFF;

// What the palettes give the slots 0 to 121: a colour 0xBBGGRR, s and the number of a system
// colour, = and the slot whose colour it is, or - for nothing.
constexpr char kLight[] =
    "000000 s17 FFFFFF 171717 7A7A7A F0E9E6 D77800 s17 000000 s17 0088FF FFFFFF 000000 s17 "
    "FFFFFF E1E1E1 0088FF 0088FF 0088FF s17 000000 77737C 000000 E2E2E2 FFFFFF E2E2E2 CCCCCC "
    "D77800 999999 =27 999999 DCDCDC =27 000000 77737C FFFFFF FFFFFF FFFFFF CCCCCC D77800 999999 "
    "999999 DCDCDC FF0000 333333 FFFFFF 7F7F7F 858585 9B9B9B s6 s18 FFFFFF 4A4A4A D77800 ADADAD "
    "000000 - s18 FBF1E5 F7E4CC 4A4A4A E1E1E1 EFEFEF 838383 CCCCCC 995400 000000 =58 =50 - - - - "
    "- s15 - - - FFFFFF - - - 000000 000000 6D6D6D A3A3A3 FFFFFF D7D7D7 D4D4D4 D4D4D4 E4E4E4 "
    "CCCCCC D8D8D8 s8 s5 s13 s14 s15 s8 s8 s8 s8 s13 E5C8B3 333333 B4B4B4 FFFFFF C8C8C8 s8 s8 "
    "F9EBD9 s8 s8 000000 8B8B8B s14 F0E9E6 FFFFFF FFFFFF 000000 E6E6E6 000000";
constexpr char kDark[] =
    "FFFFFF FFFFFF 333333 999999 666666 424242 FF80D3 FFFFFF FFFFFF FFFFFF 666666 333333 FFFFFF "
    "C8C8C8 333333 151515 999999 666666 FF80D3 FFFFFF FFFFFF D4D4D4 FFFFFF 333333 333333 4A4A4A "
    "333333 999999 D4D4D4 =27 666666 666666 FF80D3 FFFFFF D4D4D4 FFFFFF 333333 - 333333 999999 "
    "D4D4D4 666666 666666 999999 FFFFFF 333333 7F7F7F 696969 B5B5B5 333333 FFFFFF FFFFFF 4A4A4A "
    "999999 666666 FFFFFF FF80D3 FFFFFF CC57AF 535353 4A4A4A 1D1D1D 9B2870 6D6D6D 464343 - "
    "000000 =58 =50 FFFFFF 767676 FFFFFF C8C8C8 FFFFFF 4A4A4A 999999 656565 FFFFFF 333333 999999 "
    "767676 656565 FFFFFF FFFFFF 767676 767676 333333 424242 999999 999999 333333 666666 999999 "
    "E6E6E6 4A4A4A FF80D3 s14 999999 E6E6E6 E6E6E6 s8 s8 s13 7A7357 FFFFFF FFFFFF 4A4A4A FFFFFF "
    "FFFFFF FFFFFF 999999 FFFFFF FFFFFF FFFFFF 8B8B8B 4A4A4A 242424 999999 4A4A4A FFFFFF 767676 "
    "FFFFFF";
constexpr char kContrast[] =
    "s18 s17 s15 s13 s18 s17 s13 s17 s18 s17 s18 s15 s18 s17 s15 s5 s13 s18 s13 s17 s18 s17 s14 "
    "s15 s15 s13 s5 s13 s18 =27 s18 s17 s13 s18 s17 s14 s15 - s5 s13 s18 s18 s17 s13 s13 s15 s18 "
    "s18 s8 s6 s18 s13 s15 s13 s18 s15 s5 s18 s13 s15 FF00FF s15 s5 s17 s17 - s15 =58 =50 s18 "
    "s22 s18 s17 s14 s15 s13 s8 s8 s5 s14 s2 s2 s18 s14 s17 s17 s15 s8 s13 s15 s15 s8 s5 s8 s5 "
    "s13 s14 s14 s14 s14 s8 s8 s13 s17 s8 s10 s1 s6 s8 s14 s13 s8 s14 s18 s17 s15 s6 s13 s5 s18 "
    "s6 s14";

std::vector<std::string> Entries(const char* palette) {
  std::istringstream in(palette);
  return {std::istream_iterator<std::string>(in), {}};
}

unsigned long ExpectedColor(const std::vector<std::string>& entries, std::size_t slot,
                            unsigned long before) {
  const std::string& entry = entries[slot];
  if (entry == "-") return before;
  if (entry[0] == 's') return GetSysColor(std::stoi(entry.substr(1)));
  if (entry[0] == '=') return ExpectedColor(entries, std::stoul(entry.substr(1)), before);
  return std::stoul(entry, nullptr, 16);
}

void ExpectPalette(const SkinManager& skin, const char* palette) {
  const auto entries = Entries(palette);
  ASSERT_EQ(entries.size(), 122u);
  for (int n = 0; n < SkinManager::kSlotCount; ++n) {
    const unsigned long color = skin.Slot(n);
    EXPECT_EQ(color, ExpectedColor(entries, static_cast<std::size_t>(n), kNoColor)) << "slot " << n;
  }
}

std::vector<int> SlotsThatDiffer(const SkinManager& a, const SkinManager& b) {
  std::vector<int> slots;
  for (int n = 0; n < SkinManager::kSlotCount; ++n) {
    if (static_cast<unsigned long>(a.Slot(n)) != static_cast<unsigned long>(b.Slot(n))) {
      slots.push_back(n);
    }
  }
  return slots;
}

class Palette : public testing::Test {
 protected:
  ~Palette() override { SetSystemScheme(before_); }

 private:
  SystemScheme before_ = GetSystemScheme();
};

TEST_F(Palette, LightDarkAndContrastHaveTheirColors) {
  ExpectPalette(SkinManager(SkinMode::Default), kLight);
  ExpectPalette(SkinManager(SkinMode::Dark), kDark);
  SetSystemScheme(SystemScheme::HighContrast);
  ExpectPalette(SkinManager(SkinMode::HCMDark), kContrast);
}

TEST_F(Palette, HighContrastOverridesEveryMode) {
  SetSystemScheme(SystemScheme::HighContrast);
  for (const auto mode : {SkinMode::Default, SkinMode::Dark, SkinMode::XML, SkinMode::HCMDark}) {
    SkinManager skin(mode);
    EXPECT_EQ(skin.GetSkinMode(), SkinMode::HCMDark);
    ExpectPalette(skin, kContrast);
  }
}

TEST_F(Palette, HighContrastModeLoadsTheLightPaletteElsewhere) {
  SkinManager skin(SkinMode::HCMDark);
  EXPECT_EQ(skin.GetSkinMode(), SkinMode::Default);
  ExpectPalette(skin, kLight);
}

TEST_F(Palette, SwitchingKeepsWhatThePaletteDoesNotDefine) {
  SkinManager skin(SkinMode::Dark);
  skin.SetSkinMode(SkinMode::Default);
  const auto kept = SlotsThatDiffer(skin, SkinManager(SkinMode::Default));
  EXPECT_THAT(kept, testing::ElementsAre(56, 69, 70, 71, 72, 73, 75, 76, 77, 79, 80, 81));
  EXPECT_EQ(static_cast<unsigned long>(skin.Slot(70)), 0x767676UL);
  skin.SetSkinMode(SkinMode::Dark);
  EXPECT_THAT(SlotsThatDiffer(skin, SkinManager(SkinMode::Dark)), testing::ElementsAre(37, 65));
}

TEST_F(Palette, CopiedSlotsTakeTheResolvedColor) {
  SkinManager parent(SkinMode::Default);
  parent.Slot(27) = 0x010203;
  SkinManager skin(SkinMode::Default);
  skin.SetParentSkinManager(&parent);
  skin.LoadSkin(SkinMode::Default, false, false);
  EXPECT_TRUE(skin.Slot(29) == 0x010203);
}

TEST_F(Palette, UnknownModesAndXmlWithoutAParentLoadNothing) {
  SkinManager skin(SkinMode::Dark);
  for (const int mode : {-1, 2, 4, 5, 1000})
    EXPECT_FALSE(skin.SetSkinMode(static_cast<SkinMode>(mode)));
  EXPECT_EQ(skin.GetSkinMode(), SkinMode::Dark);
  ExpectPalette(skin, kDark);
}

}  // namespace
}  // namespace Wexa
