// Whatever the event: the host may end the widget, its dialog, or all dialogs, while it handles it.

#include "Edit.h"
#include "Event.h"
#include "MFC/BaseImplMFC.h"
#include "platform/SystemColors.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

enum class End { DestroyWidget, DestroyDialog, CloseDialogs };

struct LastEvent {
  Event::Type type;
  End end;
};

class LastEventTest : public FormTest, public testing::WithParamInterface<LastEvent> {
 protected:
  LastEventTest() {
    std::string items;
    for (const char* name : {"edit", "next"}) items += WidgetItem("QLineEdit", name);
    items += WidgetItem("QPushButton", "button");
    other_ = Make(ColumnForm(items));
    other_->DoModeless(true);
    Open(ColumnForm(items));
    edit_ = &Find<BaseGUIObject>(L"edit");
    if (GetParam().end == End::DestroyWidget) {
      edit_ = &PutInTheWayOf(*edit_);
    } else {
      Watch(*dialog_);
      Watch(Find<BaseGUIObject>(L"button"));
    }
    edit_->SetAcceptDrops(true);
    Watch(*edit_);
  }
  ~LastEventTest() override {
    other_.reset();
    SetSystemScheme(SystemScheme::Light);
    Robot::Screen().ChangeResolution(96);
    Robot::PumpAll();
  }

  // A widget of the host's own, in the place of another.
  Edit& PutInTheWayOf(BaseGUIObject& widget) {
    const Rect place = PlaceOf(widget.GetName().c_str());
    widget.Show(false, false);
    own_ = std::make_unique<Edit>();
    own_->Create(dialog_->GetHandle());
    own_->MoveWindow(place.Left(), place.Top(), place.Width(), place.Height(), true);
    Robot::PumpAll();
    return *own_;
  }

  void Watch(BaseGUIObject& widget) {
    widget.SetEventProcedure([this](BaseGUIObject*, Event* event) {
      if (event->GetType() == GetParam().type && !ended_) EndAll();
      return false;
    });
  }

  void EndAll() {
    ended_ = true;
    if (GetParam().end == End::DestroyWidget) return own_.reset();
    if (GetParam().end == End::DestroyDialog) return dialog_.reset();
    for (Dialog* dialog : {other_.get(), dialog_.get()})
      if (dialog->GetHandle()) dialog->Done(Dialog::Rejected);
  }

  // A step of use, as long as there is something to use.
  template <typename Step>
  void Then(Step step) {
    if (!ended_) step();
    Robot::PumpAll();
  }

  HWND Window() { return edit_->GetPlatformHandle(); }

  void UsePointer() {
    Then([&] { robot_.MoveTo(Window()); });
    Then([&] { robot_.AdvanceTime(5); });
    Then([&] { robot_.DoubleClick(Robot::CentreOf(Window())); });
    Then([&] { robot_.RightClick(Robot::CentreOf(Window())); });
    Then([&] { robot_.Wheel(1); });
    Then([&] { robot_.MoveTo(POINT{1, 1}); });
    Then([&] { Robot::Screen().DropFiles(Robot::CentreOf(Window()), {L"/a", L"/b"}); });
  }

  void UseKeyboard() {
    Then([&] { SetFocus(Window()); });
    Then([&] { robot_.Type(L"a"); });
    Then([&] { robot_.Key(VK_LEFT); });
    Then([&] { robot_.Tab(); });
    Then([&] { robot_.ShiftTab(); });
  }

  void UseWindow() {
    Then([&] { edit_->SetTimer(1, 3); });
    Then([&] { robot_.AdvanceTime(10); });
    Then([&] { edit_->Repaint(); });
    Then([&] { edit_->Show(false, true); });
    Then([&] { edit_->Show(true, true); });
    Then([&] { DragCaption(); });
    Then([&] { edit_->MoveWindow(10, 10, 90, 30, true); });
    Then([&] { dialog_->MoveWindow(10, 10, 500, 400, true); });
    Then([&] { Robot::Screen().LoseFocus(); });
    Then([&] { robot_.ClickCentreOf(Window()); });
    Then([&] { SetSystemScheme(SystemScheme::HighContrast); });
    Then([&] { Robot::Screen().ChangeResolution(120); });
  }

  void DragCaption() {
    Rect frame = dialog_->GetWindowRect();
    const POINT caption{frame.Left() + frame.Width() / 2, frame.Top() + 8};
    robot_.Drag(caption, {caption.x + 30, caption.y + 10});
  }

  std::unique_ptr<Dialog> other_;
  std::unique_ptr<Edit> own_;
  BaseGUIObject* edit_ = nullptr;
  bool ended_ = false;
};

TEST_P(LastEventTest, TheWidgetItsDialogOrAllMayEndInIt) {
  UsePointer();
  UseKeyboard();
  UseWindow();
  EXPECT_TRUE(ended_) << "the event never came";
  if (GetParam().end == End::DestroyDialog) {
    EXPECT_EQ(dialog_, nullptr);
  } else {
    EXPECT_EQ(IsWindow(dialog_->GetHandle()), GetParam().end == End::DestroyWidget);
  }
}

// Those that come to dialogs alone.
bool IsOfDialogs(Event::Type type) {
  switch (type) {
    case Event::WindowActivate:
    case Event::WindowDeactivate:
    case Event::ApplicationPaletteChange:
    case Event::LayoutsUpdated:
    case Event::DpiChange:
    case Event::Moving: return true;
    default: return false;
  }
}

std::vector<LastEvent> AllEvents() {
  std::vector<LastEvent> events;
  for (Event::Type type : {Event::Timer,          Event::MousePress,
                           Event::MouseRelease,   Event::MouseDoubleClick,
                           Event::MouseMove,      Event::KeyPress,
                           Event::KeyRelease,     Event::FocusIn,
                           Event::FocusOut,       Event::MouseLeave,
                           Event::Paint,          Event::Resize,
                           Event::Show,           Event::Hide,
                           Event::WindowActivate, Event::WindowDeactivate,
                           Event::Wheel,          Event::ApplicationPaletteChange,
                           Event::Drop,           Event::LayoutsUpdated,
                           Event::ContextMenu,    Event::HoverEnter,
                           Event::DpiChange,      Event::Moving,
                           Event::PostPaint}) {
    if (!IsOfDialogs(type)) events.push_back({type, End::DestroyWidget});
    events.push_back({type, End::DestroyDialog});
    events.push_back({type, End::CloseDialogs});
  }
  return events;
}

std::string NameOf(const testing::TestParamInfo<LastEvent>& info) {
  constexpr const char* kEnds[] = {"WidgetDestroyed", "DialogDestroyed", "DialogsClosed"};
  return std::string(kEnds[static_cast<int>(info.param.end)]) + "In" +
         std::to_string(info.param.type);
}

INSTANTIATE_TEST_SUITE_P(Events, LastEventTest, testing::ValuesIn(AllEvents()), NameOf);

}  // namespace
}  // namespace Wexa
