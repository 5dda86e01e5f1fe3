#include <gmock/gmock.h>

#include <map>
#include <optional>

#include "SkinManager.h"

namespace Wexa {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;

constexpr unsigned long kMark = 0x123456;

using Slots = std::vector<int>;

struct KeyedSlots {
  std::wstring key;
  Slots buttons;
  std::optional<Slots> inputs{};  // the same where none are given
};

// The slots that each name reaches.
const std::vector<KeyedSlots> kKeyedSlots = {
    {L"Primary_text", {0,  8,  12, 33, 35,  40,  46,  69,  71,  73,  77,  81, 82,
                       83, 88, 89, 93, 105, 108, 109, 111, 113, 116, 119, 121}},
    {L"Disabled_text", {1, 9, 13, 34, 72, 84, 85, 90, 114}},
    {L"Input_BG", {2, 23, 26}},
    {L"Hover_button_border", {3, 27}, Slots{27}},
    {L"Hover_input_border", {}, Slots{3}},
    {L"Button_border", {4, 30}, Slots{30}},
    {L"Input_border", {}, Slots{4}},
    {L"Disable_Button_border", {5, 25, 29, 31}, Slots{25, 31}},
    {L"Disable_input_border", {}, Slots{5}},
    {L"Accent_color",
     {6, 18, 32, 43, 52, 53, 54, 60, 61, 67, 96, 98},
     Slots{18, 32, 43, 52, 53, 54, 60, 61, 67, 96, 98}},
    {L"Selected_input_border", {}, Slots{6}},
    {L"Placeholder_text", {7, 19}},
    {L"Frame_border", {10, 17, 38, 41, 42, 49, 70, 75, 76, 80, 91, 120}},
    {L"Content_BG",
     {11, 14, 15, 36, 55, 86, 92, 94, 117, 118},
     Slots{11, 14, 15, 36, 55, 86, 92, 94, 117, 118, 78, 115}},
    {L"Hover_BG", {16, 39}, Slots{16, 39, 97}},
    {L"Button_text", {20, 22}, Slots{20, 22, 28}},
    {L"Disable_button_text", {21}},
    {L"Primary_BG", {24, 37}},
    {L"Check_or_Radio_border", {28}, Slots{}},
    {L"Hover_button_BG", {}, Slots{29}},
    {L"ScrollbarThumb_color", {44, 47, 112}},
    {L"Scrollbar_BG", {45}},
    {L"Hover_scrollbarThumb_color", {48}},
    {L"Accent_button_text", {50, 51, 57, 63, 68}},
    {L"Press_accent_color", {56, 59, 65, 66}},
    {L"Hover_accent_color", {58, 79}},
    {L"Disable_accent_color", {62, 64}},
    {L"Active_BG", {74, 95}},
    {L"White_BG", {78, 115}, Slots{}},
    {L"Spacing_line", {87}},
    {L"Second_BG", {97, 106, 110}, Slots{106, 110}},
    {L"Secondary_text", {99, 104}},
    {L"Link_rest", {100}},
    {L"Link_pressed", {101}},
    {L"Link_hover", {102}},
    {L"Link_disabled", {103}},
    {L"Light_spacing_line", {107}},
};

// The slots that change when a key is given a colour.
std::vector<int> SlotsSetBy(SkinMap map, const std::wstring& key) {
  SkinManager skin(SkinMode::HCMDark);
  skin.LoadDarkSkin(false);
  skin.LoadDefaultSkin(false);
  skin.AssignColor(map, key, kMark);
  std::vector<int> slots;
  for (int n = 0; n < SkinManager::kSlotCount; ++n) {
    if (skin.Slot(n) == static_cast<int>(kMark)) slots.push_back(n);
  }
  return slots;
}

TEST(SkinKeys, EachKeyReachesItsSlots) {
  for (const auto& [key, buttons, inputs] : kKeyedSlots) {
    EXPECT_THAT(SlotsSetBy(SkinMap::Buttons, key), UnorderedElementsAreArray(buttons))
        << testing::PrintToString(key);
    EXPECT_THAT(SlotsSetBy(SkinMap::Inputs, key),
                UnorderedElementsAreArray(inputs.value_or(buttons)))
        << testing::PrintToString(key);
  }
}

TEST(SkinKeys, LetterCaseDoesNotCountAndUnknownKeysChangeNothing) {
  EXPECT_EQ(SlotsSetBy(SkinMap::Buttons, L"aCCent_COLOR"),
            SlotsSetBy(SkinMap::Buttons, L"Accent_color"));
  for (const wchar_t* key : {L"", L"Accent", L"Accent_color "})
    EXPECT_THAT(SlotsSetBy(SkinMap::Inputs, key), IsEmpty());
}

TEST(SkinKeys, MapValuesOtherThanButtonsMeanInputs) {
  EXPECT_EQ(SlotsSetBy(static_cast<SkinMap>(7), L"Hover_BG"),
            SlotsSetBy(SkinMap::Inputs, L"Hover_BG"));
}

TEST(SkinKeys, AMapSetsLockedSlotsAndItsLaterKeysCount) {
  SkinManager skin(SkinMode::Default);
  EXPECT_FALSE(skin.IsKeyMapApplied());
  skin.LoadSkin(SkinMode::Default, true, false);
  skin.InitSkinColorByMap(SkinMap::Buttons, {{L"SPACING_LINE", 1UL}, {L"spacing_line", 2UL}});
  EXPECT_EQ(static_cast<unsigned long>(skin.Slot(87)), 2UL);
  EXPECT_TRUE(SkinManager(skin).IsKeyMapApplied());
  SkinManager other(SkinMode::Default);
  other.InitSkinColorByMap(SkinMap::Buttons, {});
  EXPECT_TRUE(other.IsKeyMapApplied());
}

}  // namespace
}  // namespace Wexa
