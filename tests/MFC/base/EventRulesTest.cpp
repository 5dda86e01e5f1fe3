#include <numeric>
#include <sstream>

#include "Button.h"
#include "ContextMenu.h"
#include "Event.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

using display::MouseButton;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Narrow(const std::wstring& text) {
  return {text.begin(), text.end()};
}

// What events say, in words.
std::string Say(const KeyEvent& e) {
  std::ostringstream out;
  out << (e.GetType() == Event::KeyPress ? "press " : "release ") << static_cast<int>(e.GetKey());
  if (!e.GetText().empty()) out << " '" << Narrow(e.GetText()) << "'";
  if (e.GetModifier() & Event::ShiftModifier) out << " shift";
  if (e.GetModifier() & Event::ControlModifier) out << " control";
  if (e.GetModifier() & Event::AltModifier) out << " alt";
  out << " native " << e.GetKeyOrigPlatform();
  return out.str();
}

std::string Say(const MouseEvent& e) {
  std::ostringstream out;
  out << e.GetX() << "," << e.GetY() << " buttons " << e.GetButtons();
  if (e.GetModifiers() & Event::ShiftModifier) out << " shift";
  if (e.GetModifiers() & Event::ControlModifier) out << " control";
  return out.str();
}

class EventRulesTest : public FormTest {
 protected:
  // Notes the events of these types.
  void Watch(BaseGUIObject& widget, std::vector<Event::Type> types, bool handled = false) {
    widget.SetEventProcedure([this, types, handled](BaseGUIObject*, Event* event) {
      const Event::Type type = event->GetType();
      if (std::find(types.begin(), types.end(), type) == types.end()) return false;
      Note(*event);
      return handled;
    });
  }

  void Note(const Event& event) {
    types_.push_back(event.GetType());
    switch (event.GetType()) {
      case Event::KeyPress:
      case Event::KeyRelease: said_.push_back(Say(static_cast<const KeyEvent&>(event))); break;
      case Event::MousePress:
      case Event::MouseRelease:
      case Event::MouseMove:
      case Event::HoverEnter:
      case Event::MouseDoubleClick:
        said_.push_back(Say(static_cast<const MouseEvent&>(event)));
        break;
      default: break;
    }
  }

  BaseGUIObject& Widget(const wchar_t* name) { return Find<BaseGUIObject>(name); }
  void Focus(const wchar_t* name) {
    dialog_->SetFocusToCtrl(&Widget(name));
    Robot::PumpAll();
  }
  POINT At(const wchar_t* name, int x, int y) {
    Point screen = Widget(name).ClientToScreen(Point(x, y));
    return {screen.x, screen.y};
  }
  // The keys that reach the widget as such, each pressed and released; the dialog takes none.
  std::vector<int> KeysReported(const wchar_t* name, const std::vector<int>& virtualKeys) {
    Focus(name);
    constexpr int kPassOn = 0;
    dialog_->SetPreTranslateMessage([](void*) { return kPassOn; });
    std::vector<int> reported;
    Widget(name).SetEventProcedure([&](BaseGUIObject*, Event* event) {
      if (event->GetType() != Event::KeyRelease) return event->GetType() == Event::KeyPress;
      reported.push_back(static_cast<KeyEvent*>(event)->GetKeyOrigPlatform());
      return true;
    });
    for (int key : virtualKeys) robot_.Key(key);
    return reported;
  }

  std::vector<Event::Type> types_;
  std::vector<std::string> said_;
};

// -- Size, activation, focus, visibility

TEST_F(EventRulesTest, ADraggedFrameResizesTheLayoutBeforeTheHostHears) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit"), 300, 200));
  Size told;
  int editWidth = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Resize) {
      told = static_cast<ResizeEvent*>(event)->NewSize();
      editWidth = Widget(L"edit").GetWindowRect().Width();
    }
    return false;
  });
  const int before = Widget(L"edit").GetWindowRect().Width();
  Rect frame = dialog_->GetWindowRect();
  const POINT corner{frame.Left() + frame.Width() - 2, frame.Top() + frame.Height() - 2};
  robot_.Drag(corner, {corner.x + 60, corner.y + 20});
  EXPECT_EQ(told.Width(), 360);
  EXPECT_EQ(told.Height(), 220);
  EXPECT_EQ(editWidth, before + 60);
}

TEST_F(EventRulesTest, ActivationComesAndGoesWithTheDesktopsFocus) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(*dialog_, {Event::WindowActivate, Event::WindowDeactivate});
  Robot::Screen().LoseFocus();
  Robot::PumpAll();
  robot_.ClickCentreOf(Widget(L"edit").GetPlatformHandle());
  EXPECT_THAT(types_, ElementsAre(Event::WindowDeactivate, Event::WindowActivate));
}

TEST_F(EventRulesTest, FocusLeavesOneWidgetForTheNext) {
  Open(ColumnForm(WidgetItem("QLineEdit", "a") + WidgetItem("QLineEdit", "b")));
  Focus(L"a");
  Watch(Widget(L"a"), {Event::FocusIn, Event::FocusOut});
  Watch(Widget(L"b"), {Event::FocusIn, Event::FocusOut});
  robot_.Tab();
  EXPECT_THAT(types_, ElementsAre(Event::FocusOut, Event::FocusIn));
}

TEST_F(EventRulesTest, HidingAndShowingAreTold) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::Show, Event::Hide});
  Widget(L"edit").Show(false, true);
  ASSERT_FALSE(types_.empty());
  EXPECT_THAT(types_, testing::Each(Event::Hide));
  types_.clear();
  Widget(L"edit").Show(true, true);
  ASSERT_FALSE(types_.empty());
  EXPECT_THAT(types_, testing::Each(Event::Show));
}

TEST_F(EventRulesTest, OneMessageMayShowAndHide) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::Show, Event::Hide});
  WINDOWPOS position{};
  position.flags = SWP_SHOWWINDOW | SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
  SendMessageW(Widget(L"edit").GetPlatformHandle(), WM_WINDOWPOSCHANGED, 0,
               reinterpret_cast<LPARAM>(&position));
  EXPECT_THAT(types_, ElementsAre(Event::Show, Event::Hide));
}

TEST_F(EventRulesTest, AContextMenuRequestClimbsUntilSomeoneHandlesIt) {
  Open(ColumnForm(PushButton("button")));
  Watch(Widget(L"button"), {Event::ContextMenu});
  Watch(*dialog_, {Event::ContextMenu});
  robot_.RightClick(Robot::CentreOf(Widget(L"button").GetPlatformHandle()));
  EXPECT_EQ(types_.size(), 2u);
  types_.clear();
  Watch(Widget(L"button"), {Event::ContextMenu}, true);
  robot_.RightClick(Robot::CentreOf(Widget(L"button").GetPlatformHandle()));
  EXPECT_EQ(types_.size(), 1u);
}

class NotedMenu : public ContextMenu {
 public:
  explicit NotedMenu(std::function<void()> shown = {}) : shown_(std::move(shown)) {}
  using ContextMenu::Show;
  void Show(int x, int y) override {
    places.push_back({x, y});
    if (shown_) shown_();
  }
  std::vector<Point> places;

 private:
  std::function<void()> shown_;
};

TEST_F(EventRulesTest, AWidgetsMenuAnswersWhatItsHostLeaves) {
  Open(ColumnForm(PushButton("button") + WidgetItem("QLineEdit", "edit")));
  const auto menu = std::make_shared<NotedMenu>();
  const auto outer = std::make_shared<NotedMenu>();
  for (const wchar_t* name : {L"button", L"edit"}) Widget(name).InsertContextMenu(menu);
  dialog_->InsertContextMenu(outer);
  EXPECT_EQ(Widget(L"button").GetContextMenu(), menu);
  robot_.RightClick(At(L"button", 6, 4));
  const POINT place = At(L"button", 6, 4);
  EXPECT_THAT(menu->places, ElementsAre(Point(place.x, place.y)));
  EXPECT_THAT(outer->places, IsEmpty());
  Watch(Widget(L"button"), {Event::ContextMenu}, true);
  robot_.RightClick(At(L"button", 6, 4));
  robot_.RightClick(At(L"edit", 6, 4));
  EXPECT_EQ(menu->places.size(), 1u) << "handled by the host; edits show theirs themselves";
  Widget(L"button").SetEventProcedure({});
  Widget(L"button").RemoveContextMenu();
  Widget(L"button").RemoveContextMenu();
  EXPECT_EQ(Widget(L"button").GetContextMenu(), nullptr);
  outer->places.clear();
  robot_.RightClick(At(L"button", 6, 4));
  EXPECT_EQ(outer->places.size(), 1u) << "the request climbs";
  outer->Show(false);
  EXPECT_EQ(outer->places.size(), 1u);
}

TEST_F(EventRulesTest, AMenuMayEndItsDialog) {
  Open(ColumnForm(PushButton("button")));
  Widget(L"button").InsertContextMenu(std::make_shared<NotedMenu>([this] { dialog_.reset(); }));
  robot_.RightClick(At(L"button", 6, 4));
  EXPECT_EQ(dialog_, nullptr);
}

// -- Keys and characters

TEST_F(EventRulesTest, AHandledTabStaysWithItsWidget) {
  Open(ColumnForm(WidgetItem("QLineEdit", "a") + WidgetItem("QLineEdit", "b")));
  Focus(L"a");
  Watch(Widget(L"a"), {Event::KeyPress}, true);
  robot_.Tab();
  EXPECT_EQ(said_.front(), "press 2 native 9");
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Widget(L"a"));
  said_.clear();
  Watch(Widget(L"a"), {Event::KeyPress}, false);
  robot_.Tab();
  EXPECT_THAT(said_, ElementsAre("press 2 native 9"));
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Widget(L"b"));
}

// Every key there is, pressed on a text widget and on another.
TEST_F(EventRulesTest, OnlyKeysThatActAreReported) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit") + PushButton("button")));
  std::vector<int> acting = {VK_TAB, VK_RETURN, VK_SHIFT, VK_CONTROL, VK_MENU, VK_CAPITAL};
  acting.push_back(VK_ESCAPE);
  for (int key = VK_PRIOR; key <= VK_DOWN; ++key) acting.push_back(key);
  acting.insert(acting.end(), {VK_SNAPSHOT, VK_INSERT, VK_DELETE});
  for (int key = VK_NUMPAD0; key <= VK_F24; ++key) acting.push_back(key);
  acting.insert(acting.end(), {VK_NUMLOCK, VK_SCROLL});
  std::vector<int> all(255 - VK_BACK);
  std::iota(all.begin(), all.end(), int{VK_BACK});
  std::erase_if(all, [](int key) { return key >= VK_LSHIFT && key <= VK_RMENU; });
  std::erase(acting, int{VK_F10});  // a key of the system's, like those with Alt
  EXPECT_EQ(KeysReported(L"edit", all), acting);
  acting.insert(std::ranges::find(acting, int{VK_PRIOR}), VK_SPACE);
  EXPECT_EQ(KeysReported(L"button", all), acting);
}

TEST_F(EventRulesTest, SpaceIsACharacterForTextAndAKeyForTheRest) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit") + PushButton("button")));
  Watch(Widget(L"edit"), {Event::KeyPress, Event::KeyRelease});
  Watch(Widget(L"button"), {Event::KeyPress, Event::KeyRelease});
  Focus(L"edit");
  robot_.Key(VK_SPACE);
  EXPECT_THAT(said_, ElementsAre("press 22 ' ' native 32"));
  said_.clear();
  Focus(L"button");
  robot_.Key(VK_SPACE);
  EXPECT_THAT(said_, ElementsAre("press 22 ' ' native 32", "release 22 ' ' native 32"));
}

TEST_F(EventRulesTest, CharactersBringTheKeyOfTheirPlaceOnTheKeyboard) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Focus(L"edit");
  Watch(Widget(L"edit"), {Event::KeyPress, Event::KeyRelease});
  robot_.Type(L"a");
  EXPECT_THAT(said_, ElementsAre("press 48 'a' native 97"));
  said_.clear();
  robot_.Type(L"B");
  EXPECT_THAT(said_, ElementsAre("press 5 shift native 16", "press 49 'B' shift native 66",
                                 "release 5 native 16"));
}

TEST_F(EventRulesTest, OfTheSystemKeysOnlyAltIsReported) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Focus(L"edit");
  Watch(Widget(L"edit"), {Event::KeyPress, Event::KeyRelease});
  robot_.KeyDown(VK_MENU);
  robot_.Key(VK_F4 + 5);
  robot_.KeyUp(VK_MENU);
  EXPECT_EQ(said_.size(), 2u);
  EXPECT_TRUE(said_.front().starts_with("press 7 ")) << said_.front();
  EXPECT_TRUE(said_.back().starts_with("release 7 ")) << said_.back();
}

// -- Timer and pointer

TEST_F(EventRulesTest, PointerEventsAreInClientCoordinatesWithButtonsAndModifiers) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::MousePress, Event::MouseRelease});
  robot_.KeyDown(VK_CONTROL);
  robot_.Press(At(L"edit", 7, 5));
  robot_.Release();
  robot_.KeyUp(VK_CONTROL);
  robot_.Press(At(L"edit", 9, 3), MouseButton::Right);
  robot_.Release(MouseButton::Right);
  EXPECT_THAT(said_, ElementsAre("7,5 buttons 1 control", "7,5 buttons 0 control", "9,3 buttons 2",
                                 "9,3 buttons 0"));
}

TEST_F(EventRulesTest, APositionLeftOfACapturingWindowIsNegative) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  robot_.Press(At(L"edit", 7, 5));
  Watch(Widget(L"edit"), {Event::MouseMove});
  robot_.MoveTo(At(L"edit", -4, -3));
  robot_.Release();
  ASSERT_FALSE(said_.empty());
  EXPECT_EQ(said_.front(), "-4,-3 buttons 1");
}

TEST_F(EventRulesTest, MiddleAndExtraButtonsAreNotEvents) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::MousePress, Event::MouseRelease, Event::MouseDoubleClick});
  for (auto button : {MouseButton::Middle, MouseButton::Extra1, MouseButton::Extra2}) {
    robot_.Press(At(L"edit", 7, 5), button);
    robot_.Release(button);
  }
  EXPECT_THAT(types_, IsEmpty());
}

TEST_F(EventRulesTest, ADoubleClickIsOneOfTheLeftButton) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::MousePress, Event::MouseRelease, Event::MouseDoubleClick});
  robot_.DoubleClick(At(L"edit", 7, 5));
  EXPECT_THAT(types_, ElementsAre(Event::MousePress, Event::MouseRelease, Event::MouseDoubleClick,
                                  Event::MouseRelease));
}

TEST_F(EventRulesTest, HoverAndLeaveFollowEachVisit) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::HoverEnter, Event::MouseLeave});
  for (int visit = 0; visit < 2; ++visit) {
    robot_.MoveTo(At(L"edit", 5, 5));
    robot_.AdvanceTime(5);
    robot_.MoveTo(POINT{1, 1});
  }
  EXPECT_THAT(types_, ElementsAre(Event::HoverEnter, Event::MouseLeave, Event::HoverEnter,
                                  Event::MouseLeave));
}

TEST_F(EventRulesTest, TheWheelIsInScreenCoordinates) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Focus(L"edit");
  Point place;
  int delta = 0;
  Widget(L"edit").SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() != Event::Wheel) return false;
    place = static_cast<MouseWheelEvent*>(event)->GetPos();
    delta = static_cast<MouseWheelEvent*>(event)->GetDelta();
    return true;
  });
  const POINT screen = At(L"edit", 8, 6);
  robot_.MoveTo(screen);
  robot_.Wheel(-2);
  EXPECT_EQ(delta, -240);
  EXPECT_EQ(place.x, screen.x);
  EXPECT_EQ(place.y, screen.y);
}

TEST_F(EventRulesTest, AHandledPressDoesNotPressTheButton) {
  Open(ColumnForm(PushButton("button")));
  int clicks = 0;
  Find<Button>(L"button").Clicked.Connect([&] { ++clicks; });
  Watch(Widget(L"button"), {Event::MousePress}, true);
  robot_.ClickCentreOf(Widget(L"button").GetPlatformHandle());
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(types_.size(), 1u);
}

// -- Moving, drops, resolution, layout, deferred calls

TEST_F(EventRulesTest, ADraggedCaptionTellsOfMoving) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(*dialog_, {Event::Moving});
  Rect frame = dialog_->GetWindowRect();
  const POINT caption{frame.Left() + frame.Width() / 2, frame.Top() + 8};
  robot_.Drag(caption, {caption.x + 30, caption.y + 10});
  EXPECT_FALSE(types_.empty());
  EXPECT_EQ(dialog_->GetWindowRect().Left(), frame.Left() + 30);
}

TEST_F(EventRulesTest, DroppedFilesComeInOrderWithTheirPlace) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  std::vector<std::wstring> files;
  Point place;
  int drops = 0;
  Widget(L"edit").SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() != Event::Drop) return false;
    files = static_cast<DropEvent*>(event)->GetFilePaths();
    place = static_cast<DropEvent*>(event)->GetPosition();
    return ++drops > 0;
  });
  Robot::Screen().DropFiles(At(L"edit", 4, 6), {L"/a"});
  Robot::PumpAll();
  EXPECT_EQ(drops, 0) << "it accepts none";
  Widget(L"edit").SetAcceptDrops(true);
  EXPECT_TRUE(Widget(L"edit").IsAcceptDrops());
  const std::wstring longest(600, L'x');
  Robot::Screen().DropFiles(At(L"edit", 4, 6), {L"/a", L"/b c", longest});
  Robot::PumpAll();
  EXPECT_THAT(files, ElementsAre(L"/a", L"/b c", longest.substr(0, 520)));
  EXPECT_EQ(place.x, 4);
  EXPECT_EQ(place.y, 6);
}

TEST_F(EventRulesTest, ANewResolutionIsToldWithItsDpi) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  int dpi = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::DpiChange)
      dpi = static_cast<DpiChangeEvent*>(event)->GetCurDpi();
    return false;
  });
  Robot::Screen().ChangeResolution(144);
  Robot::PumpAll();
  Robot::Screen().ChangeResolution(96);
  EXPECT_EQ(dpi, 144);
  Robot::PumpAll();
}

TEST_F(EventRulesTest, AWidgetWithoutAProcedureTakesTheDefaultPath) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  Watch(Widget(L"edit"), {Event::KeyPress}, true);
  Widget(L"edit").SetEventProcedure({});
  Focus(L"edit");
  robot_.Type(L"x");
  EXPECT_THAT(types_, IsEmpty());
}

}  // namespace
}  // namespace Wexa
