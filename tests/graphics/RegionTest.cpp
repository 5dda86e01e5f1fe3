#include "platform/Region.h"

#include <gtest/gtest.h>

#include <bitset>
#include <random>

#include "graphics/PixelRegion.h"
#include "platform/Geometry.h"

namespace {

constexpr int kEdge = 16;
using Pixels = std::bitset<kEdge * kEdge>;

Pixels PixelsOf(const PixelRegion& region) {
  Pixels pixels;
  for (int i = 0; i < kEdge * kEdge; ++i) {
    pixels[static_cast<std::size_t>(i)] = region.Contains(POINT{i % kEdge, i / kEdge});
  }
  return pixels;
}

PixelRegion RandomRegion(std::mt19937& random) {
  std::uniform_int_distribution<int> place(0, kEdge);
  PixelRegion region;
  for (int i = 0; i < 4; ++i) {
    int x = place(random);
    int y = place(random);
    region.Unite(RECT{x, y, place(random), place(random)});
  }
  return region;
}

HRGN Rectangle(int left, int top, int right, int bottom) {
  return CreateRectRgn(left, top, right, bottom);
}

}  // namespace

TEST(PixelRegion, AlgebraAgreesWithSetsOfPixels) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    PixelRegion a = RandomRegion(random);
    PixelRegion b = RandomRegion(random);
    Pixels pa = PixelsOf(a);
    Pixels pb = PixelsOf(b);
    EXPECT_EQ(PixelsOf(PixelRegion(a).Unite(b)), pa | pb);
    EXPECT_EQ(PixelsOf(PixelRegion(a).Intersect(b)), pa & pb);
    EXPECT_EQ(PixelsOf(PixelRegion(a).Subtract(b)), pa & ~pb);
    EXPECT_EQ(PixelsOf(PixelRegion(a).Xor(b)), pa ^ pb);
    EXPECT_EQ(a == b, pa == pb);
    EXPECT_EQ(a.IsEmpty(), pa.none());
  }
}

TEST(PixelRegion, NothingIsTheSameEverywhere) {
  const PixelRegion apart = PixelRegion(RECT{5, 5, 9, 9}).Intersect(RECT{20, 20, 30, 30});
  EXPECT_TRUE(apart == PixelRegion());
  EXPECT_TRUE(PixelRegion(RECT{5, 5, 9, 9}).Subtract(RECT{0, 0, 9, 9}).Move(3, 3) == apart);
  EXPECT_FALSE(apart == PixelRegion(RECT{5, 5, 9, 9}));
}

TEST(PixelRegion, BandsCoverEachPixelOnce) {
  PixelRegion region(RECT{0, 0, 10, 10});
  region.Subtract(RECT{2, 2, 5, 5});
  int area = 0;
  for (const RECT& rect : region.Rects()) area += CRect(rect).Width() * CRect(rect).Height();
  EXPECT_EQ(area, 91);
  EXPECT_FALSE(region.IsRect());
  EXPECT_FALSE(region.Contains(RECT{1, 1, 4, 4}));
  EXPECT_TRUE(region.Intersects(RECT{1, 1, 4, 4}));
  EXPECT_FALSE(region.Intersects(RECT{3, 3, 4, 4}));
  const PixelRegion copy = region;
  region.Move(3, -1);
  EXPECT_EQ(region.Bounds(), CRect(3, -1, 13, 9));
  EXPECT_EQ(copy.Bounds(), CRect(0, 0, 10, 10));
}

TEST(PixelRegion, EllipseIsSymmetricAndTouchesItsBounds) {
  PixelRegion ellipse = PixelRegion::Ellipse(RECT{1, 2, 14, 13});
  EXPECT_EQ(ellipse.Bounds(), CRect(1, 2, 14, 13));
  EXPECT_FALSE(ellipse.Contains(POINT{1, 2}));
  EXPECT_TRUE(ellipse.Contains(POINT{7, 7}));
  for (int y = 2; y < 13; ++y) {
    for (int x = 1; x < 14; ++x) {
      EXPECT_EQ(ellipse.Contains(POINT{x, y}), ellipse.Contains(POINT{14 - x, 14 - y}));
    }
  }
}

TEST(Region, CombinesAndTellsTheKind) {
  HRGN result = Rectangle(0, 0, 0, 0);
  HRGN a = Rectangle(0, 0, 10, 10);
  HRGN b = Rectangle(20, 0, 30, 10);
  RECT box{};
  EXPECT_EQ(CombineRgn(result, a, b, RGN_AND), NULLREGION);
  EXPECT_EQ(CombineRgn(result, a, b, RGN_OR), COMPLEXREGION);
  EXPECT_EQ(GetRgnBox(result, &box), COMPLEXREGION);
  EXPECT_EQ(CRect(box), CRect(0, 0, 30, 10));
  EXPECT_FALSE(PtInRegion(result, 15, 5));
  EXPECT_EQ(CombineRgn(result, a, nullptr, RGN_COPY), SIMPLEREGION);
  EXPECT_TRUE(EqualRgn(result, a));
  EXPECT_EQ(CombineRgn(a, a, b, 99), RGN_ERROR);
  for (HRGN region : {result, a, b}) EXPECT_TRUE(DeleteRgn(region));
}

TEST(Region, CornersMayComeInAnyOrder) {
  HRGN region = Rectangle(10, 8, 2, 4);
  EXPECT_TRUE(PtInRegion(region, 2, 4));
  EXPECT_FALSE(PtInRegion(region, 10, 8));
  DeleteRgn(region);
}

TEST(Region, StaleHandlesAreRecognised) {
  HRGN region = Rectangle(0, 0, 5, 5);
  EXPECT_TRUE(DeleteRgn(region));
  HRGN reused = Rectangle(0, 0, 9, 9);
  RECT box{1, 2, 3, 4};
  EXPECT_FALSE(DeleteRgn(region));
  EXPECT_FALSE(PtInRegion(region, 1, 1));
  EXPECT_FALSE(EqualRgn(region, region));
  EXPECT_EQ(GetRgnBox(region, &box), RGN_ERROR);
  EXPECT_EQ(CombineRgn(reused, reused, region, RGN_OR), RGN_ERROR);
  EXPECT_TRUE(DeleteRgn(reused));
}

TEST(Region, HugeEllipseIsMade) {
  HRGN region = CreateEllipticRgn(-2000000000, -2000000000, 2000000000, 2000000000);
  EXPECT_TRUE(PtInRegion(region, 0, 0));
  DeleteRgn(region);
}

TEST(CRgn, CopyOwnsARegionOfItsOwn) {
  CRgn first(Rectangle(0, 0, 5, 5));
  CRgn copy(first);
  EXPECT_NE(copy.GetSafeHandle(), first.GetSafeHandle());
  EXPECT_TRUE(EqualRgn(copy.GetSafeHandle(), first.GetSafeHandle()));
  first.DeleteObject();
  EXPECT_TRUE(PtInRegion(copy.GetSafeHandle(), 4, 4));
  EXPECT_EQ(CRgn(first).GetSafeHandle(), nullptr);
}

TEST(CRgn, AssignmentDeletesWhatItHeld) {
  CRgn region(Rectangle(0, 0, 5, 5));
  HRGN old = region.GetSafeHandle();
  region = CRgn(Rectangle(0, 0, 1, 1));
  EXPECT_EQ(GetRgnBox(old, nullptr), RGN_ERROR);
  EXPECT_FALSE(DeleteRgn(old));
  EXPECT_TRUE(PtInRegion(region.GetSafeHandle(), 0, 0));
}

TEST(Geometry, EmptyOperandsAreIgnoredByUnionAndEmptyTheIntersection) {
  RECT empty{5, 5, 5, 9};
  RECT area{1, 1, 5, 5};
  RECT result{};
  EXPECT_TRUE(UnionRect(&result, &empty, &area));
  EXPECT_EQ(CRect(result), CRect(1, 1, 5, 5));
  EXPECT_FALSE(IntersectRect(&result, &empty, &area));
  EXPECT_EQ(CRect(result), CRect());
  result = area;
  EXPECT_FALSE(UnionRect(&result, &empty, &empty));
  EXPECT_EQ(CRect(result), CRect());
}

TEST(Geometry, NullRectanglesAndOverflowAreHarmless) {
  RECT far{2147483647, 0, 2147483647, 1};
  EXPECT_TRUE(OffsetRect(&far, 5, 0));
  EXPECT_FALSE(InflateRect(nullptr, 1, 1));
  EXPECT_TRUE(IsRectEmpty(nullptr));
  EXPECT_FALSE(PtInRect(nullptr, POINT{0, 0}));
}
