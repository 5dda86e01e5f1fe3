#include "layout/LayoutTest.h"
#include "platform/Font.h"

namespace Wexa {

std::ostream& operator<<(std::ostream& out, const Margins& m) {
  return out << m.left << "," << m.top << "," << m.right << "," << m.bottom;
}

namespace {

using P = SizePolicy;
using Gui = BaseGUIObject::GuiType;

class LayoutActivationTest : public LayoutTest {
 protected:
  FakeWidget& AddGroup(Layout& layout, Gui type = Gui::GroupBox) {
    FakeWidget& group = MakeIn(dialog_, type);
    return AddTo(layout, group);
  }

  VBoxLayout* layout_ = new VBoxLayout(&dialog_);
};

Margins MarginsOf(const Layout& layout) {
  Margins m;
  layout.GetContentsMargins(&m.left, &m.top, &m.right, &m.bottom);
  return m;
}

class Scale {
 public:
  explicit Scale(int dpi) { SetScreenDpi(dpi); }
  ~Scale() { SetScreenDpi(96); }
};

// -- Defaults -------------------------------------------------------------------------------------

struct ScaleCase {
  int dpi;
  int dialogMargin;
  int widgetMargin;
  int spacing;
  int layoutLimit;
  int widgetLimit;
};

TEST_F(LayoutActivationTest, DefaultsFollowTheScale) {
  for (const ScaleCase& c :
       {ScaleCase{96, 11, 9, 6, 524287, 16777215}, ScaleCase{120, 13, 11, 7, 655358, 20971518},
        ScaleCase{144, 16, 13, 9, 786430, 25165822}}) {
    const Scale scale(c.dpi);
    SCOPED_TRACE(c.dpi);
    FakeWidget& group = Make(Gui::GroupBox);
    HBoxLayout inGroup(&group);
    auto* nested = new HBoxLayout(&inGroup);
    const int d = c.dialogMargin;
    const int w = c.widgetMargin;
    EXPECT_EQ(MarginsOf(*layout_), (Margins{d, d, d, d}));
    EXPECT_EQ(MarginsOf(inGroup), (Margins{w, w, w, w}));
    EXPECT_EQ(MarginsOf(*nested), Margins());
    EXPECT_EQ(inGroup.Spacing(), c.spacing);
    EXPECT_EQ(nested->Spacing(), c.spacing);
    EXPECT_EQ(HBoxLayout().Spacing(), -1);
    EXPECT_EQ(LayoutSizeLimit(), c.layoutLimit);
    EXPECT_EQ(WidgetSizeLimit(), c.widgetLimit);
  }
}

TEST_F(LayoutActivationTest, MinusOneBringsADefaultMarginBack) {
  layout_->SetContentsMargins(1, 2, 3, 4);
  layout_->SetContentsMargins(1, -1, 3, 4);
  EXPECT_EQ(MarginsOf(*layout_), (Margins{1, 11, 3, 4}));
  layout_->GetContentsMargins(nullptr, nullptr, nullptr, nullptr);
}

TEST_F(LayoutActivationTest, SecondLayoutOfAWidgetIsNotInstalled) {
  HBoxLayout second(&dialog_);
  EXPECT_EQ(dialog_->Links().layout, layout_);
  EXPECT_EQ(second.GetParent(), &dialog_);
  EXPECT_EQ(second.ParentWidget(), nullptr);
}

TEST(SizeConstraintTest, TextsNameConstraints) {
  EXPECT_EQ(SizeConstraintFromText(L"QLayout::SetFixedSize"), SizeConstraint::Fixed);
  EXPECT_EQ(SizeConstraintFromText(L"QLayout::SetMinAndMaxSize"), SizeConstraint::MinAndMax);
  EXPECT_EQ(SizeConstraintFromText(L"QLayout::SetDefaultConstraint"), SizeConstraint::Default);
  EXPECT_EQ(SizeConstraintFromText(L"SetFixedSize"), std::nullopt);
}

// -- Requests -------------------------------------------------------------------------------------

TEST_F(LayoutActivationTest, ChangesInARowPostOneRequest) {
  DeliverRequest(dialog_);
  dialog_->posts = 0;
  layout_->SetSpacing(3);
  layout_->SetSpacing(4);
  auto* nested = new HBoxLayout(layout_);
  nested->SetSpacing(5);
  EXPECT_EQ(dialog_->posts, 1);
  DeliverRequest(dialog_);
  nested->SetSpacing(6);
  EXPECT_EQ(dialog_->posts, 2);
}

TEST_F(LayoutActivationTest, SameMarginsRequestNothing) {
  layout_->SetContentsMargins(1, 2, 3, 4);
  DeliverRequest(dialog_);
  dialog_->posts = 0;
  layout_->SetContentsMargins(1, 2, 3, 4);
  layout_->SetSizeConstraint(SizeConstraint::Default);
  EXPECT_EQ(dialog_->posts, 0);
}

TEST_F(LayoutActivationTest, RequestReachesAllThatHoldsTheLayout) {
  FakeWidget& group = AddGroup(*layout_);
  auto* inGroup = new HBoxLayout(&group);
  Resize(dialog_, 300, 200);
  DeliverRequest(group);
  DeliverRequest(dialog_);
  group->posts = dialog_->posts = 0;
  inGroup->SetSpacing(1);
  EXPECT_EQ(group->posts, 1);
  EXPECT_EQ(dialog_->posts, 1);
}

TEST_F(LayoutActivationTest, ChildDialogIsPlacedWithWhatHoldsIt) {
  FakeWidget& child = AddGroup(*layout_, Gui::ChildDialog);
  auto* inChild = new HBoxLayout(&child);
  FakeWidget& label = AddTo(*inChild, MakeIn(child, Gui::Label));
  Resize(dialog_, 300, 200);
  DeliverRequest(dialog_);
  dialog_->posts = 0;
  label->minimumIdeal = {200, 50};
  InvalidateSizesFrom(&label);
  EXPECT_EQ(child->posts, 0);
  EXPECT_EQ(dialog_->posts, 1);
  DeliverRequest(dialog_);
  EXPECT_EQ(dialog_->minimum, Size(200 + 18 + 22, 50 + 18 + 22));
  InvalidateSizesFrom(&label);
  EXPECT_EQ(dialog_->posts, 2);
}

// A tab page is no item of a layout: its view hands it its place.
TEST_F(LayoutActivationTest, PageOfAViewFollowsItsOwnChanges) {
  FakeWidget& view = AddTo(*layout_, Make(Gui::TabView));
  view->arranges = true;
  FakeWidget& page = MakeIn(view, Gui::ChildDialog);
  auto* inPage = new HBoxLayout(&page);
  auto* nested = new HBoxLayout(inPage);
  FakeWidget& label = AddTo(*nested, MakeIn(page, Gui::Label));
  inPage->SetContentsMargins(0, 0, 0, 0);
  Resize(dialog_, 300, 200);
  page.MoveWindow(0, 0, 100, 50, true);
  for (int spacing : {10, 20, 30}) {
    DeliverRequest(dialog_);
    dialog_->posts = 0;
    nested->SetContentsMargins(spacing, 0, 0, 0);
    EXPECT_EQ(dialog_->posts, 1);
    page.MoveWindow(0, 0, 100, 50, true);
    EXPECT_EQ(label->place, Rect(spacing, 0, 100 - spacing, 50));
  }
}

// What places a widget without a layout is asked when the widget asks it for something else.
TEST_F(LayoutActivationTest, HolderIsAskedOnlyForWhatItDoesNotKnow) {
  FakeWidget& outer = AddTo(*layout_, Make(Gui::Splitter));
  FakeWidget& splitter = MakeIn(outer, Gui::Splitter);
  outer->arranges = splitter->arranges = true;
  FakeWidget& group = MakeIn(splitter, Gui::GroupBox);
  auto* inGroup = new HBoxLayout(&group);
  for (const bool agrees : {true, false}) {
    inGroup->SetSpacing(agrees ? 1 : 2);
    DeliverRequest(dialog_);
    dialog_->posts = 0;
    splitter->agrees = agrees;
    DeliverRequest(group);
    EXPECT_EQ(dialog_->posts, agrees ? 0 : 1);
  }
  EXPECT_GT(splitter->forgotten, 0);
}

TEST_F(LayoutActivationTest, LayoutBuiltBeforeItsWindowGetsItsPassLater) {
  FakeWidget late(Gui::GroupBox, &dialog_);
  late->hasWindow = false;
  auto* layout = new HBoxLayout(&late);
  FakeWidget& label = AddTo(*layout, Make());
  EXPECT_EQ(late->posts, 0);
  late->hasWindow = true;
  layout->SetSpacing(2);
  EXPECT_EQ(late->posts, 1);
  DeliverRequest(late);
  late.MoveWindow(0, 0, 118, 58, true);
  EXPECT_EQ(label->place, Rect(9, 9, 100, 40));
}

TEST_F(LayoutActivationTest, HiddenWidgetIsNotActivated) {
  FakeWidget& label = AddTo(*layout_, Make());
  dialog_->place = {0, 0, 100, 100};
  dialog_->visible = false;
  DeliverRequest(dialog_);
  EXPECT_EQ(label->moves, 0);
  dialog_->visible = true;
  DeliverRequest(dialog_);
  EXPECT_EQ(label->place, Rect(11, 11, 78, 78));
}

// -- Passes ---------------------------------------------------------------------------------------

TEST_F(LayoutActivationTest, AreaBelowTheMinimumIsEnlargedWhereverItComesFrom) {
  FakeWidget& label = AddTo(*layout_, Make({50, 20}, {40, 15}));
  dialog_->minimum = {};
  layout_->SetSizeConstraint(SizeConstraint::NoConstraint);
  Resize(dialog_, 10, 10);
  EXPECT_EQ(label->place, Rect(11, 11, 40, 15));
  ResizeEvent event({}, {12, 12});
  layout_->WidgetEvent(&event);
  EXPECT_EQ(label->place, Rect(11, 11, 40, 15));
  layout_->Fit({5, 5, 1, 1});
  EXPECT_EQ(label->place, Rect(16, 16, 40, 15));
}

TEST_F(LayoutActivationTest, ShownWidgetIsPlacedAfterTheRequest) {
  FakeWidget& a = AddTo(*layout_, Make({50, 20}, {10, 10}));
  FakeWidget& b = AddTo(*layout_, Make({50, 20}, {10, 10}));
  b->visible = false;
  Resize(dialog_, 122, 148);
  EXPECT_EQ(a->place.Height(), 126);
  b->visible = true;
  InvalidateSizesFrom(&b);
  DeliverRequest(dialog_);
  EXPECT_EQ(a->place, Rect(11, 11, 100, 60));
  EXPECT_EQ(b->place, Rect(11, 77, 100, 60));
}

TEST_F(LayoutActivationTest, ChangeReadsOnlyTheWidgetThatChanged) {
  FakeWidget& a = AddTo(*layout_, Make());
  FakeWidget& b = AddTo(*layout_, Make());
  Resize(dialog_, 200, 200);
  a->reads = b->reads = 0;
  InvalidateSizesFrom(&a);
  DeliverRequest(dialog_);
  EXPECT_EQ(a->reads, 1);
  EXPECT_EQ(b->reads, 0);
}

TEST_F(LayoutActivationTest, ContentsMarginsOfTheWidgetCountInTotals) {
  AddTo(*layout_, Make({50, 20}, {10, 10}));
  layout_->SetContentsMargins(0, 0, 0, 0);
  auto& margins = dialog_->Links().contentsMargins;
  margins[0] = 1, margins[1] = 2, margins[2] = 4, margins[3] = 8;
  EXPECT_EQ(layout_->TotalSizeHint(), Size(55, 30));
  EXPECT_EQ(layout_->TotalMinimumSize(), Size(15, 20));
  EXPECT_EQ(layout_->TotalMaximumSize(), Size(524287, 524287));
}

TEST_F(LayoutActivationTest, MenuBarLiesAboveTheLayout) {
  FakeWidget& label = AddTo(*layout_, Make());
  FakeWidget& menuBar = Make({50, 24}, {10, 10});
  layout_->SetContentsMargins(0, 0, 0, 0);
  layout_->SetMenuBar(&menuBar);
  EXPECT_EQ(layout_->TotalSizeHint(), Size(50, 44));
  Resize(dialog_, 200, 100);
  EXPECT_EQ(menuBar->place, Rect(0, 0, 200, 24));
  EXPECT_EQ(label->place, Rect(0, 24, 200, 76));
  menuBar->visible = false;
  EXPECT_EQ(layout_->TotalSizeHint(), Size(50, 20));
}

// -- Size constraints -----------------------------------------------------------------------------

class SizeConstraintsTest : public LayoutActivationTest {
 protected:
  SizeConstraintsTest() {
    FakeWidget& label = AddTo(*layout_, Make({50, 20}, {40, 15}));
    label->maximum = {70, 30};
    layout_->SetContentsMargins(0, 0, 0, 0);
    dialog_->place = {0, 0, 100, 100};
  }
};

TEST_F(SizeConstraintsTest, DialogGetsTheLayoutsMinimumWhereItHasNone) {
  dialog_->minimum = {7, 99};
  dialog_->Links().explicitMinimum.height = true;
  DeliverRequest(dialog_);
  EXPECT_EQ(dialog_->minimum, Size(40, 99));
  EXPECT_FALSE(dialog_->Links().explicitMinimum.width);
  EXPECT_TRUE(dialog_->Links().explicitMinimum.height);
}

TEST_F(SizeConstraintsTest, OtherWidgetsLoseAMinimumNobodySet) {
  FakeWidget group(Gui::GroupBox);
  auto* layout = new HBoxLayout(&group);
  group->minimum = {30, 40};
  group->Links().explicitMinimum.width = true;
  layout->Activate();
  EXPECT_EQ(group->minimum, Size(30, 0));
}

// The layout asks for 50 by 20, for 40 by 15 at least and 70 by 30 at most.
TEST_F(SizeConstraintsTest, ConstraintsSetTheLimitsTheyName) {
  const struct {
    SizeConstraint constraint;
    Size minimum;
    Size maximum;
  } cases[] = {
      {SizeConstraint::Fixed, {50, 20}, {50, 20}},
      {SizeConstraint::MinAndMax, {40, 15}, {70, 30}},
      {SizeConstraint::Minimum, {40, 15}, {1, 1}},
      {SizeConstraint::Maximum, {1, 1}, {70, 30}},
      {SizeConstraint::NoConstraint, {1, 1}, {1, 1}},
  };
  for (const auto& [constraint, minimum, maximum] : cases) {
    dialog_->minimum = dialog_->maximum = {1, 1};
    layout_->SetSizeConstraint(constraint);
    DeliverRequest(dialog_);
    EXPECT_EQ(dialog_->minimum, minimum);
    EXPECT_EQ(dialog_->maximum, maximum);
    EXPECT_FALSE(dialog_->Links().explicitMaximum.width);
  }
}

// -- Things die -----------------------------------------------------------------------------------

TEST_F(LayoutActivationTest, WidgetMayDieBeforeItsItem) {
  FakeWidget& a = AddTo(*layout_, Make());
  auto doomed = std::make_unique<FakeWidget>();
  AddTo(*layout_, *doomed);
  Resize(dialog_, 122, 122);
  doomed.reset();
  layout_->Invalidate(true);
  DeliverRequest(dialog_);
  EXPECT_EQ(a->place, Rect(11, 11, 100, 100));
}

TEST_F(LayoutActivationTest, LayoutMayOutliveItsWidget) {
  auto widget = std::make_unique<FakeWidget>(Gui::GroupBox);
  HBoxLayout second(widget.get());
  EXPECT_EQ((*widget)->Links().layout, &second);
  (*widget)->Links().layout = nullptr;  // the widget shall not delete it
  widget.reset();
  EXPECT_EQ(second.ParentWidget(), nullptr);
  second.Invalidate(true);
  second.Activate();
  EXPECT_EQ(second.SizeHint(), Size());
}

TEST_F(LayoutActivationTest, PlacedWidgetMayDestroyItsDialog) {
  for (const bool isGrid : {false, true}) {
    auto dialog = std::make_unique<FakeWidget>(Gui::Dialog);
    Layout* layout =
        isGrid ? static_cast<Layout*>(new GridLayout(dialog.get())) : new HBoxLayout(dialog.get());
    auto* nested = new VBoxLayout(layout);
    FakeWidget& trigger = AddTo(*nested, Make());
    AddTo(*nested, Make());
    trigger->onMoved = [&dialog] { dialog.reset(); };
    (*dialog)->place = {0, 0, 100, 100};
    layout->Activate();
    EXPECT_FALSE(dialog);
  }
}

TEST_F(LayoutActivationTest, PlacedWidgetMayChangeItsLayout) {
  FakeWidget& a = AddTo(*layout_, Make());
  FakeWidget& b = AddTo(*layout_, Make());
  a->onMoved = [&] {
    a->onMoved = nullptr;
    b->visible = false;
    InvalidateSizesFrom(&b);
    Resize(dialog_, 222, 222);
  };
  Resize(dialog_, 122, 122);
  DeliverRequest(dialog_);
  EXPECT_EQ(a->place, Rect(11, 11, 200, 200));
}

}  // namespace
}  // namespace Wexa
