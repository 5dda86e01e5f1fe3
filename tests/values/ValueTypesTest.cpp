#include <gtest/gtest.h>

#include <list>

#include "Any.h"
#include "KvDateTime.h"
#include "Rect.h"
#include "Region.h"

namespace Wexa {
namespace {

constexpr int kMax = 2147483647;

void ExpectEdges(const Rect& rect, int left, int top, int right, int bottom) {
  EXPECT_EQ(rect.Left(), left);
  EXPECT_EQ(rect.Top(), top);
  EXPECT_EQ(rect.Right(), right);
  EXPECT_EQ(rect.Bottom(), bottom);
}

// -- Rectangles and sizes
// ----------------------------------------------------------------------------

TEST(Rect, IsMadeOfAPlaceAndAnExtent) {
  ExpectEdges(Rect(10, 20, 30, 40), 10, 20, 40, 60);
  ExpectEdges(Rect(Point(1, 2), Point(3, 4)), 1, 2, 3, 4);
  ExpectEdges(Rect(CRect(1, 2, 3, 4)), 1, 2, 3, 4);
}

TEST(Rect, SettersMoveOneEdge) {
  Rect rect(10, 20, 30, 40);
  rect.SetLeft(0);
  rect.SetBottom(50);
  ExpectEdges(rect, 0, 20, 40, 50);
  rect.SetWidth(5);
  rect.SetHeight(-6);
  ExpectEdges(rect, 0, 20, 5, 14);
}

TEST(Rect, RightAndBottomAreOutside) {
  const Rect rect(0, 0, 10, 10);
  EXPECT_TRUE(rect.Contains({0, 0}));
  EXPECT_TRUE(rect.Contains({9, 9}));
  EXPECT_FALSE(rect.Contains({10, 5}));
  EXPECT_FALSE(rect.Contains({5, 10}));
}

TEST(Rect, EmptyIsNotNull) {
  EXPECT_TRUE(Rect(1, 1, 0, 5).IsEmpty());
  EXPECT_TRUE(Rect(1, 1, -1, 5).IsEmpty());
  EXPECT_FALSE(Rect(POINT{-2000000000, 0}, POINT{2000000000, 1}).IsEmpty());
  EXPECT_FALSE(Rect(1, 1, 0, 5).IsNull());
  EXPECT_TRUE(Rect().IsNull());
}

TEST(Rect, InflatesOutwards) {
  Rect rect(10, 10, 10, 10);
  rect.Inflate(1, 2);
  ExpectEdges(rect, 9, 8, 21, 22);
  rect.Inflate(1, 2, 3, 4);
  ExpectEdges(rect, 8, 6, 24, 26);
  rect.Adjust(1, 2, 3, 4);
  ExpectEdges(rect, 9, 8, 27, 30);
}

TEST(Rect, CopiesLeaveTheOriginal) {
  const Rect rect(1, 2, 3, 4);
  ExpectEdges(rect.OffsetRect(10, 20), 11, 22, 14, 26);
  ExpectEdges(rect.MarginsAdded(1, 2, 3, 4), 0, 0, 7, 10);
  ExpectEdges(Rect(5, 6, -3, -4).Normalize(), 2, 2, 5, 6);
  ExpectEdges(rect, 1, 2, 4, 6);
}

TEST(Rect, CenterIsTruncatedTowardZero) {
  EXPECT_EQ(Rect(CRect(-3, -3, 0, 0)).CenterPoint(), Point(-1, -1));
  EXPECT_EQ(Rect(CRect(0, 0, 3, 5)).CenterPoint(), Point(1, 2));
}

TEST(Rect, UnionIgnoresEmptyOperands) {
  const Rect rect(1, 1, 5, 5);
  EXPECT_EQ(Rect(9, 9, 0, 0).Union(rect), rect);
  EXPECT_EQ(rect | Rect(9, 9, 0, 5), rect);
  EXPECT_EQ(Rect::Union(Rect(9, 9, 0, 0), Rect(1, 1, -1, 5)), Rect());
  ExpectEdges(rect | Rect(10, 0, 1, 2), 1, 0, 11, 6);
}

TEST(Rect, DisjointRectanglesMeetNowhere) {
  EXPECT_EQ(Rect(0, 0, 5, 5).Intersected(Rect(5, 0, 5, 5)), Rect());
  EXPECT_FALSE(Rect(0, 0, 5, 5).Intersects(Rect(5, 0, 5, 5)));
  ExpectEdges(Rect(0, 0, 5, 5).Intersected(Rect(3, 2, 5, 5)), 3, 2, 5, 5);
}

TEST(Rect, HugeValuesWrapAround) {
  const Rect rect(kMax, 0, 1, 0);
  EXPECT_EQ(rect.Width(), 1);
  EXPECT_EQ(rect.Right(), -kMax - 1);
}

TEST(Size, InflatesAndDeflatesByComponent) {
  EXPECT_EQ(Size(3, 9).GetInflated({5, 4}), Size(5, 9));
  EXPECT_EQ(Size(3, 9).GetDeflated({5, 4}), Size(3, 4));
  Size sum(1, 2);
  sum += Size(kMax, 3);
  EXPECT_EQ(sum, Size(-kMax - 1, 5));
}

// -- Regions
// -----------------------------------------------------------------------------------------

TEST(Region, SetOperationsLeaveTheOperands) {
  const Region left(0, 0, 10, 10, RegionType::Rectangular);
  const Region right(Rect(5, 0, 10, 10), RegionType::Rectangular);
  EXPECT_EQ(left.Interselected(right), Region(5, 0, 5, 10, RegionType::Rectangular));
  EXPECT_EQ(left.Substracted(right), Region(0, 0, 5, 10, RegionType::Rectangular));
  EXPECT_EQ(left.United(right), Region(0, 0, 15, 10, RegionType::Rectangular));
  EXPECT_EQ(left.Xored(right), left.United(right).Substracted(left.Interselected(right)));
  EXPECT_EQ(left, Region(0, 0, 10, 10, RegionType::Rectangular));
}

TEST(Region, CopiesOwnTheirArea) {
  auto original = std::make_unique<Region>(0, 0, 10, 10, RegionType::Elliptic);
  const Region copy(*original);
  const Region fromNative(original->PlatformRegion());
  EXPECT_NE(copy.PlatformRegion().GetSafeHandle(), original->PlatformRegion().GetSafeHandle());
  original.reset();
  EXPECT_EQ(copy, fromNative);
  EXPECT_TRUE(copy != Region(0, 0, 10, 10, RegionType::Rectangular));
}

TEST(Region, UnknownTypesHoldNoArea) {
  const Region none(0, 0, 10, 10, static_cast<RegionType>(2));
  const Region some(0, 0, 10, 10, RegionType::Rectangular);
  EXPECT_EQ(none.PlatformRegion().GetSafeHandle(), nullptr);
  EXPECT_FALSE(none == none);
  EXPECT_EQ(some.United(none), Region());
}

// -- Any
// ---------------------------------------------------------------------------------------------

TEST(Any, HoldsACopyOfAnyValue) {
  std::list<any> items{1, std::wstring(L"two")};
  any value = items;
  items.clear();
  const any copy = value;
  value = 3;
  const auto held = any_cast<std::list<any>>(copy);
  EXPECT_EQ(any_cast<int>(held.front()), 1);
  EXPECT_EQ(any_cast<std::wstring>(held.back()), L"two");
  EXPECT_EQ(any_cast<int>(value), 3);
}

TEST(Any, CastsToAnotherTypeThrow) {
  const any value = 1;
  EXPECT_THROW(any_cast<unsigned>(value), bad_any_cast);
  EXPECT_THROW(any_cast<long>(value), std::bad_cast);
  EXPECT_THROW(any_cast<int>(any()), bad_any_cast);
  try {
    any_cast<double>(value);
    FAIL();
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "wexa::bad_any_cast: failed conversion using std::any_cast");
  }
}

TEST(Any, KnowsWhatItHolds) {
  EXPECT_TRUE(any().empty());
  EXPECT_EQ(any().type(), typeid(void));
  any value = 1;
  EXPECT_EQ(value.type(), typeid(int));
  value = any();
  EXPECT_TRUE(value.empty());
}

TEST(KvDateTime, IsSixShortNumbers) {
  EXPECT_EQ(sizeof(KvDateTime), 12u);
  EXPECT_EQ(KvDateTime(), (KvDateTime{1900, 1, 1, 0, 0, 0}));
}

}  // namespace
}  // namespace Wexa
