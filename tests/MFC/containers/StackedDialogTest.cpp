#include "StackedDialog.h"

#include "ChildDialog.h"
#include "Event.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string PageXml(const std::string& name, const std::string& inner) {
  return WidgetXml("QWidget", name, ColumnXml(ItemXml(inner)));
}

class StackedDialogTest : public FormTest {
 protected:
  void OpenStack() {
    Open(ColumnForm(WidgetItem("QStackedWidget", "stack",
                               PageXml("one", WidgetXml("QLineEdit", "edit1")) +
                                   PageXml("two", WidgetXml("QLineEdit", "edit2")) +
                                   PageXml("three", WidgetXml("QLabel", "label3"))) +
                    WidgetItem("QLineEdit", "outside")));
  }
  StackedDialog& Stack() { return Find<StackedDialog>(L"stack"); }
};

TEST_F(StackedDialogTest, ShowsOnePageOverTheWholeArea) {
  OpenStack();
  Stack().SetCurrentIndex(1);
  EXPECT_FALSE(Stack().GetPage(0)->IsVisible());
  EXPECT_TRUE(Stack().GetPage(1)->IsVisible());
  EXPECT_EQ(Stack().GetPage(1)->GetWindowRect(), Stack().GetWindowRect());
}

TEST_F(StackedDialogTest, AFormGivesItAFrameAroundItsPages) {
  for (const std::string shape : {"NoFrame", "Box", "Panel", "StyledPanel"}) {
    const int frame = shape == "NoFrame" ? 0 : 1;
    Open(ColumnForm(ItemXml(WidgetXml(
        "QStackedWidget", "stack",
        PropertyXml("frameShape", "enum", "QFrame::" + shape) + PageXml("one", "<spacer/>")))));
    EXPECT_EQ(PlaceOf(L"one").Left() - PlaceOf(L"stack").Left(), frame) << shape;
    EXPECT_EQ(PlaceOf(L"stack").Bottom() - PlaceOf(L"one").Bottom(), frame) << shape;
    EXPECT_EQ(Robot::HasInk(Stack().GetPlatformHandle(), {0, 0, 9, 2}), frame == 1) << shape;
  }
}

TEST_F(StackedDialogTest, AnIndexOutOfRangeChangesNothingButRepaints) {
  OpenStack();
  int paints = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Paint) ++paints;
    return false;
  });
  Stack().SetCurrentIndex(5);
  Robot::PumpAll();
  EXPECT_EQ(Stack().GetCurrentIndex(), 0);
  EXPECT_EQ(paints, 1);
  EXPECT_EQ(Stack().GetPage(-1), nullptr);
  EXPECT_EQ(Stack().GetPage(3), nullptr);
  Stack().EnablePage(-1, false, true);
  Stack().EnablePage(3, false, true);
  EXPECT_EQ(Stack().InsertChildDialog(0, nullptr), 0);
}

TEST_F(StackedDialogTest, TheFocusLeavesAHiddenPage) {
  OpenStack();
  dialog_->SetFocusToCtrl(&Find<BaseGUIObject>(L"edit1"));
  Stack().SetCurrentIndex(1);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<BaseGUIObject>(L"edit2"));
  Stack().SetCurrentIndex(2);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<BaseGUIObject>(L"outside"));
  Stack().SetCurrentIndex(0);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<BaseGUIObject>(L"outside")) << "it was not inside";
}

TEST_F(StackedDialogTest, APageDisabledWithMemoryStaysDisabled) {
  OpenStack();
  Stack().EnablePage(0, false, true);
  Stack().EnablePage(0, true, false);
  EXPECT_FALSE(Stack().GetPage(0)->IsEnabled());
}

}  // namespace
}  // namespace Wexa
