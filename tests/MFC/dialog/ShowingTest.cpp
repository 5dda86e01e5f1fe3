// How dialogs are shown and ended, modal and modeless.

#include <gmock/gmock.h>

#include <stdexcept>

#include "ButtonBox.h"
#include "Edit.h"
#include "MFC/DialogImplMFC.h"
#include "WexaException.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

constexpr unsigned long kNoSystemMenu = 0x10C40000;
constexpr auto kOwnState = static_cast<Dialog::DoneState>(42);

TEST_F(DialogTest, DoModalReturnsTheStateItWasEndedWith) {
  auto& dialog = Scripted(ColumnForm(LineEdit("edit")));
  dialog.step = [&] {
    EXPECT_TRUE(dialog.IsModalMode());
    EXPECT_TRUE(dialog.IsInitialized());
    EXPECT_TRUE(dialog.IsVisible());
    dialog.Done(kOwnState);
  };
  EXPECT_EQ(dialog.DoModal(), kOwnState);
  EXPECT_EQ(dialog.GetHandle(), nullptr);
  EXPECT_EQ(dialog.GetWndPtr(), nullptr);
  dialog.step = [&] { dialog.Done(Dialog::Accepted); };
  EXPECT_EQ(dialog.DoModal(), Dialog::Accepted) << "it can be shown again";
}

// Between its minimum and what its layout would like.
TEST_F(DialogTest, ADialogOpensAtTheHeightThatItsFormAsksFor) {
  const std::string wrapped = PropertyXml("wordWrap", "bool", "true");
  Open(ColumnForm(TextWidget("QLabel", "text", "a few words", wrapped) +
                      ItemXml("<layout class=\"QGridLayout\"><item row=\"0\" column=\"0\">" +
                              WidgetXml("QLabel", "deep", wrapped) + "</item><item row=\"1\">" +
                              WidgetXml("QTextEdit", "edit") + "</item></layout>"),
                  300, 170));
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), Size(300, 170));
  Open(ColumnForm(TextWidget("QLabel", "text", std::string(600, 'a') + " b", wrapped), 100, 20));
  EXPECT_GT(dialog_->GetClientRect().Height(), 20);
}

// A surface has a largest number of pixels, not a largest height.
TEST_F(DialogTest, TheSizeAskedForIsBoundedByItsPixels) {
  Open(ColumnForm(LineEdit("edit")));
  MINMAXINFO info{};
  SendMessageW(dialog_->GetHandle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  EXPECT_GT(info.ptMaxTrackSize.y, 16000);
  dialog_->GetImpl()->ResizeClient(400, 5000);
  EXPECT_EQ(dialog_->GetClientRect().Height(), 5000);
  WINDOWPOS request{dialog_->GetHandle(), nullptr, 0, 0, 16000, 16000, SWP_NOMOVE};
  SendMessageW(dialog_->GetHandle(), WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&request));
  EXPECT_LT(request.cy, 2200);
}

TEST_F(DialogTest, AFilterKeepsTheDialogOpenButDoesNotChangeTheState) {
  auto& dialog = Scripted(ColumnForm(LineEdit("edit")));
  std::vector<int> asked;
  dialog.filter = [&](int state) {
    asked.push_back(state);
    return asked.size() == 1 ? -1 : 7;
  };
  dialog.step = [&] {
    dialog.Done(Dialog::Accepted);
    EXPECT_TRUE(dialog.IsVisible());
    dialog.Done(kOwnState);
  };
  EXPECT_EQ(dialog.DoModal(), kOwnState);
  EXPECT_EQ(asked, (std::vector<int>{Dialog::Accepted, kOwnState}));
}

TEST_F(DialogTest, EscapeAndTheCloseButtonEndADialogWithASystemMenuOnly) {
  for (const bool hasMenu : {true, false})
    for (const bool byKey : {true, false}) {
      auto& dialog = Scripted(ColumnForm(LineEdit("edit")), hasMenu ? 0 : kNoSystemMenu);
      dialog.step = [&] {
        if (byKey)
          robot_.Key(VK_ESCAPE);
        else
          dialog.GetWndPtr()->PostMessage(WM_SYSCOMMAND, SC_CLOSE);
        Robot::PumpAll();
        EXPECT_EQ(dialog.IsVisible(), !hasMenu);
        if (!hasMenu) dialog.Done(kOwnState);
      };
      EXPECT_EQ(dialog.DoModal(), hasMenu ? static_cast<int>(Dialog::Rejected) : kOwnState);
    }
}

TEST_F(DialogTest, WhereNobodyCanEndItItIsClosed) {
  EXPECT_EQ(Scripted(ColumnForm(LineEdit("edit"))).DoModal(), Dialog::Rejected);
  EXPECT_EQ(Scripted(ColumnForm(LineEdit("edit")), kNoSystemMenu).DoModal(), Dialog::Rejected);
  auto& refusing = Scripted(ColumnForm(LineEdit("edit")));
  int asked = 0;
  refusing.filter = [&asked](int) { return ++asked, -1; };
  EXPECT_EQ(refusing.DoModal(), Dialog::Rejected);
  EXPECT_EQ(asked, 1);
}

TEST_F(DialogTest, ThatNobodySeesADialogIsSaidOnce) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto showTwice = [this] {
    Scripted(FormXml("", 300, 200)).DoModal();
    Scripted(FormXml("", 300, 200)).DoModal();
    std::_Exit(0);
  };
  EXPECT_EXIT(showTwice(), testing::ExitedWithCode(0),
              "^A dialog was closed because nobody can see it: [^\n]*\n$");
}

TEST_F(DialogTest, DoneWithoutAWindowThrows) {
  Dialog& dialog = Open(ColumnForm(LineEdit("edit")));
  dialog.Done(Dialog::Accepted);
  EXPECT_THAT([&] { dialog.Done(Dialog::Accepted); },
              ::testing::ThrowsMessage<WexaException>(::testing::HasSubstr("Invalid Control!")));
}

TEST_F(DialogTest, AModelessDialogCanBeShownAgain) {
  Open(ColumnForm(LineEdit("edit") + PushButton("button")));
  const Rect place = PlaceOf(L"button");
  Find<Edit>(L"edit").SetText(L"entered");
  dialog_->Done(Dialog::Accepted);
  EXPECT_FALSE(dialog_->IsModalMode());
  EXPECT_EQ(dialog_->GetHandle(), nullptr);
  EXPECT_EQ(Find<Edit>(L"edit").GetText(), L"entered") << "what was entered stays readable";
  dialog_->DoModeless(true);
  EXPECT_EQ(Find<Edit>(L"edit").GetText(), L"entered");
  EXPECT_EQ(PlaceOf(L"button"), place);
  dialog_->DoModeless(true);
  EXPECT_EQ(GetTopLevelWindows().size(), 1u) << "the second takes the place of the first";
}

TEST_F(DialogTest, AHiddenModelessDialogIsShownLater) {
  dialog_ = Make(ColumnForm(LineEdit("edit") + PushButton("button")));
  dialog_->DoModeless(false);
  EXPECT_TRUE(dialog_->IsInitialized());
  EXPECT_FALSE(dialog_->IsVisible());
  Find<Button>(L"button").Show(false, true);
  dialog_->ShowButKeepHiddenChildren(true);
  EXPECT_TRUE(dialog_->IsVisible());
  EXPECT_FALSE(Find<Button>(L"button").IsVisible());
}

// Refused or ended before it is seen, in each place where the host can.
TEST_F(DialogTest, ADialogMayEndBeforeItIsSeen) {
  for (const bool modal : {true, false})
    for (const int place : {0, 1, 2}) {
      auto& dialog = Scripted(ColumnForm(LineEdit("edit")));
      dialog.initialize = [&] {
        if (place == 1) dialog.Done(kOwnState);
        return place != 0;
      };
      if (place == 2) dialog.Initialized.Connect([&] { dialog.Done(kOwnState); });
      if (modal)
        EXPECT_EQ(dialog.DoModal(), place == 0 ? static_cast<int>(Dialog::Rejected) : kOwnState);
      else
        EXPECT_NO_THROW(dialog.DoModeless(true)) << place;
      EXPECT_EQ(dialog.GetHandle(), nullptr);
      EXPECT_TRUE(GetTopLevelWindows().empty());
    }
}

TEST_F(DialogTest, InitializedIsFiredWithWindowsThatNobodyHasSeen) {
  auto& dialog = Scripted(ColumnForm(LineEdit("edit") + PushButton("button") + LineEdit("other")));
  std::string order;
  dialog.initialize = [&] { return order += "overridden ", true; };
  dialog.Initialized.Connect([&] {
    order += "connected ";
    EXPECT_TRUE(dialog.IsInitialized());
    EXPECT_FALSE(dialog.IsVisible());
    Find<Edit>(L"edit").Enable(false, true);
    Find<Button>(L"button").Show(false, true);
    EXPECT_NE(Find<Button>(L"button").SetTimer(1, 50), 0u);
  });
  for (int showing = 0; showing < 2; ++showing) {
    dialog.DoModeless(true);
    Robot::PumpAll();
    EXPECT_FALSE(Find<Edit>(L"edit").IsEnabled());
    EXPECT_FALSE(Find<Button>(L"button").IsVisible());
    EXPECT_EQ(FocusedName(), L"other");
  }
  EXPECT_EQ(order, "overridden connected overridden connected ");
}

TEST_F(DialogTest, ADialogMayBeDestroyedBeforeItIsSeen) {
  for (const bool modal : {true, false}) {
    auto& dialog = Scripted(ColumnForm(LineEdit("edit")));
    dialog.Initialized.Connect([&] { dialog_.reset(); });
    modal ? static_cast<void>(dialog.DoModal()) : dialog.DoModeless(true);
    EXPECT_EQ(dialog_, nullptr);
    EXPECT_TRUE(GetTopLevelWindows().empty());
  }
}

// What was remembered counts in the next showing, what was not does not.
TEST_F(DialogTest, RememberedDisablingOutlastsAShowing) {
  struct Step {
    bool enable;
    bool remember;
  };
  struct Case {
    const char* byForm;
    std::vector<Step> steps;
    bool enabledAfter;
    bool enabledAgain;
    bool temporaryEnables;  // whether Enable(true, false) enables it in the second showing
  };
  const Case kCases[] = {{"true", {}, true, true, true},
                         {"true", {{false, true}}, false, false, false},
                         {"true", {{false, false}}, false, true, true},
                         {"true", {{false, true}, {true, false}}, false, false, false},
                         {"true", {{false, true}, {true, true}}, true, true, true},
                         {"false", {}, false, false, false},
                         {"false", {{true, true}}, true, true, true},
                         {"false", {{true, true}, {false, false}}, false, true, true}};
  for (const Case& c : kCases) {
    Open(ColumnForm(LineEdit("edit", PropertyXml("enabled", "bool", c.byForm))));
    auto& edit = Find<Edit>(L"edit");
    for (const Step& step : c.steps) edit.Enable(step.enable, step.remember);
    const auto at = std::to_string(&c - kCases);
    EXPECT_EQ(edit.IsEnabled(), c.enabledAfter) << at;
    dialog_->Done(Dialog::Accepted);
    dialog_->DoModeless(true);
    EXPECT_EQ(edit.IsEnabled(), c.enabledAgain) << at;
    edit.Enable(false, false);
    edit.Enable(true, false);
    EXPECT_EQ(edit.IsEnabled(), c.temporaryEnables) << at;
  }
}

TEST_F(DialogTest, ATextThatIsThereFromTheBeginningIsNoChange) {
  dialog_ = Make(ColumnForm(LineEdit("edit")));
  std::wstring told;
  Find<Edit>(L"edit").TextChanged.Connect([&](const std::wstring& text) { told += text; });
  Find<Edit>(L"edit").SetText(L"before");
  for (int showing = 0; showing < 2; ++showing) {
    dialog_->DoModeless(true);
    Robot::PumpAll();
    EXPECT_EQ(told, L"");
  }
  Find<Edit>(L"edit").SetText(L"shown");
  EXPECT_EQ(told, L"shown");
}

TEST_F(DialogTest, AnExceptionOfAHandlerLeavesNothingBehind) {
  Open(ColumnForm(LineEdit("edit")));
  auto modal = MakeScripted(ColumnForm(PushButton("fails")), 0, dialog_->GetHandle());
  auto& button = static_cast<Button&>(*modal->GetElementByName(L"fails"));
  button.Clicked.Connect([] { throw std::runtime_error("of the host"); });
  modal->step = [&] {
    robot_.Press(Robot::CentreOf(button.GetPlatformHandle()));
    EXPECT_NE(GetCapture(), nullptr);
    robot_.Release();
  };
  EXPECT_THROW(modal->DoModal(), std::runtime_error);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(modal->GetHandle(), nullptr);
  EXPECT_TRUE(IsWindowEnabled(dialog_->GetHandle()));
  EXPECT_EQ(FocusedName(), L"edit");
  modal->step = [&] { modal->Done(kOwnState); };
  EXPECT_EQ(modal->DoModal(), kOwnState) << "it can be shown again";
}

TEST_F(DialogTest, TheFocusInAPartOfAWidgetIsTheWidgets) {
  Open(ColumnForm(WidgetItem("QTabWidget", "tabs", WidgetXml("QWidget", "page")) +
                  WidgetItem("QDialogButtonBox", "box",
                             PropertyXml("standardButtons", "set", "QDialogButtonBox::Ok"))));
  const auto focusFirstPartOf = [this](const wchar_t* name) {
    SetFocus(GetWindow(Find<BaseGUIObject>(name).GetPlatformHandle(), GW_CHILD));
    return dialog_->GetFocusedCtrlPtr();
  };
  EXPECT_EQ(focusFirstPartOf(L"tabs"), &Find<BaseGUIObject>(L"tabs"));
  EXPECT_EQ(focusFirstPartOf(L"box"), Find<ButtonBox>(L"box").GetButton(StandardButton::OK).get());
}

TEST_F(DialogTest, AHandlerOrAStepMayDestroyItsDialog) {
  auto& modal = Scripted(ColumnForm(PushButton("bye")));
  auto& button = Find<Button>(L"bye");
  button.Clicked.Connect([&] { dialog_.reset(); });
  modal.step = [&] { robot_.ClickCentreOf(button.GetPlatformHandle()); };
  modal.DoModal();
  EXPECT_EQ(dialog_, nullptr);
  auto& modeless = Scripted(ColumnForm(PushButton("bye")));
  modeless.step = [&] { dialog_.reset(); };
  modeless.DoModeless(true);
  Robot::PumpAll();
  EXPECT_EQ(dialog_, nullptr);
  EXPECT_TRUE(GetTopLevelWindows().empty());
}

TEST_F(DialogTest, QueuedCallsArriveInOrderAfterTheHandler) {
  Open(ColumnForm(PushButton("button")));
  auto& button = Find<Button>(L"button");
  std::string calls;
  button.Clicked.Connect(&button, [&] { calls += "1"; });
  button.Clicked.Connect(dialog_.get(), [&] { calls += "2"; });
  button.Clicked.Connect([&] { calls += "direct "; });
  button.Clicked.Connect(&button, [&] { calls += "3"; });
  robot_.ClickCentreOf(button.GetPlatformHandle());
  EXPECT_EQ(calls, "direct 123");
}

TEST_F(DialogTest, TheFirstOfTwoElementsWithOneNameIsFound) {
  Open(ColumnForm(LineEdit("same") + PushButton("same") + LineEdit("Same")));
  EXPECT_EQ(dialog_->GetElementByName(L"same")->Type(), BaseGUIObject::GuiType::Edit);
  EXPECT_NE(dialog_->GetElementByName(L"same"), dialog_->GetElementByName(L"Same"));
  EXPECT_EQ(dialog_->GetElementByName(L"other"), nullptr);
  EXPECT_EQ(dialog_->GetElementByName(L"root"), nullptr);
}

TEST_F(DialogTest, ADialogWithoutAFormHasNothingAndHoldsStill) {
  Dialog dialog;
  EXPECT_EQ(dialog.GetElementByName(L"x"), nullptr);
  EXPECT_EQ(dialog.GetFocusedCtrlPtr(), nullptr);
  EXPECT_EQ(dialog.GetHandle(), nullptr);
  dialog.SetWindowTitle(L"title");
  dialog.UpdateWindow();
  dialog.SetFocusToCtrl(nullptr);
  dialog.SetDefaultButton(nullptr);
  EXPECT_THROW(dialog.Done(Dialog::Accepted), WexaException);
}

TEST_F(DialogTest, ElementsOutliveTheirDialogInTheHandsOfAHost) {
  Open(ColumnForm(LineEdit("edit") + PushButton("button")));
  auto edit = dialog_->GetElementByName(L"edit");
  auto button = dialog_->GetElementByName(L"button");
  dialog_.reset();
  EXPECT_EQ(edit->GetPlatformHandle(), nullptr);
  EXPECT_EQ(static_cast<Edit&>(*edit).GetText(), L"edit");
  EXPECT_EQ(static_cast<Button&>(*button).GetText(), L"button");
  EXPECT_THROW(button->Enable(true, true), WexaException);
}

// A fresh process: the ids of controls start where they always do.
int FirstAndSecondId(const std::wstring& form) {
  Dialog dialog(form, nullptr, 0, 1.0);
  dialog.DoModeless(true);
  const auto idOf = [&](const wchar_t* name) {
    return GetDlgCtrlID(dialog.GetElementByName(name)->GetPlatformHandle());
  };
  return idOf(L"a") == 3000 && idOf(L"b") == 3001 ? 0 : 1;
}

using DialogDeathTest = DialogTest;

TEST_F(DialogDeathTest, TheFirstControlOfAProcessHasTheId3000) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto form = FileOf(ColumnForm(LineEdit("a") + LineEdit("b")));
  EXPECT_EXIT(std::exit(FirstAndSecondId(form)), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace Wexa
