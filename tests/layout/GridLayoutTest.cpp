#include "layout/GridLayout.h"

#include <climits>

#include "layout/LayoutTest.h"

namespace Wexa {
namespace {

using P = SizePolicy;

class GridLayoutTest : public LayoutTest {
 protected:
  GridLayoutTest() {
    grid_.SetHorizontalSpacing(6);
    grid_.SetVerticalSpacing(4);
  }
  FakeWidget& Put(Size ideal, Size minimum, int row, int column, int rowSpan = 1,
                  int columnSpan = 1) {
    return AddTo(grid_, Make(ideal, minimum), row, column, rowSpan, columnSpan);
  }

  GridLayout grid_;
};

TEST_F(GridLayoutTest, ItemsWithoutACellFillANewGridDownwards) {
  FakeWidget* widgets[] = {&Make(), &Make(), &Make()};
  for (FakeWidget* widget : widgets) AddTo(static_cast<Layout&>(grid_), *widget);
  EXPECT_EQ(grid_.RowCount(), 3);
  EXPECT_EQ(grid_.ColumnCount(), 1);
}

TEST_F(GridLayoutTest, ItemsWithoutACellFillRowAfterRow) {
  grid_.SetColumnStretch(1, 0);
  FakeWidget* widgets[] = {&Make(), &Make(), &Make()};
  for (FakeWidget* widget : widgets) AddTo(static_cast<Layout&>(grid_), *widget);
  grid_.SetGeometry({0, 0, 106, 44});
  EXPECT_EQ((*widgets[0])->place, Rect(0, 0, 50, 20));
  EXPECT_EQ((*widgets[1])->place, Rect(56, 0, 50, 20));
  EXPECT_EQ((*widgets[2])->place, Rect(0, 24, 50, 20));
}

TEST_F(GridLayoutTest, RowsAndColumnsTakeTheirLargestItem) {
  Put({50, 20}, {10, 5}, 0, 0);
  Put({80, 30}, {20, 6}, 0, 1);
  Put({60, 25}, {15, 7}, 1, 0);
  grid_.SetContentsMargins(1, 2, 3, 4);
  EXPECT_EQ(grid_.SizeHint(), Size(60 + 6 + 80 + 4, 30 + 4 + 25 + 6));
  EXPECT_EQ(grid_.MinimumSize(), Size(15 + 6 + 20 + 4, 6 + 4 + 7 + 6));
  EXPECT_EQ(grid_.MaximumSize(), Size(524287, 524287));
}

TEST_F(GridLayoutTest, SpanReachesAcrossTheGap) {
  FakeWidget& a = Put({40, 20}, {10, 10}, 0, 0);
  FakeWidget& b = Put({40, 20}, {10, 10}, 0, 1);
  FakeWidget& wide = Put({40, 20}, {10, 10}, 1, 0, 1, 2);
  grid_.SetGeometry({0, 0, 86, 44});
  EXPECT_EQ(a->place, Rect(0, 0, 40, 20));
  EXPECT_EQ(b->place, Rect(46, 0, 40, 20));
  EXPECT_EQ(wide->place, Rect(0, 24, 86, 20));
}

TEST_F(GridLayoutTest, SpanToTheEndFollowsTheGrid) {
  FakeWidget& wide = Put({10, 10}, {10, 10}, 1, 0, 1, -1);
  Put({50, 20}, {10, 10}, 0, 0);
  Put({50, 20}, {10, 10}, 0, 3);
  grid_.SetGeometry({0, 0, 106, 44});
  EXPECT_EQ(wide->place.Width(), 106);
}

TEST_F(GridLayoutTest, WideSpanRaisesTheHintsOfItsColumns) {
  Put({20, 20}, {10, 10}, 0, 0);
  Put({40, 20}, {10, 10}, 0, 1);
  Put({186, 20}, {10, 10}, 1, 0, 1, 2);
  EXPECT_EQ(grid_.SizeHint().Width(), 186);
  EXPECT_EQ(grid_.MinimumSize().Width(), 26);
}

TEST_F(GridLayoutTest, SpanLargerThanItsColumnsMaximumsStillGetsItsMinimum) {
  Put({10, 10}, {10, 10}, 0, 0)->maximum = {10, 10};
  Put({10, 10}, {10, 10}, 0, 1)->maximum = {10, 10};
  FakeWidget& wide = Put({100, 10}, {100, 10}, 1, 0, 1, 2);
  EXPECT_EQ(grid_.MinimumSize().Width(), 100);
  grid_.Fit({0, 0, 10, 10});
  EXPECT_EQ(wide->place.Width(), 100);
}

TEST_F(GridLayoutTest, StretchOfALineGrowsTheGridAndTakesTheSpace) {
  FakeWidget& a = Put({40, 20}, {40, 10}, 0, 0);
  Put({40, 20}, {40, 10}, 0, 1);
  grid_.SetColumnStretch(5, 1);
  EXPECT_EQ(grid_.ColumnCount(), 6);
  grid_.SetGeometry({0, 0, 400, 20});
  EXPECT_EQ(a->place, Rect(0, 0, 40, 20));
  EXPECT_EQ(grid_.ExpandingDirections(), Orientation::Horizontal);
}

TEST_F(GridLayoutTest, EmptyColumnsTakeNoSpace) {
  Put({40, 20}, {10, 10}, 0, 0);
  FakeWidget& far = Put({40, 20}, {10, 10}, 0, 5);
  grid_.SetGeometry({0, 0, 86, 20});
  EXPECT_EQ(far->place, Rect(46, 0, 40, 20));
}

TEST_F(GridLayoutTest, MinimumHeightHoldsAnEmptyRowAtThatHeight) {
  grid_.SetVerticalSpacing(0);
  grid_.SetRowMinimumHeight(0, 40);
  FakeWidget& below = Put({40, 20}, {10, 10}, 1, 0);
  EXPECT_EQ(grid_.SizeHint(), Size(40, 60));
  grid_.SetGeometry({0, 0, 40, 300});
  EXPECT_EQ(below->place, Rect(0, 40, 40, 260));
}

TEST_F(GridLayoutTest, WidgetsStretchCountsUnlessTheColumnHasOne) {
  FakeWidget& a = Put({0, 20}, {0, 10}, 0, 0);
  FakeWidget& b = Put({0, 20}, {0, 10}, 0, 1);
  a->policy.SetHorizontalStretch(3);
  b->policy.SetHorizontalStretch(1);
  grid_.SetGeometry({0, 0, 406, 20});
  EXPECT_EQ(a->place.Width(), 300);
  grid_.SetColumnStretch(0, 1);
  grid_.SetGeometry({0, 0, 406, 20});
  EXPECT_EQ(a->place.Width(), 200);
}

TEST_F(GridLayoutTest, HiddenRowClosesUp) {
  FakeWidget& top = Put({40, 20}, {10, 10}, 0, 0);
  FakeWidget& hidden = Put({40, 20}, {10, 10}, 1, 0);
  FakeWidget& bottom = Put({40, 20}, {10, 10}, 2, 0);
  hidden->visible = false;
  EXPECT_EQ(grid_.SizeHint(), Size(40, 44));
  grid_.SetGeometry({0, 0, 40, 44});
  EXPECT_EQ(top->place, Rect(0, 0, 40, 20));
  EXPECT_EQ(bottom->place, Rect(0, 24, 40, 20));
}

TEST_F(GridLayoutTest, NoGapWithinAColumnThatOneItemSpansAlone) {
  FakeWidget& tall = Put({40, 50}, {10, 10}, 0, 0, 3, 1);
  EXPECT_EQ(grid_.SizeHint(), Size(40, 50));
  grid_.SetGeometry({0, 0, 40, 90});
  EXPECT_EQ(tall->place, Rect(0, 0, 40, 90));
}

TEST_F(GridLayoutTest, ItsOwnGapsAreNotItsInsideSpacing) {
  GridLayout grid(&dialog_);
  grid.SetSpacing(20);
  AddTo(grid, Make({40, 20}, {10, 10}), 0, 0);
  AddTo(grid, Make({40, 20}, {10, 10}), 0, 1);
  auto* nested = new HBoxLayout;
  grid.AddItem(nested, 1, 0);
  grid.SetContentsMargins(0, 0, 0, 0);
  EXPECT_EQ(grid.SizeHint().Width(), 86);
  EXPECT_EQ(nested->Spacing(), 20);
}

TEST_F(GridLayoutTest, GrowingPlacesFromTheLastToTheFirst) {
  std::string order;
  Put({40, 20}, {10, 10}, 0, 0)->onMoved = [&order] { order += 'a'; };
  Put({40, 20}, {10, 10}, 1, 0)->onMoved = [&order] { order += 'b'; };
  grid_.SetGeometry({0, 0, 50, 44});
  grid_.SetGeometry({0, 0, 60, 44});
  EXPECT_EQ(order, "baba");
  grid_.SetGeometry({0, 0, 55, 40});
  EXPECT_EQ(order, "babaab");
}

TEST_F(GridLayoutTest, HeightForWidthUsesTheColumnsWidths) {
  FakeWidget& text = Put({100, 20}, {10, 10}, 0, 0, 1, 2);
  FakeWidget& below = Put({40, 20}, {10, 20}, 1, 0);
  Put({40, 20}, {10, 20}, 1, 1);
  text->height = [](int width) { return 5000 / width; };
  EXPECT_EQ(grid_.HeightForWidth(100), 50 + 4 + 20);
  EXPECT_EQ(grid_.HeightForWidth(50), 100 + 4 + 20);
  EXPECT_EQ(grid_.MinimumHeightForWidth(50), 100 + 4 + 20);
  grid_.SetGeometry({0, 0, 100, 74});
  EXPECT_EQ(text->place, Rect(0, 0, 100, 50));
  EXPECT_EQ(below->place, Rect(0, 54, 47, 20));
}

TEST_F(GridLayoutTest, HeightForWidthOfATallSpanRaisesItsRows) {
  FakeWidget& text = Put({100, 20}, {10, 10}, 0, 0, 2, 1);
  Put({40, 20}, {40, 20}, 0, 1);
  Put({40, 20}, {40, 20}, 1, 1);
  text->height = [](int) { return 90; };
  EXPECT_EQ(grid_.HeightForWidth(200), 90);
}

TEST_F(GridLayoutTest, TakesAndReplacesItems) {
  FakeWidget& a = Put({40, 20}, {10, 10}, 0, 0);
  FakeWidget& replacement = Make({90, 20}, {10, 10});
  const std::unique_ptr<LayoutItem> old(grid_.ReplaceWidget(&a, &replacement, true));
  ASSERT_TRUE(old);
  EXPECT_EQ(grid_.SizeHint().Width(), 90);
  for (int index : {-1, 1, INT_MAX}) EXPECT_EQ(grid_.TakeAt(index), nullptr);
  const std::unique_ptr<LayoutItem> taken(grid_.TakeAt(0));
  EXPECT_EQ(taken->Widget(), &replacement);
  EXPECT_EQ(grid_.Count(), 0);
}

TEST_F(GridLayoutTest, CellsOutOfRangeStayInTheGrid) {
  Put({40, 20}, {10, 10}, INT_MAX, 0, INT_MAX, INT_MAX);
  Put({40, 20}, {10, 10}, INT_MIN, -1, 0, 0);
  grid_.SetRowStretch(INT_MAX, 1);
  grid_.SetColumnStretch(-1, 1);
  grid_.SetRowMinimumHeight(0, INT_MAX);
  grid_.SetColumnMinimumWidth(3, INT_MIN);
  grid_.SetHorizontalSpacing(INT_MAX);
  EXPECT_EQ(grid_.RowCount(), GridLayout::kMaxLines);
  EXPECT_EQ(grid_.Count(), 2);
  grid_.Fit({0, 0, 100, 100});
}

}  // namespace
}  // namespace Wexa
