#include "platform/Font.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "graphics/FontCache.h"

namespace {

LOGFONTW Describe(LONG height, LONG weight = FW_NORMAL) {
  LOGFONTW description{};
  description.lfHeight = height;
  description.lfWeight = weight;
  return description;
}

class ScreenDpi : public testing::Test {
 protected:
  ~ScreenDpi() override { SetScreenDpi(96); }
};

}  // namespace

TEST(Font, EqualDescriptionsShareOneRealisedFont) {
  LOGFONTW description = Describe(-17);
  HFONT first = CreateFontIndirectW(&description);
  HFONT second = CreateFontIndirectW(&description);
  EXPECT_NE(first, second);
  EXPECT_EQ(&FontOf(first), &FontOf(second));
  EXPECT_TRUE(DeleteFont(first));
  EXPECT_NE(&FontOf(second), &FontOf(nullptr));
  EXPECT_TRUE(DeleteFont(second));
}

TEST(Font, StaleFontMeasuresAsTheSystemFont) {
  LOGFONTW description = Describe(-40);
  HFONT font = CreateFontIndirectW(&description);
  EXPECT_GT(GetFontMetrics(font).height, GetFontMetrics(nullptr).height);
  EXPECT_TRUE(DeleteFont(font));
  EXPECT_FALSE(DeleteFont(font));
  EXPECT_FALSE(GetFontDescription(font, &description));
  EXPECT_EQ(GetFontMetrics(font).height, GetFontMetrics(GetSystemFont()).height);
  EXPECT_EQ(CreateFontIndirectW(nullptr), nullptr);
}

TEST(Font, SystemFontIsNeverDeleted) {
  LOGFONTW description{};
  EXPECT_FALSE(DeleteFont(GetSystemFont()));
  EXPECT_TRUE(GetFontDescription(GetSystemFont(), &description));
  EXPECT_EQ(description.lfHeight, -12);
  EXPECT_STREQ(description.lfFaceName, L"Tahoma");
}

TEST(Font, ManyFontsComeAndGo) {
  std::vector<HFONT> fonts;
  for (LONG size = 8; size < 80; ++size) {
    LOGFONTW description = Describe(-size);
    fonts.push_back(CreateFontIndirectW(&description));
  }
  EXPECT_LT(GetTextExtent(fonts.front(), L"text").cx, GetTextExtent(fonts.back(), L"text").cx);
  for (HFONT font : fonts) EXPECT_TRUE(DeleteFont(font));
}

TEST(Font, BoldIsWiderAndAbsurdDescriptionsWork) {
  LOGFONTW plain = Describe(-12);
  LOGFONTW bold = Describe(-12, FW_BOLD);
  LOGFONTW absurd = Describe(-2147483647 - 1, -5);
  std::fill(std::begin(absurd.lfFaceName), std::end(absurd.lfFaceName), wchar_t{0xD800});
  HFONT fonts[]{CreateFontIndirectW(&plain), CreateFontIndirectW(&bold),
                CreateFontIndirectW(&absurd)};
  EXPECT_LT(GetTextExtent(fonts[0], L"Weight").cx, GetTextExtent(fonts[1], L"Weight").cx);
  EXPECT_GT(GetFontMetrics(fonts[2]).height, 0);
  for (HFONT font : fonts) DeleteFont(font);
}

TEST_F(ScreenDpi, PointSizesFollowTheResolution) {
  LOGFONTW description = Describe(90);
  for (auto [dpi, height] : {std::pair{96, -12}, {120, -15}, {144, -18}, {72, -9}}) {
    SetScreenDpi(dpi);
    HFONT font = CreatePointFontIndirect(&description);
    LOGFONTW found{};
    GetFontDescription(font, &found);
    EXPECT_EQ(found.lfHeight, height);
    DeleteFont(font);
    GetFontDescription(GetSystemFont(), &found);
    EXPECT_EQ(found.lfHeight, height);
  }
}

TEST_F(ScreenDpi, UnitsAreTruncatedTowardZeroAndNeverShrink) {
  SetScreenDpi(144);
  EXPECT_EQ(ScaleUnits(13), 19);
  EXPECT_EQ(ScaleUnits(-13), -19);
  SetScreenDpi(72);
  EXPECT_EQ(ScaleUnits(13), 13);
}
