#include "data/TestData.h"
#include "screen/ScreenTest.h"

namespace screen {
namespace {

using testing::HasSubstr;

constexpr SIZE kSmall{320, 240};
constexpr SIZE kLarge{520, 340};
constexpr int kCaretPixels = 25;  // at most

RECT Inside(const RECT& place) {
  return {place.left + 3, place.top + 3, place.right - 3, place.bottom - 3};
}

// Where check boxes and radio buttons have their mark.
RECT MarkOf(const RECT& place) {
  return {place.left, place.top, place.left + 16, place.bottom};
}

class PreviewWindowTest : public ScreenTest {
 protected:
  void OpenGuest(SIZE client = kSmall) {
    Open(testdata::InProject("tests/screen/Guest.ui"), "Guest", client);
  }

  // The guest form in this size with the focus on its check box, where no caret blinks.
  void OpenAtCheckBox(SIZE client) {
    OpenGuest(client);
    person_.Key(XKB_KEY_Tab);
    person_.Key(XKB_KEY_Tab);
    ASSERT_TRUE(Eventually([this] { return HasAccent("breakfast"); }));
  }

  bool HasText(const std::string& edit) { return DarkPixels(Inside(At(edit))) > kCaretPixels; }
  // A focused button's mark has at least its outline in the accent; a checked one is filled.
  bool HasAccent(const std::string& button) { return AccentPixels(MarkOf(At(button))) > 20; }
  bool IsMarked(const std::string& button) { return AccentPixels(MarkOf(At(button))) > 80; }

  RECT LastButton() const {
    const RECT box = At("buttons");
    return {box.right - 75, box.top, box.right, box.bottom};
  }

  void ExpectGoodEnd() {
    EXPECT_TRUE(person_.WaitForClose(window_));
    const Ending ending = program_->WaitForEnd();
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, "");
  }
};

TEST_F(PreviewWindowTest, TheKeyboardGoesThroughTheForm) {
  OpenGuest();
  const auto isIn = [this](const char* edit, const char* other) {
    return Eventually([=, this] { return HasFocusFrame(edit) && !HasFocusFrame(other); });
  };
  EXPECT_TRUE(isIn("name", "town"));
  EXPECT_FALSE(HasText("name"));
  person_.TypeText(U"Mary Smith");
  EXPECT_TRUE(Eventually([this] { return HasText("name"); }));
  for (int i = 0; i < 10; ++i) person_.Key(XKB_KEY_BackSpace);
  EXPECT_TRUE(Eventually([this] { return !HasText("name"); }));
  person_.Key(XKB_KEY_Tab);
  EXPECT_TRUE(isIn("town", "name"));
  person_.Key(XKB_KEY_Shift_L, XKB_KEY_Tab);
  EXPECT_TRUE(isIn("name", "town"));
  person_.Key(XKB_KEY_Alt_L, XKB_KEY_t);
  EXPECT_TRUE(isIn("town", "name"));
  person_.TypeText(U"Memmingen");
  EXPECT_TRUE(Eventually([this] { return HasText("town"); }));
  EXPECT_FALSE(HasText("name"));
  ClickAt(MiddleOf(At("name")));
  EXPECT_TRUE(isIn("name", "town"));
  person_.Key(XKB_KEY_Tab);
  person_.Key(XKB_KEY_Tab);
  ASSERT_TRUE(Eventually([this] { return HasAccent("breakfast"); }));
  EXPECT_FALSE(IsMarked("breakfast"));
  for (const bool marked : {true, false}) {
    person_.Key(XKB_KEY_space);
    EXPECT_TRUE(Eventually([=, this] { return IsMarked("breakfast") == marked; }));
  }
}

TEST_F(PreviewWindowTest, RadioButtonsAreChosenByMouseAndMnemonicAndArrow) {
  OpenGuest();
  const auto onlySingle = [this] { return IsMarked("single") && !IsMarked("twin"); };
  const auto onlyTwin = [this] { return IsMarked("twin") && !IsMarked("single"); };
  EXPECT_TRUE(Eventually(onlySingle));
  ClickAt(MiddleOf(MarkOf(At("twin"))));
  EXPECT_TRUE(Eventually(onlyTwin));
  person_.Key(XKB_KEY_Alt_L, XKB_KEY_s);
  EXPECT_TRUE(Eventually(onlySingle));
  person_.Key(XKB_KEY_Down);
  EXPECT_TRUE(Eventually(onlyTwin));
}

TEST_F(PreviewWindowTest, ResizedWindowLooksAsIfOpenedInThatSize) {
  OpenAtCheckBox(kLarge);
  const Picture large = LookAtWindow();
  program_.reset();
  ASSERT_TRUE(person_.WaitForClose(window_));
  OpenAtCheckBox(kSmall);
  const Picture small = LookAtWindow();
  const long buttons = DarkPixels(At("buttons"));
  ResizeClient(kLarge);
  EXPECT_TRUE(Eventually([&] { return LookAtWindow() == large; }));
  EXPECT_EQ(DarkPixels(At("buttons")), buttons);
  ResizeClient(kSmall);
  EXPECT_TRUE(Eventually([&] { return LookAtWindow() == small; }));
}

TEST_F(PreviewWindowTest, ButtonBoxFollowsTheRightBottomCorner) {
  OpenGuest();
  const RECT before = At("buttons");
  ResizeClient(kLarge);
  EXPECT_EQ(At("buttons").bottom, before.bottom + kLarge.cy - kSmall.cy);
  EXPECT_EQ(At("buttons").right, before.right + kLarge.cx - kSmall.cx);
  EXPECT_TRUE(Eventually([this] { return DarkPixels(LastButton()) > kCaretPixels; }));
  ClickAt(MiddleOf(LastButton()));
  ExpectGoodEnd();
}

TEST_F(PreviewWindowTest, ReleaseBesideTheButtonLeavesTheWindow) {
  OpenGuest();
  const RECT place = person_.Place(window_);
  const POINT cancel = MiddleOf(LastButton());
  person_.MovePointer({place.left + cancel.x, place.top + cancel.y});
  person_.ButtonDown();
  person_.MovePointer({place.left + cancel.x, place.bottom + 50});
  person_.ButtonUp();
  ClickAt(MiddleOf(At("name")));
  person_.TypeText(U"MMMM");
  EXPECT_TRUE(Eventually([this] { return HasText("name"); }));
  person_.Key(XKB_KEY_Escape);
  ExpectGoodEnd();
}

TEST_F(PreviewWindowTest, EveryWayOutEndsTheProgram) {
  const std::function<void()> ways[] = {
      [this] { ClickAt(MiddleOf(LastButton())); }, [this] { person_.Key(XKB_KEY_Return); },
      [this] { person_.Key(XKB_KEY_Escape); }, [this] { person_.Close(window_); }};
  for (const auto& leave : ways) {
    OpenGuest();
    leave();
    ExpectGoodEnd();
  }
}

TEST_F(PreviewWindowTest, ADesignedFormTakesTextAndEndsByEscape) {
  Open(testdata::Form("unlock_diary.ui"), "Unlock the diary", {420, 190});
  ClickAt(MiddleOf(At("passphraseEdit")));
  ASSERT_TRUE(Eventually([this] { return HasFocusFrame("passphraseEdit"); }));
  person_.TypeText(U"correct horse");
  EXPECT_TRUE(Eventually([this] { return HasText("passphraseEdit"); }));
  person_.Key(XKB_KEY_Escape);
  ExpectGoodEnd();
}

TEST_F(PreviewWindowTest, LostServerEndsTheProgramWithAnError) {
  OpenGuest();
  person_.Disconnect(window_);
  const Ending ending = program_->WaitForEnd();
  EXPECT_EQ(ending.status, 1);
  EXPECT_THAT(ending.errors, HasSubstr("wexa-preview: "));
  EXPECT_THAT(ending.errors, HasSubstr("is lost\n"));
}

}  // namespace
}  // namespace screen
