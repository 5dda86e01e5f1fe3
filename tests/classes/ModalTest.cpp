#include <stdexcept>

#include "controls/ControlsTest.h"

// The fixture's dialog is the owner; a modal one is driven by what it posts to itself.
class ModalTest : public ControlsTest {
 protected:
  // Runs `step` as a message of the running modal dialog.
  void Inside(TestDialog& dialog, std::function<void()> step) {
    dialog.onInit = [&dialog] {
      dialog.PostMessage(WM_COMMAND, MAKEWPARAM(kStep, 0));
      return TRUE;
    };
    dialog.onCommand = [step](int id, int) {
      if (id == kStep) step();
    };
  }
  bool OwnerIsEnabled() const { return IsWindowEnabled(dialog_.m_hWnd); }

  static constexpr int kStep = 777;
};

TEST_F(ModalTest, ReturnsWhatItWasEndedWithAndRunsAgain) {
  TestDialog modal;
  int result = 0;
  Inside(modal, [&] {
    EXPECT_TRUE(modal.IsModal());
    EXPECT_TRUE(modal.IsWindowVisible());
    EXPECT_FALSE(OwnerIsEnabled());
    modal.EndDialog(++result);
    EXPECT_FALSE(modal.IsWindowVisible());
    EXPECT_EQ(GetActiveWindow(), dialog_.m_hWnd);
    modal.EndDialog(43);
  });
  for (const int round : {1, 2}) {
    EXPECT_EQ(modal.RunModal(&dialog_), round);
    EXPECT_FALSE(modal.IsModal());
    EXPECT_EQ(modal.m_hWnd, nullptr);
    EXPECT_TRUE(OwnerIsEnabled());
  }
}

TEST_F(ModalTest, ReturnAndEscapeEndIt) {
  TestDialog modal;
  Inside(modal, [&] { robot_.Key(VK_RETURN); });
  EXPECT_EQ(modal.RunModal(&dialog_), IDOK);
  Inside(modal, [&] { robot_.Key(VK_ESCAPE); });
  EXPECT_EQ(modal.RunModal(&dialog_), IDCANCEL);
}

TEST_F(ModalTest, EndedDuringInitialisationItIsNeverShown) {
  struct Watched : TestDialog {
    std::function<void()> onShow;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      if (message == WM_SHOWWINDOW && wParam) onShow();
      return TestDialog::WindowProc(message, wParam, lParam);
    }
  } modal;
  bool shown = false;
  modal.onInit = [&] {
    modal.EndDialog(5);
    return TRUE;
  };
  modal.onShow = [&] { shown = true; };
  EXPECT_EQ(modal.RunModal(&dialog_), 5);
  EXPECT_FALSE(shown);
  EXPECT_EQ(GetActiveWindow(), dialog_.m_hWnd);
}

TEST_F(ModalTest, ActivationAndFocusGoBackToTheOwner) {
  AddRow(WC_BUTTON, WS_TABSTOP, 10);
  const HWND second = AddRow(WC_EDIT, WS_TABSTOP, 11);
  SetFocus(second);
  TestDialog modal;
  Inside(modal, [&] { modal.EndDialog(1); });
  modal.RunModal(&dialog_);
  EXPECT_EQ(GetActiveWindow(), dialog_.m_hWnd);
  EXPECT_EQ(GetFocus(), second);
}

TEST_F(ModalTest, TheFocusGoesBackIntoAnOwnerThatIsNoDialog) {
  const WNDCLASSW description{L"PlainOwner", DefWindowProcW, 0, nullptr};
  RegisterClassW(&description);
  CWnd owner;
  ASSERT_TRUE(owner.CreateEx(0, L"PlainOwner", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 90, 90),
                             nullptr, 0));
  const HWND edit = Add(WC_EDIT, 0, CRect(0, 0, 50, 20), 10, L"", owner.m_hWnd);
  SetFocus(edit);
  TestDialog modal;
  Inside(modal, [&] { modal.EndDialog(1); });
  modal.RunModal(&owner);
  EXPECT_EQ(GetFocus(), edit);
}

TEST_F(ModalTest, AnExceptionLeavesEverythingAsItWas) {
  const HWND edit = AddRow(WC_EDIT, WS_TABSTOP, 10);
  SetFocus(edit);
  TestDialog modal;
  const auto fail = [&]() -> BOOL {
    SetCapture(modal.m_hWnd);
    throw std::runtime_error("handler");
  };
  const std::function<void()> stages[] = {[&] { Inside(modal, fail); },
                                          [&] { modal.onInit = fail; }};
  for (const auto& prepare : stages) {
    prepare();
    EXPECT_THROW(modal.RunModal(&dialog_), std::runtime_error);
    EXPECT_EQ(GetTopLevelWindows().size(), 1u);
    EXPECT_FALSE(modal.IsModal());
    EXPECT_TRUE(OwnerIsEnabled());
    EXPECT_EQ(GetActiveWindow(), dialog_.m_hWnd);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(GetCapture(), nullptr);
  }
}

TEST_F(ModalTest, NestedDialogsEndOneByOne) {
  for (const bool outerFirst : {false, true}) {
    TestDialog outer;
    TestDialog inner;
    Inside(inner, [&] {
      EXPECT_FALSE(outer.IsWindowEnabled());
      if (outerFirst) outer.EndDialog(1);
      inner.EndDialog(2);
    });
    Inside(outer, [&] {
      EXPECT_EQ(inner.RunModal(&outer), 2);
      if (outerFirst) return;
      EXPECT_TRUE(outer.IsWindowEnabled());
      EXPECT_FALSE(OwnerIsEnabled());
      EXPECT_EQ(GetActiveWindow(), outer.m_hWnd);
      outer.EndDialog(1);
    });
    EXPECT_EQ(outer.RunModal(&dialog_), 1);
    EXPECT_TRUE(OwnerIsEnabled());
  }
}

TEST_F(ModalTest, DestroyingItOrItsOwnerEndsIt) {
  auto modal = std::make_unique<TestDialog>();
  const std::function<void()> ways[] = {[&] { modal->DestroyWindow(); }, [&] { modal.reset(); },
                                        [&] { dialog_.DestroyWindow(); }};
  for (const auto& way : ways) {
    if (!modal) modal = std::make_unique<TestDialog>();
    Inside(*modal, way);
    EXPECT_EQ(modal->RunModal(&dialog_), -1);
    EXPECT_EQ(OwnerIsEnabled(), IsWindow(dialog_.m_hWnd));
    EXPECT_EQ(GetTopLevelWindows().size(), IsWindow(dialog_.m_hWnd) ? 1u : 0u);
  }
}

TEST_F(ModalTest, WhereNothingCanHappenItIsCancelledEvenWithABlinkingCaret) {
  TestDialog modal;
  EXPECT_EQ(modal.RunModal(&dialog_), IDCANCEL);
  modal.onInit = [&] {
    SetFocus(Add(WC_EDIT, 0, CRect(0, 0, 50, 20), 10, L"", modal.m_hWnd));
    return FALSE;
  };
  EXPECT_EQ(modal.RunModal(&dialog_), IDCANCEL);
  EXPECT_TRUE(OwnerIsEnabled());
}

TEST_F(ModalTest, QuittingLeavesAllLoops) {
  TestDialog outer;
  TestDialog inner;
  Inside(inner, [] { PostQuitMessage(3); });
  Inside(outer, [&] { EXPECT_EQ(inner.RunModal(&outer), IDCANCEL); });
  EXPECT_EQ(outer.RunModal(&dialog_), IDCANCEL);
  MSG last{};
  while (GetMessageW(&last)) DispatchMessageW(&last);
  EXPECT_EQ(last.message, WM_QUIT);
  EXPECT_EQ(last.wParam, 3u);
}

TEST_F(ModalTest, ADisabledOwnerStaysDisabled) {
  EnableWindow(dialog_.m_hWnd, FALSE);
  TestDialog modal;
  Inside(modal, [&] { modal.EndDialog(1); });
  modal.RunModal(&dialog_);
  EXPECT_FALSE(OwnerIsEnabled());
}

TEST_F(ModalTest, WithoutATemplateItDoesNotRun) {
  CDialogEx dialog;
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_FALSE(dialog.CreateIndirect(nullptr, nullptr));
}

// -- Templates -----------------------------------------------------------------------------------

TEST_F(ModalTest, ATemplateGivesTitleFontAndSize) {
#pragma pack(push, 2)
  struct {
    DLGTEMPLATE header{WS_POPUP | WS_CAPTION | DS_SETFONT, 0, 0, 0, 0, 40, 16};
    WORD menuAndClass[2] = {};
    char16_t title[4] = u"T\U0001F600";
    WORD points = 12;
    char16_t face[12] = u"DejaVu Sans";
  } memory;
#pragma pack(pop)
  CDialogEx dialog;
  ASSERT_TRUE(dialog.CreateIndirect(&memory.header, nullptr));
  EXPECT_EQ(dialog.GetWindowText(), L"T\U0001F600");
  LOGFONTW font{};
  GetFontDescription(dialog.GetFont(), &font);
  EXPECT_EQ(std::wstring(font.lfFaceName), L"DejaVu Sans");
  const FontMetrics metrics = GetFontMetrics(dialog.GetFont());
  EXPECT_EQ(dialog.GetClientRect(), CRect(0, 0, 10 * metrics.averageWidth, 2 * metrics.height));
}
