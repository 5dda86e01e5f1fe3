// What a host may do in the middle of things: end the dialog in any notice that it gets, or throw
// while a widget ends.

#include <cstdlib>
#include <functional>

#include "Button.h"
#include "CheckBox.h"
#include "DrawElement.h"
#include "Event.h"
#include "GroupBox.h"
#include "HyperLinkElement.h"
#include "RadioButton.h"
#include "ScrollBar.h"
#include "Slider.h"
#include "Splitter.h"
#include "StackedDialog.h"
#include "TabView.h"
#include "platform/VirtualKeys.h"
#include "platform/WindowMessages.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

const std::string kEdit = WidgetXml("QLineEdit", "inner");

std::string Column(const std::string& inner) {
  return ColumnXml(ItemXml(inner));
}

std::string PageXml(const std::string& name, const std::string& title, const std::string& inner) {
  return WidgetXml("QWidget", name, AttributeXml("title", title) + Column(inner));
}

const std::string kPages = PageXml("page", "A", kEdit) +
                           PageXml("second", "A title &amp;long enough", WidgetXml("QLabel", "l"));
const std::string kViews = WidgetXml("QTextEdit", "a") + WidgetXml("QTextEdit", "b");

std::unique_ptr<Dialog> g_last;  // goes after all that is made while main runs

class EndingTest : public FormTest {
 protected:
  // One widget, with an edit below it.
  BaseGUIObject& OpenOne(const char* className, const std::string& inner) {
    Open(ColumnForm(WidgetItem(className, "widget", inner) + WidgetItem("QLineEdit", "other")));
    return Find<BaseGUIObject>(L"widget");
  }
  HWND Window(const wchar_t* name = L"widget") {
    return Find<BaseGUIObject>(name).GetPlatformHandle();
  }
  HWND FirstPart() { return GetWindow(Window(), GW_CHILD); }
  // On the screen, from the widget's left or its right end.
  POINT At(int x, int y = 8) {
    const Rect place = Find<BaseGUIObject>(L"widget").GetWindowRect();
    return {(x < 0 ? place.Right() : place.Left()) + x, place.Top() + y};
  }
  POINT Handle() {
    const Rect left = Find<BaseGUIObject>(L"a").GetWindowRect();
    return {left.Right() + 3, left.Top() + 10};
  }
  void EndIn(Event::Type type, const wchar_t* name) {
    Find<BaseGUIObject>(name).SetEventProcedure([this, type](BaseGUIObject*, Event* event) {
      if (event->GetType() == type) dialog_.reset();
      return false;
    });
  }
  void PressKey(HWND window, int key) {
    SetFocus(window);
    robot_.Key(key);
  }
};

TEST_F(EndingTest, AHostMayEndTheDialogInAnyNotice) {
  const auto end = [this](const auto&...) { dialog_.reset(); };
  const auto click = [this] { robot_.ClickCentreOf(Window()); };
  const auto clicked = [&] { Find<Button>(L"widget").Clicked.Connect(end); };
  const auto linkClicked = [&] { Find<HyperLinkElement>(L"widget").Clicked.Connect(end); };
  const auto moved = [&] { Find<RangeControl>(L"widget").ValueChanged.Connect(end); };
  const auto pageChanged = [&] { Find<TabView>(L"widget").CurrentChanged.Connect(end); };
  const auto pageHidden = [&] { EndIn(Event::Hide, L"page"); };
  const auto viewSized = [&] { EndIn(Event::Resize, L"b"); };
  const auto focusLost = [&] {
    SetFocus(Window(L"inner"));
    EndIn(Event::FocusOut, L"inner");
  };
  const auto split = [this]() -> Splitter& { return Find<Splitter>(L"widget"); };
  const std::string checkable = BoolXml("checkable") + Column(kEdit);
  const std::string level = EnumXml("orientation", "Qt::Horizontal");
  struct Case {
    const char* className;
    std::string inner;
    std::function<void()> watch, act;
  } cases[] = {
      {"QPushButton", "", clicked, click},
      {"QPushButton", "", clicked, [&] { PressKey(Window(), VK_SPACE); }},
      {"QPushButton", "", clicked, [&] { PressKey(Window(), VK_RETURN); }},
      {"QCheckBox", "", [&] { Find<CheckBox>(L"widget").Clicked.Connect(end); }, click},
      {"QRadioButton", "", [&] { Find<RadioButton>(L"widget").Clicked.Connect(end); }, click},
      {"QRadioButton", "", [&] { Find<RadioButton>(L"widget").GroupChanged.Connect(end); }, click},
      {"HyperLinkElement", TextXml("a link"), linkClicked,
       [&] { robot_.Click(At(8, PlaceOf(L"widget").Height() / 2)); }},
      {"HyperLinkElement", TextXml("a link"), linkClicked, [&] { PressKey(Window(), VK_RETURN); }},
      {"DrawElement", "", [&] { Find<DrawElement>(L"widget").SetPaintProcedure(end); },
       [] { Robot::PumpAll(); }},
      {"QGroupBox", checkable, [&] { Find<GroupBox>(L"widget").Toggled.Connect(end); },
       [&] { robot_.ClickCentreOf(FirstPart()); }},
      {"QGroupBox", checkable, focusLost, [&] { Find<GroupBox>(L"widget").SetChecked(false); }},
      {"QScrollArea", PageXml("page", "", kEdit), focusLost, [&] { SetFocus(Window(L"other")); }},
      {"QSlider", level, moved, [&] { robot_.Drag(At(5), At(100)); }},
      {"QSlider", level, moved, [&] { PressKey(Window(), VK_RIGHT); }},
      {"QSlider", level, moved, [&] { Find<Slider>(L"widget").SetValue(4); }},
      {"QScrollBar", level, moved, [&] { robot_.Click(At(-3)); }},
      {"QSplitter", kViews, viewSized, [&] { robot_.Drag(Handle(), At(150)); }},
      {"QSplitter", kViews, viewSized, [&] { split().SetHandleWidth(30); }},
      {"QSplitter", kViews, viewSized, [&] { split().SetOrientation(true); }},
      {"QStackedWidget", kPages, pageHidden,
       [&] { Find<StackedDialog>(L"widget").SetCurrentIndex(1); }},
      {"QTabWidget", kPages, pageHidden, [&] { robot_.Click(At(120)); }},
      {"QTabWidget", kPages, pageChanged, [&] { robot_.Click(At(120)); }},
      {"QTabWidget", kPages, pageChanged, [&] { PressKey(FirstPart(), VK_RIGHT); }},
      {"QTabWidget", kPages, pageChanged, [&] { robot_.AltKey(L'L'); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.className << " case " << &c - cases);
    OpenOne(c.className, c.inner);
    c.watch();
    c.act();
    EXPECT_EQ(dialog_, nullptr);
  }
}

// -- While a widget ends -----------------------------------------------------------------------

enum class Notice { Hide, FocusOut, Destroyed };
enum class Way { DestroyWindow, DestroyDialogWindow, Done, Reset };
enum class Reaction { DestroyDialog, Throw };

class ReactingTest : public EndingTest {
 protected:
  void Watch(BaseGUIObject& widget, Notice notice, Reaction reaction) {
    const auto react = [this, reaction] {
      if (std::exchange(noticed_, true)) return;
      if (reaction == Reaction::Throw) throw std::runtime_error("host");
      dialog_.reset();
    };
    if (notice == Notice::Destroyed) {
      widget.Destroyed.Connect([react](BaseGUIObject*) { react(); });
      return;
    }
    const Event::Type type = notice == Notice::Hide ? Event::Hide : Event::FocusOut;
    widget.SetEventProcedure([react, type](BaseGUIObject*, Event* event) {
      if (event->GetType() == type) react();
      return false;
    });
  }

  void End(Way way) {
    switch (way) {
      case Way::DestroyWindow: DestroyWindow(Window()); return;
      case Way::DestroyDialogWindow: DestroyWindow(dialog_->GetHandle()); return;
      case Way::Done: dialog_->Done(Dialog::Rejected); return;
      case Way::Reset: dialog_.reset(); return;
    }
  }

  // How many exceptions come out of it and of pumping afterwards.
  int ThrownBy(Way way) {
    int thrown = 0;
    const std::function<void()> steps[] = {[&] { End(way); }, Robot::PumpAll, Robot::PumpAll};
    for (const auto& step : steps) {
      try {
        step();
      } catch (const std::runtime_error&) {
        ++thrown;
      }
    }
    return thrown;
  }

  void Try(BaseGUIObject& watched, Notice notice, Way way, Reaction reaction) {
    SCOPED_TRACE(testing::Message() << "notice " << int(notice) << " way " << int(way)
                                    << " reaction " << int(reaction));
    noticed_ = false;
    SetFocus(Window());
    Watch(watched, notice, reaction);
    const int thrown = ThrownBy(way);
    EXPECT_EQ(thrown, std::exchange(noticed_, true) && reaction == Reaction::Throw ? 1 : 0);
    dialog_.reset();
    EXPECT_EQ(GetTopLevelWindows().size(), 0U);
  }

  bool noticed_ = false;
};

TEST_F(ReactingTest, AHostMayEndTheDialogOrThrowWhileAWidgetOrTheDialogEnds) {
  const std::pair<const char*, std::string> kinds[] = {{"QLineEdit", ""},
                                                       {"QPushButton", ""},
                                                       {"QLabel", ""},
                                                       {"QSlider", ""},
                                                       {"QGroupBox", kEdit},
                                                       {"QTabWidget", kPages},
                                                       {"QStackedWidget", kPages},
                                                       {"QScrollArea", PageXml("page", "", kEdit)},
                                                       {"QSplitter", kViews},
                                                       {"QDialogButtonBox", ""}};
  for (const auto& [className, inner] : kinds)
    for (const Notice notice : {Notice::Hide, Notice::FocusOut, Notice::Destroyed})
      for (const Way way : {Way::DestroyWindow, Way::DestroyDialogWindow, Way::Done, Way::Reset})
        for (const Reaction reaction : {Reaction::DestroyDialog, Reaction::Throw}) {
          SCOPED_TRACE(className);
          Try(OpenOne(className, inner), notice, way, reaction);
          OpenOne(className, inner);
          Try(*dialog_, notice, way, reaction);
        }
}

TEST_F(EndingTest, ADialogMayOutliveMain) {
  const auto leave = [this] {
    g_last = Make(ColumnForm(ItemXml(WidgetXml("QPushButton", "widget"))));
    g_last->DoModeless(true);
    Robot::PumpAll();
    std::exit(0);
  };
  EXPECT_EXIT(leave(), testing::ExitedWithCode(0), "");
}

// The loop may not wait for input that would not concern it.
TEST_F(EndingTest, ADialogThatEndsWithItsFirstPaintLeavesItsLoop) {
  dialog_ = Make(ColumnForm(WidgetItem("QPushButton", "widget")));
  EndIn(Event::Paint, L"widget");
  EXPECT_EQ(dialog_->DoModal(), -1);
}

TEST_F(EndingTest, MessagesWithoutTheirRecordsAreBorne) {
  for (const char* className : {"QPushButton", "QLineEdit", "QGroupBox", "QSlider", "QTabWidget"}) {
    OpenOne(className, "");
    for (const HWND window : {Window(), dialog_->GetHandle(), GetDesktopWindow()})
      for (UINT message = WM_DESTROY + 1; message < WM_APP; ++message)
        if (message != WM_NCCREATE && message != WM_NCDESTROY && message != WM_INITDIALOG)
          SendMessageW(window, message, 0, 0);
    SendMessageW(Window(), WM_CREATE, 0, 0);
  }
}

}  // namespace
}  // namespace Wexa
