#include "Button.h"
#include "PromptsPopup.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"
#include "support/PictureFiles.h"

namespace Wexa {
namespace {

constexpr int kRest = 600;  // longer than a pointer has to rest

std::string TipXml(const std::string& text) {
  return PropertyXml("toolTip", "string", text);
}

// The shown windows that stand above all others.
std::vector<HWND> Tips() {
  std::vector<HWND> tips;
  for (HWND window : GetTopLevelWindows()) {
    const bool isTip = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    if (isTip && IsWindowVisible(window)) tips.push_back(window);
  }
  return tips;
}

CRect PlaceOfTip(std::size_t index) {
  CRect place;
  GetWindowRect(Tips().at(index), &place);
  return place;
}

std::wstring ManyWords() {
  std::wstring words;
  for (int i = 0; i < 60; ++i) words += L"words ";
  return words;
}

class TipTest : public FormTest {
 protected:
  BaseGUIObject& Widget(const wchar_t* name) { return Find<BaseGUIObject>(name); }
  void RestOver(const wchar_t* name) {
    robot_.MoveTo(Widget(name).GetPlatformHandle());
    robot_.AdvanceTime(kRest);
  }
};

// -- Tool tips

TEST_F(TipTest, AToolTipComesWhenThePointerRestsAndGoesWithIt) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does")) +
                  WidgetItem("QPushButton", "b")));
  robot_.MoveTo(Widget(L"a").GetPlatformHandle());
  robot_.AdvanceTime(300);
  EXPECT_TRUE(Tips().empty());
  robot_.AdvanceTime(300);
  ASSERT_EQ(Tips().size(), 1u);
  EXPECT_TRUE(Robot::HasInk(Tips()[0], CRect(4, 4, 40, 20)));
  RestOver(L"b");
  EXPECT_TRUE(Tips().empty());
}

TEST_F(TipTest, AToolTipDoesNotTakeTheActivation) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does"))));
  HWND active = GetActiveWindow();
  RestOver(L"a");
  ASSERT_EQ(Tips().size(), 1u);
  EXPECT_EQ(GetActiveWindow(), active);
}

TEST_F(TipTest, APressHidesTheTipUntilThePointerComesAgain) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does")) +
                  WidgetItem("QPushButton", "b")));
  RestOver(L"a");
  robot_.ClickCentreOf(Widget(L"a").GetPlatformHandle());
  EXPECT_TRUE(Tips().empty());
  robot_.AdvanceTime(kRest);
  EXPECT_TRUE(Tips().empty());
  RestOver(L"b");
  RestOver(L"a");
  EXPECT_EQ(Tips().size(), 1u);
}

TEST_F(TipTest, AToolTipGoesAfterSomeTime) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does"))));
  RestOver(L"a");
  robot_.AdvanceTime(6000);
  EXPECT_TRUE(Tips().empty());
}

TEST_F(TipTest, DisabledWidgetsHaveTheirTips) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does")) +
                  WidgetItem("QPushButton", "b")));
  Widget(L"a").Enable(false, true);
  RestOver(L"a");
  EXPECT_EQ(Tips().size(), 1u);
  RestOver(L"b");
  EXPECT_TRUE(Tips().empty());
  RestOver(L"a");
  robot_.MoveTo(POINT{1, 1});
  EXPECT_TRUE(Tips().empty()) << "out of the dialog";
}

TEST_F(TipTest, HiddenWidgetsHaveNone) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does")) +
                  WidgetItem("QPushButton", "b")));
  const POINT place = Robot::CentreOf(Widget(L"a").GetPlatformHandle());
  Widget(L"a").Show(false, false);
  robot_.MoveTo(place);
  robot_.AdvanceTime(kRest);
  EXPECT_TRUE(Tips().empty());
}

TEST_F(TipTest, AreasHaveTipsOfTheirOwn) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  auto button = dialog_->GetElementByName(L"a");
  CRect left(0, 0, 10, 100);
  dialog_->SetToolTip(button, L"", L"the left", 1, &left);
  RestOver(L"a");
  EXPECT_TRUE(Tips().empty());
  Point corner = Widget(L"a").ClientToScreen(Point(3, 3));
  robot_.MoveTo(POINT{corner.x, corner.y});
  robot_.AdvanceTime(kRest);
  EXPECT_EQ(Tips().size(), 1u);
  dialog_->SetToolTip(button, L"", L"", 1);
  EXPECT_TRUE(Tips().empty());
}

TEST_F(TipTest, ALongerTipIsHigherThanItsTitle) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("short"))));
  RestOver(L"a");
  const CRect small = PlaceOfTip(0);
  dialog_->SetToolTip(dialog_->GetElementByName(L"a"), L"A title", ManyWords());
  robot_.MoveTo(POINT{1, 1});
  RestOver(L"a");
  EXPECT_GT(PlaceOfTip(0).Height(), 2 * small.Height());
}

TEST_F(TipTest, ATipMayOutliveItsWidgetAndItsDialog) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does"))));
  RestOver(L"a");
  dialog_.reset();
  robot_.AdvanceTime(10);
  EXPECT_TRUE(Tips().empty());
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does"))));
  robot_.MoveTo(Widget(L"a").GetPlatformHandle());
  dialog_->Done(Dialog::Rejected);
  dialog_->DoModeless(true);
  Robot::PumpAll();
  robot_.MoveTo(POINT{1, 1});
  RestOver(L"a");
  EXPECT_EQ(Tips().size(), 1u) << "a dialog that is shown again";
}

TEST_F(TipTest, AToolTipStaysOnTheScreen) {
  Open(ColumnForm(WidgetItem("QPushButton", "a", TipXml("What a does"))));
  const CRect area = Robot::Screen().WorkArea();
  dialog_->MoveWindow(area.right - 320, area.bottom - 240, 310, 235, true);
  Robot::PumpAll();
  RestOver(L"a");
  EXPECT_TRUE(area.Contains(PlaceOfTip(0)));
}

// -- Balloon tips

TEST_F(TipTest, ABalloonPointsAtItsWidget) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  EXPECT_FALSE(Widget(L"a").HideBalloonTipEx());
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed());
  EXPECT_TRUE(
      Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", BalloonTipIconType::Warning, true, true));
  EXPECT_TRUE(Widget(L"a").IsBalloonTipDisplayed());
  ASSERT_EQ(Tips().size(), 2u);
  const Rect widget = Widget(L"a").GetWindowRect();
  const CRect arrow = PlaceOfTip(0);
  EXPECT_EQ(arrow.top, widget.Top() + widget.Height());
  EXPECT_EQ((arrow.left + arrow.right) / 2, widget.Left() + widget.Width() / 2);
  EXPECT_TRUE(Widget(L"a").HideBalloonTipEx());
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed());
  EXPECT_TRUE(Tips().empty());
}

TEST_F(TipTest, ABalloonStandsAboveWhereThereIsNoRoomBelow) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  const CRect area = Robot::Screen().WorkArea();
  dialog_->MoveWindow(area.right - 320, area.bottom - 120, 310, 120, true);
  Robot::PumpAll();
  ASSERT_TRUE(
      Widget(L"a").ShowBalloonTipEx(L"Title", ManyWords(), BalloonTipIconType::Error, true, true));
  for (std::size_t i = 0; i < 2; ++i) EXPECT_TRUE(area.Contains(PlaceOfTip(i)));
  EXPECT_LE(PlaceOfTip(1).bottom, Widget(L"a").GetWindowRect().Top());
}

TEST_F(TipTest, ABalloonGoesWithTheNextKeyOrClickUnlessItStays) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  dialog_->SetFocusToCtrl(&Widget(L"a"));
  Widget(L"a").ShowBalloonTipEx(L"Text", BalloonTipIconType::Information, true, false);
  robot_.Key(VK_LEFT);
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed());
  Widget(L"a").ShowBalloonTipEx(L"Text", BalloonTipIconType::Information, true, false);
  robot_.Click(POINT{dialog_->GetWindowRect().Left() + 5, dialog_->GetWindowRect().Top() + 180});
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed());
  Widget(L"a").ShowBalloonTipEx(L"Text", BalloonTipIconType::Information, false, false);
  robot_.Key(VK_LEFT);
  robot_.AdvanceTime(20000);
  EXPECT_TRUE(Widget(L"a").IsBalloonTipDisplayed());
  HWND active = GetActiveWindow();
  robot_.ClickCentreOf(Tips()[1]);
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed()) << "clicked itself";
  EXPECT_EQ(GetActiveWindow(), active);
}

TEST_F(TipTest, ABalloonGoesInTime) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", false, true);
  robot_.AdvanceTime(9000);
  EXPECT_TRUE(Widget(L"a").IsBalloonTipDisplayed());
  robot_.AdvanceTime(2000);
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed());
}

TEST_F(TipTest, OneBalloonIsShownAtATime) {
  Open(ColumnForm(WidgetItem("QPushButton", "a") + WidgetItem("QPushButton", "b")));
  Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", true, true);
  Widget(L"b").ShowBalloonTipEx(L"Title", L"Text", true, true);
  EXPECT_FALSE(Widget(L"a").IsBalloonTipDisplayed());
  EXPECT_TRUE(Widget(L"b").IsBalloonTipDisplayed());
}

TEST_F(TipTest, ABalloonGoesWithItsWidget) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", false, false);
  dialog_->Done(Dialog::Rejected);
  EXPECT_TRUE(Tips().empty());
  EXPECT_FALSE(Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", true, true)) << "no window";
  dialog_->DoModeless(true);
  Robot::PumpAll();
  EXPECT_TRUE(Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", true, true));
  dialog_.reset();
  EXPECT_TRUE(Tips().empty());
}

TEST_F(TipTest, ABalloonWithoutWordsOrOverAHiddenWidgetIsNotShown) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  EXPECT_FALSE(Widget(L"a").ShowBalloonTipEx(L"", L"", true, true));
  Widget(L"a").Show(false, false);
  EXPECT_FALSE(Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", true, true));
}

TEST_F(TipTest, ABalloonHasSixForms) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  auto& widget = Widget(L"a");
  const auto sizeOf = [](bool shown) { return shown ? PlaceOfTip(1).Size() : CSize(); };
  const pictures::Bytes icon =
      pictures::IconFile({pictures::IconImageBytes(32, 32, 24, pictures::Always(1))});
  const int count = static_cast<int>(icon.size());
  const std::wstring file = FileOf(std::string(icon.begin(), icon.end()));
  constexpr auto kWarning = BalloonTipIconType::Warning;
  constexpr int kGap = 8;
  const CSize plain = sizeOf(widget.ShowBalloonTipEx(L"Title", L"Text", true, true));
  const CSize untitled =
      sizeOf(widget.ShowBalloonTipEx(L"Text", BalloonTipIconType::None, true, true));
  EXPECT_LT(untitled.cy, plain.cy);
  EXPECT_EQ(sizeOf(widget.ShowBalloonTipEx(L"Text", kWarning, true, true)).cx,
            untitled.cx + 16 + kGap);
  EXPECT_EQ(sizeOf(widget.ShowBalloonTipEx(L"Title", L"Text", kWarning, true, true)).cx,
            plain.cx + 16 + kGap);
  EXPECT_EQ(sizeOf(widget.ShowBalloonTipEx(L"Text", icon.data(), count, true, true)).cx,
            untitled.cx + 32 + kGap);
  EXPECT_EQ(sizeOf(widget.ShowBalloonTipEx(L"Title", L"Text", icon.data(), count, true, true)).cx,
            plain.cx + 32 + kGap);
  EXPECT_EQ(sizeOf(widget.ShowBalloonTipEx(L"Title", L"Text", file, true, true)).cx,
            plain.cx + 32 + kGap);
}

TEST_F(TipTest, ABrokenIconLeavesTheWords) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  const unsigned char junk[] = {1, 2, 3, 4, 5, 6, 7, 8};
  EXPECT_TRUE(Widget(L"a").ShowBalloonTipEx(L"Text", junk, sizeof junk, true, true));
  const int plain = PlaceOfTip(1).Width();
  EXPECT_TRUE(Widget(L"a").ShowBalloonTipEx(L"Text", nullptr, 7, true, true));
  EXPECT_EQ(PlaceOfTip(1).Width(), plain);
  EXPECT_TRUE(
      Widget(L"a").ShowBalloonTipEx(L"Title", L"Text", std::wstring(L"/no/such.png"), true, true));
  EXPECT_TRUE(Widget(L"a").ShowBalloonTipEx(L"Text", BalloonTipIconType::Error, true, true));
  EXPECT_GT(PlaceOfTip(1).Width(), plain);
}

// -- Prompts

TEST_F(TipTest, APromptPointsAtItsWidgetAndGoesWithIt) {
  Open(ColumnForm(WidgetItem("QPushButton", "a") + WidgetItem("QPushButton", "b")));
  const auto prompt = Widget(L"a").InsertPromptsPopup(L"Enter a number", 0, 0, false);
  EXPECT_FALSE(prompt->IsShown());
  Widget(L"a").ShowPromptsPopup(prompt, true);
  EXPECT_TRUE(prompt->IsShown());
  EXPECT_EQ(PlaceOfTip(0).top, Widget(L"a").GetWindowRect().PlatformRect().bottom);
  robot_.Key(VK_LEFT);
  robot_.AdvanceTime(60000);
  EXPECT_TRUE(prompt->IsShown());
  Widget(L"b").ShowBalloonTipEx(L"Text", BalloonTipIconType::Error, true, true);
  EXPECT_FALSE(prompt->IsShown()) << "one tip at a time";
  Widget(L"a").ShowPromptsPopup(prompt, true);
  Widget(L"a").ShowPromptsPopup(prompt, false);
  EXPECT_TRUE(Tips().empty());
  Widget(L"a").ShowPromptsPopup(nullptr, true);
  Widget(L"a").ShowPromptsPopup(prompt, true);
  dialog_.reset();
  EXPECT_FALSE(prompt->IsShown());
}

TEST_F(TipTest, APromptGoesWithInputOrInTimeAndBreaksItsLines) {
  Open(ColumnForm(WidgetItem("QPushButton", "a")));
  dialog_->SetFocusToCtrl(&Widget(L"a"));
  PromptsPopup prompt(L"words and words and words", 60, 2000, true);
  EXPECT_TRUE(prompt.Show(Widget(L"a")));
  EXPECT_LE(PlaceOfTip(1).Width(), 60 + 2 * 8);
  robot_.AdvanceTime(1900);
  EXPECT_TRUE(prompt.IsShown());
  robot_.AdvanceTime(200);
  EXPECT_FALSE(prompt.IsShown());
  EXPECT_TRUE(prompt.Show(Widget(L"a")));
  robot_.Key(VK_LEFT);
  EXPECT_FALSE(prompt.IsShown());
  prompt.SetText(L"");
  EXPECT_FALSE(prompt.Show(Widget(L"a")));
}

}  // namespace
}  // namespace Wexa
