#include <algorithm>

#include <unistd.h>

#include "platform/WindowStyles.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;

class X11SurfaceTest : public X11Test {};

TEST_F(X11SurfaceTest, DialogAppearsWhereAskedWithTitleAndFocus) {
  const xcb_window_t window = OpenDialog();
  ASSERT_NE(window, 0u);
  const RECT place = person_.Place(window);
  EXPECT_EQ(place.left, kPlace.left);
  EXPECT_EQ(place.bottom, kPlace.bottom);
  EXPECT_EQ(person_.FocusedWindow(), window);
}

TEST_F(X11SurfaceTest, WindowsNameTheirProgram) {
  const xcb_window_t window = OpenDialog();
  const xcb_window_t leader = person_.Number(window, "WM_CLIENT_LEADER");
  char machine[256] = {};
  ASSERT_EQ(gethostname(machine, sizeof machine - 1), 0);
  for (const xcb_window_t each : {window, leader}) {
    EXPECT_EQ(person_.Property(each, "WM_CLASS"), std::string("test_x11\0test_x11\0", 18));
    EXPECT_EQ(person_.Property(each, "WM_CLIENT_MACHINE"), machine);
    EXPECT_EQ(person_.Number(each, "_NET_WM_PID"), static_cast<std::uint32_t>(getpid()));
    EXPECT_EQ(person_.Number(each, "WM_CLIENT_LEADER"), leader);
  }
  EXPECT_NE(leader, window);
}

TEST_F(X11SurfaceTest, OwnedDialogBelongsToItsOwner) {
  const xcb_window_t owner = OpenDialog();
  EXPECT_EQ(person_.Number(owner, "_NET_WM_WINDOW_TYPE"),
            person_.Atom("_NET_WM_WINDOW_TYPE_NORMAL"));
  display_->CreateSurface(2, SurfaceKind::Dialog, kDialog, kPlace);
  display_->SetTitle(2, L"owned");
  display_->SetModal(2, true);
  display_->ShowSurface(2, true);
  All();
  const xcb_window_t window = person_.FindWindow("owned");
  EXPECT_EQ(person_.Number(window, "WM_TRANSIENT_FOR"), owner);
  EXPECT_EQ(person_.Number(window, "_NET_WM_WINDOW_TYPE"),
            person_.Atom("_NET_WM_WINDOW_TYPE_DIALOG"));
  EXPECT_EQ(person_.Number(window, "_NET_WM_STATE"), person_.Atom("_NET_WM_STATE_MODAL"));
  EXPECT_TRUE(person_.IsManaged(window));
}

TEST_F(X11SurfaceTest, TipsAndPopUpsLeaveTheFocusAndTheWindowManagerAlone) {
  const xcb_window_t owner = OpenDialog();
  const std::pair<SurfaceKind, const char*> kinds[] = {
      {SurfaceKind::ToolTip, "_NET_WM_WINDOW_TYPE_TOOLTIP"},
      {SurfaceKind::PopUp, "_NET_WM_WINDOW_TYPE_POPUP_MENU"}};
  SurfaceId id = 2;
  for (const auto& [kind, type] : kinds) {
    display_->CreateSurface(id, kind, kDialog, kPlace);
    display_->SetTitle(id, L"small");
    display_->ShowSurface(id, true);
    display_->FocusSurface(id);
    All();
    const xcb_window_t window = person_.FindWindow("small");
    EXPECT_EQ(person_.Number(window, "_NET_WM_WINDOW_TYPE"), person_.Atom(type));
    EXPECT_EQ(person_.Number(window, "WM_TRANSIENT_FOR"), owner);
    EXPECT_FALSE(person_.IsManaged(window));
    EXPECT_EQ(person_.FocusedWindow(), owner);
    display_->DestroySurface(id++);
  }
}

TEST_F(X11SurfaceTest, TitleKeepsEveryScript) {
  const xcb_window_t window = OpenDialog();
  display_->SetTitle(kDialog, L"\u00DC \u0416 \U0001F600");
  All();
  EXPECT_EQ(person_.Property(window, "_NET_WM_NAME"), "\u00DC \u0416 \U0001F600");
  EXPECT_EQ(person_.Property(window, "WM_NAME"), "\xDC ? ?");
}

TEST_F(X11SurfaceTest, WhatOtherProgramsDoToTheWindowIsReported) {
  const xcb_window_t window = OpenDialog();
  person_.Resize(window, {450, 333});
  const auto resized = Next(Kind::Resized);
  ASSERT_TRUE(resized);
  EXPECT_EQ(resized->size.cx, 450);
  EXPECT_EQ(resized->size.cy, 333);
  EXPECT_EQ(display_->LockPixels(kDialog).width, 450);
  EXPECT_EQ(display_->LockPixels(kDialog).height, 333);
  person_.Move(window, {20, 30});
  const auto records = All();
  ASSERT_EQ(std::ranges::count(records, Kind::Moved, &Input::kind), 1);
  EXPECT_EQ(std::ranges::count(records, Kind::Resized, &Input::kind), 0);
  const auto moved = std::ranges::find(records, Kind::Moved, &Input::kind);
  EXPECT_EQ(moved->position.x, 20);
  EXPECT_EQ(moved->position.y, 30);
  person_.Close(window);
  const auto close = Next(Kind::CloseRequested);
  ASSERT_TRUE(close);
  EXPECT_EQ(close->surface, kDialog);
}

TEST_F(X11SurfaceTest, OwnMovesAreNotReported) {
  const xcb_window_t window = OpenDialog();
  for (LONG step = 1; step <= 5; ++step) {
    display_->MoveSurface(kDialog, {step, step, 200 + step * 10, 200 + step * 10});
    display_->Wait(display_->Now());
  }
  for (const Input& input : All()) {
    EXPECT_NE(input.kind, Kind::Moved);
    EXPECT_NE(input.kind, Kind::Resized);
  }
  EXPECT_EQ(person_.Place(window).right, 250);
  EXPECT_EQ(display_->LockPixels(kDialog).width, 245);
}

TEST_F(X11SurfaceTest, FocusFollowsFocusSurface) {
  const xcb_window_t first = OpenDialog();
  const xcb_window_t second = OpenDialog(2, {500, 80, 700, 280});
  EXPECT_EQ(person_.FocusedWindow(), second);
  display_->FocusSurface(kDialog);
  const auto out = Next(Kind::FocusOut);
  const auto in = Next(Kind::FocusIn);
  ASSERT_TRUE(out && in);
  EXPECT_EQ(out->surface, 2u);
  EXPECT_EQ(in->surface, kDialog);
  EXPECT_EQ(person_.FocusedWindow(), first);
}

TEST_F(X11SurfaceTest, HiddenDialogLeavesTheScreen) {
  const xcb_window_t window = OpenDialog();
  display_->ShowSurface(kDialog, false);
  display_->Wait(display_->Now());
  EXPECT_TRUE(person_.WaitForClose(window));
}

TEST_F(X11SurfaceTest, RaisedSurfaceCoversTheOther) {
  OpenDialog();
  Paint(kDialog, 0xFF112233);
  OpenDialog(2, kPlace);
  Paint(2, 0xFF445566);
  All();
  EXPECT_EQ(person_.PixelAt({200, 200}), 0x445566u);
  display_->RaiseSurface(kDialog);
  All();
  EXPECT_EQ(person_.PixelAt({200, 200}), 0x112233u);
}

TEST_F(X11SurfaceTest, UnknownSurfacesAreNoOnes) {
  display_->DestroySurface(77);
  display_->MoveSurface(77, kPlace);
  display_->ShowSurface(77, true);
  display_->SetTitle(77, L"none");
  display_->SetModal(77, true);
  display_->SetCursor(77, CursorShape::Hand);
  display_->GrabPointer(77);
  display_->Present(77, &kPlace, 1);
  EXPECT_EQ(display_->LockPixels(77).data, nullptr);
}

TEST_F(X11SurfaceTest, WithoutWindowManagerMovesAndTheWholeScreenAreTheCallers) {
  OpenDialog();
  EXPECT_FALSE(display_->BeginMoveSize(kDialog, HTCAPTION));
  const RECT area = display_->WorkArea();
  EXPECT_EQ(area.right - area.left, 1280);
  EXPECT_EQ(area.bottom - area.top, 1024);
}

}  // namespace
}  // namespace display
