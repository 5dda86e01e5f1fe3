#include <algorithm>

#include "platform/WindowStyles.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;

// The person plays a window manager too.
class X11WindowManagerTest : public X11Test {
 protected:
  X11WindowManagerTest() {
    person_.SetWords(person_.Root(), "_NET_WORKAREA", XCB_ATOM_CARDINAL, {0, 30, 1280, 900});
    person_.SetWords(person_.Root(), "_NET_SUPPORTED", XCB_ATOM_ATOM,
                     {person_.Atom("_NET_WM_NAME"), person_.Atom("_NET_WM_MOVERESIZE")});
    const xcb_window_t check = ShowWindow({-10, -10, -5, -5});
    for (const xcb_window_t window : {check, person_.Root()}) {
      person_.SetWords(window, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, {check});
    }
    display_->CreateSurface(kDialog, SurfaceKind::Dialog, 0, kPlace);
    display_->SetTitle(kDialog, L"managed");
    display_->ShowSurface(kDialog, true);
    Paint(kDialog, 0xFF808080);
    All();
    window_ = person_.FindWindow("managed");
  }

  ~X11WindowManagerTest() override {
    for (const char* name : {"_NET_WORKAREA", "_NET_SUPPORTED", "_NET_SUPPORTING_WM_CHECK"}) {
      xcb_delete_property(person_.Connection(), person_.Root(), person_.Atom(name));
    }
    person_.Sync();
  }

  xcb_window_t ShowWindow(const RECT& place) {
    const xcb_window_t window = person_.CreateWindow(place);
    xcb_map_window(person_.Connection(), window);
    person_.Sync();
    return window;
  }

  // The message that the display has sent to the window manager; zeros if none.
  support::XTestDriver::Message Message(const char* name) {
    All();
    return person_.TakeMessage(name).value_or(support::XTestDriver::Message{});
  }

  xcb_window_t window_ = 0;
};

TEST_F(X11WindowManagerTest, TakesMovesAndSizesOver) {
  person_.MovePointer({150, 120});
  All();
  EXPECT_TRUE(display_->BeginMoveSize(kDialog, HTBOTTOMRIGHT));
  const auto message = Message("_NET_WM_MOVERESIZE");
  EXPECT_EQ(message.window, window_);
  EXPECT_EQ(message.data[0], 150u);
  EXPECT_EQ(message.data[1], 120u);
  EXPECT_EQ(message.data[2], 4u);
  EXPECT_FALSE(display_->BeginMoveSize(kDialog, HTCLIENT));
}

TEST_F(X11WindowManagerTest, GivesTheFocus) {
  EXPECT_NE(person_.FocusedWindow(), window_);
  display_->FocusSurface(kDialog);
  EXPECT_EQ(Message("_NET_ACTIVE_WINDOW").window, window_);
  EXPECT_NE(person_.FocusedWindow(), window_);
}

TEST_F(X11WindowManagerTest, KeepsPanelsOutOfTheWorkArea) {
  const RECT area = display_->WorkArea();
  EXPECT_EQ(area.top, 30);
  EXPECT_EQ(area.bottom, 930);
  person_.SetWords(person_.Root(), "_NET_WORKAREA", XCB_ATOM_CARDINAL, {0, 50, 1280, 900});
  All();
  EXPECT_EQ(display_->WorkArea().top, 50);
}

TEST_F(X11WindowManagerTest, LearnsThatTheProgramListens) {
  person_.Send(window_, "WM_PROTOCOLS", {person_.Atom("_NET_WM_PING"), 4711, window_});
  EXPECT_TRUE(All(Kind::CloseRequested).empty());
  const auto answer = Message("WM_PROTOCOLS");
  EXPECT_EQ(answer.window, person_.Root());
  EXPECT_EQ(answer.data[1], 4711u);
  EXPECT_EQ(answer.data[2], window_);
}

TEST_F(X11WindowManagerTest, FrameAroundTheWindowDoesNotHideWhereItIs) {
  const xcb_window_t frame = ShowWindow({300, 300, 800, 700});
  xcb_reparent_window(person_.Connection(), window_, frame, 5, 25);
  person_.Sync();
  All();
  person_.Resize(window_, {310, 210});
  const auto moved = Next(Kind::Moved);
  ASSERT_TRUE(moved);
  EXPECT_EQ(moved->position.x, 305);
  EXPECT_EQ(moved->position.y, 325);
}

TEST_F(X11WindowManagerTest, IsAskedToMakeAShownDialogModal) {
  display_->SetModal(kDialog, true);
  const auto message = Message("_NET_WM_STATE");
  EXPECT_EQ(message.window, window_);
  EXPECT_EQ(message.data[0], 1u);
  EXPECT_EQ(message.data[1], person_.Atom("_NET_WM_STATE_MODAL"));
}

TEST_F(X11WindowManagerTest, ReadsTheLimitsOfTheSize) {
  display_->SetResizable(kDialog, true, {120, 90}, {0, 700});
  All();
  const auto words = [this] {
    const std::string bytes = person_.Property(window_, "WM_NORMAL_HINTS");
    std::vector<std::int32_t> numbers(bytes.size() / 4);
    std::copy_n(bytes.data(), bytes.size(), reinterpret_cast<char*>(numbers.data()));
    return numbers;
  };
  EXPECT_EQ(words().at(5), 120);
  EXPECT_EQ(words().at(6), 90);
  EXPECT_GT(words().at(7), 10000);
  EXPECT_EQ(words().at(8), 700);
  display_->SetResizable(kDialog, false, {}, {});
  All();
  EXPECT_EQ(words().at(5), 300);
  EXPECT_EQ(words().at(8), 200);
}

}  // namespace
}  // namespace display
