#include "GroupBox.h"

#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

class GroupBoxTest : public FormTest {
 protected:
  GroupBox& OpenGroup(const std::string& properties = "") {
    Open(ColumnForm(WidgetItem("QLineEdit", "before") +
                    WidgetItem("QGroupBox", "group",
                               PropertyXml("title", "string", "&amp;Proxy") + properties +
                                   ColumnXml(WidgetItem("QLineEdit", "host") +
                                             WidgetItem("QLineEdit", "port")))));
    return Find<GroupBox>(L"group");
  }
  std::string Checkable(const char* checked) {
    return BoolXml("checkable") + PropertyXml("checked", "bool", checked);
  }
  bool IsEnabled(const wchar_t* name) { return Find<BaseGUIObject>(name).IsEnabled(); }
  HWND Check() { return GetWindow(Find<GroupBox>(L"group").GetPlatformHandle(), GW_CHILD); }
};

TEST_F(GroupBoxTest, AnUncheckedBoxDisablesWhatIsInIt) {
  GroupBox& group = OpenGroup(Checkable("false"));
  EXPECT_FALSE(IsEnabled(L"host"));
  EXPECT_TRUE(group.IsEnabled());
  std::vector<bool> toggles;
  group.Toggled.Connect([&](bool checked) { toggles.push_back(checked); });
  robot_.ClickCentreOf(Check());
  EXPECT_TRUE(group.IsChecked());
  EXPECT_TRUE(IsEnabled(L"host"));
  group.SetChecked(false);
  group.SetChecked(false);
  EXPECT_FALSE(IsEnabled(L"port"));
  EXPECT_EQ(toggles, (std::vector{true, false}));
}

TEST_F(GroupBoxTest, WhatTheHostDisabledStaysDisabled) {
  GroupBox& group = OpenGroup(Checkable("true"));
  Find<BaseGUIObject>(L"port").Enable(false, true);
  group.SetChecked(false);
  group.SetChecked(true);
  EXPECT_TRUE(IsEnabled(L"host"));
  EXPECT_FALSE(IsEnabled(L"port"));
  group.Enable(false, true);
  EXPECT_FALSE(IsEnabled(L"host")) << "with its box";
  group.Enable(true, true);
  EXPECT_TRUE(IsEnabled(L"host"));
  EXPECT_FALSE(IsEnabled(L"port"));
}

TEST_F(GroupBoxTest, TheCheckBoxWorksByKeyboard) {
  GroupBox& group = OpenGroup(Checkable("true"));
  dialog_->SetFocusToCtrl(&Find<BaseGUIObject>(L"before"));
  robot_.Tab();
  EXPECT_EQ(GetFocus(), Check());
  robot_.Key(VK_SPACE);
  EXPECT_FALSE(group.IsChecked());
  robot_.AltKey(L'P');
  EXPECT_TRUE(group.IsChecked());
  robot_.Tab();
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<BaseGUIObject>(L"host"));
}

TEST_F(GroupBoxTest, APlainTitlesMnemonicLeadsIntoTheBox) {
  OpenGroup();
  robot_.AltKey(L'P');
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<BaseGUIObject>(L"host"));
}

TEST_F(GroupBoxTest, CheckableOrNotTheContentStartsBelowTheTitle) {
  GroupBox& group = OpenGroup();
  int plain = PlaceOf(L"host").Top();
  group.SetCheckable(true);
  Robot::PumpAll();
  RECT check{};
  GetWindowRect(Check(), &check);
  EXPECT_GE(Find<BaseGUIObject>(L"host").GetWindowRect().Top(), check.bottom);
  group.SetChecked(false);
  group.SetCheckable(false);
  Robot::PumpAll();
  EXPECT_EQ(PlaceOf(L"host").Top(), plain);
  EXPECT_TRUE(IsEnabled(L"host")) << "a plain box disables nothing";
}

}  // namespace
}  // namespace Wexa
