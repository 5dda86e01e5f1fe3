#include "SkinManagerColor.h"

#include <gtest/gtest.h>

#include <memory>

#include "RGBColor.h"

namespace Wexa {
namespace {

unsigned long Resolved(const SkinManagerColor& color) {
  return color;
}

// Not set, over a fallback that is.
struct Unset {
  explicit Unset(unsigned long value, bool locked = false) {
    color.SetDefaultColor(value, fallback.get(), locked, nullptr);
  }
  std::unique_ptr<SkinManagerColor> fallback = std::make_unique<SkinManagerColor>(5UL);
  SkinManagerColor color;
};

TEST(SkinManagerColor, IsBlackAndUnsetAtFirst) {
  const SkinManagerColor color;
  EXPECT_EQ(Resolved(color), 0u);
  EXPECT_FALSE(color.IsChanged());
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

TEST(SkinManagerColor, ACopyStandsAlone) {
  Unset unset(3);
  const SkinManagerColor copy = unset.color;
  *unset.fallback = 6;
  EXPECT_EQ(Resolved(unset.color), 6u);
  unset.fallback.reset();
  EXPECT_EQ(Resolved(copy), 5u);
  EXPECT_TRUE(copy.IsChanged());
}

TEST(SkinManagerColor, AssignmentTakesTheStoredValueUnlessLocked) {
  const Unset unset(3);
  SkinManagerColor target(1UL);
  target = unset.color;
  EXPECT_EQ(Resolved(target), 3u);
  EXPECT_FALSE(target.IsChanged());
  Unset locked(1, true);
  locked.color = SkinManagerColor(2UL);
  EXPECT_TRUE(locked.color == 1);
  locked.color = 3UL;
  EXPECT_EQ(Resolved(locked.color), 3u);
}

TEST(SkinManagerColor, ComparesStoredValuesOf32Bits) {
  EXPECT_TRUE(Unset(1).color != Unset(2).color);
  EXPECT_TRUE(Unset(1).color == SkinManagerColor(1UL));
  EXPECT_TRUE(SkinManagerColor(0xFFFFFFFFUL) == -1);
  EXPECT_TRUE(SkinManagerColor(0x1FFFFFFFFUL) != 1);
}

TEST(SkinManagerColor, SumsAndLongMasksChangeTheColor) {
  SkinManagerColor color(0xFFFFFFFFUL);
  EXPECT_EQ(Resolved(color + SkinManagerColor(2UL)), 1u);
  EXPECT_EQ(Resolved(color), 1u);
  EXPECT_EQ(Resolved(color - SkinManagerColor(2UL)), 0xFFFFFFFFUL);
  EXPECT_EQ(Resolved(color & 0xFF), 0xFFu);
  EXPECT_EQ(Resolved(color), 0xFFFFFFFFUL);
  EXPECT_EQ(Resolved(color & 0xFF00UL), 0xFF00u);
  EXPECT_EQ(Resolved(color), 0xFF00u);
}

TEST(RgbColor, StoresTransparencyInTheTopByte) {
  EXPECT_EQ(Resolved(RGBColor(1, 2, 3)), 0x030201u);
  EXPECT_EQ(RGBColor(1, 2, 3).GetA(), 255);
  EXPECT_EQ(Resolved(RGBColor(1, 2, 3, 0)), 0xFF030201u);
  EXPECT_EQ(RGBColor(1, 2, 3, 0).GetA(), 0);
  EXPECT_EQ(Resolved(RGBColor(0x101, -1, 0x203)), 0x03FF01u);
  EXPECT_EQ(RGBColor(static_cast<int>(0x80000000)).GetA(), 127);
  EXPECT_EQ(Resolved(RGBColor(Unset(1).color)), 5u);
  EXPECT_TRUE(RGBColor(7).GetPlatformColor() == 7);
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

}  // namespace
}  // namespace Wexa
