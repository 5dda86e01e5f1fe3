// Moving, sizing, showing, enabling; coordinates, mirrored ones too.

#include <gmock/gmock.h>

#include "window/WindowTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class PlaceTest : public WindowTest {
 protected:
  static CPoint Mapped(HWND from, HWND to, CPoint p) {
    MapWindowPoints(from, to, &p, 1);
    return p;
  }
  static CRect MappedRect(HWND from, HWND to, CRect rect) {
    POINT corners[] = {{rect.left, rect.top}, {rect.right, rect.bottom}};
    MapWindowPoints(from, to, corners, 2);
    return {corners[0], corners[1]};
  }
};

TEST_F(PlaceTest, MoveTellsWhatChangedAndOnlyThat) {
  const HWND window = ShowWindowAt({10, 10, 110, 110});
  Watch({WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_SIZE, WM_MOVE});
  MoveWindow(window, 20, 10, 100, 100, TRUE);
  EXPECT_THAT(TakeNotes(), ElementsAre("POSCHANGING", "POSCHANGED", "MOVE"));
  MoveWindow(window, 20, 10, 120, 100, TRUE);
  EXPECT_THAT(TakeNotes(), ElementsAre("POSCHANGING", "POSCHANGED", "SIZE"));
  MoveWindow(window, 20, 10, 120, 100, TRUE);
  EXPECT_THAT(TakeNotes(), ElementsAre("POSCHANGING"));
}

// A child of a class that has no use for the steps, with a procedure in front that notes them.
TEST_F(PlaceTest, QuietChildrenHearOfTheirSizeAlone) {
  static std::vector<UINT> heard;
  const auto note = [](HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR, DWORD_PTR) {
    heard.push_back(message);
    return DefSubclassProc(window, message, w, l);
  };
  const WNDCLASSW quiet{L"Quiet", DefWindowProcW, 0, nullptr, MoveInterest::SizeOnly};
  RegisterClassW(&quiet);
  const HWND child = CreateWindowExW(0, L"Quiet", L"", WS_CHILD | WS_VISIBLE | WS_BORDER, 0, 0, 9,
                                     9, ShowWindowAt({10, 10, 110, 110}), nullptr, nullptr);
  SetWindowSubclass(child, note, 1, 0, MoveInterest::SizeOnly);
  const auto move = [&](CRect place) {
    heard.clear();
    MoveWindow(child, place.left, place.top, place.Width(), place.Height(), FALSE);
    return heard;
  };
  EXPECT_THAT(move({1, 0, 10, 9}), IsEmpty());
  EXPECT_THAT(move({1, 0, 30, 20}), ElementsAre(WM_SIZE));
  CRect client;
  GetClientRect(child, &client);
  EXPECT_EQ(client, CRect(0, 0, 27, 18));
  ShowWindow(child, SW_HIDE);
  EXPECT_THAT(heard, testing::Contains(WM_WINDOWPOSCHANGED)) << "hiding is always told";
  SetWindowSubclass(child, note, 1, 0);
  EXPECT_THAT(move({2, 0, 31, 20}),
              ElementsAre(WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_MOVE));
}

TEST_F(PlaceTest, HandlerMayChangeWhatIsAskedFor) {
  const HWND window = ShowWindowAt({10, 10, 110, 110});
  handler = [](HWND, UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
    if (message == WM_WINDOWPOSCHANGING) reinterpret_cast<WINDOWPOS*>(lParam)->cx = 50;
    return std::nullopt;
  };
  MoveWindow(window, 0, 0, 200, 200, TRUE);
  EXPECT_EQ(PlaceOf(window), CRect(0, 0, 50, 200));
  handler = nullptr;
  MoveWindow(window, 10, 10, -5, -5, TRUE);
  EXPECT_EQ(PlaceOf(window), CRect(10, 10, 10, 10)) << "negative sizes are empty";
  robot_.PumpAll();
}

TEST_F(PlaceTest, FrameAndClientAreaAgreeWithTheMetrics) {
  const HWND window = ShowWindowAt({0, 0, 300, 200}, kDialog | WS_THICKFRAME);
  CRect client, frame(0, 0, 100, 100);
  GetClientRect(window, &client);
  AdjustWindowRectEx(&frame, kDialog | WS_THICKFRAME, FALSE, 0);
  EXPECT_EQ(300 - client.Width(), frame.Width() - 100);
  EXPECT_EQ(200 - client.Height(), frame.Height() - 100);
  EXPECT_EQ(frame.Height() - 100,
            GetSystemMetrics(SM_CYCAPTION) + 2 * GetSystemMetrics(SM_CYSIZEFRAME));
}

TEST_F(PlaceTest, ShowAndHideSendTheirMessagesOnce) {
  const HWND parent = ShowWindowAt({0, 0, 100, 100});
  const HWND child = MakeChild(parent, {0, 0, 10, 10}, 0);
  Watch({WM_SHOWWINDOW, WM_WINDOWPOSCHANGED});
  EXPECT_FALSE(ShowWindow(child, SW_SHOW));
  EXPECT_TRUE(ShowWindow(child, SW_SHOW));
  EXPECT_THAT(TakeNotes(), ElementsAre("SHOWWINDOW", "POSCHANGED"));
  EXPECT_TRUE(ShowWindow(child, SW_HIDE));
  EXPECT_THAT(TakeNotes(), ElementsAre("SHOWWINDOW", "POSCHANGED"));
  EXPECT_FALSE(IsWindowVisible(child));
}

TEST_F(PlaceTest, ChildOfAHiddenWindowIsNotVisible) {
  const HWND parent = MakeWindow(kBare, {0, 0, 100, 100});
  const HWND child = MakeChild(parent, {0, 0, 10, 10});
  EXPECT_FALSE(IsWindowVisible(child));
  ShowWindow(parent, SW_SHOW);
  EXPECT_TRUE(IsWindowVisible(child));
}

TEST_F(PlaceTest, DisablingHandsTheFocusOnAndTakesTheCapture) {
  const HWND parent = ShowWindowAt({0, 0, 100, 100});
  const HWND child = MakeChild(parent, {0, 0, 10, 10});
  SetFocus(child);
  SetCapture(child);
  Watch({WM_ENABLE, WM_CANCELMODE, WM_KILLFOCUS});
  EXPECT_FALSE(EnableWindow(child, FALSE));
  EXPECT_THAT(TakeNotes(), ElementsAre("CANCELMODE", "KILLFOCUS", "ENABLE"));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(GetFocus(), parent);
  EXPECT_TRUE(EnableWindow(child, FALSE));
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(PlaceTest, PointsAndRectanglesMapBetweenWindows) {
  const HWND one = ShowWindowAt({100, 50, 300, 250});
  const HWND child = MakeChild(one, {10, 20, 110, 120});
  EXPECT_EQ(MappedRect(child, nullptr, {1, 2, 3, 4}), CRect(111, 72, 113, 74));
  EXPECT_EQ(MappedRect(nullptr, child, {111, 72, 113, 74}), CRect(1, 2, 3, 4));
  EXPECT_EQ(Mapped(child, one, {1, 2}).x, 11);
}

TEST_F(PlaceTest, RightToLeftWindowsMirrorWhatIsInside) {
  const HWND window = MakeWindow(kBare, {100, 0, 300, 100}, nullptr, WS_EX_LAYOUTRTL);
  const HWND child = MakeChild(window, {10, 0, 60, 20});
  EXPECT_EQ(PlaceOf(child), CRect(240, 0, 290, 20));
  EXPECT_TRUE(GetWindowLongPtrW(child, GWL_EXSTYLE) & WS_EX_LAYOUTRTL);
  EXPECT_EQ(MappedRect(window, nullptr, {10, 0, 60, 20}), CRect(240, 0, 290, 20));
  EXPECT_EQ(MappedRect(nullptr, window, {240, 0, 290, 20}), CRect(10, 0, 60, 20));
  EXPECT_EQ(MappedRect(child, window, {0, 0, 50, 20}), CRect(10, 0, 60, 20));
  EXPECT_EQ(Mapped(nullptr, window, {299, 5}).x, 0);
  EXPECT_EQ(Mapped(window, nullptr, {0, 5}).x, 299);
}

TEST_F(PlaceTest, MirroredChildrenKeepTheirDistanceFromTheRightAlsoForTheMouse) {
  const HWND window = MakeWindow(kBare, {0, 0, 200, 100}, nullptr, WS_EX_LAYOUTRTL);
  const HWND child = MakeChild(window, {10, 0, 60, 20});
  ShowWindow(window, SW_SHOW);
  std::vector<int> xs;
  handler = [&](HWND w, UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
    if (w == child && message == WM_LBUTTONDOWN) xs.push_back(GET_X_LPARAM(lParam));
    return std::nullopt;
  };
  robot_.Click({189, 5});
  robot_.Click({140, 5});
  EXPECT_THAT(xs, ElementsAre(0, 49));
  MoveWindow(window, 0, 0, 300, 100, TRUE);
  EXPECT_EQ(PlaceOf(child), CRect(240, 0, 290, 20));
}

TEST_F(PlaceTest, CenteredInItsOwner) {
  const HWND owner = ShowWindowAt({100, 100, 500, 400});
  const HWND window = MakeWindow(kBare, {0, 0, 100, 50}, owner);
  CenterWindow(window);
  EXPECT_EQ(PlaceOf(window), CRect(250, 225, 350, 275));
}

TEST_F(PlaceTest, StyleAndTextChangesReachTheDisplay) {
  const HWND window = ShowWindowAt({0, 0, 200, 200}, kDialog);
  SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | WS_THICKFRAME);
  SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_FRAMECHANGED);
  CRect client;
  GetClientRect(window, &client);
  EXPECT_EQ(client.Width(), 200 - 2 * GetSystemMetrics(SM_CXSIZEFRAME));
  EXPECT_TRUE(Robot::Screen().IsResizable(SurfaceOf(window)));
  SetWindowTextW(window, L"New title");
  EXPECT_EQ(GetWindowTextString(window), L"New title");
  EXPECT_EQ(Robot::Screen().TitleOf(SurfaceOf(window)), L"New title");
}

TEST_F(PlaceTest, DesktopMovesAndSizesWindows) {
  const HWND window = ShowWindowAt({0, 0, 200, 200}, kDialog | WS_THICKFRAME);
  Watch({WM_SIZE, WM_MOVE, WM_PAINT});
  robot_.Screen().PlaceByDesktop(SurfaceOf(window), CRect(30, 40, 330, 340));
  robot_.PumpAll();
  EXPECT_EQ(PlaceOf(window), CRect(30, 40, 330, 340));
  EXPECT_THAT(TakeNotes(), ElementsAre("MOVE", "SIZE", "PAINT"));
}

TEST_F(PlaceTest, TheDesktopHasAPlaceThatNobodyChanges) {
  const HWND desktop = GetDesktopWindow();
  EXPECT_EQ(PlaceOf(desktop), CRect(0, 0, 1920, 1080));
  MoveWindow(desktop, 1, 1, 5, 5, TRUE);
  EXPECT_FALSE(DestroyWindow(desktop));
  EXPECT_EQ(SetFocus(desktop), nullptr);
  EXPECT_EQ(PlaceOf(desktop), CRect(0, 0, 1920, 1080));
}
