#include "data/TestData.h"
#include "screen/ScreenTest.h"
#include "support/x11/DragSource.h"
#include "support/x11/SettingsManager.h"

namespace screen {
namespace {

constexpr SIZE kClient{320, 240};
const std::string kForm = testdata::InProject("tests/screen/Guest.ui");
const std::string kAsk = testdata::InProject("tests/screen/Ask.ui");

class HostWindowTest : public ScreenTest {
 protected:
  // The dialog's background, beside its widgets.
  std::uint32_t Background() {
    const RECT corner = At("nameLabel");
    return Look({corner.left - 3, corner.top, corner.left - 2, corner.top + 1}).at(0);
  }

  void ExpectEnd(const std::string& errors) {
    person_.Key(XKB_KEY_Escape);
    EXPECT_TRUE(person_.WaitForClose(window_));
    const Ending ending = program_->WaitForEnd();
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, errors);
  }
};

TEST_F(HostWindowTest, ToolTipStandsBelowThePointerUntilItLeaves) {
  Open(kForm, "Guest", kClient);
  const POINT pointer = MiddleOf(OnScreen("breakfast"));
  person_.MovePointer(pointer);
  ASSERT_TRUE(Eventually([this] { return Tips().size() == 1; }));
  const xcb_window_t tip = Tips().front();
  EXPECT_EQ(person_.ShownWindows().front(), tip);
  EXPECT_FALSE(person_.IsManaged(tip));
  EXPECT_EQ(person_.Number(tip, "WM_TRANSIENT_FOR"), window_);
  EXPECT_EQ(person_.FocusedWindow(), window_);
  const RECT place = person_.Place(tip);
  EXPECT_EQ(place.left, pointer.x);
  EXPECT_EQ(place.top, pointer.y + 20);
  EXPECT_GT(place.right - place.left, 60);
  EXPECT_LT(place.bottom - place.top, 60);
  EXPECT_TRUE(Eventually([&] { return DarkPixelsOf(tip) > 100; }));
  person_.MovePointer({5, 5});
  EXPECT_TRUE(person_.WaitForClose(tip));
  ExpectEnd("");
}

TEST_F(HostWindowTest, BalloonPointsAtItsWidgetUntilTheNextKey) {
  OpenInHost(kForm, "Guest", kClient);
  ClickAt(MiddleOf(At("twin")));
  ASSERT_TRUE(Eventually([this] { return Tips().size() == 2; }));
  const RECT target = OnScreen("name");
  const RECT arrow = person_.Place(Tips()[0]);
  const RECT balloon = person_.Place(Tips()[1]);
  EXPECT_EQ(MiddleOf(arrow).x, MiddleOf(target).x);
  EXPECT_EQ(arrow.top, target.bottom);
  EXPECT_EQ(balloon.top, target.bottom + 8);
  EXPECT_LT(balloon.left, arrow.left);
  EXPECT_GT(balloon.right, arrow.right);
  EXPECT_EQ(person_.FocusedWindow(), window_);
  person_.Key(XKB_KEY_Shift_L);
  EXPECT_TRUE(Eventually([this] { return Tips().empty(); }));
  ExpectEnd("");
}

TEST_F(HostWindowTest, FilesGoToTheWidgetThatTakesThem) {
  OpenInHost(kForm, "Guest", kClient);
  support::XTestDriver program;
  support::DragSource source(program, window_);
  std::optional<support::DragSource::Words> status;
  const auto isAnswered = [&] { return (status = source.Take("XdndStatus")).has_value(); };
  source.Enter({"text/uri-list"});
  source.Move(MiddleOf(OnScreen("town")));
  ASSERT_TRUE(Eventually(isAnswered));
  EXPECT_EQ(status->at(1) & 1, 0u);
  source.Move(MiddleOf(OnScreen("name")));
  ASSERT_TRUE(Eventually(isAnswered));
  EXPECT_EQ(status->at(1) & 1, 1u);
  source.Drop();
  ASSERT_TRUE(Eventually([&] { return source.Give("file:///a%20b\r\nfile:///c\r\n"); }));
  ASSERT_TRUE(Eventually([&] { return source.Take("XdndFinished").has_value(); }));
  ExpectEnd("/a b\n/c\n");
}

TEST_F(HostWindowTest, AModalDialogTakesTextUntilItsButtonIsClicked) {
  OpenInHost(kAsk, "Ask", kClient, "ask");
  ClickAt(MiddleOf(At("name")));
  person_.TypeText(U"Ada");
  ClickAt(MiddleOf(At("ok")));
  EXPECT_TRUE(person_.WaitForClose(window_));
  EXPECT_EQ(program_->WaitForEnd().errors, "1 Ada\n");
}

TEST_F(HostWindowTest, AModalDialogThatVanishesInItsFirstPaintReturns) {
  EXPECT_EQ(Program({WEXA_SCREEN_HOST, kAsk, "vanish"}).WaitForEnd().errors, "-1 \n");
}

TEST_F(HostWindowTest, HighContrastComesAndGoesWithTheTheme) {
  Open(kForm, "Guest", kClient);
  const std::uint32_t light = Background();
  EXPECT_NE(light, 0u);
  support::SettingsManager manager(person_, support::DesktopSettings("HighContrast"));
  EXPECT_TRUE(Eventually([this] { return Background() == 0u; }));
  manager.Set(support::DesktopSettings("Plain"));
  EXPECT_TRUE(Eventually([&] { return Background() == light; }));
  manager.Set(support::DesktopSettings("HighContrast"));
  ASSERT_TRUE(Eventually([this] { return Background() == 0u; }));
  program_.reset();
  ASSERT_TRUE(person_.WaitForClose(window_));
  Open(kForm, "Guest", kClient);
  EXPECT_TRUE(Eventually([this] { return Background() == 0u; }));
  ExpectEnd("");
}

}  // namespace
}  // namespace screen
