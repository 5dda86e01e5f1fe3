#include "Button.h"

#include "ButtonBox.h"
#include "CheckBox.h"
#include "Event.h"
#include "MFC/ButtonImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "RadioButton.h"
#include "WexaException.h"
#include "platform/Classes.h"
#include "platform/ControlConstants.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string RadioXml(const std::string& name, const std::string& group) {
  return WidgetItem("QRadioButton", name, TextXml(name) + AttributeXml("buttonGroup", group));
}

class ButtonTest : public FormTest {};

TEST_F(ButtonTest, AClickReachesClickedOnceOnRelease) {
  Open(ColumnForm(TextWidget("QPushButton", "ok", "OK") +
                  TextWidget("QPushButton", "other", "Other")));
  int clicks = 0;
  Find<Button>(L"ok").Clicked.Connect([&] { ++clicks; });
  HWND window = Find<Button>(L"ok").GetPlatformHandle();
  robot_.Press(window);
  EXPECT_EQ(clicks, 0);
  robot_.Release();
  EXPECT_EQ(clicks, 1);
  robot_.Press(window);
  robot_.MoveTo(Find<Button>(L"other").GetPlatformHandle());
  robot_.Release();
  EXPECT_EQ(clicks, 1) << "released outside";
}

TEST_F(ButtonTest, QueuedConnectionsRunInOrderAfterTheHandler) {
  Dialog& dialog = Open(ColumnForm(TextWidget("QPushButton", "ok", "OK")));
  std::string order;
  auto& clicked = Find<Button>(L"ok").Clicked;
  clicked.Connect(&dialog, [&] { order += 'a'; });
  clicked.Connect([&] { order += 'd'; });
  clicked.Connect(&dialog, [&] { order += 'b'; });
  clicked();
  EXPECT_EQ(order, "d");
  Robot::PumpAll();
  EXPECT_EQ(order, "dab");
}

TEST_F(ButtonTest, CallsOnTheirWayDieWithTheirList) {
  Dialog& dialog = Open(ColumnForm(TextWidget("QPushButton", "ok", "OK")));
  int calls = 0;
  {
    CallbackList<int> list;
    list.Connect(&dialog, [&](int n) { calls += n; });
    list(1);
  }
  Robot::PumpAll();
  EXPECT_EQ(calls, 0);
}

TEST_F(ButtonTest, SetCheckedMakesAToggleOnceInPlace) {
  Open(ColumnForm(TextWidget("QPushButton", "first", "First") +
                  TextWidget("QPushButton", "toggle", "Toggle")));
  auto& toggle = Find<Button>(L"toggle");
  Rect before = toggle.GetWindowRect();
  dialog_->SetFocusToCtrl(&toggle);
  int heard = 0;
  toggle.SetEventProcedure([&](BaseGUIObject*, Event*) { return ++heard == 0; });
  const auto destroyed = toggle.Destroyed.Connect([&](BaseGUIObject*) { ++heard; });
  toggle.SetChecked(true);
  EXPECT_EQ(heard, 0) << "the button is still the same";
  toggle.SetEventProcedure({});
  toggle.Destroyed.Disconnect(destroyed);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &toggle);
  HWND window = toggle.GetPlatformHandle();
  toggle.SetChecked(true);
  EXPECT_EQ(toggle.GetPlatformHandle(), window);
  EXPECT_TRUE(toggle.GetCheck());
  EXPECT_EQ(toggle.GetWindowRect(), before);
  EXPECT_EQ(toggle.GetText(), L"Toggle");
  int clicks = 0;
  toggle.Clicked.Connect([&] { ++clicks; });
  robot_.ClickCentreOf(window);
  EXPECT_FALSE(toggle.GetCheck());
  EXPECT_EQ(clicks, 1);
  robot_.Key(VK_TAB);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<Button>(L"first")) << "its place in the tab order";
}

TEST_F(ButtonTest, AnAdoptedNativeButtonGivesEvents) {
  Open(ColumnForm(TextWidget("QPushButton", "ok", "OK")));
  const auto native = std::make_shared<CButton>();
  native->Create(L"native", WS_VISIBLE, CRect(0, 0, 50, 20), CWnd::FromHandle(dialog_->GetHandle()),
                 77);
  int presses = 0;
  Button adopted(native);
  adopted.SetEventProcedure([&](BaseGUIObject*, Event* event) {
    presses += event->GetType() == Event::MousePress;
    return false;
  });
  robot_.ClickCentreOf(native->GetSafeHwnd());
  EXPECT_EQ(presses, 1);
}

TEST_F(ButtonTest, AFormMayMakeAToggle) {
  const auto flag = [](const char* name) { return PropertyXml(name, "bool", "true"); };
  const std::string xml = WidgetXml("QPushButton", "toggle", flag("checkable") + flag("checked"));
  EXPECT_TRUE(
      static_cast<Button&>(*Make(ColumnForm(ItemXml(xml)))->GetElementByName(L"toggle")).GetCheck())
      << "before it has a window";
  Open(ColumnForm(ItemXml(xml)));
  auto& toggle = Find<Button>(L"toggle");
  EXPECT_TRUE(toggle.GetCheck());
  robot_.ClickCentreOf(toggle.GetPlatformHandle());
  EXPECT_FALSE(toggle.GetCheck());
}

TEST_F(ButtonTest, BorderColorsKeepTheirAlphaFromStyleFourOn) {
  Open(ColumnForm(TextWidget("QPushButton", "ok", "OK")));
  auto& button = Find<Button>(L"ok");
  RGBColor half(10, 20, 30, 128);
  button.SetStyle(Button::ButtonStyle::Framed);
  button.SetBorderColor(half, half, half);
  EXPECT_EQ(RGBColor(button.GetSkinManager().Slot(Slot::kButtonBorder)).GetA(), 255);
  button.SetStyle(Button::ButtonStyle::IconAndText);
  button.SetBorderColor(half, half, half);
  EXPECT_EQ(RGBColor(button.GetSkinManager().Slot(Slot::kButtonBorder)).GetA(), 128);
}

TEST_F(ButtonTest, ReturnOnALibraryDrawnButtonClicksIt) {
  Open(ColumnForm(TextWidget("QPushButton", "first", "First") +
                  TextWidget("QPushButton", "drawn", "Drawn")));
  auto& drawn = Find<Button>(L"drawn");
  drawn.SetStyle(Button::ButtonStyle::Framed);
  drawn.SetBackgroundColor(0x1E1EC8u, true);
  int clicks = 0;
  drawn.Clicked.Connect([&] { ++clicks; });
  dialog_->SetFocusToCtrl(&drawn);
  robot_.Key(VK_RETURN);
  EXPECT_EQ(clicks, 1);
  Size size = drawn.GetClientRect().GetSize();
  EXPECT_EQ(Robot::PixelAt(drawn.GetPlatformHandle(), 5, size.Height() / 2), 0xC81E1Eu);
}

TEST_F(ButtonTest, ABoxHasItsButtonsInTheFixedOrder) {
  Open(ColumnForm(WidgetItem(
      "QDialogButtonBox", "box",
      PropertyXml("standardButtons", "set", "QDialogButtonBox::Cancel|QDialogButtonBox::Ok"))));
  auto& box = Find<ButtonBox>(L"box");
  auto ok = box.GetButton(StandardButton::OK);
  auto cancel = box.GetButton(StandardButton::Cancel);
  ASSERT_TRUE(ok && cancel);
  EXPECT_EQ(box.GetButton(StandardButton::Yes), nullptr);
  EXPECT_LT(ok->GetWindowRect().Right(), cancel->GetWindowRect().Left());
  EXPECT_EQ(cancel->GetWindowRect().Right(), box.GetWindowRect().Right());
  EXPECT_EQ(ok->GetText(), L"OK");
  ok->SetText(L"A much longer caption than before");
  Robot::PumpAll();
  EXPECT_GT(ok->GetWindowRect().Width(), 150) << "the box lays out again";
}

TEST_F(ButtonTest, CheckBoxesKeepTheirStateThroughTheDialogsEnd) {
  Open(ColumnForm(WidgetItem("QCheckBox", "check", TextXml("On"))));
  auto& check = Find<CheckBox>(L"check");
  robot_.ClickCentreOf(check.GetPlatformHandle());
  EXPECT_EQ(check.GetCheck(), WexaUtils::Checked);
  check.SetBorderRadius(4);
  check.SetBorderRadius(-1);
  EXPECT_EQ(check.GetBorderRadius(), 4);
  check.SetTristate(true);
  robot_.ClickCentreOf(check.GetPlatformHandle());
  EXPECT_EQ(check.GetCheck(), WexaUtils::PartiallyChecked);
  dialog_->Done(Dialog::Accepted);
  EXPECT_EQ(check.GetPlatformHandle(), nullptr);
  EXPECT_EQ(check.GetCheck(), WexaUtils::PartiallyChecked);
  EXPECT_EQ(check.GetText(), L"On");
}

TEST_F(ButtonTest, RadioGroupsChangeApartFromEachOther) {
  Open(ColumnForm(RadioXml("a1", "a") + RadioXml("a2", "a") + RadioXml("b1", "b") +
                  RadioXml("b2", "b")));
  int clicked = 0;
  int changed = 0;
  Find<RadioButton>(L"a2").Clicked.Connect([&] { ++clicked; });
  Find<RadioButton>(L"a2").GroupChanged.Connect([&] { ++changed; });
  HWND a2 = Find<RadioButton>(L"a2").GetPlatformHandle();
  robot_.ClickCentreOf(Find<RadioButton>(L"b1").GetPlatformHandle());
  robot_.ClickCentreOf(Find<RadioButton>(L"a1").GetPlatformHandle());
  robot_.ClickCentreOf(a2);
  EXPECT_EQ(clicked, 1);
  EXPECT_EQ(changed, 1);
  EXPECT_FALSE(Find<RadioButton>(L"a1").Checked());
  EXPECT_TRUE(Find<RadioButton>(L"b1").Checked()) << "another group";
  robot_.ClickCentreOf(a2);
  EXPECT_EQ(clicked, 2);
  EXPECT_EQ(changed, 1) << "it was the checked one already";
  SendMessageW(Find<RadioButton>(L"b1").GetPlatformHandle(), BM_CLICK, 0, 0);
  SendMessageW(a2, BM_CLICK, 0, 0);
  EXPECT_EQ(clicked, 3) << "a click by the program brings the focus too";
  Find<RadioButton>(L"a1").SetCheck();
  EXPECT_TRUE(Find<RadioButton>(L"a1").Checked());
  EXPECT_FALSE(Find<RadioButton>(L"a2").Checked());
}

TEST_F(ButtonTest, OperationsWithoutAWindowSayThatTheControlIsNotValid) {
  Button button;
  EXPECT_EQ(button.Type(), BaseGUIObject::GuiType::Button);
  auto expectInvalid = [](auto operation) {
    try {
      operation();
      ADD_FAILURE() << "nothing was thrown";
    } catch (const std::exception& error) {
      EXPECT_STREQ(error.what(), "Control is not valid.");
    }
  };
  expectInvalid([&] { button.Show(true, false); });
  expectInvalid([&] { button.Enable(true, true); });
  expectInvalid([&] { button.GetClientRect(); });
  expectInvalid([&] { button.SetChecked(true); });
  button.SetText(L"Kept");
  EXPECT_EQ(button.GetText(), L"Kept");
  EXPECT_FALSE(button.Create(nullptr));
}

}  // namespace
}  // namespace Wexa
