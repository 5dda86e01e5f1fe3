#include "display/x11/Records.h"

#include "platform/VirtualKeys.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;

class X11PointerTest : public X11Test {
 protected:
  X11PointerTest() { OpenDialog(); }
};

TEST_F(X11PointerTest, MotionsInARowAreOneOnTheScreen) {
  for (const LONG x : {150, 160, 170}) person_.MovePointer({x, 121});
  const auto moves = All(Kind::PointerMoved);
  ASSERT_EQ(moves.size(), 1u);
  EXPECT_EQ(moves[0].surface, kDialog);
  EXPECT_EQ(moves[0].position.x, 170);
  EXPECT_EQ(moves[0].position.y, 121);
  EXPECT_EQ(display_->PointerPosition().x, 170);
}

TEST(X11Records, AMoveWithOtherButtonsOrModifiersIsNotDrawnIntoTheLast) {
  x11::Records records;
  for (const std::uint16_t held : std::initializer_list<std::uint16_t>{0, 1, 1, 256})
    records.Push({{Kind::PointerMoved}, held});
  std::vector<int> taken;
  while (const auto record = records.Pop()) taken.push_back(*record->held);
  EXPECT_EQ(taken, (std::vector{0, 1, 256}));
}

TEST_F(X11PointerTest, PointerElsewhereIsAskedFor) {
  person_.MovePointer({150, 120});
  person_.MovePointer({700, 600});
  EXPECT_EQ(All(Kind::PointerLeft).size(), 1u);
  EXPECT_EQ(display_->PointerPosition().x, 700);
}

TEST_F(X11PointerTest, ClickGoesDownAndUp) {
  person_.ClickAt({150, 120}, 3);
  const auto down = Next(Kind::ButtonDown);
  ASSERT_TRUE(down);
  EXPECT_EQ(down->button, MouseButton::Right);
  EXPECT_EQ(down->position.y, 120);
  EXPECT_TRUE(display_->IsKeyDown(VK_RBUTTON));
  const auto up = Next(Kind::ButtonUp);
  ASSERT_TRUE(up);
  EXPECT_EQ(up->button, MouseButton::Right);
  EXPECT_GE(up->time, down->time);
  EXPECT_FALSE(display_->IsKeyDown(VK_RBUTTON));
}

TEST_F(X11PointerTest, ButtonsHaveTheirNames) {
  person_.MovePointer({150, 120});
  for (const int button : {1, 2, 3, 8, 9}) person_.Click(button);
  std::vector<MouseButton> buttons;
  for (const auto& input : All(Kind::ButtonDown)) buttons.push_back(input.button);
  EXPECT_EQ(buttons, (std::vector{MouseButton::Left, MouseButton::Middle, MouseButton::Right,
                                  MouseButton::Extra1, MouseButton::Extra2}));
}

TEST_F(X11PointerTest, WheelTurnsInNotches) {
  person_.MovePointer({150, 120});
  for (const int button : {4, 5, 6, 7}) person_.Click(button);
  std::vector<std::pair<int, bool>> turns;
  for (const auto& input : All()) {
    EXPECT_NE(input.kind, Kind::ButtonDown);
    if (input.kind == Kind::Wheel) turns.push_back({input.wheelDelta, input.horizontalWheel});
  }
  EXPECT_EQ(turns, (std::vector<std::pair<int, bool>>{
                       {120, false}, {-120, false}, {-120, true}, {120, true}}));
}

TEST_F(X11PointerTest, CaptureReportsPointerBeyondTheEdges) {
  person_.MovePointer({150, 120});
  All();
  display_->GrabPointer(kDialog);
  All();
  person_.MovePointer({700, 600});
  person_.Click();
  const auto records = All();
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(records[0].kind, Kind::PointerMoved);
  EXPECT_EQ(records[0].surface, kDialog);
  EXPECT_EQ(records[1].kind, Kind::ButtonDown);
  EXPECT_EQ(records[1].position.x, 700);
  display_->UngrabPointer();
  EXPECT_TRUE(Next(Kind::PointerLeft));
  person_.MovePointer({710, 600});
  EXPECT_TRUE(All(Kind::PointerMoved).empty());
}

TEST_F(X11PointerTest, DestroyingTheCapturerFreesThePointer) {
  OpenDialog(2, {600, 500, 800, 700});
  display_->GrabPointer(2);
  display_->DestroySurface(2);
  All();
  person_.ClickAt({150, 120});
  const auto down = Next(Kind::ButtonDown);
  ASSERT_TRUE(down);
  EXPECT_EQ(down->surface, kDialog);
}

TEST_F(X11PointerTest, DraggingOverAnotherSurfaceReportsThatOne) {
  OpenDialog(2, {600, 500, 800, 700});
  person_.MovePointer({150, 120});
  person_.ButtonDown();
  person_.MovePointer({650, 600});
  person_.ButtonUp();
  const auto up = Next(Kind::ButtonUp);
  ASSERT_TRUE(up);
  EXPECT_EQ(up->surface, 2u);
}

TEST_F(X11PointerTest, PopUpsTakeThePointerAndNotTheKeyboard) {
  display_->CreateSurface(5, SurfaceKind::PopUp, kDialog, {150, 150, 250, 250});
  display_->ShowSurface(5, true);
  Paint(5, 0xFFFFFFFF);
  EXPECT_TRUE(All(Kind::FocusOut).empty());
  person_.ClickAt({200, 200});
  person_.Key(XKB_KEY_a);
  const auto down = Next(Kind::ButtonDown);
  ASSERT_TRUE(down);
  EXPECT_EQ(down->surface, 5u);
  const auto key = Next(Kind::KeyDown);
  ASSERT_TRUE(key);
  EXPECT_EQ(key->surface, kDialog);
}

TEST_F(X11PointerTest, EveryCursorShapeIsTaken) {
  for (int shape = 0; shape <= static_cast<int>(CursorShape::Hand); ++shape) {
    display_->SetCursor(kDialog, static_cast<CursorShape>(shape));
  }
  display_->SetCursorPicture(kDialog, {std::vector<std::uint32_t>(64, 0x80800000), {8, 8}, {3, 3}});
  person_.MovePointer({150, 120});
  EXPECT_TRUE(Next(Kind::PointerMoved));
}

}  // namespace
}  // namespace display
