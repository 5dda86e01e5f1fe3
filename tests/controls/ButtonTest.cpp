#include "controls/ControlsTest.h"

class ButtonTest : public ControlsTest {};

TEST_F(ButtonTest, ClickTellsTheParentOnce) {
  const HWND button = AddRow(WC_BUTTON, WS_TABSTOP, 10, L"Go");
  robot_.ClickCentreOf(button);
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
  EXPECT_FALSE(IsPushed(button));
  EXPECT_EQ(GetFocus(), button);
}

TEST_F(ButtonTest, ReleaseOutsideDoesNotClick) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  const POINT inside = CentreOf(button);
  robot_.Press(inside);
  EXPECT_TRUE(IsPushed(button));
  robot_.MoveTo({inside.x, inside.y + 60});
  EXPECT_FALSE(IsPushed(button));
  robot_.Release();
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  EXPECT_EQ(GetCapture(), nullptr);
}

// The pointer may get there without a move in between.
TEST_F(ButtonTest, WhereItIsReleasedCounts) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  for (const auto& [pressed, released] : {std::pair{5, 500}, std::pair{500, 5}}) {
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pressed, 5));
    SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(released, 5));
    EXPECT_EQ(dialog_.TakeClicks().size(), released == 5 ? 1U : 0U);
  }
}

TEST_F(ButtonTest, DraggingBackInsideClicks) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  const POINT inside = CentreOf(button);
  robot_.Press(inside);
  robot_.MoveTo({inside.x, inside.y + 60});
  robot_.MoveTo(inside);
  EXPECT_TRUE(IsPushed(button));
  robot_.Release();
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
}

TEST_F(ButtonTest, PressingElsewhereAndReleasingInsideDoesNotClick) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  const POINT inside = CentreOf(button);
  robot_.Press({inside.x, inside.y + 60});
  robot_.MoveTo(inside);
  robot_.Release();
  EXPECT_TRUE(dialog_.TakeClicks().empty());
}

TEST_F(ButtonTest, LosingTheCaptureCancelsThePress) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  robot_.Press(CentreOf(button));
  ReleaseCapture();
  EXPECT_FALSE(IsPushed(button));
  robot_.Release();
  EXPECT_TRUE(dialog_.TakeClicks().empty());
}

TEST_F(ButtonTest, DisablingDuringThePressCancelsIt) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  robot_.Press(CentreOf(button));
  EnableWindow(button, FALSE);
  robot_.Release();
  SendMessageW(button, BM_CLICK, 0, 0);
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  EXPECT_FALSE(IsPushed(button));
}

TEST_F(ButtonTest, EveryPressOfAFastSeriesClicks) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  for (int i = 0; i < 3; ++i) robot_.ClickCentreOf(button);
  EXPECT_EQ(dialog_.TakeClicks(), (std::vector{10, 10, 10}));
}

TEST_F(ButtonTest, SpaceClicksWhenItIsReleased) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  SetFocus(button);
  robot_.KeyDown(VK_SPACE);
  EXPECT_TRUE(IsPushed(button));
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  robot_.KeyUp(VK_SPACE);
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
}

TEST_F(ButtonTest, LosingTheFocusCancelsTheSpaceKey) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  const HWND other = AddRow(WC_BUTTON, 0, 11);
  SetFocus(button);
  robot_.KeyDown(VK_SPACE);
  SetFocus(other);
  robot_.KeyUp(VK_SPACE);
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  EXPECT_FALSE(IsPushed(button));
}

TEST_F(ButtonTest, CheckBoxesToggleAndGoRound) {
  const HWND two = AddRow(WC_BUTTON, BS_AUTOCHECKBOX, 10);
  const HWND three = AddRow(WC_BUTTON, BS_AUTO3STATE, 11);
  std::vector<LRESULT> states;
  for (int i = 0; i < 3; ++i) {
    robot_.ClickCentreOf(two);
    states.push_back(SendMessageW(two, BM_GETCHECK, 0, 0));
    robot_.ClickCentreOf(three);
    states.push_back(SendMessageW(three, BM_GETCHECK, 0, 0));
  }
  EXPECT_EQ(states, (std::vector<LRESULT>{1, 1, 0, 2, 1, 0}));
}

TEST_F(ButtonTest, APlainCheckBoxLeavesItsStateToTheOwner) {
  const HWND box = AddRow(WC_BUTTON, BS_CHECKBOX, 10);
  robot_.ClickCentreOf(box);
  EXPECT_FALSE(IsChecked(box));
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
}

TEST_F(ButtonTest, ARadioButtonUnchecksItsGroupOnly) {
  const HWND first = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP, 10);
  const HWND second = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON, 11);
  const HWND other = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP, 12);
  robot_.ClickCentreOf(other);
  robot_.ClickCentreOf(first);
  robot_.ClickCentreOf(second);
  EXPECT_FALSE(IsChecked(first));
  EXPECT_TRUE(IsChecked(second));
  EXPECT_TRUE(IsChecked(other));
}

TEST_F(ButtonTest, AHiddenOrDisabledRadioButtonIsUncheckedToo) {
  const HWND hidden = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP, 10);
  const HWND shown = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON, 11);
  SendMessageW(hidden, BM_SETCHECK, BST_CHECKED, 0);
  ShowWindow(hidden, SW_HIDE);
  EnableWindow(hidden, FALSE);
  robot_.ClickCentreOf(shown);
  EXPECT_FALSE(IsChecked(hidden));
}

TEST_F(ButtonTest, CheckRadioButtonChecksOneOfTheRange) {
  std::vector<HWND> radios;
  for (int id = 10; id < 14; ++id) radios.push_back(AddRow(WC_BUTTON, BS_RADIOBUTTON, id));
  SendMessageW(radios[3], BM_SETCHECK, BST_CHECKED, 0);
  CheckRadioButton(dialog_.m_hWnd, 10, 12, 11);
  CheckRadioButton(dialog_.m_hWnd, 10, 12, 12);
  std::vector<bool> checked;
  for (HWND radio : radios) checked.push_back(IsChecked(radio));
  EXPECT_EQ(checked, (std::vector{false, false, true, true}));
}

TEST_F(ButtonTest, AGroupBoxLetsClicksThrough) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  const HWND group = Add(WC_BUTTON, BS_GROUPBOX, {0, 0, 180, 140}, 11);
  SetWindowPos(group, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  robot_.ClickCentreOf(button);
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
}

TEST_F(ButtonTest, ClickHandlerMayDestroyTheButton) {
  const HWND button = AddRow(WC_BUTTON, BS_AUTOCHECKBOX, 10);
  dialog_.onCommand = [&](int, int code) {
    if (code == BN_CLICKED) DestroyWindow(button);
  };
  robot_.ClickCentreOf(button);
  EXPECT_FALSE(IsWindow(button));
}

TEST_F(ButtonTest, FocusHandlerMayDestroyTheButton) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  dialog_.onCommand = [&](int, int code) {
    if (code == BN_SETFOCUS) DestroyWindow(button);
  };
  robot_.ClickCentreOf(button);
  EXPECT_FALSE(IsWindow(button));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ButtonTest, IdealSizeFollowsTextFontAndLook) {
  CButton button;
  button.Create(L"&OK", WS_VISIBLE, CRect(), &dialog_, 10);
  const CSize plain = button.GetIdealSize();
  button.SetWindowText(L"OK");
  EXPECT_EQ(button.GetIdealSize().cx, plain.cx) << "the mnemonic mark takes no room";
  button.SetWindowText(L"A much longer text");
  EXPECT_GT(button.GetIdealSize().cx, plain.cx);
  const CSize pushed = button.GetIdealSize();
  button.SetButtonStyle(BS_AUTOCHECKBOX);
  EXPECT_LT(button.GetIdealSize().cy, pushed.cy);
}

TEST_F(ButtonTest, ItsTextFitsItsIdealSize) {
  for (const DWORD type : {BS_PUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON}) {
    CButton button;
    button.Create(L"Illumination", type | WS_VISIBLE, CRect(), &dialog_, 10);
    const CSize ideal = button.GetIdealSize();
    const auto inkOfText = [&](CSize size) {
      button.MoveWindow(CRect({0, 0}, {size.cx, size.cy}));
      const std::uint32_t face = robot_.PixelAt(button.m_hWnd, size.cx / 2, 2);
      const bool isPush = type == BS_PUSHBUTTON;
      const CRect text(isPush ? 4 : Theme::CheckSize() + 2, 2, isPush ? size.cx - 4 : size.cx,
                       size.cy - 2);
      return robot_.InkIn(button.m_hWnd, text, face);
    };
    EXPECT_EQ(inkOfText(ideal), inkOfText({ideal.cx + 40, ideal.cy})) << type;
  }
}

TEST_F(ButtonTest, HoveringShowsUntilThePointerLeaves) {
  const HWND button = AddRow(WC_BUTTON, 0, 10);
  const auto face = [&] { return robot_.PixelAt(button, 10, 5); };
  const std::uint32_t plain = face();
  robot_.MoveTo(CentreOf(button));
  EXPECT_NE(face(), plain);
  robot_.MoveTo(POINT{CentreOf(button).x, CentreOf(button).y + 60});
  EXPECT_EQ(face(), plain);
}
