#include "layout/WidgetItem.h"

#include "layout/LayoutTest.h"

namespace Wexa {
namespace {

using P = SizePolicy;
using Gui = BaseGUIObject::GuiType;

class WidgetItemTest : public LayoutTest {};

TEST(SpacerItemTest, SizesFollowThePolicy) {
  SpacerItem spacer(40, 20, P::Expanding, P::Minimum);
  EXPECT_EQ(spacer.SizeHint(), Size(40, 20));
  EXPECT_EQ(spacer.MinimumSize(), Size(0, 20));
  EXPECT_EQ(spacer.MaximumSize(), Size(524287, 524287));
  EXPECT_EQ(spacer.ExpandingDirections(), Orientation::Horizontal);
  EXPECT_TRUE(spacer.IsEmpty());
}

TEST_F(WidgetItemTest, HiddenWidgetsAndDialogsAreEmpty) {
  FakeWidget& hidden = Make();
  hidden->visible = false;
  for (FakeWidget* widget : {&hidden, &Make(Gui::Dialog)}) {
    WidgetItemV2 item(nullptr, widget);
    EXPECT_TRUE(item.IsEmpty());
    EXPECT_EQ(item.SizeHint(), Size());
    EXPECT_EQ(item.MinimumSize(), Size());
    EXPECT_EQ(item.MaximumSize(), Size());
    EXPECT_EQ(item.ExpandingDirections(), Orientation::None);
    EXPECT_EQ(item.HeightForWidth(10), -1);
    item.SetGeometry({0, 0, 10, 10});
    EXPECT_EQ((*widget)->moves, 0);
  }
}

TEST_F(WidgetItemTest, SizesOfAWidgetShownLaterAreRead) {
  FakeWidget& widget = Make({60, 20}, {30, 10});
  widget->visible = false;
  WidgetItemV2 item(nullptr, &widget);
  EXPECT_EQ(item.SizeHint(), Size());
  widget->visible = true;
  EXPECT_EQ(item.SizeHint(), Size(60, 20));
}

struct SizeCase {
  P::Policy policy;
  int minimum;
  int maximum;
  int expectedHint;
  int expectedMinimum;
  int expectedMaximum;
};

// The widget asks for 60 and can do with 30.
TEST_F(WidgetItemTest, PolicyAndLimitsMakeTheSizes) {
  constexpr int kNone = 16777215;
  const SizeCase cases[] = {
      {P::Fixed, 0, kNone, 60, 60, 60},        {P::Minimum, 0, kNone, 60, 60, kNone},
      {P::Maximum, 0, kNone, 60, 30, 60},      {P::Preferred, 0, kNone, 60, 30, kNone},
      {P::Expanding, 0, kNone, 60, 30, kNone}, {P::Ignored, 0, kNone, 0, 0, kNone},
      {P::Ignored, 25, kNone, 0, 25, kNone},   {P::Fixed, 80, kNone, 80, 80, 80},
      {P::Fixed, 0, 40, 40, 40, 40},           {P::Preferred, 0, 20, 20, 20, 20},
      {P::Preferred, 35, 200, 60, 35, 200},    {P::Fixed, 0, -7, 0, 0, -7},
  };
  for (const SizeCase& c : cases) {
    FakeWidget& widget = Make({60, 60}, {30, 30});
    widget->policy = P(c.policy, c.policy);
    widget->minimum = {c.minimum, c.minimum};
    widget->maximum = {c.maximum, c.maximum};
    WidgetItem item(&widget);
    SCOPED_TRACE(testing::Message() << c.policy << " " << c.minimum << " " << c.maximum);
    EXPECT_EQ(item.SizeHint(), Size(c.expectedHint, c.expectedHint));
    EXPECT_EQ(item.MinimumSize(), Size(c.expectedMinimum, c.expectedMinimum));
    EXPECT_EQ(item.MaximumSize(), Size(c.expectedMaximum, c.expectedMaximum));
  }
}

TEST_F(WidgetItemTest, AnAlignedAxisGrowsWithoutBound) {
  FakeWidget& widget = Make({60, 20}, {30, 10});
  widget->maximum = {100, 100};
  WidgetItem item(&widget);
  item.SetAlignment(0x4);
  EXPECT_EQ(item.MaximumSize(), Size(524287, 100));
  item.SetAlignment(0x84);
  EXPECT_EQ(item.MaximumSize(), Size(524287, 524287));
}

// The hint is 60 by 20, also where the policy ignores it.
TEST_F(WidgetItemTest, AlignmentAndMaximumDecideThePlaceInTheCell) {
  constexpr auto kRight = LayoutItem::kAlignRight;
  constexpr Rect kCell(10, 20, 200, 100);
  constexpr Size kNone(16777215, 16777215);
  const struct {
    std::uint32_t alignment;
    Size maximum;
    Rect cell;
    Rect place;
  } cases[] = {
      {0, kNone, kCell, {10, 20, 200, 100}},
      {0, {40, 30}, kCell, {10, 55, 40, 30}},
      {0, kNone, {-10, -5, 100, 50}, {0, 0, 90, 45}},
      {LayoutItem::kAlignLeft, kNone, kCell, {10, 20, 60, 100}},
      {LayoutItem::kAlignHCenter, kNone, kCell, {80, 20, 60, 100}},
      {kRight, kNone, kCell, {150, 20, 60, 100}},
      {kRight, {40, 30}, kCell, {170, 55, 40, 30}},
      {kRight, kNone, {0, 0, 40, 10}, {0, 0, 40, 10}},
      {LayoutItem::kAlignTop, kNone, kCell, {10, 20, 200, 20}},
      {LayoutItem::kAlignVCenter, kNone, kCell, {10, 60, 200, 20}},
      {LayoutItem::kAlignBottom, kNone, kCell, {10, 100, 200, 20}},
      {kRight | LayoutItem::kAlignBottom, kNone, kCell, {150, 100, 60, 20}},
  };
  for (const auto& c : cases) {
    FakeWidget& widget = Make({60, 20}, {30, 10});
    widget->policy = P(P::Ignored, P::Preferred);
    widget->maximum = c.maximum;
    WidgetItem item(&widget);
    item.SetAlignment(c.alignment);
    item.SetGeometry(c.cell);
    EXPECT_EQ(widget->place, c.place) << "alignment " << c.alignment;
    widget->height = [](int width) { return width / 2; };
    item.SetGeometry(c.cell);
    if (c.alignment != (kRight | LayoutItem::kAlignBottom)) continue;
    EXPECT_EQ(widget->place, Rect(150, 90, 60, 30)) << "as high as its width needs";
  }
}

TEST_F(WidgetItemTest, ScrolledParentMovesTheWidgetUp) {
  FakeWidget& widget = Make();
  widget->scrolled = 30;
  WidgetItem(&widget).SetGeometry({0, 50, 100, 20});
  EXPECT_EQ(widget->place, Rect(0, 20, 100, 20));
}

TEST_F(WidgetItemTest, ComboBoxWithMinimumHeightBringsItsListIntoLine) {
  FakeWidget& combo = Make(Gui::ComboBox);
  combo->scrolled = 30;
  WidgetItem(&combo).SetGeometry({0, 50, 100, 20});
  EXPECT_EQ(combo->dropDownRefreshes, 0);
  combo->minimum = {0, 20};
  WidgetItem(&combo).SetGeometry({0, 50, 100, 20});
  EXPECT_EQ(combo->dropDownRefreshes, 1);
  EXPECT_EQ(combo->place, Rect(0, 50, 100, 20));
}

TEST_F(WidgetItemTest, PlacingWhereItIsRedrawsNothing) {
  FakeWidget& widget = Make();
  WidgetItem item(&widget);
  item.SetGeometry({0, 0, 100, 20});
  item.SetGeometry({0, 0, 100, 20});
  EXPECT_EQ(widget->moves, 1);
  EXPECT_EQ(widget->updates, 1);
}

TEST_F(WidgetItemTest, SizesAreReadOnceUntilInvalidated) {
  FakeWidget& widget = Make({60, 20}, {30, 10});
  WidgetItemV2 item(nullptr, &widget);
  item.SizeHint();
  item.MinimumSize();
  item.MaximumSize();
  EXPECT_EQ(widget->reads, 1);
  widget->ideal = {70, 20};
  EXPECT_EQ(item.SizeHint(), Size(60, 20));
  item.InvalidateSizeCache();
  EXPECT_EQ(item.SizeHint(), Size(70, 20));
}

TEST_F(WidgetItemTest, SecondItemOfAWidgetDoesNotUseTheCache) {
  FakeWidget& widget = Make({60, 20}, {30, 10});
  auto first = std::make_unique<WidgetItemV2>(nullptr, &widget);
  WidgetItemV2 second(nullptr, &widget);
  second.SizeHint();
  widget->ideal = {70, 20};
  EXPECT_EQ(second.SizeHint(), Size(70, 20));
  EXPECT_EQ(widget->Links().layoutItem, first.get());
  first.reset();
  EXPECT_EQ(widget->Links().layoutItem, nullptr);
}

TEST_F(WidgetItemTest, HeightsAreKeptForThreeWidths) {
  FakeWidget& widget = Make();
  int calls = 0;
  widget->height = [&calls](int width) { return ++calls, 1000 / width; };
  WidgetItemV2 item(nullptr, &widget);
  for (int width : {10, 20, 40, 10, 20, 40}) EXPECT_EQ(item.HeightForWidth(width), 1000 / width);
  EXPECT_EQ(calls, 3);
  item.HeightForWidth(50);  // pushes one out
  item.HeightForWidth(50);
  EXPECT_EQ(calls, 4);
  item.InvalidateSizeCache();
  item.HeightForWidth(50);
  EXPECT_EQ(calls, 5);
}

TEST_F(WidgetItemTest, HeightForWidthKeepsTheLimits) {
  FakeWidget& widget = Make();
  widget->height = [](int width) { return width; };
  widget->minimum = {0, 15};
  widget->maximum = {100, 50};
  WidgetItem item(&widget);
  EXPECT_EQ(item.HeightForWidth(10), 15);
  EXPECT_EQ(item.HeightForWidth(30), 30);
  EXPECT_EQ(item.HeightForWidth(80), 50);
}

TEST_F(WidgetItemTest, ItemOfADeadWidgetIsEmpty) {
  auto widget = std::make_unique<FakeWidget>();
  WidgetItemV2 item(nullptr, widget.get());
  EXPECT_FALSE(item.IsEmpty());
  widget.reset();
  EXPECT_TRUE(item.IsEmpty());
  EXPECT_EQ(item.SizeHint(), Size());
  EXPECT_EQ(item.Widget(), nullptr);
  item.SetGeometry({0, 0, 10, 10});
  item.InvalidateSizeCache();
}

TEST_F(WidgetItemTest, GrowingWidgetExpandsWithItsLayout) {
  FakeWidget& group = Make(Gui::GroupBox);
  auto* inner = new HBoxLayout(&group);
  inner->AddItem(new SpacerItem(5, 5, P::Expanding, P::Expanding));
  group->policy = P(P::Preferred, P::Fixed);
  EXPECT_EQ(WidgetItem(&group).ExpandingDirections(), Orientation::Horizontal);
}

}  // namespace
}  // namespace Wexa
