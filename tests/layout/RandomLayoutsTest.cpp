#include <random>
#include <sstream>

#include "layout/LayoutTest.h"

namespace Wexa {
namespace {

using P = SizePolicy;
using Gui = BaseGUIObject::GuiType;

// Dialogs with layouts and groups nested in each other, of a fixed seed.
class RandomLayoutsTest : public LayoutTest {
 protected:
  int Number(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  bool Chance(int percent) { return Number(1, 100) <= percent; }

  P::Policy Policy() {
    constexpr P::Policy kAll[] = {P::Fixed,     P::Minimum,   P::MinimumExpanding, P::Maximum,
                                  P::Preferred, P::Expanding, P::Ignored};
    return kAll[Number(0, 6)];
  }

  FakeWidget& MakeWidget(WexaObject& parent) {
    FakeWidget& widget = MakeIn(parent, Gui::Label);
    widget->minimumIdeal = {Number(0, 40), Number(0, 30)};
    widget->ideal = widget->minimumIdeal;
    widget->ideal += Size(Number(0, 60), Number(0, 30));
    widget->policy = P(Policy(), Policy());
    widget->policy.SetHorizontalStretch(Chance(20) ? Number(1, 5) : 0);
    // A hint that is ignored lies below a minimum, and the two rules on sizes do not hold.
    if (Chance(20)) {
      const bool ignoresX = widget->policy.GetHorizontalPolicy() == P::Ignored;
      const bool ignoresY = widget->policy.GetVerticalPolicy() == P::Ignored;
      widget->minimum = {ignoresX ? 0 : Number(0, 60), ignoresY ? 0 : Number(0, 40)};
    }
    if (Chance(20)) widget->maximum = widget->minimum.GetInflated({Number(20, 150), Number(9, 99)});
    if (Chance(10)) widget->visible = false;
    return widget;
  }

  void Add(Layout& layout, LayoutItem* item) {
    auto* grid = dynamic_cast<GridLayout*>(&layout);
    if (!grid) return layout.AddItem(item);
    const int cell = grid->Count();
    grid->AddItem(item, cell / 3 * 2, cell % 3, Chance(20) ? 2 : 1, Chance(10) ? -1 : 1);
  }

  Layout* MakeLayout(WexaObject* parent) {
    switch (Number(0, 2)) {
      case 0: return new HBoxLayout(parent);
      case 1: return new VBoxLayout(parent);
      default: return new GridLayout(parent);
    }
  }

  void Fill(Layout& layout, WexaObject& parent, int depth) {
    layouts_.push_back(&layout);
    for (int i = Number(1, 5); i > 0; --i) {
      if (depth > 0 && Chance(25)) {
        Layout* nested = MakeLayout(nullptr);
        Add(layout, nested);
        Fill(*nested, parent, depth - 1);
      } else if (depth > 0 && Chance(25)) {
        FakeWidget& group = MakeIn(parent, Chance(50) ? Gui::GroupBox : Gui::ChildDialog);
        Add(layout, new WidgetItemV2(&layout, &group));
        Fill(*MakeLayout(&group), group, depth - 1);
      } else if (Chance(15)) {
        Add(layout, new SpacerItem(Number(0, 40), Number(0, 40), Policy(), Policy()));
      } else {
        Add(layout, new WidgetItemV2(&layout, &MakeWidget(parent)));
      }
    }
  }

  void Build(unsigned seed) {
    random_.seed(seed);
    Fill(*MakeLayout(&dialog_), dialog_, 3);
  }

  void Settle() {
    for (int i = 0; i < 4; ++i) {
      for (auto& widget : widgets_) {
        if ((*widget)->Links().layout) DeliverRequest(*widget);
      }
      DeliverRequest(dialog_);
    }
  }

  std::vector<Rect> Places() const {
    std::vector<Rect> places;
    for (const auto& widget : widgets_) places.push_back((*widget)->place);
    return places;
  }

  std::mt19937 random_;
  std::vector<Layout*> layouts_;
};

class RandomLayouts : public RandomLayoutsTest, public testing::WithParamInterface<unsigned> {};

TEST_P(RandomLayouts, HintsLieBetweenMinimumAndMaximum) {
  Build(GetParam());
  for (Layout* layout : layouts_) {
    if (!dynamic_cast<BoxLayout*>(layout)) continue;
    const Size minimum = layout->MinimumSize();
    const Size hint = layout->SizeHint();
    EXPECT_EQ(hint.GetInflated(minimum), hint) << minimum << " " << hint;
    EXPECT_EQ(hint.GetDeflated(layout->MaximumSize()), hint) << layout->MaximumSize();
  }
}

TEST_P(RandomLayouts, NothingGetsLessThanItsMinimum) {
  Build(GetParam());
  for (int width : {0, 300, 900}) {
    Resize(dialog_, width, width);
    Settle();
    for (const auto& widget : widgets_) {
      FakeImpl& impl = *widget->operator->();
      if (!impl.visible || !impl.Links().layoutItem) continue;
      const Size minimum = impl.Links().layoutItem->MinimumSize().GetDeflated(impl.maximum);
      EXPECT_EQ(impl.place.GetSize().GetInflated(minimum), impl.place.GetSize())
          << impl.place << " minimum " << minimum << " in a dialog of " << width;
    }
  }
}

TEST_P(RandomLayouts, SecondPassMovesNothing) {
  Build(GetParam());
  Resize(dialog_, 700, 500);
  Settle();
  const auto places = Places();
  for (auto& widget : widgets_) (*widget)->moves = 0;
  dialog_->Links().layout->Invalidate(true);
  Settle();
  EXPECT_EQ(Places(), places);
  for (const auto& widget : widgets_) EXPECT_EQ((*widget)->moves, 0);
}

TEST_P(RandomLayouts, SizeDecidesAloneNotTheWayToIt) {
  Build(GetParam());
  Resize(dialog_, 700, 500);
  Settle();
  const auto places = Places();
  for (Size size : {Size(300, 900), Size(1200, 100), Size(700, 500)})
    Resize(dialog_, size.Width(), size.Height());
  EXPECT_EQ(Places(), places);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLayouts, testing::Range(1u, 61u));

}  // namespace
}  // namespace Wexa
