#include "display/offscreen/OffscreenDisplay.h"

#include <gmock/gmock.h>

#include <thread>

#include "platform/VirtualKeys.h"

using display::Input;
using display::OffscreenDisplay;
using display::SurfaceKind;
using Kind = display::Input::Kind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class OffscreenDisplayTest : public testing::Test {
 protected:
  OffscreenDisplayTest() {
    display_.CreateSurface(1, SurfaceKind::Dialog, 0, {0, 0, 100, 100});
    display_.CreateSurface(2, SurfaceKind::Dialog, 1, {50, 0, 150, 100});
    display_.CreateSurface(3, SurfaceKind::PopUp, 1, {0, 0, 20, 20});
  }
  void ShowAll() {
    display_.ShowSurface(1, true);
    display_.ShowSurface(2, true);
    Take();
  }
  std::vector<std::pair<Kind, display::SurfaceId>> Take() {
    std::vector<std::pair<Kind, display::SurfaceId>> kinds;
    while (auto record = display_.Poll()) kinds.emplace_back(record->kind, record->surface);
    return kinds;
  }
  OffscreenDisplay display_;
};

TEST_F(OffscreenDisplayTest, ShownDialogsTakeTheFocusPopUpsDoNot) {
  display_.ShowSurface(1, true);
  display_.ShowSurface(2, true);
  display_.ShowSurface(3, true);
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::FocusIn, 1U), Pair(Kind::FocusOut, 1U),
                                  Pair(Kind::FocusIn, 2U)));
  display_.DestroySurface(2);
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::FocusOut, 2U)));
  EXPECT_EQ(display_.Focused(), 0U);
}

TEST_F(OffscreenDisplayTest, PointerBelongsToTheTopmostSurface) {
  ShowAll();
  display_.MovePointer({60, 10});
  display_.MovePointer({10, 10});
  display_.MovePointer({300, 300});
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::PointerMoved, 2U), Pair(Kind::PointerLeft, 2U),
                                  Pair(Kind::PointerMoved, 1U), Pair(Kind::PointerLeft, 1U)));
  display_.RaiseSurface(1);
  EXPECT_EQ(display_.SurfaceAt({60, 10}), 1U);
}

TEST_F(OffscreenDisplayTest, PressedPointerStaysWithItsSurface) {
  ShowAll();
  display_.MovePointer({10, 10});
  display_.PressButton(display::MouseButton::Left);
  display_.MovePointer({140, 10});
  display_.ReleaseButton(display::MouseButton::Left);
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::PointerMoved, 1U), Pair(Kind::ButtonDown, 1U),
                                  Pair(Kind::PointerMoved, 1U), Pair(Kind::ButtonUp, 1U),
                                  Pair(Kind::PointerLeft, 1U)));
}

TEST_F(OffscreenDisplayTest, GrabbedPointerIsReportedBeyondTheEdges) {
  ShowAll();
  display_.GrabPointer(1);
  display_.MovePointer({900, 900});
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::PointerMoved, 1U)));
  display_.UngrabPointer();
  display_.MovePointer({901, 900});
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::PointerLeft, 1U)));
}

TEST_F(OffscreenDisplayTest, KeysGoToTheFocusAndAreRemembered) {
  display_.PressKey('A', U"a");
  EXPECT_THAT(Take(), IsEmpty());
  ShowAll();
  display_.PressKey(VK_CAPITAL);
  display_.ReleaseKey(VK_CAPITAL);
  EXPECT_TRUE(display_.IsKeyToggled(VK_CAPITAL));
  EXPECT_FALSE(display_.IsKeyDown(VK_CAPITAL));
  EXPECT_THAT(Take(), ElementsAre(Pair(Kind::KeyDown, 2U), Pair(Kind::KeyUp, 2U)));
}

TEST_F(OffscreenDisplayTest, TimeStandsStillUnlessWaitedFor) {
  const auto start = display_.Now();
  EXPECT_FALSE(display_.Wait(std::nullopt));
  EXPECT_EQ(display_.Now(), start);
  EXPECT_TRUE(display_.Wait(start + 50));
  EXPECT_EQ(display_.Now(), start + 50);
  EXPECT_TRUE(display_.Wait(start));
  EXPECT_EQ(display_.Now(), start + 50);
}

TEST_F(OffscreenDisplayTest, WakeEndsOneWaitEvenWhenItComesFirst) {
  std::thread([&] { display_.Wake(); }).join();
  EXPECT_TRUE(display_.Wait(std::nullopt));
  EXPECT_FALSE(display_.Wait(std::nullopt));
}

TEST_F(OffscreenDisplayTest, PixelsFollowTheSize) {
  display_.MoveSurface(1, {0, 0, 30, 10});
  const display::Pixels pixels = display_.LockPixels(1);
  EXPECT_EQ(pixels.width, 30);
  EXPECT_EQ(pixels.height, 10);
  pixels.data[9 * 30 + 29] = 0xFF112233;
  EXPECT_EQ(display_.PixelAt(1, 29, 9), 0xFF112233U);
  EXPECT_EQ(display_.PixelAt(1, 30, 9), 0U);
  EXPECT_EQ(display_.LockPixels(77).data, nullptr);
}
