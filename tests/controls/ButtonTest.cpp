#include <functional>

#include "controls/ControlsTest.h"

class ButtonTest : public ControlsTest {};

// Each way of using a button, and how often it clicks. Nothing of it stays behind.
TEST_F(ButtonTest, ClicksWhenItIsPressedAndLetGoInside) {
  const HWND button = AddRow(WC_BUTTON, WS_TABSTOP, 10, L"Go");
  const HWND other = AddRow(WC_BUTTON, 0, 11);
  const POINT inside = CentreOf(button);
  const POINT outside{inside.x, inside.y + 60};
  const auto send = [&](UINT message, int x) {
    SendMessageW(button, message, 0, MAKELPARAM(x, 5));
  };
  const auto holdSpace = [&] {
    SetFocus(button);
    robot_.KeyDown(VK_SPACE);
    EXPECT_TRUE(IsPushed(button));
    EXPECT_TRUE(dialog_.TakeClicks().empty());
  };
  const auto hold = [&] {
    robot_.Press(inside);
    EXPECT_TRUE(IsPushed(button));
  };
  struct Case {
    const char* what;
    std::size_t clicks;
    std::function<void()> use;
  } cases[] = {
      {"click", 1, [&] { robot_.Click(inside); }},
      {"three quick clicks", 3,
       [&] {
         robot_.DoubleClick(inside);
         robot_.Press(inside);
         robot_.Release();
       }},
      {"dragged out", 0,
       [&] {
         hold();
         robot_.MoveTo(outside);
         EXPECT_FALSE(IsPushed(button));
         robot_.Release();
       }},
      {"dragged out and back", 1,
       [&] {
         hold();
         robot_.MoveTo(outside);
         robot_.MoveTo(inside);
         EXPECT_TRUE(IsPushed(button));
         robot_.Release();
       }},
      {"pressed elsewhere", 0,
       [&] {
         robot_.Press(outside);
         robot_.MoveTo(inside);
         robot_.Release();
       }},
      {"let go outside without a move", 0,
       [&] {
         send(WM_LBUTTONDOWN, 5);
         send(WM_LBUTTONUP, 500);
       }},
      {"let go inside without a move", 1,
       [&] {
         send(WM_LBUTTONDOWN, 500);
         send(WM_LBUTTONUP, 5);
       }},
      {"capture lost", 0,
       [&] {
         hold();
         ReleaseCapture();
         EXPECT_FALSE(IsPushed(button));
         robot_.Release();
       }},
      {"space", 1,
       [&] {
         holdSpace();
         robot_.KeyUp(VK_SPACE);
       }},
      {"focus lost with space held", 0,
       [&] {
         holdSpace();
         SetFocus(other);
         robot_.KeyUp(VK_SPACE);
       }},
      {"disabled while pressed", 0,
       [&] {
         hold();
         EnableWindow(button, FALSE);
         robot_.Release();
         SendMessageW(button, BM_CLICK, 0, 0);
       }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    c.use();
    EXPECT_EQ(dialog_.TakeClicks(), std::vector(c.clicks, 10));
    EXPECT_FALSE(IsPushed(button));
    EXPECT_EQ(GetCapture(), nullptr);
  }
}

TEST_F(ButtonTest, CheckBoxesToggleAndGoRound) {
  struct Case {
    DWORD type;
    std::vector<LRESULT> states;
  } cases[] = {{BS_AUTOCHECKBOX, {1, 0, 1}}, {BS_AUTO3STATE, {1, 2, 0}}, {BS_CHECKBOX, {0, 0, 0}}};
  for (const Case& c : cases) {
    const HWND box = AddRow(WC_BUTTON, c.type, 10);
    for (const LRESULT state : c.states) {
      robot_.ClickCentreOf(box);
      EXPECT_EQ(SendMessageW(box, BM_GETCHECK, 0, 0), state) << c.type;
    }
    EXPECT_EQ(dialog_.TakeClicks().size(), 3U);
  }
}

TEST_F(ButtonTest, ARadioButtonUnchecksItsGroupOnly) {
  const HWND first = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP, 10);
  const HWND second = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON, 11);
  const HWND other = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP, 12);
  robot_.ClickCentreOf(other);
  robot_.ClickCentreOf(first);
  ShowWindow(first, SW_HIDE);
  EnableWindow(first, FALSE);
  robot_.ClickCentreOf(second);
  EXPECT_FALSE(IsChecked(first)) << "hidden and disabled as it is";
  EXPECT_TRUE(IsChecked(second));
  EXPECT_TRUE(IsChecked(other));
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

TEST_F(ButtonTest, AHandlerMayDestroyTheButton) {
  for (const int fatal : {BN_SETFOCUS, BN_CLICKED}) {
    const HWND button = AddRow(WC_BUTTON, BS_AUTOCHECKBOX, 10);
    dialog_.onCommand = [=](int, int code) {
      if (code == fatal) DestroyWindow(button);
    };
    robot_.ClickCentreOf(button);
    EXPECT_FALSE(IsWindow(button));
    EXPECT_EQ(GetCapture(), nullptr);
  }
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
