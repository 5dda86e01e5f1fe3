#include <gmock/gmock.h>

#include "window/WindowTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class PointerTest : public WindowTest {
 protected:
  HWND window_ = ShowWindowAt({100, 100, 300, 300});
};

TEST_F(PointerTest, InputGoesToTheForemostChild) {
  const HWND above = MakeChild(window_, {0, 0, 50, 50});
  const HWND below = MakeChild(window_, {0, 0, 80, 80});
  Name(above, "above");
  Name(below, "below");
  Watch({WM_LBUTTONDOWN});
  robot_.Click({110, 110});
  robot_.Click({170, 110});
  robot_.Click({190, 110});
  EXPECT_THAT(TakeNotes(), ElementsAre("LDOWN@above", "LDOWN@below", "LDOWN"));
  EXPECT_EQ(WindowFromPoint({110, 110}), above);
}

TEST_F(PointerTest, DisabledAndTransparentChildrenArePassedOver) {
  MakeChild(window_, {0, 0, 50, 50}, WS_VISIBLE | WS_DISABLED);
  const HWND glass = MakeChild(window_, {50, 0, 100, 50});
  handler = [&](HWND w, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (w == glass && message == WM_NCHITTEST) return HTTRANSPARENT;
    return std::nullopt;
  };
  Name(window_, "w");
  Watch({WM_LBUTTONDOWN});
  robot_.Click({110, 110});
  robot_.Click({160, 110});
  EXPECT_THAT(TakeNotes(), ElementsAre("LDOWN@w", "LDOWN@w"));
}

TEST_F(PointerTest, PositionAndKeysOfAPress) {
  const HWND child = MakeChild(window_, {20, 30, 100, 100});
  WPARAM keys = 0;
  LPARAM place = 0;
  handler = [&](HWND w, UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
    if (w == child && message == WM_LBUTTONDOWN) {
      keys = wParam;
      place = lParam;
    }
    return std::nullopt;
  };
  robot_.KeyDown(VK_CONTROL);
  robot_.Click({125, 137});
  EXPECT_EQ(keys, MK_LBUTTON | MK_CONTROL);
  EXPECT_EQ(GET_X_LPARAM(place), 5);
  EXPECT_EQ(GET_Y_LPARAM(place), 7);
}

TEST_F(PointerTest, TwoQuickClicksNearEachOtherAreADoubleClickThreeAreNotTwo) {
  const auto clickAt = [this](POINT place) {
    robot_.Press(place);
    robot_.Release();
  };
  Watch({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK});
  for (int i = 0; i < 3; ++i) clickAt({150, 150});
  EXPECT_THAT(TakeNotes(), ElementsAre("LDOWN", "LUP", "LDBL", "LUP", "LDOWN", "LUP"));
  robot_.Screen().AdvanceTime(GetDoubleClickTime() + 1);
  clickAt({150, 150});
  clickAt({160, 150});
  EXPECT_THAT(TakeNotes(), ElementsAre("LDOWN", "LUP", "LDOWN", "LUP"));
}

TEST_F(PointerTest, LeaveAndHoverComeOnceWhenAskedFor) {
  const HWND child = MakeChild(window_, {0, 0, 50, 50});
  const auto track = [&](DWORD what) {
    TRACKMOUSEEVENT request{sizeof(request), what, child, 100};
    TrackMouseEvent(&request);
    robot_.PumpAll();
  };
  robot_.MoveTo({110, 110});
  Watch({WM_MOUSELEAVE, WM_MOUSEHOVER});
  track(TME_LEAVE | TME_HOVER);
  robot_.AdvanceTime(60);
  robot_.MoveTo({130, 110});
  robot_.AdvanceTime(99);
  EXPECT_THAT(TakeNotes(), IsEmpty()) << "a move starts it anew";
  robot_.AdvanceTime(200);
  EXPECT_THAT(TakeNotes(), ElementsAre("HOVER"));
  for (const POINT place : {POINT{180, 180}, POINT{110, 110}, POINT{180, 180}})
    robot_.MoveTo(place);
  EXPECT_THAT(TakeNotes(), ElementsAre("LEAVE"));
  track(TME_LEAVE);
  EXPECT_THAT(TakeNotes(), ElementsAre("LEAVE")) << "the pointer is not there";
  robot_.MoveTo({110, 110});
  track(TME_LEAVE);
  robot_.MoveTo({10, 10});
  EXPECT_THAT(TakeNotes(), ElementsAre("LEAVE")) << "from the screen's surface";
}

TEST_F(PointerTest, WheelGoesToTheFocusAndUpTheParents) {
  const HWND child = MakeChild(window_, {0, 0, 50, 50});
  Name(child, "c");
  Name(window_, "w");
  SetFocus(child);
  int delta = 0;
  handler = [&](HWND, UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_MOUSEWHEEL) delta = static_cast<std::int16_t>(HIWORD(wParam));
    return std::nullopt;
  };
  Watch({WM_MOUSEWHEEL});
  robot_.MoveTo({250, 250});
  robot_.Wheel(-2);
  EXPECT_THAT(TakeNotes(), ElementsAre("WHEEL@c", "WHEEL@w"));
  EXPECT_EQ(delta, -240);
}

TEST_F(PointerTest, RightClickAsksForTheContextMenuOnTheScreen) {
  const HWND child = MakeChild(window_, {0, 0, 50, 50});
  std::vector<LPARAM> places;
  handler = [&](HWND w, UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
    if (w == window_ && message == WM_CONTEXTMENU) places.push_back(lParam);
    return std::nullopt;
  };
  SetFocus(child);
  robot_.RightClick({120, 125});
  robot_.Key(VK_APPS);
  EXPECT_THAT(places, ElementsAre(MAKELPARAM(120, 125), MAKELPARAM(-1, -1)));
}

TEST_F(PointerTest, CursorFollowsTheClassAndTheParentsWish) {
  const HWND child = MakeChild(window_, {0, 0, 50, 50});
  robot_.MoveTo({110, 110});
  EXPECT_EQ(Robot::Screen().CursorOf(SurfaceOf(window_)), display::CursorShape::Arrow);
  handler = [&](HWND w, UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
    if (message != WM_SETCURSOR || w != window_) return std::nullopt;
    if (reinterpret_cast<HWND>(wParam) != child) return std::nullopt;
    SetCursor(IDC_HAND);
    return TRUE;
  };
  robot_.MoveTo({111, 111});
  EXPECT_EQ(Robot::Screen().CursorOf(SurfaceOf(window_)), display::CursorShape::Hand);
  robot_.MoveTo({180, 180});
  EXPECT_EQ(Robot::Screen().CursorOf(SurfaceOf(window_)), display::CursorShape::Arrow);
}

TEST_F(PointerTest, DroppedFilesReachTheAcceptingParent) {
  const HWND child = MakeChild(window_, {20, 20, 100, 100});
  MakeChild(child, {0, 0, 50, 50});
  std::vector<std::wstring> files;
  POINT point{};
  handler = [&](HWND w, UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
    if (w != child || message != WM_DROPFILES) return std::nullopt;
    const auto drop = reinterpret_cast<HDROP>(wParam);
    DragQueryPoint(drop, &point);
    for (UINT i = 0; i < DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0); ++i) {
      std::wstring name(DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
      DragQueryFileW(drop, i, name.data(), static_cast<UINT>(name.size()));
      files.push_back(name.c_str());
    }
    DragFinish(drop);
    EXPECT_EQ(DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0), 0U);
    return 0;
  };
  robot_.Screen().DropFiles({130, 140}, {L"/a"});
  robot_.PumpAll();
  EXPECT_THAT(files, IsEmpty());
  EXPECT_FALSE(Robot::Screen().TakesFiles());
  DragAcceptFiles(child, TRUE);
  robot_.Screen().DragFiles({130, 140});
  robot_.PumpAll();
  EXPECT_TRUE(Robot::Screen().TakesFiles());
  robot_.Screen().DropFiles({130, 140}, {L"/a", L"/b c"});
  robot_.PumpAll();
  EXPECT_THAT(files, ElementsAre(L"/a", L"/b c"));
  EXPECT_EQ(point.x, 10);
  EXPECT_EQ(point.y, 20);
}

TEST_F(PointerTest, MovesInARowComeAsOne) {
  Watch({WM_MOUSEMOVE, WM_LBUTTONDOWN});
  const auto sweep = [] {
    for (int x = 110; x < 150; ++x) Robot::Screen().MovePointer({x, 110});
  };
  sweep();
  Robot::Screen().PressButton(display::MouseButton::Left);
  sweep();
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("MOVE", "LDOWN", "MOVE"));
}

// -- Frames --------------------------------------------------------------------------------------

class FrameTest : public WindowTest {
 protected:
  static CPoint CloseButton(HWND window) {
    const CRect place = PlaceOf(window);
    for (int x = place.right - 1; x > place.left; --x)
      for (int y = place.top; y < place.top + 40; ++y)
        if (SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(x, y)) == HTCLOSE)
          return {x - 2, y + 2};
    return {};
  }
  HWND window_ = ShowWindowAt({100, 100, 400, 300}, kDialog | WS_THICKFRAME);
};

TEST_F(FrameTest, CloseButtonLightsUpUnderThePointerAndClosesWhenReleasedOnIt) {
  const CPoint close = CloseButton(window_);
  CPoint inside = close;
  ScreenToClient(window_, &inside);
  const auto look = [&] { return robot_.PixelAt(window_, inside.x, inside.y); };
  const auto before = look();
  robot_.MoveTo(close);
  EXPECT_NE(look(), before);
  robot_.MoveTo({200, 200});
  EXPECT_EQ(look(), before);
  robot_.Press(close);
  robot_.MoveTo({200, 200});
  robot_.Release();
  EXPECT_TRUE(IsWindow(window_));
  EXPECT_EQ(GetCapture(), nullptr);
  robot_.Click(close);
  EXPECT_FALSE(IsWindow(window_));
}

TEST_F(FrameTest, DragsMoveByTheCaptionAndSizeByTheBordersWithinLimits) {
  Watch({WM_ENTERSIZEMOVE, WM_MOVING, WM_EXITSIZEMOVE, WM_SIZE});
  robot_.Drag({200, 115}, {250, 135});
  EXPECT_EQ(PlaceOf(window_), CRect(150, 120, 450, 320));
  EXPECT_THAT(TakeNotes(), ElementsAre("ENTERSIZEMOVE", "MOVING", "MOVING", "EXITSIZEMOVE"));
  robot_.Drag({449, 200}, {499, 250});
  EXPECT_EQ(PlaceOf(window_), CRect(150, 120, 500, 320));
  robot_.Drag({150, 121}, {130, 81});
  EXPECT_EQ(PlaceOf(window_), CRect(130, 80, 500, 320));
  EXPECT_EQ(GetCapture(), nullptr);
  handler = [](HWND, UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
    if (message != WM_GETMINMAXINFO) return std::nullopt;
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {250, 150};
    return 0;
  };
  robot_.Drag({130, 200}, {490, 200});
  EXPECT_EQ(PlaceOf(window_), CRect(250, 80, 500, 320));
  MoveWindow(window_, 0, 0, 10, 10, TRUE);
  EXPECT_EQ(PlaceOf(window_), CRect(0, 0, 250, 150));
}

TEST_F(FrameTest, BordersShowSizingCursors) {
  robot_.MoveTo({399, 200});
  EXPECT_EQ(Robot::Screen().CursorOf(SurfaceOf(window_)), display::CursorShape::SizeWe);
  robot_.MoveTo({100, 100});
  EXPECT_EQ(Robot::Screen().CursorOf(SurfaceOf(window_)), display::CursorShape::SizeNwse);
}

TEST_F(FrameTest, MirroredCaptionHasItsCloseButtonOnTheLeft) {
  EXPECT_EQ(CloseButton(ShowWindowAt({500, 100, 700, 300}, WS_POPUP | WS_CAPTION)).x, 0)
      << "without a system menu there is none";
  const HWND mirrored = MakeWindow(kDialog, {500, 100, 700, 300}, nullptr, WS_EX_LAYOUTRTL);
  ShowWindow(mirrored, SW_SHOW);
  const CPoint close = CloseButton(mirrored);
  EXPECT_LT(close.x, 560);
  robot_.Click({close.x, close.y});
  EXPECT_FALSE(IsWindow(mirrored));
}

TEST_F(FrameTest, WindowDestroyedWhileDraggedEndsTheDrag) {
  robot_.Press({200, 115});
  DestroyWindow(window_);
  robot_.MoveTo({250, 135});
  robot_.Release();
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(FrameTest, ActivationRepaintsTheFrameAlone) {
  Watch({WM_PAINT, WM_NCPAINT});
  robot_.Screen().LoseFocus();
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("NCPAINT"));
}

TEST_F(FrameTest, CloseRequestOfTheDesktopCloses) {
  robot_.Screen().RequestClose(SurfaceOf(window_));
  robot_.PumpAll();
  EXPECT_FALSE(IsWindow(window_));
}
