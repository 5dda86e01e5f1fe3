#include "controls/ControlsTest.h"

class EditTest : public ControlsTest {
 protected:
  void SetUp() override {
    ControlsTest::SetUp();
    edit_ = AddEdit(ES_AUTOHSCROLL);
  }
  HWND AddEdit(DWORD style, const wchar_t* text = L"") {
    const HWND edit = AddRow(WC_EDIT, WS_BORDER | WS_TABSTOP | style, 20 + rows_, text);
    SetFocus(edit);
    dialog_.commands.clear();
    return edit;
  }

  std::wstring Text() const { return GetWindowTextString(edit_); }
  void SetText(const wchar_t* text) { SetWindowTextW(edit_, text); }
  using Range = std::pair<DWORD, DWORD>;
  Range Selection() const {
    Range range;
    SendMessageW(edit_, EM_GETSEL, reinterpret_cast<WPARAM>(&range.first),
                 reinterpret_cast<LPARAM>(&range.second));
    return range;
  }
  void Select(int from, int to) { SendMessageW(edit_, EM_SETSEL, static_cast<WPARAM>(from), to); }
  // On the screen, in the middle of the line before the character.
  POINT PlaceOf(int index) const {
    const LRESULT corner = SendMessageW(edit_, EM_POSFROMCHAR, static_cast<WPARAM>(index), 0);
    POINT place{GET_X_LPARAM(corner), GET_Y_LPARAM(corner) + 5};
    ClientToScreen(edit_, &place);
    return place;
  }
  bool IsSeen(int index) const {
    CRect rect;
    GetWindowRect(edit_, &rect);
    return rect.Contains(PlaceOf(index));
  }

  HWND edit_ = nullptr;
};

// -- Typing --------------------------------------------------------------------------------------

TEST_F(EditTest, TypingReplacesTheSelection) {
  robot_.Type(L"one two");
  Select(4, 7);
  robot_.Type(L"3");
  EXPECT_EQ(Text(), L"one 3");
  EXPECT_EQ(Selection(), Range(5, 5));
}

TEST_F(EditTest, BackspaceAndDeleteTakeWholeClusters) {
  SetText(L"ae\u0301o");  // the accent combines with the e
  Select(3, 3);
  robot_.Key(VK_BACK);
  EXPECT_EQ(Text(), L"ao");
  SetText(L"ae\u0301o");
  Select(1, 1);
  robot_.Key(VK_DELETE);
  EXPECT_EQ(Text(), L"ao");
}

TEST_F(EditTest, ControlErasesWords) {
  SetText(L"one two three");
  Select(7, 7);
  robot_.ControlKey(VK_BACK);
  EXPECT_EQ(Text(), L"one  three");
  Select(0, 0);
  robot_.ControlKey(VK_DELETE);
  EXPECT_EQ(Text(), L"three");
}

TEST_F(EditTest, ALimitStopsTypingAndSaysSo) {
  SendMessageW(edit_, EM_LIMITTEXT, 3, 0);
  robot_.Type(L"abcd");
  EXPECT_EQ(Text(), L"abc");
  EXPECT_EQ(dialog_.commands.back().second, EN_MAXTEXT);
  Select(0, 1);
  robot_.Type(L"x");
  EXPECT_EQ(Text(), L"xbc");
}

TEST_F(EditTest, PastingKeepsTheFirstLineAndTheLimit) {
  SetClipboardText(L"abcdef\nsecond");
  robot_.ControlKey('V');
  EXPECT_EQ(Text(), L"abcdef");
  SendMessageW(edit_, EM_LIMITTEXT, 8, 0);
  robot_.ControlKey('V');
  EXPECT_EQ(Text(), L"abcdefab");
}

TEST_F(EditTest, AReadOnlyEditCopiesButDoesNotChange) {
  SetText(L"fixed");
  SendMessageW(edit_, EM_SETREADONLY, TRUE, 0);
  robot_.ControlKey('A');
  robot_.ControlKey('X');
  robot_.Type(L"x");
  robot_.Key(VK_DELETE);
  EXPECT_EQ(Text(), L"fixed");
  robot_.ControlKey('C');
  EXPECT_EQ(GetClipboardText(), L"fixed");
}

TEST_F(EditTest, APasswordIsNeverCopied) {
  SetClipboardText(L"before");
  edit_ = AddEdit(ES_PASSWORD, L"secret");
  robot_.ControlKey('A');
  robot_.ControlKey('C');
  robot_.ControlKey('X');
  EXPECT_EQ(GetClipboardText(), L"before");
  EXPECT_EQ(Text(), L"secret");
  EXPECT_EQ(SendMessageW(edit_, EM_GETPASSWORDCHAR, 0, 0), 0x25CF);
}

TEST_F(EditTest, CutPasteUndoAndRedo) {
  robot_.Type(L"one two");
  Select(0, 4);
  robot_.ControlKey('X');
  EXPECT_EQ(Text(), L"two");
  robot_.Key(VK_END);
  robot_.ControlKey('V');
  EXPECT_EQ(Text(), L"twoone ");
  for (int i = 0; i < 3; ++i) robot_.ControlKey('Z');
  EXPECT_EQ(Text(), L"");
  EXPECT_FALSE(SendMessageW(edit_, EM_CANUNDO, 0, 0));
  for (int i = 0; i < 3; ++i) robot_.ControlKey('Y');
  EXPECT_EQ(Text(), L"twoone ");
}

// -- Moving and selecting ------------------------------------------------------------------------

TEST_F(EditTest, ShiftExtendsAndAnArrowCollapsesTheSelection) {
  SetText(L"one two");
  robot_.KeyDown(VK_SHIFT);
  robot_.ControlKey(VK_RIGHT);
  robot_.KeyUp(VK_SHIFT);
  EXPECT_EQ(Selection(), Range(0, 4));
  robot_.Key(VK_LEFT);
  EXPECT_EQ(Selection(), Range(0, 0));
  robot_.ControlKey('A');
  robot_.Key(VK_RIGHT);
  EXPECT_EQ(Selection(), Range(7, 7));
}

TEST_F(EditTest, DraggingSelects) {
  SetText(L"one two three");
  robot_.Press(PlaceOf(4));
  robot_.MoveTo(PlaceOf(7));
  robot_.Release();
  robot_.MoveTo(PlaceOf(10));
  EXPECT_EQ(Selection(), Range(4, 7));
}

TEST_F(EditTest, ShiftClickExtendsTheSelection) {
  SetText(L"one two three");
  robot_.Click(PlaceOf(2));
  robot_.KeyDown(VK_SHIFT);
  robot_.Click(PlaceOf(9));
  robot_.KeyUp(VK_SHIFT);
  EXPECT_EQ(Selection(), Range(2, 9));
}

TEST_F(EditTest, ADoubleClickSelectsTheWord) {
  SetText(L"one two three");
  robot_.DoubleClick(PlaceOf(5));
  EXPECT_EQ(Selection(), Range(4, 8));
}

TEST_F(EditTest, RightToLeftTextIsWalkedAsItIsSeen) {
  SetText(L"\u05D0\u05D1\u05D2");  // the first letter stands at the right
  EXPECT_GT(PlaceOf(0).x, PlaceOf(2).x);
  Select(0, 0);
  robot_.Key(VK_LEFT);
  EXPECT_EQ(Selection(), Range(1, 1));
}

// -- Scrolling and alignment ---------------------------------------------------------------------

TEST_F(EditTest, TheCaretStaysInSightInALongText) {
  robot_.Type(std::wstring(60, L'm'));
  EXPECT_TRUE(IsSeen(60));
  EXPECT_FALSE(IsSeen(0));
  robot_.Key(VK_HOME);
  EXPECT_TRUE(IsSeen(0));
  EXPECT_FALSE(IsSeen(60));
}

TEST_F(EditTest, ErasingInAScrolledTextLeavesNoGapAtItsEnd) {
  robot_.Type(std::wstring(60, L'm'));
  Select(0, 50);
  robot_.Key(VK_DELETE);
  EXPECT_TRUE(IsSeen(0));
  EXPECT_TRUE(IsSeen(10));
}

TEST_F(EditTest, TypingInAScrolledTextMovesOnlyWhatFollows) {
  robot_.Type(std::wstring(60, L'm'));
  Select(45, 58);
  robot_.Key(VK_DELETE);
  const int before = PlaceOf(44).x;
  robot_.Type(L"mm");
  EXPECT_EQ(PlaceOf(44).x, before);
}

TEST_F(EditTest, SettingTheSelectionScrollsOnlyWhenAsked) {
  SetText(std::wstring(60, L'm').c_str());
  Select(60, 60);
  EXPECT_FALSE(IsSeen(60));
  SendMessageW(edit_, EM_SCROLLCARET, 0, 0);
  EXPECT_TRUE(IsSeen(60));
}

TEST_F(EditTest, DraggingBeyondTheEdgeScrollsOn) {
  SetText(std::wstring(60, L'm').c_str());
  robot_.Press(PlaceOf(3));
  CRect rect;
  GetWindowRect(edit_, &rect);
  robot_.MoveTo({rect.right + 10, CentreOf(edit_).y});
  robot_.AdvanceTime(5000);
  robot_.Release();
  EXPECT_EQ(Selection(), Range(3, 60));
  EXPECT_TRUE(IsSeen(60));
}

TEST_F(EditTest, TextIsAlignedByStyle) {
  CRect rect;
  GetWindowRect(edit_, &rect);
  SetText(L"ab");
  EXPECT_LT(PlaceOf(2).x, rect.left + rect.Width() / 2);
  edit_ = AddEdit(ES_RIGHT, L"ab");
  EXPECT_GT(PlaceOf(0).x, rect.left + rect.Width() / 2);
  edit_ = AddEdit(ES_CENTER, L"ab");
  EXPECT_LT(PlaceOf(0).x, rect.left + rect.Width() / 2);
  EXPECT_GT(PlaceOf(2).x, rect.left + rect.Width() / 2);
}

// -- Notifications -------------------------------------------------------------------------------

TEST_F(EditTest, AChangeIsAnnouncedBeforeAndAfterItIsSeen) {
  const int id = GetDlgCtrlID(edit_);
  robot_.Type(L"a");
  EXPECT_EQ(dialog_.TakeCodesOf(id), (std::vector{EN_UPDATE, EN_CHANGE}));
  SetText(L"b");
  EXPECT_EQ(dialog_.TakeCodesOf(id), (std::vector{EN_UPDATE, EN_CHANGE}));
  robot_.Key(VK_LEFT);
  EXPECT_TRUE(dialog_.TakeCodesOf(id).empty());
}

TEST_F(EditTest, AHandlerMayReplaceTheTextBeforeItIsSeen) {
  dialog_.onCommand = [&](int, int code) {
    if (code == EN_UPDATE && Text() == L"a") SetText(L"A");
  };
  robot_.Type(L"a");
  EXPECT_EQ(Text(), L"A");
}

TEST_F(EditTest, AHandlerMayDestroyTheEdit) {
  for (const int fatal : {EN_UPDATE, EN_CHANGE, EN_SETFOCUS, EN_KILLFOCUS}) {
    dialog_.onCommand = nullptr;
    edit_ = AddEdit(0);
    if (fatal == EN_SETFOCUS) SetFocus(nullptr);
    dialog_.onCommand = [&](int, int code) {
      if (code == fatal) DestroyWindow(edit_);
    };
    robot_.Click(CentreOf(edit_));
    robot_.Type(L"a");
    SetFocus(nullptr);
    EXPECT_FALSE(IsWindow(edit_)) << fatal;
  }
}

// -- Look ----------------------------------------------------------------------------------------

TEST_F(EditTest, TheCaretBlinksAndComesToRestVisible) {
  const LRESULT place = SendMessageW(edit_, EM_POSFROMCHAR, 0, 0);
  const CRect around = CRect(0, 0, 6, 4).Moved(GET_X_LPARAM(place) - 2, GET_Y_LPARAM(place));
  robot_.Type(L"a");
  robot_.Key(VK_HOME);
  EXPECT_TRUE(robot_.HasInk(edit_, around));
  robot_.AdvanceTime(GetCaretBlinkTime() + 1);
  EXPECT_FALSE(robot_.HasInk(edit_, around));
  robot_.AdvanceTime(30 * GetCaretBlinkTime());
  EXPECT_TRUE(robot_.HasInk(edit_, around));
  SetFocus(nullptr);
  EXPECT_FALSE(robot_.HasInk(edit_, around));
}

TEST_F(EditTest, TheCueIsSeenWhileTheTextIsEmpty) {
  const CRect area(10, 5, 140, 20);
  EXPECT_FALSE(robot_.HasInk(edit_, area));
  SendMessageW(edit_, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(L"Search"));
  EXPECT_TRUE(robot_.HasInk(edit_, area));
  SetText(L" ");
  EXPECT_FALSE(robot_.HasInk(edit_, area));
}

TEST_F(EditTest, OnlyThePaletteColoursIt) {
  EXPECT_EQ(robot_.PixelAt(edit_, 40, 12), 0xFFFFFFu);
  const auto red = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                      DWORD_PTR) -> LRESULT {
    if (message == WM_GETCONTROLPALETTE) {
      reinterpret_cast<ControlPalette*>(lParam)->face = RGB(255, 0, 0);
    }
    return DefSubclassProc(window, message, wParam, lParam);
  };
  SetWindowSubclass(edit_, red, 1, 0);
  InvalidateRect(edit_, nullptr, TRUE);
  EXPECT_EQ(robot_.PixelAt(edit_, 40, 12), 0xFF0000u);
}
