#include "SkinManagerColor.h"

#include <gtest/gtest.h>

#include "RGBColor.h"

namespace Wexa {
namespace {

unsigned long Resolved(const SkinManagerColor& color) {
  return color;
}

SkinManagerColor Unset(unsigned long color, const SkinManagerColor* fallback, bool locked = false) {
  SkinManagerColor unset;
  unset.SetDefaultColor(color, fallback, locked, nullptr);
  return unset;
}

TEST(SkinManagerColor, IsBlackAndUnsetAtFirst) {
  const SkinManagerColor color;
  EXPECT_EQ(Resolved(color), 0u);
  EXPECT_FALSE(color.IsChanged());
  EXPECT_TRUE(color == 0);
}

TEST(SkinManagerColor, ResolvesThroughAnyNumberOfFallbacks) {
  std::vector<SkinManagerColor> chain(100);
  chain[0].SetDefaultColor(7, nullptr, false, nullptr);
  for (std::size_t n = 1; n < chain.size(); ++n)
    chain[n].SetDefaultColor(n, &chain[n - 1], false, nullptr);
  EXPECT_EQ(Resolved(chain.back()), 7u);
  EXPECT_FALSE(chain.back().IsChanged());
  chain[50] = 9;
  EXPECT_EQ(Resolved(chain.back()), 9u);
  EXPECT_TRUE(chain.back().IsChanged());
  EXPECT_EQ(Resolved(chain[49]), 7u);
}

TEST(SkinManagerColor, AssignmentTakesTheStoredValue) {
  const SkinManagerColor fallback(5UL);
  const auto unset = Unset(3, &fallback);
  SkinManagerColor target(1UL);
  target = unset;
  EXPECT_EQ(Resolved(target), 3u);
  EXPECT_FALSE(target.IsChanged());
}

TEST(SkinManagerColor, LockedColorsTakeNumbersOnly) {
  auto locked = Unset(1, nullptr, true);
  locked = SkinManagerColor(2UL);
  EXPECT_EQ(Resolved(locked), 1u);
  locked = 3UL;
  EXPECT_EQ(Resolved(locked), 3u);
}

TEST(SkinManagerColor, ComparesStoredValuesOf32Bits) {
  const SkinManagerColor fallback(5UL);
  EXPECT_TRUE(Unset(1, &fallback) != Unset(2, &fallback));
  EXPECT_TRUE(Unset(1, &fallback) == Unset(1, nullptr));
  EXPECT_TRUE(SkinManagerColor(0xFFFFFFFFUL) == -1);
  EXPECT_TRUE(SkinManagerColor(0x1FFFFFFFFUL) != 1);
  EXPECT_EQ(Resolved(SkinManagerColor(0x1FFFFFFFFUL)), 0xFFFFFFFFUL);
}

TEST(SkinManagerColor, SumsChangeTheColorAndWrapAround) {
  auto color = Unset(0xFFFFFFFF, nullptr);
  EXPECT_EQ(Resolved(color + SkinManagerColor(2UL)), 1u);
  EXPECT_EQ(Resolved(color), 1u);
  EXPECT_TRUE(color.IsChanged());
  EXPECT_EQ(Resolved(color - SkinManagerColor(2UL)), 0xFFFFFFFFUL);
}

TEST(SkinManagerColor, OnlyTheMaskOfUnsignedLongChangesTheColor) {
  SkinManagerColor color(0xABCDEFUL);
  EXPECT_EQ(Resolved(color & 0xFF), 0xEFu);
  EXPECT_EQ(Resolved(color), 0xABCDEFu);
  EXPECT_EQ(Resolved(color & 0xFF00UL), 0xCD00u);
  EXPECT_EQ(Resolved(color), 0xCD00u);
}

TEST(RgbColor, StoresTransparencyInTheTopByte) {
  EXPECT_EQ(Resolved(RGBColor(1, 2, 3)), 0x030201u);
  EXPECT_EQ(RGBColor(1, 2, 3).GetA(), 255);
  EXPECT_EQ(Resolved(RGBColor(1, 2, 3, 0)), 0xFF030201u);
  EXPECT_EQ(RGBColor(1, 2, 3, 0).GetA(), 0);
  EXPECT_EQ(Resolved(RGBColor(0x101, -1, 0x203)), 0x03FF01u);
  EXPECT_EQ(RGBColor(static_cast<int>(0x80000000)).GetA(), 127);
}

TEST(RgbColor, ChangingAComponentMakesItOpaque) {
  RGBColor color(1, 2, 3);
  color.SetA(10);
  EXPECT_EQ(color.GetA(), 10);
  EXPECT_EQ(color.GetG(), 2);
  color.SetR(5);
  EXPECT_EQ(color.GetA(), 255);
  EXPECT_EQ(Resolved(color), 0x030205u);
}

TEST(RgbColor, TakesWhatASkinColorResolvesTo) {
  const SkinManagerColor fallback(5UL);
  EXPECT_EQ(Resolved(RGBColor(Unset(1, &fallback))), 5u);
  EXPECT_TRUE(RGBColor().IsChanged());
  EXPECT_TRUE(RGBColor(7).GetPlatformColor() == 7);
}

}  // namespace
}  // namespace Wexa
