// Creation, destruction and handles.

#include <gmock/gmock.h>

#include <utility>

#include "window/WindowTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class LifeTest : public WindowTest {};

TEST_F(LifeTest, CreationSendsItsMessagesInOrderAndTellsWhatWasAskedFor) {
  CREATESTRUCTW seen{};
  handler = [&](HWND, UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
    if (message == WM_CREATE) seen = *reinterpret_cast<CREATESTRUCTW*>(lParam);
    return std::nullopt;
  };
  Watch({WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW,
         WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED});
  MakeWindow(kBare, {10, 20, 110, 70});
  EXPECT_THAT(TakeNotes(), ElementsAre("NCCREATE", "NCCALCSIZE", "CREATE", "SIZE", "MOVE"));
  EXPECT_EQ(CRect(seen.x, seen.y, seen.cx, seen.cy), CRect(10, 20, 100, 50));
  EXPECT_STREQ(seen.lpszName, L"window");
}

TEST_F(LifeTest, RefusedCreationLeavesNoWindow) {
  for (const UINT refused : {WM_NCCREATE, WM_CREATE}) {
    handler = [&](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
      if (message != refused) return std::nullopt;
      return message == WM_CREATE ? -1 : 0;
    };
    EXPECT_EQ(MakeWindow(kBare, {0, 0, 10, 10}), nullptr);
    handler = [&](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
      if (message == refused) throw std::runtime_error("no");
      return std::nullopt;
    };
    EXPECT_THROW(MakeWindow(kBare, {0, 0, 10, 10}), std::runtime_error);
    EXPECT_THAT(GetTopLevelWindows(), IsEmpty());
  }
}

TEST_F(LifeTest, ChildNeedsALivingParentAndAKnownClass) {
  EXPECT_EQ(MakeChild(nullptr, {0, 0, 10, 10}), nullptr);
  const HWND dead = MakeWindow(kBare, {0, 0, 10, 10});
  DestroyWindow(dead);
  EXPECT_EQ(MakeChild(dead, {0, 0, 10, 10}), nullptr);
  EXPECT_EQ(CreateWindowExW(0, L"unknown", L"", kBare, 0, 0, 1, 1, nullptr, nullptr, nullptr),
            nullptr);
}

TEST_F(LifeTest, DestroyTellsOwnedWindowsAndParentsFirstAndEndsChildrenFirst) {
  const HWND parent = ShowWindowAt({0, 0, 100, 100});
  const HWND child = MakeChild(parent, {0, 0, 50, 50});
  const HWND owned = MakeWindow(kBare, {10, 10, 50, 50}, child);
  EXPECT_EQ(GetParent(owned), parent);
  Name(parent, "p");
  Name(child, "c");
  Name(MakeChild(child, {0, 0, 20, 20}), "g");
  Name(owned, "o");
  Watch({WM_DESTROY, WM_NCDESTROY});
  DestroyWindow(parent);
  EXPECT_THAT(TakeNotes(), ElementsAre("DESTROY@o", "NCDESTROY@o", "DESTROY@p", "DESTROY@c",
                                       "DESTROY@g", "NCDESTROY@g", "NCDESTROY@c", "NCDESTROY@p"));
}

TEST_F(LifeTest, CallsOnAStaleHandleFail) {
  const HWND stale = MakeWindow(kBare, {0, 0, 10, 10});
  DestroyWindow(stale);
  RECT rect{};
  POINT point{};
  MSG message{};
  PAINTSTRUCT paint{};
  EXPECT_FALSE(DestroyWindow(stale));
  EXPECT_FALSE(GetWindowRect(stale, &rect));
  EXPECT_FALSE(ScreenToClient(stale, &point));
  EXPECT_FALSE(SetWindowPos(stale, nullptr, 0, 0, 1, 1, 0));
  EXPECT_FALSE(ShowWindow(stale, SW_SHOW));
  EXPECT_FALSE(EnableWindow(stale, FALSE));
  EXPECT_FALSE(InvalidateRect(stale, nullptr, TRUE));
  EXPECT_FALSE(PostMessageW(stale, WM_USER, 0, 0));
  EXPECT_EQ(SendMessageW(stale, WM_GETTEXTLENGTH, 0, 0), 0);
  EXPECT_EQ(SetTimer(stale, 1, 10), 0U);
  EXPECT_EQ(SetFocus(stale), nullptr);
  EXPECT_EQ(SetCapture(stale), nullptr);
  EXPECT_EQ(GetDC(stale), nullptr);
  EXPECT_EQ(BeginPaint(stale, &paint), nullptr);
  EXPECT_EQ(GetWindowExtra(stale), nullptr);
  EXPECT_EQ(GetWindowTextString(stale), L"");
  EXPECT_FALSE(PeekMessageW(&message, PM_REMOVE));
}

TEST_F(LifeTest, DestroyedByItsOwnHandlerAtAnyMessage) {
  for (const UINT fatal :
       {WM_CREATE, WM_SIZE, WM_SHOWWINDOW, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_NCCALCSIZE,
        WM_ACTIVATE, WM_SETFOCUS, WM_NCACTIVATE, WM_PAINT, WM_NCPAINT, WM_ERASEBKGND}) {
    handler = [&](HWND window, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
      if (message == fatal) DestroyWindow(window);
      return std::nullopt;
    };
    const HWND window = MakeWindow(kDialog, {0, 0, 100, 100});
    if (window) ShowWindow(window, SW_SHOW);
    robot_.PumpAll();
    if (window) SetWindowPos(window, nullptr, 5, 5, 80, 80, 0);
    robot_.PumpAll();
    DestroyWindow(window);
    EXPECT_THAT(GetTopLevelWindows(), IsEmpty()) << fatal;
    EXPECT_EQ(GetFocus(), nullptr) << fatal;
    EXPECT_EQ(GetActiveWindow(), nullptr) << fatal;
  }
}

TEST_F(LifeTest, AllGoesWithTheDisplayAndNothingOfItComesBack) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  SetTimer(window, 1, 10);
  SetCapture(window);
  robot_.KeyDown(VK_SHIFT);
  PostQuitMessage(3);
  Watch({WM_DESTROY});
  display::SetCurrent(std::make_unique<display::OffscreenDisplay>(96));
  EXPECT_THAT(TakeNotes(), ElementsAre("DESTROY"));
  const HWND next = ShowWindowAt({0, 0, 100, 100});
  EXPECT_NE(next, window);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_GE(GetKeyState(VK_SHIFT), 0);
  robot_.AdvanceTime(20);
  MSG message{};
  EXPECT_FALSE(PeekMessageW(&message, PM_REMOVE));
}

TEST_F(LifeTest, ExceptionInDestroyIsThrownAfterAllIsGone) {
  const HWND window = ShowWindowAt({0, 0, 100, 100});
  const HWND child = MakeChild(window, {0, 0, 10, 10});
  handler = [](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_DESTROY) throw std::runtime_error("no");
    return std::nullopt;
  };
  EXPECT_THROW(DestroyWindow(window), std::runtime_error);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(IsWindow(child));
}

TEST_F(LifeTest, ExtraBytesAreZeroAndStay) {
  const HWND window = MakeWindow(kBare, {0, 0, 10, 10});
  auto* value = static_cast<std::int64_t*>(GetWindowExtra(window));
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(std::exchange(*value, 7), 0);
  EXPECT_EQ(*static_cast<std::int64_t*>(GetWindowExtra(window)), 7);
}

TEST_F(LifeTest, ChildrenStandInTheOrderOfTheirCreation) {
  const HWND parent = ShowWindowAt({0, 0, 100, 100});
  const HWND first = MakeChild(parent, {0, 0, 10, 10}, WS_VISIBLE, 5);
  const HWND second = MakeChild(parent, {0, 0, 10, 10}, WS_VISIBLE, 6);
  EXPECT_EQ(GetWindow(parent, GW_CHILD), first);
  EXPECT_EQ(GetWindow(first, GW_HWNDNEXT), second);
  EXPECT_EQ(GetWindow(first, GW_HWNDPREV), nullptr);
  EXPECT_EQ(GetDlgItem(parent, 6), second);
  SetWindowPos(second, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  EXPECT_EQ(GetWindow(parent, GW_CHILD), second);
}

TEST_F(LifeTest, SetParentMovesTheWindow) {
  const HWND one = ShowWindowAt({0, 0, 100, 100});
  const HWND two = ShowWindowAt({200, 0, 300, 100});
  const HWND child = MakeChild(one, {10, 10, 20, 20});
  EXPECT_EQ(SetParent(child, two), one);
  EXPECT_EQ(GetParent(child), two);
  EXPECT_EQ(PlaceOf(child), CRect(210, 10, 220, 20));
  EXPECT_TRUE(IsWindowVisible(child));
  EXPECT_EQ(SetParent(two, child), nullptr);
}
