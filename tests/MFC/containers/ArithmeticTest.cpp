// The arithmetic behind bars, tabs and splitters, without windows.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <numeric>
#include <random>

#include "MFC/containers/ScrollView.h"
#include "MFC/containers/SplitSizes.h"
#include "MFC/containers/TabRow.h"
#include "MFC/ranges/ScrollTrack.h"
#include "MFC/ranges/ValueRange.h"

namespace Wexa {
namespace {

TEST(ValueRangeTest, KeepsTheValueWithinTheBounds) {
  ValueRange range;
  EXPECT_TRUE(range.SetValue(40));
  EXPECT_FALSE(range.SetValue(40));
  EXPECT_TRUE(range.SetBounds(50, 20)) << "the maximum gives way";
  EXPECT_EQ(range.Value(), 50);
  EXPECT_EQ(range.Maximum(), 50);
}

TEST(ValueRangeTest, WholeIntegersDoNotOverflow) {
  ValueRange range;
  range.SetBounds(INT_MIN, INT_MAX);
  range.SetValue(range.After(INT_MAX, INT_MAX));
  EXPECT_EQ(range.Value(), INT_MAX);
  EXPECT_EQ(range.PlaceOn(100), 100);
  EXPECT_EQ(range.ValueAt(0, 100), INT_MIN);
}

TEST(ValueRangeTest, PlacesAndValuesAreInverse) {
  ValueRange range;
  range.SetBounds(-20, 60);
  for (int value = -20; value <= 60; ++value) {
    range.SetValue(value);
    EXPECT_EQ(range.ValueAt(range.PlaceOn(400), 400), value);
  }
  EXPECT_EQ(range.ValueAt(5, 0), -20) << "no way to go";
}

ValueRange RangeOf(int maximum, int page, int value) {
  ValueRange range;
  range.SetBounds(0, maximum);
  range.SetSteps(1, page);
  range.SetValue(value);
  return range;
}

TEST(ScrollTrackTest, TheThumbIsAsLongAsAPageOfAll) {
  ScrollTrack track(RangeOf(300, 100, 150), 240, 20, 16);
  EXPECT_EQ(track.ThumbLength(), 50);
  EXPECT_EQ(track.ThumbStart(), 20 + 75);
  EXPECT_EQ(track.ValueAt(20), 0);
  EXPECT_EQ(track.ValueAt(20 + 150), 300);
}

TEST(ScrollTrackTest, PartsFollowEachOther) {
  using Part = ScrollTrack::Part;
  ScrollTrack track(RangeOf(300, 100, 150), 240, 20, 16);
  EXPECT_EQ(track.PartAt(-1), Part::None);
  EXPECT_EQ(track.PartAt(0), Part::LineBack);
  EXPECT_EQ(track.PartAt(20), Part::PageBack);
  EXPECT_EQ(track.PartAt(95), Part::Thumb);
  EXPECT_EQ(track.PartAt(145), Part::PageForward);
  EXPECT_EQ(track.PartAt(220), Part::LineForward);
  EXPECT_EQ(track.PartAt(240), Part::None);
}

TEST(ScrollTrackTest, ShortBarsLoseTheirThumbThenShareTheirArrows) {
  EXPECT_EQ(ScrollTrack(RangeOf(300, 100, 0), 50, 20, 16).ThumbLength(), 0);
  EXPECT_EQ(ScrollTrack(RangeOf(300, 100, 0), 30, 20, 16).ArrowLength(), 15);
  EXPECT_EQ(ScrollTrack(RangeOf(0, 100, 0), 240, 20, 16).ThumbLength(), 0) << "nothing to scroll";
  EXPECT_EQ(ScrollTrack(RangeOf(1 << 20, 1, 0), 240, 20, 16).ThumbLength(), 16);
}

TEST(ScrollViewTest, OneBarMayMakeTheOtherNecessary) {
  const auto viewOf = [](Size wanted, BarPolicies policies = {}) {
    return ScrollView::Of(
        {100, 80}, [wanted](int) { return wanted; }, 10, policies);
  };
  const ScrollView fits = viewOf({100, 80});
  EXPECT_FALSE(fits.hasVertical || fits.hasHorizontal);
  const ScrollView wide = viewOf({120, 40});
  EXPECT_TRUE(wide.hasHorizontal && !wide.hasVertical);
  EXPECT_EQ(wide.Content(), Size(120, 70)) << "as high as the room";
  const ScrollView both = viewOf({101, 75});
  EXPECT_TRUE(both.hasHorizontal && both.hasVertical);
  EXPECT_EQ(both.room, Size(90, 70));
  const ScrollView off = viewOf({300, 300}, {BarPolicy::AsNeeded, BarPolicy::AlwaysOff});
  EXPECT_TRUE(off.hasVertical && !off.hasHorizontal);
  const ScrollView on = viewOf({10, 10}, {BarPolicy::AlwaysOn, BarPolicy::AlwaysOn});
  EXPECT_EQ(on.room, Size(90, 70));
}

TEST(ScrollViewTest, TextThatWrapsIsMeasuredInTheRoomBesideTheBar) {
  const auto wrapped = [](int width) { return Size(0, 9000 / std::max(width, 1)); };
  const ScrollView view = ScrollView::Of({100, 80}, wrapped, 10, {});
  EXPECT_TRUE(view.hasVertical && !view.hasHorizontal);
  EXPECT_EQ(view.wanted.Height(), 100);
}

TEST(ScrollViewTest, ScrollsAsLittleAsNeeded) {
  EXPECT_EQ(PositionToShow(10, 30, 0, 100), 0);
  EXPECT_EQ(PositionToShow(90, 120, 0, 100), 20);
  EXPECT_EQ(PositionToShow(10, 30, 50, 100), 10);
  EXPECT_EQ(PositionToShow(40, 400, 0, 100), 40) << "what does not fit shows its start";
}

TEST(TabRowTest, ScrollsByWholeTabsOnlyWhenTheyDoNotFit) {
  TabRow row;
  row.SetTabs({50, 50, 50, 50});
  row.BringIntoView(3);
  EXPECT_EQ(row.First(), 0) << "there is no room yet";
  row.SetRoom(200, 40);
  EXPECT_FALSE(row.Scrolls());
  row.SetRoom(190, 40);
  EXPECT_TRUE(row.Scrolls());
  EXPECT_EQ(row.TabAt(160), -1) << "the arrows' place";
  EXPECT_FALSE(row.CanScrollBack());
  row.Scroll(9);
  EXPECT_EQ(row.First(), 1) << "no further than the last tab asks";
  EXPECT_FALSE(row.CanScrollForward());
  EXPECT_TRUE(row.TabSpan(0).IsEmpty());
  EXPECT_EQ(row.TabAt(0), 1);
  row.BringIntoView(0);
  EXPECT_EQ(row.First(), 0);
  row.SetRoom(300, 40);
  EXPECT_EQ(row.First(), 0);
}

TEST(TabRowTest, ATabWiderThanTheRowIsStillReached) {
  TabRow row;
  row.SetTabs({30, 500, 30});
  row.SetRoom(100, 40);
  row.BringIntoView(1);
  EXPECT_EQ(row.First(), 1);
  EXPECT_EQ(row.TabSpan(1).to, 60);
  row.BringIntoView(2);
  EXPECT_EQ(row.First(), 2);
  row.BringIntoView(7);
  EXPECT_EQ(row.TabSpan(7).to, 0);
}

SplitSizes ThreePanes() {
  SplitSizes sizes;
  for (int i = 0; i < 3; ++i) sizes.panes.push_back({20, 1000, 100, 0, false, false, -1, 0});
  sizes.Arrange(300);
  return sizes;
}

TEST(SplitSizesTest, MovingABorderPushesPanesFurtherOff) {
  SplitSizes sizes = ThreePanes();
  EXPECT_EQ(sizes.MoveBorder(0, 120), 120);
  EXPECT_EQ(sizes.panes[0].size, 220);
  EXPECT_EQ(sizes.panes[1].size, 20);
  EXPECT_EQ(sizes.panes[2].size, 60);
  EXPECT_EQ(sizes.MoveBorder(0, 500), 40) << "minimums hold";
  EXPECT_EQ(sizes.MoveBorder(1, -500), -240);
  EXPECT_EQ(sizes.MoveBorder(2, 10), 0) << "nothing after the last pane";
}

TEST(SplitSizesTest, GivenSizesKeepTheirProportions) {
  SplitSizes sizes = ThreePanes();
  sizes.GiveSizes({200, 100, 100});
  sizes.Arrange(800);
  EXPECT_EQ(sizes.panes[0].size, 400);
  sizes.Arrange(60);
  EXPECT_EQ(sizes.panes[0].size, 20);
  sizes.Arrange(400);
  EXPECT_EQ(sizes.panes[0].size, 200) << "nothing is lost on the way";
}

TEST(SplitSizesTest, HiddenPanesTakeNothing) {
  SplitSizes sizes = ThreePanes();
  sizes.panes[1].hidden = true;
  sizes.Arrange(200);
  EXPECT_EQ(sizes.panes[1].size, 0);
  EXPECT_EQ(sizes.MoveBorder(0, 30), 30);
  EXPECT_EQ(sizes.panes[0].size + sizes.panes[2].size, 200);
  sizes.panes[1].hidden = false;
  sizes.Arrange(300);
  EXPECT_GT(sizes.panes[1].size, 20);
}

TEST(SplitSizesTest, RandomMovesKeepTheRoomAndTheLimits) {
  std::mt19937 random(7);
  auto any = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
  for (int round = 0; round < 200; ++round) {
    SplitSizes sizes;
    int least = 0;
    for (int i = 0, count = any(1, 6); i < count; ++i) {
      SplitPane pane{any(0, 60),     any(60, 400), any(0, 300), any(0, 2),
                     any(0, 1) == 1, false,        -1,          0};
      least += pane.minimum;
      sizes.panes.push_back(pane);
    }
    sizes.Arrange(least + any(0, 100));
    auto total = [&] {
      return std::accumulate(sizes.panes.begin(), sizes.panes.end(), 0,
                             [](int sum, const SplitPane& pane) { return sum + pane.size; });
    };
    int before = total();
    for (int move = 0; move < 10; ++move)
      sizes.MoveBorder(static_cast<std::size_t>(any(0, 6)), any(-300, 300));
    EXPECT_EQ(total(), before);
    for (const SplitPane& pane : sizes.panes) EXPECT_GE(pane.size, pane.minimum);
  }
}

}  // namespace
}  // namespace Wexa
