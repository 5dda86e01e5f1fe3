// Focus, tab order, mnemonics, the default button, and messages before they are translated.

#include "ButtonBox.h"
#include "CheckBox.h"
#include "Event.h"
#include "Label.h"
#include "MFC/DialogImplMFC.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

class DialogKeysTest : public DialogTest {
 protected:
  // What Return in an edit clicks.
  std::wstring ClickedByReturn(const std::string& items) {
    Open(ColumnForm(LineEdit("edit") + items));
    std::wstring clicked;
    for (const auto& element : dialog_->GetImpl()->Elements()) Watch(*element.widget, clicked);
    Focus(L"edit");
    robot_.Key(VK_RETURN);
    return clicked;
  }
  std::wstring TabStops(std::size_t count) {
    std::wstring names;
    for (std::size_t i = 0; i < count; ++i) {
      names += FocusedName() + L" ";
      robot_.Tab();
    }
    return names;
  }

 private:
  static void Watch(BaseGUIObject& widget, std::wstring& clicked) {
    const auto listen = [&clicked](Button& button, const std::wstring& name) {
      button.Clicked.Connect([&clicked, name] { clicked += name; });
    };
    if (widget.Type() == BaseGUIObject::GuiType::Button)
      listen(static_cast<Button&>(widget), widget.GetName());
    if (widget.Type() != BaseGUIObject::GuiType::ButtonBox) return;
    auto& box = static_cast<ButtonBox&>(widget);
    if (auto ok = box.GetButton(StandardButton::OK)) listen(*ok, L"box OK");
    if (auto cancel = box.GetButton(StandardButton::Cancel)) listen(*cancel, L"box Cancel");
  }
};

std::string Box(const std::string& buttons) {
  return WidgetItem("QDialogButtonBox", "box", PropertyXml("standardButtons", "set", buttons));
}

TEST_F(DialogKeysTest, ReturnClicksTheFormsDefaultButtonElseTheBoxesOkElseTheFirst) {
  const std::string box = Box("QDialogButtonBox::Cancel|QDialogButtonBox::Ok");
  EXPECT_EQ(ClickedByReturn(PushButton("a") + PushButton("b", BoolXml("default")) + box), L"b");
  EXPECT_EQ(ClickedByReturn(PushButton("a") + box), L"box OK");
  EXPECT_EQ(ClickedByReturn(Box("QDialogButtonBox::Cancel") + PushButton("a") + PushButton("b")),
            L"a");
}

// Chosen before the dialog is shown or while it is, also for its second showing.
TEST_F(DialogKeysTest, AHostsDefaultButtonWins) {
  for (const bool before : {true, false}) {
    dialog_ = Make(ColumnForm(LineEdit("edit") + PushButton("a") +
                              PushButton("b", BoolXml("default")) + PushButton("c")));
    std::wstring clicked;
    for (const wchar_t* name : {L"a", L"b", L"c"})
      Find<Button>(name).Clicked.Connect([&clicked, name] { clicked += name; });
    const auto choose = [&] { dialog_->SetDefaultButton(&Find<Button>(L"c")); };
    if (before) choose();
    for (int showing = 0; showing < 2; ++showing) {
      dialog_->DoModeless(true);
      Robot::PumpAll();
      if (!before && showing == 0) choose();
      Focus(L"edit");
      robot_.Key(VK_RETURN);
    }
    Focus(L"a");
    robot_.Key(VK_RETURN);
    EXPECT_EQ(clicked, L"cca") << "a focused button answers itself";
  }
}

TEST_F(DialogKeysTest, ADeadDefaultButtonGivesWayToTheForms) {
  dialog_ = Make(ColumnForm(LineEdit("edit") + PushButton("a")));
  int clicked = 0;
  Find<Button>(L"a").Clicked.Connect([&] { ++clicked; });
  {
    Button temporary;
    dialog_->SetDefaultButton(&temporary);
  }
  dialog_->DoModeless(true);
  Robot::PumpAll();
  Focus(L"edit");
  robot_.Key(VK_RETURN);
  EXPECT_EQ(clicked, 1);
}

TEST_F(DialogKeysTest, TheFirstTabStopHasTheFocusAtFirst) {
  Open(ColumnForm(TextWidget("QLabel", "label", "text") + LineEdit("a") + LineEdit("b")));
  EXPECT_EQ(FocusedName(), L"a");
  dialog_->SetFocusToCtrl(nullptr);
  EXPECT_EQ(FocusedName(), L"a");
}

TEST_F(DialogKeysTest, AHostsFocusStays) {
  auto& dialog = Scripted(ColumnForm(LineEdit("a") + LineEdit("b")));
  dialog.initialize = [&] {
    Focus(L"b");
    return true;
  };
  dialog.DoModeless(true);
  Robot::PumpAll();
  EXPECT_EQ(FocusedName(), L"b");
}

TEST_F(DialogKeysTest, TabStopsReachIntoContainers) {
  const std::string group =
      WidgetItem("QGroupBox", "group", ColumnXml(LineEdit("g1") + LineEdit("g2")));
  std::string form = ColumnForm(LineEdit("a") + group + LineEdit("b"));
  Open(form);
  EXPECT_EQ(TabStops(5), L"a g1 g2 b a ") << "without tab stops the order of the form";
  const std::string stops =
      "<tabstops><tabstop>g2</tabstop><tabstop>nobody</tabstop><tabstop>g1</tabstop>"
      "<tabstop>b</tabstop><tabstop>a</tabstop></tabstops></ui>";
  form.replace(form.rfind("</ui>"), 5, stops);
  Open(form);
  EXPECT_EQ(TabStops(5), L"g2 g1 b a g2 ");
  robot_.ShiftTab();
  EXPECT_EQ(FocusedName(), L"g2");
}

TEST_F(DialogKeysTest, DisabledAndHiddenWidgetsAndThoseWithoutFocusPolicyAreSkipped) {
  Open(ColumnForm(LineEdit("a") + LineEdit("b") + LineEdit("c") +
                  LineEdit("d", EnumXml("focusPolicy", "Qt::NoFocus")) + LineEdit("e")));
  Find<BaseGUIObject>(L"b").Enable(false, true);
  Find<BaseGUIObject>(L"c").Show(false, true);
  EXPECT_EQ(TabStops(3), L"a e a ");
}

TEST_F(DialogKeysTest, AMnemonicOfALabelLeadsToItsBuddy) {
  const auto label = [](const char* text, const char* buddy) {
    return TextWidget("QLabel", std::string("of ") + buddy, text,
                      PropertyXml("buddy", "cstring", buddy));
  };
  Open(ColumnForm(label("&amp;\u00DCber", "first") + label("&amp;Later", "later") +
                  label("&amp;None", "nobody") + LineEdit("first") + LineEdit("later") +
                  TextWidget("QCheckBox", "check", "&amp;Check")));
  EXPECT_EQ(FocusedName(), L"first");
  robot_.AltKey(L'l');
  EXPECT_EQ(FocusedName(), L"later") << "though it comes after another edit";
  robot_.AltKey(L'\u00FC');
  EXPECT_EQ(FocusedName(), L"first") << "letters beyond ASCII have cases too";
  robot_.AltKey(L'l');
  robot_.AltKey(L'n');
  EXPECT_EQ(FocusedName(), L"later");
  robot_.AltKey(L'c');
  EXPECT_EQ(FocusedName(), L"check");
  EXPECT_EQ(Find<CheckBox>(L"check").GetCheck(), WexaUtils::Checked);
}

TEST_F(DialogKeysTest, ADeadBuddyIsForgotten) {
  Open(ColumnForm(TextWidget("QLabel", "label", "&amp;Later") + LineEdit("edit")));
  auto& label = Find<Label>(L"label");
  {
    Button temporary;
    label.SetBuddy(&temporary);
  }
  robot_.AltKey(L'l');
  EXPECT_EQ(label.GetBuddy(), nullptr);
  EXPECT_EQ(FocusedName(), L"edit");
}

// By the pre-filter of the dialog or of any widget from the focus up.
TEST_F(DialogKeysTest, AHostMayConsumeMessagesOrKeepThemFromTheDialogKeys) {
  const std::string group = WidgetItem("QGroupBox", "group", ColumnXml(LineEdit("a")));
  for (const wchar_t* name : {L"", L"group", L"a"}) {
    Open(ColumnForm(group + LineEdit("b")));
    BaseGUIObject& filtering = *name ? Find<BaseGUIObject>(name) : *dialog_;
    int answer = 1;
    filtering.SetPreTranslateMessage([&](void* message) {
      return static_cast<MSG*>(message)->message == WM_KEYDOWN ? answer : 2;
    });
    int reached = 0;
    Find<BaseGUIObject>(L"a").SetEventProcedure([&](BaseGUIObject*, Event* event) {
      if (event->GetType() == Event::KeyPress) ++reached;
      return false;
    });
    robot_.Tab();
    EXPECT_EQ(FocusedName(), L"a");
    EXPECT_EQ(reached, 0) << "consumed";
    answer = 0;
    robot_.Tab();
    EXPECT_EQ(FocusedName(), L"a");
    EXPECT_GE(reached, 1) << "dispatched, without the dialog's keys";
    answer = 5;
    robot_.Tab();
    EXPECT_EQ(FocusedName(), L"b");
  }
}

TEST_F(DialogKeysTest, AFilterComesBeforeAWidgetsOwnKeysAndMayEndTheDialog) {
  Open(ColumnForm(PushButton("drawn")));
  auto& button = Find<Button>(L"drawn");
  button.SetStyle(Button::ButtonStyle::Flat);  // takes Return before it is dispatched
  int clicks = 0;
  button.Clicked.Connect([&] { ++clicks; });
  Focus(L"drawn");
  button.SetPreTranslateMessage([&](void* message) {
    if (static_cast<MSG*>(message)->message != WM_KEYDOWN) return 2;
    dialog_.reset();
    return 1;
  });
  robot_.Key(VK_RETURN);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(dialog_, nullptr);
}

}  // namespace
}  // namespace Wexa
