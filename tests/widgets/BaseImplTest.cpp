#include "MFC/BaseImplMFC.h"

#include "Event.h"
#include "Label.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string EditXml(const std::string& name) {
  return ItemXml(WidgetXml("QLineEdit", name));
}

std::string LabelXml(const std::string& name, const std::string& text) {
  return ItemXml(WidgetXml("QLabel", name, PropertyXml("text", "string", text)));
}

// The widgets of a form and what their event procedures got.
class WidgetTest : public FormTest {
 protected:
  void Listen(BaseGUIObject& widget, bool handled = false) {
    widget.SetEventProcedure([this, handled](BaseGUIObject*, Event* event) {
      if (event->GetType() == Event::PostPaint || event->GetType() == Event::Paint) return false;
      types_.push_back(event->GetType());
      if (event->GetType() == Event::KeyPress)
        texts_ += static_cast<KeyEvent*>(event)->GetText();
      if (event->GetType() == Event::Resize) oldSize_ = static_cast<ResizeEvent*>(event)->OldSize();
      return handled;
    });
  }

  bool Got(Event::Type type) const {
    return std::find(types_.begin(), types_.end(), type) != types_.end();
  }

  std::vector<Event::Type> types_;
  std::wstring texts_;
  Size oldSize_;
};

TEST_F(WidgetTest, ARememberedDisableOutlivesATemporaryEnable) {
  Open(ColumnForm(EditXml("edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.Enable(false, true);
  edit.Enable(true, false);
  EXPECT_FALSE(edit.IsEnabled());
  edit.Enable(true, true);
  EXPECT_TRUE(edit.IsEnabled());
}

TEST_F(WidgetTest, MovesAreKeptWithinTheLimitsAndTheMinimumWins) {
  Open(FormXml(WidgetXml("QLineEdit", "edit"), 300, 200));
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.SetMaximumSize(Size(100, 20));
  edit.MoveWindow(10, 10, 150, 15, true);
  EXPECT_EQ(edit.GetWindowRect().Width(), 100);
  edit.SetMinimumSize(Size(120, 10));
  edit.MoveWindow(10, 10, 50, 15, true);
  EXPECT_EQ(edit.GetWindowRect().Width(), 120);
}

TEST_F(WidgetTest, AMoveToTheSamePlaceMakesNoNativeCall) {
  Open(FormXml(WidgetXml("QLineEdit", "edit"), 300, 200));
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.MoveWindow(10, 10, 50, 20, true);
  Listen(edit);
  edit.MoveWindow(10, 10, 50, 20, true);
  EXPECT_FALSE(Got(Event::Resize));
  edit.MoveWindow(10, 10, 60, 20, true);
  EXPECT_TRUE(Got(Event::Resize));
}

TEST_F(WidgetTest, ResizeEventsShareOneOldSize) {
  Open(FormXml(WidgetXml("QLineEdit", "a") + WidgetXml("QLineEdit", "b"), 300, 200));
  Listen(Find<BaseGUIObject>(L"a"));
  Listen(Find<BaseGUIObject>(L"b"));
  Find<BaseGUIObject>(L"a").MoveWindow(0, 0, 71, 33, true);
  Size first = Find<BaseGUIObject>(L"a").GetClientRect().GetSize();
  Find<BaseGUIObject>(L"b").MoveWindow(0, 40, 90, 20, true);
  EXPECT_EQ(oldSize_.Width(), first.Width());
  EXPECT_EQ(oldSize_.Height(), first.Height());
}

TEST_F(WidgetTest, LettersComeAsCharactersAndFunctionKeysAsKeys) {
  Open(ColumnForm(EditXml("edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  dialog_->SetFocusToCtrl(&edit);
  Listen(edit);
  robot_.Type(L"a b");
  EXPECT_EQ(texts_, L"a b");
  EXPECT_FALSE(Got(Event::KeyRelease)) << "neither letters nor a text widget's Space are keys";
  texts_.clear();
  robot_.Key(VK_F10 - 1);
  EXPECT_EQ(texts_, L"");
  EXPECT_TRUE(Got(Event::KeyRelease));
}

TEST_F(WidgetTest, AHandledCharacterDoesNotReachTheEdit) {
  Open(ColumnForm(EditXml("edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  dialog_->SetFocusToCtrl(&edit);
  robot_.Type(L"x");
  Listen(edit, true);
  robot_.Type(L"y");
  EXPECT_EQ(static_cast<BaseImplMFC*>(edit.GetBaseImpl().get())->GetCWnd()->GetWindowText(), L"x");
}

TEST_F(WidgetTest, MouseEventsFollowThePointer) {
  Open(ColumnForm(EditXml("edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  Listen(edit);
  robot_.ClickCentreOf(edit.GetPlatformHandle());
  EXPECT_TRUE(Got(Event::MouseMove));
  EXPECT_TRUE(Got(Event::MousePress));
  EXPECT_TRUE(Got(Event::MouseRelease));
  EXPECT_TRUE(Got(Event::FocusIn) || dialog_->GetFocusedCtrlPtr() == &edit);
  robot_.AdvanceTime(10);
  EXPECT_TRUE(Got(Event::HoverEnter));
  robot_.MoveTo(POINT{1, 1});
  EXPECT_TRUE(Got(Event::MouseLeave));
}

TEST_F(WidgetTest, AHandledPaintSuppressesTheNativeOneAndEnds) {
  Open(ColumnForm(EditXml("edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  int paints = 0;
  int postPaints = 0;
  edit.SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Paint) return ++paints > 0;
    if (event->GetType() == Event::PostPaint) ++postPaints;
    return false;
  });
  int above = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::PostPaint) ++above;
    return false;
  });
  edit.Repaint();
  Robot::PumpAll();
  EXPECT_EQ(paints, 1);
  EXPECT_EQ(postPaints, 1);
  EXPECT_EQ(above, 1) << "the notice climbs to the dialog";
}

TEST_F(WidgetTest, TimersComeWithTheirIds) {
  Open(ColumnForm(EditXml("edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  int fired = 0;
  edit.SetEventProcedure([&](BaseGUIObject* widget, Event* event) {
    if (event->GetType() != Event::Timer) return false;
    if (static_cast<TimerEvent*>(event)->TimerId() == 77) ++fired;
    if (fired == 3) widget->KillTimer(77);
    return true;
  });
  edit.SetTimer(77, 100);
  robot_.AdvanceTime(1000);
  EXPECT_EQ(fired, 3);
}

TEST_F(WidgetTest, AChangedTextLaysOutOnceAndMovesItsNeighbour) {
  Open(FormXml("<layout class=\"QHBoxLayout\" name=\"row\">" + LabelXml("label", "a") +
                   EditXml("edit") + "</layout>",
               300, 60));
  int before = PlaceOf(L"edit").Left();
  int layouts = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::LayoutsUpdated) ++layouts;
    return false;
  });
  Find<Label>(L"label").SetText(L"a longer text");
  Find<Label>(L"label").SetText(L"a longer text still");
  Robot::PumpAll();
  EXPECT_EQ(layouts, 1);
  EXPECT_GT(PlaceOf(L"edit").Left(), before + 50);
}

TEST_F(WidgetTest, DestroyedIsFiredWithTheWidget) {
  Open(ColumnForm(EditXml("edit")));
  BaseGUIObject* dead = nullptr;
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.Destroyed.Connect([&](BaseGUIObject* widget) { dead = widget; });
  dialog_->Done(Dialog::Rejected);
  EXPECT_EQ(dead, &edit);
}

TEST_F(WidgetTest, AnyEventMayEndTheDialog) {
  for (Event::Type fatal : {Event::KeyPress, Event::MousePress, Event::MouseMove, Event::FocusOut,
                            Event::Paint, Event::Resize, Event::Hide, Event::Timer}) {
    Open(ColumnForm(EditXml("edit") + EditXml("next")));
    auto& edit = Find<BaseGUIObject>(L"edit");
    dialog_->SetFocusToCtrl(&edit);
    edit.SetEventProcedure([&](BaseGUIObject*, Event* event) {
      if (event->GetType() == fatal) dialog_.reset();
      return false;
    });
    if (dialog_) edit.SetTimer(1, 5);
    if (dialog_) robot_.ClickCentreOf(edit.GetPlatformHandle());
    if (dialog_) robot_.AdvanceTime(20);
    if (dialog_) robot_.Type(L"a");
    if (dialog_) robot_.Tab();
    if (dialog_) edit.Repaint();
    Robot::PumpAll();
    if (dialog_) edit.MoveWindow(0, 0, 11, 11, true);
    if (dialog_) edit.Show(false, true);
    EXPECT_EQ(dialog_, nullptr) << fatal;
  }
}

}  // namespace
}  // namespace Wexa
