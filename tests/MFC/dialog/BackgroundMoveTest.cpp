#include "Event.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

constexpr unsigned long kBorderless = WS_POPUP | WS_VISIBLE;

class BackgroundMoveTest : public FormTest {
 protected:
  BackgroundMoveTest() {
    Open(ColumnForm(WidgetItem("QLabel", "label", TextXml("a label to hold on to")) +
                    WidgetItem("QLineEdit", "edit")),
         kBorderless);
  }

  POINT Background() {
    Point place = dialog_->ClientToScreen(Point(150, 190));
    return {place.x, place.y};
  }
  void DragBy(POINT from, int x, int y) { robot_.Drag(from, {from.x + x, from.y + y}); }
};

TEST_F(BackgroundMoveTest, ABorderlessDialogFollowsItsBackground) {
  const Rect before = dialog_->GetWindowRect();
  int moving = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Moving) ++moving;
    return false;
  });
  DragBy(Background(), 40, -30);
  const Rect after = dialog_->GetWindowRect();
  EXPECT_EQ(after.Left(), before.Left() + 40);
  EXPECT_EQ(after.Top(), before.Top() - 30);
  EXPECT_EQ(after.GetSize(), before.GetSize());
  EXPECT_EQ(moving, 2) << "one notice for each move";
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(BackgroundMoveTest, LabelsMoveItAndEditsDoNot) {
  const Rect before = dialog_->GetWindowRect();
  DragBy(Robot::CentreOf(Find<BaseGUIObject>(L"edit").GetPlatformHandle()), 20, 10);
  EXPECT_EQ(dialog_->GetWindowRect(), before);
  DragBy(Robot::CentreOf(Find<BaseGUIObject>(L"label").GetPlatformHandle()), 20, 10);
  EXPECT_EQ(dialog_->GetWindowRect().Left(), before.Left() + 20);
}

TEST_F(BackgroundMoveTest, AHostThatTakesThePressKeepsTheDialogInPlace) {
  const Rect before = dialog_->GetWindowRect();
  dialog_->SetEventProcedure(
      [](BaseGUIObject*, Event* event) { return event->GetType() == Event::MousePress; });
  DragBy(Background(), 40, 30);
  EXPECT_EQ(dialog_->GetWindowRect(), before);
}

TEST_F(BackgroundMoveTest, AMovingNoticeMayDestroyTheDialog) {
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Moving) dialog_.reset();
    return false;
  });
  DragBy(Background(), 40, 30);
  EXPECT_EQ(dialog_, nullptr);
}

TEST_F(BackgroundMoveTest, ADialogWithACaptionStays) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  const Rect before = dialog_->GetWindowRect();
  DragBy(Background(), 40, 30);
  EXPECT_EQ(dialog_->GetWindowRect(), before);
}

}  // namespace
}  // namespace Wexa
