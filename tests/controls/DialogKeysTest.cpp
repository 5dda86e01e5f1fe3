#include "controls/ControlsTest.h"

class DialogKeysTest : public ControlsTest {
 protected:
  // The ids that get the focus by so many presses of a key.
  std::vector<int> FocusedBy(int key, int times) {
    std::vector<int> ids;
    for (int i = 0; i < times; ++i) {
      robot_.Key(key);
      ids.push_back(GetDlgCtrlID(GetFocus()));
    }
    return ids;
  }
  static bool LooksDefault(HWND button) {
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(button, GWL_STYLE));
    return (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
  }
  HWND AddStop(int id, DWORD style = 0) { return AddRow(WC_BUTTON, WS_TABSTOP | style, id); }
};

TEST_F(DialogKeysTest, TabGoesRoundInOrderOfCreation) {
  SetFocus(AddStop(10));
  AddRow(WC_BUTTON, 0, 11);
  AddStop(12);
  AddStop(13, WS_DISABLED);
  ShowWindow(AddStop(14), SW_HIDE);
  AddStop(15);
  EXPECT_EQ(FocusedBy(VK_TAB, 4), (std::vector{12, 15, 10, 12}));
  robot_.KeyDown(VK_SHIFT);
  EXPECT_EQ(FocusedBy(VK_TAB, 2), (std::vector{10, 15}));
  robot_.KeyUp(VK_SHIFT);
}

TEST_F(DialogKeysTest, TabEntersNestedControlParents) {
  const auto addPage = [&](DWORD exStyle, DWORD style) {
    return CreateWindowExW(exStyle, WC_DIALOG, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 50, 50,
                           dialog_.m_hWnd, nullptr, nullptr);
  };
  const CRect place(0, 0, 20, 20);
  SetFocus(AddStop(10));
  const HWND page = addPage(WS_EX_CONTROLPARENT, 0);
  Add(WC_BUTTON, WS_TABSTOP, place, 11, L"", page);
  Add(WC_BUTTON, WS_TABSTOP, place, 12, L"", page);
  const HWND disabled = addPage(WS_EX_CONTROLPARENT, WS_DISABLED);
  Add(WC_BUTTON, WS_TABSTOP, place, 13, L"", disabled);
  AddStop(14);
  EXPECT_EQ(FocusedBy(VK_TAB, 4), (std::vector{11, 12, 14, 10}));
}

TEST_F(DialogKeysTest, AStopThatIsDisabledOrHiddenHandsTheFocusOn) {
  const auto page = [&](int id) {
    const HWND holder = CreateWindowExW(WS_EX_CONTROLPARENT, WC_DIALOG, L"", WS_CHILD | WS_VISIBLE,
                                        0, 0, 50, 50, dialog_.m_hWnd, nullptr, nullptr);
    Add(WC_BUTTON, WS_TABSTOP, {0, 0, 20, 20}, id, L"", holder);
    return holder;
  };
  std::vector<HWND> stops;
  for (int id = 10; id < 13; ++id) stops.push_back(AddStop(id));
  const HWND holder = page(13);
  AddStop(14);
  SetFocus(stops[0]);
  EnableWindow(stops[0], FALSE);
  EXPECT_EQ(GetFocus(), stops[1]);
  ShowWindow(stops[1], SW_HIDE);
  EXPECT_EQ(GetFocus(), stops[2]);
  DestroyWindow(stops[2]);
  EXPECT_EQ(GetDlgCtrlID(GetFocus()), 13);
  EnableWindow(holder, FALSE);
  EXPECT_EQ(GetDlgCtrlID(GetFocus()), 14);
  EnableWindow(GetFocus(), FALSE);
  EXPECT_EQ(GetFocus(), dialog_.m_hWnd) << "no stop is left";
  EnableWindow(holder, TRUE);
  EXPECT_EQ(FocusedBy(VK_TAB, 1), std::vector{13});
  robot_.Key(VK_ESCAPE);
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{IDCANCEL});
}

TEST_F(DialogKeysTest, TabSelectsTheTextOfAnEdit) {
  SetFocus(AddStop(10));
  const HWND edit = AddRow(WC_EDIT, WS_TABSTOP, 11, L"text");
  robot_.Key(VK_TAB);
  EXPECT_EQ(GetFocus(), edit);
  EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELPARAM(0, 4));
}

TEST_F(DialogKeysTest, ArrowsMoveInTheGroupAndChooseRadioButtons) {
  const HWND first = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 10);
  AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_DISABLED, 11);
  const HWND third = AddRow(WC_BUTTON, BS_AUTORADIOBUTTON, 12);
  AddRow(WC_BUTTON, WS_GROUP | WS_TABSTOP, 13);
  SetFocus(first);
  robot_.Key(VK_DOWN);
  EXPECT_EQ(GetFocus(), third);
  EXPECT_TRUE(IsChecked(third));
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{12});
  EXPECT_EQ(FocusedBy(VK_RIGHT, 2), (std::vector{10, 12}));
  EXPECT_EQ(FocusedBy(VK_UP, 1), std::vector{10});
}

TEST_F(DialogKeysTest, TabEntersARadioGroupAtTheCheckedButton) {
  SetFocus(AddStop(10));
  AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 11);
  robot_.ClickCentreOf(AddRow(WC_BUTTON, BS_AUTORADIOBUTTON | WS_TABSTOP, 12));
  AddStop(13, WS_GROUP);
  EXPECT_EQ(FocusedBy(VK_TAB, 3), (std::vector{13, 10, 12}));
}

TEST_F(DialogKeysTest, ReturnClicksTheFocusedPushButtonElseTheDefaultOne) {
  const HWND edit = AddRow(WC_EDIT, WS_TABSTOP, 10);
  const HWND usual = AddStop(11);
  dialog_.SetDefID(11);
  const auto clicksByReturn = [&](HWND focus) {
    SetFocus(focus);
    robot_.Key(VK_RETURN);
    EXPECT_EQ(GetFocus(), focus);
    return dialog_.TakeClicks();
  };
  EXPECT_EQ(clicksByReturn(edit), std::vector{11});
  EXPECT_EQ(clicksByReturn(AddStop(12)), std::vector{12});
  EnableWindow(usual, FALSE);
  EXPECT_EQ(clicksByReturn(edit), std::vector<int>{});
}

TEST_F(DialogKeysTest, ADefaultButtonInsideAPageTellsItsPage) {
  TestDialog page;
  page.SetStyle(WS_CHILD | WS_VISIBLE);
  ASSERT_TRUE(page.Open(&dialog_));
  Add(WC_BUTTON, BS_DEFPUSHBUTTON, {0, 0, 20, 20}, 11, L"", page.m_hWnd);
  SetFocus(AddRow(WC_EDIT, WS_TABSTOP, 10));
  robot_.Key(VK_RETURN);
  EXPECT_EQ(page.TakeClicks(), std::vector{11});
}

TEST_F(DialogKeysTest, TheDefaultLookFollowsTheFocusAmongPushButtons) {
  const HWND edit = AddRow(WC_EDIT, WS_TABSTOP, 10);
  const HWND usual = AddStop(11, BS_DEFPUSHBUTTON);
  const HWND other = AddStop(12);
  SetFocus(edit);
  EXPECT_TRUE(LooksDefault(usual));
  robot_.ClickCentreOf(other);
  EXPECT_FALSE(LooksDefault(usual));
  EXPECT_TRUE(LooksDefault(other));
  SetFocus(edit);
  EXPECT_TRUE(LooksDefault(usual));
  EXPECT_FALSE(LooksDefault(other));
  const HWND drawn = AddStop(13, BS_OWNERDRAW);
  SetFocus(drawn);
  EXPECT_FALSE(LooksDefault(usual));
  EXPECT_EQ(GetWindowLongPtrW(drawn, GWL_STYLE) & BS_TYPEMASK, BS_OWNERDRAW);
}

TEST_F(DialogKeysTest, EscapeCancelsUnlessTheCancelButtonIsDisabled) {
  SetFocus(AddStop(10));
  const HWND cancel = AddStop(IDCANCEL, WS_DISABLED);
  robot_.Key(VK_ESCAPE);
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  EXPECT_TRUE(dialog_.IsWindowVisible());
  EnableWindow(cancel, TRUE);
  robot_.Key(VK_ESCAPE);
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{IDCANCEL});
  EXPECT_FALSE(dialog_.IsWindowVisible());
}

TEST_F(DialogKeysTest, AMnemonicClicksItsButton) {
  SetFocus(AddRow(WC_EDIT, WS_TABSTOP, 10));
  const HWND box = AddRow(WC_BUTTON, BS_AUTOCHECKBOX | WS_TABSTOP, 11, L"Save && &keep");
  robot_.AltKey(L'k');
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{11});
  EXPECT_EQ(GetFocus(), box);
}

TEST_F(DialogKeysTest, TheMnemonicOfATextLeadsToTheControlAfterIt) {
  SetFocus(AddStop(10));
  AddRow(WC_STATIC, 0, 11, L"&Name");
  const HWND edit = AddRow(WC_EDIT, WS_TABSTOP, 12, L"abc");
  robot_.AltKey(L'n');
  EXPECT_EQ(GetFocus(), edit);
  EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELPARAM(0, 3));
}

TEST_F(DialogKeysTest, ButtonsWithOneMnemonicTakeTurnsUnclicked) {
  SetFocus(AddStop(10));
  AddRow(WC_BUTTON, WS_TABSTOP, 11, L"&Copy");
  AddRow(WC_BUTTON, WS_TABSTOP, 12, L"&Close");
  std::vector<int> focused;
  for (int i = 0; i < 3; ++i) {
    robot_.AltKey(L'c');
    focused.push_back(GetDlgCtrlID(GetFocus()));
  }
  EXPECT_EQ(focused, (std::vector{11, 12, 11}));
  EXPECT_TRUE(dialog_.TakeClicks().empty());
}

TEST_F(DialogKeysTest, APlainLetterIsAMnemonicWhereNothingIsTyped) {
  AddRow(WC_BUTTON, WS_TABSTOP, 10, L"&Copy");
  SetFocus(AddStop(11));
  robot_.Type(L"c");
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
  const HWND edit = AddRow(WC_EDIT, WS_TABSTOP, 12);
  SetFocus(edit);
  robot_.Type(L"c");
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  EXPECT_EQ(GetWindowTextString(edit), L"c");
}

TEST_F(DialogKeysTest, KeyboardCuesComeWithTheKeyboard) {
  const HWND button = AddStop(10);
  robot_.ClickCentreOf(button);
  EXPECT_NE(SendMessageW(button, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS, 0);
  robot_.Key(VK_TAB);
  EXPECT_EQ(SendMessageW(button, WM_QUERYUISTATE, 0, 0), 0);
}

TEST_F(DialogKeysTest, TheFocusComesBackWithTheActivation) {
  AddStop(10);
  const HWND second = AddStop(11);
  SetFocus(second);
  TestDialog other;
  other.Open();
  EXPECT_NE(GetFocus(), second);
  SetActiveWindow(dialog_.m_hWnd);
  EXPECT_EQ(GetFocus(), second);
}

TEST(Mnemonic, IsTheLetterAfterTheFirstSingleMark) {
  EXPECT_EQ(GetMnemonic(L"Save && &keep"), L'K');
  EXPECT_EQ(GetMnemonic(L"&\u00FCber"), L'\u00DC');
  EXPECT_EQ(GetMnemonic(L"Plain &"), 0);
  EXPECT_EQ(GetMnemonic(L""), 0);
}
