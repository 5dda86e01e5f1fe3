// Layouts of forms in two resolutions: metrics of forms are scaled and cut to whole pixels.

#include "MFC/DialogImplMFC.h"
#include "layout/GridLayout.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

// What 6, 9, 11, 30 and 40 units are on the screen.
struct Metrics {
  int dpi;
  int six;
  int nine;
  int eleven;
  int thirty;
  int forty;
};

std::string Spacer(const std::string& properties) {
  return ItemXml("<spacer>" + properties + "</spacer>");
}

class ScaledLayoutTest : public DialogTest, public testing::WithParamInterface<Metrics> {
 protected:
  ScaledLayoutTest() { UseResolution(scaled_.dpi); }
  ~ScaledLayoutTest() override { UseResolution(96); }

  Layout& LayoutFor(const std::string& layout) {
    dialog_ = Make(FormXml(layout, 300, 200));
    return *dialog_->GetImpl()->Links().layout;
  }
  static Margins MarginsOf(const Layout& layout) {
    Margins margins;
    layout.GetContentsMargins(&margins.left, &margins.top, &margins.right, &margins.bottom);
    return margins;
  }
  const Metrics scaled_ = GetParam();
};

INSTANTIATE_TEST_SUITE_P(, ScaledLayoutTest,
                         testing::Values(Metrics{96, 6, 9, 11, 30, 40},
                                         Metrics{144, 9, 13, 16, 45, 60}),
                         [](const auto& test) { return std::to_string(test.param.dpi); });

TEST_P(ScaledLayoutTest, SpacingAndMarginsAreScaledAndCut) {
  Layout& layout = LayoutFor(
      ColumnXml(NumberXml("spacing", 6) + NumberXml("leftMargin", 11) + NumberXml("topMargin", 0)));
  EXPECT_EQ(layout.Spacing(), scaled_.six);
  EXPECT_EQ(MarginsOf(layout), (Margins{scaled_.eleven, 0, scaled_.eleven, scaled_.eleven}));
}

TEST_P(ScaledLayoutTest, DefaultsDependOnTheWidgetAround) {
  const std::string inner = RowXml(LineEdit("edit"));
  Layout& layout = LayoutFor(ColumnXml(WidgetItem("QGroupBox", "group", inner) + ItemXml(inner)));
  EXPECT_EQ(layout.Spacing(), scaled_.six);
  EXPECT_EQ(MarginsOf(layout).top, scaled_.eleven) << "of a dialog";
  EXPECT_EQ(MarginsOf(*ImplOf(&Find<BaseGUIObject>(L"group"))->Links().layout).right, scaled_.nine)
      << "of another widget";
  EXPECT_EQ(MarginsOf(*layout.ItemAt(1)->AsLayout()).left, 0) << "nested";
}

TEST_P(ScaledLayoutTest, GridsHaveTwoSpacingsAndLeastSizes) {
  const auto cell = [](const char* name, int row, int column) {
    return ItemXml(WidgetXml("QWidget", name),
                   "row=\"" + std::to_string(row) + "\" column=\"" + std::to_string(column) + "\"");
  };
  dialog_.reset();
  Open(
      FormXml("<layout class=\"QGridLayout\" rowminimumheight=\"0,30\" "
              "columnminimumwidth=\"40,0\" rowstretch=\"1,0\" columnstretch=\"0,1\">" +
                  NumberXml("horizontalSpacing", 6) + NumberXml("verticalSpacing", 11) +
                  cell("a", 0, 0) + cell("b", 0, 1) + cell("c", 1, 0) + "</layout>",
              300, 200));
  EXPECT_EQ(PlaceOf(L"c").Height(), scaled_.thirty);
  EXPECT_EQ(PlaceOf(L"a").Width(), scaled_.forty);
  EXPECT_EQ(PlaceOf(L"b").Left() - PlaceOf(L"a").Right(), scaled_.six);
  EXPECT_EQ(PlaceOf(L"c").Top() - PlaceOf(L"a").Bottom(), scaled_.eleven);
}

TEST_P(ScaledLayoutTest, SpacersHaveTheirScaledSizeAndPolicy) {
  const std::string fixed = EnumXml("sizeType", "QSizePolicy::Fixed");
  const std::string hint = SizeXml("sizeHint", 40, 30);
  const std::string horizontal = EnumXml("orientation", "Qt::Horizontal");
  Layout& row = LayoutFor(RowXml(Spacer(fixed + hint + horizontal) + Spacer(hint + horizontal) +
                                 Spacer(horizontal) +
                                 Spacer(hint + EnumXml("sizeType", "QSizePolicy::Expanding"))));
  ASSERT_EQ(row.Count(), 3) << "a spacer without a size is none";
  EXPECT_EQ(row.ItemAt(0)->SizeHint(), Size(scaled_.forty, scaled_.thirty));
  EXPECT_EQ(row.ItemAt(0)->ExpandingDirections(), Orientation::None);
  EXPECT_EQ(row.ItemAt(0)->MaximumSize().Width(), scaled_.forty);
  EXPECT_EQ(row.ItemAt(1)->ExpandingDirections(), Orientation::Horizontal);
  EXPECT_EQ(row.ItemAt(2)->ExpandingDirections(), Orientation::Horizontal);
  Layout& column = LayoutFor(ColumnXml(Spacer(hint)));
  EXPECT_EQ(column.ItemAt(0)->ExpandingDirections(), Orientation::Vertical);
}

TEST_P(ScaledLayoutTest, FormLayoutsGiveTheFieldsTheExtraWidth) {
  Open(FormXml(
      LayoutXml(
          "QFormLayout",
          ItemXml(WidgetXml("QLabel", "label", TextXml("Name")), "row=\"0\" column=\"0\"") +
              ItemXml(WidgetXml("QPushButton", "field"), "row=\"0\" column=\"1\"") +
              ItemXml(WidgetXml("QLineEdit", "whole"), "row=\"1\" column=\"0\" colspan=\"2\"")),
      300, 200));
  const Rect label = PlaceOf(L"label");
  EXPECT_EQ(label.Width(), Find<BaseGUIObject>(L"label").IdealSize().Width());
  EXPECT_EQ(PlaceOf(L"field").Left() - label.Right(), scaled_.six);
  EXPECT_EQ(PlaceOf(L"whole").Left(), label.Left());
  EXPECT_EQ(PlaceOf(L"whole").Right(), PlaceOf(L"field").Right());
}

TEST_P(ScaledLayoutTest, AFixedConstraintMakesTheDialogItsIdealSize) {
  Open(FormXml(ColumnXml(EnumXml("sizeConstraint", "QLayout::SizeConstraint::SetFixedSize") +
                         LineEdit("edit") + PushButton("button")),
               700, 500));
  const Size ideal = dialog_->GetImpl()->Links().layout->TotalSizeHint();
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), ideal);
  dialog_->GetImpl()->ResizeClient(500, 500);
  Robot::PumpAll();
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), ideal);
  Find<Button>(L"button").SetText(L"a text that is a good deal longer than before, and longer");
  Robot::PumpAll();
  EXPECT_EQ(dialog_->GetClientRect().GetSize(),
            dialog_->GetImpl()->Links().layout->TotalSizeHint());
  EXPECT_GT(dialog_->GetClientRect().Width(), ideal.Width());
}

TEST_P(ScaledLayoutTest, TheMinimumOfTheLayoutIsTheDialogs) {
  Open(FormXml(ColumnXml(LineEdit("edit") + PushButton("button")), 1, 1));
  const Size least = dialog_->GetImpl()->Links().layout->TotalMinimumSize();
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), least);
  Find<Button>(L"button").Show(false, true);
  Robot::PumpAll();
  EXPECT_LT(dialog_->MinimumSize().Height(), least.Height());
}

}  // namespace
}  // namespace Wexa
