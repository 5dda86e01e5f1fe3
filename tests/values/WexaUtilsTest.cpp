#include "WexaUtils.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/Font.h"
#include "platform/SystemColors.h"

namespace Wexa {
namespace {

void ExpectPica(PicaPoint value, std::int64_t pica, double point) {
  EXPECT_EQ(value.pica, pica);
  EXPECT_DOUBLE_EQ(value.point, point);
}

TEST(WexaUtils, ScaleFollowsTheScreenAndIsAtLeastOne) {
  for (const auto& [dpi, scale] : {std::pair{120, 1.25}, {72, 1.0}, {96, 1.0}}) {
    SetScreenDpi(dpi);
    EXPECT_DOUBLE_EQ(WexaUtils::GetScaleFactor(), scale);
  }
}

TEST(WexaUtils, MouseKeysAreAdded) {
  unsigned buttons = 0;
  unsigned modifiers = 0;
  WexaUtils::MapMouseKeys(0x0001 | 0x0004, buttons, modifiers);
  EXPECT_EQ(buttons, 1u);
  EXPECT_EQ(modifiers, 0x02000000u);
  WexaUtils::MapMouseKeys(0x0002 | 0x0008 | 0x0010 | 0x0020 | 0x0040, buttons, modifiers);
  EXPECT_EQ(buttons, 31u);
  EXPECT_EQ(modifiers, 0x06000000u);
}

TEST(WexaUtils, UnknownCheckBoxStatesAreUnchecked) {
  for (int state = 0; state < 3; ++state) {
    EXPECT_EQ(WexaUtils::MFCChBStateToChBState(state), state);
    EXPECT_EQ(WexaUtils::ChBStateToMFCChBState(static_cast<WexaUtils::CheckBoxStates>(state)),
              state);
  }
  EXPECT_EQ(WexaUtils::MFCChBStateToChBState(3), 0);
  EXPECT_EQ(WexaUtils::MFCChBStateToChBState(-1), 0);
}

TEST(WexaUtils, SizePoliciesAreFoundInOrder) {
  const std::pair<const wchar_t*, int> cases[] = {{L"MinimumExpanding", 3},
                                                  {L"QSizePolicy::MinimumExpanding", 3},
                                                  {L"Minimum", 1},
                                                  {L"Maximum", 4},
                                                  {L"Preferred", 5},
                                                  {L"Expanding", 7},
                                                  {L"Ignored", 13},
                                                  {L"Expanding Fixed", 0},
                                                  {L"", 0},
                                                  {L"expanding", 0}};
  for (const auto& [text, policy] : cases) {
    EXPECT_EQ(static_cast<int>(WexaUtils::PropertyToSizePolicy(text)), policy)
        << testing::PrintToString(text);
  }
}

TEST(WexaUtils, ImageTypesGoByTheExtension) {
  EXPECT_EQ(WexaUtils::WstrToImageType(L".JPEG"), WexaUtils::JPG);
  EXPECT_EQ(WexaUtils::WstrToImageType(L"cur"), WexaUtils::CUR);
  EXPECT_EQ(WexaUtils::WstrToImageType(L"..png"), WexaUtils::Unknown);
  EXPECT_EQ(WexaUtils::WstrToImageType(L"tiff"), WexaUtils::Unknown);
  EXPECT_EQ(WexaUtils::WstrToImageType(L""), WexaUtils::Unknown);
  EXPECT_EQ(WexaUtils::ImageTypeToStr(WexaUtils::JPG), "JPG");
  EXPECT_EQ(WexaUtils::ImageTypeToStr(WexaUtils::CUR), "BMP");
}

TEST(WexaUtils, PicasHaveTwelvePoints) {
  ExpectPica(WexaUtils::DoubleToPica(2.5), 2, 6);
  ExpectPica(WexaUtils::DoubleToPica(-2.5), -2, -6);
  ExpectPica(WexaUtils::ConvertToPicaPoint({1, 30}), 3, 6);
  ExpectPica(WexaUtils::ConvertToPicaPoint({-1, 30}), -3, 6);
  ExpectPica(WexaUtils::ConvertToPicaPoint({1, 11.5}), 1, 11.5);
  ExpectPica(WexaUtils::ConvertToPicaPoint({0, -30}), 0, -30);
  ExpectPica(WexaUtils::ConvertToPicaPoint({1, 36e9}), 3000000001, 0);
  ExpectPica(WexaUtils::DoubleToPica(3e9), 2147483647, 0);
  EXPECT_DOUBLE_EQ(WexaUtils::PicaToDouble({0, 36e9}), 3e9);
  EXPECT_DOUBLE_EQ(WexaUtils::PicaToDouble({0, 30}), 2.5);
  EXPECT_DOUBLE_EQ(WexaUtils::PicaToDouble({-2, 6}), -2.5);
  EXPECT_DOUBLE_EQ(WexaUtils::PicaToDouble({0, -30}), -2.5);
}

TEST(WexaUtils, NoLengthOverflows) {
  constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
  WexaUtils::ConvertToPicaPoint({kMost, 1e300});
  WexaUtils::PicaToDouble({std::numeric_limits<std::int64_t>::min(), 24});
  WexaUtils::DoubleToPica(std::numeric_limits<double>::infinity());
  WexaUtils::DoubleToPica(std::numeric_limits<double>::quiet_NaN());
}

TEST(WexaUtils, KnowsTheSystem) {
  EXPECT_EQ(WexaUtils::GetOsInfo().valid, 1);
  EXPECT_GT(WexaUtils::GetOsInfo().major, 0u);
  EXPECT_FALSE(WexaUtils::IsRunInPlugin());
  const auto before = GetSystemScheme();
  SetSystemScheme(SystemScheme::HighContrast);
  EXPECT_TRUE(WexaUtils::IsSystemHighContrastMode());
  SetSystemScheme(SystemScheme::Dark);
  EXPECT_FALSE(WexaUtils::IsSystemHighContrastMode());
  SetSystemScheme(before);
}

}  // namespace
}  // namespace Wexa
