// Focus, activation, capture, modality.

#include <gmock/gmock.h>

#include "window/WindowTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class FocusTest : public WindowTest {};

TEST_F(FocusTest, FirstShowActivatesInOrder) {
  const HWND window = MakeWindow(kBare, {0, 0, 100, 100});
  Watch({WM_SHOWWINDOW, WM_WINDOWPOSCHANGED, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS});
  ShowWindow(window, SW_SHOW);
  EXPECT_THAT(TakeNotes(),
              ElementsAre("SHOWWINDOW", "POSCHANGED", "NCACTIVATE", "ACTIVATE", "SETFOCUS"));
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), IsEmpty());
  EXPECT_EQ(GetActiveWindow(), window);
  EXPECT_EQ(GetFocus(), window);
  EXPECT_EQ(Robot::Screen().Focused(), SurfaceOf(window));
}

TEST_F(FocusTest, ShownWithoutActivatingKeepsTheFocusWhereItIs) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  const HWND popUp = MakeWindow(kBare, {0, 0, 50, 50}, window, WS_EX_NOACTIVATE);
  ShowWindow(popUp, SW_SHOW);
  robot_.PumpAll();
  robot_.Click({10, 10});
  EXPECT_EQ(GetActiveWindow(), window);
}

TEST_F(FocusTest, MovingTheFocusTellsTheOldWindowFirst) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  const HWND one = MakeChild(window, {0, 0, 10, 10});
  const HWND two = MakeChild(window, {20, 0, 30, 10});
  Name(one, "1");
  Name(two, "2");
  SetFocus(one);
  Watch({WM_SETFOCUS, WM_KILLFOCUS});
  EXPECT_EQ(SetFocus(two), one);
  EXPECT_THAT(TakeNotes(), ElementsAre("KILLFOCUS@1", "SETFOCUS@2"));
  SetFocus(two);
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(FocusTest, FocusMovedAwayInAHandlerIsRespected) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  const HWND one = MakeChild(window, {0, 0, 10, 10});
  const HWND two = MakeChild(window, {20, 0, 30, 10});
  SetFocus(one);
  handler = [&](HWND w, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (w == one && message == WM_KILLFOCUS) SetFocus(window);
    return std::nullopt;
  };
  Name(two, "2");
  Watch({WM_SETFOCUS});
  SetFocus(two);
  EXPECT_EQ(GetFocus(), window);
  EXPECT_THAT(TakeNotes(), ElementsAre("SETFOCUS"));
}

TEST_F(FocusTest, OnlyWindowsThatTakeInputHaveTheFocus) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  const HWND child = MakeChild(window, {0, 0, 10, 10}, WS_VISIBLE | WS_DISABLED);
  EXPECT_EQ(SetFocus(child), nullptr);
  EXPECT_EQ(GetFocus(), window);
  EnableWindow(child, TRUE);
  SetFocus(child);
  ShowWindow(child, SW_HIDE);
  EXPECT_EQ(GetFocus(), window);
}

TEST_F(FocusTest, ClosedWindowHandsTheActivationToItsOwner) {
  const HWND other = ShowWindowAt({200, 0, 300, 100});
  const HWND owner = ShowWindowAt({0, 0, 100, 100});
  SetActiveWindow(other);
  const HWND dialog = MakeWindow(kBare, {0, 0, 50, 50}, owner);
  ShowWindow(dialog, SW_SHOW);
  EXPECT_EQ(GetActiveWindow(), dialog);
  DestroyWindow(dialog);
  EXPECT_EQ(GetActiveWindow(), owner);
  robot_.PumpAll();
  EXPECT_EQ(Robot::Screen().Focused(), SurfaceOf(owner));
}

TEST_F(FocusTest, DisplayLosingTheFocusDeactivates) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  Watch({WM_NCACTIVATE, WM_ACTIVATE, WM_KILLFOCUS});
  robot_.Screen().LoseFocus();
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("NCACTIVATE", "ACTIVATE", "KILLFOCUS"));
  EXPECT_EQ(GetActiveWindow(), nullptr);
  robot_.Screen().FocusSurface(SurfaceOf(window));
  robot_.PumpAll();
  EXPECT_EQ(GetFocus(), window);
}

TEST_F(FocusTest, ClickActivatesUnlessDeclined) {
  const HWND one = ShowWindowAt({0, 0, 100, 100});
  const HWND two = ShowWindowAt({200, 0, 300, 100});
  robot_.Click({50, 50});
  EXPECT_EQ(GetActiveWindow(), one);
  handler = [](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
    return std::nullopt;
  };
  robot_.Click({250, 50});
  EXPECT_EQ(GetActiveWindow(), one);
  EXPECT_NE(one, two);
}

TEST_F(FocusTest, ClickOnADisabledOwnerActivatesItsDialog) {
  const HWND owner = ShowWindowAt({0, 0, 100, 100});
  const HWND dialog = MakeWindow(kBare, {200, 0, 300, 100}, owner);
  ShowWindow(dialog, SW_SHOW);
  EnableWindow(owner, FALSE);
  EXPECT_TRUE(Robot::Screen().IsModal(SurfaceOf(dialog)));
  robot_.Screen().LoseFocus();
  robot_.PumpAll();
  Watch({WM_LBUTTONDOWN, WM_MOUSEMOVE});
  robot_.Click({50, 50});
  EXPECT_EQ(GetActiveWindow(), dialog);
  EXPECT_THAT(TakeNotes(), IsEmpty());
  EnableWindow(owner, TRUE);
  EXPECT_FALSE(Robot::Screen().IsModal(SurfaceOf(dialog)));
}

TEST_F(FocusTest, CaptureGetsThePointerEverywhereUntilItIsReleasedOrItsWindowEnds) {
  const HWND child = MakeChild(ShowWindowAt({0, 0, 100, 100}), {0, 0, 10, 10});
  Name(child, "c");
  SetCapture(child);
  Watch({WM_MOUSEMOVE, WM_CAPTURECHANGED, WM_LBUTTONDOWN});
  robot_.MoveTo({500, 500});
  ReleaseCapture();
  EXPECT_THAT(TakeNotes(), ElementsAre("MOVE@c", "CAPTURECHANGED@c"));
  SetCapture(child);
  DestroyWindow(child);
  EXPECT_EQ(GetCapture(), nullptr);
  TakeNotes();
  robot_.Click({5, 5});
  EXPECT_THAT(TakeNotes(), ElementsAre("MOVE", "LDOWN"));
}

TEST_F(FocusTest, ExceptionInAHandlerLeavesTheCoreUsable) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  handler = [](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_LBUTTONDOWN) throw std::runtime_error("no");
    return std::nullopt;
  };
  EXPECT_THROW(robot_.Press({5, 5}), std::runtime_error);
  handler = nullptr;
  robot_.Release();
  Watch({WM_LBUTTONDOWN});
  robot_.Click({5, 5});
  EXPECT_THAT(TakeNotes(), ElementsAre("LDOWN"));
  EXPECT_EQ(GetFocus(), window);
}
