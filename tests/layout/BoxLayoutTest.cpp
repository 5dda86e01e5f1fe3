#include "layout/BoxLayout.h"

#include <climits>

#include "layout/LayoutTest.h"

namespace Wexa {
namespace {

using P = SizePolicy;
using Gui = BaseGUIObject::GuiType;

class BoxLayoutTest : public LayoutTest {
 protected:
  BoxLayoutTest() {
    row_.SetSpacing(6);
    column_.SetSpacing(6);
  }

  HBoxLayout row_;
  VBoxLayout column_;
};

TEST_F(BoxLayoutTest, EmptyLayoutIsItsMargins) {
  row_.SetContentsMargins(1, 2, 3, 4);
  EXPECT_EQ(row_.SizeHint(), Size(4, 6));
  EXPECT_EQ(row_.MinimumSize(), Size(4, 6));
  EXPECT_TRUE(row_.IsEmpty());
}

TEST_F(BoxLayoutTest, SizesAddUpAlongAndTakeTheLargestAcross) {
  AddTo(row_, Make({50, 20}, {10, 5}));
  AddTo(row_, Make({30, 40}, {20, 15}));
  row_.SetContentsMargins(1, 2, 3, 4);
  EXPECT_EQ(row_.SizeHint(), Size(90, 46));
  EXPECT_EQ(row_.MinimumSize(), Size(40, 21));
  EXPECT_EQ(row_.MaximumSize(), Size(524287, 524287));
}

TEST_F(BoxLayoutTest, AcrossTheLastItemThatDoesNotExpandGivesTheMaximum) {
  AddTo(row_, Make())->maximum = {1000, 30};
  AddTo(row_, Make())->maximum = {1000, 80};
  EXPECT_EQ(row_.MaximumSize(), Size(2006, 80));
}

TEST_F(BoxLayoutTest, PlacesRowsAndColumns) {
  FakeWidget& a = AddTo(row_, Make({50, 20}, {10, 10}));
  FakeWidget& b = AddTo(row_, Make({50, 20}, {10, 10}));
  row_.SetContentsMargins(10, 5, 20, 15);
  row_.SetGeometry({100, 200, 236, 60});
  EXPECT_EQ(a->place, Rect(110, 205, 100, 40));
  EXPECT_EQ(b->place, Rect(216, 205, 100, 40));
  FakeWidget& c = AddTo(column_, Make({50, 20}, {10, 10}));
  FakeWidget& d = AddTo(column_, Make({50, 20}, {10, 10}));
  column_.SetStretch(1, 1);
  column_.SetGeometry({0, 0, 80, 106});
  EXPECT_EQ(c->place, Rect(0, 0, 80, 20));
  EXPECT_EQ(d->place, Rect(0, 26, 80, 80));
}

TEST_F(BoxLayoutTest, HiddenWidgetTakesNeitherSpaceNorGap) {
  FakeWidget& a = AddTo(row_, Make({50, 20}, {10, 10}));
  FakeWidget& hidden = AddTo(row_, Make({50, 20}, {10, 10}));
  FakeWidget& c = AddTo(row_, Make({50, 20}, {10, 10}));
  hidden->visible = false;
  row_.SetGeometry({0, 0, 206, 20});
  EXPECT_EQ(a->place, Rect(0, 0, 100, 20));
  EXPECT_EQ(c->place, Rect(106, 0, 100, 20));
  EXPECT_EQ(hidden->moves, 0);
  hidden->visible = true;
  row_.Invalidate(true);
  EXPECT_EQ(row_.SizeHint(), Size(162, 20));
}

TEST_F(BoxLayoutTest, SpacerHasNoGapsAndPushesApart) {
  FakeWidget& a = AddTo(row_, Make({50, 20}, {50, 10}));
  row_.AddItem(new SpacerItem(10, 5, P::Expanding, P::Minimum));
  FakeWidget& b = AddTo(row_, Make({50, 20}, {50, 10}));
  EXPECT_EQ(row_.SizeHint(), Size(116, 20));
  row_.SetGeometry({0, 0, 306, 20});
  EXPECT_EQ(a->place, Rect(0, 0, 50, 20));
  EXPECT_EQ(b->place, Rect(256, 0, 50, 20));
}

TEST_F(BoxLayoutTest, IgnoredHintIsNoneAndTheWidgetKeepsItsMinimum) {
  FakeWidget& a = AddTo(row_, Make({50, 20}, {10, 10}));
  FakeWidget& b = AddTo(row_, Make({50, 20}, {10, 10}));
  a->policy = P(P::Ignored, P::Preferred);
  a->minimum = {40, 0};
  b->policy = P(P::Expanding, P::Preferred);
  row_.SetGeometry({0, 0, 146, 20});
  EXPECT_EQ(a->place, Rect(0, 0, 40, 20));
  EXPECT_EQ(b->place, Rect(6, 0, 140, 20));
}

TEST_F(BoxLayoutTest, WidgetsOwnStretchCountsUnlessTheBoxSetsOne) {
  FakeWidget& a = AddTo(row_, Make({0, 20}, {0, 10}));
  FakeWidget& b = AddTo(row_, Make({0, 20}, {0, 10}));
  a->policy.SetHorizontalStretch(3);
  b->policy.SetHorizontalStretch(1);
  row_.SetGeometry({0, 0, 406, 20});
  EXPECT_EQ(a->place.Width(), 300);
  row_.SetStretch(0, 1);
  row_.SetGeometry({0, 0, 406, 20});
  EXPECT_EQ(a->place.Width(), 200);
}

TEST_F(BoxLayoutTest, SameGeometryTwiceMovesNothing) {
  FakeWidget& a = AddTo(row_, Make());
  row_.SetGeometry({0, 0, 100, 20});
  a->MoveWindow(1, 1, 5, 5, true);
  row_.SetGeometry({0, 0, 100, 20});
  EXPECT_EQ(a->place, Rect(1, 1, 5, 5));
  row_.MarkDirty();
  row_.SetGeometry({0, 0, 100, 20});
  EXPECT_EQ(a->place, Rect(0, 0, 100, 20));
}

TEST_F(BoxLayoutTest, IndexOutOfRangeIsHarmless) {
  AddTo(row_, Make());
  for (int index : {-1, 1, INT_MAX, INT_MIN}) {
    EXPECT_EQ(row_.ItemAt(index), nullptr);
    EXPECT_EQ(row_.TakeAt(index), nullptr);
    EXPECT_EQ(row_.ReplaceAt(index, nullptr), nullptr);
    row_.SetStretch(index, 5);
  }
  row_.AddItem(nullptr);
  EXPECT_EQ(row_.Count(), 1);
}

TEST_F(BoxLayoutTest, TakenItemsForgetTheLayout) {
  auto outer = std::make_unique<HBoxLayout>(&dialog_);
  auto* nested = new VBoxLayout;
  outer->AddItem(nested);
  AddTo(*outer, Make());
  const std::unique_ptr<LayoutItem> widgetItem(outer->TakeAt(1));
  const std::unique_ptr<LayoutItem> layoutItem(outer->TakeAt(0));
  EXPECT_EQ(nested->GetParent(), nullptr);
  outer.reset();
  static_cast<WidgetItemV2*>(widgetItem.get())->InvalidateSizeCache();
  nested->Invalidate(true);
}

TEST_F(BoxLayoutTest, DestroyedNestedLayoutLeavesItsParent) {
  HBoxLayout outer(&dialog_);
  auto* nested = new VBoxLayout(&outer);
  EXPECT_EQ(outer.Count(), 1);
  EXPECT_EQ(nested->GetParent(), &outer);
  delete nested;
  EXPECT_EQ(outer.Count(), 0);
}

TEST_F(BoxLayoutTest, ReplacesAWidgetInNestedLayoutsAndWidgets) {
  FakeWidget& group = Make(Gui::GroupBox);
  auto* inGroup = new HBoxLayout(&group);
  FakeWidget& old = AddTo(*inGroup, Make());
  FakeWidget& replacement = Make();
  auto* nested = new VBoxLayout;
  row_.AddItem(nested);
  AddTo(*nested, group);
  EXPECT_EQ(row_.ReplaceWidget(&old, &replacement, false), nullptr);
  EXPECT_EQ(row_.ReplaceWidget(&old, &old, true), nullptr);
  EXPECT_EQ(row_.ReplaceWidget(nullptr, &old, true), nullptr);
  const std::unique_ptr<LayoutItem> taken(row_.ReplaceWidget(&old, &replacement, true));
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->Widget(), &old);
  EXPECT_EQ(inGroup->ItemAt(0)->Widget(), &replacement);
}

TEST_F(BoxLayoutTest, AlignedNestedLayoutKeepsToItsHint) {
  auto* nested = new HBoxLayout;
  nested->SetAlignment(LayoutItem::kAlignRight | LayoutItem::kAlignBottom);
  row_.AddItem(nested);
  FakeWidget& a = AddTo(*nested, Make({50, 20}, {10, 10}));
  a->maximum = {60, 30};
  row_.SetGeometry({0, 0, 200, 100});
  EXPECT_EQ(a->place, Rect(150, 80, 50, 20));
  EXPECT_EQ(row_.MaximumSize(), Size(524287, 524287));
}

// -- Height for width -----------------------------------------------------------------------------

TEST_F(BoxLayoutTest, ColumnGivesTheHeightThatTheWidthNeeds) {
  FakeWidget& text = AddTo(column_, Make({100, 20}, {10, 10}));
  FakeWidget& below = AddTo(column_, Make({50, 30}, {10, 30}));
  text->height = [](int width) { return 2000 / width; };
  column_.SetContentsMargins(5, 5, 5, 5);
  EXPECT_EQ(column_.HeightForWidth(50), 50 + 6 + 30 + 10);
  below->minimumIdeal = {10, 12};
  InvalidateSizesFrom(&below);
  EXPECT_EQ(column_.MinimumHeightForWidth(50), 50 + 6 + 12 + 10);
  EXPECT_EQ(column_.HeightForWidth(50), 50 + 6 + 30 + 10);
  column_.SetGeometry({0, 0, 50, 96});
  EXPECT_EQ(text->place, Rect(5, 5, 40, 50));
  EXPECT_EQ(below->place, Rect(5, 61, 40, 30));
}

TEST_F(BoxLayoutTest, RowNeedsTheLargestHeightAtItsShares) {
  FakeWidget& text = AddTo(row_, Make({100, 20}, {10, 10}));
  AddTo(row_, Make({100, 25}, {10, 10}));
  text->height = [](int width) { return 2000 / width; };
  EXPECT_EQ(row_.HeightForWidth(86), 50);
  EXPECT_EQ(row_.HeightForWidth(406), 25);
}

TEST_F(BoxLayoutTest, HeightForWidthFollowsAChange) {
  FakeWidget& text = AddTo(row_, Make());
  text->height = [](int) { return 10; };
  EXPECT_EQ(row_.HeightForWidth(50), 10);
  text->height = [](int) { return 35; };
  InvalidateSizesFrom(&text);
  EXPECT_EQ(row_.HeightForWidth(50), 35);
}

TEST_F(BoxLayoutTest, HugeSizesStayDefined) {
  FakeWidget& a = AddTo(row_, Make({INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}));
  AddTo(row_, Make({INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}));
  row_.AddItem(new SpacerItem(INT_MIN, INT_MAX, P::Expanding, P::Minimum));
  a->minimum = {INT_MAX, INT_MAX};
  row_.SetSpacing(INT_MAX);
  row_.SetStretch(0, INT_MAX);
  row_.SetContentsMargins(INT_MAX, INT_MAX, INT_MAX, INT_MAX);
  EXPECT_GT(row_.SizeHint().Width(), 0);
  row_.Fit({INT_MIN, INT_MIN, INT_MAX, INT_MAX});
  row_.Fit({-5, -5, 0, 0});
}

}  // namespace
}  // namespace Wexa
